"""Makes a program of the C++ in the pages of docs/, so that each snippet is compiled and run.

    make_snippets.py OUTPUT PAGE...

A page is a function. Each snippet stands in a block inside the former one's: it sees what was declared before, and may
declare it anew. What every page may use without having said where it comes from is in the function's head."""
import pathlib
import re
import sys

SNIPPET = re.compile(r"^```cpp\n(.*?)^```$", re.MULTILINE | re.DOTALL)
LAYOUTS = {"tables": "Title and Table", "pictures": "Title and Picture"}
HEAD = """
#line 1 "what pages may use"
namespace {
struct MyList : HvList {
    HvContentPtr getItem(unsigned int) const override { return boost::make_shared<StringContent>(L"item"); }
    bool isEmptyItem(unsigned int) const override { return false; }
    unsigned int getSize() const override { return 2; }
};
const std::vector<std::vector<std::wstring>> rows(4, std::vector<std::wstring>(4, L"value"));
const std::vector<std::wstring> regions{L"north", L"south"};
} // namespace
"""


def make_function(name, snippets):
    lines = [f"static void page_{name}() {{",
             'Presentation deck(L"page.pptx");', f'Slide slide = deck.add(L"{LAYOUTS.get(name, "Title and Content")}");',
             "TextBox box; Paragraph paragraph; Text run; TableEntry entry;"]
    for number, snippet in enumerate(snippets, 1):
        code = re.sub(r"^(#include .*|using namespace .*|\.\.\.)$", "", snippet, flags=re.MULTILINE)
        code = re.sub(r"^int main\(\) \{$", "[] {", code, flags=re.MULTILINE)
        code = re.sub(r"^\}\n\Z", "}();\n", code, flags=re.MULTILINE) if code != snippet and "[] {" in code else code
        lines += ["{", f'#line 1 "docs/{name}.md, snippet {number}"', code]
    return "\n".join(lines) + "}" * (len(snippets) + 1) + "\n"


def main():
    output, *pages = map(pathlib.Path, sys.argv[1:])
    snippets = {page.stem.replace("-", "_"): SNIPPET.findall(page.read_text()) for page in pages}
    snippets = {name: found for name, found in sorted(snippets.items()) if found}
    includes = set(re.findall(r"^#include .*$", "\n".join(sum(snippets.values(), [])), re.MULTILINE))
    text = "\n".join(sorted(includes | {"#include <iostream>", '#include "tests/docs/pages.h"'}))
    text += "\nusing namespace vellox;\nusing namespace vellox::ppt;\n" + HEAD
    text += "".join(make_function(name, found) for name, found in snippets.items())
    text += "".join(["const Page kPages[] = {", *(f'{{"{name}", page_{name}}}, ' for name in snippets), "};\n"])
    text += f"const unsigned int kPageCount = {len(snippets)};\n"
    output.write_text(text)


if __name__ == "__main__":
    main()
