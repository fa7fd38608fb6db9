// tests/pointops/lut.h: the functions of levels and values in one shape.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::lut {

struct Call {
    const void* src = nullptr;  // in place the same as dst
    void* dst = nullptr;
    int srcStep = 0, dstStep = 0;
    KvriSize roi{};
    const void *values[4] = {}, *levels[4] = {};
    int nLevels[4] = {};
    bool noValues = false, noLevels = false, noCounts = false;  // of several channels: the arrays themselves are null
};

using Function = std::function<KvrStatus(const Call&)>;

template <class V>
struct Arrays {
    const V *values[4], *levels[4];
    explicit Arrays(const Call& c) {
        for (int i = 0; i < 4; ++i) {
            values[i] = static_cast<const V*>(c.values[i]);
            levels[i] = static_cast<const V*>(c.levels[i]);
        }
    }
};

template <class T, class V>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const V*, const V*, int)) {
    return [=](const Call& c) {
        const Arrays<V> a(c);
        return f((const T*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, a.values[0], a.levels[0], c.nLevels[0]);
    };
}
template <class T, class V>
Function function(KvrStatus (*f)(T*, int, KvriSize, const V*, const V*, int)) {
    return [=](const Call& c) {
        const Arrays<V> a(c);
        return f((T*)c.dst, c.dstStep, c.roi, a.values[0], a.levels[0], c.nLevels[0]);
    };
}
template <class T, class V>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const V* const*, const V* const*, const int*)) {
    return [=](const Call& c) {
        const Arrays<V> a(c);
        return f((const T*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, c.noValues ? nullptr : a.values,
                 c.noLevels ? nullptr : a.levels, c.noCounts ? nullptr : c.nLevels);
    };
}
template <class T, class V>
Function function(KvrStatus (*f)(T*, int, KvriSize, const V* const*, const V* const*, const int*)) {
    return [=](const Call& c) {
        const Arrays<V> a(c);
        return f((T*)c.dst, c.dstStep, c.roi, c.noValues ? nullptr : a.values, c.noLevels ? nullptr : a.levels,
                 c.noCounts ? nullptr : c.nLevels);
    };
}

enum class Kind { Step, Linear, Cubic };
enum class Type { U8, U16, S16, F32 };
constexpr int sampleBytes(Type t) { return t == Type::U8 ? 1 : t == Type::F32 ? 4 : 2; }

// A function, and what its name tells.
struct Case {
    std::string name;
    Function function;
    Kind kind;
    Type type;
    int channels, colours;
    bool inPlace;

    Case(const char* n, Function f) : name(n), function(std::move(f)) {
        const auto has = [&](const char* text) { return name.find(text) != std::string::npos; };
        kind = has("Linear") ? Kind::Linear : has("Cubic") ? Kind::Cubic : Kind::Step;
        type = has("_8u") ? Type::U8 : has("_16u") ? Type::U16 : has("_16s") ? Type::S16 : Type::F32;
        channels = has("C1") ? 1 : has("C3") ? 3 : 4;
        colours = has("AC4") ? 3 : channels;
        inPlace = has("IR");
    }
    int pixelBytes() const { return channels * sampleBytes(type); }
};

#define KVRI_LUT(op, t, l) {#op "_" #t "_" #l "R", function(op##_##t##_##l##R)}, {#op "_" #t "_" #l "IR", function(op##_##t##_##l##IR)}
#define KVRI_LUTS_OF(op, t) KVRI_LUT(op, t, C1), KVRI_LUT(op, t, C3), KVRI_LUT(op, t, C4), KVRI_LUT(op, t, AC4)
#define KVRI_LUTS(op) KVRI_LUTS_OF(op, 8u), KVRI_LUTS_OF(op, 16u), KVRI_LUTS_OF(op, 16s), KVRI_LUTS_OF(op, 32f)

inline const std::vector<Case> kLuts = {KVRI_LUTS(kvriLUT), KVRI_LUTS(kvriLUT_Linear), KVRI_LUTS(kvriLUT_Cubic)};

}  // namespace test::lut
