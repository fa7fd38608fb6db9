// pointops/lut.h: what LUT, LUT_Linear and LUT_Cubic share: arguments, checks, and how integer samples are mapped.
//
// A family makes pieces: the function of one interval between two levels. Integers go through a table of the whole type that
// the pieces fill in index order - of 256 entries at once, of 65536 only where the ROI is worth it. Otherwise every sample is
// compared with the levels, which must rise for that.
#pragma once

#include "core/check.h"
#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "pointops/bytetable.h"

namespace kvri {

template <class T>
using LevelOf = std::conditional_t<std::is_same_v<T, Kvr32f>, Kvr32f, Kvr32s>;

// Levels and values of one channel.
template <class T>
struct Curve {
    using Level = LevelOf<T>;
    const Level *values, *levels;
    int n;

    // Not where one of them is a NaN.
    bool rises() const {
        for (int k = 0; k + 1 < n; ++k)
            if (!(levels[k] <= levels[k + 1])) return false;
        return true;
    }
};

// Integers

template <class T>
constexpr int kLeast = std::numeric_limits<T>::min();
template <class T>
constexpr int kEnd = std::numeric_limits<T>::max() + 1;

// A level as the first sample of the type at or above it, kEnd where there is none.
template <class T>
constexpr int firstFrom(Kvr32s level) { return std::clamp<Kvr32s>(level, kLeast<T>, kEnd<T>); }

template <class T>
constexpr T saturated(Kvr32s value) { return T(std::clamp<Kvr32s>(value, kLeast<T>, kEnd<T> - 1)); }

// What becomes of a piece's value v: it is saturated, and v + add is cut off toward zero, to a number that is `more` too high.
struct CutOff {
    template <class T>
    static constexpr int more = 0;
    template <class T>
    static constexpr double add = 0;
};
struct HalfUp {
    template <class T>
    static constexpr int more = -kLeast<T>;
    template <class T>
    static constexpr double add = more<T> + 0.5;
};

template <class T, class Rounding>
inline T rounded(double value) {
    constexpr double least = kLeast<T>, most = kEnd<T> - 1;
    value = value < most ? value : most;
    value = value > least ? value : least;
    return T(int(value + Rounding::template add<T>) - Rounding::template more<T>);
}

// Interval k: the samples that it covers, of which there may be none.
template <class T>
struct Interval {
    int first, end;
    Interval(const Curve<T>& curve, int k) : first(firstFrom<T>(curve.levels[k])), end(firstFrom<T>(curve.levels[k + 1])) {}
};

template <class T>
void leaveAlone(T* table, int first, int end) {
    for (int i = first; i < end; ++i) table[i - kLeast<T>] = T(i);
}

// As many samples as a vector has 32s; two vectors of double precision hold their values.
template <class T, class Rounding>
inline auto rounded(Vec<double> first, Vec<double> second) {
    using D = Vec<double>;
    const auto half = [](D v) KVRI_INLINE {
        const D value = clamp(v, splat<D>(kLeast<T>), splat<D>(kEnd<T> - 1));
        return towardZeroHalf(value + splat<D>(Rounding::template add<T>));
    };
    const auto all = joinHalves(half(first), half(second)) - Rounding::template more<T>;
    return __builtin_convertvector(all, Vec<T, kVectorBytes / 4 * sizeof(T)>);
}

// table[i - first] = piece(i)
template <class Piece, class T>
void fillInterval(const Piece& piece, Interval<T> interval, T* table) {
    const int n = interval.end - interval.first;
    if constexpr (Piece::isConstant) {
        std::fill_n(table, n, piece(0));
    } else {
        constexpr int lanes = kVectorBytes / sizeof(double);
        using D = Vec<double>;
        D i;
        for (int lane = 0; lane < lanes; ++lane) i[lane] = interval.first + lane;
        int at = 0;
        for (; n - at >= 2 * lanes; at += 2 * lanes, i += 2 * lanes)
            store(table + at, rounded<T, typename Piece::Rounding>(piece.at(i), piece.at(i + lanes)));
        for (; at < n; ++at) table[at] = piece(interval.first + at);
    }
}

// table[i - kLeast] becomes what sample i is mapped to. Later intervals overwrite earlier ones.
template <class Family, class T>
void fillTable(const Curve<T>& curve, T* table) {
    leaveAlone(table, kLeast<T>, firstFrom<T>(curve.levels[0]));
    for (int k = 0; k + 1 < curve.n; ++k) {
        const Interval<T> interval(curve, k);
        if (interval.first >= interval.end) continue;
        fillInterval(Family::piece(curve, k, interval), interval, table + interval.first - kLeast<T>);
    }
    leaveAlone(table, firstFrom<T>(curve.levels[curve.n - 1]), kEnd<T>);
}

// 16u, 16s

constexpr int kFewLevels = 64;

// The value of the last level that is not above the sample.
template <class T>
class Steps {
    using V = Vec<T>;
    V level_[kFewLevels], value_[kFewLevels];
    int n_ = 0;

    static V pair(int n) { return (V)splat<Vec<uint32_t>>((uint32_t(n) & 0xFFFF) * 0x10001); }

public:
    // Levels rise. Samples never reach those beyond the type.
    void add(Kvr32s level, T value) {
        if (level >= kEnd<T>) return;
        level_[n_] = pair(firstFrom<T>(level));
        value_[n_++] = pair(value);
    }
    V operator()(V x, V below) const {
        for (int k = 0; k < n_; ++k) below = x >= level_[k] ? value_[k] : below;
        return below;
    }
};

// The pieces of a curve and the number of every sample's: 0 and the last leave samples as they are.
template <class Family, class T>
struct Pieces {
    using Piece = typename Family::template Piece<T>;
    Piece piece[kFewLevels + 1];
    Steps<T> number;

    void prepare(const Curve<T>& curve) {
        piece[0] = piece[curve.n] = Piece::identity();
        for (int k = 0; k < curve.n; ++k) {
            number.add(curve.levels[k], T(k + 1));
            if (k + 1 == curve.n) break;
            const Interval<T> interval(curve, k);
            if (interval.first < interval.end) piece[k + 1] = Family::piece(curve, k, interval);
        }
    }
};

// Runs of a row that are short enough for a buffer on the stack: run(first pixel, pixels).
constexpr int kRun = 256;
template <class Run>
KVRI_INLINE inline void forEachRun(ptrdiff_t pixels, Run run) {
    for (ptrdiff_t first = 0; first < pixels; first += kRun) run(first, std::min<ptrdiff_t>(kRun, pixels - first));
}

template <class Family, class T, class L>
[[gnu::noinline]] void mapByPieces(const Curve<T> (&curves)[L::colours], const Images& images) {
    constexpr int B = L::channels * sizeof(T);
    Pieces<Family, T> pieces[L::colours];
    for (int c = 0; c < L::colours; ++c) pieces[c].prepare(curves[c]);
    images.eachRow<B>([&](const uint8_t* s, uint8_t* d, ptrdiff_t pixels) {
        forEachRun(pixels, [&](ptrdiff_t first, ptrdiff_t n) {
            T number[kRun * L::channels];
            mapChannels<T, L, false>([&](auto x, auto c) KVRI_INLINE { return pieces[c].number(x, Vec<T>{}); },
                                     s + first * B, reinterpret_cast<uint8_t*>(number), n);
            mapSamples<T, L>([&](auto c, ptrdiff_t i, T x) KVRI_INLINE { return pieces[c].piece[number[i]](x); },
                             s + first * B, d + first * B, n);
        });
    });
}

template <class Family, class T, class L>
[[gnu::noinline]] void mapByTable(const Curve<T> (&curves)[L::colours], const Images& images) {
    T table[L::colours][kEnd<T> - kLeast<T>];
    for (int c = 0; c < L::colours; ++c) fillTable<Family>(curves[c], table[c]);
    images.eachRow<L::channels * sizeof(T)>([&](const uint8_t* s, uint8_t* d, ptrdiff_t pixels) {
        mapSamples<T, L>([&](auto c, ptrdiff_t, T x) KVRI_INLINE { return table[c][x - kLeast<T>]; }, s, d, pixels);
    });
}

// Whether comparing all samples with the levels takes less time than filling tables and looking samples up.
template <class Family, class T, class L>
bool comparingPays(const Curve<T> (&curves)[L::colours], KvriSize roi) {
    double compare = 0;
    for (const Curve<T>& curve : curves) {
        if (curve.n > kFewLevels || !curve.rises()) return false;
        compare += Family::compareCost + Family::levelCost * 16 / kVectorBytes * curve.n;
    }
    return double(roi.width) * roi.height * (compare - Family::lookUpCost * L::colours) < Family::tableCost * L::colours;
}

// Bodies

template <class Family, class T, class L>
void lut(const Curve<T> (&curves)[L::colours], const Images& images) {
    const DefaultFloatControl control;  // integers do not depend on the caller's
    if constexpr (std::is_same_v<T, Kvr32f>) {
        Family::template mapFloats<L>(curves, images);
    } else if constexpr (std::is_same_v<T, Kvr8u>) {
        if constexpr (Family::hasSteps)
            if (Family::template mapFewSteps<L>(curves, images)) return;
        ByteTable tables[L::colours];
        for (int c = 0; c < L::colours; ++c) {
            Kvr8u table[256];
            fillTable<Family>(curves[c], table);
            tables[c] = ByteTable(table);
        }
        mapThrough<L>(tables, images);
    } else if (comparingPays<Family, T, L>(curves, images.roi)) {
        Family::template mapByComparing<T, L>(curves, images);
    } else {
        mapByTable<Family, T, L>(curves, images);
    }
}

template <int N>
constexpr KvrStatus enoughLevels(const int* nLevels) {
    for (int c = 0; c < N; ++c)
        if (nLevels[c] < 2) return kvrStatusBadLutLevels;
    return kvrStatusOk;
}

template <class Family, class T, class P = const LevelOf<T>*>
KvrStatus lutSamples(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, P pValues, P pLevels, int nLevels) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pValues, pLevels), hasPixels(roi), positiveSteps(srcStep, dstStep),
                                 enoughLevels<1>(&nLevels)))
        return e;
    lut<Family, T, C1>({{pValues, pLevels, nLevels}}, {pSrc, srcStep, pDst, dstStep, roi});
    return kvrStatusOk;
}

template <class Family, class T, class L, class P = const LevelOf<T>*>
KvrStatus lutPixels(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const P pValues[L::colours],
                    const P pLevels[L::colours], const int nLevels[L::colours]) {
    if (KvrStatus e = nonNull(pSrc, pDst, pValues, pLevels, nLevels)) return e;
    if (KvrStatus e = firstError(planesNonNull<L::colours>(pValues), planesNonNull<L::colours>(pLevels), hasPixels(roi),
                                 positiveSteps(srcStep, dstStep), enoughLevels<L::colours>(nLevels)))
        return e;
    Curve<T> curves[L::colours];
    for (int c = 0; c < L::colours; ++c) curves[c] = {pValues[c], pLevels[c], nLevels[c]};
    lut<Family, T, L>(curves, {pSrc, srcStep, pDst, dstStep, roi});
    return kvrStatusOk;
}

template <class Family, class T, class P = const LevelOf<T>*>
KvrStatus lutSamplesInPlace(T* pSrcDst, int step, KvriSize roi, P pValues, P pLevels, int nLevels) {
    return lutSamples<Family, T>(pSrcDst, step, pSrcDst, step, roi, pValues, pLevels, nLevels);
}

template <class Family, class T, class L, class P = const LevelOf<T>*>
KvrStatus lutPixelsInPlace(T* pSrcDst, int step, KvriSize roi, const P pValues[L::colours], const P pLevels[L::colours],
                           const int nLevels[L::colours]) {
    return lutPixels<Family, T, L>(pSrcDst, step, pSrcDst, step, roi, pValues, pLevels, nLevels);
}

}  // namespace kvri
