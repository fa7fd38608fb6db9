// datamove/copyrow.h: rows of bytes moved as they are.
#pragma once

#include "core/rows.h"
#include "datamove/write.h"

namespace kvri {

inline void copyRow(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    constexpr ptrdiff_t worthACall = 32768;
    if (bytes >= worthACall) std::memcpy(dst, src, size_t(bytes));
    else writeAll<1>(FromImage<1>{src}, dst, bytes);
}

inline void streamRow(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    constexpr int vectors = 4, N = vectors * kVectorBytes;
    const ptrdiff_t head = -reinterpret_cast<intptr_t>(dst) & (kVectorBytes - 1);
    forEachStreamedBlock<N>(head, bytes, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        unroll<vectors>([&](auto j) KVRI_INLINE {
            const ptrdiff_t at = first + j * kVectorBytes, left = n - j * kVectorBytes;
            block.store(dst + at, block.template load<Bytes<>>(src + at, left), left);
        });
    });
}

template <int B>
void copyRows(Image<const uint8_t> src, Image<uint8_t> dst, KvriSize roi, bool streamed) {
    if (streamed) eachRow(roi, [](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { streamRow(s, d, pixels * B); }, src, dst);
    else eachRow(roi, [](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { copyRow(s, d, pixels * B); }, src, dst);
}

}  // namespace kvri
