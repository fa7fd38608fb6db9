// tests/pointops/palette_test.cpp: LUTPalette and LUTPaletteSwap.
#include "tests/pointops/palette.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::palette;

// Tables of exactly 2^bits entries, one end or the other at an unmapped page.
void expectLookedUp(const Case& c, Random& random) {
    const KvriSize size = random.size();
    const int bits = random.in(1, 8 * c.sampleBytes);
    TestImage src(size.width * c.srcChannels * c.sampleBytes, size.height, random, false);
    TestImage dst(size.width * c.dstChannels * c.entryBytes, size.height, random, false);
    std::vector<TestImage> tables;
    Call call{src.roi, dst.roi, src.step, dst.step, size, {}, false, bits};
    for (int i = 0; i < c.colours; ++i) {
        const int bytes = c.entryBytes << bits;
        tables.emplace_back(bytes, 1, bytes, random.chance(50) ? Edge::Begin : Edge::End);
        random.fill(tables.back().roi, size_t(bytes));
        call.tables[i] = tables.back().roi;
    }
    auto want = dst.memory();
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            for (int k = 0; k < c.colours; ++k) {
                unsigned index = 0;
                std::memcpy(&index, src.row(y) + (x * c.srcChannels + k) * c.sampleBytes, size_t(c.sampleBytes));
                index &= (1u << bits) - 1;
                const int to = c.swapped ? 2 - k : k;
                std::memcpy(&want[dst.position(y, (x * c.dstChannels + to) * c.entryBytes)],
                            tables[size_t(k)].roi + index * unsigned(c.entryBytes), size_t(c.entryBytes));
            }
            if (c.zeroed) std::memset(&want[dst.position(y, (x * 4 + 3) * c.entryBytes)], 0, size_t(c.entryBytes));
        }
    ASSERT_EQ(c.function(call), kvrStatusOk);
    ASSERT_EQ(dst.memory(), want) << c.name << ", " << bits << " bits, ROI " << size.width << "x" << size.height;
}

TEST(Palette, LooksUpEverySample) {
    for (const Case& c : kPalettes)
        for (unsigned seed = 0; seed < 120; ++seed) {
            Random random(seed);
            expectLookedUp(c, random);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// The step is compared with the width in pixels: rows of several channels may overlap, one after the other.
TEST(Palette, ReportsTheFirstFault) {
    struct Fault {
        KvrStatus status;
        std::function<void(Call&)> make;
    };
    const std::vector<Fault> faults = {
        {kvrStatusNullPointer, [](Call& c) { c.src = nullptr; }},
        {kvrStatusNullPointer, [](Call& c) { c.tables[0] = nullptr; }},
        {kvrStatusBadSize, [](Call& c) { c.roi.height = 0; }},
        {kvrStatusOutOfRange, [](Call& c) { c.bits = 0; }},
        {kvrStatusOutOfRange, [](Call& c) { c.bits = 17; }},
        {kvrStatusBadStep, [](Call& c) { c.srcStep = 5; }},
        {kvrStatusBadStep, [](Call& c) { c.dstStep = -64; }},
    };
    static const uint8_t table[4] = {};
    for (const Case& c : kPalettes) {
        uint8_t src[256] = {}, dst[256] = {};
        const Call right{src, dst, 6, 6, {6, 2}, {table, table, table, table}, false, 1};
        Call call = right;
        call.bits = 8 * c.sampleBytes + 1;
        EXPECT_EQ(c.function(call), kvrStatusOutOfRange) << c.name;
        call = right;
        call.tables[c.colours - 1] = nullptr;
        EXPECT_EQ(c.function(call), kvrStatusNullPointer) << c.name;
        if (c.colours > 1) {
            call.noTables = true;
            EXPECT_EQ(c.function(call), kvrStatusNullPointer) << c.name;
        }
        for (unsigned set = 1; set < 1u << faults.size(); ++set) {
            call = right;
            KvrStatus first = kvrStatusOk;
            for (size_t i = 0; i < faults.size(); ++i)
                if (set >> i & 1) {
                    faults[i].make(call);
                    if (first == kvrStatusOk) first = faults[i].status;
                }
            ASSERT_EQ(c.function(call), first) << c.name << ", faults " << set;
        }
        if (c.entryBytes == 1) {
            EXPECT_EQ(c.function(right), kvrStatusOk) << c.name;
        }
    }
}

}  // namespace
