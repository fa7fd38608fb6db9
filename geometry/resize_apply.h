// geometry/resize_apply.h: what the apply functions of Resize share: their checks, and a tile's source and destination.
#pragma once

#include <climits>

#include "core/check.h"
#include "core/layout.h"
#include "core/simd.h"
#include "geometry/resize_spec.h"

namespace kvri {

// The objects that an apply function accepts.
struct Accepts {
    uint32_t id;
    KvriInterpolationType method;  // 0: any
    bool antialiasing;
    ResizeWeights kind;

    KvrStatus operator()(const ResizeSpec& spec) const {
        const bool same = (method == 0 || spec.method == method) && (spec.antialiasing != 0) == antialiasing && spec.kind == kind;
        return same ? kvrStatusOk : kvrStatusNotSupported;
    }
};

inline KvrStatus borderSupported(KvriBorderType border) {
    if ((border & ~0xF7) != 0) return kvrStatusBorderNotSupported;
    const int rule = border & 7;
    return rule == kvrBorderRepl || rule == kvrBorderInMem ? kvrStatusOk : kvrStatusNotSupported;
}

// The source pixels of one axis that may be read: positions low to high. Pixels beyond repeat these.
struct Readable {
    int low, high;

    Readable(const ResizeAxis& a, KvriBorderType border, int lowFlag, int highFlag, int beyond) : low(0), high(a.source - 1) {
        const bool all = (border & 7) == kvrBorderInMem;
        if (all || (border & lowFlag)) low -= beyond;
        if (all || (border & highFlag)) high += beyond;
    }
    int operator()(int position) const { return std::clamp(position, low, high); }
};

// A checked call, its tile clipped.
struct ResizeCall {
    const ResizeSpec& spec;
    const uint8_t* src;  // where source pixel `origin` of the tile lies
    ptrdiff_t srcStep;
    uint8_t* dst;
    ptrdiff_t dstStep;
    KvriPoint offset;
    KvriSize size;
    KvriBorderType border;
    uint8_t* buffer;
    bool streams;  // the destination is written past the caches
    bool far;      // rows lie in more pages than the processor has at hand

    uint8_t* destination(int y, int x, ptrdiff_t pixelBytes) const { return dst + y * dstStep + x * pixelBytes; }
    // Destination rows y to y + height - 1 of it.
    ResizeCall part(int y, int height) const {
        ResizeCall call = *this;
        call.offset.y += y, call.size.height = height;
        call.src += (spec.origin(spec.y, call.offset.y) - spec.origin(spec.y, offset.y)) * srcStep;
        call.dst += y * dstStep;
        return call;
    }
    // Whether vectors may be streamed from byte `begin` of each destination row on.
    template <int W = kVectorBytes>
    bool streamsVectors(ptrdiff_t begin = 0) const {
        return streams && ((reinterpret_cast<uintptr_t>(dst + begin) | uintptr_t(dstStep)) & (W - 1)) == 0;
    }
    // The width of strips of columns: of about the same, so that none is short.
    int stripWidth(int most) const {
        const int width = size.width;
        return width > most ? (width + width / most) / (width / most + 1) : width;
    }
};

// Small tiles of a large image are likely in no near cache, and their rows are too short to be foreseen. (No builtins: the
// compiler drops calls of functions that do nothing but prefetch.)
[[gnu::noinline]] inline void prefetchSmallTile(const ResizeCall& call, ptrdiff_t pixelBytes) {
    constexpr int mostOfRow = 256, mostOfTile = 8192, largePixels = 0x80000;
    const ResizeSpec& spec = call.spec;
    const KvriSize size = call.size;
    const ptrdiff_t row = size.width * pixelBytes;
    if (row > mostOfRow || row * size.height > mostOfTile || int64_t(spec.x.destination) * spec.y.destination < largePixels) return;
    const auto eachLine = [](auto* first, ptrdiff_t step, ptrdiff_t bytes, int rows, auto prefetch) KVRI_INLINE {
        for (int y = 0; y < rows; ++y)
            for (ptrdiff_t i = 0; i < bytes; i += 64) prefetch(first[y * step + i]);
    };
    eachLine(call.dst, call.dstStep, row, size.height, [](uint8_t& line) KVRI_INLINE { asm volatile("prefetchw %0" : : "m"(line)); });
    const ptrdiff_t sourceRow = ptrdiff_t(spec.x.ratio() * double(row));
    const int sourceRows = int(spec.y.ratio() * size.height);
    if (sourceRow <= mostOfRow && sourceRow * sourceRows <= mostOfTile)
        eachLine(call.src, call.srcStep, sourceRow, sourceRows, [](const uint8_t& line) KVRI_INLINE { asm volatile("prefetcht0 %0" : : "m"(line)); });
}

// And what of its source may be read. Ways of resizing that need not know take the call.
struct ResizeTile : ResizeCall {
    KvriPoint origin;
    Readable columns, rows;

    ResizeTile(const ResizeCall& call)
        : ResizeCall(call), origin{spec.origin(spec.x, offset.x), spec.origin(spec.y, offset.y)},
          columns(spec.x, border, kvrBorderInMemLeft, kvrBorderInMemRight, spec.border.left),
          rows(spec.y, border, kvrBorderInMemTop, kvrBorderInMemBottom, spec.border.top) {}

    // Source row `row`, or what stands for it, from column `column` on.
    const uint8_t* source(int row, int column, ptrdiff_t pixelBytes) const {
        return src + (rows(row) - origin.y) * srcStep + (ptrdiff_t(column) - origin.x) * pixelBytes;
    }
};

// Column `column` of the source rows that are there.
struct SourceColumn {
    const uint8_t* top;
    ptrdiff_t step;

    SourceColumn(const ResizeTile& tile, int column, ptrdiff_t pixelBytes)
        : top(tile.src - tile.origin.y * tile.srcStep + (ptrdiff_t(column) - tile.origin.x) * pixelBytes), step(tile.srcStep) {}
    const uint8_t* operator[](int row) const { return top + row * step; }
};

// Ways that work by strips of columns go through all rows again and again: where these are far, some rows at a time.
template <class Run>
void inTurns(const ResizeCall& call, Run run) {
    constexpr int turn = 128;
    const int height = call.size.height, rows = call.far ? turn : height;
    for (int y = 0; y < height; y += rows) run(call.part(y, std::min(rows, height - y)));
}

inline bool farRows(const ResizeSpec& spec, int height, int srcStep, int dstStep) {
    constexpr double bytesAtHand = 0x800000;
    return height * (std::abs(double(dstStep)) + spec.y.ratio() * std::abs(double(srcStep))) > bytesAtHand;
}

// The body of an apply function: checks, then run(call), or run(tile).
// A destination is streamed where `Held` times its bytes exceed the cache.
template <int C, int Held = 4, class T, class Run>
KvrStatus applyResize(const Accepts& accepts, Run run, const T* pSrc, int srcStep, T* pDst, int dstStep, KvriPoint dstOffset,
                      KvriSize dstSize, KvriBorderType border, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pSpec, pBuffer), lengthsNotZero(dstSize))) return e;
    constexpr ptrdiff_t pixelBytes = C * sizeof(T);
    const ResizeSpec& spec = *alignedSpec(pSpec);
    if (KvrStatus e = carriesId(pSpec, accepts.id)) return e;
    if (KvrStatus e = firstError(hasPixels(dstSize), insideDestination(spec, dstOffset), accepts(spec), borderSupported(border))) return e;
    const KvriSize size = clipped(spec, dstOffset, dstSize);
    const bool streams = exceedsCache(size, Held * pixelBytes);
    const ResizeCall call{spec, reinterpret_cast<const uint8_t*>(pSrc), srcStep, reinterpret_cast<uint8_t*>(pDst), dstStep, dstOffset, size,
                          border, pBuffer, streams, farRows(spec, size.height, srcStep, dstStep)};
    prefetchSmallTile(call, pixelBytes);
    run(call);
    if (streams) fenceStreams();
    return withinDestination(spec, dstSize);
}

}  // namespace kvri
