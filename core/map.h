// core/map.h: one operation on every sample of a row.
//
// An operation is an object that gives the result's vector for the operands' vectors: op(a), op(a, b). Its sample type is
// Op::Sample; Op::unrolled says how many vectors are worth being worked on at a time.
#pragma once

#include "core/lanes.h"
#include "core/layout.h"
#include "core/rows.h"
#include "core/sources.h"

namespace kvri {

// Whether byte i of vector j is among the first `Chosen` of its pixel.
template <int B, int Chosen, int j>
struct IsChosen {
    constexpr bool operator()(int i) const { return (j * kVectorBytes + i) % B < Chosen; }
};

// Sources of samples give their bytes; a source of an operation's own kind gives what the operation asks of it.
template <class V>
KVRI_INLINE inline V operandOf(Bytes<> v) { return (V)loadedOnce(v); }
template <class V, class Own>
KVRI_INLINE inline const Own& operandOf(const Own& own) { return own; }

// Stores the first `Chosen` bytes of each pixel of vector j of a block that starts at pixel `first`; from that vector on,
// `bytes` bytes are the row's.
template <int B, int Chosen, int j>
KVRI_INLINE inline void storePixels(auto block, uint8_t* row, ptrdiff_t first, Bytes<> v, ptrdiff_t bytes) {
    uint8_t* d = row + first * B + j * kVectorBytes;
    if constexpr (Chosen == B) block.store(d, v, bytes);
    else block.storeChosen(d, v, choose<Bytes<>>(IsChosen<B, Chosen, j>{}), bytes);
}

// Calls step(write, inside, operands' vectors...) for every vector of pixels of B bytes: write(result) stores the first
// `Chosen` bytes of each pixel, inside(v) is v with 0 in all bytes but these.
template <int B, int Chosen, class Op, class Step, class... Source>
KVRI_INLINE inline void forEachOperand(ptrdiff_t pixels, uint8_t* dst, Step step, Source... source) {
    using V = Vec<typename Op::Sample>;
    forEachVector<B, kPeriod<B>, B, kPeriod<B> == 1 ? Op::unrolled : 1>(
        pixels, [&](auto block, ptrdiff_t first, auto index, ptrdiff_t bytes) KVRI_INLINE {
            constexpr int j = index;
            const auto write = [&](V result) KVRI_INLINE { storePixels<B, Chosen, j>(block, dst, first, (Bytes<>)result, bytes); };
            const auto inside = [&](Bytes<> v) KVRI_INLINE {
                if constexpr (Chosen != B) v &= constant<Bytes<>>([](int i) { return -IsChosen<B, Chosen, j>{}(i); });
                return block.only(v, bytes);
            };
            step(write, inside, operandOf<V>(source.template vector<j>(block, first, bytes))...);
        });
}

// Operations that look at several vectors at a time have a function for rows of their own.
template <int B, int Chosen, class Op, class... Source>
    requires requires(const Op& op, Source... source) { op.template row<B, Chosen>(nullptr, 0, source...); }
KVRI_INLINE inline void mapRow(const Op& op, uint8_t* dst, ptrdiff_t pixels, Source... source) {
    op.template row<B, Chosen>(dst, pixels, source...);
}

template <int B, int Chosen, class Op, class... Source>
KVRI_INLINE inline void mapRow(const Op& operation, uint8_t* dst, ptrdiff_t pixels, Source... source) {
    const Op op = operation;  // bytes stored to dst might alias its constants, but no local copy
    forEachOperand<B, Chosen, Op>(pixels, dst, [&](auto write, auto, const auto&... operand) KVRI_INLINE { write(op(operand...)); },
                                  source...);
}

}  // namespace kvri
