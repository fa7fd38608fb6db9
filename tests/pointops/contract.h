// tests/pointops/contract.h: arithmetic as the contract states it, one sample at a time, in wide integers.
#pragma once

#include <algorithm>

#include "tests/pointops/arithmetic.h"

namespace test::arithmetic::contract {

using Wide = __int128;

struct Range {
    int64_t least, most;
};
inline Range rangeOf(Type t) {
    switch (t) {
        case Type::U8: return {0, 255};
        case Type::U16: return {0, 65535};
        case Type::S32c: return {INT32_MIN, INT32_MAX};
        default: return {INT16_MIN, INT16_MAX};
    }
}

inline int64_t saturate(Wide r, Range range) { return r < range.least ? range.least : r > range.most ? range.most : int64_t(r); }

// r * 2^-scale, to nearest, ties to even. |r| is at most 2^63.
inline Wide scaled(Wide r, int scale) {
    if (scale <= 0) return scale < -50 ? (r > 0) - (r < 0) ? r * (Wide(1) << 50) : 0 : r * (Wide(1) << -scale);
    if (scale > 100) return 0;
    const Wide quotient = r >> scale, rest = r - (quotient << scale), half = Wide(1) << (scale - 1);
    return quotient + (rest > half || (rest == half && (quotient & 1)));
}

struct Sample {
    int64_t re = 0, im = 0;
};

inline Sample load(Type t, const uint8_t* p) {
    auto part = [&](int i) -> int64_t {
        p += i * partBytes(t);
        if (t == Type::U8) return *p;
        uint16_t w;
        int32_t d;
        std::memcpy(&w, p, 2);
        if (t == Type::U16) return w;
        if (partBytes(t) == 2) return int16_t(w);
        std::memcpy(&d, p, 4);
        return d;
    };
    Sample s{part(0), 0};
    if (partsOf(t) == 2) s.im = part(1);
    return s;
}

inline void store(Type t, uint8_t* p, Sample s) {
    std::memcpy(p, &s.re, size_t(partBytes(t)));
    if (partsOf(t) == 2) std::memcpy(p + partBytes(t), &s.im, size_t(partBytes(t)));
}

inline int64_t byZero(int64_t b, Range range) { return b > 0 ? range.most : b < 0 ? range.least : 0; }

template <class F>
int64_t toInteger(F q, Range range, int mode) {
    if (q >= F(range.most)) return range.most;
    if (q <= F(range.least)) return range.least;
    if (mode == 0) return int64_t(std::trunc(q));
    if (mode == 1) return int64_t(std::nearbyint(q));
    return int64_t(std::round(q));
}

inline Sample quotient(const Case& c, Sample a, Sample b, int scale, int mode) {
    const Range range = rangeOf(c.type);
    if (a.re == 0 && a.im == 0) return {byZero(b.re, range), byZero(b.im, range)};
    if (partsOf(c.type) == 1) {
        const float q = std::ldexp(float(b.re), -std::clamp(scale, -60, 60)) / float(a.re);
        return {toInteger(q, range, c.operation == "Div_Round" ? mode : 1), 0};
    }
    const double ar = double(a.re), ai = double(a.im), br = double(b.re), bi = double(b.im);
    const double products[6] = {br * ar, bi * ai, bi * ar, br * ai, ar * ar, ai * ai};
    const double m = products[4] + products[5], re = (products[0] + products[1]) / m, im = (products[2] - products[3]) / m;
    const int n = -std::clamp(scale, -200, 200);
    return {toInteger(std::ldexp(re, n), range, 1), toInteger(std::ldexp(im, n), range, 1)};
}

// a: the first source or the constant, b: the second source or the image.
inline Sample integer(const Case& c, Sample a, Sample b, int scale, int mode) {
    if (c.divides()) return quotient(c, a, b, scale, mode);
    const Range range = rangeOf(c.type);
    auto finish = [&](Wide re, Wide im) { return Sample{saturate(scaled(re, scale), range), saturate(scaled(im, scale), range)}; };
    if (c.is("Add")) return finish(Wide(a.re) + b.re, Wide(a.im) + b.im);
    if (c.is("Sub")) return finish(Wide(b.re) - a.re, Wide(b.im) - a.im);
    if (c.is("Mul")) {
        if (partsOf(c.type) == 1) return finish(Wide(a.re) * b.re, 0);
        return finish(Wide(a.re) * b.re - Wide(a.im) * b.im, Wide(a.re) * b.im + Wide(a.im) * b.re);
    }
    const int bits = 8 * partBytes(c.type);  // MulScale, MulCScale
    const int64_t t = a.re * b.re;
    return {(t + 1 + (t >> bits)) >> bits, 0};
}

inline void floatingQuotient(const Case& c, const float (&a)[2], const float (&b)[2], float (&r)[2]) {
    if (a[0] == 0 && a[1] == 0) {
        for (int i = 0; i < 2; ++i) {
            const uint32_t nan = 0x7FBFFFFF;
            if (b[i] == 0) std::memcpy(&r[i], &nan, 4);
            else r[i] = std::isnan(b[i]) ? b[i] : std::copysign(INFINITY, b[i]);
        }
    } else if (partsOf(c.type) == 1) {
        r[0] = b[0] / a[0];
    } else {
        const double ar = a[0], ai = a[1], br = b[0], bi = b[1];
        const double products[6] = {br * ar, bi * ai, bi * ar, br * ai, ar * ar, ai * ai}, m = products[4] + products[5];
        r[0] = float((products[0] + products[1]) / m), r[1] = float((products[2] - products[3]) / m);
    }
}

inline void floating(const Case& c, const uint8_t* pa, const uint8_t* pb, uint8_t* result) {
    float a[2] = {}, b[2] = {}, r[2] = {};
    const size_t bytes = size_t(sampleBytes(c.type));
    std::memcpy(a, pa, bytes);
    std::memcpy(b, pb, bytes);
    if (c.divides()) floatingQuotient(c, a, b, r);
    else if (c.is("Add")) r[0] = a[0] + b[0], r[1] = a[1] + b[1];
    else if (c.is("Sub")) r[0] = b[0] - a[0], r[1] = b[1] - a[1];
    else if (partsOf(c.type) == 1) r[0] = a[0] * b[0];
    else {
        const float products[4] = {a[0] * b[0], a[1] * b[1], a[0] * b[1], a[1] * b[0]};
        r[0] = products[0] - products[1], r[1] = products[2] + products[3];
    }
    std::memcpy(result, r, bytes);
}

}  // namespace test::arithmetic::contract
