// tests/datamove/border_test.cpp: CopyConstBorder, CopyReplicateBorder, CopyWrapBorder against the literal contract.
#include <gtest/gtest.h>

#include "tests/datamove/border.h"
#include "tests/support/memory.h"

namespace {

using namespace test;
using namespace test::border;

struct Margins {
    int left, top, right, bottom;
};

// None, a few pixels, around a vector, several vectors.
int randomMargin(Random& random, int most) {
    const int kind = random.in(0, 3);
    return kind == 0 ? 0 : random.in(0, std::min(most, kind == 1 ? 4 : kind == 2 ? 40 : 150));
}

Margins randomMargins(Random& random) {
    return {randomMargin(random, 150), randomMargin(random, 7), randomMargin(random, 150), randomMargin(random, 7)};
}

class Scene {
    const Case& case_;
    TestImage src_, dst_;
    std::unique_ptr<GuardedPages> valuePages_;

public:
    Call call;

    // shared: C1R of the periodic borders with pSrc = pDst.
    Scene(const Case& c, KvriSize size, const Margins& m, Random& random, bool shared = false)
        : case_(c), src_(size.width * c.pixelBytes(), size.height, random, false),
          dst_((size.width + m.left + m.right) * c.pixelBytes(), size.height + m.top + m.bottom, random, false) {
        const size_t bytes = size_t(c.sampleBytes * c.colours);
        valuePages_ = GuardedPages::get(bytes);  // three values must not be read as four
        uint8_t* value = valuePages_->end() - bytes;
        random.fill(value, bytes);
        call = {src_.roi, src_.step, size, dst_.roi, dst_.step, {dst_.rowBytes / c.pixelBytes(), dst_.rows}, m.top, m.left, value};
        if (!c.inPlace && !shared) return;
        call.src = call.dst = dst_.row(m.top) + m.left * c.pixelBytes();
        call.srcStep = dst_.step;
    }
    Scene(const Scene&) = delete;
    ~Scene() { GuardedPages::put(std::move(valuePages_)); }

    std::vector<uint8_t> memory() const { return dst_.memory(); }

    std::vector<uint8_t> expected() const {
        auto want = memory();
        const int s = case_.sampleBytes, B = case_.pixelBytes();
        for (int y = 0; y < call.dstRoi.height; ++y)
            for (int x = 0; x < call.dstRoi.width; ++x) {
                const uint8_t* from = pixel(x - call.left, y - call.top);
                std::memcpy(want.data() + dst_.position(y, x * B), from, size_t(s * case_.colours));
            }
        return want;
    }

private:
    static int mod(int n, int period) { return (n % period + period) % period; }

    const uint8_t* pixel(int x, int y) const {
        const int w = call.srcRoi.width, h = call.srcRoi.height;
        const bool inside = x >= 0 && x < w && y >= 0 && y < h;
        if (!inside && case_.kind == Kind::Const) return static_cast<const uint8_t*>(call.value);
        if (case_.kind == Kind::Wrap) x = mod(x, w), y = mod(y, h);
        else x = std::clamp(x, 0, w - 1), y = std::clamp(y, 0, h - 1);
        return static_cast<const uint8_t*>(call.src) + ptrdiff_t(y) * call.srcStep + x * case_.pixelBytes();
    }
};

void expectBorder(const Case& c, KvriSize size, const Margins& m, Random& random, bool shared = false) {
    Scene scene(c, size, m, random, shared);
    const auto want = scene.expected();
    ASSERT_EQ(c.function(scene.call, 1), kvrStatusOk) << c.name;
    const auto have = scene.memory();
    if (have == want) return;
    size_t at = 0;
    while (have[at] == want[at]) ++at;
    FAIL() << c.name << ": byte " << at << " of " << want.size() << " differs, source " << size.width << "x" << size.height
           << ", margins " << m.left << " " << m.top << " " << m.right << " " << m.bottom << ", step " << scene.call.dstStep;
}

bool sharesImages(const Case& c, Random& random) { return c.kind == Kind::Wrap && random.chance(30); }

TEST(Border, MatchesTheContract) {
    for (const Case& c : kBorders)
        for (unsigned seed = 0; seed < 150; ++seed) {
            Random random(seed);
            const KvriSize size = random.size();
            expectBorder(c, size, randomMargins(random), random, sharesImages(c, random));
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Every width of margin and middle up to two vectors and a pixel, also sources of one pixel.
TEST(Border, EveryNarrowWidth) {
    for (const Case& c : kBorders)
        for (int pixels = 0; pixels * c.pixelBytes() <= 130; ++pixels) {
            Random random{unsigned(pixels)};
            const int other = random.in(0, 9);
            expectBorder(c, {std::max(pixels, 1), 2}, {other, 1, pixels, 0}, random);
            expectBorder(c, {other + 1, 1}, {pixels, 0, other, 2}, random);
            if (HasFatalFailure()) return;
        }
}

// A margin many times the source, in both directions: periods repeat.
TEST(Border, MarginsWiderThanTheSource) {
    for (const Case& c : kBorders)
        for (unsigned seed = 0; seed < 12; ++seed) {
            Random random(seed);
            const KvriSize size = {random.in(1, 5), random.in(1, 5)};
            const Margins m = {random.in(0, 60), random.in(0, 40), random.in(0, 60), random.in(0, 40)};
            expectBorder(c, size, m, random, sharesImages(c, random));
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// The source fills a page that cannot be written.
TEST(Border, InPlaceWritesTheMarginOnly) {
    const int page = int(sysconf(_SC_PAGESIZE));
    GuardedPages pages(size_t(3 * page));
    uint8_t* src = pages.begin() + page;
    Random(1).fill(src, size_t(page));
    for (const Case& c : kBorders) {
        const int B = c.pixelBytes(), width = page / B;
        if (!c.inPlace || page % B != 0) continue;
        ASSERT_EQ(mprotect(src, size_t(page), PROT_READ), 0);
        const Call call{src, 3 * page, {width, 1}, nullptr, 0, {width + 12, 1}, 0, 5, nullptr};
        EXPECT_EQ(c.function(call, 1), kvrStatusOk) << c.name;
        const uint8_t *left = c.kind == Kind::Wrap ? src + page - B : src, *right = c.kind == Kind::Wrap ? src : src + page - B;
        const size_t colours = size_t(c.sampleBytes * c.colours);
        EXPECT_EQ(0, std::memcmp(src - B, left, colours)) << c.name;
        EXPECT_EQ(0, std::memcmp(src + page, right, colours)) << c.name;
    }
    ASSERT_EQ(mprotect(src, size_t(page), PROT_READ | PROT_WRITE), 0);
}

// Rows enough that they are worked on in parts, and images that exceed the cache of the stand-in.
TEST(Border, LargeImages) {
    for (const Case& c : kBorders)
        for (unsigned seed = 0; seed < 3; ++seed) {
            Random random(seed);
            const int width = seed == 0 ? random.in(1, 20) : random.in(1030, 1300) / c.pixelBytes() + random.in(0, 40);
            const int height = 0x90000 / (seed == 0 ? 8 : 1) / (width * c.pixelBytes());
            expectBorder(c, {width, height}, randomMargins(random), random);
            if (HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

// Faults in the order in which they are checked: every combination gives the status of the first and writes nothing.
struct Fault {
    KvrStatus status;
    std::function<void(Call&)> make;
};

std::vector<Fault> faultsOf(const Case& c) {
    std::vector<Fault> faults = {{kvrStatusNullPointer, [](Call& call) { call.src = nullptr; }}};
    if (!c.inPlace) faults.push_back({kvrStatusNullPointer, [](Call& call) { call.dst = nullptr; }});
    if (c.hasArray()) faults.push_back({kvrStatusNullPointer, [](Call& call) { call.value = nullptr; }});
    faults.push_back({kvrStatusBadStep, [](Call& call) { call.srcStep = 0; }});
    if (!c.inPlace) faults.push_back({kvrStatusBadStep, [](Call& call) { call.dstStep = -7; }});
    const auto size = [&](auto make) { faults.push_back({kvrStatusBadSize, make}); };
    size([](Call& call) { call.srcRoi.width = 0; });
    size([](Call& call) { call.top = -1; });
    return faults;
}

TEST(Border, ChecksPointersThenStepsThenSizes) {
    const std::function<void(Call&)> badSizes[] = {
        [](Call& call) { call.srcRoi.height = 0; },
        [](Call& call) { call.dstRoi = {0, -1}; },
        [](Call& call) { call.left = -1; },
        [](Call& call) { call.left = INT32_MAX; },  // and the source's width: overflows
        [](Call& call) { call.top = INT32_MAX; },
        [](Call& call) { call.top = call.left = INT32_MIN; },
        [](Call& call) { call.srcRoi.width = call.dstRoi.width - call.left + 1; },
        [](Call& call) { call.srcRoi.height = call.dstRoi.height - call.top + 1; },
        [](Call& call) { call.srcRoi = {INT32_MAX, INT32_MAX}; },
    };
    Random random(1);
    for (const Case& c : kBorders) {
        const auto expectStatus = [&](KvrStatus status, auto spoil) {
            Scene scene(c, {5, 3}, {2, 1, 3, 2}, random);
            const auto before = scene.memory();
            spoil(scene.call);
            ASSERT_EQ(c.function(scene.call, 1), status) << c.name;
            ASSERT_EQ(scene.memory(), before) << c.name;
        };
        const auto faults = faultsOf(c);
        for (unsigned set = 1; set < 1u << faults.size(); ++set) {
            KvrStatus first = kvrStatusOk;
            for (size_t i = faults.size(); i-- > 0;)
                if (set >> i & 1) first = faults[i].status;
            expectStatus(first, [&](Call& call) {
                for (size_t i = 0; i < faults.size(); ++i)
                    if (set >> i & 1) faults[i].make(call);
            });
            if (HasFatalFailure()) FAIL() << "faults " << set;
        }
        for (const auto& make : badSizes) {
            expectStatus(kvrStatusBadSize, make);
            if (HasFatalFailure()) FAIL() << "size " << &make - badSizes;
        }
    }
}

}  // namespace
