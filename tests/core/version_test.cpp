// tests/core/version_test.cpp: the version record of the selected variant, and the companion library.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "kvrcore.h"
#include "kvri.h"

namespace {

TEST(Version, IsTheRecordOfTheVariant) {
    const bool inOrder = (kvrGetEnabledCpuFeatures() & 0x30) == 0x30;
    ASSERT_TRUE(inOrder || !std::getenv("KVRI_STAND_IN")) << "the stand-in for libkvrcore.so is not loaded";
    const KvrLibraryVersion* v = kvriGetLibVersion();
    EXPECT_EQ(v->major, 8);
    EXPECT_EQ(v->minor, 2);
    EXPECT_EQ(v->update, 3);
    EXPECT_EQ(v->build, 48108);
    EXPECT_EQ(0, std::memcmp(v->targetCpu, inOrder ? "n8\0" : "u8\0", 4));
    EXPECT_STREQ(v->name, inOrder ? "kvrIP Quarn (n8)" : "kvrIP SSSE3 (u8)");
    EXPECT_STREQ(v->version, "8.2.3 (r48108)");
    EXPECT_STREQ(v->buildDate, "Jul 23 2015");
}

TEST(Core, MemoryIsAligned) {
    EXPECT_EQ(kvrMalloc(0), nullptr);
    EXPECT_EQ(kvrMalloc(SIZE_MAX), nullptr);
    for (size_t size : {1, 63, 64, 65, 100000}) {
        void* p = kvrMalloc(size);
        ASSERT_NE(p, nullptr);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
        std::memset(p, 1, size);
        kvrFree(p);
    }
    kvrFree(nullptr);
}

TEST(Core, CacheSize) {
    EXPECT_EQ(kvrGetMaxCacheSizeB(nullptr), kvrStatusNullPointer);
    int bytes = -1;
    const KvrStatus status = kvrGetMaxCacheSizeB(&bytes);
    if (status == kvrStatusOk) EXPECT_GE(bytes, 1 << 14);
    else EXPECT_EQ(status, kvrStatusNotSupported);
}

}  // namespace
