// pointops/palette.cpp: LUTPalette and LUTPaletteSwap, samples as indices of the caller's tables.
//
// 8u to 8u takes the permutations of ByteTable. Tables of wider entries exceed what these reach: every sample is a load.
#include "core/check.h"
#include "core/dispatch.h"
#include "kvri/pointops.h"
#include "pointops/bytetable.h"

namespace kvri {
namespace {

template <class T>
constexpr KvrStatus validBits(int nBitSize) {
    return nBitSize < 1 || nBitSize > 8 * int(sizeof(T)) ? kvrStatusOutOfRange : kvrStatusOk;
}

template <class T>
constexpr KvrStatus checkPalette(KvriSize roi, int nBitSize, int srcStep, int dstStep) {
    return firstError(hasPixels(roi), validBits<T>(nBitSize),
                      std::min(srcStep, dstStep) < roi.width ? kvrStatusBadStep : kvrStatusOk);
}

// All 256 entries, repeated where bits are masked off.
ByteTable repeated(const Kvr8u* entries, int bits) {
    if (bits == 8) return ByteTable(entries);
    Kvr8u table[256];
    for (int i = 0; i < 256; i += 1 << bits) std::memcpy(table + i, entries, size_t(1) << bits);
    return ByteTable(table);
}

// 8u to 8u

template <class L>
void mapTables(const Kvr8u* const pTable[L::colours], int bits, const Images& images) {
    ByteTable tables[L::colours];
    for (int c = 0; c < L::colours; ++c) tables[c] = repeated(pTable[c], bits);
    mapThrough<L>(tables, images);
}

template <bool Swap>
void mapTablesBesideZeros(const Kvr8u* const pTable[3], int bits, const Images& images) {
    ByteTable tables[3];
    for (int c = 0; c < 3; ++c) tables[c] = repeated(pTable[c], bits);
    eachRow(images.roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
        forEachBlock<kVectorBytes>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
            Bytes<> from[3], to[4];
            PlanesOf<1, 3>::load(from, s + first * 3, block, n * 3);
            for (int c = 0; c < 3; ++c) to[Swap ? 2 - c : c] = tables[c](from[c]);
            to[3] = Bytes<>{};
            PlanesOf<1, 4>::store(to, d + first * 4, n * 4, [&](uint8_t* p, auto v, ptrdiff_t bytes) KVRI_INLINE {
                block.store(p, v, bytes);
            });
        });
    }, source<3>(images.src, images.srcStep), destination<4>(images.dst, images.dstStep));
}

// 16u to 16u

template <class L>
void mapTables(const Kvr16u* const pTable[L::colours], int bits, const Images& images) {
    std::array<const Kvr16u*, L::colours> table;
    std::copy_n(pTable, L::colours, table.begin());
    images.eachRow<L::channels * sizeof(Kvr16u)>([=, mask = (1u << bits) - 1](const uint8_t* s, uint8_t* d, ptrdiff_t pixels) {
        mapSamples<Kvr16u, L>([=](auto c, ptrdiff_t, Kvr16u x) KVRI_INLINE { return table[c][x & mask]; }, s, d, pixels);
    });
}

template <bool Swap>
void mapTablesBesideZeros(const Kvr16u* const pTable[3], int bits, const Images& images) {
    const unsigned mask = (1u << bits) - 1;
    const Kvr16u* table[3] = {pTable[0], pTable[1], pTable[2]};
    eachRow(images.roi, [&](const uint8_t* s, uint8_t* d, ptrdiff_t pixels) {
        for (; pixels > 0; --pixels, s += 6, d += 8) {
            Kvr16u from[3], to[4] = {};
            std::memcpy(from, s, sizeof from);
            for (int c = 0; c < 3; ++c) to[Swap ? 2 - c : c] = table[c][from[c] & mask];
            std::memcpy(d, to, sizeof to);
        }
    }, source<6>(images.src, images.srcStep), destination<8>(images.dst, images.dstStep));
}

// Samples of one channel to entries of E bytes

template <class T, int E>
void lookUp(const uint8_t* src, uint8_t* dst, const uint8_t* table, unsigned mask, ptrdiff_t pixels) {
    for (ptrdiff_t i = 0; i < pixels; ++i) {
        T index;
        std::memcpy(&index, src + i * ptrdiff_t(sizeof(T)), sizeof(T));
        std::memcpy(dst + i * E, table + size_t(index & mask) * E, E);
    }
}

// Bodies

template <class T>
KvrStatus paletteSamples(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const T* pTable, int nBitSize) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pTable), checkPalette<T>(roi, nBitSize, srcStep, dstStep))) return e;
    mapTables<C1>(&pTable, nBitSize, {pSrc, srcStep, pDst, dstStep, roi});
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus palettePixels(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const T* const pTable[L::colours],
                        int nBitSize) {
    if (KvrStatus e = nonNull(pSrc, pDst, pTable)) return e;
    if (KvrStatus e = firstError(planesNonNull<L::colours>(pTable), checkPalette<T>(roi, nBitSize, srcStep, dstStep))) return e;
    mapTables<L>(pTable, nBitSize, {pSrc, srcStep, pDst, dstStep, roi});
    return kvrStatusOk;
}

template <class T, bool Swap>
KvrStatus paletteBesideZeros(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const T* const pTable[3], int nBitSize) {
    if (KvrStatus e = nonNull(pSrc, pDst, pTable)) return e;
    if (KvrStatus e = firstError(planesNonNull<3>(pTable), checkPalette<T>(roi, nBitSize, srcStep, dstStep))) return e;
    mapTablesBesideZeros<Swap>(pTable, nBitSize, {pSrc, srcStep, pDst, dstStep, roi});
    return kvrStatusOk;
}

template <class T, class D, int E>
KvrStatus paletteEntries(const T* pSrc, int srcStep, D* pDst, int dstStep, KvriSize roi, const D* pTable, int nBitSize) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pTable), checkPalette<T>(roi, nBitSize, srcStep, dstStep))) return e;
    const auto* table = reinterpret_cast<const uint8_t*>(pTable);
    const unsigned mask = (1u << nBitSize) - 1;
    eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) { lookUp<T, E>(s, d, table, mask, pixels); },
            source<sizeof(T)>(pSrc, srcStep), destination<E>(pDst, dstStep));
    return kvrStatusOk;
}

KVRI_EXPORT(kvriLUTPalette_8u_C1R, paletteSamples<Kvr8u>);
KVRI_EXPORT(kvriLUTPalette_8u_C3R, palettePixels<Kvr8u, C3>);
KVRI_EXPORT(kvriLUTPalette_8u_C4R, palettePixels<Kvr8u, C4>);
KVRI_EXPORT(kvriLUTPalette_8u_AC4R, palettePixels<Kvr8u, AC4>);
KVRI_EXPORT(kvriLUTPalette_8u_C3A0C4R, paletteBesideZeros<Kvr8u, false>);
KVRI_EXPORT(kvriLUTPaletteSwap_8u_C3A0C4R, paletteBesideZeros<Kvr8u, true>);
KVRI_EXPORT(kvriLUTPalette_16u_C1R, paletteSamples<Kvr16u>);
KVRI_EXPORT(kvriLUTPalette_16u_C3R, palettePixels<Kvr16u, C3>);
KVRI_EXPORT(kvriLUTPalette_16u_C4R, palettePixels<Kvr16u, C4>);
KVRI_EXPORT(kvriLUTPalette_16u_AC4R, palettePixels<Kvr16u, AC4>);
KVRI_EXPORT(kvriLUTPalette_16u_C3A0C4R, paletteBesideZeros<Kvr16u, false>);
KVRI_EXPORT(kvriLUTPaletteSwap_16u_C3A0C4R, paletteBesideZeros<Kvr16u, true>);
KVRI_EXPORT(kvriLUTPalette_8u24u_C1R, paletteEntries<Kvr8u, Kvr8u, 3>);
KVRI_EXPORT(kvriLUTPalette_8u32u_C1R, paletteEntries<Kvr8u, Kvr32u, 4>);
KVRI_EXPORT(kvriLUTPalette_16u8u_C1R, paletteEntries<Kvr16u, Kvr8u, 1>);
KVRI_EXPORT(kvriLUTPalette_16u24u_C1R, paletteEntries<Kvr16u, Kvr8u, 3>);
KVRI_EXPORT(kvriLUTPalette_16u32u_C1R, paletteEntries<Kvr16u, Kvr32u, 4>);

}  // namespace
}  // namespace kvri
