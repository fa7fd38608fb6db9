// core/layout.h: channel layouts as types, and the streaming-store rule.
#pragma once

#include <cstddef>

#include "kvrcore.h"
#include "kvri/types.h"

namespace kvri {

// channels: samples per pixel in memory; colours: those that are processed.
struct C1 { static constexpr int channels = 1, colours = 1; };
struct C2 { static constexpr int channels = 2, colours = 2; };
struct C3 { static constexpr int channels = 3, colours = 3; };
struct C4 { static constexpr int channels = 4, colours = 4; };
struct AC4 { static constexpr int channels = 4, colours = 3; };

// Whether a call that moves so many bytes per pixel, reads and writes together, writes past the caches: its data would only
// evict what the caller still needs, and be gone itself before it is read again.
inline bool exceedsCache(KvriSize roi, int movedBytes) {
    const ptrdiff_t bytes = ptrdiff_t(roi.width) * roi.height * movedBytes;
    int cache;
    return bytes > 0x80000 && kvrGetMaxCacheSizeB(&cache) == kvrStatusOk && bytes >= cache;
}

}  // namespace kvri
