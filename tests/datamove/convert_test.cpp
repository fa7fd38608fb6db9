// tests/datamove/convert_test.cpp: Convert and Scale against the literal contract.
#include <gtest/gtest.h>
#include <immintrin.h>

#include <cmath>
#include <optional>

#include "tests/datamove/conversion_contract.h"
#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::conversions;

const std::vector<Case> kCases = [] {
    std::vector<Case> all = kConvertCases;
    all.insert(all.end(), kScaleCases.begin(), kScaleCases.end());
    return all;
}();

constexpr unsigned kFlags = 0x3F, kDenormalsAreZero = 0x40, kMasks = 0x1F80, kRounding = 0x6000, kFlushToZero = 0x8000;

class FloatControl {
    unsigned before_ = _mm_getcsr();

public:
    explicit FloatControl(unsigned value) { _mm_setcsr(value); }
    FloatControl(const FloatControl&) = delete;
    ~FloatControl() { _mm_setcsr(before_); }
};

// Any control word: under one that unmasks exceptions, a function must not raise any.
unsigned randomControl(const Case& c, Random& random) {
    const unsigned any = unsigned(random.bits()) & (kDenormalsAreZero | kMasks | kRounding | kFlushToZero);
    return c.dst == Type::F32 ? any | kMasks : any;
}

// Numbers at ties, around limits and powers of two, special ones and any.
void randomSample(Type t, uint8_t* p, Random& random) {
    if (t == Type::F32) {
        static const float specials[] = {0.f, -0.f, 0.49999997f, 2.5f, -0.7f, INFINITY, NAN, 1e-40f, 0x1p31f, 0x1p32f, 3e38f};
        float f = specials[random.in(0, 10)];
        const int kind = random.in(0, 3);
        if (kind == 1) f = float(random.in(-700, 700)) / 2;
        if (kind == 2) f = std::ldexp(float(random.in(-0x10000, 0x10000)), random.in(-170, 20));
        if (random.chance(50)) f = std::nextafter(f, random.chance(50) ? -INFINITY : INFINITY);
        if (random.chance(50)) f = -f;
        if (kind == 3) {
            const uint32_t bits = uint32_t(random.bits());
            std::memcpy(&f, &bits, 4);
        }
        std::memcpy(p, &f, 4);
    } else {
        int64_t v = int64_t(random.bits());
        if (random.chance(50)) v = (int64_t(1) << random.in(0, 32)) * random.in(-3, 3) + random.in(-2, 2);
        std::memcpy(p, &v, size_t(std::max(1, bytesOf(t))));
    }
}

int randomScale(Random& random) {
    const int extremes[] = {INT32_MIN, INT32_MIN + 1, -200, -149, 128, 129, 150, INT32_MAX};
    return random.chance(30) ? extremes[random.in(0, 7)] : random.in(-40, 40);
}

// One call with its images. A row of bits starts with the byte that holds the first of them.
struct Scene {
    const Case& c;
    Call call;
    TestImage src, dst;

    static Call randomCall(const Case& c, KvriSize size, Random& random) {
        const int modes[] = {0, 1, 2, 3, -1, INT32_MIN};
        Call call;
        call.roi = size;
        call.mode = modes[random.in(0, 5)];
        call.scale = randomScale(random);
        call.bitOffset = random.in(0, 33);
        call.least = c.src == Type::F32 || random.chance(50) ? float(random.in(-1000, 1000)) / 7 : 1e-38f;
        call.most = call.least + float(random.in(1, 3000)) / 11;
        return call;
    }
    static int srcRow(const Case& c, const Call& call, int width) {
        return c.hasBits() ? (call.bitOffset % 8 + width + 7) / 8 : c.srcRow(width);
    }

    Scene(const Case& c, KvriSize size, Random& random)
        : c(c), call(randomCall(c, size, random)),
          src(srcRow(c, call, size.width), size.height, random, !c.checksSteps),
          dst(c.dstRow(size.width), size.height, random, !c.checksSteps) {
        for (TestImage* image : {&src, &dst})
            for (int y = 0; y < size.height; ++y)
                for (int x = 0, bytes = std::max(1, bytesOf(c.src)); x + bytes <= image->rowBytes; x += bytes)
                    randomSample(c.src, image->row(y) + x, random);
        call.src = src.roi - (c.hasBits() ? call.bitOffset / 8 : 0);
        call.srcStep = src.step;
        call.dst = dst.roi;
        call.dstStep = dst.step;
    }

    // Chooses the source's samples.
    template <class F>
    void fill(F sample) {
        for (int y = 0, i = 0; y < call.roi.height; ++y)
            for (int x = 0; x < call.roi.width; ++x, ++i) {
                const auto value = sample(i);
                std::memcpy((c.inPlace ? dst : src).row(y) + x * bytesOf(c.src), &value, size_t(bytesOf(c.src)));
            }
    }

    std::vector<uint8_t> expected(unsigned control) const {
        std::optional<FloatControl> callers;
        if (c.dst == Type::F32) callers.emplace(control);  // others do not depend on it
        const contract::Rules rules(c, call);
        auto want = dst.memory();
        for (int y = 0; y < call.roi.height; ++y)
            for (int x = 0; x < call.roi.width; ++x) {
                for (int k = 0; k < c.colours && !c.hasBits(); ++k) {
                    const int sample = x * c.channels + k;
                    rules.convert((c.inPlace ? dst : src).row(y) + sample * bytesOf(c.src),
                                  want.data() + dst.position(y, sample * bytesOf(c.dst)));
                }
                const int bit = call.bitOffset % 8 + x;
                if (c.hasBits()) want[dst.position(y, x)] = src.row(y)[bit / 8] & 0x80 >> bit % 8 ? 255 : 0;
            }
        return want;
    }
};

// Under valgrind, which has only the rounding, and that not for all instructions, nothing else than the default is tried.
bool takesControl() {
    const FloatControl callers(kMasks | kFlushToZero);
    return (_mm_getcsr() & kFlushToZero) != 0;
}

void expectResult(const Scene& scene, unsigned wanted = kMasks) {
    const Case& c = scene.c;
    const unsigned control = takesControl() ? wanted : kMasks;
    const auto want = scene.expected(control);
    unsigned after;
    KvrStatus status;
    {
        const FloatControl callers(control);
        status = c.function(scene.call, 1);
        after = _mm_getcsr();
    }
    ASSERT_EQ(status, kvrStatusOk) << c.name;
    const unsigned kept = c.dst == Type::F32 ? ~kFlags : ~0u;
    ASSERT_EQ(after & kept, control & kept) << c.name;
    const auto have = scene.dst.memory();
    if (have == want) return;
    size_t at = 0;
    while (have[at] == want[at]) ++at;
    for (int y = 0; y < scene.call.roi.height; ++y)
        for (int x = 0; x < scene.dst.rowBytes; ++x)
            if (scene.dst.position(y, x) == at) {
                const int sample = x / bytesOf(c.dst);
                FAIL() << c.name << ", mode " << scene.call.mode << ", scale " << scene.call.scale << ", control " << std::hex << control
                       << std::dec << ", ROI " << scene.call.roi.width << "x" << scene.call.roi.height << ", row " << y << ", sample "
                       << sample << ": byte is " << int(have[at]) << ", not " << int(want[at]);
            }
    FAIL() << c.name << " writes between rows";
}

TEST(Convert, MatchesTheContract) {
    for (const Case& c : kCases)
        for (unsigned seed = 0; seed < 150; ++seed) {
            Random random(seed);
            Scene scene(c, random.size(), random);
            expectResult(scene, randomControl(c, random));
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Destinations that are streamed: with rows that reach alignment and rows that do not.
TEST(Convert, MatchesTheContractOnLargeImages) {
    for (const Case& c : kCases)
        for (unsigned seed = 0; seed < (c.channels == 1 ? 2 : 0); ++seed) {
            Random random(seed);
            const int height = random.in(20, 40);
            Scene scene(c, {(9 << 16) / height / c.channels / (bytesOf(c.src) + bytesOf(c.dst)) + random.in(2, 90), height}, random);
            expectResult(scene);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Runs a case with samples in every rounding mode and, where it has one, with every scale factor that makes a difference. Above
// `few` in magnitude some of the first samples do.
template <class F>
void expectForEveryScale(const Case& c, int samples, F sample, int few = INT32_MAX) {
    std::vector<int> scales = {0};
    if (c.scales) {
        for (int s = -40; s <= 40; ++s) scales.push_back(s);
        for (int s : {INT32_MIN, -182, -149, -127, -126, 64, 126, 127, 128, 129, INT32_MAX}) scales.push_back(s);
    }
    Random random(1);
    const int rows = (samples + 255) / 256;
    Scene scene(c, {256, rows}, random);
    for (int scale : scales)
        for (int mode = 0; mode < (c.hasMode() ? 3 : 1); ++mode) {
            scene.call.scale = scale;
            scene.call.mode = mode;
            scene.call.roi.height = scale > few || scale < -few ? (rows + 15) / 16 : rows;
            scene.fill([&](int i) { return sample(i, scale); });
            expectResult(scene);
            if (testing::Test::HasFatalFailure()) return;
        }
}

TEST(Convert, EverySampleOfUpTo16Bits) {
    for (const Case& c : kCases) {
        if (c.channels != 1 || c.hasBits() || bytesOf(c.src) > 2) continue;
        expectForEveryScale(c, 1 << 8 * bytesOf(c.src), [](int i, int) { return unsigned(i) * 0x9E35; }, 18);  // in another order
        if (HasFatalFailure()) return;
    }
}

// Integers and halves of them, limits of types, and the numbers beside them, before they are scaled.
TEST(Convert, NumbersAtTiesAndLimits) {
    std::vector<double> numbers;
    for (int i = 0; i <= 600; ++i) numbers.push_back(i * 0.5);
    for (int n = 5; n <= 33; ++n)
        for (double d : {-1.5, -1., -0.5, 0., 0.5}) numbers.push_back(std::ldexp(1., n) + d);
    const int count = int(numbers.size());

    for (const Case& c : kConvertCases) {
        if (c.channels != 1 || bytesOf(c.src) != 4 || !c.hasMode()) continue;
        if (c.src == Type::F32)
            expectForEveryScale(c, 6 * count, [&](int i, int scale) {
                const double scaled = std::ldexp(numbers[size_t(i / 6 % count)], std::clamp(scale, -200, 200));
                const float f = i & 1 ? float(scaled) : -float(scaled);
                return i % 6 / 2 == 0 ? f : std::nextafter(f, i % 6 / 2 == 1 ? INFINITY : -INFINITY);
            });
        else
            expectForEveryScale(c, 6 * count, [&](int i, int scale) {
                const double scaled = std::ldexp(numbers[size_t(i / 6 % count)], std::clamp(scale, -200, 200));
                const int64_t n = int64_t(std::min(scaled, 0x1p40)) + i % 6 / 2 - 1;
                return uint32_t(i & 1 ? n : -n);
            });
        if (HasFatalFailure()) return;
    }
}

TEST(Scale, EveryThresholdOf32s) {
    for (const Case& c : kScaleCases) {
        if (c.src != Type::S32 || c.channels != 1) continue;
        expectForEveryScale(c, 256 * 8, [](int i, int) { return uint32_t(16843009ull * unsigned(i / 8) + 8421505 + 0x80000000 - 4 + unsigned(i % 8)); });
    }
}

TEST(Scale, IntervalsOfAnySize) {
    const float intervals[][2] = {{0, 1}, {-1, 1}, {1e-40f, 2e-40f}, {-3e38f, 3e38f}, {1e30f, 2e30f}, {-0.f, 1e-38f}, {16777216, 16777218}};
    for (const Case& c : kScaleCases)
        for (const auto& interval : intervals) {
            if (!c.hasInterval()) continue;
            Random random(7);
            Scene scene(c, {199, 2}, random);
            scene.call.least = interval[0];
            scene.call.most = interval[1];
            for (unsigned rounding = 0; rounding <= kRounding; rounding += 0x2000) expectResult(scene, kMasks | rounding);
            if (HasFatalFailure()) return;
        }
}

// Bits of the pixel's sources, written out.
TEST(Convert, ReadsBitsFromTheHighestOn) {
    const Kvr8u src[2] = {0xA0, 0x81};
    Kvr8u dst[8];
    const Kvr8u first[8] = {255, 0, 255, 0, 0, 0, 0, 0}, fromThird[8] = {255, 0, 0, 0, 0, 0, 255, 0};
    ASSERT_EQ(kvriConvert_1u8u_C1R(src, 1, 0, dst, 8, {8, 1}), kvrStatusOk);
    EXPECT_EQ(0, std::memcmp(dst, first, 8));
    ASSERT_EQ(kvriConvert_1u8u_C1R(src, 1, 2, dst, 8, {8, 1}), kvrStatusOk);
    EXPECT_EQ(0, std::memcmp(dst, fromThird, 8));
}

TEST(Convert, ReadsOnlyTheBytesThatHoldTheRowsBits) {
    for (int width : {1, 8, 56, 63, 64, 65, 128, 192})
        for (int offset = 0; offset < 17; ++offset) {
            const int bytes = (offset % 8 + width + 7) / 8;
            for (Edge edge : {Edge::Begin, Edge::End}) {
                TestImage src(bytes, 1, bytes, edge);
                std::memset(src.roi, 0xFF, size_t(bytes));
                std::vector<Kvr8u> dst(size_t(width), 0);
                ASSERT_EQ(kvriConvert_1u8u_C1R(src.roi - offset / 8, bytes, offset, dst.data(), width, {width, 1}), kvrStatusOk);
                ASSERT_EQ(dst, std::vector<Kvr8u>(size_t(width), 255));
            }
        }
}

// Every combination of faults gives the status of the one that is checked first, and nothing is written.
TEST(Convert, ChecksInTheOrderOfEachFunction) {
    struct Fault {
        KvrStatus status;
        void (*make)(Call&);
    };
    for (const Case& c : kCases) {
        std::vector<Fault> faults;
        if (c.hasInterval()) faults.push_back({kvrStatusEmptyRange, [](Call& call) { call.most = call.least; }});
        if (!c.inPlace) faults.push_back({kvrStatusNullPointer, [](Call& call) { call.src = nullptr; }});
        faults.push_back({kvrStatusNullPointer, [](Call& call) { call.dst = nullptr; }});
        faults.push_back({kvrStatusBadSize, [](Call& call) { call.roi.width = 0; }});
        faults.push_back({kvrStatusBadSize, [](Call& call) { call.roi.height = -1; }});
        if (c.checksSteps) {
            faults.push_back({kvrStatusBadStep, [](Call& call) { call.srcStep = 0; }});
            faults.push_back({kvrStatusBadStep, [](Call& call) { call.dstStep = -1; }});
        }
        if (c.hasBits()) faults.push_back({kvrStatusBadSize, [](Call& call) { call.bitOffset = -1; }});
        for (unsigned set = 1; set < 1u << faults.size(); ++set) {
            Random random(set);
            Scene scene(c, {5, 3}, random);
            const auto before = scene.dst.memory();
            KvrStatus first = kvrStatusOk;
            for (size_t i = 0; i < faults.size(); ++i)
                if (set >> i & 1) {
                    faults[i].make(scene.call);
                    if (first == kvrStatusOk) first = faults[i].status;
                }
            ASSERT_EQ(c.function(scene.call, 1), first) << c.name << ", faults " << set;
            ASSERT_EQ(scene.dst.memory(), before) << c.name << ", faults " << set;
        }
    }
    const float none[][2] = {{1, 0}, {NAN, 1}, {0, NAN}, {INFINITY, INFINITY}};
    for (const auto& interval : none)
        EXPECT_EQ(kvriScale_32f8u_C1R(nullptr, 0, nullptr, 0, {0, 0}, interval[0], interval[1]), kvrStatusEmptyRange);
}

TEST(Convert, RowsBeyondTwoGigabytes) {
    constexpr int step = 0x7FFFFFF0, height = 4;
    Reserved far(size_t(step) * (height - 1) + 400);
    if (!far.p) GTEST_SKIP() << "no address space";
    std::memset(far.p + size_t(step) * (height - 1), 9, 100);
    std::vector<Kvr32f> rows(100 * height);
    ASSERT_EQ(kvriConvert_8u32f_C1R(far.p, step, rows.data(), 400, {100, height}), kvrStatusOk);
    EXPECT_EQ(rows[399], 9);
    EXPECT_EQ(rows[299], 0);
}

}  // namespace
