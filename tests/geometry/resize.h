// tests/geometry/resize.h: every apply function of Resize with its queries and init, for tests and benchmarks.
#pragma once

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::resize {

enum class Type { u8, u16, s16, f32, f64 };

constexpr int sampleBytes(Type t) { return t == Type::u8 ? 1 : t == Type::f64 ? 8 : t == Type::f32 ? 4 : 2; }

template <class T>
constexpr Type typeOf() {
    if constexpr (std::is_same_v<T, Kvr8u>) return Type::u8;
    else if constexpr (std::is_same_v<T, Kvr16u>) return Type::u16;
    else if constexpr (std::is_same_v<T, Kvr16s>) return Type::s16;
    else if constexpr (std::is_same_v<T, Kvr32f>) return Type::f32;
    else return Type::f64;
}

struct Queries {
    decltype(&kvriResizeGetSize_8u) size;
    decltype(&kvriResizeGetBufferSize_8u) bufferSize;
    decltype(&kvriResizeGetBorderSize_8u) borderSize;
    decltype(&kvriResizeGetSrcOffset_8u) srcOffset;
    decltype(&kvriResizeGetSrcRoi_8u) srcRoi;
};

#define KVRI_QUERIES(t) \
    Queries { kvriResizeGetSize_##t, kvriResizeGetBufferSize_##t, kvriResizeGetBorderSize_##t, kvriResizeGetSrcOffset_##t, kvriResizeGetSrcRoi_##t }

inline Queries queriesOf(Type t) {
    switch (t) {
        case Type::u8: return KVRI_QUERIES(8u);
        case Type::u16: return KVRI_QUERIES(16u);
        case Type::s16: return KVRI_QUERIES(16s);
        case Type::f32: return KVRI_QUERIES(32f);
        default: return KVRI_QUERIES(64f);
    }
}

// What is chosen beside the function.
struct Choice {
    KvriInterpolationType method = 0;  // of antialiasing functions
    int lobes = 3;
    float b = 0, c = 0.5f;
};

using PlainInit = KvrStatus (*)(KvriSize, KvriSize, KvriResizeSpec*);
using CubicInit = KvrStatus (*)(KvriSize, KvriSize, Kvr32f, Kvr32f, KvriResizeSpec*, Kvr8u*);
using LanczosInit = KvrStatus (*)(KvriSize, KvriSize, int, KvriResizeSpec*, Kvr8u*);
using BufferedInit = KvrStatus (*)(KvriSize, KvriSize, KvriResizeSpec*, Kvr8u*);

using Init = std::function<KvrStatus(KvriSize, KvriSize, const Choice&, KvriResizeSpec*, Kvr8u*)>;

inline Init init(PlainInit f) {
    return [=](KvriSize s, KvriSize d, const Choice&, KvriResizeSpec* spec, Kvr8u*) { return f(s, d, spec); };
}
inline Init init(CubicInit f) {
    return [=](KvriSize s, KvriSize d, const Choice& o, KvriResizeSpec* spec, Kvr8u* buffer) { return f(s, d, o.b, o.c, spec, buffer); };
}
inline Init init(LanczosInit f) {
    return [=](KvriSize s, KvriSize d, const Choice& o, KvriResizeSpec* spec, Kvr8u* buffer) { return f(s, d, o.lobes, spec, buffer); };
}
inline KvrStatus initAntialiasing(KvriSize s, KvriSize d, const Choice& o, KvriResizeSpec* spec, Kvr8u* buffer) {
    if (o.method == kvrInterpLinear) return kvriResizeAntialiasingLinearInit(s, d, spec, buffer);
    if (o.method == kvrInterpCubic) return kvriResizeAntialiasingCubicInit(s, d, o.b, o.c, spec, buffer);
    return kvriResizeAntialiasingLanczosInit(s, d, o.lobes, spec, buffer);
}

struct Call {
    const void* src;
    int srcStep;
    void* dst;
    int dstStep;
    KvriPoint offset;
    KvriSize size;
    KvriBorderType border = kvrBorderRepl;
};

using Apply = std::function<KvrStatus(const Call&, const KvriResizeSpec*, Kvr8u*)>;

template <class T>
using ApplyFunction = KvrStatus (*)(const T*, int, T*, int, KvriPoint, KvriSize, KvriBorderType, const T*, const KvriResizeSpec*, Kvr8u*);

struct Case {
    std::string name;
    KvriInterpolationType method;  // 0: antialiasing
    Type type;
    int channels;
    Init init;
    Apply apply;

    int pixelBytes() const { return channels * sampleBytes(type); }
    bool antialiasing() const { return method == 0; }
    KvriInterpolationType kernel(const Choice& o) const { return antialiasing() ? o.method : method; }
};

template <class T>
Case makeCase(const char* name, KvriInterpolationType method, Init init, ApplyFunction<T> f) {
    const Apply apply = [=](const Call& c, const KvriResizeSpec* spec, Kvr8u* buffer) {
        return f(static_cast<const T*>(c.src), c.srcStep, static_cast<T*>(c.dst), c.dstStep, c.offset, c.size, c.border, nullptr, spec, buffer);
    };
    return {name, method, typeOf<T>(), std::strstr(name, "_C3") ? 3 : std::strstr(name, "_C4") ? 4 : 1, std::move(init), apply};
}

#define KVRI_RESIZE_CASE(name, method, init) makeCase(#name, method, init, name)
#define KVRI_RESIZE_LAYOUTS(function, method, init)                                              \
    KVRI_RESIZE_CASE(function##_C1R, method, init), KVRI_RESIZE_CASE(function##_C3R, method, init), \
        KVRI_RESIZE_CASE(function##_C4R, method, init)
#define KVRI_RESIZE_METHOD(M, t, method) KVRI_RESIZE_LAYOUTS(kvriResize##M##_##t, method, init(kvriResize##M##Init_##t))
#define KVRI_RESIZE_TYPE(t)                                                                                  \
    KVRI_RESIZE_METHOD(Nearest, t, kvrInterpNearest), KVRI_RESIZE_METHOD(Linear, t, kvrInterpLinear),        \
        KVRI_RESIZE_METHOD(Cubic, t, kvrInterpCubic), KVRI_RESIZE_METHOD(Lanczos, t, kvrInterpLanczos),      \
        KVRI_RESIZE_METHOD(Super, t, kvrInterpSuper), KVRI_RESIZE_LAYOUTS(kvriResizeAntialiasing_##t, 0, initAntialiasing)

inline const std::vector<Case>& cases() {
    static const std::vector<Case> all{KVRI_RESIZE_TYPE(8u), KVRI_RESIZE_TYPE(16u), KVRI_RESIZE_TYPE(16s), KVRI_RESIZE_TYPE(32f),
                                       KVRI_RESIZE_METHOD(Linear, 64f, kvrInterpLinear)};
    return all;
}

}  // namespace test::resize
