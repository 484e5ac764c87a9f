#include "cli/Console.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

namespace vellox::cli {

namespace {

constexpr wchar_t kDelete = 0x7F, kLastControl = 0x9F;

bool isControl(wchar_t c) {
    return (c >= 0 && c < L' ') || (c >= kDelete && c <= kLastControl);
}

} // namespace

ErrorText describeCurrentError() {
    try {
        throw;
    } catch (const hostfx::except::IUserException& error) {
        return {error.what(), error.getErrorID()};
    } catch (const Failure& error) {
        return {error.what(), error.getID()};
    } catch (const std::bad_alloc&) {
        return {"there isn't enough memory", {}};
    } catch (const std::exception& error) {
        return {error.what(), {}};
    } catch (...) {
        return {"an unknown error", {}};
    }
}

std::string makePrintable(const std::wstring& text) {
    std::wstring line;
    for (const wchar_t c : text) {
        if (!isControl(c)) {
            line += c;
            continue;
        }
        constexpr wchar_t kDigits[] = L"0123456789abcdef";
        if (c == L'\n' || c == L'\t')
            line += c == L'\n' ? L"\\n" : L"\\t";
        else
            line += std::wstring(L"\\x") + kDigits[c >> 4 & 15] + kDigits[c & 15];
    }
    return toUtf8(line);
}

std::string makePrintable(const std::string& text) {
    return makePrintable(fromUtf8(text));
}

std::string describe(const ppt::Finding& finding) {
    std::string place;
    if (finding.slide > 0)
        place += "slide " + std::to_string(finding.slide);
    if (!finding.part.empty())
        place += (place.empty() ? "" : ", ") + makePrintable(finding.part);
    if (!finding.shape.empty())
        place += (place.empty() ? "\"" : ", \"") + makePrintable(finding.shape) + "\"";
    return place + (place.empty() ? "" : ": ") + makePrintable(finding.text);
}

void Console::print(const std::string& line) {
    printRaw(line + "\n");
}

void Console::printRaw(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
    check();
}

void Console::printError(const ErrorText& error) {
    std::string line = "vellox: " + makePrintable(error.text);
    if (isVerbose_ && !error.id.empty())
        line += " [" + error.id + "]";
    line += "\n";
    std::fflush(stdout);
    std::fputs(line.c_str(), stderr);
}

void Console::warn(const std::string& text) {
    printError({"warning: " + text, {}});
}

void Console::flush() {
    std::fflush(stdout);
    check();
}

void Console::check() {
    if (!std::ferror(stdout))
        return;
    const std::string reason = std::strerror(errno);
    std::clearerr(stdout);
    throw Failure("the standard output can't be written: " + reason);
}

} // namespace vellox::cli
