// tests/pointops/threshold_test.cpp: the per-sample thresholds against the literal contract, and Otsu's threshold.
#include "tests/pointops/scene.h"

namespace {

using namespace test;
using namespace test::pointwise;

bool isLower(const Scene& scene) { return scene.c.is("_LT") || scene.call.code == kvrCmpLess; }

const uint8_t* chosen(const Scene& scene, const uint8_t* sample, int k) {
    const Case& c = scene.c;
    const auto beyond = [&](bool lower, int threshold) {
        const double s = number(c.type, sample), t = number(c.type, scene.value(threshold, k));
        return lower ? s < t : s > t;
    };
    if (c.is("LTValGTVal")) return beyond(true, 0) ? scene.value(1, k) : beyond(false, 2) ? scene.value(3, k) : sample;
    return beyond(isLower(scene), 0) ? scene.value(c.is("Val"), k) : sample;
}

void contract(const Scene& scene, int x, int y, uint8_t* result) {
    const size_t bytes = size_t(scene.c.sampleBytes);
    for (int k = 0; k < scene.c.colours; ++k)
        std::memmove(result + size_t(k) * bytes, chosen(scene, scene.sample(0, x, y, k), k), bytes);
}

KvrStatus prepare(Scene& scene, Random& random) {
    const Case& c = scene.c;
    scene.call.code = c.hasCode() && random.chance(50) ? kvrCmpLess : kvrCmpGreater;
    if (!c.is("LTValGTVal")) return kvrStatusOk;
    if (random.chance(20)) scene.call.value[2] = scene.call.value[0];  // equal
    const auto inverted = [&](int k) { return number(c.type, scene.value(2, k)) < number(c.type, scene.value(0, k)); };
    for (int k = 0; k < c.colours; ++k)
        if (inverted(k)) {
            if (random.chance(3)) return kvrStatusBadThresholds;
            for (size_t i = 0; i < size_t(c.sampleBytes); ++i)
                std::swap(const_cast<uint8_t*>(scene.value(0, k))[i], const_cast<uint8_t*>(scene.value(2, k))[i]);
        }
    return kvrStatusOk;
}

TEST(Threshold, MatchesTheContract) { expectContract(kThreshold, 250, prepare, contract); }

// The last colour's upper threshold below its lower one, in any type.
Fault invertedThresholds(const Case& c) {
    static uint8_t low[16], high[16];
    const auto bytes = size_t(c.sampleBytes), last = size_t(c.colours - 1) * bytes;
    return {kvrStatusBadThresholds, [=](Call& call) {
                std::memset(low, 0x40, sizeof low);
                std::memset(high, 0x40, sizeof high);
                std::memset(high + last, 0x3F, bytes);
                if (call.value[0]) call.value[0] = low;
                if (call.value[2]) call.value[2] = high;
            }};
}

// Each form in its own order: the Val forms look at the code first.
TEST(Threshold, ChecksInTheFamilysOrder) {
    Random random(1);
    for (const Case& c : kThreshold) {
        Faults faults = nullPointers(c) + badSizes() + badSteps(c), code;
        if (c.hasCode())
            for (int other : {1, 2, 3, 5, -1}) code.push_back({kvrStatusNotSupported, [other](Call& call) { call.code = other; }});
        faults = c.is("Val") ? code + faults : faults + code;
        if (c.is("LTValGTVal")) faults.push_back(invertedThresholds(c));
        expectFaults(c, faults, random);
        if (HasFatalFailure()) FAIL() << c.name;
    }
}

int otsu(const TestImage& image, int width) {
    double p[256] = {}, mean = 0;
    for (int y = 0; y < image.rows; ++y)
        for (int x = 0; x < width; ++x) p[image.row(y)[x]] += 1.0;
    for (int i = 0; i < 256; ++i) p[i] /= double(width) * image.rows, mean += i * p[i];
    double w0 = 0, moment = 0, best = 0, found = 0;
    for (int t = 0; t < 256; ++t) {
        w0 += p[t];
        const double w1 = 1 - w0;
        if (std::min(w0, w1) < 1.1920928955078125e-07 || std::max(w0, w1) > 0.99999988079071044921875) continue;
        moment += t * p[t];
        const double mean0 = moment / w0, mean1 = (mean - moment) / w1;
        const double variance = w0 * w1 * ((mean0 - mean1) * (mean0 - mean1));
        if (variance > best) best = variance, found = t + 0.5;
    }
    return int(found);
}

TEST(ThresholdOtsu, MatchesTheContract) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        Random random(seed);
        const KvriSize size = random.size();
        TestImage image(size.width, size.height, random, false);
        const int levels = random.in(1, 20), scale = 255 / levels;
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x)
                if (seed % 4 != 0) image.row(y)[x] = uint8_t(random.in(0, levels) * scale);
        Kvr8u threshold = 77;
        ASSERT_EQ(kvriComputeThreshold_Otsu_8u_C1R(image.roi, image.step, size, &threshold), kvrStatusOk);
        ASSERT_EQ(threshold, otsu(image, size.width)) << "seed " << seed;
    }
}

// A level too rare to form a class is passed over, and so is its moment: with it, 100 would be better.
TEST(ThresholdOtsu, PassesOverRareLevelsInLargeImages) {
    constexpr int width = 3001, height = 2801;
    TestImage image(width, height, width + 7, Edge::End);
    for (int y = 0, i = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, ++i)
            image.row(y)[x] = i == 0 ? 90 : i <= 3000000 ? 100 : i <= 3122363 ? 250 : 130;
    Kvr8u threshold = 77;
    ASSERT_EQ(kvriComputeThreshold_Otsu_8u_C1R(image.roi, image.step, {width, height}, &threshold), kvrStatusOk);
    EXPECT_EQ(threshold, otsu(image, width));
    EXPECT_EQ(threshold, 130);
}

TEST(ThresholdOtsu, TakesTheFirstOfEqualMaxima) {
    Kvr8u threshold = 77, pixels[] = {10, 200, 200, 10}, alike[40];
    ASSERT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, 2, {2, 2}, &threshold), kvrStatusOk);
    EXPECT_EQ(threshold, 10);
    std::memset(alike, 93, sizeof alike);
    ASSERT_EQ(kvriComputeThreshold_Otsu_8u_C1R(alike, 8, {8, 5}, &threshold), kvrStatusOk);
    EXPECT_EQ(threshold, 0);
}

TEST(ThresholdOtsu, ChecksPointersThenSizeThenStep) {
    Kvr8u pixels[12] = {}, threshold = 77;
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(nullptr, 1, {0, 2}, &threshold), kvrStatusNullPointer);
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, 1, {0, 2}, nullptr), kvrStatusNullPointer);
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, -1, {0, 2}, &threshold), kvrStatusBadSize);
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, -1, {2, 0}, &threshold), kvrStatusBadSize);
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, 5, {6, 2}, &threshold), kvrStatusBadStep);
    EXPECT_EQ(threshold, 77);
    EXPECT_EQ(kvriComputeThreshold_Otsu_8u_C1R(pixels, 6, {6, 2}, &threshold), kvrStatusOk);
}

}  // namespace
