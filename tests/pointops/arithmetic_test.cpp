// tests/pointops/arithmetic_test.cpp: Add, Sub, Mul, Div, Div_Round, MulScale and their forms with constants.
#include <gtest/gtest.h>
#include <immintrin.h>

#include <memory>

#include "tests/pointops/contract.h"
#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::arithmetic;

// Half of the samples near the limits of their type, and near 0.
void fillSamples(Type t, TestImage& image, Random& random, bool noZeros = false) {
    const int bytes = partBytes(t);
    for (int y = 0; y < image.rows; ++y)
        for (int x = 0; x + bytes <= image.rowBytes; x += bytes) {
            int64_t v = int64_t(random.bits());
            if (isFloat(t)) {
                const float specials[] = {0.f, -0.f, 1.f, -3.f, 1e38f, -1e38f, 1e-40f, INFINITY};
                float f = random.chance(50) ? specials[random.in(0, 7)] : float(random.in(-1000000, 1000000)) / 977;
                std::memcpy(&v, &f, 4);
            } else if (random.chance(50)) {
                const auto range = contract::rangeOf(t);
                const int64_t specials[] = {range.least, range.most, 0, (range.least + range.most + 1) / 2};
                v = specials[random.in(0, 3)] + random.in(-2, 2);
            }
            if (v == 0 && noZeros) v = 1;
            std::memcpy(image.row(y) + x, &v, size_t(bytes));
        }
}

int randomScale(Random& random) {
    if (random.chance(30)) return random.in(-9, 9);
    if (random.chance(10)) return random.chance(50) ? INT32_MAX : INT32_MIN;
    return random.in(-40, 70);
}

struct Scene {
    const Case& c;
    TestImage a, b, d;
    std::unique_ptr<GuardedPages> valuePages = GuardedPages::get(64);
    uint8_t* value;
    Call call;
    bool zeroDivisor = false;
    KvrStatus status = kvrStatusOk;

    Scene(const Case& c, KvriSize size, Random& random)
        : c(c), a(c.pixelBytes() * size.width, size.height, random, !c.checksSteps()),
          b(c.pixelBytes() * size.width, size.height, random, !c.checksSteps()),
          d(c.pixelBytes() * size.width, size.height, random, !c.checksSteps()),
          value(valuePages->end() - sampleBytes(c.type) * (c.channels == 1 ? 1 : c.colours)) {
        const bool noZeros = random.chance(50);
        fillSamples(c.type, a, random, noZeros);
        for (TestImage* image : {&b, &d}) fillSamples(c.type, *image, random);
        TestImage constants(sampleBytes(c.type) * 4, 1, random);
        fillSamples(c.type, constants, random, noZeros);
        std::memcpy(value, constants.row(0), size_t(valuePages->end() - value));
        if (c.inPlace) call = {a.roi, d.roi, d.roi, a.step, d.step, d.step, size, value};
        else call = {a.roi, b.roi, d.roi, a.step, b.step, d.step, size, value};
        call.scale = randomScale(random);
        call.mode = random.in(0, 2);
        zeroDivisor = c.divides() && findZero();
        if (c.constant && zeroDivisor) status = kvrStatusDivByZero;
        else if (zeroDivisor) status = kvrStatusDivByZeroWarning;
    }
    ~Scene() { GuardedPages::put(std::move(valuePages)); }

    bool isZero(const uint8_t* p) const {
        if (!isFloat(c.type)) {
            const auto s = contract::load(c.type, p);
            return s.re == 0 && s.im == 0;
        }
        float f[2] = {};
        std::memcpy(f, p, size_t(sampleBytes(c.type)));
        return f[0] == 0 && f[1] == 0;
    }
    bool findZero() const {
        const int s = sampleBytes(c.type), columns = c.constant ? 1 : call.roi.width, rows = c.constant ? 1 : call.roi.height;
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < columns; ++x)
                for (int k = 0; k < c.colours; ++k)
                    if (isZero(c.constant ? value + k * s : a.row(y) + (x * c.channels + k) * s)) return true;
        return false;
    }

    std::vector<uint8_t> expected() const {
        auto want = d.memory();
        if (status < 0) return want;
        const int s = sampleBytes(c.type);
        const TestImage& second = c.inPlace ? d : b;
        for (int y = 0; y < call.roi.height; ++y)
            for (int x = 0; x < call.roi.width; ++x)
                for (int k = 0; k < c.colours; ++k) {
                    const int at = (x * c.channels + k) * s;
                    const uint8_t* first = c.constant ? value + k * s : a.row(y) + at;
                    uint8_t* result = want.data() + d.position(y, at);
                    if (isFloat(c.type)) contract::floating(c, first, second.row(y) + at, result);
                    else contract::store(c.type, result, contract::integer(c, contract::load(c.type, first),
                                                                           contract::load(c.type, second.row(y) + at), call.scale, call.mode));
                }
        return want;
    }
};

bool sameFloats(const std::vector<uint8_t>& a, const std::vector<uint8_t>& b, size_t from) {
    for (size_t i = from; i + 4 <= a.size(); i += 4) {
        float x, y;
        std::memcpy(&x, &a[i], 4);
        std::memcpy(&y, &b[i], 4);
        if (std::memcmp(&a[i], &b[i], 4) != 0 && !(std::isnan(x) && std::isnan(y))) return false;
    }
    return true;
}

// NaN results may have any payload. Rows of floats lie 4-aligned within the image only without odd padding.
void expectResult(const Scene& scene) {
    auto want = scene.expected();
    if (!scene.c.scales()) const_cast<Scene&>(scene).call.scale = 0;
    ASSERT_EQ(scene.c.function(scene.call, 1), scene.status) << scene.c.name;
    const auto have = scene.d.memory();
    if (have == want) return;
    const Call& call = scene.call;
    for (int y = 0; y < call.roi.height; ++y)
        for (int x = 0; x < scene.d.rowBytes; ++x) {
            const size_t at = scene.d.position(y, x);
            if (have[at] == want[at]) continue;
            const size_t part = scene.d.position(y, x / 4 * 4);
            if (isFloat(scene.c.type) && sameFloats({&have[part], &have[part] + 4}, {&want[part], &want[part] + 4}, 0)) continue;
            FAIL() << scene.c.name << ", scale " << call.scale << ", ROI " << call.roi.width << "x" << call.roi.height
                   << ", row " << y << ", byte " << x << ": " << int(have[at]) << " instead of " << int(want[at]);
        }
    std::vector<bool> inRow(have.size());
    for (int y = 0; y < call.roi.height; ++y)
        for (int x = 0; x < scene.d.rowBytes; ++x) inRow[scene.d.position(y, x)] = true;
    for (size_t i = 0; i < have.size(); ++i) ASSERT_TRUE(inRow[i] || have[i] == want[i]) << scene.c.name << " writes between rows";
}

TEST(Arithmetic, MatchesTheContract) {
    for (const Case& c : kArithmetic)
        for (unsigned seed = 0; seed < 150; ++seed) {
            Random random(seed);
            Scene scene(c, random.size(), random);
            expectResult(scene);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Whatever the caller has set. Results of floating point depend on it, those of integers do not.
TEST(Arithmetic, LeavesTheFloatingPointControlAlone) {
    constexpr unsigned kControl = 0xFFC0, kTowardZeroFlushed = 0xFF80;
    const unsigned before = _mm_getcsr();
    for (const Case& c : kArithmetic) {
        Random random(7);
        Scene scene(c, {37, 2}, random);
        if (!c.scales()) scene.call.scale = 0;
        const auto want = isFloat(c.type) ? std::vector<uint8_t>{} : scene.expected();
        _mm_setcsr(kTowardZeroFlushed);
        const unsigned taken = _mm_getcsr();  // valgrind has only the rounding
        const KvrStatus status = c.function(scene.call, 1);
        const unsigned after = _mm_getcsr();
        _mm_setcsr(before);
        EXPECT_EQ(after & kControl, taken & kControl) << c.name;
        EXPECT_EQ(status, scene.status) << c.name;
        if (!isFloat(c.type)) {
            EXPECT_EQ(scene.d.memory(), want) << c.name;
        }
    }
}

// A row of samples for each of which the contract gives the result.
void expectRow(const Case& c, const void* src1, const void* src2, int n, const void* value, int scale, int mode) {
    const int s = sampleBytes(c.type);
    std::vector<uint8_t> dst(size_t(n * s)), want(dst);
    const auto operand = [&](const void* p, int i) { return contract::load(c.type, static_cast<const uint8_t*>(p) + i * s); };
    for (int i = 0; i < n; ++i)
        contract::store(c.type, &want[size_t(i * s)],
                        contract::integer(c, c.constant ? operand(value, 0) : operand(src1, i), operand(src2, i), scale, mode));
    c.function({src1, src2, dst.data(), n * s, n * s, n * s, {n, 1}, value, mode, scale}, 1);
    ASSERT_EQ(dst, want) << c.name << ", scale " << scale << ", mode " << mode << ", constant " << (value ? operand(value, 0).re : 0);
}

bool is(const Case& c, Type type) { return c.type == type && c.channels == 1 && !c.inPlace; }

TEST(Arithmetic, AllPairsOfBytesAroundEveryLimit) {
    std::vector<uint8_t> a(65536), b(65536);
    for (int i = 0; i < 65536; ++i) a[size_t(i)] = uint8_t(i), b[size_t(i)] = uint8_t(i >> 8);
    for (const Case& c : kArithmetic) {
        if (!is(c, Type::U8) || c.constant) continue;
        for (int scale : {INT32_MIN, -33, -9, -8, -7, -1, 0, 1, 2, 7, 8, 9, 10, 15, 16, 17, 31, 32, 33, INT32_MAX}) {
            if (!c.scales() && scale != 0) continue;
            for (int mode = 0; mode <= (c.operation == "Div_Round" ? 2 : 0); ++mode)
                expectRow(c, a.data(), b.data(), 65536, nullptr, scale, mode);
        }
    }
}

TEST(Arithmetic, DivisionsByConstantsOfAllNumbers) {
    std::vector<uint16_t> words(65536);
    std::vector<uint8_t> bytes(256);
    for (int i = 0; i < 65536; ++i) words[size_t(i)] = uint16_t(i);
    for (int i = 0; i < 256; ++i) bytes[size_t(i)] = uint8_t(i);
    Random random(1);
    for (const Case& c : kArithmetic) {
        if (!c.divides() || !c.constant || c.channels != 1 || c.inPlace) continue;
        if (c.type == Type::U8) {
            for (int value = 1; value < 256; ++value)
                for (int scale : {0, 1, 3, 8, 9, -2}) expectRow(c, nullptr, bytes.data(), 256, &value, scale, 1);
        } else if (c.type == Type::U16 || c.type == Type::S16) {
            for (int i = 0; i < 90; ++i) {
                const int magnitude = i < 48 ? (1 << (i / 3)) + i % 3 - 1 : random.in(1, 65535);
                const int value = magnitude % 65536 == 0 ? 3 : magnitude;
                expectRow(c, nullptr, words.data(), 65536, &value, i % 4 == 3 ? random.in(-2, 16) : 0, 1);
            }
        }
    }
}

// Quotients close to the middle of two numbers, where an approximation would show; and operands beyond any shortcut.
TEST(Arithmetic, FloatDivisionsByConstantsAreDivisions) {
    Random random(1);
    const float special[] = {0.f, -0.f, 1e-40f, -1e-38f, 3e38f, INFINITY, -INFINITY, NAN, 0x1p-64f, 0x1.fffffep-64f};
    for (int round = 0; round < 3000; ++round) {
        const float c = std::ldexp(float(random.in(1 << 23, (1 << 24) - 1)), random.in(-45, 10) * (random.chance(10) ? 3 : 1));
        float x[80], q[80];
        for (int i = 0; i < 80; ++i) {
            const float middle = std::nextafter(float(random.in(1 << 23, (1 << 24) - 1)), INFINITY);
            x[i] = random.chance(3) && round % 2 ? special[random.in(0, 9)] : std::ldexp(float((middle + 0.5) * double(c)), random.in(-40, 0));
        }
        ASSERT_EQ(kvriDivC_32f_C1R(x, sizeof x, c, q, sizeof q, {80, 1}), kvrStatusOk);
        for (int i = 0; i < 80; ++i) {
            const float want = x[i] / c;
            ASSERT_TRUE(std::memcmp(&q[i], &want, 4) == 0 || (std::isnan(q[i]) && std::isnan(want))) << x[i] << " / " << c;
        }
    }
}

// The one number each for which a product with these constants' reciprocals is off by one unit.
TEST(Arithmetic, FloatDivisionsByConstantsThatNeedADivision) {
    const float worst[][2] = {{0x1.dfc966p+6f, 0x1.34b0b2p+23f}, {0x1.adf716p+6f, 0x1.4a987cp+23f}, {0x1.989bd6p+2f, 0x1.3acb82p+23f},
                              {0x1.e0cbecp-4f, 0x1.66b072p+23f}, {0x1.f4035ep+4f, 0x1.25046ap+23f}};
    for (const auto& [c, x] : worst) {
        float q;
        ASSERT_EQ(kvriDivC_32f_C1R(&x, 4, c, &q, 4, {1, 1}), kvrStatusOk);
        EXPECT_EQ(q, x / c);
    }
}

using Fault = std::pair<KvrStatus, std::function<void(Call&)>>;

std::vector<Fault> faultsOf(const Case& c) {
    const auto nullPointer = [](auto member) { return Fault{kvrStatusNullPointer, [=](Call& call) { call.*member = nullptr; }}; };
    const auto badStep = [](auto member, int step) { return Fault{kvrStatusBadStep, [=](Call& call) { call.*member = step; }}; };
    std::vector<Fault> pointers = {nullPointer(&Call::dst)}, steps = {badStep(&Call::dstStep, 0)};
    if (!c.constant) pointers.push_back(nullPointer(&Call::src1)), steps.push_back(badStep(&Call::step1, -3));
    if (!c.inPlace) pointers.push_back(nullPointer(&Call::src2)), steps.push_back(badStep(&Call::step2, 0));
    if (c.constant && c.channels > 1) pointers.push_back(nullPointer(&Call::value));
    std::vector<Fault> sizes = {{kvrStatusBadSize, [](Call& call) { call.roi.width = 0; }},
                                {kvrStatusBadSize, [](Call& call) { call.roi.height = -1; }}};
    std::vector<Fault> all = pointers;
    const auto append = [&](const std::vector<Fault>& more) { all.insert(all.end(), more.begin(), more.end()); };
    const bool stepsFirst = c.operation == "MulScale" || c.operation == "MulCScale";
    if (stepsFirst) append(steps);
    append(sizes);
    if (!stepsFirst && c.checksSteps()) append(steps);
    if (c.divides() && c.constant) {
        static const uint8_t zeros[32] = {};
        all.push_back({kvrStatusDivByZero, [](Call& call) { call.value = call.value ? zeros : nullptr; }});
    }
    if (c.operation == "Div_Round") all.push_back({kvrStatusBadRoundMode, [](Call& call) { call.mode = 3; }});
    return all;
}

// Every combination of faults gives the status of the first one and writes nothing.
TEST(Arithmetic, ChecksInTheOrderOfEachFamily) {
    for (const Case& c : kArithmetic) {
        const auto faults = faultsOf(c);
        for (unsigned set = 1; set < 1u << faults.size(); ++set) {
            Random random(set);
            Scene scene(c, {5, 3}, random);
            scene.call.scale = 1;
            const auto before = scene.d.memory();
            KvrStatus first = kvrStatusOk;
            for (size_t i = 0; i < faults.size(); ++i)
                if (set >> i & 1) {
                    faults[i].second(scene.call);
                    if (first == kvrStatusOk) first = faults[i].first;
                }
            ASSERT_EQ(c.function(scene.call, 1), first) << c.name << ", faults " << set;
            ASSERT_EQ(scene.d.memory(), before) << c.name << ", faults " << set;
        }
    }
}

}  // namespace
