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

// Destination rows from `position` on, at most `count` of them. Source row first + j is tap j - begin[r] of row r.
template <class F>
struct RowGroup {
    int count, taps, first, sources;
    int begin[kGroupRows];
    const F* weight[kGroupRows];

    RowGroup(const ResizeSpec& spec, int position, int count) : count(count), taps(spec.y.taps), first(spec.firstTap(spec.y, position)) {
        sources = spec.firstTap(spec.y, position + count - 1) + taps - first;
        for (int r = 0; r < kGroupRows; ++r) {
            begin[r] = r < count ? spec.firstTap(spec.y, position + r) - first : sources;
            weight[r] = spec.table<F>(spec.y.weights) + ptrdiff_t((position + r) % spec.y.period) * spec.y.positionStride;
        }
    }
    bool uses(int r, int j) const { return unsigned(j - begin[r]) < unsigned(taps); }
    bool uses(int j) const {
        for (int r = 0; r < kGroupRows; ++r)
            if (uses(r, j)) return true;
        return false;
    }
};

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

    ptrdiff_t head() const { return Row<T>(p[0]).head(); }
    template <int vectors>
    void put(ptrdiff_t i, const GroupSums<RealOf<T>, vectors>& sums, ptrdiff_t samples) const {
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            if (r >= count) return;
            const Row<T> row(p[r]);
            if constexpr (vectors == 4) row.four(i, sums.of[r]);
            else if (samples >= kReals<T>) row.one(i, sums.of[r][0]);
            else row.part(i, sums.of[r][0], samples);
        });
    }
};

// The group's sums over source rows rowAt(j), the first `samples` of each.
template <class T, class RowAt, class Out>
void sumRows(const RowGroup<RealOf<T>>& group, RowAt rowAt, ptrdiff_t samples, const Out& out) {
    using V = Reals<T>;
    constexpr int lanes = kReals<T>;
    const auto sum = [&](auto size, ptrdiff_t i, auto loadFrom) KVRI_INLINE {
        constexpr int vectors = size;
        GroupSums<RealOf<T>, vectors> sums;
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            unroll<vectors>([&](auto u) KVRI_INLINE { sums.of[r][u] = splat<V>(-0.0f); });  // which leaves any first product as it is
        });
        for (int j = 0; j < group.sources; ++j) {
            if (!group.uses(j)) continue;
            const uint8_t* p = rowAt(j) + i * ptrdiff_t(sizeof(T));
            V v[vectors];
            unroll<vectors>([&](auto u) KVRI_INLINE { v[u] = loadedOnce(loadFrom(p, u)); });
            unroll<kGroupRows>([&](auto r) KVRI_INLINE {
                if (!group.uses(r, j)) return;
                const V w = splat<V>(group.weight[r][j - group.begin[r]]);
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
