// geometry/resize_octave.h: exactly half the size by weights of single precision.
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
        const float* at(int row, int column) const { return const_cast<Planes*>(this)->at(row, column); }
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
        columns_ = tile_.columns(first_ + low_ + 2 * (pixels - 1) + Taps - 1) - low_ + 1;

        int source = tile_.spec.firstTap(tile_.spec.y, tile_.offset.y), y = 0;
        const auto sum = [&](auto from, auto count) {
            sumRows<from>(Rows<count>(tile_, source, low_, columns_ * C));
            source += count;
        };
        const auto finish = [&](auto count) {
            sum(std::integral_constant<int, Taps - 2>{}, std::integral_constant<int, 2 * count>{});
            for (int r = 0; r < count; ++r) {
                if constexpr (threes) takeApart(r);
                extend(r);
                sumColumns(r, RowOf<T>(tile_.destination(y + r, x, pixelBytes)), pixels * C);
            }
            y += count;
        };
        sum(std::integral_constant<int, 0>{}, std::integral_constant<int, Taps - 2>{});
        while (tile_.size.height - y >= group) finish(std::integral_constant<int, group>{});
        while (y < tile_.size.height) finish(std::integral_constant<int, 1>{});
    }

    // Source rows from the strip's first column on, and a copy of a last block that is not whole.
    template <int count>
    struct Rows {
        const uint8_t* row[count];
        const uint8_t* rest[count];
        alignas(64) uint8_t copy[count][(block * sizeof(T) + kVectorBytes - 1) / kVectorBytes * kVectorBytes];

        Rows(const ResizeTile& tile, int first, int low, int samples) {
            const ptrdiff_t from = samples / block * block * ptrdiff_t(sizeof(T)), bytes = samples % block * ptrdiff_t(sizeof(T));
            for (int j = 0; j < count; ++j) {
                row[j] = tile.source(first + j, low, pixelBytes);
                rest[j] = copy[j];
                for (ptrdiff_t k = 0; k < bytes; k += kVectorBytes)
                    store(copy[j] + k, loadPart<Bytes<>>(row[j] + from + k, std::min<ptrdiff_t>(bytes - k, kVectorBytes)));
            }
        }
    };

    // Adds source rows. The first one is number `from` of the first unfinished row's taps.
    template <int from, int count>
    void sumRows(const Rows<count>& rows) {
        for (int at = 0; at < columns_ * C; at += block) {
            const bool whole = columns_ * C - at >= block;
            sumBlock<from, count>(whole ? rows.row : rows.rest, whole ? at : 0, at, sums_[at / block]);
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

    template <int from, int rows>
    [[gnu::noinline]] void sumBlock(const uint8_t* const* source, ptrdiff_t at, int sample, V (&unfinished)[running][2]) {
        constexpr int finished = from == 0 ? 0 : rows / 2;
        V sums[finished + running][2];
        if constexpr (from > 0) unroll<running>([&](auto r) KVRI_INLINE { sums[r][0] = unfinished[r][0], sums[r][1] = unfinished[r][1]; });
        unroll<rows>([&](auto j) KVRI_INLINE {
            V v[2];
            loadBlock(source[j] + at * ptrdiff_t(sizeof(T)), v);
            unroll<finished + running>([&](auto r) KVRI_INLINE {
                constexpr int tap = from + j - 2 * r;
                if constexpr (tap >= 0 && tap < Taps)
                    unroll<2>([&](auto u) KVRI_INLINE {
                        const V product = v[u] * across_[tap];
                        sums[r][u] = loadedOnce(tap == 0 ? product : sums[r][u] + product);  // in this order: else registers run out
                    });
                if constexpr (tap == Taps - 1) storeBlock(r, sample, sums[r]);
            });
        });
        unroll<running>([&](auto r) KVRI_INLINE { unfinished[r][0] = sums[finished + r][0], unfinished[r][1] = sums[finished + r][1]; });
    }

    // Columns that are not there repeat the first or the last one.
    void extend(int row) {
        for (int i = first_; i < 0; ++i) std::copy_n(planes_.at(row, 0), C, planes_.at(row, i));
        for (int i = columns_; i <= last_; ++i) std::copy_n(planes_.at(row, columns_ - 1), C, planes_.at(row, i));
    }

    void sumColumns(int r, RowOf<T> out, int samples) const {
        const float* tap[Taps];
        for (int t = 0; t < Taps; ++t) tap[t] = planes_.at(r, first_ + t);
        const auto sum = [&](int i) KVRI_INLINE {
            V acc;
            unroll<Taps>([&](auto t) KVRI_INLINE {
                const V product = load<V>(tap[t] + i) * along_[t];
                acc = t == 0 ? product : acc + product;
            });
            return acc;
        };
        int i = 0;
        for (; samples - i >= 4 * lanes; i += 4 * lanes) {
            V v[4];
            unroll<4>([&](auto u) KVRI_INLINE { v[u] = sum(i + u * lanes); });
            out.four(i, v);
        }
        for (; samples - i >= lanes; i += lanes) out.one(i, sum(i));
        if (i < samples) out.part(i, sum(i), samples - i);
    }
};

}  // namespace kvri
