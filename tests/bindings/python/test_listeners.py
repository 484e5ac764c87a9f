"""Listeners of the dispatcher, and what they may and may not do."""
import gc
import warnings
import weakref

import pytest

import vellox.ppt as ppt


class Heard(list):
    """A listener that keeps what it hears."""

    def __call__(self, event):
        self.append((type(event.Message).__name__, event.Message.Text, event.Message.Source))


@pytest.fixture
def heard(dispatcher):
    listener = Heard()
    dispatcher.addListener(listener.__call__)
    yield listener
    dispatcher.removeListener(listener.__call__)  # an equal one, though not the same


def test_messages_reach_listeners_in_their_order(dispatcher):
    calls = []
    box = ppt.TextBox()
    first, second = (lambda event: calls.append(("first", event.Message.Text))), Heard()
    dispatcher.addListener(first)
    dispatcher.addListener(second)
    message = ppt.WarningMessage("careful", box)
    dispatcher.dispatch(message)
    assert calls == [("first", "careful")] and second == [("WarningMessage", "careful", box)]
    assert "careful" in message.formatAsText() and message.formatAsHTML().startswith("<p")
    dispatcher.removeListener(first)
    dispatcher.removeListener(first)  # isn't listening any more
    dispatcher.Filter.WarningMessagesPass = False
    dispatcher.dispatch(message)
    assert not message.passesFilter(dispatcher.Filter) and len(second) == 1
    dispatcher.removeListener(second)
    with pytest.raises(TypeError, match="a listener is called"):
        dispatcher.addListener("print")


def test_messages_are_one_object_too(tmp_path, dispatcher):
    kept = []

    def keep(event):
        kept.append(event.Message)
        assert event.Message is kept[-1] and type(event.Message) is ppt.ProgressMessage

    dispatcher.Filter.ProgressMessagesPass = True
    dispatcher.addListener(keep)
    ppt.Presentation(tmp_path / "deck.pptx").open()
    dispatcher.removeListener(keep)
    assert kept[0].Text


def test_listeners_that_make_objects_come_to_an_end(dispatcher):
    log = ppt.TextBox()
    columns, kept = ppt.Table([["a", "b"], ["c", "d"]]), []

    def write(event):
        log.add(event.Message.Text)
        ppt.TextBox()
        source = event.Message.Source
        if isinstance(source, ppt.ColSpec):
            columns.ColSpecs = [source]
            kept.append(source)

    dispatcher.Filter.DebugMessagesPass = True
    dispatcher.addListener(write)
    made = ppt.Paragraph(), ppt.ColSpec()
    dispatcher.removeListener(write)
    assert len(log.Children) == 2 and columns.ColSpecs == [made[1]]


def test_a_deck_changed_while_it_is_closed(deck, dispatcher):
    slide = deck.deck.add("Blank")
    table = ppt.Table([["a", "b"], ["c", "d"]])
    table.StyleName = "no such style"
    slide.add(table)

    def change(event):
        assert event.Message.Source is table and not deck.deck.close()
        for _ in range(40):
            deck.deck.add("Blank")
            slide.add(ppt.TextBox())
        deck.deck.__init__()

    dispatcher.addListener(change)
    deck.deck.close()
    dispatcher.removeListener(change)
    assert deck.path.stat().st_size > 1000


def test_listeners_stay_though_nobody_holds_the_dispatcher():
    calls = Heard()
    ppt.MessageDispatcher.getTheDispatcher().addListener(calls)
    box = ppt.TextBox()
    for count in (1, 2):
        gc.collect()
        ppt.MessageDispatcher.getTheDispatcher().dispatch(ppt.WarningMessage("x", box))
        assert len(calls) == count
    ppt.MessageDispatcher.getTheDispatcher().removeListener(calls)
    ppt.MessageDispatcher.getTheDispatcher().dispatch(ppt.WarningMessage("x", box))
    assert len(calls) == 2


def test_cycles_through_listeners_are_collected():
    class Listener:
        def __init__(self, dispatcher):
            self.dispatcher = dispatcher

        def __call__(self, event):
            pass

    dispatcher = ppt.MessageDispatcher.getTheDispatcher()
    listener = Listener(dispatcher)
    dispatcher.addListener(listener)
    seen = weakref.ref(listener), weakref.ref(dispatcher)
    del listener, dispatcher
    gc.collect()
    assert [ref() for ref in seen] == [None, None]


def test_listeners_may_come_and_go_during_a_message(dispatcher):
    late = Heard()

    def swap(event):
        dispatcher.removeListener(swap)
        dispatcher.removeListener(gone)
        dispatcher.addListener(late)

    gone = Heard()
    dispatcher.addListener(swap)
    dispatcher.addListener(gone)
    box = ppt.TextBox()
    dispatcher.dispatch(ppt.WarningMessage("one", box))
    dispatcher.dispatch(ppt.WarningMessage("two", box))
    assert gone == [] and [text for _, text, _ in late] == ["two"]
    dispatcher.removeListener(late)


@pytest.mark.filterwarnings("ignore::vellox.ppt.PresentationWarning")  # of the box that ends
def test_what_a_listener_raises_reaches_the_caller(deck, dispatcher):
    def refuse(event):
        raise KeyError(event.Message.Text)

    dispatcher.addListener(refuse)
    with pytest.raises(KeyError, match="careful"):
        dispatcher.dispatch(ppt.WarningMessage("careful", deck.deck))
    with pytest.raises(KeyError, match="is closed|OutputPath|output"):
        with warnings.catch_warnings():
            warnings.simplefilter("ignore")
            deck.deck.OutputPath = "other.pptx"
    # The object is made by the time that the caller learns of it.
    slides = len(deck.deck.Children)
    dispatcher.Filter.DebugMessagesPass = True
    with pytest.raises(KeyError):
        deck.deck.add("Blank")
    with pytest.raises(KeyError, match="Shape"):
        ppt.TextBox()
    dispatcher.removeListener(refuse)
    assert len(deck.deck.Children) == slides + 1


def test_sources_of_life_messages(dispatcher, heard):
    dispatcher.Filter.DebugMessagesPass = True
    box = ppt.TextBox()
    assert [kind for kind, _, _ in heard] == ["DebugMessage"] * 3
    assert all("TextBox" in text or "Shape" in text for _, text, _ in heard)
    early = heard[-1][2]
    with pytest.raises(RuntimeError, match="has ended"):
        early.add("the box's own object is another one")
    heard.clear()
    tag, paragraph = box.Tag, box.add("text")
    heard.clear()
    kept = []

    def use(event):
        source = event.Message.Source
        if source is None or not isinstance(source, ppt.Shape):
            return
        kept.append(source)
        assert source.Tag and source.Id
        for forbidden in (lambda: source.X, lambda: source.add("x"), lambda: setattr(source, "X", "1in"),
                          lambda: source.Children, lambda: ppt.WarningMessage("x", source),
                          lambda: setattr(dispatcher.Filter, "SourceFilter", source)):
            try:
                forbidden()
            except (RuntimeError, TypeError):
                continue
            raise AssertionError("an ending object was used")

    dispatcher.addListener(use)
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        del box
    dispatcher.removeListener(use)
    assert len(kept) == 3 and any(tag in text for _, text, _ in heard)
    for gone in kept:
        with pytest.raises(RuntimeError, match="has ended"):
            gone.Tag
    assert paragraph.Parent is None


def test_a_failing_listener_at_an_end_becomes_a_warning(dispatcher):
    def refuse(event):
        raise KeyError("at the end")

    box = ppt.TextBox()
    dispatcher.Filter.DebugMessagesPass = True
    dispatcher.addListener(refuse)
    with pytest.warns(ppt.PresentationWarning, match="Destroyed|at the end"):
        del box
    dispatcher.removeListener(refuse)


def test_content_that_fails_leaves_no_ruins(dispatcher, heard):
    class Failing:
        def __array__(self):
            raise ValueError("no array")

    dispatcher.Filter.DebugMessagesPass = True
    with pytest.raises(ValueError):
        ppt.Table([["a", "b"], ["c", Failing()]])
    del heard[:-1]
    assert repr(heard[0][2])


def test_progress_and_warnings_of_the_library(tmp_path, dispatcher, heard):
    dispatcher.Filter.ProgressMessagesPass = True
    deck = ppt.Presentation(tmp_path / "deck.pptx")
    deck.open()
    kind, text, source = heard[0]
    assert kind == "ProgressMessage" and "template" in text and source is deck
    with pytest.warns(ppt.PresentationWarning):
        deck.TemplatePath = "other.pptx"
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(ppt.PresentationWarning):
            deck.OutputPath = "other.pptx"
    assert [kind for kind, _, _ in heard].count("WarningMessage") == 2
