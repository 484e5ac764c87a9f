"""What a property costs from Python, beside the C++ call behind it and an attribute of a bare type."""
import sys
import timeit

import baseline
import vellox.ppt as ppt

COUNT = 200_000
REPEATS = 7


def measure(statement, **names):
    """The seconds of one run of a statement, without the loop around it."""
    def time(body):
        return min(timeit.repeat(body, globals=names, number=COUNT, repeat=REPEATS)) / COUNT
    return time(statement) - time("pass")


def get_cases():
    """Property, object, and a value to set; None for one that is only read."""
    box = ppt.TextBox()
    paragraph = box.add("text")
    return [("Name", box, "Remark"), ("X", box, "2in"), ("Bold", paragraph, True), ("Level", paragraph, 3),
            ("FontColor", paragraph, "navy"), ("Parent", paragraph, None)]


def main():
    bare = baseline.Bare()
    plain = {"get": measure("o.value", o=bare), "set": measure("o.value = v", o=bare, v="navy")}
    rounds = [baseline.measure_calls(COUNT) for _ in range(REPEATS)]
    calls = {name: min(each[name] for each in rounds) for name in rounds[0]}
    worst = 0.0
    print(f"{'nanoseconds':16}{'property':>10}{'C++ call':>10}{'above it':>10}{'bare attribute':>16}")
    for name, owner, value in get_cases():
        kinds = [("get", f"o.{name}")]
        if value is not None:
            setattr(owner, name, value)
            kinds.append(("set", f"o.{name} = v"))
        for kind, statement in kinds:
            cost = measure(statement, o=owner, v=value)
            call = calls[f"{name} {kind}"]
            worst = max(worst, cost - call)
            print(f"{name + ' ' + kind:16}{cost * 1e9:10.1f}{call * 1e9:10.1f}{(cost - call) * 1e9:10.1f}"
                  f"{plain[kind] * 1e9:16.1f}")
    print(f"At most {worst * 1e9:.0f} ns above the C++ call; the aim is 200.")
    return 0 if worst < 200e-9 else 1


if __name__ == "__main__":
    sys.exit(main())
