// bench/resize.cpp: rows of Resize, per destination pixel. A row's size is that of the source.
#include "bench/bench.h"
#include "tests/geometry/resize.h"

namespace bench {
namespace {

using namespace test::resize;

struct Scale {
    const char* name;
    int numerator, denominator;  // destination : source
};

constexpr Scale kScales[] = {{"half", 1, 2}, {"x2", 2, 1}, {"by0.7", 7, 10}, {"by1.4", 7, 5}};

Job prepare(const Case& c, const Choice& o, const Scale& scale, const Geometry& g) {
    Job job;
    const KvriSize src = g.size;
    const auto scaled = [&](int n) { return std::max(1, n * scale.numerator / scale.denominator); };
    const KvriSize dst{scaled(src.width), scaled(src.height)};
    const ptrdiff_t srcStep = ptrdiff_t(src.width) * c.pixelBytes() + g.padding, dstStep = ptrdiff_t(dst.width) * c.pixelBytes() + g.padding;
    uint8_t* from = newImage(job, srcStep * src.height);
    uint8_t* to = newImage(job, std::max(srcStep * src.height, dstStep * dst.height));
    if (c.type == Type::f32)
        for (ptrdiff_t i = 0; i + 4 <= srcStep * src.height; i += 4) {
            const float f = from[i];
            std::memcpy(from + i, &f, 4);
        }
    const Queries q = queriesOf(c.type);
    int specBytes = 0, initBytes = 0, bufferBytes = 0;
    q.size(src, dst, c.kernel(o), c.antialiasing(), &specBytes, &initBytes);
    auto* spec = reinterpret_cast<KvriResizeSpec*>(newImage(job, specBytes));
    c.init(src, dst, o, spec, newImage(job, initBytes));
    q.bufferSize(spec, dst, c.channels, &bufferBytes);
    const Call call{from, int(srcStep), to, int(dstStep), {0, 0}, dst};
    job.run = [=, apply = c.apply, buffer = newImage(job, bufferBytes)](int times) {
        while (times-- > 0) apply(call, spec, buffer);
    };
    job.pixels = double(dst.width) * dst.height;
    const auto bytes = [&](KvriSize s) { return ptrdiff_t(s.width) * s.height * c.pixelBytes(); };
    job.traffic = {from, to, bytes(src), bytes(dst)};
    return job;
}

void addCase(const Case& c, const Choice& o, const std::string& kernel) {
    for (const Scale& scale : kScales) {
        const bool shrinksOnly = c.method == kvrInterpSuper || c.antialiasing();
        if (shrinksOnly && scale.numerator > scale.denominator) continue;
        add(c.name, kernel + scale.name, [&c, o, &scale](const Geometry& g) { return prepare(c, o, scale, g); });
    }
}

void addResize() {
    for (const Case& c : cases()) {
        if (c.antialiasing()) {
            addCase(c, {kvrInterpLinear}, "linear/");
            addCase(c, {kvrInterpCubic}, "cubic/");
            addCase(c, {kvrInterpLanczos, 3}, "lanczos3/");
        } else {
            addCase(c, {}, c.method == kvrInterpLanczos ? "lanczos3/" : "");
        }
    }
}

const Rows rows(addResize);

}  // namespace
}  // namespace bench
