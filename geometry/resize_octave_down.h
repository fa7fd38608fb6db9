// geometry/resize_octave_down.h: exactly half the size by weights of single precision.
//
// All destination pixels have the same weights, and each source row and column is used at known taps: the passes need no
// tables, and a group of destination rows takes every source row once. Operations and their order are those of any ratio,
// rows first.
#pragma once

#include "geometry/resize_apply.h"
#include "geometry/resize_pairs.h"
#include "geometry/resize_rows.h"

namespace kvri {

template <class T, int C, int Taps>
class OctaveDown {
    using V = Vec<float>;
    using Pairs = PixelPairs<kVectorBytes, C * sizeof(float)>;
    static constexpr int lanes = kVectorBytes / 4, block = 2 * lanes;  // source samples of which two vectors are made
    static constexpr int group = 8;                                    // destination rows that are finished at a time
    static constexpr int most = 512 / C;                               // destination columns of a strip
    static constexpr int samplesOfStrip = ((2 * most + Taps) * C + 2 * block - 1) / block * block;
    static constexpr int running = Taps / 2 - 1;  // destination rows that a group's last source row leaves unfinished
    static constexpr bool threes = C == 3;        // a block's pixels are not whole
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T);

    // Sums over rows, pixels of even and of odd columns apart; some are before the first, and what is loaded behind the last
    // is not used.
    class Planes {
        static constexpr int before = 16 * C;
        alignas(64) float plane_[group][2][before + samplesOfStrip / 2 + 2 * lanes];

    public:
        float* at(int row, int column) { return plane_[row][column & 1] + before + (column >> 1) * C; }
    };

    const ResizeTile& tile_;
    V across_[Taps], along_[Taps];  // weights of the columns' and the rows' passes
    V sums_[samplesOfStrip / block][running][2];  // of unfinished rows
    Planes planes_;
    alignas(64) float together_[threes ? group : 1][threes ? samplesOfStrip + lanes : 1];  // sums over rows, not yet apart
    int low_, columns_, first_, last_;  // source columns of the strip: as they are there, and of its taps counted from these

public:
    explicit OctaveDown(const ResizeTile& tile) : tile_(tile) {
        const ResizeSpec& spec = tile.spec;
        for (int t = 0; t < Taps; ++t) {
            across_[t] = splat<V>(spec.weight<float>(spec.y, tile.offset.y, t));
            along_[t] = splat<V>(spec.weight<float>(spec.x, tile.offset.x, t));
        }
    }

    void run() {
        for (int x = 0; x < tile_.size.width; x += most) strip(x, std::min(most, tile_.size.width - x));
    }

private:
    // Blocks are counted from the tile's first source column, which is likely to be where a line of the cache begins.
    void strip(int x, int pixels) {
        const auto firstTap = [&](int x) { return tile_.spec.firstTap(tile_.spec.x, tile_.offset.x + x); };
        const int begin = tile_.columns(firstTap(0)), first = firstTap(x), low = tile_.columns(first);
        low_ = threes ? low : low - (low - begin) % (block / C);
        first_ = first - low_;
        last_ = first_ + 2 * (pixels - 1) + Taps - 1;
        columns_ = tile_.columns(low_ + last_) - low_ + 1;

        int source = tile_.spec.firstTap(tile_.spec.y, tile_.offset.y);
        for (int y = 0, n; y < tile_.size.height; y += n) {
            n = std::min(group, tile_.size.height - y);
            const int before = y == 0 ? running : 0;  // rows above the tile, which take part in unfinished sums
            sumRows(Rows(tile_, source, 2 * (before + n), low_, columns_ * C), before, n);
            source += 2 * (before + n);
            for (int r = 0; r < n; ++r) {
                if constexpr (threes) takeApart(r);
                extend(r);
                sumColumns(r, RowOf<T>(tile_.destination(y + r, x, pixelBytes)), pixels * C);
            }
        }
    }

    // Source rows from the strip's first column on, and a copy of a last block that is not whole.
    struct Rows {
        static constexpr int most = 2 * (running + group);
        const uint8_t* row[most];
        const uint8_t* rest[most];
        alignas(64) uint8_t copy[most][(block * sizeof(T) + kVectorBytes - 1) / kVectorBytes * kVectorBytes];

        Rows(const ResizeTile& tile, int first, int count, int low, int samples) {
            const ptrdiff_t from = samples / block * block * ptrdiff_t(sizeof(T)), bytes = samples % block * ptrdiff_t(sizeof(T));
            for (int j = 0; j < count; ++j) {
                row[j] = tile.source(first + j, low, pixelBytes);
                rest[j] = copy[j];
                for (ptrdiff_t k = 0; k < bytes; k += kVectorBytes)
                    store(copy[j] + k, loadPart<Bytes<>>(row[j] + from + k, std::min<ptrdiff_t>(bytes - k, kVectorBytes)));
            }
        }
    };

    // Finishes n destination rows; `before` ones that precede them are none of the tile's.
    void sumRows(const Rows& rows, int before, int n) {
        for (int at = 0; at < columns_ * C; at += block) {
            const bool whole = columns_ * C - at >= block;
            sumBlock(whole ? rows.row : rows.rest, whole ? at : 0, before, n, at, sums_[at / block]);
        }
    }

    // A block's samples. Single 16-bit ones come apart as they are widened.
    static constexpr bool comeApart = C == 1 && sizeof(T) == 2;
    KVRI_INLINE static void loadBlock(const uint8_t* p, V (&v)[2]) {
        if constexpr (comeApart) {
            using Words = Vec<int32_t>;
            const auto pairs = loadedOnce(load<Words>(p));
            v[0] = loadedOnce(toFloats(std::is_signed_v<T> ? (Words)((Vec<uint32_t>)pairs << 16) >> 16 : pairs & 0xFFFF));
            v[1] = loadedOnce(toFloats(std::is_signed_v<T> ? pairs >> 16 : (Words)((Vec<uint32_t>)pairs >> 16)));
        } else {
            unroll<2>([&](auto u) KVRI_INLINE { v[u] = loadedOnce(loadReals<T>(p + u * kPackedBytes<T>)); });
        }
    }

    KVRI_INLINE void storeBlock(int r, int sample, const V (&sums)[2]) {
        const auto a = (Bytes<>)sums[0], b = (Bytes<>)sums[1];
        if constexpr (threes) {
            store(together_[r] + sample, a);
            store(together_[r] + sample + lanes, b);
        } else {
            store(planes_.at(r, sample / C), comeApart ? a : Pairs::ordered(Pairs::template pick<Pairs::Firsts>(a, b)));
            store(planes_.at(r, sample / C + 1), comeApart ? b : Pairs::ordered(Pairs::template pick<Pairs::Seconds>(a, b)));
        }
    }

    void takeApart(int r) {
        constexpr int pairs = Pairs::bytes / 4 / C;
        for (int column = 0; column < columns_; column += 2 * pairs) {
            const auto* p = reinterpret_cast<const uint8_t*>(together_[r] + column * C);
            const auto a = Pairs::firstLoad(p), b = Pairs::secondLoad(p);
            const auto put = [&](int to, Bytes<> v) KVRI_INLINE { Pairs::put(reinterpret_cast<uint8_t*>(planes_.at(r, to)), Pairs::ordered(v)); };
            put(column, Pairs::template pick<Pairs::Firsts>(a, b));
            put(column + 1, Pairs::template pick<Pairs::Seconds>(a, b));
        }
    }

    // Two source rows finish a sum, add to those of the next rows and begin one. Sums of rows before the tile's begin with
    // anything, and are not kept.
    void sumBlock(const uint8_t* const* source, ptrdiff_t at, int before, int n, int sample, V (&unfinished)[running][2]) {
        V sums[running + 1][2] = {};
        if (before == 0) unroll<running>([&](auto r) KVRI_INLINE { sums[r][0] = unfinished[r][0], sums[r][1] = unfinished[r][1]; });
        for (int row = -before; row < n; ++row, source += 2) {
            unroll<2>([&](auto j) KVRI_INLINE {
                V v[2];
                loadBlock(source[j] + at * ptrdiff_t(sizeof(T)), v);
                unroll<running + 1>([&](auto r) KVRI_INLINE {
                    constexpr int tap = Taps - 2 + j - 2 * r;
                    unroll<2>([&](auto u) KVRI_INLINE {
                        const V product = v[u] * across_[tap];
                        sums[r][u] = loadedOnce(tap == 0 ? product : sums[r][u] + product);  // in this order: else registers run out
                    });
                });
            });
            if (row >= 0) storeBlock(row, sample, sums[0]);
            unroll<running>([&](auto r) KVRI_INLINE { sums[r][0] = sums[r + 1][0], sums[r][1] = sums[r + 1][1]; });
        }
        unroll<running>([&](auto r) KVRI_INLINE { unfinished[r][0] = sums[r][0], unfinished[r][1] = sums[r][1]; });
    }

    // Columns that are not there repeat the first or the last one.
    void extend(int row) {
        for (int i = first_; i < 0; ++i) std::copy_n(planes_.at(row, 0), C, planes_.at(row, i));
        for (int i = columns_; i <= last_; ++i) std::copy_n(planes_.at(row, columns_ - 1), C, planes_.at(row, i));
    }

    void sumColumns(int r, RowOf<T> out, int samples) {
        const float* tap[Taps];
        for (int t = 0; t < Taps; ++t) tap[t] = planes_.at(r, first_ + t);
        const auto sum = [&](ptrdiff_t i, auto put) KVRI_INLINE {
            V acc;
            unroll<Taps>([&](auto t) KVRI_INLINE {
                const V product = load<V>(tap[t] + i) * along_[t];
                acc = t == 0 ? product : acc + product;
            });
            put(std::integral_constant<int, 0>{}, acc);
        };
        writeRows<1, V>(samples, sum, [&](int) KVRI_INLINE { return out; });
    }
};

}  // namespace kvri
