// pointops/reciprocal.h: divisions by constants, exactly rounded, as multiplications.
//
// Integers: N-bit multiplications and a remainder (Granlund and Montgomery, "Division by invariant integers using
// multiplication", PLDI 1994; Robison, "N-bit unsigned division via N-bit multiply-add", ARITH 2005). Floating point: a
// reciprocal in two parts (Brisebarre, Muller and Raina, "Accelerating correctly rounded floating-point division when the
// divisor is known in advance", IEEE Transactions on Computers 53, 2004).
#pragma once

#include <bit>
#include <cmath>

#include "pointops/arithmetic.h"

namespace kvri {

// What divides 16-bit numbers n by d, up to 65535, to nearest, ties to even:
//   floor(n / d) = ((min(n + increment, 65535) * multiplier) >> 16) >> shift, and the remainder decides.
struct Reciprocal {
    uint16_t multiplier, increment, shift, divisor, half, even;
    uint16_t sign = 0;  // of a negative divisor -1

    // Of numbers up to 255 none needs increment or shift.
    static Reciprocal ofBytes(unsigned d) {
        return {uint16_t(std::min((65535 + d) / d, 65535u)), 0, 0, uint16_t(d), uint16_t((d - 1 + isEven(d)) / 2), isEven(d)};
    }
    static Reciprocal ofWords(unsigned d) {
        const int shift = std::bit_width(d) - 1;
        const uint64_t power = uint64_t(1) << (16 + shift), below = power / d, rest = power % d;
        const bool roundUp = rest != 0 && d - rest <= uint64_t(1) << shift;
        const uint16_t multiplier = rest == 0 ? 65535 : uint16_t(below + roundUp);
        return {multiplier, !roundUp, shiftCode(shift), uint16_t(d), uint16_t((d - 1 + isEven(d)) / 2), isEven(d)};
    }

    // Where no shift has a count per element, the upper half of a product is one, by 1 bit or more.
#if defined(__AVX512BW__)
    static constexpr unsigned leastWord = 1;
    static uint16_t shiftCode(int n) { return uint16_t(n); }
    static Vec<uint16_t> shifted(Vec<uint16_t> v, Vec<uint16_t> code) { return (Vec<uint16_t>)_mm512_srlv_epi16((__m512i)v, (__m512i)code); }
#else
    static constexpr unsigned leastWord = 2;
    static uint16_t shiftCode(int n) { return uint16_t(1 << (16 - n)); }
    static Vec<uint16_t> shifted(Vec<uint16_t> v, Vec<uint16_t> code) { return multiplyHigh(v, code); }
#endif

private:
    static uint16_t isEven(unsigned d) { return d % 2 == 0; }
};

// The divisors |value| * 2^scaleFactor of an operation on T, if all of them are such. -32768 / -1 is left to others.
template <class T>
bool reciprocalsOf(const T* value, int n, int scaleFactor, Reciprocal* reciprocal) {
    constexpr unsigned least = sizeof(T) == 1 ? 1 : std::is_signed_v<T> ? 2 : Reciprocal::leastWord;
    if (scaleFactor < 0 || scaleFactor > 15) return false;
    for (int i = 0; i < n; ++i) {
        const unsigned d = unsigned(std::abs(int(value[i]))) << scaleFactor;
        if (d < least || d > 65535) return false;
        reciprocal[i] = sizeof(T) == 1 ? Reciprocal::ofBytes(d) : Reciprocal::ofWords(d);
        reciprocal[i].sign = value[i] < 0 ? 0xFFFF : 0;
    }
    return true;
}

// What decides after q = floor(n / d).
template <class V>
inline V roundedQuotient(V q, V rest, V half, V even) {
    return oneMoreWhereGreater(q, rest + (q & even), half);
}

// Words n / d.
struct ReciprocalLanes {
    using V = Vec<uint16_t>;
    V multiplier, increment, shift, divisor, half, even;

    V divide(V n) const {
        const V q = Reciprocal::shifted(multiplyHigh(addSat(n, increment), multiplier), shift);
        return roundedQuotient(q, n - q * divisor, half, even);
    }
};

// One member of all reciprocals.
template <int B, class T>
FromValue<B> memberPattern(const Reciprocal* r, int n, uint16_t Reciprocal::*member) {
    T values[4];
    for (int i = 0; i < n; ++i) values[i] = T(std::min<int>(r[i].*member, std::numeric_limits<T>::max()));
    return FromValue<B>(values, n * int(sizeof(T)));
}

template <class T>
struct ReciprocalPattern {
    template <int B>
    class Of {
        FromValue<B> multiplier_, increment_, shift_, divisor_, half_, even_;

    public:
        Of(const Reciprocal* r, int n)
            : multiplier_(memberPattern<B, uint16_t>(r, n, &Reciprocal::multiplier)),
              increment_(memberPattern<B, uint16_t>(r, n, &Reciprocal::increment)),
              shift_(memberPattern<B, uint16_t>(r, n, &Reciprocal::shift)),
              divisor_(memberPattern<B, uint16_t>(r, n, &Reciprocal::divisor)),
              half_(memberPattern<B, uint16_t>(r, n, &Reciprocal::half)),
              even_(memberPattern<B, uint16_t>(r, n, &Reciprocal::even)) {}

        template <int j>
        KVRI_INLINE ReciprocalLanes vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
            const auto of = [&](const FromValue<B>& v) { return (Vec<uint16_t>)v.template vector<j>(block, first, bytes); };
            return {of(multiplier_), of(increment_), of(shift_), of(divisor_), of(half_), of(even_)};
        }
    };
};

// Bytes are divided as words, the low and the high halves of their lanes; what decides are bytes again. Divisors from 256 on
// leave the remainder n, and the half is beyond it or exact.
template <>
struct ReciprocalPattern<uint8_t> {
    struct Lanes {
        using V = Vec<uint8_t>;
        using Wide = Vec<uint16_t>;
        Wide lowMultiplier, lowDivisor, highMultiplier, highDivisor;
        V half, even;

        V divide(V n) const {
            const Wide low = widenLow(n), high = widenHigh(n);
            const Wide lowQ = multiplyHigh(low, lowMultiplier), highQ = multiplyHigh(high, highMultiplier);
            const V rest = narrow<uint8_t>(low - lowQ * lowDivisor, high - highQ * highDivisor);
            return roundedQuotient(narrow<uint8_t>(lowQ, highQ), rest, half, even);
        }
    };

    template <int B>
    class Of {
        using Wide = Vec<uint16_t>;
        static constexpr int period = kPeriod<B>, next = kVectorBytes % 3 == 1 ? 2 : 1;
        Wide multiplier_[period], divisor_[period];
        FromValue<B> half_, even_;

        static void widen(Wide* pattern, const Reciprocal* r, int n, uint16_t Reciprocal::*member) {
            uint8_t low[4], high[4];
            for (int i = 0; i < n; ++i) {
                low[i] = uint8_t(r[i].*member);
                high[i] = uint8_t(r[i].*member >> 8);
            }
            const FromValue<B> a(low, n), b(high, n);
            unroll<period>([&](auto j) {
                pattern[j] = (Wide)zipLow<1>(a.template vector<j>(0, 0, 0), b.template vector<j>(0, 0, 0));
            });
        }

    public:
        Of(const Reciprocal* r, int n)
            : half_(memberPattern<B, uint8_t>(r, n, &Reciprocal::half)), even_(memberPattern<B, uint8_t>(r, n, &Reciprocal::even)) {
            widen(multiplier_, r, n, &Reciprocal::multiplier);
            widen(divisor_, r, n, &Reciprocal::divisor);
        }

        // Eight bytes on, the pattern is that of the vector 8 / kVectorBytes (modulo 3) further.
        template <int j>
        KVRI_INLINE Lanes vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
            constexpr int low = j % period, high = (j + next) % period;
            return {multiplier_[low], divisor_[low], multiplier_[high], divisor_[high],
                    half_.template vector<j>(block, first, bytes), even_.template vector<j>(block, first, bytes)};
        }
    };
};

// Of signed numbers the magnitudes are divided.
template <>
struct ReciprocalPattern<int16_t> {
    struct Lanes {
        ReciprocalLanes magnitude;
        Vec<uint16_t> sign;
    };

    template <int B>
    class Of {
        ReciprocalPattern<uint16_t>::Of<B> magnitude_;
        FromValue<B> sign_;

    public:
        Of(const Reciprocal* r, int n) : magnitude_(r, n), sign_(memberPattern<B, uint16_t>(r, n, &Reciprocal::sign)) {}

        template <int j>
        KVRI_INLINE Lanes vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
            return {magnitude_.template vector<j>(block, first, bytes), (Vec<uint16_t>)sign_.template vector<j>(block, first, bytes)};
        }
    };
};

template <class T>
struct QuotientByReciprocal {
    using Sample = T;
    static constexpr int unrolled = 1;
    using V = Vec<T>;

    V operator()(const ReciprocalPattern<uint8_t>::Lanes& r, V b) const { return r.divide(b); }
    V operator()(const ReciprocalLanes& r, V b) const { return r.divide(b); }
    V operator()(const ReciprocalPattern<int16_t>::Lanes& r, V b) const {
        using U = Vec<uint16_t>;
        const U sign = (U)(b >> 15), q = r.magnitude.divide(((U)b ^ sign) - sign), flip = sign ^ r.sign;
        return (V)((q ^ flip) - flip);
    }
};

#if defined(__FMA__)

// 1 / c in two parts of c's sign, the first below it in magnitude: with the second it is exact to 46 bits.
struct FloatReciprocal {
    float divisor, high, low;

    explicit FloatReciprocal(float c) : divisor(c) {
        const double z = 1 / double(c);
        high = float(z);
        if (std::abs(double(high)) >= std::abs(z)) high = std::bit_cast<float>(std::bit_cast<uint32_t>(high) - 1);
        low = float(z - high);
    }
    FloatReciprocal() = default;

    float operator()(float x) const { return std::fma(x, high, x * low); }

    // Whether the quotient of every x is the exactly rounded one; for c within 2^-30 to 2^30. Only quotients that lie very
    // close to the middle of two numbers could fail: with integer mantissas X of x and Y of c, those with
    // |2^k X - (2Q + 1) Y| <= 8, k = 24 or 25. These are 16 values of x at most, which are tried.
    bool exact() const {
        const uint32_t bits = std::bit_cast<uint32_t>(divisor), y = (bits & 0x7FFFFF) | 0x800000;
        const int zeros = std::countr_zero(y);
        if (zeros > 3) return true;
        const uint32_t odd = y >> zeros;
        uint32_t inverse = odd;  // modulo 2^32, each step doubling the number of right bits
        for (int i = 0; i < 4; ++i) inverse *= 2 - odd * inverse;
        bool all = true;
        for (int k = 24; k <= 25; ++k)
            for (int t = -(8 >> zeros) | 1; t <= 8 >> zeros; t += 2) all &= exactFor(y, zeros, uint32_t(-t) * inverse, k, t);
        return all;
    }

private:
    bool exactFor(uint32_t y, int zeros, uint32_t solution, int k, int t) const {
        const uint32_t modulus = 1u << (k - zeros);
        bool all = true;
        for (uint32_t middle = solution & (modulus - 1); middle < 1u << 25; middle += modulus) {
            const int64_t product = int64_t(uint64_t(middle) * y) + t * (int64_t(1) << zeros);
            const float x = float(product >> k);
            all &= middle < 1u << 24 || (*this)(x) == x / divisor;
        }
        return all;
    }
};

// For reciprocals that are exact, while the caller has the default floating-point control.
struct FloatReciprocalPattern {
    struct Lanes {
        Vec<float> divisor, high, low;
    };

    template <int B>
    class Of {
        FromValue<B> divisor_, high_, low_;

        static FromValue<B> pattern(const FloatReciprocal* r, int n, float FloatReciprocal::*member) {
            float values[4];
            for (int i = 0; i < n; ++i) values[i] = r[i].*member;
            return FromValue<B>(values, n * 4);
        }

    public:
        Of(const FloatReciprocal* r, int n)
            : divisor_(pattern(r, n, &FloatReciprocal::divisor)), high_(pattern(r, n, &FloatReciprocal::high)),
              low_(pattern(r, n, &FloatReciprocal::low)) {}

        template <int j>
        KVRI_INLINE Lanes vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
            const auto of = [&](const FromValue<B>& v) { return (Vec<float>)v.template vector<j>(block, first, bytes); };
            return {of(divisor_), of(high_), of(low_)};
        }
    };
};

struct FloatQuotientByReciprocal {
    using Sample = float;
    using V = Vec<float>;

    template <int B, int Chosen, class Reciprocals>
    KVRI_INLINE void row(uint8_t* dst, ptrdiff_t pixels, const Reciprocals& reciprocals, FromImage<B> image) const {
        constexpr int N = kPeriod<B> == 1 ? 4 : kPeriod<B>;
        forEachBlock<N * kVectorBytes / B, Chosen != B>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
            const auto bytesFrom = [&](int j) { return (n - 1) * B + Chosen - j * kVectorBytes; };
            V x[N];
            unroll<N>([&](auto j) KVRI_INLINE { x[j] = (V)loadedOnce(image.template vector<j>(block, first, bytesFrom(j))); });
            const bool exact = !anySmall(x) || !anyTiny(x);
            unroll<N>([&](auto j) KVRI_INLINE {
                const auto r = reciprocals.template vector<j>(block, first, bytesFrom(j));
                const V q = exact ? fusedMultiplyAdd(x[j], r.high, x[j] * r.low) : x[j] / r.divisor;
                storePixels<B, Chosen, j>(block, dst, first, (Bytes<>)q, bytesFrom(j));
            });
        });
    }

private:
    using U = Vec<uint32_t>;
    static U below(V x) { return (U)(((U)x & 0x60000000) == 0); }  // 2^-63 in magnitude

    template <int N>
    KVRI_INLINE static bool anySmall(const V (&x)[N]) {
        V least = x[0];
        unroll<N - 1>([&](auto j) KVRI_INLINE { least = smallerMagnitude(least, x[j + 1]); });
#if defined(__AVX512BW__)
        return _mm512_testn_epi32_mask((__m512i)least, (__m512i)splat<U>(0x60000000)) != 0;
#else
        return !allZero((Bytes<>)below(least));
#endif
    }

    // Whether any of these is not 0: the product with the low part, or the quotient, might be denormal. With infinities, and
    // results beyond the range, both parts being of one sign gives what a division does.
    template <int N>
    KVRI_INLINE static bool anyTiny(const V (&x)[N]) {
        U tiny{};
        unroll<N>([&](auto j) KVRI_INLINE { tiny |= below(x[j]) & ((U)x[j] + (U)x[j]); });
        return !allZero((Bytes<>)tiny);
    }
};

#endif

}  // namespace kvri
