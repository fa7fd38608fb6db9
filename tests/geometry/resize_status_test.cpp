// tests/geometry/resize_status_test.cpp: statuses, sizes and queries of Resize.
#include <cfenv>

#include <xmmintrin.h>

#include "tests/geometry/resize_scene.h"

namespace {

using namespace test;
using namespace test::resize;

// A fault in the arguments A and the status that it alone gives. Faults are listed in the order of their checks: of any set of
// them the first decides.
template <class A>
struct Fault {
    KvrStatus status;
    std::function<void(A&)> make;
};

template <class A, class Run>
void expectOrder(const std::vector<Fault<A>>& faults, const A& good, Run run) {
    for (unsigned set = 0; set < 1u << faults.size(); ++set) {
        A a = good;
        KvrStatus want = kvrStatusOk;
        for (size_t i = 0; i < faults.size(); ++i)
            if (set >> i & 1) {
                faults[i].make(a);
                if (want == kvrStatusOk) want = faults[i].status;
            }
        ASSERT_EQ(run(a), want) << "faults " << set;
    }
}

const Case& caseOf(const char* name) {
    for (const Case& c : cases())
        if (c.name == name) return c;
    throw std::invalid_argument(name);
}

TEST(ResizeStatus, Apply) {
    struct Arguments {
        std::vector<uint8_t> spec;
        bool src = true, dst = true, object = true, buffer = true;
        KvriPoint offset{3, 2};
        KvriSize size{4, 4};
        int border = kvrBorderRepl;
    };
    for (const Case& c : cases()) {
        const Choice o{kvrInterpLinear};
        auto objectOf = [&](const Case& of) {
            const Object object(of, o, {20, 20}, {10, 10});
            std::vector<uint8_t> aligned(size_t(object.bytes) + 64);
            const auto shift = -reinterpret_cast<uintptr_t>(object.block.p) & 63;
            std::memcpy(aligned.data(), object.block.p + shift, size_t(object.bytes) - shift);
            return aligned;
        };
        // Of another method; linear 8u has weights of its own; 64f knows one method only.
        const char* other = c.antialiasing() || c.method == kvrInterpSuper ? "kvriResizeCubic_8u_C1R"
                            : c.method == kvrInterpLinear ? (c.type == Type::u8 ? "kvriResizeLinear_32f_C1R" : "kvriResizeLinear_8u_C1R")
                                                          : "kvriResizeAntialiasing_8u_C1R";
        std::vector<Fault<Arguments>> faults{
            {kvrStatusNullPointer, [](auto& a) { a.src = false; }},
            {kvrStatusNullPointer, [](auto& a) { a.dst = a.object = a.buffer = false; }},
            {kvrStatusNoOperation, [](auto& a) { a.size.height = 0; }},
            {kvrStatusBadContext, [](auto& a) { a.spec[0] ^= 1; }},
            {kvrStatusBadSize, [](auto& a) { a.size.width = -1; }},
            {kvrStatusOutOfRange, [](auto& a) { a.offset.x = 10; }},
            {kvrStatusOutOfRange, [](auto& a) { a.offset.y = -1; }},
            {kvrStatusNotSupported, [&](auto& a) {
                 const uint8_t id = a.spec[0];
                 a.spec = objectOf(caseOf(other));
                 if (id % 2 == 0) a.spec[0] ^= 1;
             }},
            {kvrStatusBorderNotSupported, [](auto& a) { a.border |= 8; }},
            {kvrStatusNotSupported, [](auto& a) { a.border = (a.border & 8) | 0xF0; }},
            {kvrStatusNotSupported, [](auto& a) { a.border = (a.border & 0xF8) | 2; }},
        };
        if (c.type == Type::f64) faults.erase(faults.begin() + 7);
        Arguments good{objectOf(c)};
        std::vector<uint8_t> src(20 * 20 * 64), dst(10 * 10 * 64, 77), buffer(100000);
        expectOrder(faults, good, [&](Arguments& a) {
            std::vector<uint8_t> aligned(a.spec.size() + 64);
            uint8_t* spec = aligned.data() + (-reinterpret_cast<uintptr_t>(aligned.data()) & 63);
            std::memcpy(spec, a.spec.data(), a.spec.size());
            std::fill(dst.begin(), dst.end(), uint8_t(77));
            const Call call{a.src ? src.data() + 400 * 8 : nullptr, 20 * c.pixelBytes(), a.dst ? dst.data() : nullptr, 10 * c.pixelBytes(),
                            a.offset, a.size, a.border};
            const KvrStatus status = c.apply(call, a.object ? reinterpret_cast<KvriResizeSpec*>(spec) : nullptr, a.buffer ? buffer.data() : nullptr);
            if (status != kvrStatusOk) {
                EXPECT_EQ(std::count(dst.begin(), dst.end(), 77), long(dst.size())) << c.name;
            }
            return status;
        });
    }
}

TEST(ResizeStatus, WarnsOfTilesLargerThanTheDestination) {
    for (const Case& c : cases()) {
        Random random(1);
        const Scene s(c, {kvrInterpCubic}, {40, 30}, {20, 10}, kvrBorderRepl, random);
        const TestImage have(c.pixelBytes() * 20, 10, random);
        EXPECT_EQ(s.run({0, 0}, {21, 10}, have, random), kvrStatusRoiExceedsSpec);
        EXPECT_EQ(s.run({19, 9}, {1, 11}, have, random), kvrStatusRoiExceedsSpec);
        EXPECT_EQ(s.run({10, 5}, {20, 10}, have, random), kvrStatusOk);  // clipped by its place alone
        EXPECT_EQ(s.run({1, 1}, {INT32_MAX, 1}, have, random), kvrStatusRoiExceedsSpec);
    }
}

TEST(ResizeStatus, GetSize) {
    struct Arguments {
        KvriSize src{20, 20}, dst{10, 10};
        int method = kvrInterpLinear, antialiasing = 0;
        bool spec = true, init = true;
    };
    const std::vector<Fault<Arguments>> faults{
        {kvrStatusNullPointer, [](auto& a) { a.spec = false; }},
        {kvrStatusNullPointer, [](auto& a) { a.init = false; }},
        {kvrStatusNoOperation, [](auto& a) { a.dst.height = 0; }},
        {kvrStatusBadSize, [](auto& a) { a.src.width = -4; }},
        {kvrStatusBadInterpolation, [](auto& a) { a.method = 5; }},
    };
    for (const Type t : {Type::u8, Type::u16, Type::s16, Type::f32, Type::f64}) {
        const auto getSize = queriesOf(t).size;
        int spec = 0, init = 0;
        expectOrder(faults, Arguments{}, [&](const Arguments& a) {
            return getSize(a.src, a.dst, a.method, a.antialiasing, a.spec ? &spec : nullptr, a.init ? &init : nullptr);
        });
        auto status = [&](KvriSize src, KvriSize dst, int method, int antialiasing) {
            spec = init = -1;
            const KvrStatus s = getSize(src, dst, method, antialiasing, &spec, &init);
            EXPECT_EQ(spec == -1 && init == -1, s != kvrStatusOk);
            return s;
        };
        EXPECT_EQ(status({20, 20}, {10, 10}, 0, 0), kvrStatusNotSupported);
        EXPECT_EQ(status({1, 1}, {10, 10}, kvrInterpNearest, 1), kvrStatusNotSupported);
        EXPECT_EQ(status({5, 5}, {10, 10}, kvrInterpSuper, 1), kvrStatusNotSupported);
        EXPECT_EQ(status({1, 20}, {10, 10}, kvrInterpLinear, 0), kvrStatusBadSize);
        EXPECT_EQ(status({20, 3}, {10, 10}, kvrInterpCubic, 1), kvrStatusBadSize);
        EXPECT_EQ(status({4, 4}, {10, 10}, kvrInterpLanczos, 0), kvrStatusOk);
        EXPECT_EQ(status({10, 9}, {10, 10}, kvrInterpSuper, 0), kvrStatusBadSize);
        EXPECT_EQ(status({INT32_MAX, INT32_MAX}, {INT32_MAX, INT32_MAX}, kvrInterpNearest, 0), kvrStatusBadSize);
        EXPECT_EQ(status({INT32_MAX, INT32_MAX}, {1, 1}, kvrInterpLanczos, 1), kvrStatusBadSize);
    }
}

TEST(ResizeStatus, Inits) {
    struct Arguments {
        KvriSize src{20, 20}, dst{10, 10};
        Choice choice{kvrInterpLanczos};
        bool spec = true, buffer = true;
    };
    for (const Case& c : cases()) {
        if (c.channels != 1) continue;
        for (const int lobes : {2, 3}) {
            const auto kernel = c.antialiasing() ? kvrInterpLanczos : c.method;
            std::vector<Fault<Arguments>> faults{
                {kvrStatusNullPointer, [](auto& a) { a.spec = false; }},
                {kvrStatusNoOperation, [](auto& a) { a.dst.width = 0; }},
                {kvrStatusBadSize, [](auto& a) { a.dst.height = -1; }},
            };
            if (kernel == kvrInterpCubic || kernel == kvrInterpLanczos)
                faults.insert(faults.begin(), {kvrStatusNullPointer, [](auto& a) { a.buffer = false; }});
            if (kernel == kvrInterpLanczos) faults.push_back({kvrStatusNotSupported, [](auto& a) { a.choice.lobes = INT32_MAX; }});
            const int least = kernel == kvrInterpLinear ? 2 : kernel == kvrInterpCubic ? 4 : 2 * lobes;
            if (kernel == kvrInterpSuper) faults.push_back({kvrStatusBadSize, [](auto& a) { a.src.height = 9; }});
            else if (kernel != kvrInterpNearest) faults.push_back({kvrStatusBadSize, [=](auto& a) { a.src.width = least - 1; }});

            std::vector<uint8_t> spec(20000, 88), scratch(20000, 88);
            Arguments good;
            good.choice.lobes = lobes;
            _mm_setcsr(0x1F80 | 0x8040 | 0x2000);  // flush to zero, denormals as zeros, rounding down
            const unsigned taken = _mm_getcsr();    // valgrind has only the rounding
            expectOrder(faults, good, [&](Arguments& a) {
                const KvrStatus s = c.init(a.src, a.dst, a.choice, a.spec ? reinterpret_cast<KvriResizeSpec*>(spec.data()) : nullptr,
                                           a.buffer ? scratch.data() : nullptr);
                EXPECT_EQ(_mm_getcsr() & ~0x3Fu, taken & ~0x3Fu);
                if (s != kvrStatusOk) {
                    EXPECT_EQ(std::count(spec.begin(), spec.end(), 88), long(spec.size()));
                }
                std::fill(spec.begin(), spec.end(), uint8_t(88));
                return s;
            });
            _mm_setcsr(0x1F80);
        }
    }
}

TEST(ResizeStatus, Queries) {
    struct Arguments {
        KvriPoint offset{1, 1};
        KvriSize size{3, 3};
        int channels = 3;
        uint8_t id = 0;
        bool spec = true;
    };
    const Case& c = caseOf("kvriResizeLinear_8u_C1R");
    const Object object(c, {}, {30, 30}, {20, 20});
    std::vector<uint8_t> copy(size_t(object.bytes) + 64);
    uint8_t* p = copy.data() + (-reinterpret_cast<uintptr_t>(copy.data()) & 63);
    std::memcpy(p, reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(object.block.p) + 63) & ~uintptr_t(63)), 192);
    const uint8_t id = *p;
    auto spec = [&](const Arguments& a) {
        *p = id ^ a.id;
        return a.spec ? reinterpret_cast<const KvriResizeSpec*>(p) : nullptr;
    };
    const Fault<Arguments> null{kvrStatusNullPointer, [](auto& a) { a.spec = false; }}, kind{kvrStatusBadContext, [](auto& a) { a.id = 1; }},
        outside{kvrStatusOutOfRange, [](auto& a) { a.offset.y = 20; }};
    int bytes;
    KvriPoint at;
    KvriSize size;
    KvriBorderSize border;
    const auto q = object.q;
    expectOrder<Arguments>({null, {kvrStatusNoOperation, [](auto& a) { a.size.height = 0; }}, kind,
                            {kvrStatusBadNumChannels, [](auto& a) { a.channels = 2; }}, {kvrStatusBadSize, [](auto& a) { a.size.width = -1; }}},
                           {}, [&](const Arguments& a) { return q.bufferSize(spec(a), a.size, a.channels, &bytes); });
    expectOrder<Arguments>({null, kind}, {}, [&](const Arguments& a) { return q.borderSize(spec(a), &border); });
    expectOrder<Arguments>({null, kind, outside}, {}, [&](const Arguments& a) { return q.srcOffset(spec(a), a.offset, &at); });
    expectOrder<Arguments>({null, {kvrStatusBadSize, [](auto& a) { a.size.width = 0; }}, kind, outside}, {},
                           [&](const Arguments& a) { return q.srcRoi(spec(a), a.offset, a.size, &at, &size); });
    EXPECT_EQ(q.bufferSize(object.spec(), {21, 1}, 1, &bytes), kvrStatusRoiExceedsSpec);
    EXPECT_EQ(kvriResizeGetBorderSize_64f(object.spec(), &border), kvrStatusBadContext);

    // A tile's source, also where the formula leaves no column, and of a tile that is clipped.
    ASSERT_EQ(q.srcRoi(object.spec(), {10, 4}, {100, 3}, &at, &size), kvrStatusOk);
    EXPECT_EQ(at.x, 15);
    EXPECT_EQ(at.y, 6);
    EXPECT_EQ(size.width, 28 - 15 + 1);
    EXPECT_EQ(size.height, 9 - 6 + 1);
    const Object twice(c, {}, {30, 30}, {60, 60});
    ASSERT_EQ(q.srcRoi(twice.spec(), {0, 0}, {1, 2}, &at, &size), kvrStatusOk);
    EXPECT_EQ(size.width, 0);
    EXPECT_EQ(size.height, 1);
}

TEST(ResizeStatus, SizesFollowTheFormulas) {
    struct Row {
        const char* name;
        Choice choice;
        KvriSize src, dst;
        int spec, init, buffer;  // of a tile of 50 x 20, three channels
    };
    // A(n): n to a multiple of 32. A(70) = 96, A(33) = 64.
    const Row rows[] = {
        {"kvriResizeNearest_8u_C3R", {}, {100, 50}, {70, 33}, 4 * 160 + 280, 64, 96 + 224 + 64},
        {"kvriResizeLinear_8u_C3R", {}, {100, 50}, {70, 33}, 8 * 160 + 280, 64, 96 + 224 + 2 * 608 + 64},
        {"kvriResizeLinear_16u_C3R", {}, {100, 50}, {70, 33}, 12 * 160 + 280, 64, 96 + 224 + 2 * 608 + 64},
        {"kvriResizeLinear_64f_C3R", {}, {100, 50}, {70, 33}, 20 * 160 + 280, 64, 96 + 224 + 2 * 1216 + 64},
        {"kvriResizeCubic_8u_C3R", {}, {100, 50}, {70, 33}, 640 + 128 * (12 + 8) + 280, 704, 96 + 224 + 4 * 608 + 64},
        {"kvriResizeLanczos_8u_C3R", {0, 2}, {100, 50}, {70, 33}, 640 + 128 * (19 + 12) + 280, 704, 96 + 224 + 4 * 608 + 64},
        {"kvriResizeLanczos_32f_C3R", {0, 3}, {100, 50}, {70, 33}, 640 + 128 * (19 + 12) + 280, 704, 96 + 224 + 6 * 608 + 64},
        // Reduced to 10 : 7 (2 taps more than 1) and 50 : 33; 50 columns cover 74.
        {"kvriResizeSuper_8u_C3R", {}, {100, 50}, {70, 33}, 4 * (32 + 21 + 99 + 128) + 280, 64, ((3 * 96 + 3) * 4 + 8) * 33 + 32 + 64},
        // 2 * ceil(2 * 100 / 70) = 6 taps and 2 * ceil(2 * 50 / 33) = 8
        {"kvriResizeAntialiasing_8u_C3R", {kvrInterpLinear}, {100, 50}, {70, 33}, 1696 + 640 + 1056 + 280, 1344, -1},
        {"kvriResizeAntialiasing_8u_C3R", {kvrInterpLinear}, {60, 50}, {70, 33}, 576 + 640 + 1056 + 288 + 280, 1344, -1},
    };
    for (const Row& r : rows) {
        const Case& c = caseOf(r.name);
        const Object object(c, r.choice, r.src, r.dst);
        EXPECT_EQ(object.bytes, r.spec) << r.name;
        EXPECT_EQ(object.initBytes, r.init) << r.name;
        if (r.buffer < 0) continue;
        EXPECT_EQ(object.bufferBytes({50, 20}), r.buffer) << r.name;
    }
}

TEST(ResizeStatus, BorderSizes) {
    auto borderOf = [](const char* name, const Choice& o, KvriSize src, KvriSize dst) {
        const KvriBorderSize b = Object(caseOf(name), o, src, dst).border();
        return std::array<int, 4>{b.left, b.top, b.right, b.bottom};
    };
    using Four = std::array<int, 4>;
    EXPECT_EQ(borderOf("kvriResizeNearest_8u_C1R", {}, {9, 9}, {5, 5}), (Four{0, 0, 0, 0}));
    EXPECT_EQ(borderOf("kvriResizeSuper_16s_C1R", {}, {9, 9}, {5, 5}), (Four{0, 0, 0, 0}));
    EXPECT_EQ(borderOf("kvriResizeLinear_64f_C1R", {}, {9, 9}, {5, 5}), (Four{1, 1, 1, 1}));
    EXPECT_EQ(borderOf("kvriResizeLanczos_8u_C1R", {0, 2}, {9, 9}, {5, 5}), (Four{2, 2, 2, 2}));
    EXPECT_EQ(borderOf("kvriResizeAntialiasing_8u_C1R", {kvrInterpCubic}, {9, 9}, {5, 10}), (Four{4, 2, 4, 2}));
    EXPECT_EQ(borderOf("kvriResizeAntialiasing_8u_C1R", {kvrInterpLinear}, {9, 12}, {9, 3}), (Four{1, 4, 1, 4}));
}

}  // namespace
