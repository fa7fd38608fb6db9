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
        for (ptrdiff_t i = 0; i + 4 <= rows * step && isFloat(c.type); i += 4) {
            const float f = 1 + float(p[i]) / 64;  // no infinities, however often in place; ln gives other numbers than 0
            std::memcpy(p + i, &f, 4);
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
        if (!c.scales()) add(c.name, "", [=](const Geometry& g) { return prepare(c, g, 0); });
        else for (int scale : {0, 1, -4}) add(c.name, "sf" + std::to_string(scale), [=](const Geometry& g) { return prepare(c, g, scale); });
    }
}

const Rows rows(addUnary);

}  // namespace
}  // namespace bench
