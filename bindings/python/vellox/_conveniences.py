"""What Python users expect of objects besides what the class table says.

A class here is a further base of the class of its name in vellox.ppt, so that all classes that derive from that have
what it adds. What the table says goes first. The module vellox.ppt reads this while its classes are made; the stubs
name these classes as bases, so that the types here are those that checkers see.
"""
from __future__ import annotations

TYPE_CHECKING = False  # each process reads this: modules are imported where they are used
if TYPE_CHECKING:
    from collections.abc import Iterator
    from types import TracebackType
    from typing import Any, Literal, Self

    from ._findings import Finding
    from .ppt import Shape
    from .ppt import Slide as _Slide


class Object:
    """Copies."""

    __slots__ = ()

    if TYPE_CHECKING:
        def __vellox_twin__(self) -> Self: ...
        def __vellox_give_up__(self) -> None: ...

    def __copy__(self) -> Self:
        """A copy with copies of all that it holds, without tag, name and parent."""
        twin = self.__vellox_twin__()
        if hasattr(self, "__dict__"):  # what a user's class has put into it goes along
            twin.__dict__.update(self.__dict__)
        return twin

    def __deepcopy__(self, memo: Any, /) -> Self:
        """The same; what your class has added is copied too."""
        if not isinstance(memo, dict):
            raise TypeError(f"a memo is a dictionary, not {memo!r}")
        twin = self.__vellox_twin__()
        memo[id(self)] = twin  # it may hold itself
        if hasattr(self, "__dict__"):
            import copy

            twin.__dict__.update(copy.deepcopy(self.__dict__, memo))
        return twin


class Presentation:
    """The with statement, the slides in order, and findings."""

    __slots__ = ()

    if TYPE_CHECKING:
        def getFindings(self) -> list[tuple[str, str, str, str, str, str]]: ...
        def __vellox_give_up__(self) -> None: ...
        def open(self) -> bool: ...
        def close(self) -> bool: ...
        @property
        def Children(self) -> list[_Slide]: ...

    def __len__(self) -> int:
        """The number of slides."""
        self.open()
        return len(self.Children)

    def __bool__(self) -> bool:
        """Also without slides."""
        return True

    def __iter__(self) -> Iterator[_Slide]:
        """The slides that there are now: they may be removed meanwhile."""
        self.open()
        return iter(self.Children)

    @property
    def Findings(self) -> list[Finding]:
        """What was asked for and isn't in the deck, or is other than asked, in the order in which it came out."""
        from ._findings import read_findings

        return read_findings(self.getFindings())

    def __enter__(self) -> Self:
        """Gives the presentation itself."""
        return self

    def __exit__(self, kind: type[BaseException] | None = None, value: BaseException | None = None,
                 traceback: TracebackType | None = None, /) -> Literal[False]:
        """Closes the presentation, unless the block was left by an error.

        One that nothing has opened yet becomes a copy of its template all the same.
        """
        if kind is None:
            self.open()
            self.close()
        else:
            self.__vellox_give_up__()
        return False


class Slide:
    """The shapes, in order and by name."""

    __slots__ = ()

    if TYPE_CHECKING:
        def shape(self, name: str, /) -> Shape: ...
        @property
        def Children(self) -> list[Shape]: ...

    def __iter__(self) -> Iterator[Shape]:
        """The shapes that there are now, those at the back first; what a group holds comes with the group."""
        return iter(self.Children)

    def __getitem__(self, name: str, /) -> Any:
        """The one shape of a name, or of "idx:13", "type:title", "type:body#2". Of what class it is, the template says."""
        if not isinstance(name, str):
            raise TypeError(f"shapes have names, which are no {type(name).__name__}")
        return self.shape(name)
