#include "vellox/foundation/Lines.h"

#include <algorithm>
#include <utility>

namespace vellox {

bool endsLine(wchar_t c) {
    return c == L'\n' || c == L'\r' || c == L'\v' || c == L'\x2028' || c == L'\x2029';
}

std::vector<std::wstring> splitLines(std::wstring text) {
    std::vector<std::wstring> lines(1);
    if (std::none_of(text.begin(), text.end(), endsLine)) {
        lines.front() = std::move(text);
        return lines;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\n' && i > 0 && text[i - 1] == L'\r')
            continue;
        if (endsLine(text[i]))
            lines.emplace_back();
        else
            lines.back() += text[i];
    }
    return lines;
}

} // namespace vellox
