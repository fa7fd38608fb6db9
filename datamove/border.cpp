// datamove/border.cpp: CopyConstBorder, CopyReplicateBorder, CopyWrapBorder. Rows are bytes here; the size of a pixel tells
// the kernel.
//
// A border is rectangles, each filled by a loop over its rows that is made for its width: the middle with the margins to its
// left and right, and then the margins above and below, a fill or copies of rows that are complete. In place the middle is
// left out, the rest is the same.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "datamove/fill.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

// Where the source lies in the destination, in pixels.
struct Frame {
    KvriSize src, dst;
    int top, left;

    KvrStatus check() const {
        if (KvrStatus e = firstError(hasPixels(src), hasPixels(dst))) return e;
        const bool inside = top >= 0 && left >= 0 && src.width <= dst.width - left && src.height <= dst.height - top;
        return inside ? kvrStatusOk : kvrStatusBadSize;
    }
    int right() const { return dst.width - left - src.width; }
    int bottom() const { return dst.height - top - src.height; }
};

template <int n>
using Number = std::integral_constant<int, n>;

// Cuts for runs of bytes. cut(bytes, put) calls put(size, first byte, phase) for every piece of a run: of a pattern that
// begins and ends with the run, the piece begins with byte `phase`. The last piece overlaps the one before it, so no
// store reaches beyond the run, to where the next load would wait for it.
template <int Size>
struct TwoPieces {
    KVRI_INLINE static void cut(ptrdiff_t bytes, auto put) {
        put(Number<Size>{}, 0, Number<0>{});
        put(Number<Size>{}, bytes - Size, Number<-Size>{});
    }
};

template <int Turn>  // vectors after which the pattern repeats
struct Vectors {
    KVRI_INLINE static void cut(ptrdiff_t bytes, auto put) {
        constexpr int V = kVectorBytes;
        ptrdiff_t at = 0;
        for (; bytes - at >= Turn * V; at += Turn * V)
            unroll<Turn>([&](auto j) KVRI_INLINE { put(Number<V>{}, at + j * V, Number<j * V>{}); });
        unroll<Turn - 1>([&](auto j) KVRI_INLINE {
            if (bytes - at >= (j + 1) * V) put(Number<V>{}, at + j * V, Number<j * V>{});
        });
        if (bytes % V != 0) put(Number<V>{}, bytes - V, Number<-V>{});
    }
};

// Calls run(cuts) with the cuts for runs of `bytes` bytes, a number of pixels of B bytes.
template <int B, int Size = kVectorBytes, class Run>
KVRI_INLINE inline void withCutsFor(ptrdiff_t bytes, Run run) {
    if constexpr (Size == kVectorBytes) {
        if (bytes >= Size) return run(Vectors<B % 3 == 0 ? 3 : 4>{});
    } else {
        if (bytes >= Size) return run(TwoPieces<Size>{});
    }
    if constexpr (Size > B) withCutsFor<B, Size / 2>(bytes, run);
}

template <int Size>
using PieceVector = Bytes<std::max(Size, 16)>;

// The first `Chosen` bytes of each pixel of a piece.
template <int B, int Chosen, int Size, class V>
KVRI_INLINE inline void storePiece(uint8_t* dst, V v) {
    if constexpr (Chosen == B) {
        Bytes<Size> piece;
        std::memcpy(&piece, &v, Size);
        store(dst, piece);
    } else {
        const auto chosen = choose<V>([](int i) { return i % B < Chosen; });
        if constexpr (Size == sizeof(V)) storeChosen(dst, v, chosen);
        else storeChosenPart(dst, v, chosen, Size);
    }
}

// Rows of pixels of B bytes. Two registers, so that functions of rectangles are cheap to call.
template <class Byte>
struct Rows {
    Byte* row;
    ptrdiff_t step;

    template <int B>
    Rows at(ptrdiff_t x, ptrdiff_t y) const {
        return {reinterpret_cast<Byte*>(reinterpret_cast<uintptr_t>(row) + uintptr_t(y * step + x * B)), step};
    }
    operator Rows<const uint8_t>() const { return {row, step}; }
};
using Source = Rows<const uint8_t>;
using Destination = Rows<uint8_t>;

template <class Row, class... Images>
KVRI_INLINE inline void eachOf(ptrdiff_t rows, Row row, Images... image) {
    for (; rows > 0; --rows) {
        row(image.row...);
        ((image = image.template at<0>(0, 1)), ...);
    }
}

// Rectangles; widths in pixels. Rows without gaps between them are one.

template <int B, int Chosen>
KVRI_INLINE inline void copyRun(auto cuts, const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    cuts.cut(bytes, [&](auto size, ptrdiff_t at, auto) KVRI_INLINE {
        constexpr int n = size;
        if constexpr (Chosen == B) store(dst + at, load<Bytes<n>>(src + at));
        else storePiece<B, Chosen, n>(dst + at, loadPart<PieceVector<n>>(src + at, n));
    });
}

// Copies past the caches, but for the row's ends, which share lines with their neighbours. A masked store there would reach
// into the streamed lines and have them read back. fenceStreams() is left to the caller, as it waits for such lines.
inline void streamRow(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    constexpr int V = kVectorBytes, line = 64;
    const auto copyEnd = [&](ptrdiff_t at, ptrdiff_t n) {
        withCutsFor<1>(n, [&](auto cuts) KVRI_INLINE { copyRun<1, 1>(cuts, src + at, dst + at, n); });
    };
    ptrdiff_t at = -reinterpret_cast<intptr_t>(dst) & (line - 1);
    copyEnd(0, at);
    for (; bytes - at >= line; at += line)
        unroll<line / V>([&](auto j) KVRI_INLINE { stream(dst + at + j * V, load<Bytes<>>(src + at + j * V)); });
    copyEnd(at, bytes - at);
}

// For long rows: stores that do not cross lines.
KVRI_INLINE inline void copyAligned(const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    store(dst, load<Bytes<>>(src));
    const ptrdiff_t head = kVectorBytes - (reinterpret_cast<intptr_t>(dst) & (kVectorBytes - 1));
    copyRun<1, 1>(Vectors<4>{}, src + head, dst + head, bytes - head);
}

inline void streamRectangle(Source src, Destination dst, ptrdiff_t bytes, ptrdiff_t rows) {
    eachOf(rows, [&](auto s, auto d) KVRI_INLINE { streamRow(s, d, bytes); }, src, dst);
}

template <int B, int Chosen>
[[gnu::noinline]] void copyRectangle(Source src, Destination dst, ptrdiff_t width, ptrdiff_t rows) {
    constexpr ptrdiff_t worthAligning = 8 * kVectorBytes;
    ptrdiff_t bytes = width * B;
    if (src.step == bytes && dst.step == bytes) bytes *= rows, rows = 1;
    if (Chosen == B && bytes >= worthAligning)
        return eachOf(rows, [=](auto s, auto d) KVRI_INLINE { copyAligned(s, d, bytes); }, src, dst);
    withCutsFor<B>(bytes, [&](auto cuts) KVRI_INLINE {
        eachOf(rows, [&](auto s, auto d) KVRI_INLINE { copyRun<B, Chosen>(cuts, s, d, bytes); }, src, dst);
    });
}

// exceeding: the call moves more than the cache holds. Some channels of a pixel cannot be streamed, short rows not well.
template <int B, int Chosen>
void copyRectangle(Source src, Destination dst, ptrdiff_t width, ptrdiff_t rows, bool exceeding) {
    constexpr ptrdiff_t worthStreaming = 1024;
    if (Chosen == B && exceeding && width * B >= worthStreaming) streamRectangle(src, dst, width * B, rows);
    else copyRectangle<B, Chosen>(src, dst, width, rows);
}

template <int B, int Chosen>
KVRI_INLINE inline void repeatPixel(auto cuts, Bytes<16> pixel, uint8_t* dst, ptrdiff_t bytes) {
    cuts.cut(bytes, [&](auto size, ptrdiff_t at, auto phase) KVRI_INLINE {
        constexpr int n = size;
        using V = PieceVector<n>;
        const V pattern = constant<V>([](int i) { return (i + decltype(phase)::value + kVectorBytes * B) % B; });
        storePiece<B, Chosen, n>(dst + at, shuffle(broadcastLane<V>(pixel), pattern));
    });
}

template <int B, int Chosen>
[[gnu::noinline]] void fillRectangle(Bytes<16> pixel, Destination dst, ptrdiff_t width, ptrdiff_t rows) {
    ptrdiff_t bytes = width * B;
    if (dst.step == bytes) bytes *= rows, rows = 1;
    withCutsFor<B>(bytes, [&](auto cuts) KVRI_INLINE {
        eachOf(rows, [&](auto d) KVRI_INLINE { repeatPixel<B, Chosen>(cuts, pixel, d, bytes); }, dst);
    });
}

// Each row repeats its pixel of `pixels`.
template <int B, int Chosen>
[[gnu::noinline]] void replicateColumn(Source pixels, Destination dst, ptrdiff_t width, ptrdiff_t rows) {
    const ptrdiff_t bytes = width * B;
    withCutsFor<B>(bytes, [&](auto cuts) KVRI_INLINE {
        eachOf(rows, [&](auto s, auto d) KVRI_INLINE {
            repeatPixel<B, Chosen>(cuts, loadPart<Bytes<16>>(s, B), d, bytes);
        }, pixels, dst);
    });
}

// Borders: sides() writes the margins on both sides of the source's rows at dst, which show those at src; rows() completes
// the margins above and below, dst being the destination's first row.

template <int B, int Chosen>
struct ConstBorder {
    const Bytes<16> pixel;

    KVRI_INLINE void sides(const Frame& f, Source, Destination dst, ptrdiff_t rows) const {
        fillRectangle<B, Chosen>(pixel, dst.at<B>(-f.left, 0), f.left, rows);
        fillRectangle<B, Chosen>(pixel, dst.at<B>(f.src.width, 0), f.right(), rows);
    }
    KVRI_INLINE void rows(const Frame& f, Destination dst, bool exceeding) const {
        fillRows(dst, f.dst.width, f.top, exceeding);
        fillRows(dst.at<B>(0, f.top + f.src.height), f.dst.width, f.bottom(), exceeding);
    }

private:
    KVRI_INLINE void fillRows(Destination dst, int width, int rows, bool exceeding) const {
        if constexpr (Chosen == B)
            if (exceeding && rows > 0) return fill<B>(&pixel, dst.row, int(dst.step), {width, rows});
        fillRectangle<B, Chosen>(pixel, dst, width, rows);
    }
};

template <int B, int Chosen>
struct ReplicateBorder {
    KVRI_INLINE void sides(const Frame& f, Source src, Destination dst, ptrdiff_t rows) const {
        const ptrdiff_t w = f.src.width;
        replicateColumn<B, Chosen>(src, dst.at<B>(-f.left, 0), f.left, rows);
        replicateColumn<B, Chosen>(src.at<B>(w - 1, 0), dst.at<B>(w, 0), f.right(), rows);
    }
    KVRI_INLINE void rows(const Frame& f, Destination dst, bool exceeding) const {
        const auto repeat = [&](ptrdiff_t from, ptrdiff_t to, ptrdiff_t rows) {
            copyRectangle<B, Chosen>({dst.at<B>(0, from).row, 0}, dst.at<B>(0, to), f.dst.width, rows, exceeding);
        };
        repeat(f.top, 0, f.top);
        repeat(f.top + f.src.height - 1, f.top + f.src.height, f.bottom());
    }
};

// Calls copy(from, to, count) until what lies `before` and `behind` a period is complete, positions counted from the
// period's first: from the period at first, then from everything that is there, twice as much each time.
template <class Copy>
KVRI_INLINE inline void repeatPeriod(ptrdiff_t period, ptrdiff_t before, ptrdiff_t behind, Copy copy) {
    for (ptrdiff_t done = 0, n; done < before; done += n) {
        n = std::min(before - done, period + done);
        copy(period - n, -done - n, n);
    }
    for (ptrdiff_t done = 0, n; done < behind; done += n) {
        n = std::min(behind - done, period + done);
        copy(0, period + done, n);
    }
}

template <int B>
struct WrapBorder {
    void sides(const Frame& f, Source src, Destination dst, ptrdiff_t rows) const {
        repeatPeriod(f.src.width, f.left, f.right(), [&](ptrdiff_t from, ptrdiff_t to, ptrdiff_t n) {
            const Source period = n <= f.src.width ? src : dst;
            copyRectangle<B, B>(period.at<B>(from, 0), dst.at<B>(to, 0), n, rows);
        });
    }
    void rows(const Frame& f, Destination dst, bool exceeding) const {
        repeatPeriod(f.src.height, f.top, f.bottom(), [&](ptrdiff_t from, ptrdiff_t to, ptrdiff_t n) {
            copyRectangle<B, B>(dst.at<B>(0, f.top + from), dst.at<B>(0, f.top + to), f.dst.width, n, exceeding);
        });
    }
};

template <int B, int Chosen, class Border>
void copyWithin(const Border& border, const Frame& f, const void* pSrc, int srcStep, void* pDst, int dstStep) {
    constexpr ptrdiff_t bandBytes = 16384;  // rows of these stay in the first cache until their margins are written
    const bool exceeding = exceedsCache(f.dst, 2 * B);
    const ptrdiff_t band = std::max<ptrdiff_t>(1, bandBytes / (ptrdiff_t(f.dst.width) * B));
    const Destination dst{static_cast<uint8_t*>(pDst), dstStep};
    Source s{static_cast<const uint8_t*>(pSrc), srcStep};
    Destination d = dst.at<B>(f.left, f.top);
    for (ptrdiff_t left = f.src.height; left > 0; left -= band, s = s.at<B>(0, band), d = d.at<B>(0, band)) {
        const ptrdiff_t rows = std::min(band, left);
        copyRectangle<B, Chosen>(s, d, f.src.width, rows, exceeding);
        border.sides(f, s, d, rows);
    }
    border.rows(f, dst, exceeding);
    if (exceeding) fenceStreams();
}

template <int B, class Border>
void extend(const Border& border, const Frame& f, void* pSrcDst, int step) {
    const Destination image{static_cast<uint8_t*>(pSrcDst), step};
    border.sides(f, image, image, f.src.height);
    border.rows(f, image.at<B>(-f.left, -f.top), false);
}

template <class T, class L>
KvrStatus copyConstBorder(const T* pSrc, int srcStep, KvriSize srcRoi, T* pDst, int dstStep, KvriSize dstRoi, int top, int left,
                          const T value[L::colours]) {
    const Frame frame{srcRoi, dstRoi, top, left};
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, value), positiveSteps(srcStep, dstStep), frame.check())) return e;
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    const auto pixel = loadPart<Bytes<16>>(reinterpret_cast<const uint8_t*>(value), chosen);
    copyWithin<B, chosen>(ConstBorder<B, chosen>{pixel}, frame, pSrc, srcStep, pDst, dstStep);
    return kvrStatusOk;
}

template <class T>
KvrStatus copyConstBorderSample(const T* pSrc, int srcStep, KvriSize srcRoi, T* pDst, int dstStep, KvriSize dstRoi, int top,
                                int left, T value) {
    return copyConstBorder<T, C1>(pSrc, srcStep, srcRoi, pDst, dstStep, dstRoi, top, left, &value);
}

template <class T, class L>
KvrStatus copyReplicateBorder(const T* pSrc, int srcStep, KvriSize srcRoi, T* pDst, int dstStep, KvriSize dstRoi, int top, int left) {
    const Frame frame{srcRoi, dstRoi, top, left};
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), positiveSteps(srcStep, dstStep), frame.check())) return e;
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    copyWithin<B, chosen>(ReplicateBorder<B, chosen>{}, frame, pSrc, srcStep, pDst, dstStep);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus replicateBorder(T* pSrcDst, int step, KvriSize srcRoi, KvriSize dstRoi, int top, int left) {
    const Frame frame{srcRoi, dstRoi, top, left};
    if (KvrStatus e = firstError(nonNull(pSrcDst), positiveSteps(step), frame.check())) return e;
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    extend<B>(ReplicateBorder<B, chosen>{}, frame, pSrcDst, step);
    return kvrStatusOk;
}

template <class T>
KvrStatus wrapBorder(T* pSrcDst, int step, KvriSize srcRoi, KvriSize dstRoi, int top, int left) {
    const Frame frame{srcRoi, dstRoi, top, left};
    if (KvrStatus e = firstError(nonNull(pSrcDst), positiveSteps(step), frame.check())) return e;
    extend<sizeof(T)>(WrapBorder<sizeof(T)>{}, frame, pSrcDst, step);
    return kvrStatusOk;
}

template <class T>
KvrStatus copyWrapBorder(const T* pSrc, int srcStep, KvriSize srcRoi, T* pDst, int dstStep, KvriSize dstRoi, int top, int left) {
    const Frame frame{srcRoi, dstRoi, top, left};
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), positiveSteps(srcStep, dstStep), frame.check())) return e;
    constexpr int B = sizeof(T);
    if (pSrc == pDst) extend<B>(WrapBorder<B>{}, frame, pDst, srcStep);
    else copyWithin<B, B>(WrapBorder<B>{}, frame, pSrc, srcStep, pDst, dstStep);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriCopyConstBorder_8u_C1R, copyConstBorderSample<Kvr8u>);
KVRI_EXPORT(kvriCopyConstBorder_8u_C3R, copyConstBorder<Kvr8u, C3>);
KVRI_EXPORT(kvriCopyConstBorder_8u_C4R, copyConstBorder<Kvr8u, C4>);
KVRI_EXPORT(kvriCopyConstBorder_8u_AC4R, copyConstBorder<Kvr8u, AC4>);
KVRI_EXPORT(kvriCopyConstBorder_16u_C1R, copyConstBorderSample<Kvr16u>);
KVRI_EXPORT(kvriCopyConstBorder_16u_C3R, copyConstBorder<Kvr16u, C3>);
KVRI_EXPORT(kvriCopyConstBorder_16u_C4R, copyConstBorder<Kvr16u, C4>);
KVRI_EXPORT(kvriCopyConstBorder_16u_AC4R, copyConstBorder<Kvr16u, AC4>);
KVRI_EXPORT(kvriCopyConstBorder_16s_C1R, copyConstBorderSample<Kvr16s>);
KVRI_EXPORT(kvriCopyConstBorder_16s_C3R, copyConstBorder<Kvr16s, C3>);
KVRI_EXPORT(kvriCopyConstBorder_16s_C4R, copyConstBorder<Kvr16s, C4>);
KVRI_EXPORT(kvriCopyConstBorder_16s_AC4R, copyConstBorder<Kvr16s, AC4>);
KVRI_EXPORT(kvriCopyConstBorder_32s_C1R, copyConstBorderSample<Kvr32s>);
KVRI_EXPORT(kvriCopyConstBorder_32s_C3R, copyConstBorder<Kvr32s, C3>);
KVRI_EXPORT(kvriCopyConstBorder_32s_C4R, copyConstBorder<Kvr32s, C4>);
KVRI_EXPORT(kvriCopyConstBorder_32s_AC4R, copyConstBorder<Kvr32s, AC4>);
KVRI_EXPORT(kvriCopyConstBorder_32f_C1R, copyConstBorderSample<Kvr32f>);
KVRI_EXPORT(kvriCopyConstBorder_32f_C3R, copyConstBorder<Kvr32f, C3>);
KVRI_EXPORT(kvriCopyConstBorder_32f_C4R, copyConstBorder<Kvr32f, C4>);
KVRI_EXPORT(kvriCopyConstBorder_32f_AC4R, copyConstBorder<Kvr32f, AC4>);

KVRI_EXPORT(kvriCopyReplicateBorder_8u_C1R, copyReplicateBorder<Kvr8u, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_C3R, copyReplicateBorder<Kvr8u, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_C4R, copyReplicateBorder<Kvr8u, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_AC4R, copyReplicateBorder<Kvr8u, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C1R, copyReplicateBorder<Kvr16u, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C3R, copyReplicateBorder<Kvr16u, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C4R, copyReplicateBorder<Kvr16u, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_AC4R, copyReplicateBorder<Kvr16u, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C1R, copyReplicateBorder<Kvr16s, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C3R, copyReplicateBorder<Kvr16s, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C4R, copyReplicateBorder<Kvr16s, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_AC4R, copyReplicateBorder<Kvr16s, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C1R, copyReplicateBorder<Kvr32s, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C3R, copyReplicateBorder<Kvr32s, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C4R, copyReplicateBorder<Kvr32s, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_AC4R, copyReplicateBorder<Kvr32s, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C1R, copyReplicateBorder<Kvr32f, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C3R, copyReplicateBorder<Kvr32f, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C4R, copyReplicateBorder<Kvr32f, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_AC4R, copyReplicateBorder<Kvr32f, AC4>);

KVRI_EXPORT(kvriCopyReplicateBorder_8u_C1IR, replicateBorder<Kvr8u, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_C3IR, replicateBorder<Kvr8u, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_C4IR, replicateBorder<Kvr8u, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_8u_AC4IR, replicateBorder<Kvr8u, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C1IR, replicateBorder<Kvr16u, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C3IR, replicateBorder<Kvr16u, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_C4IR, replicateBorder<Kvr16u, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16u_AC4IR, replicateBorder<Kvr16u, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C1IR, replicateBorder<Kvr16s, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C3IR, replicateBorder<Kvr16s, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_C4IR, replicateBorder<Kvr16s, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_16s_AC4IR, replicateBorder<Kvr16s, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C1IR, replicateBorder<Kvr32s, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C3IR, replicateBorder<Kvr32s, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_C4IR, replicateBorder<Kvr32s, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32s_AC4IR, replicateBorder<Kvr32s, AC4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C1IR, replicateBorder<Kvr32f, C1>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C3IR, replicateBorder<Kvr32f, C3>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_C4IR, replicateBorder<Kvr32f, C4>);
KVRI_EXPORT(kvriCopyReplicateBorder_32f_AC4IR, replicateBorder<Kvr32f, AC4>);

KVRI_EXPORT(kvriCopyWrapBorder_32s_C1R, copyWrapBorder<Kvr32s>);
KVRI_EXPORT(kvriCopyWrapBorder_32s_C1IR, wrapBorder<Kvr32s>);
KVRI_EXPORT(kvriCopyWrapBorder_32f_C1R, copyWrapBorder<Kvr32f>);
KVRI_EXPORT(kvriCopyWrapBorder_32f_C1IR, wrapBorder<Kvr32f>);

}  // namespace
}  // namespace kvri
