/// @file
/// Decks of a given size, for the benchmarks.

#ifndef VELLOX_BENCHMARKS_DECKS_H
#define VELLOX_BENCHMARKS_DECKS_H

#include <string>
#include <vector>

namespace vellox::bench {

/// The profile of a deck, where it can be chosen.
inline constexpr wchar_t kClassic[] = L"classic", kOffice[] = L"office";

/// A title and five bullets on each slide.
void makeTextDeck(const std::wstring& output, unsigned slides, const std::wstring& profile = kClassic);
/// One paragraph of runs on each slide, each run with five formats that it inherits.
void makeStyledDeck(const std::wstring& output, unsigned slides, unsigned runsPerSlide,
                    const std::wstring& profile = kClassic);
/// A table of 20 rows and 8 columns on each slide, with a size on each run and a bold first row.
void makeTableDeck(const std::wstring& output, unsigned slides, const std::wstring& profile = kClassic);
/// A picture on each slide: one image after the other, and again from the first.
void makePictureDeck(const std::wstring& output, unsigned slides, const std::vector<std::wstring>& images,
                     const std::wstring& profile = kClassic);
/// Data for the chart on each slide of a template that charts.py has made.
void makeChartDeck(const std::wstring& output, const std::wstring& templatePath,
                   const std::wstring& profile = kClassic);
/// @{ Five slides as makeTextDeck() makes them, and a picture on the last: on the path of the template, which is read
/// for the deck, and a number of such decks on a template that is read once, each over the last.
void makeSmallDeck(const std::wstring& output, const std::wstring& image,
                   const std::wstring& profile = kClassic);
void makeSmallDecks(const std::wstring& output, const std::wstring& image, unsigned decks,
                    const std::wstring& profile = kClassic);
/// @}

/// Writes a deck of slides to be filled: on each a title, two boxes and a table, with so many tokens together.
void writeTokenTemplate(const std::wstring& path, unsigned slides, unsigned tokensPerSlide);
/// Fills the tokens of such a deck.
void fillTokenDeck(const std::wstring& output, const std::wstring& templatePath, unsigned tokensPerSlide);
/// Copies the first slide of a deck so many times, each with a title of its own, and takes it out.
void copySlides(const std::wstring& output, const std::wstring& templatePath, unsigned copies);

/// Opens a deck as template, as a presentation does that adds nothing.
void openDeck(const std::wstring& output, const std::wstring& templatePath);
/// Writes the default template with that many small vector shapes on its master.
void writeHeavyMaster(const std::wstring& path, unsigned shapes);

/// Writes a PNG of that many bytes, which no compression makes smaller; another one for each seed.
void writePng(const std::wstring& path, unsigned bytes, unsigned seed);

} // namespace vellox::bench

#endif
