// bench/turn.cpp: rows of the functions that mirror and transpose; the same table as their tests.
#include "bench/bench.h"
#include "tests/datamove/turn.h"

namespace bench {
namespace {

using namespace test;

Job prepare(const TurnCase& c, const Geometry& g, KvriAxis axis) {
    Job job;
    const bool turnsSides = axis >= kvrAxisMainDiagonal;
    const ptrdiff_t width = g.size.width, height = g.size.height, bytes = width * height * c.pixelBytes;
    const ptrdiff_t dstWidth = turnsSides ? height : width, dstHeight = turnsSides ? width : height;
    Turn turn;
    turn.roi = g.size;
    turn.axis = axis;
    turn.srcStep = int(width * c.pixelBytes + g.padding);
    turn.dstStep = int(dstWidth * c.pixelBytes + g.padding);
    uint8_t* dst = newImage(job, dstHeight * turn.dstStep);
    const uint8_t* src = c.inPlace ? dst : newImage(job, height * turn.srcStep);
    turn.src = src;
    turn.dst = dst;
    job.traffic = {src, dst, bytes, bytes};
    job.run = [turn, f = c.function](int times) { f(turn, times); };
    return job;
}

void addTurns() {
    for (const TurnCase& c : kMirrorCases)
        for (KvriAxis axis = kvrAxisHorizontal; axis <= (c.inPlace ? kvrAxisBoth : kvrAxisAntiDiagonal); ++axis)
            add(c.name, "axis" + std::to_string(axis), [=](const Geometry& g) { return prepare(c, g, axis); });
    for (const TurnCase& c : kTransposeCases)
        add(c.name, "", [=](const Geometry& g) {
            const Geometry square{{g.size.width, g.size.width}, g.padding, g.text};
            return prepare(c, c.inPlace ? square : g, kvrAxisMainDiagonal);
        });
}

const Rows rows(addTurns);

}  // namespace
}  // namespace bench
