// tests/pointops/logic_test.cpp: And, Or, Xor, Not and shifts, all types and layouts, against the literal contract.
#include "tests/pointops/scene.h"

namespace {

using namespace test;
using namespace test::pointwise;

int64_t shifted(const Case& c, int64_t v, uint32_t count) {
    const int bits = 8 * c.sampleBytes;
    if (c.is("LShift")) return count < uint32_t(bits) ? v << count : 0;
    return v >> std::min(count, 63u);  // of a negative v the sign, of others 0
}

// Integers fit into the double exactly.
void contract(const Scene& scene, int x, int y, uint8_t* result) {
    const Case& c = scene.c;
    const bool shifts = c.is("Shift"), constant = c.operation.back() == 'C';
    for (int k = 0; k < c.colours; ++k) {
        const auto operand = [&](const uint8_t* p) { return int64_t(number(c.type, p)); };
        const int64_t a = operand(scene.sample(0, x, y, k));
        int64_t r = ~a;
        if (shifts) {
            r = shifted(c, a, uint32_t(int64_t(number("32s", scene.value(0, k)))));
        } else if (c.operation != "Not") {
            const int64_t b = operand(constant ? scene.value(0, k) : scene.sample(1, x, y, k));
            r = c.is("And") ? a & b : c.is("Xor") ? a ^ b : a | b;
        }
        std::memcpy(result + k * c.sampleBytes, &r, size_t(c.sampleBytes));
    }
}

TEST(Logic, MatchesTheContract) {
    expectContract(kLogic, 250, [](Scene&, Random&) { return kvrStatusOk; }, contract);
}

TEST(Logic, ChecksPointersThenStepsThenSize) {
    Random random(1);
    for (const Case& c : kLogic) {
        expectFaults(c, nullPointers(c) + badSteps(c) + badSizes(), random);
        if (HasFatalFailure()) return;
    }
}

}  // namespace
