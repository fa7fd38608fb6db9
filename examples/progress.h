// examples/progress.h: one line that tells what goes on.
#pragma once

#include <string>

namespace demo {

// On a terminal each report replaces the one before and the last is wiped at the end; elsewhere, where `always` asks for
// reports, each has a line of its own.
class Progress {
    bool terminal_, shown_;
    int total_, done_ = 0;

public:
    Progress(int total, bool always);
    Progress(const Progress&) = delete;
    ~Progress();
    void next(const std::string& what);
};

}  // namespace demo
