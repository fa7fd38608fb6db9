// datamove/transpose.h: source pixel (x, y) to destination pixel (y, x), for pixels of B bytes, of which the first `Chosen`
// are written.
//
// A block is as many columns as fit a lane of 16 bytes. Of pixels of 1, 2, 4, 8 and 16 bytes it has as many rows as fit a
// vector, each lane transposing a square by zips alone. Of 3, 6 and 12 bytes a lane takes twelve bytes of a row; words of
// four bytes are zipped, shuffles pick the pixels' bytes out of them, and four such groups of rows close ranks (groups.h).
//
// The last blocks of rows and columns reach back into pixels that are already written. Images narrower than a block go
// through padded scratch.
#pragma once

#include "core/block.h"
#include "core/layout.h"
#include "core/rows.h"
#include "datamove/copyrow.h"
#include "datamove/groups.h"

namespace kvri {

template <class T>
Image<T> upsideDown(const Image<T>& image, ptrdiff_t height) {
    return {image.row + (height - 1) * image.step, -image.step, image.pixelBytes};
}

// Vectors of rows to vectors of columns, of elements of Size bytes: after log2(N) rounds the rows' numbers have taken the
// place of as many bits of the elements' numbers.
template <int Size, int N, class V>
KVRI_INLINE inline void zipRows(V (&v)[N]) {
    for (int rounds = N; rounds > 1; rounds /= 2) {
        V zipped[N];
#pragma GCC unroll 16
        for (int i = 0; i < N / 2; ++i) {
            zipped[2 * i] = zipLow<Size>(v[i], v[i + N / 2]);
            zipped[2 * i + 1] = zipHigh<Size>(v[i], v[i + N / 2]);
        }
#pragma GCC unroll 16
        for (int i = 0; i < N; ++i) v[i] = zipped[i];
    }
}

// Rows one after the other, four from each address that is formed. Opaque, as the compiler would otherwise form the
// addresses of all of a block's rows ahead, which are more than it has registers.
template <class T>
class Rows {
    T* row_;
    const ptrdiff_t step_, three_;

    static KVRI_INLINE ptrdiff_t threefold(ptrdiff_t step) {
        ptrdiff_t three = 3 * step;
        asm("" : "+r"(three));
        return three;
    }

public:
    KVRI_INLINE Rows(T* row, ptrdiff_t step) : row_(row), step_(step), three_(threefold(step)) {}

    template <int i>
    KVRI_INLINE T* at() {
        if constexpr (i > 0 && i % 4 == 0) {
            row_ += 4 * step_;
            asm("" : "+r"(row_));
        }
        return row_ + (i % 4 == 3 ? three_ : i % 4 * step_);
    }
};

// run(src, step, edge, put) transposes the block at src: put(column, j, v) takes vector j of a destination row, row by
// row. Reads up to
// `readable` columns, at an `edge` none but the block's.
template <int B, int W, bool Grouped = B % 3 == 0>
struct TransposedBlock {
    using V = Bytes<W>;
    static constexpr int columns = 16 / B, readable = columns, rows = W / B, vectors = 1;
    static constexpr std::false_type edge{};

    static KVRI_INLINE void run(const uint8_t* src, ptrdiff_t step, auto, auto put) {
        V v[columns];
        Rows low(src, step), high(W == 16 ? src : src + columns * step, step);
        unroll<columns>([&](auto i) KVRI_INLINE { v[i] = loadLanes<V>(low.template at<i>(), high.template at<i>()); });
        zipRows<B>(v);
        unroll<columns>([&](auto i) KVRI_INLINE { put(i, std::integral_constant<int, 0>{}, v[i]); });
    }
};

template <int B, int W>
struct TransposedBlock<B, W, true> {
    using V = Bytes<W>;
    static constexpr int columns = 12 / B, readable = (16 + B - 1) / B, rows = 3 * W / B, vectors = 3;
    static constexpr std::true_type edge{};

private:
    static constexpr int N = columns, wordsEach = 4 / N;  // words that a zipped vector has of each row

    // Where byte b of the pixel in row i and column c lies: in one zipped vector, or in two that do not collide.
    static constexpr int vectorOf(int c, int b) { return (c * B + b) / 4 / wordsEach; }
    static constexpr int placeOf(int c, int i, int b) { return ((c * B + b) / 4 % wordsEach * N + i) * 4 + (c * B + b) % 4; }

    template <int c>
    static KVRI_INLINE V column(const V (&zipped)[N]) {
        constexpr int first = vectorOf(c, 0), last = vectorOf(c, B - 1);
        if constexpr (first == last) return zipped[first];
        else
            return blendWhere<V>([](int place) {
                for (int b = 0; b < B; ++b)
                    if (vectorOf(c, b) == first && placeOf(c, 0, b) / (4 * N) == place % 16 / (4 * N) &&
                        placeOf(c, 0, b) % 4 / 2 == place % 4 / 2)
                        return true;
                return false;
            }, zipped[first], zipped[last]);
    }

    template <int c, int k>
    static KVRI_INLINE V group(V pixels) {
        return shuffle(pixels, constant<V>([](int i) {
            const int byte = groupByte(k, i % 16);
            return byte < 12 ? placeOf(c, byte / B, byte % B) : 128;
        }));
    }

    static KVRI_INLINE V loadWords(const uint8_t* low, const uint8_t* high, auto edge) {
        if constexpr (!edge) return loadLanes<V>(low, high);
        const auto twelve = [](const uint8_t* p) KVRI_INLINE {
            int32_t last;
            std::memcpy(&last, p + 8, sizeof last);
            return _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_cvtsi32_si128(last));
        };
        if constexpr (W == 16) return (V)twelve(low);
#if defined(__AVX2__)
        else return (V)_mm256_inserti128_si256(_mm256_castsi128_si256(twelve(low)), twelve(high), 1);
#endif
    }

public:
    static KVRI_INLINE void run(const uint8_t* src, ptrdiff_t step, auto edge, auto put) {
        V groups[columns][4];
        Rows low(src, step), high(W == 16 ? src : src + 4 * N * step, step);
        unroll<4>([&](auto k) KVRI_INLINE {
            V v[N];
            unroll<N>([&](auto i) KVRI_INLINE { v[i] = loadWords(low.template at<k * N + i>(), high.template at<k * N + i>(), edge); });
            zipRows<4>(v);
            unroll<columns>([&](auto c) KVRI_INLINE { groups[c][k] = group<c, k>(column<c>(v)); });
        });
        unroll<columns>([&](auto c) KVRI_INLINE {
            V packed[3];
            closeRanks(groups[c], packed);
            unroll<3>([&](auto j) KVRI_INLINE { put(c, j, packed[j]); });
        });
    }
};

template <int B, int Chosen, class V>
KVRI_INLINE inline void storePixels(auto block, uint8_t* p, V v, ptrdiff_t bytes) {
    if constexpr (Chosen == B) block.store(p, v, bytes);
    else block.storeChosen(p, v, choose<V>([](int i) { return i % B < Chosen; }), bytes);
}

// Addresses are passed one by one: records of them would travel through memory, in pieces of other sizes than they are read.

// Which blocks follow each other: those of the same columns fill the lines of a few destination rows, as the caches like it;
// where they hold both images, blocks of the same rows take turns faster.
enum class Order { Columns, Rows };

// So many blocks of vectors of W bytes side by side and one below the other. Not inlined, as addresses and steps are to have
// all registers.
template <int B, int Chosen, int W, Order order, bool atEdge>
__attribute__((noinline)) void transposeBlocks(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t across,
                                               ptrdiff_t down) {
    using T = TransposedBlock<B, W>;
    constexpr bool byRows = order == Order::Rows;
    const ptrdiff_t srcAcross = T::columns * B, dstAcross = T::columns * dstStep, srcDown = T::rows * srcStep, dstDown = T::rows * B;
    for (ptrdiff_t outer = byRows ? down : across; outer > 0; --outer) {
        const uint8_t* s = src;
        uint8_t* d = dst;
        for (ptrdiff_t inner = byRows ? across : down; inner > 0; --inner) {
            Rows to(d, dstStep);
            uint8_t* row = nullptr;
            T::run(s, srcStep, std::bool_constant<atEdge>{}, [&](auto column, auto j, auto v) KVRI_INLINE {
                if constexpr (j == 0) row = to.template at<column>();
                storePixels<B, Chosen>(WholeBlock{}, row + j * W, v, W);
            });
            s += byRows ? srcAcross : srcDown, d += byRows ? dstAcross : dstDown;
            asm("" : "+r"(s), "+r"(d));
        }
        src += byRows ? srcDown : srcAcross, dst += byRows ? dstDown : dstAcross;
    }
}

// There is at least a block. The last ones of rows and columns reach back.
template <int B, int Chosen, int W, Order order>
void transposeBy(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t columns, ptrdiff_t rows) {
    using T = TransposedBlock<B, W>;
    const auto from = [&](ptrdiff_t x, ptrdiff_t across, auto edge) KVRI_INLINE {
        const auto at = [&](ptrdiff_t y, ptrdiff_t down) KVRI_INLINE {
            transposeBlocks<B, Chosen, W, order, edge>(src + y * srcStep + x * B, srcStep, dst + x * dstStep + y * B, dstStep, across, down);
        };
        at(0, rows / T::rows);
        if (rows % T::rows != 0) at(rows - T::rows, 1);
    };
    ptrdiff_t x = std::max<ptrdiff_t>(columns - (T::readable - T::columns), 0) / T::columns * T::columns;
    if (x > 0) from(0, x / T::columns, std::false_type{});
    for (; x < columns; x += T::columns) from(std::min(x, columns - T::columns), 1, T::edge);
}

// Through scratch of whole blocks.
template <int B, int Chosen>
void transposeNarrow(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t columns, ptrdiff_t rows) {
    using T = TransposedBlock<B, 16>;
    using V = Bytes<16>;
    alignas(16) uint8_t in[T::rows * 16] = {}, out[T::columns][T::vectors * 16];
    for (ptrdiff_t x = 0; x < columns; x += T::columns)
        for (ptrdiff_t y = 0; y < rows; y += T::rows) {
            const ptrdiff_t width = std::min<ptrdiff_t>(columns - x, T::columns), height = std::min<ptrdiff_t>(rows - y, T::rows);
            for (ptrdiff_t i = 0; i < height; ++i)
                store(in + i * 16, loadPart<V>(src + (y + i) * srcStep + x * B, width * B));
            T::run(in, 16, std::false_type{}, [&](auto c, auto j, V v) KVRI_INLINE { store(out[c] + j * 16, v); });
            for (ptrdiff_t c = 0; c < width; ++c)
                for (int j = 0; j < T::vectors; ++j)
                    storePixels<B, Chosen>(PartBlock{}, dst + (x + c) * dstStep + y * B + j * 16, load<V>(out[c] + j * 16),
                                           height * B - j * 16);
        }
}

template <int B, int Chosen, Order order = Order::Columns>
KVRI_INLINE inline void transposeRegion(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t columns,
                                        ptrdiff_t rows) {
    using Narrow = TransposedBlock<B, 16>;
    using Wide = TransposedBlock<B, kShuffleBytes>;
    if (columns < Narrow::columns || rows < Narrow::rows)
        transposeNarrow<B, Chosen>(src, srcStep, dst, dstStep, columns, rows);
    else if (rows < Wide::rows)
        transposeBy<B, Chosen, 16, order>(src, srcStep, dst, dstStep, columns, rows);
    else
        transposeBy<B, Chosen, kShuffleBytes, order>(src, srcStep, dst, dstStep, columns, rows);
}

// Large images go tile by tile, each copied row by row into memory first: there its rows do not compete for places in the
// cache, as those of an image do where its step is a multiple of a large power of two. Rows and columns of a tile are some
// cache lines long.
template <int B, int Rows, int Columns>
struct TileOf {
    static constexpr ptrdiff_t rows = Rows, columns = Columns, step = columns * B, bytes = rows * step;
};

template <int B>
using Tile = TileOf<B, B <= 2 || B == 4 ? 128 : B <= 8 ? 64 : 16, B == 1 ? 128 : B <= 6 ? 64 : B == 8 ? 32 : 16>;

// From memory and past the caches: few lines of a source row, so that a destination row gets more of them at a time.
template <int B>
using StreamedTile = TileOf<B, B == 3 || B == 6 ? 64 : B <= 4 ? 256 / B : B == 8 ? 32 : 16,
                            B == 3 || B == 6 ? 64 : B <= 4 ? 64 / B : B == 8 ? 32 : 16>;

template <class T>
KVRI_INLINE inline void takeTile(const uint8_t* src, ptrdiff_t srcStep, uint8_t* tile, ptrdiff_t rowBytes, ptrdiff_t rows) {
    const auto take = [&](ptrdiff_t bytes) KVRI_INLINE {
        for (ptrdiff_t y = 0; y < rows; ++y) copyRow(src + y * srcStep, tile + y * T::step, bytes);
    };
    if (rowBytes == T::step) take(T::step);
    else take(rowBytes);
}

// Into the second-level cache: a tile's rows may have few places in the first.
inline void prefetchRows(const uint8_t* p, ptrdiff_t step, ptrdiff_t bytes, ptrdiff_t rows) {
    for (ptrdiff_t y = 0; y < rows; ++y)
        for (ptrdiff_t i = 0; i < bytes; i += 64) __builtin_prefetch(p + y * step + i, 0, 2);
}

// Calls f(x, y) for every tile. Neighbours come together, such that the pages of their rows stay known to the processor.
template <class F>
void eachTile(ptrdiff_t columns, ptrdiff_t rows, ptrdiff_t tileColumns, ptrdiff_t tileRows, F f) {
    constexpr ptrdiff_t pages = 512;
    for (ptrdiff_t top = 0; top < rows; top += pages)
        for (ptrdiff_t left = 0; left < columns; left += pages)
            for (ptrdiff_t y = top; y < std::min(rows, top + pages); y += tileRows)
                for (ptrdiff_t x = left; x < std::min(columns, left + pages); x += tileColumns) f(x, y);
}

// Whole tiles whose destination rows are whole cache lines, past the caches.
template <int B>
void streamTile(const uint8_t* tile, uint8_t* dst, ptrdiff_t dstStep) {
    using T = StreamedTile<B>;
    constexpr int row = T::rows * B;
    alignas(64) uint8_t turned[T::bytes];
    transposeRegion<B, B>(tile, T::step, turned, row, T::columns, T::rows);
    for (ptrdiff_t x = 0; x < T::columns; ++x)
        for (int i = 0; i < row; i += kVectorBytes) stream(dst + x * dstStep + i, load<Bytes<>>(turned + x * row + i));
}

// There is at least a block. `far`: beyond the caches.
template <int B, int Chosen, bool streamed>
void transposeTiles(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t columns, ptrdiff_t rows, bool far) {
    using Narrow = TransposedBlock<B, 16>;
    using T = std::conditional_t<streamed, StreamedTile<B>, Tile<B>>;
    alignas(64) uint8_t tile[T::bytes];
    eachTile(columns, rows, T::columns, T::rows, [&](ptrdiff_t x, ptrdiff_t y) {
        // What is left at the end is at least a block, be it one that is partly done.
        x = std::min<ptrdiff_t>(x, columns - Narrow::columns), y = std::min<ptrdiff_t>(y, rows - Narrow::rows);
        const ptrdiff_t width = std::min(columns - x, T::columns), height = std::min(rows - y, T::rows);
        const bool streamedTile = streamed && width == T::columns && height == T::rows;
        const uint8_t* s = src + y * srcStep + x * B;
        uint8_t* d = dst + x * dstStep + y * B;
        if (far && !streamedTile) prefetchRows(d, dstStep, height * B, width);
        takeTile<T>(s, srcStep, tile, width * B, height);
        if (far) prefetchRows(s + T::step, srcStep, T::step, height);
        if constexpr (streamed)
            if (streamedTile) return streamTile<B>(tile, d, dstStep);
        transposeRegion<B, Chosen>(tile, T::step, d, dstStep, width, height);
    });
    if (streamed) fenceStreams();
}

template <int B, int Chosen = B>
void transposeImage(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, KvriSize roi) {
    using Narrow = TransposedBlock<B, 16>;
    constexpr ptrdiff_t fitsFirstCache = 16384, worthTiles = 49152;  // smaller ones are near enough in the first two caches
    const ptrdiff_t columns = roi.width, rows = roi.height, bytes = columns * rows * B;
    if (bytes > worthTiles && columns >= Narrow::columns && rows >= Narrow::rows) {
        const bool far = exceedsCache(roi, 4 * B);
        if (far && Chosen == B && (reinterpret_cast<uintptr_t>(dst) | uintptr_t(dstStep)) % 64 == 0)
            return transposeTiles<B, Chosen, true>(src, srcStep, dst, dstStep, columns, rows, true);
        transposeTiles<B, Chosen, false>(src, srcStep, dst, dstStep, columns, rows, far);
    } else if (bytes <= fitsFirstCache)
        transposeRegion<B, Chosen, Order::Rows>(src, srcStep, dst, dstStep, columns, rows);
    else
        transposeRegion<B, Chosen>(src, srcStep, dst, dstStep, columns, rows);
}

// Square tiles change places in pairs.
template <int B>
void transposeInPlace(uint8_t* image, ptrdiff_t step, ptrdiff_t size) {
    using T = Tile<B>;
    const bool far = exceedsCache({int(size), int(size)}, 4 * B);
    alignas(64) uint8_t tile[T::columns * T::step];
    eachTile(size, size, T::columns, T::columns, [&](ptrdiff_t x, ptrdiff_t y) {
        if (x < y) return;
        const ptrdiff_t width = std::min(size - x, T::columns), height = std::min(size - y, T::columns);
        uint8_t *right = image + y * step + x * B, *below = image + x * step + y * B;
        if (far) prefetchRows(below, step, height * B, width);
        takeTile<T>(right, step, tile, width * B, height);
        if (x > y) transposeRegion<B, B>(below, step, right, step, height, width);
        transposeRegion<B, B>(tile, T::step, below, step, width, height);
    });
}

}  // namespace kvri
