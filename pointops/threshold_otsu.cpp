// pointops/threshold_otsu.cpp: ComputeThreshold_Otsu.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "core/rows.h"
#include "core/simd.h"
#include "kvri/pointops.h"

namespace kvri {
namespace {

constexpr int kLevels = 256;

// How often each level occurs. Neighbouring pixels are often alike: they count in different tables, so that none waits for
// the one before it. What then limits is one store per pixel. 32-bit counts are added to the total before they overflow.
class LevelCounts {
    static constexpr int kTables = 4;
    static constexpr ptrdiff_t kMost = ptrdiff_t(1) << 31;
    uint32_t table_[kTables][kLevels] = {};
    ptrdiff_t counted_ = 0;
    int64_t total_[kLevels] = {};

    void collect() {
        for (int i = 0; i < kLevels; ++i) total_[i] += table_[0][i] + table_[1][i] + table_[2][i] + table_[3][i];
    }
    void countSome(const uint8_t* p, ptrdiff_t n) {
        ptrdiff_t i = 0;
        for (; i + 8 <= n; i += 8) {
            uint64_t pixels;
            std::memcpy(&pixels, p + i, 8);
            unroll<8>([&](auto k) KVRI_INLINE { ++table_[k % kTables][uint8_t(pixels >> 8 * k)]; });
        }
        for (; i < n; ++i) ++table_[0][p[i]];
        counted_ += n;
    }

public:
    void count(const uint8_t* row, ptrdiff_t n) {
        while (n > 0) {
            if (counted_ == kMost) {
                collect();
                std::memset(table_, 0, sizeof table_);
                counted_ = 0;
            }
            const ptrdiff_t some = std::min(n, kMost - counted_);
            countSome(row, some);
            row += some;
            n -= some;
        }
    }
    // The last thing to be asked.
    const int64_t* total() {
        collect();
        return total_;
    }
};

// Sums run level by level; the variances are then independent of each other. Where one of the classes is too small to count
// there is none, and the moment is not added. As w0 only grows, such levels are the first and the last ones.
Kvr8u otsu(const int64_t* count, double pixels) {
    using V = Vec<double>;
    constexpr double least = 0x1p-23;
    constexpr int step = sizeof(V) / sizeof(double);
    alignas(V) double p[kLevels], share[kLevels], weight[kLevels], moment[kLevels], variance[kLevels];
    for (int i = 0; i < kLevels; ++i) {
        p[i] = double(count[i]) / pixels;
        share[i] = i * p[i];
    }
    const auto counts = [](auto w0) { return (w0 >= least) & (1 - w0 >= least) & (w0 <= 1 - least) & (1 - w0 <= 1 - least); };
    double mean = 0, w0 = 0, m0 = 0;
    const auto sum = [&](int t, bool counted) KVRI_INLINE {
        mean += share[t];
        w0 += p[t];
        if (counted) m0 += share[t];
        weight[t] = w0, moment[t] = m0;
    };
    int t = 0;
    for (; t < kLevels && !counts(w0 + p[t]); ++t) sum(t, false);
    for (; t < kLevels; ++t) sum(t, true);
    V most{};
    for (t = 0; t < kLevels; t += step) {
        const V w = load<V>(weight + t), m = load<V>(moment + t);
        const auto valid = counts(w);
        const V divisor = valid ? w : V{} + 0.5, rest = 1 - divisor;
        const V difference = m / divisor - (mean - m) / rest, v = valid ? w * rest * (difference * difference) : V{};
        store(variance + t, v);
        most = v > most ? v : most;
    }
    double best = 0;
    for (int i = 0; i < step; ++i) best = std::max(best, most[i]);
    return best > 0 ? Kvr8u(std::find(variance, variance + kLevels, best) - variance) : 0;
}

KvrStatus computeThreshold(const Kvr8u* pSrc, int srcStep, KvriSize roi, Kvr8u* pThreshold) {
    if (KvrStatus e = firstError(nonNull(pSrc, pThreshold), hasPixels(roi))) return e;
    if (srcStep < roi.width) return kvrStatusBadStep;
    const DefaultFloatControl control;
    LevelCounts counts;
    eachRow(roi, [&](auto row, ptrdiff_t pixels) KVRI_INLINE { counts.count(row, pixels); }, source<1>(pSrc, srcStep));
    *pThreshold = otsu(counts.total(), double(roi.width) * roi.height);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriComputeThreshold_Otsu_8u_C1R, computeThreshold);

}  // namespace
}  // namespace kvri
