// tests/datamove/transpose_test.cpp: Transpose, all types and layouts, against the literal contract.
#include "tests/datamove/turnrunner.h"

namespace {

using namespace test;

void expectTransposed(const TurnCase& c, KvriSize size, Random& random) {
    if (size.width == size.height) {
        const TestImage image(size.width * c.pixelBytes, size.height, random);
        expectTurned(c, image, image, size, kvrAxisMainDiagonal);  // also of the copying form
        if (c.inPlace) return;
    }
    const TestImage src(size.width * c.pixelBytes, size.height, random), dst(size.height * c.pixelBytes, size.width, random);
    expectTurned(c, src, dst, size, kvrAxisMainDiagonal);
}

TEST(Transpose, MatchesTheContract) {
    for (const TurnCase& c : kTransposeCases)
        for (unsigned seed = 0; seed < 200; ++seed) {
            Random random(seed);
            KvriSize size{randomSide(random), randomSide(random)};
            if (c.inPlace || random.chance(20)) size.height = size.width;
            expectTransposed(c, size, random);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Where tiles go through scratch and destinations may be streamed: steps that are powers of two, and odd ones.
TEST(Transpose, MatchesTheContractOnLargeImages) {
    for (const TurnCase& c : kTransposeCases)
        for (unsigned seed = 0; seed < 6; ++seed) {
            Random random(seed);
            KvriSize size{random.in(200, 420), random.in(200, 420)};
            if (c.inPlace) size.height = size.width;
            if (seed % 3 == 0) {
                size = seed ? KvriSize{256, 256} : c.inPlace ? KvriSize{512, 512} : KvriSize{512, 320};
                const TestImage src(size.width * c.pixelBytes, size.height, 8192, Edge::Begin);
                const TestImage dst(size.height * c.pixelBytes, size.width, 8192, Edge::Begin);
                for (int y = 0; y < size.height; ++y) random.fill(src.row(y), size_t(src.rowBytes));
                expectTurned(c, src, c.inPlace ? src : dst, size, kvrAxisMainDiagonal);
            } else {
                expectTransposed(c, size, random);
            }
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

TEST(Transpose, ChecksPointersThenSize) {
    for (const TurnCase& c : kTransposeCases) {
        auto faults = (c.inPlace ? kNullDestination : kNullSource + kNullDestination) + kBadSize;
        if (c.inPlace) faults.push_back({kvrStatusBadSize, [](Turn& t) { t.roi.width = std::min(t.roi.width, 4); }});
        expectTurnFaults(c, kvrAxisMainDiagonal, faults);
        if (HasFatalFailure()) return;
    }
    Kvr8u p[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, q[12] = {};
    EXPECT_EQ(kvriTranspose_8u_C1R(p, 4, p, 4, {3, 2}), kvrStatusBadSize);  // one image: in place, so it must be square
    EXPECT_EQ(kvriTranspose_8u_C1R(nullptr, 4, nullptr, 4, {2, 2}), kvrStatusNullPointer);
    EXPECT_EQ(kvriTranspose_8u_C1R(p, 4, q, 3, {4, 3}), kvrStatusOk);
    EXPECT_EQ(q[1], 5);
    EXPECT_EQ(p[1], 2);
}

TEST(Transpose, RowsAndStepsBeyondTwoGigabytes) {
    constexpr int step = 0x7FFFFFF0, side = 4;  // the last row lies beyond 4 GiB
    Reserved far(size_t(step) * (side - 1) + side);
    if (!far.p) GTEST_SKIP() << "no address space";
    const Kvr8u near[side][side] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}};
    ASSERT_EQ(kvriTranspose_8u_C1R(near[0], side, far.p, step, {side, side}), kvrStatusOk);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) EXPECT_EQ(far.p[size_t(step) * y + x], near[x][y]);
    ASSERT_EQ(kvriTranspose_8u_C1IR(far.p, step, {side, side}), kvrStatusOk);
    for (int y = 0; y < side; ++y) EXPECT_EQ(0, std::memcmp(far.p + size_t(step) * y, near[y], side));
}

TEST(Transpose, ZeroStepIsUsedAsGiven) {
    Kvr32s row[7 * 4] = {}, last[4] = {};
    row[6 * 4] = 9;
    ASSERT_EQ(kvriTranspose_32s_C4R(row, 0, last, 0, {7, 1}), kvrStatusOk);
    EXPECT_EQ(last[0], 9);
}

}  // namespace
