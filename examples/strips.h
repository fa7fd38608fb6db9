// examples/strips.h: pictures of any height resized in strips, so that memory holds only the rows at work.
#pragma once

#include <functional>

#include "resizer.h"

namespace demo {

struct Tiling {
    int threads = 1;
    KvriSize tile{0, 0};            // 0: as suits the picture and the threads
    int64_t stripBytes = 16 << 20;  // about as many of a strip's source and destination together
};

// Reads the source to its end and writes the destination, also at the same time where there are several threads. A strip's tiles
// are made by all threads with one specification object. Returns the seconds that resizing took, without the files.
double resizeInStrips(RowReader& source, RowWriter& destination, const Resizer& resizer, const Tiling& tiling,
                      const std::function<void(double done)>& progress);

}  // namespace demo
