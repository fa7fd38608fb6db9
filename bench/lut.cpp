// bench/lut.cpp: rows of the lookup tables and palettes; the same tables as their tests.
#include "bench/bench.h"
#include "tests/pointops/lut.h"
#include "tests/pointops/palette.h"

namespace bench {
namespace {

// Levels over the type's whole range, not in steps of a power of two; values that fall where levels rise.
template <class V>
void fillCurve(V* levels, V* values, int n, double least, double most) {
    for (int k = 0; k < n; ++k) {
        levels[k] = V(least + (most - least) * k / (n - 1));
        values[k] = V(most - (most - least) * k / (n - 1));
    }
}

Job prepareLut(const test::lut::Case& c, const Geometry& g, int n) {
    using test::lut::Type;
    Job job;
    test::lut::Call call;
    const ptrdiff_t step = ptrdiff_t(g.size.width) * c.pixelBytes() + g.padding, bytes = g.size.height * step;
    call.dst = newImage(job, bytes);
    call.src = c.inPlace ? call.dst : newImage(job, bytes);
    call.srcStep = call.dstStep = int(step);
    call.roi = g.size;
    auto* curve = newImage(job, 2 * 4 * n);
    if (c.type == Type::F32) {
        auto* samples = (float*)call.src;
        for (ptrdiff_t i = 0; i < bytes / 4; ++i) samples[i] = float(uint32_t(samples[i] != 0) + uint32_t(i * 2654435761u >> 8) % 1000);
        fillCurve((float*)curve, (float*)curve + n, n, 0, 1000);
    } else {
        const double least = c.type == Type::S16 ? -32768 : 0, most = c.type == Type::U8 ? 256 : least + 65536;
        fillCurve((int*)curve, (int*)curve + n, n, least, most);
    }
    for (int k = 0; k < 4; ++k) call.levels[k] = curve, call.values[k] = curve + 4 * n, call.nLevels[k] = n;
    const ptrdiff_t touched = ptrdiff_t(g.size.width) * g.size.height * c.pixelBytes();
    job.traffic = {(const uint8_t*)call.src, (uint8_t*)call.dst, touched, touched};
    job.run = [call, f = c.function](int times) { while (times-- > 0) f(call); };
    return job;
}

Job preparePalette(const test::palette::Case& c, const Geometry& g) {
    Job job;
    test::palette::Call call;
    const int from = c.srcChannels * c.sampleBytes, to = c.dstChannels * c.entryBytes;
    call.srcStep = g.size.width * from + g.padding;
    call.dstStep = g.size.width * to + g.padding;
    call.src = newImage(job, ptrdiff_t(g.size.height) * call.srcStep);
    call.dst = newImage(job, ptrdiff_t(g.size.height) * call.dstStep);
    call.roi = g.size;
    call.bits = 8 * c.sampleBytes;
    for (int k = 0; k < c.colours; ++k) call.tables[k] = newImage(job, ptrdiff_t(c.entryBytes) << call.bits);
    const ptrdiff_t pixels = ptrdiff_t(g.size.width) * g.size.height;
    job.traffic = {(const uint8_t*)call.src, (uint8_t*)call.dst, pixels * from, pixels * to};
    job.run = [call, f = c.function](int times) { while (times-- > 0) f(call); };
    return job;
}

void addLuts() {
    for (const auto& c : test::lut::kLuts) {
        add(c.name, c.kind == test::lut::Kind::Step ? "" : "16lev", [&c](const Geometry& g) { return prepareLut(c, g, 16); });
        for (int n : {4, 64, 256})
            if (c.channels == 1 && !c.inPlace) add(c.name, std::to_string(n) + "lev", [&c, n](const Geometry& g) { return prepareLut(c, g, n); });
    }
    for (const auto& c : test::palette::kPalettes) add(c.name, "", [&c](const Geometry& g) { return preparePalette(c, g); });
}

const Rows rows(addLuts);

}  // namespace
}  // namespace bench
