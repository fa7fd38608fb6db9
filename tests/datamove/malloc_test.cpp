// tests/datamove/malloc_test.cpp: image allocation.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "kvri.h"

namespace {

struct Allocation {
    const char* name;
    void* (*allocate)(int, int, int*);
    int pixelBytes;
};

#define ALLOCATION(t, layout, channels)                                                                          \
    {"kvriMalloc_" #t "_" #layout, [](int w, int h, int* step) -> void* { return kvriMalloc_##t##_##layout(w, h, step); }, \
     int(sizeof(Kvr##t)) * channels}
#define LAYOUTS(t) ALLOCATION(t, C1, 1), ALLOCATION(t, C2, 2), ALLOCATION(t, C3, 3), ALLOCATION(t, C4, 4), ALLOCATION(t, AC4, 4)

const Allocation kAllocations[] = {LAYOUTS(8u), LAYOUTS(16u), LAYOUTS(16s), LAYOUTS(32s), LAYOUTS(32f), LAYOUTS(32sc), LAYOUTS(32fc)};

TEST(Malloc, RowsOnBoundariesOfSixtyFourBytes) {
    for (const Allocation& a : kAllocations)
        for (int width : {1, 3, 63, 64, 65, 1000}) {
            int step = -1;
            void* p = a.allocate(width, 7, &step);
            ASSERT_NE(p, nullptr) << a.name;
            EXPECT_EQ(step, (width * a.pixelBytes + 63) / 64 * 64) << a.name << " " << width;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << a.name;
            std::memset(p, 1, size_t(step) * 7);
            kvriFree(p);
        }
}

TEST(Malloc, RefusesBadArguments) {
    for (const Allocation& a : kAllocations) {
        EXPECT_EQ(a.allocate(10, 10, nullptr), nullptr) << a.name;
        for (auto [w, h] : {std::pair{0, 5}, {5, 0}, {-1, 5}, {5, INT_MIN}}) {
            int step = 17;
            EXPECT_EQ(a.allocate(w, h, &step), nullptr) << a.name;
            EXPECT_EQ(step, 0) << a.name;
        }
    }
}

TEST(Malloc, SizeWrapsAtFourGigabytes) {
    int step = 0;
    void* p = kvriMalloc_8u_C1(64, (1 << 26) + 1, &step);  // 64 * (2^26 + 1) is 64 modulo 2^32
    EXPECT_EQ(step, 64);
    ASSERT_NE(p, nullptr);
    std::memset(p, 1, 64);
    kvriFree(p);
    EXPECT_EQ(kvriMalloc_8u_C1(64, 1 << 26, &step), nullptr);  // wraps to nothing
    EXPECT_EQ(step, 64);
}

TEST(Free, AcceptsNull) { kvriFree(nullptr); }

}  // namespace
