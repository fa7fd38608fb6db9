// tests/geometry/resize_scene.h: blocks of exactly the queried sizes beside unmapped pages, and a resize with random sizes.
#pragma once

#include <gtest/gtest.h>

#include "tests/geometry/resize_contract.h"
#include "tests/support/memory.h"

namespace test::resize {

// Bytes that end at an unmapped page, or some bytes before it that must stay as they were.
class Block {
    std::unique_ptr<GuardedPages> pages_;
    int shift_;

public:
    uint8_t* p;

    Block(int bytes, int shift) : pages_(GuardedPages::get(size_t(bytes + shift))), shift_(shift), p(pages_->end() - bytes - shift) {
        std::memset(p, 0xA5, size_t(bytes + shift));
    }
    Block(Block&&) = default;
    ~Block() {
        if (!pages_) return;
        for (int i = 1; i <= shift_; ++i) EXPECT_EQ(pages_->end()[-i], 0xA5) << "written behind a block";
        GuardedPages::put(std::move(pages_));
    }
};

struct Object {
    const Case& c;
    Queries q;
    int bytes = 0, initBytes = 0;
    Block block;

    Object(const Case& c, const Choice& o, KvriSize src, KvriSize dst, int shift = 0)
        : c(c), q(queriesOf(c.type)), block(query(c, o, src, dst), shift) {
        Block scratch(initBytes, shift);
        EXPECT_EQ(c.init(src, dst, o, spec(), scratch.p), kvrStatusOk) << c.name;
    }
    KvriResizeSpec* spec() const { return reinterpret_cast<KvriResizeSpec*>(block.p); }

    int bufferBytes(KvriSize size) const {
        int n = 0;
        EXPECT_GE(q.bufferSize(spec(), size, c.channels, &n), 0);
        return n;
    }
    KvriPoint origin(KvriPoint offset) const {
        KvriPoint p{};
        EXPECT_EQ(q.srcOffset(spec(), offset, &p), kvrStatusOk);
        return p;
    }
    KvriBorderSize border() const {
        KvriBorderSize b{};
        EXPECT_EQ(q.borderSize(spec(), &b), kvrStatusOk);
        return b;
    }

private:
    int query(const Case& c, const Choice& o, KvriSize src, KvriSize dst) {
        EXPECT_EQ(q.size(src, dst, c.kernel(o), c.antialiasing(), &bytes, &initBytes), kvrStatusOk) << c.name;
        return bytes;
    }
};

// A source with just the pixels that the border code allows to be read, and its resize.
struct Scene {
    const Case& c;
    Choice o;
    KvriSize src, dst;
    Object object;
    KvriBorderType border;
    KvriBorderSize margin{};
    TestImage image;

    Scene(const Case& c, const Choice& o, KvriSize src, KvriSize dst, KvriBorderType border, Random& random)
        : c(c), o(o), src(src), dst(dst), object(c, o, src, dst, random.chance(50) ? 0 : random.in(1, 63)), border(border),
          margin(marginOf()), image(c.pixelBytes() * (src.width + margin.left + margin.right), src.height + margin.top + margin.bottom, random) {
        if (c.type < Type::f32) return;
        const int bytes = sampleBytes(c.type);
        for (int y = 0; y < image.rows; ++y)
            for (int x = 0; x < image.rowBytes; x += bytes) {
                const double v = random.in(-100000, 100000) / 1000. + 0.0001;
                contract::store(c.type, v, image.row(y) + x);
            }
    }

    uint8_t* pixel(int x, int y) const { return image.row(y + margin.top) + (x + margin.left) * c.pixelBytes(); }
    contract::Plane plane() const {
        return {c, src, [this](int x, int y) { return pixel(x, y); }, border, object.border()};
    }

    KvrStatus run(KvriPoint offset, KvriSize size, const TestImage& to, Random& random) const {
        const KvriPoint at = object.origin(offset);
        const Block buffer(object.bufferBytes(size), random.chance(50) ? 0 : random.in(1, 63));
        const Call call{pixel(at.x, at.y), image.step, to.row(offset.y) + offset.x * c.pixelBytes(), to.step, offset, size, border};
        return c.apply(call, object.spec(), buffer.p);
    }

private:
    KvriBorderSize marginOf() const {
        const KvriBorderSize b = object.border();
        auto side = [&](int pixels, int flag) { return border == kvrBorderInMem || (border & flag) ? pixels : 0; };
        return {side(b.left, kvrBorderInMemLeft), side(b.top, kvrBorderInMemTop), side(b.right, kvrBorderInMemRight),
                side(b.bottom, kvrBorderInMemBottom)};
    }
};

inline Choice randomChoice(Random& random) {
    constexpr KvriInterpolationType kernels[] = {kvrInterpLinear, kvrInterpCubic, kvrInterpLanczos};
    constexpr float parameters[][2] = {{0, 0.5f}, {1, 0}, {1 / 3.f, 1 / 3.f}, {0.5f, 0.3f}};
    const auto& p = parameters[random.in(0, 3)];
    return {kernels[random.in(0, 2)], random.in(2, 3), p[0], p[1]};
}

inline int leastSource(const Case& c, const Choice& o) {
    const auto kernel = c.kernel(o);
    return kernel == kvrInterpLinear ? 2 : kernel == kvrInterpCubic ? 4 : kernel == kvrInterpLanczos ? 2 * o.lobes : 1;
}

// A pair of lengths: mostly small, often in a plain ratio, now and then far apart.
inline std::pair<int, int> randomLengths(const Case& c, const Choice& o, Random& random, int most) {
    const int least = leastSource(c, o);
    int src = random.in(least, std::max(least, most)), dst = random.in(1, 2 * most);
    switch (random.in(0, 7)) {
        case 0: dst = src; break;
        case 1: dst = 2 * src; break;
        case 2: dst = std::max(1, src / 2), src = std::max(least, 2 * dst); break;
        case 3: dst = random.in(1, 3); break;
        case 4: src = least, dst = random.in(1, 3 * most); break;
        default: break;
    }
    if (c.method == kvrInterpSuper && src < dst) std::swap(src, dst);
    return {src, dst};
}

}  // namespace test::resize
