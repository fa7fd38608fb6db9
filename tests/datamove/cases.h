// tests/datamove/cases.h: every function that moves samples, for the tests and the benchmarks.
#pragma once

#include "tests/datamove/call.h"

namespace test {

#define KVRI_CASE(name) #name, function(name)

#define KVRI_COPY(t)                                                                                                   \
    {KVRI_CASE(kvriCopy_##t##_C1R), sizeof(Kvr##t), 1, 1, {0}},                                                        \
    {KVRI_CASE(kvriCopy_##t##_C3R), sizeof(Kvr##t), 3, 3, {0, 1, 2}},                                                  \
    {KVRI_CASE(kvriCopy_##t##_C4R), sizeof(Kvr##t), 4, 4, {0, 1, 2, 3}},                                               \
    {KVRI_CASE(kvriCopy_##t##_AC4R), sizeof(Kvr##t), 4, 4, {0, 1, 2, kKept}},                                          \
    {KVRI_CASE(kvriCopy_##t##_C1MR), sizeof(Kvr##t), 1, 1, {0}, kMasked},                                              \
    {KVRI_CASE(kvriCopy_##t##_C3MR), sizeof(Kvr##t), 3, 3, {0, 1, 2}, kMasked},                                        \
    {KVRI_CASE(kvriCopy_##t##_C4MR), sizeof(Kvr##t), 4, 4, {0, 1, 2, 3}, kMasked},                                     \
    {KVRI_CASE(kvriCopy_##t##_AC4MR), sizeof(Kvr##t), 4, 4, {0, 1, 2, kKept}, kMasked},                                \
    {KVRI_CASE(kvriCopy_##t##_C3C1R), sizeof(Kvr##t), 3, 1, {0}, kSrcOneChannel},                                      \
    {KVRI_CASE(kvriCopy_##t##_C4C1R), sizeof(Kvr##t), 4, 1, {0}, kSrcOneChannel},                                      \
    {KVRI_CASE(kvriCopy_##t##_C1C3R), sizeof(Kvr##t), 1, 3, {0}, kDstOneChannel},                                      \
    {KVRI_CASE(kvriCopy_##t##_C1C4R), sizeof(Kvr##t), 1, 4, {0}, kDstOneChannel},                                      \
    {KVRI_CASE(kvriCopy_##t##_C3CR), sizeof(Kvr##t), 3, 3, {0}, kSrcOneChannel | kDstOneChannel},                      \
    {KVRI_CASE(kvriCopy_##t##_C4CR), sizeof(Kvr##t), 4, 4, {0}, kSrcOneChannel | kDstOneChannel},                      \
    {KVRI_CASE(kvriCopy_##t##_AC4C3R), sizeof(Kvr##t), 4, 3, {0, 1, 2}},                                               \
    {KVRI_CASE(kvriCopy_##t##_C3AC4R), sizeof(Kvr##t), 3, 4, {0, 1, 2, kKept}},                                        \
    {"kvriCopy_" #t "_C3P3R", toPlanes<3>(kvriCopy_##t##_C3P3R), sizeof(Kvr##t), 3, 3, {0, 1, 2}, kDstPlanar},         \
    {"kvriCopy_" #t "_C4P4R", toPlanes<4>(kvriCopy_##t##_C4P4R), sizeof(Kvr##t), 4, 4, {0, 1, 2, 3}, kDstPlanar},      \
    {"kvriCopy_" #t "_P3C3R", fromPlanes<3>(kvriCopy_##t##_P3C3R), sizeof(Kvr##t), 3, 3, {0, 1, 2}, kSrcPlanar},       \
    {"kvriCopy_" #t "_P4C4R", fromPlanes<4>(kvriCopy_##t##_P4C4R), sizeof(Kvr##t), 4, 4, {0, 1, 2, 3}, kSrcPlanar}

#define KVRI_SET(t)                                                                                                    \
    {KVRI_CASE(kvriSet_##t##_C1R), sizeof(Kvr##t), 0, 1, {kValue}, kByValue},                                          \
    {KVRI_CASE(kvriSet_##t##_C3R), sizeof(Kvr##t), 0, 3, {kValue, kValue, kValue}},                                    \
    {KVRI_CASE(kvriSet_##t##_C4R), sizeof(Kvr##t), 0, 4, {kValue, kValue, kValue, kValue}},                            \
    {KVRI_CASE(kvriSet_##t##_AC4R), sizeof(Kvr##t), 0, 4, {kValue, kValue, kValue}},                                   \
    {KVRI_CASE(kvriSet_##t##_C1MR), sizeof(Kvr##t), 0, 1, {kValue}, kMasked | kByValue},                               \
    {KVRI_CASE(kvriSet_##t##_C3MR), sizeof(Kvr##t), 0, 3, {kValue, kValue, kValue}, kMasked},                          \
    {KVRI_CASE(kvriSet_##t##_C4MR), sizeof(Kvr##t), 0, 4, {kValue, kValue, kValue, kValue}, kMasked},                  \
    {KVRI_CASE(kvriSet_##t##_AC4MR), sizeof(Kvr##t), 0, 4, {kValue, kValue, kValue}, kMasked},                         \
    {KVRI_CASE(kvriSet_##t##_C3CR), sizeof(Kvr##t), 0, 3, {kValue}, kDstOneChannel | kByValue},                        \
    {KVRI_CASE(kvriSet_##t##_C4CR), sizeof(Kvr##t), 0, 4, {kValue}, kDstOneChannel | kByValue}

#define KVRI_SWAP(t)                                                                                                   \
    {KVRI_CASE(kvriSwapChannels_##t##_C3R), sizeof(Kvr##t), 3, 3, {0, 0, 0}},                                          \
    {KVRI_CASE(kvriSwapChannels_##t##_C4R), sizeof(Kvr##t), 4, 4, {0, 0, 0, 0}},                                       \
    {KVRI_CASE(kvriSwapChannels_##t##_AC4R), sizeof(Kvr##t), 4, 4, {0, 0, 0}},                                         \
    {KVRI_CASE(kvriSwapChannels_##t##_C4C3R), sizeof(Kvr##t), 4, 3, {0, 0, 0}},                                        \
    {KVRI_CASE(kvriSwapChannels_##t##_C3C4R), sizeof(Kvr##t), 3, 4, {0, 0, 0, 0}, kByValue}

#define KVRI_TYPES(of) of(8u), of(16u), of(16s), of(32s), of(32f)

inline const std::vector<Case> kCopyCases = {KVRI_TYPES(KVRI_COPY), {KVRI_CASE(kvriCopyManaged_8u_C1R), 1, 1, 1, {0}}};

inline const std::vector<Case> kSetCases = {KVRI_TYPES(KVRI_SET)};

inline const std::vector<Case> kDupCases = {
    {KVRI_CASE(kvriDup_8u_C1C3R), 1, 1, 3, {0, 0, 0}},
    {KVRI_CASE(kvriDup_8u_C1C4R), 1, 1, 4, {0, 0, 0, 0}},
};

// Which channel comes from where is told by the order of a call.
inline const std::vector<Case> kSwapCases = {
    KVRI_TYPES(KVRI_SWAP),
    {KVRI_CASE(kvriSwapChannels_8u_C3IR), 1, 0, 3, {0, 0, 0}},
    {KVRI_CASE(kvriSwapChannels_8u_C4IR), 1, 0, 4, {0, 0, 0, 0}},
};

}  // namespace test
