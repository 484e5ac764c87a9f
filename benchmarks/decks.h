/// @file
/// Decks of a given size, for the benchmarks.

#ifndef VELLOX_BENCHMARKS_DECKS_H
#define VELLOX_BENCHMARKS_DECKS_H

#include <string>

namespace vellox::bench {

/// A title and five bullets on each slide.
void makeTextDeck(const std::wstring& output, unsigned slides);
/// One paragraph of runs on each slide, each run with five formats that it inherits.
void makeStyledDeck(const std::wstring& output, unsigned slides, unsigned runsPerSlide);
/// A table of 20 rows and 8 columns on each slide.
void makeTableDeck(const std::wstring& output, unsigned slides);
/// A picture on each slide.
void makePictureDeck(const std::wstring& output, unsigned slides, const std::wstring& image);

/// Opens a deck as template, as a presentation does that adds nothing.
void openDeck(const std::wstring& output, const std::wstring& templatePath);
/// Writes the default template with that many small vector shapes on its master.
void writeHeavyMaster(const std::wstring& path, unsigned shapes);

/// Writes a PNG of about that many bytes, which no compression makes smaller.
void writePng(const std::wstring& path, unsigned bytes);

} // namespace vellox::bench

#endif
