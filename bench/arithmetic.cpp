// bench/arithmetic.cpp: rows of the two-operand functions; the same table as their tests.
#include "bench/bench.h"
#include "tests/pointops/arithmetic.h"

namespace bench {
namespace {

using namespace test::arithmetic;

// Divisors without zeros, numbers without overflow.
void fillOperands(Type t, uint8_t* p, ptrdiff_t bytes) {
    if (isFloat(t)) {
        for (ptrdiff_t i = 0; i + 4 <= bytes; i += 4) {
            const float f = 1 + float(p[i]) / 64;
            std::memcpy(p + i, &f, 4);
        }
    } else {
        for (ptrdiff_t i = 0; i < bytes; ++i) p[i] |= 1;
    }
}

Job prepare(const Case& c, const Geometry& g, int scale) {
    Job job;
    Call call;
    const ptrdiff_t rows = g.size.height, step = ptrdiff_t(g.size.width) * c.pixelBytes() + g.padding, bytes = rows * step;
    const ptrdiff_t touched = ptrdiff_t(g.size.width) * rows * c.pixelBytes();
    auto image = [&] {
        uint8_t* p = newImage(job, 2 * bytes);  // as long as both sources together, for the limit's one stream
        fillOperands(c.type, p, bytes);
        return p;
    };
    call.dst = image();
    call.src2 = c.inPlace ? call.dst : image();
    call.src1 = c.constant ? nullptr : image();
    call.step1 = call.step2 = call.dstStep = int(step);
    call.roi = g.size;
    alignas(16) static uint8_t constants[32];
    for (int i = 0; i < int(sizeof constants); ++i) constants[i] = uint8_t(11 * i);
    fillOperands(c.type, constants, sizeof constants);
    call.value = constants;
    call.scale = scale;
    call.mode = 1;
    const uint8_t* src = static_cast<const uint8_t*>(c.constant ? call.src2 : call.src1);
    job.traffic = {src, static_cast<uint8_t*>(call.dst), c.constant ? touched : 2 * touched, touched};
    job.run = [call, f = c.function](int times) { f(call, times); };
    return job;
}

void addArithmetic() {
    for (const Case& c : kArithmetic) {
        auto addScale = [&](int scale) {
            add(c.name, "sf" + std::to_string(scale), [=](const Geometry& g) { return prepare(c, g, scale); });
        };
        if (!c.scales()) {
            add(c.name, "", [=](const Geometry& g) { return prepare(c, g, 0); });
            continue;
        }
        for (int scale : {0, 1, -1}) addScale(scale);
        if (c.is("Mul")) addScale(8 * partBytes(c.type));
        else if (c.is("Add") || c.is("Sub")) addScale(4);
    }
}

const Rows rows(addArithmetic);

}  // namespace
}  // namespace bench
