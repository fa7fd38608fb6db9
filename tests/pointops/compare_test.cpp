// tests/pointops/compare_test.cpp: Compare and CompareEqualEps, all types and layouts, against the literal contract.
#include "tests/pointops/scene.h"

namespace {

using namespace test;
using namespace test::pointwise;

bool holds(const Scene& scene, int x, int y, int k) {
    const Case& c = scene.c;
    const bool constant = c.operation.back() == 'C';
    const double a = number(c.type, scene.sample(0, x, y, k));
    const double b = number(c.type, constant ? scene.value(0, k) : scene.sample(1, x, y, k));
    if (c.is("Eps")) return std::fabs(float(a) - float(b)) <= float(number("32f", scene.value(constant, 0)));
    switch (scene.call.code) {
        case kvrCmpLess: return a < b;
        case kvrCmpLessEq: return a <= b;
        case kvrCmpEq: return a == b;
        case kvrCmpGreaterEq: return a >= b;
        default: return a > b;
    }
}

void contract(const Scene& scene, int x, int y, uint8_t* result) {
    if (!scene.c.is("Eps") && (scene.call.code < 0 || scene.call.code > 4)) return;
    *result = 255;
    for (int k = 0; k < scene.c.colours; ++k)
        if (!holds(scene, x, y, k)) *result = 0;
}

KvrStatus prepare(Scene& scene, Random& random) {
    const int unknown[] = {-1, 5, 9, INT32_MIN, INT32_MAX};
    scene.call.code = random.chance(95) ? random.in(0, 4) : unknown[random.in(0, 4)];
    const bool negative = scene.c.is("Eps") && number("32f", scene.value(scene.c.operation.back() == 'C', 0)) < 0;
    return negative ? kvrStatusBadEps : kvrStatusOk;
}

TEST(Compare, MatchesTheContract) { expectContract(kCompare, 400, prepare, contract); }

TEST(Compare, ChecksPointersThenStepsThenSizeThenEps) {
    Random random(1);
    static const float eps = -1e-30f;
    for (const Case& c : kCompare) {
        Faults faults = nullPointers(c) + badSteps(c) + badSizes();
        const size_t epsAt = c.operation.back() == 'C';
        if (c.is("Eps")) faults = faults + Faults{{kvrStatusBadEps, [=](Call& call) { call.value[epsAt] = &eps; }}};
        expectFaults(c, faults, random);
        if (HasFatalFailure()) return;
    }
}

}  // namespace
