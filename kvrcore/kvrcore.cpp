// kvrcore: what the image library asks of the processor and the system.
#include "kvrcore.h"

#include <cpuid.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace {

struct Registers {
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};

Registers cpuid(unsigned leaf, unsigned subleaf = 0) {
    Registers r;
    __get_cpuid_count(leaf, subleaf, &r.eax, &r.ebx, &r.ecx, &r.edx);  // all zero where the leaf is missing
    return r;
}

bool isInOrderCore(unsigned signature) {
    const unsigned family = (signature >> 8) & 15;
    const unsigned model = ((signature >> 4) & 15) | ((signature >> 12) & 0xF0);
    return family == 6 && (model == 0x1C || model == 0x26 || model == 0x27 || model == 0x35 || model == 0x36);
}

// Processors this machine has: its share of a cache that serves more of them.
unsigned processors() { return unsigned(std::max(1L, sysconf(_SC_NPROCESSORS_ONLN))); }

// Bytes of the largest data or unified cache, by one of the two leaves of the same layout; 0 where it lists none.
uint64_t largestCache(unsigned leaf) {
    constexpr unsigned endOfList = 0, instructions = 2, maxCaches = 16;
    uint64_t largest = 0;
    for (unsigned i = 0; i < maxCaches; ++i) {
        const Registers r = cpuid(leaf, i);
        const unsigned type = r.eax & 31;
        if (type == endOfList) break;
        if (type == instructions) continue;
        const uint64_t ways = (r.ebx >> 22) + 1, partitions = ((r.ebx >> 12) & 1023) + 1, line = (r.ebx & 4095) + 1;
        const uint64_t bytes = ways * partitions * line * (uint64_t(r.ecx) + 1);
        const unsigned sharing = ((r.eax >> 14) & 4095) + 1, here = processors();
        largest = std::max(largest, sharing > here ? bytes * here / sharing : bytes);
    }
    return largest;
}

// CPUID is slow, above all in virtual machines, and the answer never changes: ask once, at load.
int measureCache() {
    uint64_t bytes = largestCache(4);
    if (bytes == 0) bytes = largestCache(0x8000001D);
    return int(std::min<uint64_t>(bytes, INT_MAX));
}

int maxCacheBytes;
[[gnu::constructor(101)]] void rememberCache() { maxCacheBytes = measureCache(); }

}  // namespace

uint64_t kvrGetEnabledCpuFeatures() {
    const Registers r = cpuid(1);
    constexpr unsigned ssse3 = 1u << 9;
    return ((r.ecx & ssse3) ? KVR_FEATURE_SSSE3 : 0) | (isInOrderCore(r.eax) ? KVR_FEATURE_IN_ORDER : 0);
}

void* kvrMalloc(size_t size) {
    constexpr size_t alignment = 64;
    const size_t rounded = (size + alignment - 1) & ~(alignment - 1);
    return rounded >= size && size > 0 ? std::aligned_alloc(alignment, rounded) : nullptr;
}

void kvrFree(void* ptr) { std::free(ptr); }

KvrStatus kvrGetMaxCacheSizeB(int* pSize) {
    if (pSize == nullptr) return kvrStatusNullPointer;
    if (maxCacheBytes == 0) return kvrStatusNotSupported;
    *pSize = maxCacheBytes;
    return kvrStatusOk;
}
