// tests/pointops/palette.h: the palette functions in one shape.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kvri.h"

namespace test::palette {

struct Call {
    const void* src = nullptr;
    void* dst = nullptr;
    int srcStep = 0, dstStep = 0;
    KvriSize roi{};
    const void* tables[4] = {};
    bool noTables = false;
    int bits = 0;
};

using Function = std::function<KvrStatus(const Call&)>;

template <class T, class D>
Function function(KvrStatus (*f)(const T*, int, D*, int, KvriSize, const D*, int)) {
    return [=](const Call& c) { return f((const T*)c.src, c.srcStep, (D*)c.dst, c.dstStep, c.roi, (const D*)c.tables[0], c.bits); };
}
template <class T>
Function function(KvrStatus (*f)(const T*, int, T*, int, KvriSize, const T* const*, int)) {
    return [=](const Call& c) {
        const T* tables[4];
        for (int i = 0; i < 4; ++i) tables[i] = (const T*)c.tables[i];
        return f((const T*)c.src, c.srcStep, (T*)c.dst, c.dstStep, c.roi, c.noTables ? nullptr : tables, c.bits);
    };
}

struct Case {
    const char* name;
    Function function;
    int sampleBytes, entryBytes;
    int srcChannels, dstChannels, colours;
    bool zeroed, swapped;
};

#define KVRI_PALETTE(name, ...) {#name, function(name), __VA_ARGS__}
#define KVRI_PALETTES(t, bytes)                                                                                   \
    KVRI_PALETTE(kvriLUTPalette_##t##_C1R, bytes, bytes, 1, 1, 1, false, false),                                  \
        KVRI_PALETTE(kvriLUTPalette_##t##_C3R, bytes, bytes, 3, 3, 3, false, false),                              \
        KVRI_PALETTE(kvriLUTPalette_##t##_C4R, bytes, bytes, 4, 4, 4, false, false),                              \
        KVRI_PALETTE(kvriLUTPalette_##t##_AC4R, bytes, bytes, 4, 4, 3, false, false),                             \
        KVRI_PALETTE(kvriLUTPalette_##t##_C3A0C4R, bytes, bytes, 3, 4, 3, true, false),                           \
        KVRI_PALETTE(kvriLUTPaletteSwap_##t##_C3A0C4R, bytes, bytes, 3, 4, 3, true, true)

inline const std::vector<Case> kPalettes = {
    KVRI_PALETTES(8u, 1),
    KVRI_PALETTES(16u, 2),
    KVRI_PALETTE(kvriLUTPalette_8u24u_C1R, 1, 3, 1, 1, 1, false, false),
    KVRI_PALETTE(kvriLUTPalette_8u32u_C1R, 1, 4, 1, 1, 1, false, false),
    KVRI_PALETTE(kvriLUTPalette_16u8u_C1R, 2, 1, 1, 1, 1, false, false),
    KVRI_PALETTE(kvriLUTPalette_16u24u_C1R, 2, 3, 1, 1, 1, false, false),
    KVRI_PALETTE(kvriLUTPalette_16u32u_C1R, 2, 4, 1, 1, 1, false, false),
};

}  // namespace test::palette
