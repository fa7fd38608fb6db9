// tests/pointops/lut_test.cpp: LUT, LUT_Linear, LUT_Cubic.
#include "tests/pointops/lut.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::lut;

struct Range {
    int64_t least, most;
};
Range rangeOf(Type t) {
    if (t == Type::U8) return {0, 255};
    if (t == Type::U16) return {0, 65535};
    return {-32768, 32767};
}

template <class V>
struct Curve {
    std::vector<V> values, levels;
};

template <class V>
bool strictlyRising(const V* v, int n) {
    for (int i = 0; i + 1 < n; ++i)
        if (!(v[i] < v[i + 1])) return false;
    return true;
}

// Interval k's polynomial at x, in Lagrange's form, and how far rounding may take another evaluation of it.
template <class V>
std::pair<long double, long double> polynomial(const Curve<V>& curve, int k, double x) {
    const int n = int(curve.levels.size());
    int first = std::max(0, std::min(k - 1, n - 4)), points = std::min(n, 4);
    std::vector<V> used(curve.levels.begin() + first, curve.levels.begin() + first + points);
    std::sort(used.begin(), used.end());
    if (!strictlyRising(used.data(), points)) first = k, points = 2;
    long double value = 0, scale = 0;
    for (int i = first; i < first + points; ++i) {
        long double term = curve.values[i];
        for (int j = first; j < first + points; ++j)
            if (j != i) term *= (x - (long double)curve.levels[j]) / ((long double)curve.levels[i] - curve.levels[j]);
        value += term;
        scale += std::abs(term);
    }
    return {value, scale * 1e-9L + 1e-9L};
}

int64_t saturate(long double v, Range r) { return v <= r.least ? r.least : v >= r.most ? r.most : int64_t(v); }

// Whether x may become y.
bool accepts(Kind kind, Type t, const Curve<Kvr32s>& curve, int64_t x, int64_t y) {
    const Range r = rangeOf(t);
    const int n = int(curve.levels.size());
    const auto clampLevel = [&](int k) { return std::clamp<int64_t>(curve.levels[k], r.least, r.most + 1); };
    int found = -1;
    for (int k = 0; k < n - 1; ++k)
        if (clampLevel(k) <= x && x < clampLevel(k + 1)) found = k;
    if (found < 0 || x >= curve.levels[n - 1]) return y == x;
    const double v0 = curve.values[found], v1 = curve.values[found + 1], l0 = curve.levels[found], l1 = curve.levels[found + 1];
    if (kind == Kind::Cubic) {
        const auto [p, slack] = polynomial(curve, found, double(x));
        return y >= saturate(std::floor(p - slack + 0.5L), r) && y <= saturate(std::floor(p + slack + 0.5L), r);
    }
    if (kind == Kind::Step || clampLevel(found + 1) - clampLevel(found) == 1) return y == saturate(v0, r);
    const double slope = (v1 - v0) / (l1 - l0), offset = v0 + 0.5 - l0 * slope;
    return y == saturate(std::trunc(double(x) * slope + offset), r);
}

bool accepts(Kind kind, Type, const Curve<Kvr32f>& curve, float x, float y) {
    const int n = int(curve.levels.size());
    int k = 0;
    while (k < n - 1 && !(curve.levels[k] <= x && x < curve.levels[k + 1])) ++k;
    float want = x;
    if (k < n - 1) {
        const float v0 = curve.values[k], v1 = curve.values[k + 1], l0 = curve.levels[k], l1 = curve.levels[k + 1];
        if (kind == Kind::Step) want = v0;
        else if (kind == Kind::Linear) {
            const float slope = (v1 - v0) / (l1 - l0), rise = (x - l0) * slope;
            want = v0 + rise;
        } else {
            const auto [p, slack] = polynomial(curve, k, x);
            return y >= float(p - slack) && y <= float(p + slack);
        }
    }
    return std::memcmp(&want, &y, 4) == 0 || (std::isnan(want) && std::isnan(y) && k < n - 1);
}

template <class V>
V randomLevel(Type t, Random& random, bool moderate) {
    if constexpr (std::is_same_v<V, Kvr32f>) {
        const float specials[] = {0.f, -0.f, INFINITY, -INFINITY, NAN, 3e38f};
        if (!moderate && random.chance(10)) return specials[random.in(0, 5)];
        return float(random.in(-4000, 4000)) / 8;
    } else {
        const Range r = rangeOf(t);
        if (!moderate && random.chance(15)) return V(random.bits());
        return V(random.in(int(r.least) - 20, int(r.most) + 20));
    }
}

template <class V>
Curve<V> randomCurve(Kind kind, Type t, Random& random) {
    const int n = random.chance(20) ? 2 : random.chance(60) ? random.in(2, 20) : random.in(2, 90);
    const bool moderate = kind == Kind::Cubic;
    Curve<V> curve;
    for (int k = 0; k < n; ++k) {
        curve.levels.push_back(randomLevel<V>(t, random, moderate));
        curve.values.push_back(randomLevel<V>(t, random, moderate));
    }
    if (random.chance(60)) std::sort(curve.levels.begin(), curve.levels.end(), [](V a, V b) { return a < b || (a == a && b != b); });
    if (random.chance(20)) curve.levels[random.in(0, n - 1)] = curve.levels[random.in(0, n - 1)];
    return curve;
}

template <class V>
V sampleAt(Type t, const uint8_t* p) {
    if constexpr (std::is_same_v<V, Kvr32f>) {
        float f;
        std::memcpy(&f, p, 4);
        return f;
    } else {
        uint16_t w = *p;
        if (t != Type::U8) std::memcpy(&w, p, 2);
        return t == Type::S16 ? int16_t(w) : w;
    }
}

// Curves in memory that ends at an unmapped page, and images.
template <class V>
struct Scene {
    const Case& c;
    TestImage src, dst;
    std::vector<Curve<V>> curves;
    std::vector<TestImage> arrays;
    Call call;

    Scene(const Case& c, KvriSize size, Random& random)
        : c(c), src(c.pixelBytes() * size.width, size.height, random, false),
          dst(c.pixelBytes() * size.width, size.height, random, false) {
        arrays.reserve(8);
        for (int i = 0; i < c.colours; ++i) {
            curves.push_back(randomCurve<V>(c.kind, c.type, random));
            call.nLevels[i] = int(curves[i].levels.size());
            call.values[i] = keep(curves[i].values);
            call.levels[i] = keep(curves[i].levels);
        }
        for (TestImage* image : {&src, &dst}) fill(*image, random);
        call.src = c.inPlace ? dst.roi : src.roi;
        call.srcStep = c.inPlace ? dst.step : src.step;
        call.dst = dst.roi;
        call.dstStep = dst.step;
        call.roi = size;
    }

    void run() {
        const std::vector<uint8_t> before = dst.memory();
        ASSERT_EQ(c.function(call), kvrStatusOk);
        const std::vector<uint8_t> after = dst.memory();
        std::vector<uint8_t> want = before;  // of what the function must not touch
        const int s = sampleBytes(c.type);
        for (int y = 0; y < call.roi.height; ++y)
            for (int x = 0; x < call.roi.width; ++x)
                for (int k = 0; k < c.colours; ++k) {
                    const int offset = (x * c.channels + k) * s;
                    const size_t at = dst.position(y, offset);
                    const V from = sampleAt<V>(c.type, c.inPlace ? &before[at] : src.row(y) + offset);
                    const V to = sampleAt<V>(c.type, &after[at]);
                    ASSERT_TRUE(accepts(c.kind, c.type, curves[k], from, to))
                        << from << " became " << to << ", row " << y << ", pixel " << x << ", channel " << k << ", "
                        << call.nLevels[k] << " levels, ROI " << call.roi.width << "x" << call.roi.height;
                    std::memcpy(&want[at], &after[at], size_t(s));
                }
        ASSERT_EQ(after, want) << "bytes beside the processed channels";
    }

private:
    const void* keep(const std::vector<V>& v) {
        const int bytes = int(v.size() * sizeof(V));
        arrays.emplace_back(bytes, 1, bytes, Edge::End);
        std::memcpy(arrays.back().roi, v.data(), size_t(bytes));
        return arrays.back().roi;
    }
    // Half of the samples of 32f lie among the levels; NaNs keep their bits.
    void fill(TestImage& image, Random& random) {
        if constexpr (std::is_same_v<V, Kvr32f>)
            for (int y = 0; y < image.rows; ++y)
                for (int x = 0; x + 4 <= image.rowBytes; x += 4) {
                    const auto& levels = curves[size_t(random.in(0, c.colours - 1))].levels;
                    const float f = random.chance(25) ? levels[size_t(random.in(0, int(levels.size()) - 1))]
                                                      : float(random.in(-40000, 40000)) / 80;
                    if (random.chance(90) && !std::isnan(f)) std::memcpy(image.row(y) + x, &f, 4);
                }
    }
};

template <class V>
void expectMapped(const Case& c, unsigned seed, KvriSize size = {}) {
    Random random(seed);
    const KvriSize drawn = random.size();
    Scene<V> scene(c, size.width ? size : drawn, random);
    scene.run();
}

TEST(Lut, MapsAsTheCurvesSay) {
    for (const Case& c : kLuts)
        for (unsigned seed = 0; seed < 60; ++seed) {
            if (c.type == Type::F32) expectMapped<Kvr32f>(c, seed);
            else expectMapped<Kvr32s>(c, seed);
            if (HasFatalFailure()) FAIL() << c.name << ", seed " << seed;
        }
}

// Few samples are compared with the levels, many are looked up: both ways must agree on every value.
TEST(Lut, TilesEqualTheWhole) {
    for (const Case& c : kLuts) {
        if (c.channels != 1 || c.inPlace || sampleBytes(c.type) != 2) continue;
        for (unsigned seed = 0; seed < 12; ++seed) {
            Random random(seed);
            auto curve = randomCurve<Kvr32s>(c.kind, c.type, random);
            std::sort(curve.levels.begin(), curve.levels.end());
            std::vector<uint16_t> all(65536), whole(65536), tiles(65536);
            for (size_t i = 0; i < all.size(); ++i) all[i] = uint16_t(i);
            Call call;
            call.values[0] = curve.values.data(), call.levels[0] = curve.levels.data(), call.nLevels[0] = int(curve.levels.size());
            call.srcStep = call.dstStep = 512;
            call.src = all.data(), call.dst = whole.data(), call.roi = {256, 256};
            ASSERT_EQ(c.function(call), kvrStatusOk);
            call.roi = {256, 1};
            for (size_t at = 0; at < all.size(); at += 256) {
                call.src = &all[at], call.dst = &tiles[at];
                ASSERT_EQ(c.function(call), kvrStatusOk);
            }
            ASSERT_EQ(whole, tiles) << c.name << ", seed " << seed;
        }
    }
}

TEST(Lut, ReportsTheFirstFault) {
    struct Fault {
        KvrStatus status;
        bool onlyArrays;
        std::function<void(Call&)> make;
    };
    const std::vector<Fault> faults = {
        {kvrStatusNullPointer, false, [](Call& c) { c.dst = nullptr; }},
        {kvrStatusNullPointer, false, [](Call& c) { c.values[0] = nullptr; }},
        {kvrStatusNullPointer, true, [](Call& c) { c.levels[2] = nullptr; }},
        {kvrStatusNullPointer, true, [](Call& c) { c.noValues = c.noLevels = true; }},
        {kvrStatusNullPointer, true, [](Call& c) { c.noCounts = true; }},
        {kvrStatusBadSize, false, [](Call& c) { c.roi.width = 0; }},
        {kvrStatusBadSize, false, [](Call& c) { c.roi.height = -3; }},
        {kvrStatusBadStep, false, [](Call& c) { c.dstStep = 0; }},
        {kvrStatusBadLutLevels, false, [](Call& c) { c.nLevels[0] = 1; }},
        {kvrStatusBadLutLevels, true, [](Call& c) { c.nLevels[2] = -7; }},
    };
    for (const Case& c : kLuts) {
        const Curve<Kvr32s> curve{{1, 2}, {3, 200}};  // as 32f two denormal levels
        uint8_t src[64] = {}, dst[64] = {};
        for (unsigned set = 1; set < 1u << faults.size(); ++set) {
            Call call{src, dst, 16, 16, {1, 4}, {}, {}, {}};
            for (int i = 0; i < 4; ++i) call.values[i] = curve.values.data(), call.levels[i] = curve.levels.data(), call.nLevels[i] = 2;
            KvrStatus first = kvrStatusOk;
            for (size_t i = 0; i < faults.size(); ++i)
                if (set >> i & 1 && (c.channels > 1 || !faults[i].onlyArrays)) {
                    faults[i].make(call);
                    if (first == kvrStatusOk) first = faults[i].status;
                }
            ASSERT_EQ(c.function(call), first) << c.name << ", faults " << set;
        }
        ASSERT_TRUE(std::all_of(dst, dst + 64, [](uint8_t b) { return b == 0; })) << c.name;
    }
    uint8_t byte = 0;
    const Kvr32s two[] = {0, 9};
    EXPECT_EQ(kvriLUT_8u_C1R(nullptr, 1, &byte, 1, {1, 1}, two, two, 2), kvrStatusNullPointer);
    EXPECT_EQ(kvriLUT_8u_C1R(&byte, 0, &byte, 1, {1, 1}, two, two, 1), kvrStatusBadStep);
}

}  // namespace
