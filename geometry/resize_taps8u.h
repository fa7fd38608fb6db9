// geometry/resize_taps8u.h: the taps of Linear of 8u, and their weights along a row.
//
// A vector has four bytes for every destination sample: its left and right tap in the upper source row, then in the lower.
// A weight pair of 14 bits is two pairs of bytes, 128 * high + low. Where the left weight is w, so is high 128 - high of the
// right one, and low is minus low of the right one; products of two taps with either pair have 16 bits.
#pragma once

#include "core/lanes.h"
#include "geometry/resize_apply.h"

namespace kvri {

// Samples that are computed together, some vectors of them.
constexpr int kTapVectors = kVectorBytes == 64 ? 2 : 4, kVectorSamples = kVectorBytes / 4, kTapSamples = kTapVectors * kVectorSamples;

// The tables of a strip of destination columns. A lane has its four samples' taps in 8 neighbouring bytes of each row, or
// apart, in 16.
struct TapTables {
    static constexpr int mostGroups = 1024 / kTapSamples, mostVectors = mostGroups * kTapVectors;

    struct Vector {
        Bytes<> control, high, low;
        Bytes<> words;  // of a window of a row, for each lane; without windows, where a lane's bytes begin, in four bytes
    };
    alignas(64) Vector vector[mostVectors];
    int32_t base[mostVectors];  // where the windows begin
    int window;                 // their bytes, 32 or 64; 0: none
    int samples, bytes;  // destination samples; bytes of a source row
    bool together;       // or apart
    bool rough;          // no weight has a low part

    int groups() const { return (samples + kTapSamples - 1) / kTapSamples; }
    // A group's first sample: the last group ends with the strip, over what the one before it has.
    int start(int group) const { return std::max(std::min(group * kTapSamples, samples - kTapSamples), 0); }
};

#if defined(__AVX512BW__)

// Brings the taps of a vector together, from a window of W bytes of each row. Cut: no row has so many.
template <int W, bool Together, bool Cut>
class TapWindow {
    Bytes<> words_, control_;
    int base_;
    __mmask64 within_;

    __m512i window(const uint8_t* row) const {
        if constexpr (Cut) return _mm512_maskz_loadu_epi8(within_, row + base_);
        else if constexpr (W == 32) return _mm512_castsi256_si512((__m256i)load<Bytes<32>>(row + base_));
        else return (__m512i)load<Bytes<>>(row + base_);
    }

public:
    TapWindow(const TapTables& tables, int vector)
        : words_(tables.vector[vector].words), control_(tables.vector[vector].control), base_(tables.base[vector]),
          within_(Cut ? detail::lowBits(tables.bytes - base_) : 0) {}

    Bytes<> operator()(const uint8_t* upper, const uint8_t* lower) const {
        const __m512i words = (__m512i)words_, control = (__m512i)control_;
        if constexpr (Together) {
            return (Bytes<>)_mm512_shuffle_epi8(_mm512_permutex2var_epi16(window(upper), words, window(lower)), control);
        } else {
            const __m512i taps = _mm512_shuffle_epi8(_mm512_permutexvar_epi16(words, window(upper)), control);
            constexpr __mmask64 lowerTaps = choose<Bytes<>>([](int i) { return i % 4 >= 2; });
            return (Bytes<>)_mm512_mask_shuffle_epi8(taps, lowerTaps, _mm512_permutexvar_epi16(words, window(lower)), control);
        }
    }
};

#endif

// Brings the taps of a vector together, lane by lane.
template <bool Together>
class TapLanes {
    using Lane = Bytes<16>;
    const TapTables& tables_;
    int vector_;

    int base(int lane) const { return reinterpret_cast<const int32_t*>(&tables_.vector[vector_].words)[4 * lane]; }

public:
    TapLanes(const TapTables& tables, int vector) : tables_(tables), vector_(vector) {}

    Bytes<> operator()(const uint8_t* upper, const uint8_t* lower) const {
        const Bytes<> control = tables_.vector[vector_].control;
        if constexpr (Together) {
            const auto half = [](const uint8_t* p) KVRI_INLINE { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)); };
            return shuffle(fromLanes<kVectorBytes>([&](int l) KVRI_INLINE {
                return (Lane)_mm_unpacklo_epi64(half(upper + base(l)), half(lower + base(l)));
            }), control);
        } else {
            const auto row = [&](const uint8_t* row) KVRI_INLINE {
                return shuffle(fromLanes<kVectorBytes>([&](int l) KVRI_INLINE { return load<Lane>(row + base(l)); }), control);
            };
            return blendWhere([](int i) { return i % 4 < 2; }, row(upper), row(lower));
        }
    }
};

// Fills the tables.
template <int C>
class TapPlacer {
    using Numbers = Vec<uint32_t>;
    using Quad = Vec<uint32_t, 16>;

    TapTables& tables_;
    const int32_t *index_, *weight_;  // of the strip's pixels
    int first_, last_;                // columns: the first one, and the last one behind it
    Numbers near_{}, low_{};          // bits that are set anywhere: in what tells where taps lie in their lanes, in low parts

public:
    // Columns to be read are first to first + last; an index below or above stands for these.
    TapPlacer(TapTables& tables, const int32_t* index, const int32_t* weight, int first, int last)
        : tables_(tables), index_(index), weight_(weight), first_(first), last_(last) {}

    // False where taps lie too far apart.
    bool place(bool together) {
        tables_.bytes = (last_ + 1) * C;
        tables_.together = together;
        tables_.window = window();
        if (tables_.window == 0 && tables_.bytes < piece()) return false;
        for (int group = 0; group < tables_.groups(); ++group)
            for (int i = 0; i < kTapVectors; ++i) placeVector(tables_.start(group) + i * kVectorSamples, group * kTapVectors + i);
        tables_.rough = allZero((Bytes<>)low_);
        return allZero((Bytes<>)(near_ & ~uint32_t(piece() - 1)));
    }

private:
    int piece() const { return tables_.together ? 8 : 16; }

    int window() const {
        if (kVectorBytes < 64) return 0;
        int reach = 0;
        for (int group = 0; group < tables_.groups(); ++group)
            for (int i = 0; i < kTapVectors; ++i) {
                const int sample = tables_.start(group) + i * kVectorSamples;
                reach = std::max(reach, (index_[(sample + kVectorSamples - 1) / C] - index_[sample / C] + 2) * C);
            }
        return reach > 64 ? 0 : reach > 32 || tables_.bytes < 32 ? 64 : 32;
    }

    // Samples of a quad that begins at channel `phase` of a pixel: which pixel's they are, as bytes to shuffle by, and which
    // channel's.
    struct Phase {
        alignas(16) uint8_t pixel[16];
        alignas(16) uint32_t channel[4];
    };
    static constexpr auto kPhases = [] {
        std::array<Phase, C> phases{};
        for (int p = 0; p < C; ++p)
            for (int k = 0; k < 16; ++k) {
                phases[p].pixel[k] = uint8_t((p + k / 4) / C * 4 + k % 4);
                phases[p].channel[k / 4] = uint32_t(p + k / 4) % C;
            }
        return phases;
    }();

    // The numbers of the pixels of samples from `sample` on.
    static Numbers ofSamples(const int32_t* ofPixels, int sample) {
        if constexpr (C == 1) return load<Numbers>(ofPixels + sample);
        else
            return (Numbers)fromLanes<kVectorBytes>([&](int l) KVRI_INLINE {
                const int s = sample + 4 * l;
                return shuffle(load<Bytes<16>>(ofPixels + s / C), load<Bytes<16>>(kPhases[s % C].pixel));
            });
    }
    static Numbers channels(int sample) {
        if constexpr (C == 1) return Numbers{};
        else return (Numbers)fromLanes<kVectorBytes>([&](int l) KVRI_INLINE { return load<Bytes<16>>(kPhases[(sample + 4 * l) % C].channel); });
    }

    Numbers byteOf(Numbers column, Numbers channel) const {
        using Signed = Vec<int32_t>;
        const auto within = (Numbers)smaller(larger((Signed)(column - uint32_t(first_)), Signed{}), splat<Signed>(last_));
        if constexpr (C == 1) return within;
        else if constexpr (C == 3) return within + within + within + channel;
        else return (within << 2) + channel;
    }

    // In all of a lane, its smallest number.
    static Numbers smallestOfLane(Numbers v) {
        using Signed = Vec<int32_t>;
        Signed s = (Signed)v;
        s = smaller(s, pick(s, [](int i) { return i ^ 1; }));
        return (Numbers)smaller(s, pick(s, [](int i) { return i ^ 2; }));
    }

    static Numbers twice(Numbers halves) { return halves | halves << 16; }

    KVRI_INLINE void placeVector(int sample, int vector) {
        const Numbers index = ofSamples(index_, sample), right = ofSamples(weight_, sample) >> 16, channel = channels(sample);
        // A tap without weight is not to be read: the other one stands for it.
        placeTaps(byteOf(index + (right >> 14), channel), byteOf(index + ((right + 16383) >> 14), channel), vector, sample);
        placeWeights(right, vector);
    }

    KVRI_INLINE void placeTaps(Numbers left, Numbers right, int vector, int sample) {
        using Signed = Vec<int32_t>;
        Numbers begin = smallestOfLane(left);
        if (tables_.window != 0) {
            const int last = std::max(tables_.bytes - tables_.window, 0);  // no window ends behind the row
            const uint32_t base = uint32_t(std::min(int32_t(left[0]) - sample % C, last));
            const Numbers word = (begin - base) >> 1;
            begin = word * 2 + base;
            tables_.base[vector] = int32_t(base);
            tables_.vector[vector].words = (Bytes<>)(twice(word) + (tables_.together ? wordPairs([](int i) { return i % 4 + i / 4 * 32; })
                                                                                      : wordPairs([](int i) { return i; })));
        } else {
            begin = (Numbers)smaller((Signed)begin, splat<Signed>(tables_.bytes - piece()));
            tables_.vector[vector].words = (Bytes<>)begin;
        }
        const Numbers l = left - begin, r = right - begin;
        near_ |= l | r;
        tables_.vector[vector].control = (Bytes<>)(twice(l | r << 8) + (tables_.together ? 0x08080000u : 0u));
    }

    // Numbers f(0) to f(7) of 16 bits in each lane.
    template <class F>
    static Numbers wordPairs(F) {
        return constant<Numbers>([](int i) { return i % 2 ? 0 : F{}(i % 16 / 2); });
    }

    KVRI_INLINE void placeWeights(Numbers right, int vector) {
        using Signed = Vec<int32_t>;
        const Numbers high = (Numbers)smaller(larger((Signed)((right + 64) >> 7), splat<Signed>(1)), splat<Signed>(127));
        const Numbers low = (right - (high << 7)) & (Numbers)((right & 16383) != 0);
        low_ |= low;
        tables_.vector[vector].high = (Bytes<>)twice((128 - high) | high << 8);
        tables_.vector[vector].low = (Bytes<>)twice(((0 - low) & 255) | (low & 255) << 8);
    }
};

}  // namespace kvri
