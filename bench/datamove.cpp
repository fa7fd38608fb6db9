// bench/datamove.cpp: rows of the functions that move samples; the same table as their tests.
#include <cstring>

#include "bench/bench.h"
#include "tests/datamove/cases.h"

namespace bench {
namespace {

using namespace test;

enum class Mask { None, Random, Runs };

void fillMask(uint8_t* mask, ptrdiff_t bytes, Mask kind) {
    uint64_t noise = 88172645463325252u;
    bool on = false;
    for (ptrdiff_t i = 0, left = 0; i < bytes; ++i, --left) {
        noise ^= noise << 13, noise ^= noise >> 7, noise ^= noise << 17;
        if (kind == Mask::Random) on = noise >> 40 & 1;
        else if (left <= 0) on = !on, left = 20 + ptrdiff_t(noise >> 40) % 200;
        mask[i] = on ? 255 : 0;
    }
}

// A channel's row spans all channels' bytes: they share cache lines.
Job prepare(const Case& c, const Geometry& g, Mask maskKind, std::array<int, 4> order) {
    Job job;
    Call call;
    const ptrdiff_t rows = g.size.height, pixels = rows * g.size.width;
    const int srcPixel = c.sampleBytes * c.srcChannels, dstPixel = c.sampleBytes * c.dstChannels;
    auto image = [&](int planes, int pixelBytes, int& step, auto& pointers) {
        step = g.size.width * pixelBytes / planes + g.padding;
        uint8_t* p = newImage(job, rows * step * planes);
        for (int i = 0; i < planes; ++i) pointers[i] = p + i * rows * step;
        return p;
    };
    job.traffic.dst = image(c.dstPlanes(), dstPixel, call.dstStep, call.dst);
    job.traffic.written = pixels * dstPixel;
    ptrdiff_t read = 0;
    if (c.hasSource()) {
        job.traffic.src = image(c.srcPlanes(), srcPixel, call.srcStep, call.src);
        read += pixels * srcPixel;
    } else if (c.name.find("Swap") != std::string::npos) {
        job.traffic.src = job.traffic.dst;  // in place
        read += job.traffic.written;
    }
    if (c.is(kMasked)) {
        call.maskStep = g.size.width + g.padding;
        uint8_t* mask = newImage(job, std::max(rows * call.maskStep, read + pixels));
        fillMask(mask, rows * call.maskStep, maskKind);
        call.mask = mask;
        job.traffic.src = mask;
        read += pixels;
    }
    job.traffic.read = read;
    call.roi = g.size;
    static const uint64_t value[4] = {0x1122334455667788, 0x99AABBCCDDEEFF00, 1, 2};
    call.value = value;
    job.run = [call, order, f = c.function](int times) mutable {
        call.order = order.data();
        f(call, times);
    };
    if (c.name == "kvriCopy_8u_C1R")
        job.bare = [call](int times) {
            while (times-- > 0)
                for (int y = 0; y < call.roi.height; ++y)
                    std::memcpy(as<Kvr8u>(call.dst[0]) + ptrdiff_t(y) * call.dstStep,
                                as<Kvr8u>(call.src[0]) + ptrdiff_t(y) * call.srcStep, size_t(call.roi.width));
        };
    return job;
}

void addCases(const std::vector<Case>& cases, const std::string& variant, bool masked, Mask mask, std::array<int, 4> order = {}) {
    for (const Case& c : cases)
        if (c.is(kMasked) == masked) add(c.name, variant, [=](const Geometry& g) { return prepare(c, g, mask, order); });
}

void addDatamove() {
    for (const auto& cases : {kCopyCases, kSetCases}) {
        addCases(cases, "", false, Mask::None);
        addCases(cases, "rnd50", true, Mask::Random);
        addCases(cases, "runs", true, Mask::Runs);
    }
    addCases(kDupCases, "", false, Mask::None);
    addCases(kSwapCases, "", false, Mask::None, {2, 1, 0, 3});
    addCases(kSwapCases, "rotate", false, Mask::None, {1, 2, 0, 1});
}

const Rows rows(addDatamove);

}  // namespace
}  // namespace bench
