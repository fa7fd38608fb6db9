// tests/geometry/resize_test.cpp: pixels of Resize.
#include <thread>

#include "tests/geometry/resize_scene.h"

namespace {

using namespace test;
using namespace test::resize;

constexpr KvriBorderType kBorders[] = {kvrBorderRepl, kvrBorderRepl, kvrBorderInMem, kvrBorderRepl | 0xF0,
                                       kvrBorderRepl | kvrBorderInMemLeft | kvrBorderInMemBottom,
                                       kvrBorderRepl | kvrBorderInMemTop | kvrBorderInMemRight};

Scene randomScene(const Case& c, Random& random, int width, int height) {
    const Choice o = randomChoice(random);
    const auto x = randomLengths(c, o, random, width), y = randomLengths(c, o, random, height);
    return Scene(c, o, {x.first, y.first}, {x.second, y.second}, kBorders[random.in(0, 5)], random);
}

std::string describe(const Scene& s) {
    return s.c.name + " kernel " + std::to_string(s.c.kernel(s.o)) + " lobes " + std::to_string(s.o.lobes) + " b " + std::to_string(s.o.b) +
           " from " + std::to_string(s.src.width) + "x" + std::to_string(s.src.height) + " to " + std::to_string(s.dst.width) + "x" +
           std::to_string(s.dst.height) + " border " + std::to_string(s.border);
}

std::vector<uint8_t> expected(const Scene& s, const TestImage& like, bool rowsFirst) {
    auto want = like.memory();
    const contract::Plane plane = s.plane();
    const contract::Axis x(s.c, s.o, s.src.width, s.dst.width), y(s.c, s.o, s.src.height, s.dst.height);
    for (int j = 0; j < s.dst.height; ++j)
        for (int i = 0; i < s.dst.width; ++i)
            contract::pixel(plane, x, y, i, j, rowsFirst, want.data() + like.position(j, ptrdiff_t(i) * s.c.pixelBytes()));
    return want;
}

std::string firstDifference(const Scene& s, const TestImage& have, const std::vector<uint8_t>& want) {
    const auto memory = have.memory();
    for (int y = 0; y < s.dst.height; ++y)
        for (int x = 0; x < s.dst.width * s.c.pixelBytes(); ++x)
            if (memory[have.position(y, x)] != want[have.position(y, x)])
                return "byte " + std::to_string(x) + " of row " + std::to_string(y) + ": " + std::to_string(memory[have.position(y, x)]) +
                       ", not " + std::to_string(want[have.position(y, x)]);
    return "outside of the destination";
}

// The sums are those of one of the two orders, in every bit.
TEST(Resize, MatchesContract) {
    for (const Case& c : cases())
        for (int seed = 0; seed < 14; ++seed) {
            Random random(uint64_t(seed) * 7919 + 1);
            const Scene s = randomScene(c, random, seed % 8 == 0 ? 300 : 60, 12);
            const TestImage have(c.pixelBytes() * s.dst.width, s.dst.height, random);
            const auto first = expected(s, have, true), second = expected(s, have, false);
            ASSERT_EQ(s.run({0, 0}, s.dst, have, random), kvrStatusOk) << describe(s);
            const auto memory = have.memory();
            ASSERT_TRUE(memory == first || memory == second) << describe(s) << ", seed " << seed << "\n" << firstDifference(s, have, first)
                                                             << "\n" << firstDifference(s, have, second);
        }
}

// All pixels, and those of some tile.
void expectContractAndTile(const Scene& s, Random& random) {
    const TestImage whole(s.c.pixelBytes() * s.dst.width, s.dst.height, random), tile(whole.rowBytes, whole.rows, random);
    const auto first = expected(s, whole, true), second = expected(s, whole, false);
    ASSERT_EQ(s.run({0, 0}, s.dst, whole, random), kvrStatusOk) << describe(s);
    const auto memory = whole.memory();
    ASSERT_TRUE(memory == first || memory == second) << describe(s) << "\n" << firstDifference(s, whole, first);

    const KvriPoint at{random.in(0, s.dst.width - 1), random.in(0, s.dst.height - 1)};
    const KvriSize size{random.in(1, s.dst.width - at.x), random.in(1, s.dst.height - at.y)};
    const size_t bytes = size_t(size.width) * s.c.pixelBytes();
    ASSERT_EQ(s.run(at, size, tile, random), kvrStatusOk) << describe(s);
    for (int row = at.y; row < at.y + size.height; ++row)
        ASSERT_EQ(std::memcmp(tile.row(row) + at.x * s.c.pixelBytes(), whole.row(row) + at.x * s.c.pixelBytes(), bytes), 0)
            << describe(s) << ", tile at " << at.x << ", " << at.y << ", " << size.width << "x" << size.height;
}

// Half and double size have ways of their own, by whole vectors. Single precision with numbers that overflow and vanish.
TEST(Resize, FactorsOfTwo) {
    constexpr KvriSize kFactors[] = {{-1, -1}, {1, 1}, {-1, 1}, {1, -1}};
    for (const Case& c : cases()) {
        if (c.method != kvrInterpNearest && c.method != kvrInterpLinear && c.method != kvrInterpSuper) continue;
        Random random(17);
        for (int width = 1; width <= 100; width += width < 72 ? 1 : 7)
            for (const KvriSize f : kFactors) {
                if (c.method == kvrInterpSuper && (f.width > 0 || f.height > 0)) continue;
                const auto lengths = [](int n, int factor) { return factor > 0 ? std::pair{n + 1, 2 * n + 2} : std::pair{2 * n, n}; };
                const auto x = lengths(width, f.width), y = lengths(random.in(1, 4), f.height);
                const Scene s(c, {}, {x.first, y.first}, {x.second, y.second}, kBorders[random.in(0, 5)], random);
                if (c.type == Type::f32)
                    for (int i = 0; i < s.src.width * s.src.height / 4; ++i) {
                        const double extremes[] = {3e38, -3e38, 1e-45, 3e-45, -1.2e-38, 5e-39, 0.3};
                        contract::store(c.type, extremes[random.in(0, 6)], s.pixel(random.in(0, s.src.width - 1), random.in(0, s.src.height - 1)));
                    }
                expectContractAndTile(s, random);
            }
    }
}

// The same by more weights: of groups of rows and their rests, strips of columns and theirs.
TEST(Resize, OctavesByWeights) {
    constexpr KvriSize kSmaller[] = {{7, 9}, {33, 8}, {130, 25}, {300, 17}, {1050, 7}};
    for (const Case& c : cases()) {
        if (!c.antialiasing() && c.method != kvrInterpCubic && c.method != kvrInterpLanczos) continue;
        Random random(23);
        for (const KvriSize small : kSmaller)
            for (const bool up : {false, true}) {
                const KvriSize large{2 * small.width, 2 * small.height};
                const Scene s(c, randomChoice(random), up ? small : large, up ? large : small, kBorders[random.in(0, 5)], random);
                expectContractAndTile(s, random);
            }
    }
}

TEST(Resize, TilesGiveThePixelsOfTheWhole) {
    for (const Case& c : cases())
        for (int seed = 0; seed < 15; ++seed) {
            Random random(uint64_t(seed) + 1000);
            const Scene s = randomScene(c, random, 300, 60);
            const TestImage whole(c.pixelBytes() * s.dst.width, s.dst.height, random.in(1, 9) + c.pixelBytes() * s.dst.width, Edge::End);
            const TestImage tiled(whole.rowBytes, whole.rows, whole.step, Edge::Begin);
            std::memset(whole.roi, 0, whole.memory().size());
            std::memset(tiled.roi, 0, tiled.memory().size());
            ASSERT_EQ(s.run({0, 0}, s.dst, whole, random), kvrStatusOk);
            for (int y = 0, h; y < s.dst.height; y += h) {
                h = random.in(1, s.dst.height);
                for (int x = 0, w; x < s.dst.width; x += w) {
                    w = random.in(1, s.dst.width);
                    ASSERT_EQ(s.run({x, y}, {w, h}, tiled, random), kvrStatusOk) << describe(s);
                }
            }
            ASSERT_TRUE(whole.memory() == tiled.memory()) << describe(s) << ", seed " << seed << "\n" << firstDifference(s, tiled, whole.memory());
        }
}

// A tile needs the region that it is told and the border around that, as far as the image goes. Super needs more: its region
// ends with the first pixel of the last position.
TEST(Resize, ReadsTheRegionOfATileAndItsBorder) {
    for (const Case& c : cases()) {
        if (c.method == kvrInterpSuper) continue;
        for (int seed = 0; seed < (c.method == kvrInterpNearest ? 120 : 15); ++seed) {
            Random random(uint64_t(seed) + 3000);
            Choice o = randomChoice(random);
            const auto w = randomLengths(c, o, random, 80), h = randomLengths(c, o, random, 40);
            const Scene s(c, o, {w.first, h.first}, {w.second, h.second}, kvrBorderRepl, random);
            const TestImage whole(c.pixelBytes() * s.dst.width, s.dst.height, random);
            ASSERT_EQ(s.run({0, 0}, s.dst, whole, random), kvrStatusOk);

            const KvriPoint at{random.in(0, s.dst.width - 1), random.in(0, s.dst.height - 1)};
            const KvriSize size{random.in(1, s.dst.width - at.x), random.in(1, s.dst.height - at.y)};
            const KvriBorderSize border = s.object.border();
            KvriPoint from{};
            KvriSize region{};
            ASSERT_EQ(s.object.q.srcRoi(s.object.spec(), at, size, &from, &region), kvrStatusOk);
            const int left = std::max(from.x - border.left, 0), right = std::min(from.x + region.width + border.right, s.src.width);
            const int top = std::max(from.y - border.top, 0), bottom = std::min(from.y + region.height + border.bottom, s.src.height);
            const TestImage window(c.pixelBytes() * (right - left), bottom - top, random);
            for (int y = top; y < bottom; ++y) std::memcpy(window.row(y - top), s.pixel(left, y), size_t(window.rowBytes));
            const TestImage tile(c.pixelBytes() * size.width, size.height, random);
            std::vector<uint8_t> buffer(size_t(s.object.bufferBytes(size)));
            const Call call{window.row(from.y - top) + (from.x - left) * c.pixelBytes(), window.step, tile.roi, tile.step, at, size};
            ASSERT_EQ(c.apply(call, s.object.spec(), buffer.data()), kvrStatusOk);
            for (int y = 0; y < size.height; ++y)
                ASSERT_EQ(std::memcmp(tile.row(y), whole.row(at.y + y) + at.x * c.pixelBytes(), size_t(tile.rowBytes)), 0) << describe(s) << ", seed " << seed;
        }
    }
}

// A destination that exceeds the cache is streamed: rows of whole vectors, of whole samples and others, against tiles that
// are not.
TEST(Resize, LargeGivesThePixelsOfTiles) {
    for (const Case& c : cases()) {
        if (c.antialiasing() || c.method == kvrInterpLanczos || (c.method == kvrInterpCubic && c.type != Type::u8)) continue;
        constexpr KvriSize kRatios[] = {{2, 1}, {1, 2}, {10, 7}, {5, 7}};
        for (const KvriSize& ratio : kRatios)
            for (const int padding : {0, 20, 21}) {
                if (c.method == kvrInterpSuper && ratio.width < ratio.height) continue;
                Random random(uint64_t(padding) + 3);
                const KvriSize dst{640 + padding, 0x80000 / (640 * c.pixelBytes()) + 2};
                const KvriSize src{std::max(2, dst.width * ratio.width / ratio.height), std::max(2, dst.height * ratio.width / ratio.height)};
                const Scene s(c, {}, src, {dst.width, dst.height}, kvrBorderRepl, random);
                const int rowBytes = c.pixelBytes() * dst.width;
                const TestImage whole(rowBytes, dst.height, rowBytes + padding, Edge::Begin), tiled(rowBytes, dst.height, rowBytes + padding, Edge::Begin);
                ASSERT_EQ(s.run({0, 0}, dst, whole, random), kvrStatusOk);
                for (int y = 0; y < dst.height; y += 9) ASSERT_EQ(s.run({0, y}, {dst.width, 9}, tiled, random), kvrStatusOk);
                for (int y = 0; y < dst.height; ++y) ASSERT_EQ(std::memcmp(whole.row(y), tiled.row(y), size_t(rowBytes)), 0) << describe(s);
            }
    }
}

// Against sums in double precision: integers within 1, single precision within 4 units in the last place of the range.
TEST(Resize, IsCloseToTheExactSum) {
    for (const Case& c : cases()) {
        if (c.type == Type::f64 || (c.method == kvrInterpLinear && c.type == Type::u8)) continue;
        for (int seed = 0; seed < 6; ++seed) {
            Random random(uint64_t(seed) + 50);
            const Scene s = randomScene(c, random, 100, 20);
            const TestImage have(c.pixelBytes() * s.dst.width, s.dst.height, random);
            ASSERT_EQ(s.run({0, 0}, s.dst, have, random), kvrStatusOk);
            const contract::Plane result{c, s.dst, [&](int x, int y) { return have.row(y) + x * c.pixelBytes(); }, kvrBorderRepl, {}};
            const contract::Plane plane = s.plane();
            const double tolerance = c.type == Type::f32 ? 4 * 200 * 0x1p-24 * 2 : 1;
            for (int j = 0; j < s.dst.height; ++j)
                for (int i = 0; i < s.dst.width; ++i) {
                    const auto x = contract::tapsAt(c, s.o, s.src.width, s.dst.width, i), y = contract::tapsAt(c, s.o, s.src.height, s.dst.height, j);
                    for (int k = 0; k < c.channels; ++k) {
                        double want = contract::weightedSum<double>(plane, x, y, k, true);
                        if (c.type == Type::u8) want = std::clamp(want, 0., 255.);
                        else if (c.type == Type::u16) want = std::clamp(want, 0., 65535.);
                        else if (c.type == Type::s16) want = std::clamp(want, -32768., 32767.);
                        ASSERT_NEAR(result.at(i, j, k), want, tolerance) << describe(s);
                    }
                }
        }
    }
}

TEST(Resize, KeepsAConstantImage) {
    for (const Case& c : cases())
        for (const KvriSize dst : {KvriSize{7, 5}, KvriSize{64, 48}, KvriSize{90, 61}, KvriSize{13, 77}}) {
            if (c.method == kvrInterpSuper && (dst.width > 64 || dst.height > 48)) continue;
            Random random(3);
            const Choice o = randomChoice(random);
            const Scene s(c, o, {64, 48}, dst, kvrBorderRepl, random);
            const double value = c.type == Type::u8 ? 255 : c.type == Type::u16 ? 65535 : c.type == Type::s16 ? -32768 : 0.7f;
            for (int y = 0; y < s.image.rows; ++y)
                for (int x = 0; x < s.image.rowBytes; x += sampleBytes(c.type)) contract::store(c.type, value, s.image.row(y) + x);
            const TestImage have(c.pixelBytes() * dst.width, dst.height, random);
            ASSERT_EQ(s.run({0, 0}, dst, have, random), kvrStatusOk);
            const contract::Plane result{c, dst, [&](int x, int y) { return have.row(y) + x * c.pixelBytes(); }, kvrBorderRepl, {}};
            for (int y = 0; y < dst.height; ++y)
                for (int x = 0; x < dst.width; ++x)
                    for (int k = 0; k < c.channels; ++k) ASSERT_NEAR(result.at(x, y, k), value, c.type >= Type::f32 ? 4 * 0x1p-24 : 0) << describe(s);
        }
}

// Infinities next to a pixel that is copied must not touch it.
TEST(Resize, CopiesAtEqualSize) {
    for (const Case& c : cases()) {
        if (c.antialiasing() || (c.kernel({}) == kvrInterpLanczos && c.type != Type::u8)) continue;  // nearly 1 is not 1
        Random random(9);
        const Scene s(c, {}, {37, 9}, {37, 9}, kvrBorderInMem, random);
        if (c.type == Type::f32)
            for (int i = 0; i < 20; ++i) contract::store(c.type, INFINITY, s.pixel(random.in(0, 36), random.in(0, 8)));
        const TestImage have(c.pixelBytes() * 37, 9, random);
        ASSERT_EQ(s.run({0, 0}, s.dst, have, random), kvrStatusOk);
        for (int y = 0; y < 9; ++y) ASSERT_EQ(std::memcmp(have.row(y), s.pixel(0, y), size_t(have.rowBytes)), 0) << describe(s);
    }
}

// A neighbour that weighs nothing need not exist, even where it might be read.
TEST(Resize, ReadsNoNeighbourWithoutWeight) {
    for (const Case& c : cases()) {
        if (c.method != kvrInterpLinear) continue;
        Random random(13);
        const Object object(c, {}, {64, 3}, {64, 3});
        const TestImage src(c.pixelBytes() * 64, 3, c.pixelBytes() * 64, Edge::End), have(src.rowBytes, 3, src.step, Edge::End);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < src.rowBytes; x += sampleBytes(c.type)) contract::store(c.type, random.in(0, 255), src.row(y) + x);
        std::vector<uint8_t> buffer(size_t(object.bufferBytes({64, 3})));
        const Call call{src.roi, src.step, have.roi, have.step, {0, 0}, {64, 3}, kvrBorderInMem};
        ASSERT_EQ(c.apply(call, object.spec(), buffer.data()), kvrStatusOk);
        ASSERT_EQ(src.memory(), have.memory()) << c.name;
    }
}

TEST(Resize, BeyondWhatAStripHolds) {
    for (const Case& c : cases()) {
        if (c.channels == 3) continue;
        for (const auto& [src, dst] : {std::pair<KvriSize, KvriSize>{{2200, 6}, {2, 3}}, {{9, 700}, {9, 2}}, {{1100, 20}, {1, 1}}, {{6, 6}, {1500, 3}}}) {
            if (c.method == kvrInterpSuper && (dst.width > src.width || dst.height > src.height)) continue;
            Random random(5);
            const Choice o = randomChoice(random);
            const Scene s(c, o, src, dst, kvrBorderRepl, random);
            const TestImage have(c.pixelBytes() * dst.width, dst.height, random);
            const auto first = expected(s, have, true), second = expected(s, have, false);
            ASSERT_EQ(s.run({0, 0}, dst, have, random), kvrStatusOk);
            const auto memory = have.memory();
            ASSERT_TRUE(memory == first || memory == second) << describe(s) << "\n" << firstDifference(s, have, first);
        }
    }
}

// Rows a multiple of the page apart are worked on in another number at a time.
TEST(Resize, StepsDoNotMatter) {
    for (const Case& c : cases()) {
        if (c.type != Type::u8 || (c.method != kvrInterpLinear && c.method != kvrInterpNearest)) continue;
        for (const KvriSize dst : {KvriSize{200, 140}, KvriSize{140, 98}, KvriSize{70, 99}, KvriSize{33, 50}, KvriSize{100, 30}}) {
            Random random(29);
            const KvriSize src{100, 70};
            const Object object(c, {}, src, dst);
            std::vector<uint8_t> buffer(size_t(object.bufferBytes(dst)));
            const int srcBytes = c.pixelBytes() * src.width, dstBytes = c.pixelBytes() * dst.width;
            const TestImage from(srcBytes, src.height, srcBytes, Edge::End), to(dstBytes, dst.height, dstBytes, Edge::End);
            const TestImage spread(srcBytes, src.height, 2048, Edge::Begin), result(dstBytes, dst.height, 4096, Edge::Begin);
            for (int y = 0; y < src.height; ++y) {
                for (int x = 0; x < srcBytes; ++x) from.row(y)[x] = uint8_t(random.in(0, 255));
                std::memcpy(spread.row(y), from.row(y), size_t(srcBytes));
            }
            ASSERT_EQ(c.apply({from.roi, from.step, to.roi, to.step, {0, 0}, dst}, object.spec(), buffer.data()), kvrStatusOk);
            ASSERT_EQ(c.apply({spread.roi, spread.step, result.roi, result.step, {0, 0}, dst}, object.spec(), buffer.data()), kvrStatusOk);
            for (int y = 0; y < dst.height; ++y)
                ASSERT_EQ(std::memcmp(to.row(y), result.row(y), size_t(dstBytes)), 0) << c.name << " to " << dst.width << "x" << dst.height << ", row " << y;
        }
    }
}

TEST(Resize, ObjectsMayMoveAndServeThreads) {
    for (const Case& c : cases()) {
        if (c.channels != 1) continue;
        Random random(11);
        Scene s(c, randomChoice(random), {200, 150}, {150, 100}, kvrBorderRepl, random);
        const TestImage whole(c.pixelBytes() * 150, 100, random), parts(whole.rowBytes, 100, whole.step, Edge::Begin);
        for (const TestImage* image : {&whole, &parts}) std::memset(image->roi - (image->step < 0 ? ptrdiff_t(-image->step) * 99 : 0), 0, image->memory().size());
        ASSERT_EQ(s.run({0, 0}, s.dst, whole, random), kvrStatusOk);

        std::vector<uint8_t> moved(size_t(s.object.bytes) + 128);
        const auto shift = (reinterpret_cast<uintptr_t>(s.object.block.p) - reinterpret_cast<uintptr_t>(moved.data())) & 63;
        std::memcpy(moved.data() + shift, s.object.block.p, size_t(s.object.bytes));
        const auto* spec = reinterpret_cast<const KvriResizeSpec*>(moved.data() + shift);
        const std::vector<uint8_t> before = moved;
        auto half = [&](int y) {
            std::vector<uint8_t> buffer(size_t(s.object.bufferBytes({150, 50})));
            const KvriPoint at = s.object.origin({0, y});
            c.apply({s.pixel(at.x, at.y), s.image.step, parts.row(y), parts.step, {0, y}, {150, 50}}, spec, buffer.data());
        };
        std::thread other(half, 50);
        half(0);
        other.join();
        ASSERT_TRUE(whole.memory() == parts.memory()) << describe(s);
        ASSERT_EQ(moved, before);
    }
}

}  // namespace
