// datamove/fill.h: an ROI filled with one pixel; also for families whose result is known in advance.
#pragma once

#include "core/layout.h"
#include "core/rows.h"
#include "datamove/write.h"

namespace kvri {

// Every channel. The pattern starts anew at each row, and at a whole pixel where a streamed row reaches alignment.

template <int B>
void streamFill(const FromValue<B>& value, uint8_t* dst, ptrdiff_t pixels) {
    constexpr int vectors = kPeriod<B>, N = vectors * kVectorBytes / B;
    ptrdiff_t head = 0;
    while (head < N && reinterpret_cast<uintptr_t>(dst + head * B) % kVectorBytes != 0) ++head;
    if (head == N) return writeAll<B>(value, dst, pixels);
    forEachStreamedBlock<N>(head, pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        unroll<vectors>([&](auto j) KVRI_INLINE {
            const ptrdiff_t bytes = n * B - j * kVectorBytes;
            block.store(dst + first * B + j * kVectorBytes, value.template vector<j>(block, first, bytes), bytes);
        });
    });
}

template <int B>
void fill(const void* pixel, void* pDst, int dstStep, KvriSize roi) {
    const FromValue<B> value(pixel, B);
    const auto dst = destination<B>(pDst, dstStep);
    if (exceedsCache(roi, B)) eachRow(roi, [&](auto d, ptrdiff_t pixels) KVRI_INLINE { streamFill(value, d, pixels); }, dst);
    else eachRow(roi, [&](auto d, ptrdiff_t pixels) KVRI_INLINE { writeAll<B>(value, d, pixels); }, dst);
}

// Some channels: of AC4 the colours, or one channel alone.
template <int B, int Chosen, int LastPixel>
void fillChosen(const void* pixel, void* pDst, int dstStep, KvriSize roi) {
    const FromValue<B> value(pixel, Chosen);
    eachRow(roi, [&](auto d, ptrdiff_t pixels) KVRI_INLINE { writeChannels<B, Chosen, LastPixel>(value, d, pixels); },
            destination<B>(pDst, dstStep));
}

}  // namespace kvri
