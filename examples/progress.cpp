#include "progress.h"

#include <unistd.h>

#include <iostream>

namespace demo {

Progress::Progress(int total, bool always)
    : terminal_(isatty(STDERR_FILENO)), shown_(terminal_ || always), total_(total) {}

Progress::~Progress() {
    if (terminal_) std::cerr << "\r\033[K" << std::flush;
}

void Progress::next(const std::string& what) {
    ++done_;
    if (shown_)
        std::cerr << (terminal_ ? "\r\033[K" : "") << '[' << done_ << '/' << total_ << "] " << what
                  << (terminal_ ? "" : "\n") << std::flush;
}

}  // namespace demo
