// bench/pointwise.cpp: rows of bit logic, shifts, comparisons and thresholds; the same tables as their tests.
#include "tests/pointops/pointwise.h"

#include "bench/bench.h"

namespace bench {
namespace {

using namespace test::pointwise;

// Operands lie one behind the other, as the limit reads them in one stream.
Job prepare(const Case& c, const Geometry& g, const void* value) {
    Job job;
    Call call;
    const ptrdiff_t rows = g.size.height, pixels = rows * g.size.width;
    const ptrdiff_t step = ptrdiff_t(g.size.width) * c.pixelBytes() + g.padding;
    const int inPlace = c.name.find("IR") != std::string::npos, operands = c.sources() + inPlace;
    call.dstStep = g.size.width * c.resultBytes() + g.padding;
    uint8_t* dst = newImage(job, rows * call.dstStep);
    uint8_t* src = c.sources() > 0 ? newImage(job, operands * rows * step) : dst;
    for (int i = 0; i < c.sources(); ++i) {
        call.src[size_t(i)] = src + i * rows * step;
        call.srcStep[size_t(i)] = int(step);
    }
    call.dst = dst;
    call.roi = g.size;
    call.value.fill(value);
    call.code = kvrCmpGreater;
    job.traffic = {src, dst, operands * pixels * c.pixelBytes(), pixels * c.resultBytes()};
    job.run = [call, f = c.function.call](int times) { f(call, times); };
    return job;
}

Job prepareOtsu(const Geometry& g) {
    Job job;
    const int step = g.size.width + g.padding;
    uint8_t* src = newImage(job, ptrdiff_t(g.size.height) * step);
    job.traffic = {src, nullptr, ptrdiff_t(g.size.height) * g.size.width, 0};
    job.run = [=](int times) {
        Kvr8u threshold;
        while (times-- > 0) kvriComputeThreshold_Otsu_8u_C1R(src, step, g.size, &threshold);
    };
    return job;
}

void addPointwise() {
    static const Kvr32u alike[4] = {3, 3, 3, 3}, different[4] = {1, 2, 3, 4};
    alignas(16) static const uint8_t middle[16] = {64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64, 64};
    for (const auto* cases : {&kLogic, &kCompare, &kThreshold})
        for (const Case& c : *cases) {
            const bool shifts = c.is("Shift");
            const void* value = shifts ? static_cast<const void*>(alike) : middle;
            add(c.name, "", [=](const Geometry& g) { return prepare(c, g, value); });
            if (shifts && c.channels > 1) add(c.name, "each", [=](const Geometry& g) { return prepare(c, g, different); });
        }
    add("kvriComputeThreshold_Otsu_8u_C1R", "", prepareOtsu);
}

const Rows rows(addPointwise);

}  // namespace
}  // namespace bench
