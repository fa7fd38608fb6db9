// tests/datamove/turnrunner.h: what mirrors and transposes do, literally, and the run of one function against it.
#pragma once

#include <gtest/gtest.h>

#include "tests/datamove/turn.h"
#include "tests/support/memory.h"

namespace test {

inline bool turnsSides(KvriAxis axis) { return axis >= kvrAxisMainDiagonal; }

inline KvriPoint sourceOf(int x, int y, KvriSize roi, KvriAxis axis) {
    const int w = roi.width, h = roi.height;
    switch (axis) {
        case kvrAxisHorizontal: return {x, h - 1 - y};
        case kvrAxisVertical: return {w - 1 - x, y};
        case kvrAxisBoth: return {w - 1 - x, h - 1 - y};
        case kvrAxisMainDiagonal: return {y, x};
        default: return {w - 1 - y, h - 1 - x};
    }
}

// What dst.memory() must be after the call; src may be the same image.
inline std::vector<uint8_t> turned(const TurnCase& c, const TestImage& src, const TestImage& dst, KvriSize roi, KvriAxis axis) {
    std::vector<uint8_t> want = dst.memory();
    const KvriSize size = turnsSides(axis) ? KvriSize{roi.height, roi.width} : roi;
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const KvriPoint from = sourceOf(x, y, roi, axis);
            std::memcpy(want.data() + dst.position(y, x * c.pixelBytes), src.row(from.y) + from.x * c.pixelBytes, size_t(c.colourBytes));
        }
    return want;
}

inline void expectTurned(const TurnCase& c, const TestImage& src, const TestImage& dst, KvriSize roi, KvriAxis axis) {
    const auto want = turned(c, src, dst, roi, axis);
    const auto source = src.memory();
    ASSERT_EQ(c.function({src.roi, src.step, dst.roi, dst.step, roi, axis}, 1), kvrStatusOk);
    const auto have = dst.memory();
    if (have != want) {
        size_t at = 0;
        while (have[at] == want[at]) ++at;
        FAIL() << c.name << ", axis " << axis << ": byte " << at << " of " << want.size() << " differs, ROI " << roi.width << "x"
               << roi.height << ", steps " << src.step << " " << dst.step;
    }
    if (&src != &dst) {
        ASSERT_EQ(src.memory(), source) << c.name << " wrote to the source";
    }
}

// A fault in a call and the status it leads to, in the order in which they are checked: every combination gives the status
// of the first and writes nothing.
struct TurnFault {
    KvrStatus status;
    std::function<void(Turn&)> make;
};

inline void expectTurnFaults(const TurnCase& c, KvriAxis axis, const std::vector<TurnFault>& faults) {
    Random random(1);
    const TestImage src(5 * c.pixelBytes, 5, random, false), dst(5 * c.pixelBytes, 5, random, false);
    const auto before = dst.memory();
    for (unsigned set = 1; set < 1u << faults.size(); ++set) {
        Turn turn{src.roi, src.step, dst.roi, dst.step, {5, 5}, axis};
        KvrStatus first = kvrStatusOk;
        for (size_t i = 0; i < faults.size(); ++i)
            if (set >> i & 1) {
                faults[i].make(turn);
                if (first == kvrStatusOk) first = faults[i].status;
            }
        ASSERT_EQ(c.function(turn, 1), first) << c.name << ", axis " << axis << ", faults " << set;
        ASSERT_EQ(dst.memory(), before) << c.name << ", axis " << axis << ", faults " << set;
    }
}

inline const std::vector<TurnFault> kNullSource = {{kvrStatusNullPointer, [](Turn& t) { t.src = nullptr; }}};
inline const std::vector<TurnFault> kNullDestination = {{kvrStatusNullPointer, [](Turn& t) { t.dst = nullptr; }}};
inline const std::vector<TurnFault> kBadSteps = {
    {kvrStatusBadStep, [](Turn& t) { t.srcStep = 0; }},
    {kvrStatusBadStep, [](Turn& t) { t.dstStep = -1; }},
};
inline const std::vector<TurnFault> kBadSize = {
    {kvrStatusBadSize, [](Turn& t) { t.roi.width = 0; }},
    {kvrStatusBadSize, [](Turn& t) { t.roi.height = INT32_MIN; }},
};

inline std::vector<TurnFault> operator+(std::vector<TurnFault> a, const std::vector<TurnFault>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// Around the sides of blocks and tiles.
inline int randomSide(Random& random) { return random.chance(75) ? random.in(1, 40) : random.in(1, 150); }

// Address space without memory behind it, but for the pages that are touched.
class Reserved {
    size_t bytes_;

public:
    uint8_t* p;
    explicit Reserved(size_t bytes) : bytes_(bytes) {
        void* m = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        p = m == MAP_FAILED ? nullptr : static_cast<uint8_t*>(m);
    }
    Reserved(const Reserved&) = delete;
    ~Reserved() {
        if (p) munmap(p, bytes_);
    }
};

}  // namespace test
