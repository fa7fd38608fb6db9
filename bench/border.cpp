// bench/border.cpp: rows of the borders; the same table as their tests. The geometry is the source's.
#include "bench/bench.h"
#include "tests/datamove/border.h"

namespace bench {
namespace {

using namespace test::border;

// The limit copies as many bytes as the call writes; the source's image is that large for its sake.
Job prepare(const Case& c, const Geometry& g, int margin) {
    Job job;
    const int B = c.pixelBytes();
    const KvriSize whole = {g.size.width + 2 * margin, g.size.height + 2 * margin};
    const int srcStep = g.size.width * B + g.padding, dstStep = whole.width * B + g.padding;
    const ptrdiff_t bytes = ptrdiff_t(dstStep) * whole.height;
    uint8_t *dst = newImage(job, bytes), *src = newImage(job, bytes);
    static const uint64_t value[2] = {0x1122334455667788, 0x99AABBCCDDEEFF00};
    Call call{src, srcStep, g.size, dst, dstStep, whole, margin, margin, value};
    ptrdiff_t pixels = ptrdiff_t(whole.width) * whole.height;
    if (c.inPlace) {
        call.src = dst + margin * (dstStep + B), call.srcStep = dstStep;
        pixels -= ptrdiff_t(g.size.width) * g.size.height;
    }
    job.traffic = {src, dst, pixels * B, pixels * B};
    job.run = [call, f = c.function](int times) { f(call, times); };
    return job;
}

void addBorders() {
    const auto add = [](const Case& c, int margin) {
        bench::add(c.name, std::to_string(margin) + "px", [&c, margin](const Geometry& g) { return prepare(c, g, margin); });
    };
    for (const Case& c : kBorders) add(c, 8);
    for (const Case& c : kBorders)
        if (c.has("_8u_") || c.has("_32f_")) add(c, 100);
}

const Rows rows(addBorders);

}  // namespace
}  // namespace bench
