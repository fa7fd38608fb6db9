/* kvrcore.h - the companion library: processor features, aligned memory, cache size. */
#ifndef KVRCORE_H
#define KVRCORE_H

#include <stddef.h>
#include <stdint.h>

#include "kvri/types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Feature bits that this processor has and the operating system has enabled. */
#define KVR_FEATURE_SSSE3    UINT64_C(0x10)
#define KVR_FEATURE_IN_ORDER UINT64_C(0x20) /* low-power core that executes in program order */
uint64_t kvrGetEnabledCpuFeatures(void);

/* Memory aligned to 64 bytes; null for a size of 0 and where there is none. kvrFree accepts null. */
void* kvrMalloc(size_t size);
void kvrFree(void* ptr);

/* Size in bytes of the largest data or unified cache. Where a cache serves more processors than this machine has, as
 * virtual machines report it, only this machine's share counts.
 * Errors: null pointer -8; cache sizes not reported by the processor -9999. */
KvrStatus kvrGetMaxCacheSizeB(int* pSize);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
