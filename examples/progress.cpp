#include "progress.h"

#include <unistd.h>

#include <iostream>

namespace demo {

Progress::Progress(int total, bool always)
    : terminal_(isatty(STDERR_FILENO)), shown_(terminal_ || always), total_(total) {}

Progress::~Progress() { clear(); }

void Progress::clear() {
    if (terminal_) std::cerr << "\r\033[K" << std::flush;
}

void Progress::draw(const std::string& bar) {
    if (shown_)
        std::cerr << (terminal_ ? "\r\033[K" : "") << '[' << done_ << '/' << total_ << "] " << what_ << bar
                  << (terminal_ ? "" : "\n") << std::flush;
    drawn_ = std::chrono::steady_clock::now();
}

void Progress::next(const std::string& what) {
    ++done_;
    what_ = what;
    draw("");
}

void Progress::part(double done) {
    constexpr std::chrono::milliseconds kPause{100};
    constexpr int kMarks = 30;
    if (!terminal_ || std::chrono::steady_clock::now() - drawn_ < kPause) return;
    const int marks = int(done * kMarks);
    draw(" [" + std::string(size_t(marks), '#') + std::string(size_t(kMarks - marks), '.') + "] " +
         std::to_string(int(done * 100)) + " %");
}

}  // namespace demo
