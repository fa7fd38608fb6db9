// geometry/resize_rows.h: the vertical pass of Resize.
//
// Every sum is formed in the order of its taps by separate products and sums, so that no result depends on how an image is
// cut into groups of rows, strips, blocks and vectors.
#pragma once

#include "geometry/resize_apply.h"
#include "geometry/resize_samples.h"
#include "geometry/resize_spec.h"

namespace kvri {

// Destination rows that are summed at a time, as they share source rows.
constexpr int kGroupRows = kLanes;

// The most destination rows that are summed one after the other.
constexpr int kBandRows = 8;

// Source rows of a group.
constexpr int kMostSources = 256;

// First taps and weights of an axis' positions, at hand.
template <class F>
class TapsOf {
    const int32_t* first_;
    const F* weights_;
    int period_, moves_, stride_;

public:
    int taps;

    TapsOf(const ResizeSpec& spec, const ResizeAxis& a)
        : first_(spec.table<int32_t>(a.index)), weights_(spec.table<F>(a.weights)), period_(a.period), moves_(a.reducedSource), stride_(a.positionStride), taps(a.taps) {}

    int first(int i) const { return i < period_ ? first_[i] : i / period_ * moves_ + first_[i % period_]; }
    const F* weights(int i) const { return weights_ + ptrdiff_t(i < period_ ? i : i % period_) * stride_; }
    // The most positions from i on, up to n, that have no more than `sources` source positions.
    int rowsWithin(int i, int n, int sources) const {
        while (n > 1 && first(i + n - 1) + taps - first(i) > sources) --n;
        return n;
    }
};

// The sums of a group of destination rows: source row j with its weight for each of them that uses it.
template <class F>
class RowGroup {
    uint8_t used_[kMostSources];  // bit r: by destination row r
    const uint8_t* row_[kMostSources];
    const F* weights_[kGroupRows];
    int begin_[kGroupRows];  // the first source row, counted from the group's

public:
    int first, sources;

    // Destination rows from `position` on, of which `taps` taps from tap `from` on are summed.
    RowGroup(const TapsOf<F>& y, int position, int rows, int from, int taps) : first(y.first(position) + from) {
        for (int r = 0; r < rows; ++r) {
            begin_[r] = y.first(position + r) + from - first;
            weights_[r] = y.weights(position + r) + from;
        }
        sources = begin_[rows - 1] + taps;
        for (int j = 0, low = 0, high = 0; j < sources; ++j) {  // rows low to high - 1 use source row j
            while (high < rows && begin_[high] <= j) ++high;
            while (low < high && begin_[low] + taps <= j) ++low;
            used_[j] = uint8_t((1 << high) - (1 << low));
        }
    }
    RowGroup(const TapsOf<F>& y, int position, int rows) : RowGroup(y, position, rows, 0, y.taps) {}

    // rowAt(first + j) is asked for rows that are used.
    template <class RowAt>
    void setRows(RowAt rowAt) {
        for (int j = 0; j < sources; ++j)
            if (used_[j] != 0) row_[j] = rowAt(first + j);
    }

    const uint8_t* row(int j) const { return row_[j]; }
    int used(int j) const { return used_[j]; }
    F weight(int j, int r) const { return weights_[r][j - begin_[r]]; }
};

// What a sum begins with: a number that leaves any first product as it is.
template <class V>
inline V emptySum() {
    return splat<V>(-0.0f);
}

template <class F, int vectors>
struct GroupSums {
    Vec<F> of[kGroupRows][vectors];
};

// Rows that are written together, as samples of T.
template <class T>
struct RowsOf {
    std::array<uint8_t*, kBandRows> p;
    int count;
};

// Rows that a group's sums are written to.
template <class F, template <class> class Row = RoomyRowOf>
struct SumRows : RowsOf<F> {
    static constexpr int block = 4, least = 1;  // vectors of sums at a time, and of a row's rest

    template <class V>
    static V begin(int, ptrdiff_t) { return emptySum<V>(); }
    template <int vectors>
    KVRI_INLINE void put(ptrdiff_t i, const GroupSums<F, vectors>& sums, ptrdiff_t samples) const {
        constexpr int lanes = kVectorBytes / sizeof(F);
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            if (r >= this->count) return;
            const Row<F> row(this->p[r]);
            if constexpr (vectors == 4) samples >= 4 * lanes ? row.four(i, sums.of[r]) : row.fourPart(i, sums.of[r], samples);
            else if (samples >= lanes) row.one(i, sums.of[r][0]);
            else row.part(i, sums.of[r][0], samples);
        });
    }
};

// A single row of sums to which more taps are added.
template <class F>
struct AddedRow : SumRows<F, RowOf> {
    template <class V>
    V begin(int r, ptrdiff_t i) const { return r == 0 ? load<V>(this->p[0] + i * ptrdiff_t(sizeof(F))) : V{}; }
};

// The group's sums over the first `samples` of each source row.
template <class T, class Out>
void sumRows(const RowGroup<RealOf<T>>& group, ptrdiff_t samples, const Out& out) {
    using V = Reals<T>;
    constexpr int lanes = kReals<T>;
    const auto sum = [&](auto size, ptrdiff_t i, auto loadFrom) KVRI_INLINE {
        constexpr int vectors = size;
        GroupSums<RealOf<T>, vectors> sums;
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            unroll<vectors>([&](auto u) KVRI_INLINE { sums.of[r][u] = out.template begin<V>(r, i + u * lanes); });
        });
        for (int j = 0; j < group.sources; ++j) {
            const int used = group.used(j);
            if (used == 0) continue;
            const uint8_t* p = group.row(j) + i * ptrdiff_t(sizeof(T));
            V v[vectors];
            unroll<vectors>([&](auto u) KVRI_INLINE { v[u] = loadedOnce(loadFrom(p, u)); });
            unroll<kGroupRows>([&](auto r) KVRI_INLINE {
                if (!(used & 1 << r)) return;
                const V w = splat<V>(group.weight(j, r));
                unroll<vectors>([&](auto u) KVRI_INLINE { sums.of[r][u] = sums.of[r][u] + v[u] * w; });
            });
        }
        return sums;
    };
    constexpr std::integral_constant<int, Out::block> block{};
    constexpr std::integral_constant<int, Out::least> least{};
    const auto whole = [](const uint8_t* p, int u) KVRI_INLINE { return loadReals<T>(p + u * kPackedBytes<T>); };
    ptrdiff_t i = 0;
    const auto part = [&](const uint8_t* p, int u) KVRI_INLINE { return loadRealsPart<T>(p + u * kPackedBytes<T>, samples - i - u * lanes); };
    for (; samples - i >= block * lanes; i += block * lanes) out.put(i, sum(block, i, whole), samples - i);
    for (; samples - i >= least * lanes; i += least * lanes) out.put(i, sum(least, i, whole), samples - i);
    if (i < samples) out.put(i, sum(least, i, part), samples - i);
}

// Rows of numbers that a destination row is summed from.
template <class F>
struct TapRows {
    const uint8_t* const* row;
    const F* weight;
};

// The sums over the first `samples` of the rows, which may be read some vectors further. Taps: the count of taps, or 0 for any.
template <int Taps, class F, class Out>
KVRI_INLINE inline void sumTaps(const TapRows<F>& rows, int taps, ptrdiff_t samples, Out out) {
    using V = Vec<F>;
    constexpr int lanes = kVectorBytes / sizeof(F), kept = std::max(Taps, 1);
    const uint8_t* row[kept];
    V weight[kept];
    unroll<kept>([&](auto t) KVRI_INLINE { row[t] = rows.row[t], weight[t] = splat<V>(rows.weight[t]); });
    ptrdiff_t i = 0;
    const auto block = [&](auto vectors, auto put) KVRI_INLINE {
        const ptrdiff_t at = i * ptrdiff_t(sizeof(F));
        V acc[vectors];
        unroll<vectors>([&](auto u) KVRI_INLINE { acc[u] = load<V>(row[0] + at + u * kVectorBytes) * weight[0]; });
        const auto add = [&](const uint8_t* p, V w) KVRI_INLINE {
            unroll<vectors>([&](auto u) KVRI_INLINE { acc[u] = acc[u] + load<V>(p + at + u * kVectorBytes) * w; });
        };
        if constexpr (Taps > 0) unroll<Taps - 1>([&](auto t) KVRI_INLINE { add(row[t + 1], weight[t + 1]); });
        else for (int t = 1; t < taps; ++t) add(rows.row[t], splat<V>(rows.weight[t]));
        put(acc);
        i += vectors * lanes;
    };
    constexpr std::integral_constant<int, 4> four{};
    constexpr std::integral_constant<int, 1> one{};
    const auto rest = [&](ptrdiff_t end) KVRI_INLINE {
        if (end - i > 2 * lanes) block(four, [&](const V (&v)[4]) KVRI_INLINE { out.fourPart(i, v, end - i); });
        while (end - i >= lanes) block(one, [&](const V (&v)[1]) KVRI_INLINE { out.one(i, v[0]); });
        if (i < end) block(one, [&](const V (&v)[1]) KVRI_INLINE { out.part(i, v[0], end - i); });
    };
    if (const ptrdiff_t head = std::min(out.head(), samples)) rest(head), i = head;
    while (samples - i >= 4 * lanes) block(four, [&](const V (&v)[4]) KVRI_INLINE { out.four(i, v); });
    rest(samples);
}

// Some destination rows one after the other, which are written as `Out`.
template <class Out, class F>
void sumTaps(const TapRows<F>* rows, int count, int taps, ptrdiff_t samples, uint8_t* const* out) {
    const auto run = [&](auto known) KVRI_INLINE {
        for (int r = 0; r < count; ++r) sumTaps<known>(rows[r], taps, samples, Out(out[r]));
    };
    switch (taps) {
        case 2: return run(std::integral_constant<int, 2>{});
        case 3: return run(std::integral_constant<int, 3>{});
        case 4: return run(std::integral_constant<int, 4>{});
        case 6: return run(std::integral_constant<int, 6>{});
        case 8: return run(std::integral_constant<int, 8>{});
        default: return run(std::integral_constant<int, 0>{});
    }
}

// Columns low to high of a row that begins with column `first` are there; those beyond up to `last` repeat them.
template <int numbers, class Number>
inline void repeatEdges(Number* row, int first, int low, int high, int last) {
    const auto repeat = [&](int column, int from, int to) {
        const Number* edge = row + ptrdiff_t(column - first) * numbers;
        for (int x = from; x < to; ++x) std::copy(edge, edge + numbers, row + ptrdiff_t(x - first) * numbers);
    };
    repeat(low, first, low);
    repeat(high, high + 1, last + 1);
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

// Columns first to last of a source row as numbers, which may be followed by a vector of others.
template <class T, int C>
void fetchRow(const ResizeTile& tile, int row, int first, int last, RealOf<T>* to) {
    const int low = tile.columns(first), high = tile.columns(last);
    convertRow<T>(tile.source(row, low, C * sizeof(T)), ptrdiff_t(high - low + 1) * C, RoomyRowOf<RealOf<T>>(to + ptrdiff_t(low - first) * C));
    repeatEdges<C>(to, first, low, high, last);
}

}  // namespace kvri
