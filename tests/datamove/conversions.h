// tests/datamove/conversions.h: Convert and Scale in one shape, for the tests and the benchmarks.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::conversions {

struct Call {
    const void* src = nullptr;
    void* dst = nullptr;
    int srcStep = 0, dstStep = 0;
    KvriSize roi{};
    int mode = 0, scale = 0, bitOffset = 0;
    Kvr32f least = 0, most = 1;
};

// Calls a function so many times; the status is that of the last.
using Function = std::function<KvrStatus(const Call&, int)>;

namespace detail {

template <class F>
Function repeated(F f) {
    return [=](const Call& c, int times) {
        KvrStatus status = kvrStatusOk;
        while (times-- > 0) status = f(c);
        return status;
    };
}

}  // namespace detail

template <class S, class T>
Function function(KvrStatus (*f)(const S*, int, T*, int, KvriSize)) {
    return detail::repeated([=](const Call& c) { return f((const S*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi); });
}
template <class S, class T>
Function function(KvrStatus (*f)(const S*, int, T*, int, KvriSize, KvrRoundMode)) {
    return detail::repeated([=](const Call& c) { return f((const S*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, c.mode); });
}
template <class S, class T>
Function function(KvrStatus (*f)(const S*, int, T*, int, KvriSize, KvrRoundMode, int)) {
    return detail::repeated([=](const Call& c) { return f((const S*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, c.mode, c.scale); });
}
inline Function function(KvrStatus (*f)(Kvr32u*, int, KvriSize, KvrRoundMode, int)) {
    return detail::repeated([=](const Call& c) { return f((Kvr32u*)c.dst, c.dstStep, c.roi, c.mode, c.scale); });
}
template <class S, class T>
Function function(KvrStatus (*f)(const S*, int, T*, int, KvriSize, Kvr32f, Kvr32f)) {
    return detail::repeated([=](const Call& c) { return f((const S*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, c.least, c.most); });
}
inline Function function(KvrStatus (*f)(const Kvr8u*, int, int, Kvr8u*, int, KvriSize)) {
    return detail::repeated([=](const Call& c) {
        return f((const Kvr8u*)c.src, c.srcStep, c.bitOffset, (Kvr8u*)c.dst, c.dstStep, c.roi);
    });
}

enum class Type { U1, U8, S8, U16, S16, U32, S32, F32 };

constexpr int bytesOf(Type t) {
    constexpr int bytes[] = {0, 1, 1, 2, 2, 4, 4, 4};
    return bytes[int(t)];
}
constexpr bool isSigned(Type t) { return t == Type::S8 || t == Type::S16 || t == Type::S32; }

// A function, and what its name tells.
struct Case {
    std::string name;
    Function function;
    bool checksSteps;
    Type src, dst;
    int channels, colours;
    bool stretches, scales, dropsNegatives, inPlace;  // stretches: kvriScale

    Case(const char* n, Function f, bool steps) : name(n), function(std::move(f)), checksSteps(steps) {
        const size_t typesAt = name.find('_') + 1, layoutAt = name.rfind('_') + 1;
        std::string types = name.substr(typesAt, layoutAt - 1 - typesAt);
        src = takeType(types);
        dst = takeType(types);
        const std::string layout = name.substr(layoutAt);
        const bool alpha = layout[0] == 'A';
        channels = layout[alpha ? 2 : 1] - '0';
        colours = alpha ? 3 : channels;
        auto ends = [&](const char* with) { return layout.size() > 2 && layout.substr(alpha ? 3 : 2) == with; };
        stretches = name.rfind("kvriScale", 0) == 0;
        dropsNegatives = ends("Rs");
        inPlace = ends("IRSfs");
        scales = ends("RSfs") || inPlace;
    }
    bool rounds() const { return src == Type::F32 && !stretches; }
    bool hasMode() const { return rounds() || scales; }
    bool hasInterval() const { return stretches && (src == Type::F32 || dst == Type::F32); }
    bool hasBits() const { return src == Type::U1; }
    int srcRow(int width) const { return width * channels * bytesOf(src); }
    int dstRow(int width) const { return width * channels * bytesOf(dst); }

private:
    static Type takeType(std::string& text) {
        const char* codes[] = {"1u", "8u", "8s", "16u", "16s", "32u", "32s", "32f"};
        int t = 0;
        while (text.rfind(codes[t], 0) != 0) ++t;
        text.erase(0, std::string(codes[t]).size());
        return Type(t);
    }
};

inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

#define KVRI_STEPS(name) {#name, function(name), true}
#define KVRI_ANY_STEP(name) {#name, function(name), false}
#define KVRI_LAYOUTS(checks, name) checks(name##_C1R), checks(name##_C3R), checks(name##_C4R), checks(name##_AC4R)
#define KVRI_FROM_TO(types) KVRI_LAYOUTS(KVRI_STEPS, kvriConvert_##types)
#define KVRI_SFS(types) KVRI_ANY_STEP(kvriConvert_##types##_C1RSfs)
#define KVRI_RS(types) KVRI_ANY_STEP(kvriConvert_##types##_C1Rs)
#define KVRI_STRETCH(types) KVRI_LAYOUTS(KVRI_STEPS, kvriScale_##types)

inline const std::vector<Case> kConvertCases = {
    KVRI_FROM_TO(8u16u), KVRI_FROM_TO(8u16s), KVRI_FROM_TO(8u32s), KVRI_FROM_TO(8u32f), KVRI_FROM_TO(8s32s), KVRI_FROM_TO(8s32f),
    KVRI_FROM_TO(16u8u), KVRI_FROM_TO(16s8u), KVRI_FROM_TO(16u32f), KVRI_FROM_TO(16s32f), KVRI_FROM_TO(32s8u), KVRI_FROM_TO(32s8s),
    KVRI_FROM_TO(32f8u), KVRI_FROM_TO(32f8s), KVRI_FROM_TO(32f16u), KVRI_FROM_TO(32f16s),
    KVRI_LAYOUTS(KVRI_ANY_STEP, kvriConvert_16u32s), KVRI_LAYOUTS(KVRI_ANY_STEP, kvriConvert_16s32s),
    KVRI_ANY_STEP(kvriConvert_8s16s_C1R), KVRI_ANY_STEP(kvriConvert_16u32u_C1R), KVRI_ANY_STEP(kvriConvert_32s32f_C1R),
    KVRI_ANY_STEP(kvriConvert_32u32f_C1R),
    KVRI_SFS(16s8s), KVRI_SFS(16u16s), KVRI_SFS(16u8s), KVRI_SFS(32s16s), KVRI_SFS(32s16u), KVRI_SFS(32u16s), KVRI_SFS(32u16u),
    KVRI_SFS(32u32s), KVRI_SFS(32u8s), KVRI_SFS(32u8u), KVRI_SFS(8u8s), KVRI_SFS(32f8u), KVRI_SFS(32f8s), KVRI_SFS(32f16u),
    KVRI_SFS(32f16s), KVRI_SFS(32f32s), KVRI_SFS(32f32u), KVRI_ANY_STEP(kvriConvert_32f32u_C1IRSfs),
    KVRI_RS(8s8u), KVRI_RS(8s16u), KVRI_RS(8s32u), KVRI_RS(16s16u), KVRI_RS(16s32u), KVRI_RS(32s32u),
    KVRI_STEPS(kvriConvert_1u8u_C1R),
};

inline const std::vector<Case> kScaleCases = {
    KVRI_STRETCH(8u16u), KVRI_STRETCH(8u16s), KVRI_STRETCH(8u32s), KVRI_STRETCH(16u8u), KVRI_STRETCH(16s8u), KVRI_STRETCH(32s8u),
    KVRI_STRETCH(8u32f), KVRI_STRETCH(32f8u),
};

}  // namespace test::conversions
