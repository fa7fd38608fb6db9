// core/rows.h: the walk over an ROI's rows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "kvri/types.h"

namespace kvri {

// A packed image: its current row and what leads to the next.
template <class T>
struct Image {
    T* row;
    ptrdiff_t step;
    ptrdiff_t pixelBytes;

    constexpr bool contiguous(ptrdiff_t width) const { return step == width * pixelBytes; }
    void advance() { row = reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(row) + uintptr_t(step)); }
};

// A planar image: the same for N planes.
template <class T, int N>
struct Planes {
    std::array<T*, N> row;
    ptrdiff_t step;
    ptrdiff_t sampleBytes;

    constexpr bool contiguous(ptrdiff_t width) const { return step == width * sampleBytes; }
    void advance() {
        for (T*& p : row) p = reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(step));
    }
};

template <int PixelBytes>
Image<const uint8_t> source(const void* p, int step) {
    return {static_cast<const uint8_t*>(p), step, PixelBytes};
}

template <int PixelBytes>
Image<uint8_t> destination(void* p, int step) {
    return {static_cast<uint8_t*>(p), step, PixelBytes};
}

inline Image<const uint8_t> source(const void* p, int step, ptrdiff_t pixelBytes) {
    return {static_cast<const uint8_t*>(p), step, pixelBytes};
}

inline Image<uint8_t> destination(void* p, int step, ptrdiff_t pixelBytes) {
    return {static_cast<uint8_t*>(p), step, pixelBytes};
}

template <int N, int SampleBytes>
Planes<const uint8_t, N> sourcePlanes(const void* const* plane, int step) {
    Planes<const uint8_t, N> planes{{}, step, SampleBytes};
    for (int i = 0; i < N; ++i) planes.row[i] = static_cast<const uint8_t*>(plane[i]);
    return planes;
}

template <int N, int SampleBytes>
Planes<uint8_t, N> destinationPlanes(void* const* plane, int step) {
    Planes<uint8_t, N> planes{{}, step, SampleBytes};
    for (int i = 0; i < N; ++i) planes.row[i] = static_cast<uint8_t*>(plane[i]);
    return planes;
}

// Calls kernel(row of each image..., pixels) for every row of the ROI, or once where the rows of every image follow each
// other without a gap. No address is formed behind the last row.
template <class Kernel, class... Images>
__attribute__((always_inline)) inline void eachRow(KvriSize roi, Kernel kernel, Images... image) {
    ptrdiff_t pixels = roi.width, rows = roi.height;
    if ((image.contiguous(pixels) && ...)) {
        pixels *= rows;
        rows = 1;
    }
    for (;;) {
        kernel(image.row..., pixels);
        if (--rows == 0) return;
        (image.advance(), ...);
    }
}

}  // namespace kvri
