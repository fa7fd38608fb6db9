// tests/support/memory.h: images that own exactly their ROI's bytes, with unmapped pages right beside them.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

#include "kvri.h"

namespace test {

class Random {
    std::mt19937_64 engine_;

public:
    explicit Random(uint64_t seed) : engine_(seed) {}
    uint64_t bits() { return engine_(); }
    int in(int low, int high) { return low + int(engine_() % uint64_t(high - low + 1)); }
    bool chance(int percent) { return in(1, 100) <= percent; }
    void fill(void* p, size_t bytes) {
        auto* b = static_cast<uint8_t*>(p);
        for (; bytes >= 8; bytes -= 8, b += 8) {
            const uint64_t r = engine_();
            std::memcpy(b, &r, 8);
        }
        const uint64_t r = engine_();
        std::memcpy(b, &r, bytes);
    }

    // Mostly around the widths of vectors and of a kernel's block, now and then several blocks.
    KvriSize size() { return {chance(70) ? in(1, 70) : in(1, 400), in(1, 4)}; }
};

// Writable pages between two unmapped ones.
class GuardedPages {
    size_t page_ = size_t(sysconf(_SC_PAGESIZE)), bytes_;
    uint8_t* base_;

public:
    explicit GuardedPages(size_t bytes) : bytes_((bytes + page_ - 1) / page_ * page_) {
        void* p = mmap(nullptr, bytes_ + 2 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (p == MAP_FAILED) throw std::bad_alloc();
        base_ = static_cast<uint8_t*>(p);
        if (mprotect(begin(), bytes_, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
    }
    GuardedPages(const GuardedPages&) = delete;
    ~GuardedPages() { munmap(base_, bytes_ + 2 * page_); }
    uint8_t* begin() const { return base_ + page_; }
    uint8_t* end() const { return begin() + bytes_; }
    size_t bytes() const { return bytes_; }

    // Mapping is slow: ended images leave their pages for later ones.
    static std::unique_ptr<GuardedPages> get(size_t bytes) {
        auto& pool = unused();
        for (auto& p : pool)
            if (p->bytes() >= bytes) {
                std::swap(p, pool.back());
                auto found = std::move(pool.back());
                pool.pop_back();
                return found;
            }
        return std::make_unique<GuardedPages>(std::max<size_t>(bytes, 32768));
    }
    static void put(std::unique_ptr<GuardedPages> pages) { unused().push_back(std::move(pages)); }

private:
    static std::vector<std::unique_ptr<GuardedPages>>& unused() {
        static std::vector<std::unique_ptr<GuardedPages>> pool;
        return pool;
    }
};

// Where an image touches an unmapped page: its first byte just behind one, or its last byte just before one.
enum class Edge { Begin, End };

// Rows of rowBytes bytes, |step| apart; nothing of the last row's padding exists. A negative step walks upwards.
class TestImage {
    std::unique_ptr<GuardedPages> pages_;
    uint8_t* first_;  // lowest address
    size_t bytes_;

public:
    uint8_t* roi;
    int step;
    int rowBytes, rows;

    TestImage(int rowBytes, int rows, int step, Edge edge)
        : bytes_(size_t(std::abs(ptrdiff_t(step))) * size_t(rows - 1) + size_t(rowBytes)), step(step), rowBytes(rowBytes),
          rows(rows) {
        pages_ = GuardedPages::get(bytes_);
        first_ = edge == Edge::Begin ? pages_->begin() : pages_->end() - bytes_;
        roi = step < 0 ? first_ - ptrdiff_t(step) * (rows - 1) : first_;
    }
    // Random padding: none, so that rows may be merged, or a few bytes that misalign the rows; now and then a negative step,
    // unless the function refuses these.
    TestImage(int rowBytes, int rows, Random& random, bool anyStep = true)
        : TestImage(rowBytes, rows, randomStep(rowBytes, random, anyStep), random.chance(50) ? Edge::Begin : Edge::End) {
        random.fill(first_, bytes_);
    }
    TestImage(TestImage&&) = default;
    ~TestImage() {
        if (pages_) GuardedPages::put(std::move(pages_));
    }

    uint8_t* row(int y) const { return roi + ptrdiff_t(y) * step; }
    std::vector<uint8_t> memory() const { return {first_, first_ + bytes_}; }
    // Where byte `offset` of row y lies in memory().
    size_t position(int y, ptrdiff_t offset) const { return size_t(row(y) + offset - first_); }

private:
    static int randomStep(int rowBytes, Random& random, bool anyStep) {
        if (random.chance(30)) return rowBytes;
        const int step = rowBytes + random.in(1, 67);
        return anyStep && random.chance(20) ? -step : step;
    }
};

// Address space without memory behind it, but for the pages that are touched.
struct Reserved {
    size_t bytes;
    uint8_t* p;
    explicit Reserved(size_t bytes) : bytes(bytes) {
        void* m = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        p = m == MAP_FAILED ? nullptr : static_cast<uint8_t*>(m);
    }
    ~Reserved() {
        if (p) munmap(p, bytes);
    }
};

}  // namespace test
