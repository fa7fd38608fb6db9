// geometry/resize_rows.h: the vertical pass of Resize.
//
// Every sum is formed in the order of its taps by separate products and sums, so that no result depends on how an image is
// cut into groups of rows, strips, blocks and vectors.
#pragma once

#include "geometry/resize_samples.h"
#include "geometry/resize_spec.h"

namespace kvri {

// Destination rows that are summed at a time, as they share source rows.
constexpr int kGroupRows = kLanes;

// Source rows of a group.
constexpr int kMostSources = 256;

// The sums of a group of destination rows: source row j with its weight for each of them that uses it.
template <class F>
class RowGroup {
    uint8_t used_[kMostSources];  // bit r: by destination row r
    F weight_[kMostSources][kGroupRows];
    const uint8_t* row_[kMostSources];

public:
    int first, sources;

    // Destination rows from `position` on, of which `taps` taps from tap `from` on are summed.
    RowGroup(const ResizeSpec& spec, int position, int rows, int from, int taps) : first(firstOf(spec, position) + from) {
        sources = firstOf(spec, position + rows - 1) + from + taps - first;
        std::fill_n(used_, sources, uint8_t(0));
        for (int r = 0; r < rows; ++r) {
            const int begin = firstOf(spec, position + r) + from - first;
            const F* weight = spec.weightsOf<F>(spec.y, position + r) + from;
            for (int t = 0; t < taps; ++t) {
                used_[begin + t] |= uint8_t(1 << r);
                weight_[begin + t][r] = weight[t];
            }
        }
    }
    RowGroup(const ResizeSpec& spec, int position, int rows) : RowGroup(spec, position, rows, 0, spec.y.taps) {}

    // The most rows, up to `rows`, that have no more than `sources` source rows.
    static int rowsWithin(const ResizeSpec& spec, int position, int rows, int sources) {
        while (rows > 1 && firstOf(spec, position + rows - 1) + spec.y.taps - firstOf(spec, position) > sources) --rows;
        return rows;
    }

    // rowAt(first + j) is asked for rows that are used.
    template <class RowAt>
    void setRows(RowAt rowAt) {
        for (int j = 0; j < sources; ++j)
            if (used_[j] != 0) row_[j] = rowAt(first + j);
    }

    const uint8_t* row(int j) const { return row_[j]; }
    int used(int j) const { return used_[j]; }
    F weight(int j, int r) const { return weight_[j][r]; }

private:
    static int firstOf(const ResizeSpec& spec, int position) { return spec.firstTap(spec.y, position); }
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

// Rows that a group's sums are written to as samples of T.
template <class T, template <class> class Row = RowOf>
struct RowsOf {
    static constexpr int block = 4, least = 1;  // vectors of sums at a time, and of a row's rest
    std::array<uint8_t*, kGroupRows> p;
    int count;

    template <class V>
    static V begin(int, ptrdiff_t) { return emptySum<V>(); }
    ptrdiff_t head() const { return Row<T>(p[0]).head(); }
    template <int vectors>
    KVRI_INLINE void put(ptrdiff_t i, const GroupSums<RealOf<T>, vectors>& sums, ptrdiff_t samples) const {
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            if (r >= count) return;
            const Row<T> row(p[r]);
            if constexpr (vectors == 4) row.four(i, sums.of[r]);
            else if (samples >= kReals<T>) row.one(i, sums.of[r][0]);
            else row.part(i, sums.of[r][0], samples);
        });
    }
};

// A single row of sums to which more taps are added.
template <class F>
struct AddedRow : RowsOf<F> {
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
    const auto rest = [&](ptrdiff_t end) KVRI_INLINE {
        for (; end - i >= least * lanes; i += least * lanes) out.put(i, sum(least, i, whole), end - i);
        if (i >= end) return;
        const auto part = [&](const uint8_t* p, int u) KVRI_INLINE { return loadRealsPart<T>(p + u * kPackedBytes<T>, end - i - u * lanes); };
        out.put(i, sum(least, i, part), end - i);
        i = end;
    };
    if (const ptrdiff_t head = out.head()) rest(std::min(head, samples));
    for (; samples - i >= block * lanes; i += block * lanes) out.put(i, sum(block, i, whole), samples - i);
    rest(samples);
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

}  // namespace kvri
