// tests/standin: a libkvrcore.so that reports a low-power in-order processor with a tiny cache, so that the second variant
// and the streaming stores come into play on any machine.
#include "kvrcore.h"

#include <cstdlib>

uint64_t kvrGetEnabledCpuFeatures() { return 0x30; }
void* kvrMalloc(size_t size) { return size == 0 || size > SIZE_MAX - 63 ? nullptr : std::aligned_alloc(64, (size + 63) / 64 * 64); }
void kvrFree(void* ptr) { std::free(ptr); }
KvrStatus kvrGetMaxCacheSizeB(int* pSize) {
    if (pSize == nullptr) return kvrStatusNullPointer;
    *pSize = 1 << 14;
    return kvrStatusOk;
}
