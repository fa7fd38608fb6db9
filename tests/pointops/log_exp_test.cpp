// tests/pointops/log_exp_test.cpp: Ln and Exp of 32f over the whole range of numbers.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "kvri.h"
#include "tests/support/memory.h"

namespace {

using test::Random;

// Some numbers of each sign and exponent, and those around the places where results overflow, underflow or vanish.
std::vector<float> numbers() {
    std::vector<float> x;
    Random random(1);
    for (uint32_t top = 0; top < 512; ++top) {
        for (uint32_t edge : {0u, 1u, 0x3504F3u, 0x3504F4u, 0x7FFFFFu}) x.push_back(std::bit_cast<float>(top << 23 | edge));
        for (int i = 0; i < 400; ++i) x.push_back(std::bit_cast<float>(top << 23 | (uint32_t(random.bits()) & 0x7FFFFF)));
    }
    for (float place : {1.0f, 88.722839f, -87.336548f, -103.972084f})
        for (int i = -2000; i <= 2000; ++i) x.push_back(std::bit_cast<float>(std::bit_cast<int32_t>(place) + i));
    for (int i = -2000; i <= 2000; ++i) x.push_back(float(i) * 0.0437f);
    return x;
}

// In the order of the numbers, neighbours one apart.
int64_t rank(float f) {
    const auto bits = std::bit_cast<int32_t>(f);
    return bits < 0 ? -int64_t(bits & 0x7FFFFFFF) : bits;
}

using Map = KvrStatus (*)(const float*, int, float*, int, KvriSize);

// Also expects the sum of all results' bits: it is the same in every build.
void expectWithinOneUnit(Map map, double (*right)(double), KvrStatus status, uint64_t bits) {
    const auto x = numbers();
    std::vector<float> y(x.size());
    ASSERT_EQ(map(x.data(), int(x.size() * 4), y.data(), int(x.size() * 4), {int(x.size()), 1}), status);
    uint64_t sum = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        const auto want = float(right(x[i]));
        sum = sum * 31 + std::bit_cast<uint32_t>(y[i]);
        if (std::isnan(want)) ASSERT_TRUE(std::isnan(y[i])) << x[i];
        else ASSERT_LE(std::abs(rank(y[i]) - rank(want)), std::isinf(x[i]) ? 0 : 1) << x[i] << ": " << y[i] << " for " << want;
    }
    EXPECT_EQ(sum, bits);
}

TEST(Logarithm, IsWithinOneUnitOfTheRoundedValue) {
    const auto logarithm = [](double x) { return x == 0 ? 0 : std::log(x); };
    expectWithinOneUnit(kvriLn_32f_C1R, logarithm, kvrStatusLnZeroArgWarning, 3098750276388642972u);
}

TEST(Exponential, IsWithinOneUnitOfTheRoundedValue) {
    expectWithinOneUnit(kvriExp_32f_C1R, [](double x) { return std::exp(x); }, kvrStatusOk, 9710263665040966128u);
}

TEST(Exponential, OfAlmostNothingIsOne) {
    float x[] = {0.f, -0.f, 1e-45f, -1e-45f, 1e-20f}, y[5];
    kvriExp_32f_C1R(x, 20, y, 20, {5, 1});
    for (float result : y) EXPECT_EQ(result, 1.f);
}

TEST(Logarithm, WarnsOfZerosWhereverTheyLie) {
    for (int width = 1; width < 70; ++width)
        for (int at : {0, width / 2, width - 1})
            for (bool zero : {false, true}) {
                std::vector<float> rows(size_t(3 * width), 2.f);
                rows[size_t(width + at)] = zero ? -0.f : 1.f;
                const KvrStatus status = kvriLn_32f_C1IR(rows.data(), width * 4, {width, 3});
                ASSERT_EQ(status, zero ? kvrStatusLnZeroArgWarning : kvrStatusOk) << width;
                for (int i = 0; i < 3 * width; ++i) ASSERT_EQ(rows[size_t(i)], i == width + at ? 0.f : std::log(2.f)) << width;
            }
}

}  // namespace
