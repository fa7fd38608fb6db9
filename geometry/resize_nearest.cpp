// geometry/resize_nearest.cpp: Nearest. Pixels are moved as bytes: a lane of 16 destination bytes is shuffled together from
// 16 or 32 source bytes where its pixels lie that close, and copied pixel by pixel where not.
#include <cstring>

#include "core/dispatch.h"
#include "core/layout.h"
#include "core/simd.h"
#include "geometry/resize_apply.h"

namespace kvri {
namespace {

constexpr int kStripLanes = 512, kLane = 16;

// B: bytes of a pixel. The last lane ends with the row, over what the one before it has of the row; no lane is read from
// beyond the strip's last source pixel.
template <int B>
class NearestStrip {
    using Lane = Bytes<kLane>;

    alignas(64) uint8_t place_[kStripLanes * kLane];  // of each destination byte, from the lane's base on
    int32_t base_[kStripLanes];
    int lanes_, reach_;  // bytes that a lane's shuffle may reach; 0: pixels are copied

public:
    static constexpr int most = kStripLanes * kLane / B;
    const int32_t* index;  // source columns
    int pixels;

    void prepare(const ResizeSpec& spec, int position, int count) {
        index = spec.table<int32_t>(spec.x.index) + position;
        pixels = count;
        reach_ = 0;
        lanes_ = (count * B + kLane - 1) / kLane;
        if (count * B < kLane) return;
        int widest = 0;
        for (int i = 0; i < lanes_; ++i) widest = std::max(widest, lowest(start(i) + kLane - 1, false) - lowest(start(i), true));
        const int reach = widest < kLane ? kLane : widest < 2 * kLane ? 2 * kLane : 0;
        const int behind = (index[count - 1] - index[0] + 1) * B - reach;
        if (reach == 0 || behind < 0) return;
        reach_ = reach;
        for (int i = 0; i < lanes_; ++i) {
            base_[i] = std::min(lowest(start(i), true), behind);
            int pixel = start(i) / B, byte = start(i) % B;
            for (int k = 0; k < kLane; ++k) {
                place_[i * kLane + k] = uint8_t((index[pixel] - index[0]) * B + byte - base_[i]);
                if (++byte == B) byte = 0, ++pixel;
            }
        }
    }

    // src: the pixel of the first source column.
    template <bool Streamed>
    void apply(const uint8_t* src, uint8_t* dst) const {
        if (reach_ == kLane) return shuffleLanes<1, Streamed>(src, dst);
        if (reach_ != 0) return shuffleLanes<2, Streamed>(src, dst);
        for (int i = 0, first = index[0]; i < pixels; ++i) std::memcpy(dst + i * B, src + ptrdiff_t(index[i] - first) * B, B);
    }

private:
    int start(int lane) const { return std::min(lane * kLane, pixels * B - kLane); }
    // The lowest or highest source byte of a lane that begins or ends with a destination byte.
    int lowest(int byte, bool begins) const {
        const int pixel = byte / B, here = (index[pixel] - index[0]) * B + byte % B;
        if (begins) return pixel + 1 < pixels && byte % B != 0 ? std::min(here, (index[pixel + 1] - index[0]) * B) : here;
        return pixel > 0 && byte % B != B - 1 ? std::max(here, (index[pixel - 1] - index[0]) * B + B - 1) : here;
    }

    template <int Loads, bool Streamed>
    void shuffleLanes(const uint8_t* src, uint8_t* dst) const {
        for (int i = 0; i < lanes_; ++i) {
            const uint8_t* p = src + base_[i];
            const Lane place = load<Lane>(place_ + i * kLane);
            Lane v;
            if constexpr (Loads == 1) v = shuffle(load<Lane>(p), place);
            else  // a control byte with its highest bit set gives 0
                v = shuffle(load<Lane>(p), place + uint8_t(0x70)) | shuffle(load<Lane>(p + kLane), place - uint8_t(kLane));
            if (Streamed && i < lanes_ - 1) stream(dst + i * kLane, v);
            else store(dst + (i < lanes_ - 1 ? i * kLane : start(i)), v);
        }
    }
};

template <int B>
void resizeNearest(const ResizeTile& tile) {
    NearestStrip<B> strip;
    const int32_t* rows = tile.spec.table<int32_t>(tile.spec.y.index) + tile.offset.y;
    for (int x = 0; x < tile.size.width; x += strip.most) {
        strip.prepare(tile.spec, tile.offset.x + x, std::min(strip.most, tile.size.width - x));
        for (int y = 0; y < tile.size.height; ++y) {
            tile.prefetchDestination(y + 2, x, strip.pixels, B);
            const uint8_t* src = tile.source(rows[y], strip.index[0], B);
            uint8_t* dst = tile.destination(y, x, B);
            if (tile.streams && reinterpret_cast<uintptr_t>(dst) % kLane == 0) strip.template apply<true>(src, dst);
            else strip.template apply<false>(src, dst);
        }
    }
}

template <class T, class L>
KvrStatus nearest(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                  const T*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpNearest, false, ResizeWeights::None};
    return applyResize<L::channels>(accepts, resizeNearest<L::channels * sizeof(T)>, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec,
                       pBuffer);
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
