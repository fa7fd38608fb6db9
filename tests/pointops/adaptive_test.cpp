// tests/pointops/adaptive_test.cpp: ThresholdAdaptiveBox and ThresholdAdaptiveGauss.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>

#include "kvri.h"
#include "tests/support/memory.h"

namespace {

using namespace test;

// A call with all that it needs. The buffer and the object end at unmapped pages, `slip` bytes off alignment.
struct Scene {
    bool gauss, inPlace;
    KvriSize roi, mask;
    Kvr32f delta = 0, sigma = 0;
    Kvr8u above = 200, notAbove = 7, borderValue = 0;
    KvriBorderType border = kvrBorderRepl;
    std::unique_ptr<TestImage> whole, dst, buffer, spec;  // whole: the ROI and the rows and columns around it in memory
    Kvr8u* src = nullptr;
    int reach, specBytes = 1;

    Scene(bool gauss, bool inPlace, KvriSize roi, int side, Random& random, KvriBorderType border)
        : gauss(gauss), inPlace(inPlace), roi(roi), mask{side, side}, border(border), reach(side / 2) {
        const int left = has(kvrBorderInMemLeft) ? reach : 0, right = has(kvrBorderInMemRight) ? reach : 0;
        const int top = has(kvrBorderInMemTop) ? reach : 0, bottom = has(kvrBorderInMemBottom) ? reach : 0;
        whole = std::make_unique<TestImage>(left + roi.width + right, top + roi.height + bottom, random);
        if (random.chance(50)) soften(random);
        src = whole->row(top) + left;
        dst = std::make_unique<TestImage>(roi.width, roi.height, random);
    }

    bool has(int side) const { return (border & 15) == kvrBorderInMem || (border & side); }

    // Few grey levels, so that pixels often equal their mean.
    void soften(Random& random) {
        const int grey = random.in(0, 253), levels = random.in(1, 2);
        for (int y = 0; y < whole->rows; ++y)
            for (int x = 0; x < whole->rowBytes; ++x) whole->row(y)[x] = Kvr8u(grey + whole->row(y)[x] % levels);
    }

    KvrStatus prepare(Random& random) {
        int bytes = 0;
        const KvrStatus e = gauss ? kvriThresholdAdaptiveGaussGetBufferSize(roi, mask, kvrDataType8u, 1, &specBytes, &bytes)
                                  : kvriThresholdAdaptiveBoxGetBufferSize(roi, mask, kvrDataType8u, 1, &bytes);
        if (e != kvrStatusOk) return e;
        const int slip = random.in(0, 70);
        buffer = std::make_unique<TestImage>(bytes, 1, bytes, Edge::End);
        spec = std::make_unique<TestImage>(specBytes + slip, 1, specBytes + slip, Edge::Begin);
        return gauss ? kvriThresholdAdaptiveGaussInit(roi, mask, kvrDataType8u, 1, sigma, specObject()) : kvrStatusOk;
    }
    KvriThresholdAdaptiveSpec* specObject() const { return reinterpret_cast<KvriThresholdAdaptiveSpec*>(spec->roi + spec->rowBytes - specBytes); }

    KvrStatus call() {
        if (gauss && inPlace)
            return kvriThresholdAdaptiveGauss_8u_C1IR(src, whole->step, roi, mask, delta, above, notAbove, border, borderValue,
                                                      specObject(), buffer->roi);
        if (gauss)
            return kvriThresholdAdaptiveGauss_8u_C1R(src, whole->step, dst->roi, dst->step, roi, mask, delta, above, notAbove, border,
                                                     borderValue, specObject(), buffer->roi);
        if (inPlace)
            return kvriThresholdAdaptiveBox_8u_C1IR(src, whole->step, roi, mask, delta, above, notAbove, border, borderValue, buffer->roi);
        return kvriThresholdAdaptiveBox_8u_C1R(src, whole->step, dst->roi, dst->step, roi, mask, delta, above, notAbove, border,
                                               borderValue, buffer->roi);
    }

    int pixel(int x, int y) const {
        const bool outX = x < 0 ? !has(kvrBorderInMemLeft) : x >= roi.width && !has(kvrBorderInMemRight);
        const bool outY = y < 0 ? !has(kvrBorderInMemTop) : y >= roi.height && !has(kvrBorderInMemBottom);
        if ((border & 15) == kvrBorderConst && (outX || outY)) return borderValue;
        if (outX) x = x < 0 ? 0 : roi.width - 1;
        if (outY) y = y < 0 ? 0 : roi.height - 1;
        return src[ptrdiff_t(y) * whole->step + x];
    }

    std::vector<double> weights() const {
        const double s = sigma > 0 ? double(sigma) : 0.3 * ((mask.width - 1) * 0.5 - 1) + 0.8;
        std::vector<double> w;
        double sum = 0;
        for (int i = 0; i < mask.width; ++i) sum += w.emplace_back(std::exp(-double(i - reach) * (i - reach) / (2 * s * s)));
        for (double& v : w) v /= sum;
        return w;
    }

    // The result; 256 where rounding may decide.
    std::vector<int> expected() const {
        std::vector<int> want;
        const auto w = weights();
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                double mean = 0;
                int64_t sum = 0;
                for (int j = -reach; j <= reach; ++j)
                    for (int i = -reach; i <= reach; ++i) {
                        const int p = pixel(x + i, y + j);
                        sum += p;
                        mean += w[size_t(i + reach)] * w[size_t(j + reach)] * p;
                    }
                const double area = double(mask.width) * mask.width, p = pixel(x, y);
                bool isAbove = p * area > double(sum) - double(delta) * area;
                bool close = false;
                if (gauss) {
                    isAbove = p > mean - double(delta);
                    close = std::abs(p - (mean - double(delta))) < 1e-7;
                }
                if (delta > 255 || delta <= -255) isAbove = delta > 0;
                want.push_back(close ? 256 : isAbove ? above : notAbove);
            }
        return want;
    }

    void expectResult() {
        const auto want = expected();
        auto memory = (inPlace ? whole : dst)->memory();
        ASSERT_EQ(call(), kvrStatusOk);
        const auto have = (inPlace ? whole : dst)->memory();
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const size_t at = inPlace ? whole->position(y, x) + size_t(src - whole->roi) : dst->position(y, x);
                const int wanted = want[size_t(y * roi.width + x)];
                if (wanted == 256) EXPECT_TRUE(have[at] == above || have[at] == notAbove);
                else
                    ASSERT_EQ(int(have[at]), wanted) << "pixel " << x << ", " << y << " of " << roi.width << "x" << roi.height << ", mask "
                                                << mask.width << ", delta " << delta << ", border " << border;
                memory[at] = have[at];
            }
        ASSERT_EQ(have, memory) << "bytes beside the ROI";
    }
};

KvriBorderType randomBorder(Random& random) {
    const int rules[] = {kvrBorderConst, kvrBorderRepl, kvrBorderInMem};
    return rules[random.in(0, 2)] | (random.chance(40) ? random.in(0, 15) << 4 : 0);
}

float randomDelta(Random& random) {
    const float specials[] = {0.f, -0.f, 255.f, std::nextafter(255.f, 300.f), -255.f, std::nextafter(-255.f, 0.f), 1e-30f, -1e-30f, 1e-7f, NAN, 0.5f, 1.f / 9};
    return random.chance(50) ? specials[random.in(0, 11)] : float(random.in(-40, 40)) / float(random.in(1, 8));
}

void expectRandomScenes(bool gauss) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        Random random(seed);
        const KvriSize roi = {random.chance(70) ? random.in(1, 80) : random.in(1, 700), random.in(1, 12)};
        const int side = random.chance(80) ? 2 * random.in(0, 5) + 1 : 2 * random.in(6, 14) + 1;
        Scene scene(gauss, random.chance(50), roi, side, random, randomBorder(random));
        scene.delta = randomDelta(random);
        scene.sigma = random.chance(30) ? 1e-30f : float(random.in(-2, 60)) / 10;
        scene.borderValue = Kvr8u(random.bits());
        ASSERT_EQ(scene.prepare(random), kvrStatusOk);
        scene.expectResult();
        if (testing::Test::HasFailure()) FAIL() << "seed " << seed;
    }
}

TEST(Adaptive, BoxComparesWithTheMean) { expectRandomScenes(false); }
TEST(Adaptive, GaussComparesWithTheWeightedMean) { expectRandomScenes(true); }

// A flat image equals its mean exactly, however the weights were rounded.
TEST(Adaptive, GaussOfEqualPixelsIsTheirValue) {
    Random random(1);
    for (int side : {3, 5, 7, 15, 31, 77})
        for (int grey = 0; grey < 256; grey += 15) {
            Scene scene(true, false, {20, 3}, side, random, kvrBorderRepl);
            for (int y = 0; y < 3; ++y) std::memset(scene.whole->row(y), grey, 20);
            ASSERT_EQ(scene.prepare(random), kvrStatusOk);
            ASSERT_EQ(scene.call(), kvrStatusOk);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < 20; ++x) ASSERT_EQ(scene.dst->row(y)[x], scene.notAbove) << "side " << side << ", grey " << grey;
        }
}

// Sides at which sums outgrow 16 and 32 bits: a white image but for its first pixel, under a white border.
TEST(Adaptive, LargeMasksDoNotOverflow) {
    for (int side : {257, 259, 2901, 2903, 4001})
        for (int border : {kvrBorderConst, kvrBorderRepl}) {
            Random random{unsigned(side)};
            Scene scene(false, false, {19, 2}, side, random, border);
            for (int y = 0; y < 2; ++y) std::memset(scene.whole->row(y), 255, 19);
            scene.src[3] = 254;
            scene.borderValue = 255;
            ASSERT_EQ(scene.prepare(random), kvrStatusOk);
            ASSERT_EQ(scene.call(), kvrStatusOk);
            for (int y = 0; y < 2; ++y)
                for (int x = 0; x < 19; ++x)
                    ASSERT_EQ(scene.dst->row(y)[x], y == 0 && x == 3 ? scene.notAbove : scene.above) << side << ", pixel " << x << ", " << y;
        }
}

TEST(Adaptive, BufferSizes) {
    int bytes = 0, specBytes = 0;
    ASSERT_EQ(kvriThresholdAdaptiveBoxGetBufferSize({64, 48}, {5, 5}, 1, 1, &bytes), kvrStatusOk);
    EXPECT_EQ(bytes, 352 + 256 + 192 + 128 * 5 + 288 * 6 + 64);
    EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize({64, 48}, {65537, 65537}, 1, 1, &bytes), kvrStatusSizeOverflow);
    EXPECT_EQ(kvriThresholdAdaptiveGaussGetBufferSize({INT32_MAX, 1}, {INT32_MAX, INT32_MAX}, 1, 1, &specBytes, &bytes), kvrStatusSizeOverflow);
    const KvriSize good{9, 9}, bad{9, 0}, mask{3, 3};
    for (const KvriSize wrong : {KvriSize{3, 5}, KvriSize{4, 4}, KvriSize{0, 0}, KvriSize{-3, -3}}) {
        EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize(good, wrong, 2, 3, &bytes), kvrStatusBadMaskSize);
        EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize(bad, wrong, 2, 3, &bytes), kvrStatusBadSize);
        EXPECT_EQ(kvriThresholdAdaptiveGaussGetBufferSize(good, wrong, 2, 3, &specBytes, &bytes), kvrStatusBadMaskSize);
    }
    EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize(bad, mask, 1, 1, nullptr), kvrStatusNullPointer);
    EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize(good, mask, kvrDataType16u, 3, &bytes), kvrStatusBadDataType);
    EXPECT_EQ(kvriThresholdAdaptiveBoxGetBufferSize(good, mask, 1, 3, &bytes), kvrStatusBadNumChannels);
    EXPECT_EQ(kvriThresholdAdaptiveGaussInit(good, mask, 1, 3, 1, nullptr), kvrStatusNullPointer);
}

TEST(Adaptive, ReportsTheFirstFault) {
    struct Arguments {
        Kvr8u *src, *dst, *buffer;
        KvriThresholdAdaptiveSpec* spec;
        KvriSize roi{4, 4}, mask{3, 3};
        KvriBorderType border = kvrBorderRepl | kvrBorderInMemTop;
    };
    struct Fault {
        KvrStatus status;
        void (*make)(Arguments&);
    };
    const Fault faults[] = {
        {kvrStatusNullPointer, [](Arguments& a) { a.dst = nullptr; }},
        {kvrStatusNullPointer, [](Arguments& a) { a.buffer = nullptr; }},
        {kvrStatusBadSize, [](Arguments& a) { a.roi.width = -1; }},
        {kvrStatusBadMaskSize, [](Arguments& a) { a.mask.height = 5; }},
        {kvrStatusBadMaskSize, [](Arguments& a) { a.mask = {2, 2}; }},
        {kvrStatusBorderNotSupported, [](Arguments& a) { a.border = 3; }},
    };
    for (float delta : {0.f, 300.f})
        for (unsigned set = 1; set < 1u << std::size(faults); ++set) {
            alignas(64) Kvr8u src[16] = {}, dst[16] = {}, buffer[4096] = {}, spec[512] = {};
            Arguments a{src, dst, buffer, reinterpret_cast<KvriThresholdAdaptiveSpec*>(spec)};
            KvrStatus first = kvrStatusOk;
            for (size_t i = 0; i < std::size(faults); ++i)
                if (set >> i & 1) {
                    faults[i].make(a);
                    if (first == kvrStatusOk) first = faults[i].status;
                }
            ASSERT_EQ(kvriThresholdAdaptiveBox_8u_C1R(a.src, 4, a.dst, 4, a.roi, a.mask, delta, 1, 2, a.border, 0, a.buffer), first);
            ASSERT_EQ(kvriThresholdAdaptiveBox_8u_C1IR(a.dst, 4, a.roi, a.mask, delta, 1, 2, a.border, 0, a.buffer), first);
            ASSERT_EQ(kvriThresholdAdaptiveGauss_8u_C1R(a.src, 4, a.dst, 4, a.roi, a.mask, delta, 1, 2, a.border, 0, a.spec, a.buffer), first);
            ASSERT_EQ(kvriThresholdAdaptiveGauss_8u_C1IR(a.dst, 4, a.roi, a.mask, delta, 1, 2, a.border, 0, a.spec, a.buffer), first);
            ASSERT_EQ(dst[0], 0);
        }
    alignas(64) Kvr8u image[16] = {}, buffer[4096] = {}, spec[512] = {};
    auto* s = reinterpret_cast<KvriThresholdAdaptiveSpec*>(spec);
    const auto apply = [&](KvriSize mask) { return kvriThresholdAdaptiveGauss_8u_C1IR(image, 4, {4, 4}, mask, 0, 1, 2, 1, 0, s, buffer); };
    EXPECT_EQ(apply({3, 3}), kvrStatusBadContext);
    ASSERT_EQ(kvriThresholdAdaptiveGaussInit({4, 4}, {3, 3}, 1, 1, 0, s), kvrStatusOk);
    EXPECT_EQ(apply({5, 5}), kvrStatusBadContext);
    EXPECT_EQ(apply({3, 3}), kvrStatusOk);
    EXPECT_EQ(kvriThresholdAdaptiveGauss_8u_C1IR(image, 4, {4, 4}, {3, 3}, 0, 1, 2, 1, 0, nullptr, buffer), kvrStatusNullPointer);
}

}  // namespace
