// tests/pointops/arithmetic_test.cpp: Add, Sub, Mul, Div, Div_Round, MulScale and their forms with constants.
#include <gtest/gtest.h>

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

}  // namespace
