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
    const auto single = [&](ptrdiff_t end) KVRI_INLINE {
        for (; end - i >= lanes; i += lanes) out.one(i, block(std::integral_constant<int, 1>{}, i, whole));
        if (i >= end) return;
        const auto part = [&](const uint8_t* p) KVRI_INLINE { return loadRealsPart<T>(p, end - i); };
        out.part(i, block(std::integral_constant<int, 1>{}, i, part), end - i);
        i = end;
    };
    if (const ptrdiff_t head = out.head()) single(std::min(head, samples));
    for (; samples - i >= 4 * lanes; i += 4 * lanes) block(std::integral_constant<int, 4>{}, i, whole);
    single(samples);
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

    static Codes codes(Codes n) {
        if constexpr (kVectorBytes > 16) return n;
        else return n * uint32_t(0x04040404) + uint32_t(0x03020100);
    }

    // What a number's code gains with it.
    static constexpr Code step(int n) { return code(uint32_t(n)) - code(0); }

    // From a, and b behind it if Reach is 2.
    template <int Reach>
    static V pick(V a, V b, Codes codes) {
#if defined(__AVX512BW__)
        if constexpr (sizeof(F) == 4) {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_ps((__m512i)codes, (__m512)a);
            else return (V)_mm512_permutex2var_ps((__m512)a, (__m512i)codes, (__m512)b);
        } else {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_pd((__m512i)codes, (__m512d)a);
            else return (V)_mm512_permutex2var_pd((__m512d)a, (__m512i)codes, (__m512d)b);
        }
#elif defined(__AVX2__)
        const __m256 low = _mm256_permutevar8x32_ps((__m256)a, (__m256i)codes);
        if constexpr (Reach == 1) return (V)low;
        else {
            const __m256 high = _mm256_permutevar8x32_ps((__m256)b, (__m256i)codes);
            if constexpr (sizeof(F) == 4) return (V)_mm256_blendv_ps(low, high, (__m256)_mm256_slli_epi32((__m256i)codes, 28));
            else return (V)_mm256_blendv_pd((__m256d)low, (__m256d)high, (__m256d)_mm256_slli_epi64((__m256i)codes, 28));
        }
#else
        if constexpr (Reach == 1) return (V)shuffle((Bytes<>)a, (Bytes<>)codes);
        else  // a control byte with its highest bit set gives 0
            return (V)(shuffle((Bytes<>)a, (Bytes<>)codes + uint8_t(0x70)) | shuffle((Bytes<>)b, (Bytes<>)codes - uint8_t(16)));
#endif
    }
};

constexpr int kStripSamples = 512, kStripWeightBytes = 12288, kStripRowBytes = 16384;
// What kernels may read behind a row's last tap, and where a row may begin later to be aligned.
constexpr int kRowSlackBytes = 3 * kVectorBytes;

// A strip of destination columns: for each of its pixels the first tap's place in a row that holds the strip's source
// columns, and the weights.
template <class F>
class Strip {
    using Pick = Picker<F>;
    using V = Vec<F>;
    static constexpr int lanes = Pick::lanes, capacity = kStripWeightBytes / int(sizeof(F));
    // Taps are picked from one or two loaded vectors: all of them, or as many as these vectors have.
    enum class Way { OneLoad, TwoLoads, TwoPerPairOfTaps, TwoPerTap, PixelByPixel };

    alignas(64) F weight_[capacity];
    alignas(64) typename Pick::Code code_[kStripSamples + lanes];
    int32_t base_[kStripSamples];  // of each vector's samples, or of each pixel
    const F* weights_;             // these, or the object's
    int taps_, stride_;            // stride: weights from tap to tap
    Way way_;

public:
    int first, last, pixels;  // source columns, destination pixels
    bool sparse;              // the row holds the pixels' taps only, pixel by pixel

    // The most pixels of a strip; 0 where the taps of one are too many.
    static int pixelsPerStrip(const ResizeSpec& spec, int channels) {
        const ResizeAxis& x = spec.x;
        const int taps = x.taps, rowPixels = (kStripRowBytes - kRowSlackBytes) / int(sizeof(F)) / channels;
        if (taps > rowPixels || taps > capacity / 4) return 0;
        const int byRow = int((rowPixels - taps) / std::min<double>(x.ratio() + 1, taps)) + 1;
        const int perTap = capacity / taps, byWeights = perTap < 16 ? perTap / 4 * 4 : perTap / 16 * 16 / channels;
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
        int32_t place[kStripSamples + lanes];
        if (sparse) {
            for (int i = 0; i < count; ++i) place[i] = i * taps_ * C;
        } else if (x.period == x.destination) {
            const auto* index = spec.table<int32_t>(x.index) + position;
            for (int i = 0; i < count; ++i) place[i] = (index[i] - first) * C;
        } else {
            for (int i = 0; i < count; ++i) place[i] = (spec.firstTap(x, position + i) - first) * C;
        }
        std::fill(place + count, place + count + lanes, place[count - 1]);
        way_ = makeCodes<C>(place);
        if (taps_ * wholeVectors(pixels * C) > capacity) way_ = Way::PixelByPixel;
        if (way_ == Way::PixelByPixel) {
            std::copy(place, place + (count + 3) / 4 * 4, base_);
            setWeights<1>(spec, position);
        } else {
            setWeights<C>(spec, position);
        }
    }

    // Horizontal pass.
    template <int C, class Out>
    void apply(const F* row, Out out) const {
        switch (way_) {
            case Way::OneLoad: return applyVectors<1, 0>(row, pixels * C, C, out);
            case Way::TwoLoads: return applyVectors<2, 0>(row, pixels * C, C, out);
            case Way::TwoPerPairOfTaps: return applyVectors<2, 2>(row, pixels * C, C, out);
            case Way::TwoPerTap: return applyVectors<2, 1>(row, pixels * C, C, out);
            case Way::PixelByPixel: break;
        }
        alignas(64) F sums[kStripSamples + 16 / sizeof(F)];
        if constexpr (C == 1) sumSinglePixels(row, sums);
        else sumPixels<C>(row, sums);
        convertRow<F>(reinterpret_cast<const uint8_t*>(sums), pixels * C, out);
    }

private:
    static V pickOne(const void* p, typename Pick::Codes codes) {
        const V v = load<V>(p);
        return Pick::template pick<1>(v, v, codes);
    }

    static int wholeVectors(int samples) { return (samples + lanes - 1) / lanes * lanes; }

    // Sample i of a vector that starts at sample s of a row is of pixel s / C + (s % C + i) / C: these steps as codes, and the
    // channels. Steps stay below 16, so that one vector has all pixels.
    template <int C>
    struct Samples {
        using Words = Vec<uint32_t>;
        static constexpr int n = kVectorBytes / 4;

        static Words pixelCodes(int phase) { return table([](int phase, int i) { return Picker<float>::code(uint32_t(phase + i) / C); }, phase); }
        static Words channels(int phase) { return table([](int phase, int i) { return uint32_t(phase + i) % C; }, phase); }

    private:
        template <class Of>
        static Words table(Of, int phase) {
            alignas(64) static constexpr auto entries = [] {
                std::array<uint32_t, n * C> a{};
                for (int i = 0; i < n * C; ++i) a[i] = Of{}(i / n, i % n);
                return a;
            }();
            return load<Words>(&entries[phase * n]);
        }
    };

    // Where each sample's first tap lies, from the lowest of its vector's samples on. Places do not decrease.
    template <int C>
    Way makeCodes(const int32_t* place) {
        int reach = 0;
        const int samples = pixels * C;
        for (int s = 0; s < samples; s += lanes) {
            const int end = std::min(s + lanes, samples) - 1;
            const auto at = [&](int sample) { return place[sample / C] + sample % C; };
            int low = at(s), high = at(end);
            if (C > 1 && end / C > s / C) {
                low = std::min(low, place[s / C + 1]);
                high = std::max(high, place[end / C - 1] + C - 1);
            }
            reach = std::max(reach, high - low);
            base_[s / lanes] = low;
            if constexpr (sizeof(F) == 4) {
                using Words = Vec<uint32_t>;
                const auto pixel = (Words)pickOne(place + s / C, Samples<C>::pixelCodes(s % C));
                const Words n = pixel + Samples<C>::channels(s % C) - uint32_t(low);
                store(code_ + s, Pick::codes(n));
            } else {
                for (int i = 0; i < lanes; ++i) code_[s + i] = Pick::code(uint32_t(at(std::min(s + i, end)) - low));
            }
        }
        const int allTaps = reach + (taps_ - 1) * C;
        if (allTaps < lanes) return Way::OneLoad;
        if (allTaps < 2 * lanes) return Way::TwoLoads;
        if (reach + C < 2 * lanes) return Way::TwoPerPairOfTaps;
        return reach < 2 * lanes ? Way::TwoPerTap : Way::PixelByPixel;
    }

    // Each pixel's weights `Times` times, to the end of a vector.
    template <int Times>
    void setWeights(const ResizeSpec& spec, int position) {
        const ResizeAxis& x = spec.x;
        const bool periodic = x.period != x.destination;
        const F* table = spec.table<F>(x.weights) + position;
        if (Times == 1 && !periodic) {  // what follows the columns' weights in the object may be read with them
            weights_ = table;
            stride_ = x.tapStride;
            return;
        }
        weights_ = weight_;
        stride_ = way_ == Way::PixelByPixel ? (pixels + 3) / 4 * 4 : wholeVectors(pixels * Times);
        for (int t = 0; t < taps_; ++t) {
            F* to = weight_ + t * stride_;
            if (sizeof(F) == 4 && !periodic) {
                for (int s = 0; s < stride_; s += lanes)
                    store(to + s, pickOne(table + ptrdiff_t(t) * x.tapStride + s / Times, (typename Pick::Codes)Samples<Times>::pixelCodes(s % Times)));
            } else {
                for (int i = 0; i < pixels; ++i)
                    std::fill_n(to + i * Times, Times, spec.weight<F>(x, position + i, t));
                std::fill(to + pixels * Times, to + stride_, F(0));
            }
        }
    }

    // TapsPerLoad: how many taps are picked from the vectors at one place, 0 for all.
    template <int Reach, int TapsPerLoad, class Out>
    void applyVectors(const F* row, int samples, int tapStep, Out out) const {
        switch (taps_) {
            case 2: return applyTaps<Reach, TapsPerLoad, 2>(row, samples, tapStep, out);
            case 4: return applyTaps<Reach, TapsPerLoad, 4>(row, samples, tapStep, out);
            case 6: return applyTaps<Reach, TapsPerLoad, 6>(row, samples, tapStep, out);
            default: return applyTaps<Reach, TapsPerLoad, 0>(row, samples, tapStep, out);
        }
    }

    template <int Reach, int TapsPerLoad, int Taps, class Out>
    void applyTaps(const F* row, int samples, int tapStep, Out out) const {
        using Codes = typename Pick::Codes;
        const Codes next = splat<Codes>(Pick::step(tapStep));
        const int taps = Taps > 0 ? Taps : taps_, perLoad = TapsPerLoad > 0 ? TapsPerLoad : taps;
        const auto sum = [&](int s) KVRI_INLINE {
            const F *p = row + base_[s / lanes], *w = weights_ + s;
            const auto begin = loadedOnce(load<Codes>(code_ + s));
            V acc{};
            const auto pickFrom = [&](int first) KVRI_INLINE {
                const V a = loadedOnce(load<V>(p + first * tapStep)), b = Reach == 1 ? a : loadedOnce(load<V>(p + first * tapStep + lanes));
                Codes codes = begin;
                for (int t = first; t < std::min(first + perLoad, taps); ++t, codes += next) {
                    const V product = Pick::template pick<Reach>(a, b, codes) * load<V>(w + ptrdiff_t(t) * stride_);
                    acc = t == 0 ? product : acc + product;
                }
            };
            if constexpr (TapsPerLoad == 0) pickFrom(0);
            else
                for (int t = 0; t < taps; t += TapsPerLoad) pickFrom(t);
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
                    const Q product = tap[k] * load<Q>(weights_ + ptrdiff_t(t + k) * stride_ + i);
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
            unroll<parts>([&](auto k) KVRI_INLINE { acc[k] = load<Q>(p + k * n) * splat<Q>(weights_[i]); });
            for (int t = 1; t < taps_; ++t) {
                const Q w = splat<Q>(weights_[ptrdiff_t(t) * stride_ + i]);
                unroll<parts>([&](auto k) KVRI_INLINE { acc[k] = acc[k] + load<Q>(p + t * C + k * n) * w; });
            }
            unroll<parts>([&](auto k) KVRI_INLINE { store(sums + i * C + k * n, acc[k]); });
        }
    }
};

}  // namespace kvri
