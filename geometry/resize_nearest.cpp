// geometry/resize_nearest.cpp: Nearest. Pixels are moved as bytes: a lane of 16 destination bytes is shuffled together from
// 16 or 32 source bytes where its pixels lie that close, and copied pixel by pixel where not.
#include <cstring>

#include "core/dispatch.h"
#include "core/layout.h"
#include "core/simd.h"
#include "geometry/resize_apply.h"

namespace kvri {
namespace {

constexpr int kStripLanes = 64, kLane = 16;

// B: bytes of a pixel.
template <int B>
class NearestStrip {
    using Lane = Bytes<kLane>;

    alignas(64) uint8_t place_[kStripLanes * kLane];  // of each destination byte, from the lane's base on
    int32_t base_[kStripLanes];
    int reach_, near_;  // bytes that a lane's shuffle may reach; lanes whose whole reach lies in the strip's source pixels

public:
    static constexpr int most = kStripLanes * kLane / B;
    const int32_t* index;  // source columns
    int pixels;

    void prepare(const ResizeSpec& spec, int position, int count) {
        index = spec.table<int32_t>(spec.x.index) + position;
        pixels = count;
        const int bytes = count * B, sourceBytes = (index[count - 1] - index[0] + 1) * B;
        int widest = 0;
        for (int i = 0; i < bytes; i += kLane) {
            const int n = std::min(kLane, bytes - i);
            int low = at(i);
            for (int k = 1; k < n; ++k) low = std::min(low, at(i + k));
            for (int k = 0; k < kLane; ++k) {
                const int place = k < n ? at(i + k) - low : 0;
                widest = std::max(widest, place);
                place_[i + k] = uint8_t(place);
            }
            base_[i / kLane] = low;
        }
        reach_ = widest < kLane ? kLane : widest < 2 * kLane ? 2 * kLane : 0;
        near_ = 0;
        if (reach_ != 0)
            while (near_ < bytes / kLane && base_[near_] + reach_ <= sourceBytes) ++near_;
    }

    // src: the pixel of the first source column.
    void apply(const uint8_t* src, uint8_t* dst) const {
        if (reach_ == kLane) shuffleLanes<1>(src, dst);
        else if (reach_ != 0) shuffleLanes<2>(src, dst);
        for (int i = near_ * kLane / B, first = index[0]; i < pixels; ++i)  // a pixel begun in a lane is copied once more
            std::memcpy(dst + i * B, src + ptrdiff_t(index[i] - first) * B, B);
    }

private:
    int at(int byte) const { return (index[byte / B] - index[0]) * B + byte % B; }

    template <int Loads>
    void shuffleLanes(const uint8_t* src, uint8_t* dst) const {
        for (int i = 0; i < near_; ++i) {
            const uint8_t* p = src + base_[i];
            const Lane place = load<Lane>(place_ + i * kLane);
            Lane v;
            if constexpr (Loads == 1) v = shuffle(load<Lane>(p), place);
            else  // a control byte with its highest bit set gives 0
                v = shuffle(load<Lane>(p), place + uint8_t(0x70)) | shuffle(load<Lane>(p + kLane), place - uint8_t(kLane));
            store(dst + i * kLane, v);
        }
    }
};

template <int B>
void resizeNearest(const ResizeTile& tile) {
    NearestStrip<B> strip;
    const int32_t* rows = tile.spec.table<int32_t>(tile.spec.y.index) + tile.offset.y;
    for (int x = 0; x < tile.size.width; x += strip.most) {
        strip.prepare(tile.spec, tile.offset.x + x, std::min(strip.most, tile.size.width - x));
        for (int y = 0; y < tile.size.height; ++y)
            strip.apply(tile.source(rows[y], strip.index[0], B), tile.destination(y, x, B));
    }
}

template <class T, class L>
KvrStatus nearest(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                  const T*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpNearest, false, ResizeWeights::None};
    return applyResize(accepts, resizeNearest<L::channels * sizeof(T)>, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec,
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
