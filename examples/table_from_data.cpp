// A table and a list straight from a program's own data, through the two classes that content comes in.
//
//     table_from_data [output.pptx]

#include <vellox/vellox.h>

#include <string>
#include <vector>

using namespace vellox;

namespace {

/// Rows of numbers under a row of names.
class Measurements : public HvTable {
public:
    HvContentPtr getEntry(unsigned int r, unsigned int c) const override {
        if (r == 0)
            return boost::make_shared<StringContent>(names_[c]);
        return boost::make_shared<DoubleContent>(values_[r - 1][c]);
    }
    bool isEmptyEntry(unsigned int, unsigned int) const override { return false; }
    unsigned int getNRows() const override { return static_cast<unsigned int>(values_.size()) + 1; }
    unsigned int getNCols() const override { return static_cast<unsigned int>(names_.size()); }

private:
    std::vector<std::wstring> names_{L"Speed in rpm", L"Flow in m\u00b3/h", L"Head in m"};
    std::vector<std::vector<double>> values_{{900, 14.5, 4.25}, {1450, 23.5, 11}, {2900, 47, 44.5}};
};

/// A list of texts, with a list one level deeper at its end.
class Findings : public HvList {
public:
    explicit Findings(bool isDeeper) : isDeeper_(isDeeper) {}
    HvContentPtr getItem(unsigned int i) const override {
        if (!isDeeper_ && i == 2)
            return boost::make_shared<ListContent>(boost::make_shared<Findings>(true));
        return boost::make_shared<StringContent>((isDeeper_ ? L"Detail " : L"Finding ") + num2str(i + 1));
    }
    bool isEmptyItem(unsigned int) const override { return false; }
    unsigned int getSize() const override { return isDeeper_ ? 2 : 3; }

private:
    bool isDeeper_;
};

} // namespace

int main(int argc, char** argv) {
    ppt::Presentation deck(fromUtf8(argc > 1 ? argv[1] : "table_from_data.pptx"));

    ppt::Slide table = deck.add(L"Title and Table");
    table.replace(L"Title", L"From a table of numbers");
    table.replace(L"Table",
                  boost::make_shared<ObjectContent>(ppt::Table(boost::make_shared<Measurements>())));

    ppt::Slide list = deck.add(L"Title and Content");
    list.replace(L"Title", L"From a list of texts");
    list.replace(L"Content", boost::make_shared<ListContent>(boost::make_shared<Findings>(false)));

    deck.close();
}
