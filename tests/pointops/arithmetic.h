// tests/pointops/arithmetic.h: the two-operand functions in one shape, and what their results must be.
#pragma once

#include <cfenv>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::arithmetic {

struct Call {
    const void *src1 = nullptr, *src2 = nullptr;  // src2: the image of functions with a constant
    void* dst = nullptr;                          // in place the same as src2
    int step1 = 0, step2 = 0, dstStep = 0;
    KvriSize roi{};
    const void* value = nullptr;
    int mode = 0, scale = 0;
};

// Calls a function so many times; the status is that of the last.
using Function = std::function<KvrStatus(const Call&, int)>;

namespace detail {

template <class F>
KvrStatus repeat(int times, F f) {
    KvrStatus status = kvrStatusOk;
    while (times-- > 0) status = f();
    return status;
}
template <class V>
V constantOf(const void* p) {
    if constexpr (std::is_pointer_v<V>) return static_cast<V>(p);
    else return *static_cast<const V*>(p);
}
// The trailing parameters: none, a scale factor, or a rounding mode and a scale factor.
template <class F, class... Args>
KvrStatus withTail(const Call&, std::tuple<>, F f, Args... args) { return f(args...); }
template <class F, class... Args>
KvrStatus withTail(const Call& c, std::tuple<int>, F f, Args... args) { return f(args..., c.scale); }
template <class F, class... Args>
KvrStatus withTail(const Call& c, std::tuple<int, int>, F f, Args... args) { return f(args..., c.mode, c.scale); }

}  // namespace detail

template <class T, class... Tail>
Function function(KvrStatus (*f)(const T*, int, const T*, int, T*, int, KvriSize, Tail...)) {
    return [=](const Call& c, int n) {
        return detail::repeat(n, [&] {
            return detail::withTail(c, std::tuple<Tail...>{}, f, (const T*)c.src1, c.step1, (const T*)c.src2, c.step2,
                                    (T*)c.dst, c.dstStep, c.roi);
        });
    };
}
template <class T, class... Tail>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, Tail...)) {
    return [=](const Call& c, int n) {
        return detail::repeat(n, [&] {
            return detail::withTail(c, std::tuple<Tail...>{}, f, (const T*)c.src1, c.step1, (T*)c.dst, c.dstStep, c.roi);
        });
    };
}
template <class T, class V, class... Tail>
Function function(KvrStatus (*f)(const T*, int, V, T*, int, KvriSize, Tail...)) {
    return [=](const Call& c, int n) {
        return detail::repeat(n, [&] {
            return detail::withTail(c, std::tuple<Tail...>{}, f, (const T*)c.src2, c.step2, detail::constantOf<V>(c.value),
                                    (T*)c.dst, c.dstStep, c.roi);
        });
    };
}
template <class V, class T, class... Tail>
Function function(KvrStatus (*f)(V, T*, int, KvriSize, Tail...)) {
    return [=](const Call& c, int n) {
        return detail::repeat(n, [&] {
            return detail::withTail(c, std::tuple<Tail...>{}, f, detail::constantOf<V>(c.value), (T*)c.dst, c.dstStep, c.roi);
        });
    };
}

enum class Type { U8, U16, S16, F32, S16c, S32c, F32c };

constexpr int partsOf(Type t) { return t >= Type::S16c ? 2 : 1; }
constexpr int partBytes(Type t) {
    constexpr int bytes[] = {1, 2, 2, 4, 2, 4, 4};
    return bytes[int(t)];
}
constexpr int sampleBytes(Type t) { return partsOf(t) * partBytes(t); }
constexpr bool isFloat(Type t) { return t == Type::F32 || t == Type::F32c; }

// A function, and what its name tells.
struct Case {
    std::string name;
    Function function;
    std::string operation;  // Add, SubC, Div_Round ...
    Type type;
    int channels, colours;
    bool inPlace, constant;

    Case(const char* n, Function f) : name(n), function(std::move(f)) {
        const size_t layoutAt = name.rfind('_'), typeAt = name.rfind('_', layoutAt - 1);
        const std::string layout = name.substr(layoutAt + 1), code = name.substr(typeAt + 1, layoutAt - typeAt - 1);
        const char* codes[] = {"8u", "16u", "16s", "32f", "16sc", "32sc", "32fc"};
        type = Type(0);
        while (code != codes[int(type)]) type = Type(int(type) + 1);
        operation = name.substr(4, typeAt - 4);
        const bool alpha = layout[0] == 'A';
        channels = layout[alpha ? 2 : 1] - '0';
        colours = alpha ? 3 : channels;
        inPlace = layout.find('I') != std::string::npos;
        constant = operation.back() == 'C' || operation == "MulCScale";
    }
    bool is(const char* op) const { return operation == op || operation == std::string(op) + "C"; }
    bool divides() const { return operation.rfind("Div", 0) == 0; }
    bool scales() const { return name.find("Sfs") != std::string::npos; }
    bool checksSteps() const { return divides() || partsOf(type) == 2 || operation.find("Scale") != std::string::npos; }
    int pixelBytes() const { return channels * sampleBytes(type); }
};

inline void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

#define KVRI_CASE(name) {#name, function(name)}
#define KVRI_BOTH(op, t, l, sfs) KVRI_CASE(kvri##op##_##t##_##l##R##sfs), KVRI_CASE(kvri##op##_##t##_##l##IR##sfs)
#define KVRI_FOUR(op, t, sfs) KVRI_BOTH(op, t, C1, sfs), KVRI_BOTH(op, t, C3, sfs), KVRI_BOTH(op, t, C4, sfs), KVRI_BOTH(op, t, AC4, sfs)
#define KVRI_THREE(op, t, sfs) KVRI_BOTH(op, t, C1, sfs), KVRI_BOTH(op, t, C3, sfs), KVRI_BOTH(op, t, AC4, sfs)
#define KVRI_INTEGERS(op, sfs) KVRI_FOUR(op, 8u, sfs), KVRI_FOUR(op, 16u, sfs), KVRI_FOUR(op, 16s, sfs)
#define KVRI_ALL(op)                                                                                              \
    KVRI_INTEGERS(op, Sfs), KVRI_THREE(op, 16sc, Sfs), KVRI_THREE(op, 32sc, Sfs), KVRI_FOUR(op, 32f, ), KVRI_THREE(op, 32fc, )

inline const std::vector<Case> kArithmetic = {
    KVRI_ALL(Add), KVRI_ALL(AddC), KVRI_ALL(Sub), KVRI_ALL(SubC), KVRI_ALL(Mul), KVRI_ALL(MulC),
    KVRI_ALL(Div), KVRI_ALL(DivC), KVRI_INTEGERS(Div_Round, Sfs),
    KVRI_FOUR(MulScale, 8u, ), KVRI_FOUR(MulScale, 16u, ), KVRI_FOUR(MulCScale, 8u, ), KVRI_FOUR(MulCScale, 16u, ),
};

}  // namespace test::arithmetic
