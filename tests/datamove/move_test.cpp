// tests/datamove/move_test.cpp: Copy, Set and Dup, all types and layouts, against the literal contract.
#include "tests/datamove/cases.h"
#include "tests/datamove/runner.h"

namespace {

using namespace test;

const std::vector<Case> kCases = [] {
    std::vector<Case> all = kCopyCases;
    for (const auto& cases : {kSetCases, kDupCases}) all.insert(all.end(), cases.begin(), cases.end());
    return all;
}();

TEST(Move, MatchesTheContract) {
    for (const Case& c : kCases)
        for (unsigned seed = 0; seed < 400; ++seed) {
            Random random(seed);
            Scene scene(c, random.size(), random);
            scene.call.flags = random.in(-1, 2);
            expectMoved(scene, c, scene.expected());
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Beyond the cache's size destinations are streamed: with rows that reach alignment and rows that do not.
TEST(Move, MatchesTheContractOnLargeImages) {
    for (const Case& c : kCases)
        for (unsigned seed = 0; seed < 4; ++seed) {
            Random random(seed);
            const int height = random.in(20, 40), pixelBytes = c.sampleBytes * c.dstChannels;
            const int width = 0x80000 / height / pixelBytes + random.in(2, 90);
            Scene scene(c, {width, height}, random);
            scene.call.flags = 1;
            expectMoved(scene, c, scene.expected());
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

TEST(Move, ChecksPointersThenSize) {
    Random random(1);
    for (const Case& c : kCases) {
        expectFaults(c, pointerFaults(c) + kSizeFaults, random);
        if (HasFatalFailure()) return;
    }
}

TEST(Move, ZeroStepIsUsedAsGiven) {
    uint8_t src[8], dst[8] = {};
    for (int i = 0; i < 8; ++i) src[i] = uint8_t(i + 1);
    EXPECT_EQ(kvriCopy_8u_C1R(src, 0, dst, 0, {8, 1000}), kvrStatusOk);
    EXPECT_EQ(0, std::memcmp(src, dst, 8));
}

TEST(Move, KeepsTheBitsOfSignallingNans) {
    const uint32_t bits[3] = {0x7F800001, 0xFFBFFFFF, 0x7FA00000};
    Kvr32f nan[3], dst[5 * 4] = {};
    std::memcpy(nan, bits, sizeof nan);
    ASSERT_EQ(kvriSet_32f_AC4R(nan, dst, 80, {5, 1}), kvrStatusOk);
    for (int x = 0; x < 5; ++x) EXPECT_EQ(0, std::memcmp(dst + 4 * x, bits, sizeof bits));
    ASSERT_EQ(kvriSet_32f_C1R(nan[0], dst, 80, {20, 1}), kvrStatusOk);
    for (int x = 0; x < 20; ++x) EXPECT_EQ(0, std::memcmp(dst + x, bits, 4));
}

TEST(Move, RowsAndStepsBeyondTwoGigabytes) {
    constexpr int width = (1 << 27) + 5;  // pixels of 16 bytes
    Reserved src(size_t(width) * 16), dst(size_t(width) * 16), mask(width);
    if (!src.p || !dst.p || !mask.p) GTEST_SKIP() << "no address space";
    mask.p[width - 1] = 9;
    std::memset(src.p + size_t(width - 1) * 16, 0xA5, 16);
    ASSERT_EQ(kvriCopy_32f_C4MR(reinterpret_cast<Kvr32f*>(src.p), 0, reinterpret_cast<Kvr32f*>(dst.p), 0, {width, 1}, mask.p, 0),
              kvrStatusOk);
    EXPECT_EQ(0, std::memcmp(src.p + size_t(width - 1) * 16, dst.p + size_t(width - 1) * 16, 16));

    constexpr int step = 0x7FFFFFF0, height = 4;  // the last row lies beyond 4 GiB
    Reserved far(size_t(step) * (height - 1) + 100);
    if (!far.p) GTEST_SKIP() << "no address space";
    ASSERT_EQ(kvriSet_8u_C1R(7, far.p, step, {100, height}), kvrStatusOk);
    for (int y = 0; y < height; ++y)
        for (int x : {0, 99}) EXPECT_EQ(far.p[size_t(step) * y + x], 7);
}

}  // namespace
