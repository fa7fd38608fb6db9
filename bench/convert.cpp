// bench/convert.cpp: rows of Convert and Scale; the same table as their tests.
#include <cstring>

#include "bench/bench.h"
#include "tests/datamove/conversions.h"

namespace bench {
namespace {

using namespace test::conversions;

// Numbers of the range of 8u and a little more, with fractions.
void fillFloats(uint8_t* p, ptrdiff_t bytes) {
    for (ptrdiff_t i = 0; i + 4 <= bytes; i += 4) {
        const float f = float(p[i]) + float(p[i + 1]) / 250;
        std::memcpy(p + i, &f, 4);
    }
}

Job prepare(const Case& c, const Geometry& g, int mode, int scale, int bitOffset) {
    Job job;
    Call call;
    const ptrdiff_t rows = g.size.height;
    const int srcRow = c.hasBits() ? (g.size.width + bitOffset + 7) / 8 : c.srcRow(g.size.width), dstRow = c.dstRow(g.size.width);
    auto image = [&](int rowBytes, int& step, ptrdiff_t& touched) {
        step = rowBytes + g.padding;
        touched = rows * rowBytes;
        return newImage(job, rows * step);
    };
    call.dst = job.traffic.dst = image(dstRow, call.dstStep, job.traffic.written);
    uint8_t* src = job.traffic.dst;
    if (c.inPlace) job.traffic.read = job.traffic.written;
    else src = image(srcRow, call.srcStep, job.traffic.read);
    if (c.src == Type::F32) fillFloats(src, rows * (c.inPlace ? call.dstStep : call.srcStep));
    call.src = job.traffic.src = src;
    call.roi = g.size;
    call.mode = mode;
    call.scale = scale;
    call.bitOffset = bitOffset;
    call.least = 0;
    call.most = 256;
    job.run = [call, f = c.function](int times) { f(call, times); };
    return job;
}

void addConversions() {
    const char* modes[] = {"zero", "near", "away"};
    for (const auto& cases : {kConvertCases, kScaleCases})
        for (const Case& c : cases) {
            auto addRow = [&](const std::string& variant, int mode, int scale, int bitOffset) {
                add(c.name, variant, [=](const Geometry& g) { return prepare(c, g, mode, scale, bitOffset); });
            };
            if (c.hasBits()) {
                for (int offset : {0, 3}) addRow("bit" + std::to_string(offset), 0, 0, offset);
            } else if (c.scales) {
                for (int mode = 0; mode < 3; ++mode)
                    for (int scale : {0, 1, -1}) addRow(std::string(modes[mode]) + "-sf" + std::to_string(scale), mode, scale, 0);
            } else if (c.hasMode()) {
                for (int mode = 0; mode < 3; ++mode) addRow(modes[mode], mode, 0, 0);
            } else {
                addRow("", 0, 0, 0);
            }
        }
}

const Rows rows(addConversions);

}  // namespace
}  // namespace bench
