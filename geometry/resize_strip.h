// geometry/resize_strip.h: the horizontal pass of Resize, and the strip of columns that both passes work on.
#pragma once

#include "geometry/resize_lanes.h"
#include "geometry/resize_rows.h"

namespace kvri {

constexpr int kStripSamples = 512, kStripWeightBytes = 12288, kStripRowBytes = 6208;
// What kernels may touch behind a row's last tap.
constexpr int kRowSlackBytes = 4 * kVectorBytes;

// A strip of destination columns: for each of its pixels the first tap's place in a row that holds the strip's source
// columns, and the weights.
template <class F>
class Strip {
    using Pick = Picker<F>;
    using V = Vec<F>;
    static constexpr int lanes = Pick::lanes, capacity = kStripWeightBytes / int(sizeof(F));
    // Taps of a row are picked from one or two loaded vectors, as many as these have, or come as pixels: of several rows side
    // by side, or of one.
    enum class Way { OneLoad, TwoLoads, SideBySide, PixelByPixel };
    static constexpr int mostColumns = (kStripRowBytes - kRowSlackBytes) / 16;

    alignas(64) F weight_[capacity];
    alignas(64) typename Pick::Code code_[kStripSamples + lanes];
    int32_t base_[kStripSamples];  // of each vector's samples, or of each pixel
    alignas(64) F columns_[sizeof(F) == 4 ? (mostColumns + 4 * kLanes) * lanes : 1];  // of rows side by side
    const F* weights_;             // these, or the object's
    int taps_, stride_;            // stride: weights from tap to tap
    int perLoad_;                  // taps that are picked from the vectors at one place
    bool alike_;                   // all pixels have the same weights
    Way way_;

public:
    int first, last, pixels;  // source columns, destination pixels
    bool sparse;              // the row holds the pixels' taps only, pixel by pixel

    // The most pixels of a strip, of whose rows a number takes so many bytes; 0 where the taps of one are too many.
    static int pixelsPerStrip(const ResizeSpec& spec, int channels, int numberBytes = sizeof(F)) {
        const ResizeAxis& x = spec.x;
        const int taps = x.taps, rowPixels = (kStripRowBytes - kRowSlackBytes) / numberBytes / (channels == 3 ? 4 : channels);
        if (taps > rowPixels || taps > capacity / 4) return 0;
        const int byRow = int((rowPixels - taps) / std::min<double>(x.ratio() + 1, taps)) + 1;
        const int perTap = capacity / taps, byWeights = perTap < 16 ? perTap / 4 * 4 : perTap / 16 * 16 / channels;
        const int n = std::min({byRow, byWeights, kStripSamples / channels});
        return n >= 16 ? n / 16 * 16 : n;
    }

    template <int C>
    void prepare(const ResizeSpec& spec, int position, int count) {
        int32_t place[kStripSamples + lanes];
        placeTaps(spec, position, count, place);
        way_ = wayFor(makeCodes<C>(place), C);
        if (way_ == Way::SideBySide || way_ == Way::PixelByPixel) {
            std::copy(place, place + (count + 3) / 4 * 4, base_);
            setWeights<1>(spec, position);
        } else {
            setWeights<C>(spec, position);
        }
    }

#if defined(__AVX512BW__)
    // For rows of 16-bit numbers; false where two vectors do not hold all taps.
    template <int C>
    bool prepareWhole(const ResizeSpec& spec, int position, int count) {
        int32_t place[kStripSamples + lanes];
        placeTaps(spec, position, count, place);
        const int allTaps = makeCodes<C>(place) + (taps_ + 1) / 2 * 2 * C;
        if (sparse || allTaps > 4 * lanes) return false;
        way_ = allTaps <= 2 * lanes ? Way::OneLoad : Way::TwoLoads;
        setWholeWeights<C>(spec, position);
        return true;
    }
#endif

    // Where the rows' pixels may be put side by side, or null.
    F* sideBySide() { return way_ == Way::SideBySide ? columns_ : nullptr; }
    template <int C, class T>
    void applySideBySide(const RowsOf<T>& out) const {
        if (alike_) applyColumns<C, T, true>(out);
        else applyColumns<C, T, false>(out);
    }

    // Horizontal pass of some rows of the strip's columns, `rowStride` numbers apart.
    template <int C, class T>
    void apply(const F* row, ptrdiff_t rowStride, const RowsOf<T>& out) {
        if constexpr (C > 1 && sizeof(F) == 4)
            if (way_ == Way::SideBySide) {
                placeSideBySide<C>(row, rowStride, out.count, sparse ? pixels * taps_ : last - first + 1, columns_);
                return applySideBySide<C, T>(out);
            }
        if (way_ == Way::OneLoad) return applyVectors<1, T>(row, rowStride, C, out);
        if (way_ == Way::TwoLoads) return applyVectors<2, T>(row, rowStride, C, out);
        alignas(64) F sums[kStripSamples + 16 / sizeof(F)];
        for (int r = 0; r < out.count; ++r) {
            if constexpr (C == 1) sumSinglePixels(row + r * rowStride, sums);
            else sumPixels<C>(row + r * rowStride, sums);
            convertRow<F>(reinterpret_cast<const uint8_t*>(sums), pixels * C, RowOf<T>(out.p[r]));
        }
    }

#if defined(__AVX512BW__)
    // The same of 16-bit rows, which are less by a number that sums begin with: exact sums, in units of 2^-bits.
    template <int C>
    void applyWhole(const int16_t* row, ptrdiff_t rowStride, int begin, int bits, const RowsOf<uint8_t>& out) const {
        eachTogether(out.count, [&](auto rows, int r) KVRI_INLINE { applyWholeRows<C, rows>(row + r * rowStride, rowStride, begin, bits, &out.p[r]); });
    }
#endif

private:
    // Calls run(kGroupRows or 1 as a constant, first row) for so many rows of `count` at a time.
    template <class Run>
    KVRI_INLINE static void eachTogether(int count, Run run) {
        int r = 0;
        for (; count - r >= kGroupRows; r += kGroupRows) run(std::integral_constant<int, kGroupRows>{}, r);
        for (; r < count; ++r) run(std::integral_constant<int, 1>{}, r);
    }

    template <int C, class T, bool alike>
    void applyColumns(const RowsOf<T>& out) const {
        const LanePixels<T, C> sums(out.p.data(), out.count, pixels);
        for (int i = 0; i < pixels; i += 4) {
            V acc[4];
            unroll<4>([&](auto k) KVRI_INLINE { acc[k] = emptySum<V>(); });
            for (int t = 0; t < taps_; ++t) {
                const F* w = weights_ + ptrdiff_t(t) * stride_ + i;
                const V first = splat<V>(w[0]);
                unroll<4>([&](auto k) KVRI_INLINE {
                    acc[k] = acc[k] + load<V>(columns_ + ptrdiff_t(base_[i + k] + t) * lanes) * (alike ? first : splat<V>(w[k]));
                });
            }
            sums.put(i, acc);
        }
    }

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

    // Places of the first taps in a row. Places do not decrease.
    void placeTaps(const ResizeSpec& spec, int position, int count, int32_t* place) {
        const ResizeAxis& x = spec.x;
        taps_ = x.taps;
        pixels = count;
        sparse = x.ratio() > taps_;
        alike_ = x.reducedDestination == 1;
        first = spec.firstTap(x, position);
        last = spec.firstTap(x, position + count - 1) + taps_ - 1;
        if (sparse) {
            for (int i = 0; i < count; ++i) place[i] = i * taps_;
        } else if (x.period == x.destination) {
            const auto* index = spec.table<int32_t>(x.index) + position;
            for (int i = 0; i < count; ++i) place[i] = index[i] - first;
        } else {
            for (int i = 0; i < count; ++i) place[i] = spec.firstTap(x, position + i) - first;
        }
        std::fill(place + count, place + count + lanes, place[count - 1]);
    }

    // Where each sample's first tap lies, from the lowest of its vector's samples on; returns the farthest.
    template <int C>
    int makeCodes(const int32_t* place) {
        int reach = 0;
        const int samples = pixels * C;
        for (int s = 0; s < samples; s += lanes) {
            const int end = std::min(s + lanes, samples) - 1;
            const auto at = [&](int sample) { return place[sample / C] * C + sample % C; };
            int low = at(s), high = at(end);
            if (C > 1 && end / C > s / C) {
                low = std::min(low, place[s / C + 1] * C);
                high = std::max(high, place[end / C - 1] * C + C - 1);
            }
            reach = std::max(reach, high - low);
            base_[s / lanes] = low;
            if constexpr (sizeof(F) == 4) {
                using Words = Vec<uint32_t>;
                const auto pixel = (Words)pickOne(place + s / C, Samples<C>::pixelCodes(s % C));
                const Words n = pixel * uint32_t(C) + Samples<C>::channels(s % C) - uint32_t(low);
                store(code_ + s, Pick::codes(n));
            } else {
                for (int i = 0; i < lanes; ++i) code_[s + i] = Pick::code(uint32_t(at(std::min(s + i, end)) - low));
            }
        }
        return reach;
    }

    Way wayFor(int reach, int channels) {
        const int allTaps = reach + (taps_ - 1) * channels;
        perLoad_ = allTaps < 2 * lanes ? taps_ : (2 * lanes - 1 - reach) / channels + 1;
        const bool columns = channels > 1 && sizeof(F) == 4;
        if (reach >= 2 * lanes || taps_ * wholeVectors(pixels * channels) > capacity) return columns ? Way::SideBySide : Way::PixelByPixel;
        if (allTaps < lanes) return Way::OneLoad;
        return columns && perLoad_ <= 2 && perLoad_ < taps_ ? Way::SideBySide : Way::TwoLoads;
    }

#if defined(__AVX512BW__)
    // Pairs of 16-bit weights.
    template <int C>
    void setWholeWeights(const ResizeSpec& spec, int position) {
        const ResizeAxis& x = spec.x;
        const float scale = float(1 << x.wholeBits);
        const auto* table = spec.table<float>(x.weights) + position;
        stride_ = wholeVectors(pixels * C);
        for (int t = 0; t < taps_; t += 2)
            for (int s = 0; s < pixels * C; s += lanes) {
                const auto whole = [&](int tap) KVRI_INLINE {
                    if (tap == taps_) return Vec<int32_t>{};
                    if (x.period == x.destination)
                        return towardZero(pickOne(table + ptrdiff_t(tap) * x.tapStride + s / C, Samples<C>::pixelCodes(s % C)) * scale);
                    Vec<int32_t> w{};
                    for (int i = 0; i < lanes; ++i) w[i] = int(spec.weight<float>(x, position + std::min((s + i) / C, pixels - 1), tap) * scale);
                    return w;
                };
                store(weight_ + t / 2 * stride_ + s, (whole(t) & 0xFFFF) | (Vec<int32_t>)((Vec<uint32_t>)whole(t + 1) << 16));
            }
    }

    template <int C, int rows>
    void applyWholeRows(const int16_t* row, ptrdiff_t rowStride, int begin, int bits, uint8_t* const* out) const {
        const auto run = [&](auto taps) {
            if (way_ == Way::OneLoad) sumWholeRows<C, rows, 1, taps>(row, rowStride, begin, bits, out);
            else sumWholeRows<C, rows, 2, taps>(row, rowStride, begin, bits, out);
        };
        if (taps_ <= 2) run(std::integral_constant<int, 2>{});
        else if (taps_ <= 4) run(std::integral_constant<int, 4>{});
        else run(std::integral_constant<int, kWholeTaps>{});
    }

    // Taps: what taps_ is at most.
    template <int C, int rows, int Reach, int Taps>
    void sumWholeRows(const int16_t* row, ptrdiff_t rowStride, int begin, int bits, uint8_t* const* out) const {
        using Words = Vec<uint32_t>;
        using Sums = Vec<int32_t>;
        constexpr uint32_t both = 0x10001;
        const V unit = splat<V>(1 / float(1 << bits));
        const auto sum = [&](int s, auto put) KVRI_INLINE {
            const int16_t* p = row + base_[s / lanes];
            const Words n = load<Words>(code_ + s);
            Words codes = (n | n << 16) + (uint32_t(C) << 16);
            Bytes<> a[rows], b[rows];
            Sums acc[rows];
            unroll<rows>([&](auto r) KVRI_INLINE {
                a[r] = loadedOnce(load<Bytes<>>(p + r * rowStride));
                if constexpr (Reach == 2) b[r] = loadedOnce(load<Bytes<>>(p + r * rowStride + 2 * lanes));
                acc[r] = splat<Sums>(begin);
            });
            unroll<Taps / 2>([&](auto pair) KVRI_INLINE {
                if (Taps > 4 && 2 * pair >= taps_) return;
                const auto weights = load<Vec<int16_t>>(weight_ + pair * stride_ + s);
                unroll<rows>([&](auto r) KVRI_INLINE {
                    __m512i taps;
                    if constexpr (Reach == 2) taps = _mm512_permutex2var_epi16((__m512i)a[r], (__m512i)codes, (__m512i)b[r]);
                    else taps = _mm512_permutexvar_epi16((__m512i)codes, (__m512i)a[r]);
                    acc[r] += multiplyPairs((Vec<int16_t>)taps, weights);
                });
                codes += 2 * C * both;
            });
            unroll<rows>([&](auto r) KVRI_INLINE { put(r, loadedOnce(toNearest(toFloats(acc[r]) * unit))); });
        };
        writeRows<rows, Sums>(pixels * C, sum, [&](int r) KVRI_INLINE { return RowOf<uint8_t>(out[r]); });
    }
#endif

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

    template <int Reach, class T>
    void applyVectors(const F* row, ptrdiff_t rowStride, int tapStep, const RowsOf<T>& out) const {
        const auto run = [&](auto taps) { applyTaps<Reach, taps, T>(row, rowStride, tapStep, out); };
        switch (taps_) {
            case 2: return run(std::integral_constant<int, 2>{});
            case 3: return run(std::integral_constant<int, 3>{});
            case 4: return run(std::integral_constant<int, 4>{});
            case 6: return run(std::integral_constant<int, 6>{});
            default: return run(std::integral_constant<int, 0>{});
        }
    }

    // Rows together share codes and weights.
    template <int Reach, int Taps, class T>
    void applyTaps(const F* row, ptrdiff_t rowStride, int tapStep, const RowsOf<T>& out) const {
        const int samples = pixels * tapStep;
        eachTogether(out.count, [&](auto rows, int r) KVRI_INLINE {
            sumVectors<Reach, rows, Taps, T>(row + r * rowStride, rowStride, samples, tapStep, &out.p[r]);
        });
    }

    // Taps: their number, or 0 for any.
    template <int Reach, int rows, int Taps, class T>
    KVRI_INLINE void sumVectors(const F* row, ptrdiff_t rowStride, int samples, int tapStep, uint8_t* const* out) const {
        using Codes = typename Pick::Codes;
        const Codes next = splat<Codes>(Pick::step(tapStep));
        const auto sum = [&](int s, auto put) KVRI_INLINE {
            const F *p = row + base_[s / lanes], *w = weights_ + s;
            const auto begin = loadedOnce(load<Codes>(code_ + s));
            V acc[rows], a[rows], b[rows];
            unroll<rows>([&](auto r) KVRI_INLINE { acc[r] = emptySum<V>(); });
            const auto loadFrom = [&](int tap) KVRI_INLINE {
                unroll<rows>([&](auto r) KVRI_INLINE {
                    a[r] = loadedOnce(load<V>(p + r * rowStride + tap * tapStep));
                    b[r] = Reach == 1 ? a[r] : loadedOnce(load<V>(p + r * rowStride + tap * tapStep + lanes));
                });
            };
            const auto add = [&](int tap, Codes codes) KVRI_INLINE {
                const V weight = loadedOnce(load<V>(w + ptrdiff_t(tap) * stride_));
                unroll<rows>([&](auto r) KVRI_INLINE { acc[r] = acc[r] + Pick::template pick<Reach>(a[r], b[r], codes) * weight; });
            };
            Codes codes = begin;
            int nextLoad = 0;
            const auto addNext = [&](int tap) KVRI_INLINE {
                if (tap == nextLoad) loadFrom(tap), codes = begin, nextLoad += perLoad_;
                add(tap, codes), codes += next;
            };
            if constexpr (Taps > 0) unroll<Taps>([&](auto t) KVRI_INLINE { addNext(t); });
            else for (int t = 0; t < taps_; ++t) addNext(t);
            // Sums are made here, or the compiler makes all of them where they are written, and keeps what was picked on the stack.
            unroll<rows>([&](auto r) KVRI_INLINE { put(r, loadedOnce(acc[r])); });
        };
        writeRows<rows, V>(samples, sum, [&](int r) KVRI_INLINE { return RowOf<T>(out[r]); });
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
            const F* p = row + ptrdiff_t(base_[i]) * C;
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
