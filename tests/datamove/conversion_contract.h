// tests/datamove/conversion_contract.h: Convert and Scale as the contract states them, one sample at a time.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "tests/datamove/conversions.h"

namespace test::conversions::contract {

// Holds every sample of every type exactly, and its multiples by powers of two.
using Number = long double;

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
    if (mode != 1) return std::round(v);
    const Number below = std::floor(v), rest = v - below;
    return below + (rest > 0.5L || (rest == 0.5L && std::fmod(below, 2) != 0));
}

inline Number fitted(Number v, Type t) { return std::isnan(v) ? 0 : std::clamp(v, least(t), most(t)); }

// What an integer destination's sample must be.
inline Number integer(const Case& c, const Call& call, const uint8_t* src) {
    const Number v = load(c.src, src);
    if (c.dropsNegatives) return std::max<Number>(v, 0);
    if (c.stretches && c.src == Type::F32) {
        volatile float k = 255 / (call.most - call.least), product = loadAs<float>(src) * k, offset = call.least * k;
        volatile float difference = product - offset;
        return fitted(rounded(difference, 1), c.dst);
    }
    if (c.stretches)
        return rounded((v - least(c.src)) * (most(c.dst) - least(c.dst)) / (most(c.src) - least(c.src)) + least(c.dst), 1);
    const Number scaled = std::ldexp(v, -std::clamp(c.scales ? call.scale : 0, -1000, 1000));
    return fitted(rounded(scaled, call.mode), c.dst);
}

// What a 32f destination's sample must be, by the rounding mode that is set.
inline float floating(const Case& c, const Call& call, const uint8_t* src) {
    if (c.stretches) {
        volatile float difference = call.most - call.least;
        volatile float step = difference / 255, product = float(*src) * step;
        return call.least + product;
    }
    volatile int64_t v = int64_t(load(c.src, src));
    return float(v);
}

inline void convert(const Case& c, const Call& call, const uint8_t* src, uint8_t* dst) {
    if (c.dst == Type::F32) {
        const float f = floating(c, call, src);
        std::memcpy(dst, &f, 4);
    } else {
        const int64_t n = int64_t(integer(c, call, src));
        std::memcpy(dst, &n, size_t(bytesOf(c.dst)));
    }
}

}  // namespace test::conversions::contract
