// tests/datamove/conversion_contract.h: Convert and Scale as the contract states them, one sample at a time.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "tests/datamove/conversions.h"

namespace test::conversions::contract {

// Holds every sample of every type exactly, and its multiples by powers of two.
using Number = double;

template <class T>
T loadAs(const uint8_t* p) {
    T t;
    std::memcpy(&t, p, sizeof t);
    return t;
}

inline Number load(Type t, const uint8_t* p) {
    switch (t) {
        case Type::U1: return 0;
        case Type::U8: return *p;
        case Type::S8: return loadAs<int8_t>(p);
        case Type::U16: return loadAs<uint16_t>(p);
        case Type::S16: return loadAs<int16_t>(p);
        case Type::U32: return loadAs<uint32_t>(p);
        case Type::S32: return loadAs<int32_t>(p);
        case Type::F32: break;
    }
    return loadAs<float>(p);
}

inline Number least(Type t) { return isSigned(t) ? -std::ldexp(Number(1), 8 * bytesOf(t) - 1) : 0; }
inline Number most(Type t) { return std::ldexp(Number(1), 8 * bytesOf(t) - isSigned(t)) - 1; }

inline Number rounded(Number v, int mode) {
    if (mode == 0) return std::trunc(v);
    return mode == 1 ? std::rint(v) : std::round(v);  // called under the default rounding mode, to nearest
}

inline Number fitted(Number v, Type t) { return std::isnan(v) ? 0 : std::clamp(v, least(t), most(t)); }

// The rules of one call.
class Rules {
    const Case& case_;
    Call call_;
    Number factor_, srcLeast_, dstLeast_, stretch_;

    Number integer(const uint8_t* src) const {
        if (case_.stretches && case_.src == Type::F32) {
            volatile float k = 255 / (call_.most - call_.least), product = loadAs<float>(src) * k, offset = call_.least * k;
            volatile float difference = product - offset;
            return fitted(rounded(difference, 1), case_.dst);
        }
        const Number v = load(case_.src, src);
        if (case_.dropsNegatives) return std::max<Number>(v, 0);
        if (case_.stretches) return rounded((v - srcLeast_) * stretch_ + dstLeast_, 1);
        return fitted(rounded(v * factor_, call_.mode), case_.dst);
    }

    // By the rounding mode that is set.
    float floating(const uint8_t* src) const {
        if (case_.stretches) {
            volatile float difference = call_.most - call_.least;
            volatile float step = difference / 255, product = float(*src) * step;
            return call_.least + product;
        }
        volatile int64_t v = int64_t(load(case_.src, src));
        return float(v);
    }

public:
    Rules(const Case& c, const Call& call)
        : case_(c), call_(call), factor_(std::ldexp(Number(1), -std::clamp(c.scales ? call.scale : 0, -400, 400))),
          srcLeast_(least(c.src)), dstLeast_(least(c.dst)), stretch_((most(c.dst) - dstLeast_) / (most(c.src) - srcLeast_)) {}

    void convert(const uint8_t* src, uint8_t* dst) const {
        if (case_.dst == Type::F32) {
            const float f = floating(src);
            std::memcpy(dst, &f, 4);
        } else {
            const int64_t n = int64_t(integer(src));
            std::memcpy(dst, &n, size_t(bytesOf(case_.dst)));
        }
    }
};

}  // namespace test::conversions::contract
