// bench/unary.cpp: rows of Abs, Sqr, Sqrt, Ln and Exp; the same table as their tests.
#include "bench/bench.h"
#include "tests/pointops/unary.h"

namespace bench {
namespace {

using namespace test::arithmetic;

Job prepare(const Case& c, const Geometry& g, int scale) {
    Job job;
    Call call;
    const ptrdiff_t rows = g.size.height, step = ptrdiff_t(g.size.width) * c.pixelBytes() + g.padding;
    auto image = [&] {
        uint8_t* p = newImage(job, rows * step);
        for (ptrdiff_t y = 0; y < rows && isFloat(c.type); ++y)
            for (uint8_t* sample = p + y * step; sample + 4 <= p + (y + 1) * step; sample += 4) {
                const float f = 1 + float(*sample) / 64;
                std::memcpy(sample, &f, 4);
            }
        return p;
    };
    uint8_t* dst = image();
    uint8_t* src = c.inPlace ? dst : image();
    call.src1 = src, call.dst = dst, call.step1 = call.dstStep = int(step), call.roi = g.size, call.scale = scale;
    const ptrdiff_t touched = ptrdiff_t(g.size.width) * rows * c.pixelBytes();
    job.traffic = {src, dst, touched, touched};
    job.run = [call, f = c.function](int times) { f(call, times); };
    return job;
}

void addUnary() {
    for (const Case& c : kUnary) {
        auto addScale = [&](int scale) {
            const std::string variant = c.scales() ? "sf" + std::to_string(scale) : "";
            add(c.name, variant, [=](const Geometry& g) { return prepare(c, g, scale); });
        };
        addScale(0);
        if (c.scales()) addScale(1), addScale(-4);
    }
}

const Rows rows(addUnary);

}  // namespace
}  // namespace bench
