// tests/datamove/border.h: every border function in one shape, for the tests and the benchmarks.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::border {

struct Call {
    const void* src;
    int srcStep;
    KvriSize srcRoi;
    void* dst;  // first pixel of the destination; functions in place take `src` alone
    int dstStep;
    KvriSize dstRoi;
    int top, left;
    const void* value;
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

template <class T>
Function function(KvrStatus (*f)(const T*, int, KvriSize, T*, int, KvriSize, int, int)) {
    return detail::repeated([=](const Call& c) {
        return f(static_cast<const T*>(c.src), c.srcStep, c.srcRoi, static_cast<T*>(c.dst), c.dstStep, c.dstRoi, c.top, c.left);
    });
}
template <class T>
Function function(KvrStatus (*f)(T*, int, KvriSize, KvriSize, int, int)) {
    return detail::repeated([=](const Call& c) {
        return f(static_cast<T*>(const_cast<void*>(c.src)), c.srcStep, c.srcRoi, c.dstRoi, c.top, c.left);
    });
}
template <class T, class V>
Function function(KvrStatus (*f)(const T*, int, KvriSize, T*, int, KvriSize, int, int, V)) {
    return detail::repeated([=](const Call& c) {
        const auto* values = static_cast<const T*>(c.value);
        const auto call = [&](auto value) {
            return f(static_cast<const T*>(c.src), c.srcStep, c.srcRoi, static_cast<T*>(c.dst), c.dstStep, c.dstRoi, c.top, c.left, value);
        };
        if constexpr (std::is_pointer_v<V>) return call(values);
        else return call(*values);
    });
}

enum class Kind { Const, Replicate, Wrap };

// A function, and what its name tells.
struct Case {
    std::string name;
    Function function;
    Kind kind;
    int sampleBytes, channels, colours;
    bool inPlace;

    Case(const char* n, int sampleBytes, Function f) : name(n), function(std::move(f)), sampleBytes(sampleBytes) {
        kind = has("Const") ? Kind::Const : has("Replicate") ? Kind::Replicate : Kind::Wrap;
        channels = has("C1") ? 1 : has("C3") ? 3 : 4;
        colours = has("AC4") ? 3 : channels;
        inPlace = has("IR");
    }
    bool has(const char* part) const { return name.find(part) != std::string::npos; }
    bool hasArray() const { return kind == Kind::Const && channels > 1; }
    int pixelBytes() const { return sampleBytes * channels; }
};

inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

#define KVRI_CASE(name, t) {#name, sizeof(Kvr##t), function(name)}
#define KVRI_LAYOUT(t, l)                                                                                   \
    KVRI_CASE(kvriCopyConstBorder_##t##_##l##R, t), KVRI_CASE(kvriCopyReplicateBorder_##t##_##l##R, t),     \
    KVRI_CASE(kvriCopyReplicateBorder_##t##_##l##IR, t)
#define KVRI_TYPE(t) KVRI_LAYOUT(t, C1), KVRI_LAYOUT(t, C3), KVRI_LAYOUT(t, C4), KVRI_LAYOUT(t, AC4)

inline const std::vector<Case> kBorders = {
    KVRI_TYPE(8u), KVRI_TYPE(16u), KVRI_TYPE(16s), KVRI_TYPE(32s), KVRI_TYPE(32f),
    KVRI_CASE(kvriCopyWrapBorder_32s_C1R, 32s), KVRI_CASE(kvriCopyWrapBorder_32s_C1IR, 32s),
    KVRI_CASE(kvriCopyWrapBorder_32f_C1R, 32f), KVRI_CASE(kvriCopyWrapBorder_32f_C1IR, 32f),
};

#undef KVRI_CASE
#undef KVRI_LAYOUT
#undef KVRI_TYPE

}  // namespace test::border
