// bench/limit.h: the streaming limit, how fast the same bytes can be read and written by loops that compute nothing.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

struct Traffic {
    const uint8_t* src;
    uint8_t* dst;
    ptrdiff_t read, written;  // bytes
};

// One way of moving the bytes, so many times.
using Mover = void (*)(const Traffic&, int times);

struct Movers {
    Mover ordinary, nonTemporal;  // null where the ratio of read to written bytes has no loop
};

// Loops of the widest vectors that this processor has.
Movers plainLoops(const Traffic&);

// memcpy or memset where the bytes are alike, else null.
Mover libraryCall(const Traffic&);

}  // namespace bench
