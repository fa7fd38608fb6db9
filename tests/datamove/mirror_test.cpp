// tests/datamove/mirror_test.cpp: Mirror, all types, layouts and axes, against the literal contract.
#include "tests/datamove/turnrunner.h"

namespace {

using namespace test;

constexpr KvriAxis kAxes[] = {kvrAxisHorizontal, kvrAxisVertical, kvrAxisBoth, kvrAxisMainDiagonal, kvrAxisAntiDiagonal};

KvriSize mirrorableSize(Random& random, KvriAxis axis) {
    KvriSize size{random.chance(10) ? random.in(1, 500) : randomSide(random), random.in(1, 7)};
    if (turnsSides(axis)) size.height = randomSide(random);
    if (axis == kvrAxisHorizontal || axis == kvrAxisBoth) size.height = std::max(size.height, 2);
    if (axis == kvrAxisVertical || axis == kvrAxisBoth) size.width = std::max(size.width, 2);
    return size;
}

void expectMirrored(const TurnCase& c, KvriSize size, KvriAxis axis, Random& random) {
    const TestImage dst((turnsSides(axis) ? size.height : size.width) * c.pixelBytes,
                        turnsSides(axis) ? size.width : size.height, random, !turnsSides(axis));
    if (c.inPlace) return expectTurned(c, dst, dst, size, axis);
    const TestImage src(size.width * c.pixelBytes, size.height, random, !turnsSides(axis));
    expectTurned(c, src, dst, size, axis);
    if (!turnsSides(axis) && !testing::Test::HasFatalFailure()) expectTurned(c, dst, dst, size, axis);  // one image for both
}

TEST(Mirror, MatchesTheContract) {
    for (const TurnCase& c : kMirrorCases)
        for (KvriAxis axis : kAxes)
            for (unsigned seed = 0; seed < 120 && !(c.inPlace && turnsSides(axis)); ++seed) {
                Random random(seed);
                expectMirrored(c, mirrorableSize(random, axis), axis, random);
                if (HasFatalFailure()) FAIL() << "seed " << seed;
            }
}

// Beyond the cache's size destinations are streamed: with rows that reach alignment and rows that do not.
TEST(Mirror, MatchesTheContractOnLargeImages) {
    for (const TurnCase& c : kMirrorCases)
        for (KvriAxis axis : kAxes)
            for (unsigned seed = 0; seed < 2 && !c.inPlace; ++seed) {
                Random random(seed);
                const int height = random.in(20, 40), width = 0x80000 / height / c.pixelBytes + random.in(2, 90);
                expectMirrored(c, {width, height}, axis, random);
                if (HasFatalFailure()) FAIL() << "seed " << seed;
            }
}

TEST(Mirror, ChecksInTheOrderOfEachForm) {
    for (const TurnCase& c : kMirrorCases) {
        const auto pointers = c.inPlace ? kNullDestination : kNullSource + kNullDestination;
        for (KvriAxis axis : {kvrAxisMainDiagonal, kvrAxisAntiDiagonal})
            if (!c.inPlace) expectTurnFaults(c, axis, pointers + kBadSteps + kBadSize);
        for (KvriAxis axis : {kvrAxisHorizontal, kvrAxisVertical, kvrAxisBoth})
            for (KvriAxis bad : {-1, c.inPlace ? 3 : 5, c.inPlace ? 4 : INT32_MIN}) {
                auto faults = pointers + kBadSize;
                faults.push_back({kvrStatusBadAxis, [bad](Turn& t) { t.axis = bad; }});
                if (axis != kvrAxisVertical) faults.push_back({kvrStatusBadSize, [](Turn& t) { t.roi.height = std::min(t.roi.height, 1); }});
                if (axis != kvrAxisHorizontal) faults.push_back({kvrStatusBadSize, [](Turn& t) { t.roi.width = std::min(t.roi.width, 1); }});
                expectTurnFaults(c, axis, faults);
            }
        if (HasFatalFailure()) return;
    }
}

TEST(Mirror, OneImageMeansInPlace) {
    Kvr8u p[4] = {1, 2, 3, 4};
    EXPECT_EQ(kvriMirror_8u_C1R(nullptr, 2, nullptr, 2, {2, 2}, kvrAxisBoth), kvrStatusNullPointer);
    EXPECT_EQ(kvriMirror_8u_C1R(p, 2, p, 2, {2, 1}, kvrAxisHorizontal), kvrStatusBadSize);
    EXPECT_EQ(kvriMirror_8u_C1R(p, 2, p, 2, {2, 2}, 5), kvrStatusBadAxis);
    EXPECT_EQ(kvriMirror_8u_C1R(p, 2, p, 2, {2, 2}, kvrAxisMainDiagonal), kvrStatusNotSupported);
    EXPECT_EQ(p[0], 1);
}

// Of 3 x 2 pixels with steps of 20 and 30 bytes the source spans 23 bytes, the destination, 2 x 3 pixels, 62.
TEST(Mirror, DiagonalsRefuseOverlap) {
    Kvr8u memory[200] = {};
    const auto status = [&](int src, int dst, KvriAxis axis) {
        return kvriMirror_8u_C1R(memory + src, 20, memory + dst, 30, {3, 2}, axis);
    };
    for (KvriAxis axis : {kvrAxisMainDiagonal, kvrAxisAntiDiagonal}) {
        EXPECT_EQ(status(0, 23, axis), kvrStatusOk);
        EXPECT_EQ(status(0, 22, axis), kvrStatusNotSupported);
        EXPECT_EQ(status(62, 0, axis), kvrStatusOk);
        EXPECT_EQ(status(61, 0, axis), kvrStatusNotSupported);
        EXPECT_EQ(status(20, 0, axis), kvrStatusNotSupported);  // between rows
        EXPECT_EQ(status(7, 7, axis), kvrStatusNotSupported);
    }
}

TEST(Mirror, RowsAndStepsBeyondTwoGigabytes) {
    constexpr int step = 0x7FFFFFF0, height = 4;  // the last row lies beyond 4 GiB
    Reserved far(size_t(step) * (height - 1) + 100);
    if (!far.p) GTEST_SKIP() << "no address space";
    for (int y = 0; y < height; ++y) far.p[size_t(step) * y] = uint8_t(y + 1);
    for (KvriAxis axis : {kvrAxisHorizontal, kvrAxisBoth}) {
        uint8_t near[height * 100];
        ASSERT_EQ(kvriMirror_8u_C1R(far.p, step, near, 100, {100, height}, axis), kvrStatusOk);
        ASSERT_EQ(kvriMirror_8u_C1IR(far.p, step, {100, height}, axis), kvrStatusOk);
        for (int y = 0; y < height; ++y) EXPECT_EQ(0, std::memcmp(near + y * 100, far.p + size_t(step) * y, 100)) << axis << " " << y;
        EXPECT_EQ(far.p[axis == kvrAxisBoth ? 99 : 0], axis == kvrAxisBoth ? 1 : height);
    }
    Kvr8u near[height] = {};
    ASSERT_EQ(kvriMirror_8u_C1R(far.p, step, near, height, {1, height}, kvrAxisAntiDiagonal), kvrStatusOk);
    for (int y = 0; y < height; ++y) EXPECT_EQ(near[height - 1 - y], far.p[size_t(step) * y]);
}

}  // namespace
