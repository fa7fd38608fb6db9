// bench/border.cpp: rows of the borders; the same table as their tests. The geometry is the source's.
#include "bench/bench.h"
#include "tests/datamove/border.h"

namespace bench {
namespace {

using namespace test::border;

// The limit is a copy of as many bytes as the destination holds: its margins are copies too, or cost a constant no less.
Job prepare(const Case& c, const Geometry& g, int margin) {
    Job job;
    const int B = c.pixelBytes();
    const KvriSize whole = {g.size.width + 2 * margin, g.size.height + 2 * margin};
    const int srcStep = g.size.width * B + g.padding, dstStep = whole.width * B + g.padding;
    const ptrdiff_t bytes = ptrdiff_t(dstStep) * whole.height;
    uint8_t *dst = newImage(job, bytes), *src = newImage(job, bytes);
    static const uint64_t value[2] = {0x1122334455667788, 0x99AABBCCDDEEFF00};
    Call call{src, srcStep, g.size, dst, dstStep, whole, margin, margin, value};
    job.traffic = {src, dst, bytes, bytes};
    if (c.inPlace) {
        call.src = dst + margin * (dstStep + B), call.srcStep = dstStep;
        const ptrdiff_t inside = ptrdiff_t(g.size.width) * g.size.height;
        job.traffic.read = job.traffic.written = (ptrdiff_t(whole.width) * whole.height - inside) * B;
    }
    job.run = [call, f = c.function](int times) { f(call, times); };
    return job;
}

void addBorders() {
    for (const auto& [margin, text] : {std::pair{8, "8px"}, {2, "2px"}, {100, "100px"}})
        for (const Case& c : kBorders) add(c.name, text, [&c, margin = margin](const Geometry& g) { return prepare(c, g, margin); });
}

const Rows rows(addBorders);

}  // namespace
}  // namespace bench
