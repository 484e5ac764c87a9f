/// @file
/// A deck to be made, closed and looked into.

#ifndef VELLOX_TESTS_SUPPORT_DECKTEST_H
#define VELLOX_TESTS_SUPPORT_DECKTEST_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "tests/support/Expect.h"
#include "tests/support/Files.h"
#include "tests/support/Xml.h"
#include "tools/PackageCheck.h"
#include "vellox/host/values/HvViews.h"
#include "vellox/ppt/engine/Presentation.h"

namespace vellox::test {

using tools::findFaults;

/// A presentation on the default template, or on a changed one, in a folder of its own.
class DeckTest : public testing::Test {
protected:
    DeckTest();

    /// Starts over on a template made of these parts.
    void useTemplate(const Parts& parts, const std::wstring& name = L"template.pptx");
    /// Closes the deck, expects it to be sound, and gives its parts.
    const Parts& close();
    /// The XML of a slide, from 1 in the numbers of the parts, of the closed deck.
    const std::string& slideXml(unsigned number);
    /// The XML of the shape of a name on such a slide.
    std::string shapeXml(unsigned number, const std::string& name);

    TempFolder folder;
    std::wstring output = folder / L"deck.pptx";
    ppt::Presentation deck{output};

private:
    Parts parts_;
};

/// A list of content in memory.
class MemoryList : public HvList {
public:
    MemoryList(std::initializer_list<HvContentPtr> items) : items_(items) {}
    HvContentPtr getItem(unsigned int i) const override { return items_[i]; }
    bool isEmptyItem(unsigned int i) const override { return !items_[i]; }
    unsigned int getSize() const override { return static_cast<unsigned int>(items_.size()); }

private:
    std::vector<HvContentPtr> items_;
};

/// A table of content in memory, row after row.
class MemoryTable : public HvTable {
public:
    MemoryTable(unsigned int nCols, std::initializer_list<HvContentPtr> entries)
        : nCols_(nCols),
          entries_(entries) {}
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override { return entries_[r * nCols_ + c]; }
    bool isEmptyEntry(unsigned int r, unsigned int c) const override { return !getEntry(r, c); }
    unsigned int getNRows() const override {
        return nCols_ == 0 ? 0 : static_cast<unsigned int>(entries_.size()) / nCols_;
    }
    unsigned int getNCols() const override { return nCols_; }

private:
    unsigned int nCols_;
    std::vector<HvContentPtr> entries_;
};

/// @{ Content.
HvContentPtr text(const wchar_t* value);
HvContentPtr number(double value);
template <class Facade> HvContentPtr object(const Facade& handle) {
    return boost::make_shared<ObjectContent>(handle);
}
/// @}

/// The texts of the runs of a slide, in document order, but for date, footer and slide number: "a|b".
std::string runsOf(const std::string& slideXml);

/// The texts of all paragraphs below a node, each with its level if it has one: "a|2:b|c".
std::wstring outline(const ppt::PPTNode& box);

} // namespace vellox::test

#endif
