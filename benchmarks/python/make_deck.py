"""The text deck of make_deck, from Python:  make_deck.py <slides> <output.pptx>"""
import sys

import vellox.ppt as ppt


def main():
    with ppt.Presentation(sys.argv[2]) as deck:
        for i in range(int(sys.argv[1])):
            slide = deck.add("Title and Content")
            slide.replace("Title", f"Results of run {i}")
            for bullet in range(5):
                slide.add("Content", f"The value of this quantity was measured as {i * bullet}")


if __name__ == "__main__":
    main()
