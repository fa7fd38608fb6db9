// examples/bench.h: timed library calls.
#pragma once

#include <chrono>
#include <iosfwd>
#include <limits>
#include <string>
#include <vector>

#include "call.h"
#include "image.h"

namespace demo {

class Bench {
    struct Timing {
        std::string step, function;
        KvriSize size;
        double pixelBytes;
        double seconds;
    };
    int repeats_;
    std::vector<Timing> timings_;

public:
    explicit Bench(int repeats) : repeats_(repeats) {}

    // Calls the function `repeats` times and notes the best time. pixelBytes counts what it must read and
    // write per pixel.
    template <class Function, class... Args>
    void time(const std::string& step, KvriSize size, double pixelBytes, const Checked<Function>& call, Args... args) {
        double best = std::numeric_limits<double>::infinity();
        for (int i = 0; i < repeats_; ++i) {
            const auto start = std::chrono::steady_clock::now();
            call(args...);
            best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        }
        timings_.push_back({step, call.name, size, pixelBytes, best});
    }

    void print(std::ostream& to) const;
};

}  // namespace demo
