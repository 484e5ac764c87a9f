"""Decks of make_deck, from Python:

    make_deck.py text <slides> <output.pptx>
    make_deck.py small|small-path <decks> <output.pptx> <folder>
"""
import sys

import vellox.ppt as ppt


def add_text_slide(deck, number):
    slide = deck.add("Title and Content")
    slide.replace("Title", f"Results of run {number}")
    for bullet in range(5):
        slide.add("Content", f"The value of this quantity was measured as {number * bullet}")
    return slide


def make_text_deck(output, slides):
    with ppt.Presentation(output) as deck:
        for i in range(slides):
            add_text_slide(deck, i)


def make_small_deck(output, image, *template):
    with ppt.Presentation(output, *template) as deck:
        for i in range(4):
            add_text_slide(deck, i)
        add_text_slide(deck, 4).add(ppt.Picture(image))


def main():
    kind, count, output = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    if kind == "text":
        make_text_deck(output, count)
    else:
        template = [ppt.Template()] if kind == "small" else []
        for _ in range(count):
            make_small_deck(output, sys.argv[4] + "/0.png", *template)


if __name__ == "__main__":
    main()
