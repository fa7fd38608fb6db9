// bench/bench.h: what a family's benchmark file gives: rows of a function, its images and the bytes that it moves.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bench/limit.h"
#include "kvri.h"

namespace bench {

// Bytes per pixel that a row's call reads and writes.
struct Bytes {
    int read, written;
};

// What a row runs: the call, so many times, over images of the given size and extra bytes per row.
struct Job {
    std::function<void(int times)> run;
    Traffic traffic;
    std::vector<void*> images;       // of kvrMalloc
    std::function<void(int)> bare{};  // what a caller would write instead, where that is a loop over rows
    double pixels = 0;                // that the call writes, where these are not the geometry's
};

struct Geometry {
    KvriSize size;
    int padding;  // bytes between rows; 0 where rows lie one behind the other
    const char* text;
};

// Registers a row for every geometry. `variant` tells apart rows of one function; the goals file names both.
void add(const std::string& function, const std::string& variant, std::function<Job(const Geometry&)> prepare);

// An image with contents that compress no better than noise; alive as long as the job.
uint8_t* newImage(Job& job, ptrdiff_t bytes);

// A family's file registers its rows with one of these: `const bench::Rows rows(addBorders);`
struct Rows {
    explicit Rows(void (*addRows)());
};

}  // namespace bench
