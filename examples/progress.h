// examples/progress.h: one line that tells what goes on.
#pragma once

#include <chrono>
#include <string>

namespace demo {

// On a terminal each report replaces the one before and the last is wiped at the end; elsewhere, where `always` asks for
// reports, each has a line of its own. A part of long work that takes its time has a bar, on a terminal.
class Progress {
    bool terminal_, shown_;
    int total_, done_ = 0;
    std::string what_;
    std::chrono::steady_clock::time_point drawn_;

    void draw(const std::string& bar);

public:
    Progress(int total, bool always);
    Progress(const Progress&) = delete;
    ~Progress();
    void next(const std::string& what);
    void part(double done);  // of the work that next() announced, 0 to 1
    void clear();            // makes room for other output
};

}  // namespace demo
