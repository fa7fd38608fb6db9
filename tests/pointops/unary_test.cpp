// tests/pointops/unary_test.cpp: Abs, Sqr, Sqrt, Ln and Exp: images against the contract, and integers of all values.
#include <gtest/gtest.h>

#include <xmmintrin.h>

#include "tests/pointops/contract.h"
#include "tests/pointops/unary.h"
#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::arithmetic;
using contract::rangeOf;

// The exact real results, near enough: x is an integer.
int64_t expected(const Case& c, int64_t x, int scale) {
    const auto range = rangeOf(c.type);
    auto saturated = [&](long double r) { return r < range.most ? int64_t(r) : range.most; };
    const int power = -std::clamp(scale, -1000, 1000);
    if (c.operation == "Abs") return std::min(std::abs(x), range.most);
    if (c.operation == "Sqr") return contract::saturate(contract::scaled(x * x, scale), range);
    if (c.operation == "Sqrt") return x < 0 ? 0 : saturated(std::nearbyint(std::ldexp(std::sqrt((long double)x), power)));
    if (c.operation == "Ln") return x < 1 ? 0 : saturated(std::log(double(x)) * std::ldexp(1.0, power) + 0.5);
    if (x == 0) return saturated(std::nearbyint(std::ldexp(1.0L, power)));
    const long double logarithm = x - scale * 0.693147180559945309417232121458L;
    return logarithm < -1 ? 0 : saturated(std::nearbyint(std::exp(std::min(logarithm, 12.0L))));
}

template <class T>
T loadAs(const uint8_t* p) {
    T v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

// Whether a result is right: of Ln and Exp, one unit in the last place from it; NaNs are all alike, but for Abs.
bool isRight(const Case& c, const uint8_t* have, const uint8_t* operand) {
    const float x = loadAs<float>(operand), y = loadAs<float>(have);
    if (c.operation == "Abs") return loadAs<uint32_t>(have) == (loadAs<uint32_t>(operand) & 0x7FFFFFFF);
    const bool rounded = c.operation[0] == 'S';
    const float right = c.operation == "Sqr" ? x * x : c.operation == "Sqrt" ? std::sqrt(x)
                      : c.operation == "Exp" ? float(std::exp(double(x))) : x == 0 ? 0 : float(std::log(double(x)));
    if (std::isnan(right)) return std::isnan(y);
    if (y == right && std::signbit(y) == std::signbit(right)) return true;
    return !rounded && (y == std::nextafter(right, INFINITY) || y == std::nextafter(right, -INFINITY));
}

void fillSamples(Type t, TestImage& image, Random& random, bool noZeros) {
    constexpr float floats[] = {0.f, -0.f, 1.f, -3.f, INFINITY, -INFINITY, NAN, 1e-40f, -1e-40f, 3e38f, 88.8f, -87.5f, -104.f};
    constexpr int64_t integers[] = {0, 0, 1, 2, 127, 255, 256, 32767, 32768, 65535};
    for (int y = 0; y < image.rows; ++y)
        for (int x = 0; x < image.rowBytes; x += partBytes(t)) {
            int64_t v = int64_t(random.bits());
            if (t == Type::F32) {
                const float f = random.chance(30) ? floats[random.in(0, 12)] : float(random.in(-1000000, 1000000)) / 9973;
                if (random.chance(90)) std::memcpy(&v, &f, 4);
                if (noZeros && (v & 0x7FFFFFFF) == 0) v = 1;
            } else {
                if (random.chance(30)) v = integers[random.in(0, 9)];
                if (random.chance(30)) v &= 15;
                if (noZeros) v |= 1;
            }
            std::memcpy(image.row(y) + x, &v, size_t(partBytes(t)));
        }
}

struct Scene {
    const Case& c;
    TestImage a, d;
    Call call;

    Scene(const Case& c, KvriSize size, Random& random)
        : c(c), a(c.pixelBytes() * size.width, size.height, random, false),
          d(c.pixelBytes() * size.width, size.height, random, false) {
        const bool noZeros = random.chance(50);
        fillSamples(c.type, a, random, noZeros);
        fillSamples(c.type, d, random, noZeros);
        call.src1 = a.roi, call.step1 = a.step, call.dst = d.roi, call.dstStep = d.step, call.roi = size;
        if (c.scales()) call.scale = random.chance(10) ? random.chance(50) ? INT32_MIN : INT32_MAX : random.in(-12, 20);
    }
};

void expectResult(Scene& scene) {
    const Case& c = scene.c;
    const Call& call = scene.call;
    const auto before = scene.d.memory(), operands = c.inPlace ? before : scene.a.memory();
    const TestImage& source = c.inPlace ? scene.d : scene.a;
    const KvrStatus status = c.function(call, 1);
    auto have = scene.d.memory();

    bool zero = false;
    const int s = partBytes(c.type);
    for (int y = 0; y < call.roi.height; ++y)
        for (int x = 0; x < scene.d.rowBytes; x += s) {
            const uint8_t* operand = &operands[source.position(y, x)];
            uint8_t* result = &have[scene.d.position(y, x)];
            if (x / s % c.channels >= c.colours) continue;
            if (c.type == Type::F32) {
                zero |= loadAs<float>(operand) == 0;
                ASSERT_TRUE(isRight(c, result, operand)) << c.name << " of " << loadAs<float>(operand) << ": "
                    << loadAs<float>(result) << ", ROI " << call.roi.width << "x" << call.roi.height << ", sample " << x / s;
            } else {
                const int64_t v = contract::load(c.type, operand).re;
                zero |= v == 0;
                ASSERT_EQ(contract::load(c.type, result).re, expected(c, v, call.scale)) << c.name << " of " << v << ", scale "
                    << call.scale << ", ROI " << call.roi.width << "x" << call.roi.height << ", sample " << x / s;
            }
            std::memcpy(result, &before[scene.d.position(y, x)], size_t(s));
        }
    ASSERT_EQ(have, before) << c.name << " writes what is not its own";
    ASSERT_EQ(status, zero && c.operation == "Ln" ? kvrStatusLnZeroArgWarning : kvrStatusOk) << c.name;
}

TEST(Unary, MatchesTheContract) {
    for (const Case& c : kUnary)
        for (unsigned seed = 0; seed < 150; ++seed) {
            Random random(seed);
            Scene scene(c, random.size(), random);
            expectResult(scene);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Every value of the type in one row.
class AllValues {
    const Case& case_;
    int bytes_ = partBytes(case_.type), count_ = 1 << 8 * bytes_;
    std::vector<uint8_t> values_, results_;

public:
    explicit AllValues(const Case& c) : case_(c), values_(size_t(count_ * bytes_)), results_(values_.size()) {
        for (int i = 0; i < count_; ++i) std::memcpy(&values_[size_t(i * bytes_)], &i, size_t(bytes_));
    }
    void expectAt(int scale) {
        Call call;
        call.src1 = values_.data(), call.dst = results_.data();
        call.step1 = call.dstStep = int(values_.size());
        call.roi = {count_, 1};
        call.scale = scale;
        case_.function(call, 1);
        for (int i = 0; i < count_; ++i) {
            const int64_t v = contract::load(case_.type, &values_[size_t(i * bytes_)]).re;
            ASSERT_EQ(contract::load(case_.type, &results_[size_t(i * bytes_)]).re, expected(case_, v, scale))
                << case_.name << " of " << v << ", scale " << scale;
        }
    }
};

TEST(Unary, LargeSetOfAllIntegers) {
    for (const Case& c : kUnary) {
        if (c.type == Type::F32 || c.channels != 1 || c.inPlace) continue;
        AllValues all(c);
        const int least = c.scales() ? -20 : 0, most = c.operation == "Sqr" ? 34 : c.scales() ? 12 : 0;
        for (int scale = least; scale <= most; ++scale) all.expectAt(scale);
        if (!c.scales()) continue;
        for (int scale : {INT32_MIN, -2000000000, -70, 70, 2000000000, INT32_MAX}) all.expectAt(scale);
        for (unsigned seed = 0; seed < 40 && c.operation == "Exp"; ++seed) all.expectAt(Random(seed).in(-96000, 96000));
        if (HasFatalFailure()) return;
    }
}

// Rounding upward, denormal numbers taken and left as 0: of no consequence but for the plain 32f functions, and kept.
TEST(Unary, KeepsTheCallersFloatControl) {
    constexpr unsigned unusual = 0x1F80 | 0x4000 | 0x8040, flags = 0x3F;
    for (const Case& c : kUnary) {
        if (c.type == Type::F32 && c.operation != "Ln" && c.operation != "Exp") continue;
        Random random(7), again(7);
        const KvriSize size{300, 4};
        Scene usual(c, size, random), other(c, size, again);
        const KvrStatus status = c.function(usual.call, 1);
        const unsigned before = _mm_getcsr();
        _mm_setcsr(unusual);
        const unsigned taken = _mm_getcsr();  // valgrind has only the rounding
        const KvrStatus otherStatus = c.function(other.call, 1);
        const unsigned after = _mm_getcsr();
        _mm_setcsr(before);
        ASSERT_EQ(after & ~flags, taken & ~flags) << c.name;
        ASSERT_EQ(otherStatus, status) << c.name;
        ASSERT_EQ(other.d.memory(), usual.d.memory()) << c.name;
    }
}

TEST(Unary, ChecksPointersThenSizeThenSteps) {
    struct Fault {
        KvrStatus status;
        void (*make)(Call&);
    };
    const Fault faults[] = {
        {kvrStatusNullPointer, [](Call& call) { call.dst = nullptr; }},
        {kvrStatusNullPointer, [](Call& call) { call.src1 = nullptr; }},
        {kvrStatusBadSize, [](Call& call) { call.roi.width = 0; }},
        {kvrStatusBadSize, [](Call& call) { call.roi.height = -1; }},
        {kvrStatusBadStep, [](Call& call) { call.dstStep = 0; }},
        {kvrStatusBadStep, [](Call& call) { call.step1 = -64; }},
    };
    for (const Case& c : kUnary)
        for (unsigned set = 1; set < 64; ++set) {
            if (c.inPlace && (set & 0b100010)) continue;  // there is no source but the destination
            Random random(set);
            Scene scene(c, {5, 3}, random);
            const auto before = scene.d.memory();
            KvrStatus first = kvrStatusOk;
            for (int i = 0; i < 6; ++i)
                if (set >> i & 1) {
                    faults[i].make(scene.call);
                    if (first == kvrStatusOk) first = faults[i].status;
                }
            ASSERT_EQ(c.function(scene.call, 1), first) << c.name << ", faults " << set;
            ASSERT_EQ(scene.d.memory(), before) << c.name << ", faults " << set;
        }
}

}  // namespace
