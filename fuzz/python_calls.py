"""Calls vellox.ppt in any order with any values, with listeners that do the same. Whatever is wrong must be an error.

    python_calls.py <seed> <number of calls>

To be run with a module that is built with sanitizers; a failure is what they find.
"""
import datetime
import gc
import os
import random
import re
import sys
import tempfile
import warnings

import numpy as np

import vellox.ppt as ppt

TEXTS = ["x", "", "Title", "Content", "Picture", "Table", "Blank", "Title and Content", "Title and Table",
         "Title and Picture", "Vellox", "red", "#12ab34", "2in", "18pt", "left", "top", "single", "pass", "o.pptx",
         "a\0b", "\ud800"]
NUMBERS = [0, 1, 2, 3, -1, 10, 2**33, 10**400, 1.5, float("nan"), float("inf"), True, np.float32(2)]
OTHERS = [None, [], ["a", ["b", ["c"]]], [["a", 1], ["b", None]], np.arange(6).reshape(2, 3), np.zeros((0, 3)),
          np.zeros((2, 2, 2)), np.array(["a", "b"]), b"x", {}, object(), np.arange(4, dtype=">i8"),
          np.array([2**60, 1]), np.ma.array([[1, 2], [3, 4]], mask=[[0, 1], [0, 0]]), np.ma.masked,
          np.array(["2026-03-01", "NaT"], "M8[D]"), np.array(None), [datetime.timedelta(1), 2**70],
          [[1, 2], [None, b"x"]]]
CLASSES = [each for each in vars(ppt).values() if isinstance(each, type) and issubclass(each, ppt.Null)]
REFUSALS = (ppt.Error, TypeError, AttributeError, RuntimeError, KeyError, ValueError, OverflowError)
MOST_OBJECTS = 60
DEEPEST_CALL = 3


class Caller:
    """Objects, and what is done with them next."""

    def __init__(self, seed):
        self.draw = random.Random(seed)
        self.dispatcher = ppt.MessageDispatcher.getTheDispatcher()
        self.objects = [self.dispatcher, self.dispatcher.Filter]
        self.depth = 0

    def listen(self, event):
        if self.draw.random() < 0.3:
            self.objects += self.draw.choice([[], [event], [event.Message.Source]])
            if self.draw.random() < 0.3:
                self.act()
        if self.draw.random() < 0.05:
            raise KeyError("a listener")

    def pick(self, wanted):
        """A value of a type, as a docstring names it, or any."""
        plain = {"str": TEXTS, "int": [0, 1, 2, 3], "float": [0.5], "bool": [True, False]}
        if wanted == "Mapping":
            return {self.draw.choice(["Title", "type:body", "idx:1"] + TEXTS): self.pick("Any")}
        if wanted in plain:
            return self.draw.choice(plain[wanted])
        found = [each for each in self.objects if isinstance(each, getattr(ppt, wanted, ()))]
        return self.draw.choice(found or self.objects + TEXTS + NUMBERS + OTHERS + [self.objects[:3]])

    def pick_arguments(self, doc):
        overloads = re.findall(r"^\w+\((.*?)\)(?: ->.*)?$", doc or "", re.MULTILINE)
        if not overloads or self.draw.random() < 0.2:
            return [self.pick("Any") for _ in range(self.draw.choice([0, 1, 1, 2, 2, 3]))]
        chosen = self.draw.choice(overloads)
        return [self.pick(wanted) for wanted in re.findall(r"\w+: (\w+)", chosen)]

    def keep(self, result):
        for each in result if isinstance(result, list) else [result]:
            if isinstance(each, ppt.Null):
                self.objects.append(each)

    def make(self):
        chosen = self.draw.choice(CLASSES)
        self.keep(chosen(*self.pick_arguments(chosen.__doc__)))

    def close_deck(self):
        """A deck whose closing is heard of: a table has a style that the template doesn't have."""
        deck = ppt.Presentation("closed.pptx")
        slide = deck.add("Title and Table")
        table = slide.find("Table")[0].replace(ppt.Table([["a", "b"], ["c", "d"]]))
        table.StyleName = "No such style"
        slide.add(ppt.TextBox())
        self.objects += [deck, slide, table]
        deck.close()

    def drop(self):
        self.objects.pop(self.draw.randrange(len(self.objects)))

    def use(self):
        owner = self.draw.choice(self.objects)
        name = self.draw.choice([each for each in dir(owner) if not each.startswith("__")] +
                                ["__init__", "__repr__", "__exit__", "__copy__", "__deepcopy__"])
        is_method = callable(getattr(type(owner), name, None))
        if not is_method and self.draw.random() < 0.3:
            setattr(owner, name, self.pick("Any"))
        elif is_method:
            method = getattr(owner, name)
            self.keep(method(*self.pick_arguments(method.__doc__)))
        else:
            self.keep(getattr(owner, name))

    def change_listening(self):
        change = self.draw.choice([self.dispatcher.addListener, self.dispatcher.removeListener])
        change(self.listen)
        self.dispatcher.Filter.DebugMessagesPass = self.draw.random() < 0.8
        self.dispatcher.Filter.SourceFilter = None
        self.dispatcher.Filter.GlobalFilter = None

    @staticmethod
    def is_alive(each):
        try:
            return bool(each.Id)
        except (RuntimeError, AttributeError):
            return False

    def forget_ended(self):
        self.objects = [each for each in self.objects if self.is_alive(each)]
        gc.collect()

    def act(self):
        if self.depth > DEEPEST_CALL:
            return
        self.depth += 1
        try:
            steps = [self.make, self.close_deck, self.drop, self.change_listening, self.forget_ended, self.use]
            step = self.draw.choices(steps, [15, 1, 13, 4, 2, 65])[0]
            if len(self.objects) > MOST_OBJECTS:
                step = self.drop
            elif len(self.objects) < 2:
                step = self.make
            step()
        finally:
            self.depth -= 1


def main():
    warnings.simplefilter("ignore")
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        caller = Caller(int(sys.argv[1]))
        refused = 0
        for _ in range(int(sys.argv[2])):
            try:
                caller.act()
            except REFUSALS:
                refused += 1
        print(f"{refused} calls were refused")
        os.chdir("/")


if __name__ == "__main__":
    main()
