// geometry/resize_rows.h: the two passes of Resize on one row, and the strip of columns that they work on.
//
// Every sum is formed in the order of its taps by separate products and sums, so that no result depends on how a row is cut
// into strips, blocks and vectors.
#pragma once

#include "geometry/resize_samples.h"
#include "geometry/resize_spec.h"

namespace kvri {

// Vertical pass: out[i] = the sum of rows[t][i] * weight[t] over t, to which `sum` adds what earlier rows gave.
template <class T, int Taps, bool Continue, class Out>
void sumRows(const uint8_t* const* rows, const RealOf<T>* weight, int taps, ptrdiff_t samples, const RealOf<T>* sum, Out out) {
    using V = Reals<T>;
    constexpr int lanes = kReals<T>;
    const int n = Taps ? Taps : taps;
    auto block = [&](auto size, ptrdiff_t i, auto loadFrom) KVRI_INLINE {
        constexpr int vectors = size;
        V acc[vectors];
        auto add = [&](int t, auto first) KVRI_INLINE {
            const uint8_t* row = rows[t] + i * ptrdiff_t(sizeof(T));
            const V w = splat<V>(weight[t]);
            unroll<vectors>([&](auto u) KVRI_INLINE {
                const V product = loadFrom(row + u * kPackedBytes<T>) * w;
                if constexpr (first) acc[u] = product;
                else acc[u] = acc[u] + product;
            });
        };
        int t = 0;
        if constexpr (Continue) unroll<vectors>([&](auto u) KVRI_INLINE { acc[u] = load<V>(sum + i + u * lanes); });
        else add(t++, std::true_type{});
        for (; t < n; ++t) add(t, std::false_type{});
        if constexpr (vectors == 4) out.four(i, acc);
        else return acc[0];
    };
    ptrdiff_t i = 0;
    const auto whole = [](const uint8_t* p) KVRI_INLINE { return loadReals<T>(p); };
    for (; samples - i >= 4 * lanes; i += 4 * lanes) block(std::integral_constant<int, 4>{}, i, whole);
    for (; samples - i >= lanes; i += lanes) out.one(i, block(std::integral_constant<int, 1>{}, i, whole));
    if (i < samples) {
        const auto part = [&](const uint8_t* p) KVRI_INLINE { return loadRealsPart<T>(p, samples - i); };
        out.part(i, block(std::integral_constant<int, 1>{}, i, part), samples - i);
    }
}

template <class T, class Out>
void sumRows(const uint8_t* const* rows, const RealOf<T>* weight, int taps, ptrdiff_t samples, Out out) {
    switch (taps) {
        case 2: return sumRows<T, 2, false>(rows, weight, taps, samples, nullptr, out);
        case 4: return sumRows<T, 4, false>(rows, weight, taps, samples, nullptr, out);
        case 6: return sumRows<T, 6, false>(rows, weight, taps, samples, nullptr, out);
        default: return sumRows<T, 0, false>(rows, weight, taps, samples, nullptr, out);
    }
}

// A row as samples of another type.
template <class T, class Out>
void convertRow(const uint8_t* row, ptrdiff_t samples, Out out) {
    constexpr int lanes = kReals<T>;
    ptrdiff_t i = 0;
    const auto at = [&](ptrdiff_t i) { return row + i * ptrdiff_t(sizeof(T)); };
    for (; samples - i >= 4 * lanes; i += 4 * lanes) {
        Reals<T> v[4];
        unroll<4>([&](auto u) KVRI_INLINE { v[u] = loadReals<T>(at(i + u * lanes)); });
        out.four(i, v);
    }
    for (; samples - i >= lanes; i += lanes) out.one(i, loadReals<T>(at(i)));
    if (i < samples) out.part(i, loadRealsPart<T>(at(i), samples - i), samples - i);
}

// Picks the numbers at 0 <= n < Reach vectors from an address, n told by a vector of codes.
template <class F>
struct Picker {
    using V = Vec<F>;
    using Code = std::conditional_t<sizeof(F) == 4, uint32_t, uint64_t>;
    using Codes = Vec<Code>;
    static constexpr int lanes = kVectorBytes / sizeof(F);

    static constexpr Code code(uint32_t n) {
#if defined(__AVX512BW__)
        return n;
#elif defined(__AVX2__)
        if constexpr (sizeof(F) == 4) return n;
        else return Code(2 * n) | Code(2 * n + 1) << 32;
#else
        if constexpr (sizeof(F) == 4) return n * 0x04040404u + 0x03020100u;
        else return n * 0x0808080808080808u + 0x0706050403020100u;
#endif
    }

    template <int Reach>
    static V pick(const F* p, Codes codes) {
        const V a = load<V>(p);
#if defined(__AVX512BW__)
        if constexpr (sizeof(F) == 4) {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_ps((__m512i)codes, (__m512)a);
            else return (V)_mm512_permutex2var_ps((__m512)a, (__m512i)codes, (__m512)load<V>(p + lanes));
        } else {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_pd((__m512i)codes, (__m512d)a);
            else return (V)_mm512_permutex2var_pd((__m512d)a, (__m512i)codes, (__m512d)load<V>(p + lanes));
        }
#elif defined(__AVX2__)
        const __m256 low = _mm256_permutevar8x32_ps((__m256)a, (__m256i)codes);
        if constexpr (Reach == 1) return (V)low;
        else {
            const __m256 high = _mm256_permutevar8x32_ps((__m256)load<V>(p + lanes), (__m256i)codes);
            if constexpr (sizeof(F) == 4) return (V)_mm256_blendv_ps(low, high, (__m256)_mm256_slli_epi32((__m256i)codes, 28));
            else return (V)_mm256_blendv_pd((__m256d)low, (__m256d)high, (__m256d)_mm256_slli_epi64((__m256i)codes, 28));
        }
#else
        if constexpr (Reach == 1) return (V)shuffle((Bytes<>)a, (Bytes<>)codes);
        else  // a control byte with its highest bit set gives 0
            return (V)(shuffle((Bytes<>)a, (Bytes<>)codes + uint8_t(0x70)) |
                       shuffle((Bytes<>)load<V>(p + lanes), (Bytes<>)codes - uint8_t(16)));
#endif
    }
};

constexpr int kStripSamples = 512, kStripWeightBytes = 12288, kStripRowBytes = 16384;
// What kernels may read behind a row's last tap.
constexpr int kRowSlackBytes = 2 * kVectorBytes;

// A strip of destination columns: for each of its pixels the first tap's place in a row that holds the strip's source
// columns, and the weights.
template <class F>
class Strip {
    using Pick = Picker<F>;
    using V = Vec<F>;
    static constexpr int lanes = Pick::lanes, weights = kStripWeightBytes / int(sizeof(F));
    enum class Way { OneVector, TwoVectors, PixelByPixel };

    alignas(64) F weight_[weights];
    alignas(64) typename Pick::Code code_[kStripSamples + lanes];
    int32_t base_[kStripSamples];  // of each vector's samples, or of each pixel
    int taps_, stride_;            // stride: weights from tap to tap
    Way way_;

public:
    int first, last, pixels;  // source columns, destination pixels
    bool sparse;              // the row holds the pixels' taps only, pixel by pixel

    // The most pixels of a strip; 0 where the taps of one are too many.
    static int pixelsPerStrip(const ResizeSpec& spec, int channels) {
        const ResizeAxis& x = spec.x;
        const int taps = x.taps, rowPixels = (kStripRowBytes - kRowSlackBytes) / int(sizeof(F)) / channels;
        if (taps > rowPixels || taps > weights / 4) return 0;
        const int byRow = int((rowPixels - taps) / std::min<double>(x.ratio() + 1, taps)) + 1;
        const int perTap = weights / taps, byWeights = perTap < 16 ? perTap / 4 * 4 : perTap / 16 * 16 / channels;
        const int n = std::min({byRow, byWeights, kStripSamples / channels});
        return n >= 16 ? n / 16 * 16 : n;
    }

    template <int C>
    void prepare(const ResizeSpec& spec, int position, int count) {
        const ResizeAxis& x = spec.x;
        taps_ = x.taps;
        pixels = count;
        sparse = x.ratio() > taps_;
        first = spec.firstTap(x, position);
        last = spec.firstTap(x, position + count - 1) + taps_ - 1;
        int32_t place[kStripSamples];
        for (int i = 0; i < count; ++i) place[i] = (sparse ? i * taps_ : spec.firstTap(x, position + i) - first) * C;
        way_ = makeCodes<C>(place);
        if (taps_ * wholeVectors(pixels * C) > weights) way_ = Way::PixelByPixel;
        if (way_ == Way::PixelByPixel) {
            std::copy(place, place + count, base_);
            for (int i = count; i % 4 != 0; ++i) base_[i] = place[count - 1];
            setWeights<1>(spec, position);
        } else {
            setWeights<C>(spec, position);
        }
    }

    // Horizontal pass.
    template <int C, class Out>
    void apply(const F* row, Out out) const {
        switch (way_) {
            case Way::OneVector: return applyVectors<C, 1>(row, out);
            case Way::TwoVectors: return applyVectors<C, 2>(row, out);
            case Way::PixelByPixel: break;
        }
        alignas(64) F sums[kStripSamples + 16 / sizeof(F)];
        if constexpr (C == 1) sumSinglePixels(row, sums);
        else sumPixels<C>(row, sums);
        convertRow<F>(reinterpret_cast<const uint8_t*>(sums), pixels * C, out);
    }

private:
    static int wholeVectors(int samples) { return (samples + lanes - 1) / lanes * lanes; }

    // Where each sample's first tap lies, from the lowest of its vector's samples on.
    template <int C>
    Way makeCodes(const int32_t* place) {
        int reach = 0;
        const int samples = pixels * C;
        for (int s = 0; s < samples; s += lanes) {
            int32_t at[lanes], low = INT32_MAX;
            const int n = std::min(lanes, samples - s);
            for (int i = 0; i < n; ++i) {
                at[i] = place[(s + i) / C] + (s + i) % C;
                low = std::min(low, at[i]);
            }
            for (int i = 0; i < lanes; ++i) {
                const int code = i < n ? at[i] - low : 0;
                reach = std::max(reach, code);
                code_[s + i] = Pick::code(uint32_t(code));
            }
            base_[s / lanes] = low;
        }
        return reach < lanes ? Way::OneVector : reach < 2 * lanes ? Way::TwoVectors : Way::PixelByPixel;
    }

    // Each pixel's weights `Times` times, to the end of a vector.
    template <int Times>
    void setWeights(const ResizeSpec& spec, int position) {
        const ResizeAxis& x = spec.x;
        stride_ = way_ == Way::PixelByPixel ? (pixels + 3) / 4 * 4 : wholeVectors(pixels * Times);
        for (int t = 0; t < taps_; ++t) {
            F* w = weight_ + t * stride_;
            for (int i = 0; i < pixels; ++i) {
                const F value = spec.weight<F>(x, position + i, t);
                for (int k = 0; k < Times; ++k) w[i * Times + k] = value;
            }
            std::fill(w + pixels * Times, w + stride_, F(0));
        }
    }

    template <int C, int Reach, class Out>
    void applyVectors(const F* row, Out out) const {
        const int samples = pixels * C;
        auto sum = [&](int s) KVRI_INLINE {
            const F* p = row + base_[s / lanes];
            const auto codes = loadedOnce(load<typename Pick::Codes>(code_ + s));
            const F* w = weight_ + s;
            V acc = Pick::template pick<Reach>(p, codes) * load<V>(w);
            for (int t = 1; t < taps_; ++t) acc = acc + Pick::template pick<Reach>(p + t * C, codes) * load<V>(w + t * stride_);
            return acc;
        };
        int s = 0;
        for (; samples - s >= 4 * lanes; s += 4 * lanes) {
            V v[4];
            unroll<4>([&](auto u) KVRI_INLINE { v[u] = sum(s + u * lanes); });
            out.four(s, v);
        }
        for (; samples - s >= lanes; s += lanes) out.one(s, sum(s));
        if (s < samples) out.part(s, sum(s), samples - s);
    }

    // Single channel: as many pixels as 16 bytes hold, their taps loaded pixel by pixel and transposed.
    void sumSinglePixels(const F* row, F* sums) const {
        using Q = Vec<F, 16>;
        constexpr int n = 16 / sizeof(F);
        for (int i = 0; i < pixels; i += n) {
            Q acc{};
            for (int t = 0; t < taps_; t += n) {
                Q tap[n];
                unroll<n>([&](auto j) KVRI_INLINE { tap[j] = load<Q>(row + base_[i + j] + t); });
                transpose(tap);
                for (int k = 0; k < n && t + k < taps_; ++k) {
                    const Q product = tap[k] * load<Q>(weight_ + (t + k) * stride_ + i);
                    acc = t + k == 0 ? product : acc + product;
                }
            }
            store(sums + i, acc);
        }
    }

    static void transpose(Vec<double, 16> (&v)[2]) {
        const auto a = v[0], b = v[1];
        v[0] = zipLow<8>(a, b), v[1] = zipHigh<8>(a, b);
    }
    static void transpose(Vec<float, 16> (&v)[4]) {
        const auto a = zipLow<4>(v[0], v[1]), b = zipLow<4>(v[2], v[3]), c = zipHigh<4>(v[0], v[1]), d = zipHigh<4>(v[2], v[3]);
        v[0] = zipLow<8>(a, b), v[1] = zipHigh<8>(a, b), v[2] = zipLow<8>(c, d), v[3] = zipHigh<8>(c, d);
    }

    // Pixel by pixel, in parts of 16 bytes. What a part has beyond its pixel is overwritten by the next.
    template <int C>
    void sumPixels(const F* row, F* sums) const {
        using Q = Vec<F, 16>;
        constexpr int n = 16 / sizeof(F), parts = (C + n - 1) / n;
        for (int i = 0; i < pixels; ++i) {
            const F* p = row + base_[i];
            Q acc[parts];
            unroll<parts>([&](auto k) KVRI_INLINE { acc[k] = load<Q>(p + k * n) * splat<Q>(weight_[i]); });
            for (int t = 1; t < taps_; ++t) {
                const Q w = splat<Q>(weight_[t * stride_ + i]);
                unroll<parts>([&](auto k) KVRI_INLINE { acc[k] = acc[k] + load<Q>(p + t * C + k * n) * w; });
            }
            unroll<parts>([&](auto k) KVRI_INLINE { store(sums + i * C + k * n, acc[k]); });
        }
    }
};

}  // namespace kvri
