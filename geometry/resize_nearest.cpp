// geometry/resize_nearest.cpp: Nearest. Pixels are moved as bytes: half and double rows by whole vectors; else vectors are
// picked from windows of the source row, where the build can, or a lane of 16 destination bytes is shuffled together from 16 or
// 32 source bytes where its pixels lie that close, and copied pixel by pixel where not.
#include <cstring>

#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_pairs.h"
#include "geometry/resize_windows.h"

namespace kvri {
namespace {

constexpr int kStripLanes = 2048, kLane = 16;

// B: bytes of a pixel. The last lane ends with the row, over what the one before it has of the row; no lane is read from
// beyond the strip's last source pixel.
template <int B>
class NearestStrip {
    using Lane = Bytes<kLane>;

    alignas(64) Lane place_[kStripLanes];  // of each destination byte, from the lane's base on
    int32_t base_[kStripLanes];
    int lanes_, reach_;  // bytes that a lane's shuffle may reach; 0: pixels are copied
    const int32_t* index_;   // source columns
    int pixels_;

public:
    static constexpr int most = kStripLanes * kLane;  // destination bytes

    template <int>
    bool prepare(const int32_t* columns, int count) {
        index_ = columns;
        pixels_ = count;
        reach_ = 0;
        lanes_ = (count * B + kLane - 1) / kLane;
        if (count * B < kLane) return true;
        Lane widest{};
        for (int i = 0; i < lanes_; ++i) {
            const int byte = start(i), pixel = byte / B, phase = byte % B;
            const Lane place = laneOffsets<B>(index_ + pixel, phase);
            // The second pixel may begin before the first byte.
            const int low = phase == 0 ? 0 : std::min(phase, (index_[pixel + 1] - index_[pixel]) * B);
            base_[i] = (index_[pixel] - index_[0]) * B + low;
            place_[i] = place - uint8_t(low);
            widest |= place_[i];
        }
        const int reach = allZero(widest & uint8_t(-kLane)) ? kLane : allZero(widest & uint8_t(-2 * kLane)) ? 2 * kLane : 0;
        const int behind = (index_[count - 1] - index_[0] + 1) * B - reach;
        if (reach == 0 || behind < 0) return true;
        reach_ = reach;
        for (int i = lanes_ - 1; i >= 0 && base_[i] > behind; --i) {
            place_[i] += uint8_t(base_[i] - behind);
            base_[i] = behind;
        }
        return true;
    }

    static constexpr int mostRows = 1;
    static int rowsAtATime() { return mostRows; }

    // src: the pixel of the first source column.
    void apply(const uint8_t* const* rows, int, uint8_t* dst, ptrdiff_t) const {
        const uint8_t* src = rows[0];
        if (reach_ == kLane) return shuffleLanes<1>(src, dst);
        if (reach_ != 0) return shuffleLanes<2>(src, dst);
        for (int i = 0, first = index_[0]; i < pixels_; ++i) std::memcpy(dst + i * B, src + ptrdiff_t(index_[i] - first) * B, B);
    }

private:
    int start(int lane) const { return std::min(lane * kLane, pixels_ * B - kLane); }

    template <int Loads>
    void shuffleLanes(const uint8_t* src, uint8_t* dst) const {
        constexpr int perVector = kVectorBytes / kLane;
        int lane = 0;
        for (; lane + perVector < lanes_; lane += perVector) store(dst + lane * kLane, lanesFrom<Loads, kVectorBytes>(src, lane));
        for (; lane < lanes_; ++lane) store(dst + start(lane), lanesFrom<Loads, kLane>(src, lane));
    }

    // W bytes of the destination, from lane `first` on.
    template <int Loads, int W>
    Bytes<W> lanesFrom(const uint8_t* src, int first) const {
        const auto lanes = [&](int at) KVRI_INLINE {
            return fromLanes<W>([&](int l) KVRI_INLINE { return load<Lane>(src + base_[first + l] + at); });
        };
        const auto place = load<Bytes<W>>(place_ + first);
        if constexpr (Loads == 1) return shuffle(lanes(0), place);
        else  // a control byte with its highest bit set gives 0
            return shuffle(lanes(0), place + uint8_t(0x70)) | shuffle(lanes(kLane), place - uint8_t(kLane));
    }
};

// Calls fill(source row from `column` on, destination row from x on) for every destination row. Writing two that are alike at
// a time would be slower: rows may lie a power of two apart.
template <int B, class Fill>
KVRI_INLINE inline void eachRowOf(const ResizeTile& tile, int x, int column, Fill fill) {
    const int32_t* index = tile.spec.table<int32_t>(tile.spec.y.index) + tile.offset.y;
    const SourceColumn source(tile, column, B);
    uint8_t* dst = tile.destination(0, x, B);
    for (int y = 0;; dst += tile.dstStep) {
        fill(source[index[y]], dst);
        if (++y == tile.size.height) return;
    }
}

template <bool Streamed, class V>
void put(uint8_t* dst, V v) {
    if constexpr (Streamed) stream(dst, v);
    else store(dst, v);
}

// Calls run(whether vectors of W bytes at multiples of W from the begin of a row are to be streamed, as a constant).
template <int W, class Run>
void chooseStreaming(const ResizeTile& tile, Run run) {
    if (tile.streamsVectors<W>()) run(std::true_type{});
    else run(std::false_type{});
}

// Every second column.
template <int B, int W>
bool halveColumns(const ResizeTile& tile) {
    using Pairs = PixelPairs<W, B>;
    const ptrdiff_t n = ptrdiff_t(tile.size.width) * B, last = n - Pairs::bytes;
    if (!Pairs::endsWithFirst || last < 0) return false;
    chooseStreaming<W>(tile, [&](auto streamed) {
        eachRowOf<B>(tile, 0, 2 * tile.offset.x, [=](const uint8_t* src, uint8_t* dst) KVRI_INLINE {
            for (ptrdiff_t i = 0; i < last; i += Pairs::bytes) {
                const uint8_t* p = src + 2 * i;
                const auto v = Pairs::ordered(Pairs::template pick<Pairs::Firsts>(Pairs::firstLoad(p), Pairs::secondLoad(p)));
                if constexpr (Pairs::bytes == W) put<streamed>(dst + i, v);
                else Pairs::put(dst + i, v);
            }
            const uint8_t* p = src + 2 * last;
            Pairs::put(dst + last, Pairs::ordered(Pairs::template pick<Pairs::FirstsEarlier>(Pairs::firstLoad(p), Pairs::earlierLoad(p))));
        });
    });
    return true;
}

// Every column twice, but for a half pair at either end.
template <int B, int W>
bool doubleColumns(const ResizeTile& tile) {
    using Twice = PixelsTwice<W, B>;
    const int before = tile.offset.x % 2, pairs = (tile.size.width - before) / 2, behind = tile.size.width - before - 2 * pairs;
    const ptrdiff_t n = ptrdiff_t(pairs) * 2 * B, begin = before * B;
    if (n < Twice::bytes) return false;
    const auto rows = [&](auto streamed) {
        eachRowOf<B>(tile, 0, tile.offset.x / 2, [=](const uint8_t* src, uint8_t* dst) KVRI_INLINE {
            if (before) std::memcpy(dst, src, B);
            if (behind) std::memcpy(dst + begin + n, src + begin + n / 2, B);
            src += begin, dst += begin;
            ptrdiff_t i = 0;
            for (; n - i >= Twice::bytes; i += Twice::bytes)
                Twice::block(src + i / 2, [&](int at, auto v) KVRI_INLINE { put<streamed>(dst + i + at, v); });
            if (i == n) return;
            i = n - Twice::bytes;
            Twice::block(src + i / 2, [&](int at, auto v) KVRI_INLINE { store(dst + i + at, v); });
        });
    };
    if (before) rows(std::false_type{});
    else chooseStreaming<W>(tile, rows);
    return true;
}

// Whole vectors past the caches, wherever the row begins.
void streamRow(uint8_t* dst, const uint8_t* from, ptrdiff_t n) {
    const ptrdiff_t head = std::min<ptrdiff_t>(-reinterpret_cast<intptr_t>(dst) & (kVectorBytes - 1), n);
    storePart(dst, load<Bytes<>>(from), head);
    ptrdiff_t i = head;
    for (; n - i >= kVectorBytes; i += kVectorBytes) stream(dst + i, load<Bytes<>>(from + i));
    storePart(dst + i, load<Bytes<>>(from + i), n - i);
}

// Strips of destination columns, by tables of a kind; false where such tables do not reach.
template <int B, class Tables>
bool byStrips(const ResizeTile& tile) {
    Tables tables;
    const int32_t* index = tile.spec.table<int32_t>(tile.spec.x.index) + tile.offset.x;
    const int width = tile.size.width, strip = tile.stripWidth(Tables::most / B);
    for (int x = 0; x < width; x += strip) {
        const int pixels = std::min(strip, width - x);
        if (!tables.template prepare<B>(index + x, pixels)) return false;
        const int32_t* rows = tile.spec.table<int32_t>(tile.spec.y.index) + tile.offset.y;
        const SourceColumn source(tile, index[x], B);
        const int atATime = tables.rowsAtATime();
        for (int y = 0; y < tile.size.height; y += atATime) {
            const uint8_t* src[Tables::mostRows];
            const int n = std::min(atATime, tile.size.height - y);
            for (int i = 0; i < n; ++i) src[i] = source[rows[y + i]];
            uint8_t* dst = tile.destination(y, x, B);
            if (tile.streams && Tables::mostRows == 1) {  // several rows at a time gain nothing from it
                uint8_t row[Tables::most + kVectorBytes];
                tables.apply(src, 1, row, 0);
                streamRow(dst, row, ptrdiff_t(pixels) * B);
            } else {
                tables.apply(src, n, dst, tile.dstStep);
            }
        }
    }
    return true;
}

// Pixels of a whole lane.
void byLanes(const ResizeTile& tile) {
    const int32_t* index = tile.spec.table<int32_t>(tile.spec.x.index) + tile.offset.x;
    const int width = tile.size.width, column = index[0];
    chooseStreaming<kLane>(tile, [&](auto streamed) {
        eachRowOf<kLane>(tile, 0, column, [=](const uint8_t* src, uint8_t* dst) KVRI_INLINE {
            const auto pixel = [&](int i) KVRI_INLINE { return load<Bytes<kLane>>(src + ptrdiff_t(index[i] - column) * kLane); };
            int i = 0;
            constexpr int perVector = streamed ? 1 : kVectorBytes / kLane;
            for (; i + perVector <= width; i += perVector)
                put<streamed>(dst + ptrdiff_t(i) * kLane, fromLanes<perVector * kLane>([&](int l) KVRI_INLINE { return pixel(i + l); }));
            for (; i < width; ++i) store(dst + ptrdiff_t(i) * kLane, pixel(i));
        });
    });
}

template <int B>
void keepColumns(const ResizeTile& tile) {
    const ptrdiff_t n = ptrdiff_t(tile.size.width) * B;
    eachRowOf<B>(tile, 0, tile.offset.x, [&](const uint8_t* src, uint8_t* dst) KVRI_INLINE {
        if (tile.streams) streamRow(dst, src, n);
        else std::memcpy(dst, src, size_t(n));
    });
}

template <int B>
void resizeNearest(const ResizeTile& tile) {
    const ResizeAxis& x = tile.spec.x;
    if (x.keeps()) return keepColumns<B>(tile);
    if (x.halves()) {
        if (halveColumns<B, kVectorBytes>(tile) || halveColumns<B, kShuffleBytes>(tile) || halveColumns<B, 16>(tile)) return;
    } else if (x.doubles()) {
        if (doubleColumns<B, kVectorBytes>(tile) || doubleColumns<B, kShuffleBytes>(tile) || doubleColumns<B, 16>(tile)) return;
    }
    if constexpr (B == kLane) byLanes(tile);
#if defined(__AVX512BW__)
    else if (byStrips<B, WindowTables<64>>(tile) || byStrips<B, WindowTables<32>>(tile)) return;
#endif
    else byStrips<B, NearestStrip<B>>(tile);
}

template <class T, class L>
KvrStatus nearest(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                  const T*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpNearest, false, ResizeWeights::None};
    // Rows that are only moved gain by streaming when they fill the cache themselves.
    return applyResize<L::channels, 1>(accepts, resizeNearest<L::channels * sizeof(T)>, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border,
                                       pSpec, pBuffer);
}

KVRI_EXPORT(kvriResizeNearest_8u_C1R, nearest<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeNearest_8u_C3R, nearest<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeNearest_8u_C4R, nearest<Kvr8u, C4>);
KVRI_EXPORT(kvriResizeNearest_16u_C1R, nearest<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeNearest_16u_C3R, nearest<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeNearest_16u_C4R, nearest<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeNearest_16s_C1R, nearest<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeNearest_16s_C3R, nearest<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeNearest_16s_C4R, nearest<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeNearest_32f_C1R, nearest<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeNearest_32f_C3R, nearest<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeNearest_32f_C4R, nearest<Kvr32f, C4>);

}  // namespace
}  // namespace kvri
