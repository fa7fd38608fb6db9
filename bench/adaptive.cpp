// bench/adaptive.cpp: rows of the adaptive thresholds.
#include "bench/bench.h"

namespace bench {
namespace {

Job prepare(const Geometry& g, int side, bool gauss) {
    Job job;
    const int step = g.size.width + g.padding;
    const KvriSize mask{side, side};
    int specBytes = 1, bufferBytes = 1;
    if (gauss) kvriThresholdAdaptiveGaussGetBufferSize(g.size, mask, kvrDataType8u, 1, &specBytes, &bufferBytes);
    else kvriThresholdAdaptiveBoxGetBufferSize(g.size, mask, kvrDataType8u, 1, &bufferBytes);
    auto* spec = reinterpret_cast<KvriThresholdAdaptiveSpec*>(newImage(job, specBytes));
    uint8_t *src = newImage(job, ptrdiff_t(g.size.height) * step), *dst = newImage(job, ptrdiff_t(g.size.height) * step);
    uint8_t* buffer = newImage(job, bufferBytes);
    if (gauss) kvriThresholdAdaptiveGaussInit(g.size, mask, kvrDataType8u, 1, 0, spec);
    const ptrdiff_t pixels = ptrdiff_t(g.size.width) * g.size.height;
    job.traffic = {src, dst, pixels, pixels};
    job.run = [=, size = g.size](int times) {
        while (times-- > 0) {
            if (gauss) kvriThresholdAdaptiveGauss_8u_C1R(src, step, dst, step, size, mask, 5, 255, 0, kvrBorderRepl, 0, spec, buffer);
            else kvriThresholdAdaptiveBox_8u_C1R(src, step, dst, step, size, mask, 5, 255, 0, kvrBorderRepl, 0, buffer);
        }
    };
    return job;
}

void addAdaptive() {
    for (int side : {1, 3, 15, 51})
        for (bool gauss : {false, true})
            add(gauss ? "kvriThresholdAdaptiveGauss_8u_C1R" : "kvriThresholdAdaptiveBox_8u_C1R", std::to_string(side) + "x" + std::to_string(side),
                [=](const Geometry& g) { return prepare(g, side, gauss); });
}

const Rows rows(addAdaptive);

}  // namespace
}  // namespace bench
