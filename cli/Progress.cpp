#include "cli/Progress.h"

#include <unistd.h>

#include <cstdio>

namespace vellox::cli {

// One deck is made before anybody looks. Lines are left out where they would stand between bar and terminal.
Progress::Progress(Console& console, std::size_t count, bool isQuiet)
    : console_(console),
      count_(count),
      hasBar_(!isQuiet && count > 1 && ::isatty(STDERR_FILENO) != 0),
      hasLines_(!isQuiet && count > 1 && !(hasBar_ && ::isatty(STDOUT_FILENO) != 0)) {
    draw();
}

Progress::~Progress() {
    clear();
}

void Progress::tellDone(const std::string& output) {
    ++done_;
    if (hasLines_) {
        console_.print(makePrintable(output));
        console_.flush();
    }
    draw();
}

void Progress::tellFailed(const ErrorText& error) {
    ++failed_;
    clear();
    console_.printError(error);
    draw();
}

void Progress::warn(const std::string& text) {
    clear();
    console_.warn(text);
    draw();
}

void Progress::draw() const {
    if (!hasBar_)
        return;
    constexpr std::size_t kWidth = 30;
    const std::size_t filled = kWidth * (done_ + failed_) / count_;
    const std::string bar = std::string(filled, '#') + std::string(kWidth - filled, '.');
    std::fprintf(stderr, "\r[%s] %zu of %zu decks", bar.c_str(), done_, count_);
    if (failed_ > 0)
        std::fprintf(stderr, ", %zu failed", failed_);
}

void Progress::clear() const {
    if (hasBar_)
        std::fputs("\r\033[K", stderr);
}

} // namespace vellox::cli
