// pointops/threshold_otsu.cpp: ComputeThreshold_Otsu.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/rows.h"
#include "core/simd.h"
#include "kvri/pointops.h"

namespace kvri {
namespace {

constexpr int kLevels = 256;

// How often each level occurs. Neighbouring pixels are often alike: they count in different tables, so that none waits for
// the one before it. A table's 32-bit counts are added to the total before they can overflow.
class LevelCounts {
    static constexpr int kTables = 4;
    static constexpr ptrdiff_t kMost = ptrdiff_t(1) << 31;
    uint32_t table_[kTables][kLevels] = {};
    ptrdiff_t counted_ = 0;
    int64_t total_[kLevels] = {};

    void collect() {
        for (int i = 0; i < kLevels; ++i) {
            for (auto& table : table_) total_[i] += table[i], table[i] = 0;
        }
        counted_ = 0;
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
            if (counted_ == kMost) collect();
            const ptrdiff_t some = std::min(n, kMost - counted_);
            countSome(row, some);
            row += some;
            n -= some;
        }
    }
    const int64_t* total() {
        collect();
        return total_;
    }
};

Kvr8u otsu(const int64_t* count, double pixels) {
    constexpr double least = 0x1p-23;
    double p[kLevels], mean = 0;
    for (int i = 0; i < kLevels; ++i) {
        p[i] = double(count[i]) / pixels;
        mean += i * p[i];
    }
    double w0 = 0, moment = 0, best = 0;
    int threshold = 0;
    for (int t = 0; t < kLevels; ++t) {
        w0 += p[t];
        const double w1 = 1 - w0;
        if (std::min(w0, w1) < least || std::max(w0, w1) > 1 - least) continue;
        moment += t * p[t];
        const double difference = moment / w0 - (mean - moment) / w1, variance = w0 * w1 * (difference * difference);
        if (variance > best) best = variance, threshold = t;
    }
    return Kvr8u(threshold);
}

KvrStatus computeThreshold(const Kvr8u* pSrc, int srcStep, KvriSize roi, Kvr8u* pThreshold) {
    if (KvrStatus e = firstError(nonNull(pSrc, pThreshold), hasPixels(roi))) return e;
    if (srcStep < roi.width) return kvrStatusBadStep;
    LevelCounts counts;
    eachRow(roi, [&](auto row, ptrdiff_t pixels) KVRI_INLINE { counts.count(row, pixels); }, source<1>(pSrc, srcStep));
    *pThreshold = otsu(counts.total(), double(roi.width) * roi.height);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriComputeThreshold_Otsu_8u_C1R, computeThreshold);

}  // namespace
}  // namespace kvri
