// core/load.cpp: the one piece of process-wide state, chosen when the library is loaded.
#include "core/dispatch.h"
#include "kvrcore.h"

int32_t CpuVariantIndex;

namespace {

// Ahead of the constructors of C++ objects, so that even those may call the library.
[[gnu::constructor(101)]] void selectVariant() {
    constexpr uint64_t inOrderWithSsse3 = KVR_FEATURE_SSSE3 | KVR_FEATURE_IN_ORDER;
    CpuVariantIndex = (kvrGetEnabledCpuFeatures() & inOrderWithSsse3) == inOrderWithSsse3;
}

}  // namespace
