// tests/datamove/swap_test.cpp: SwapChannels, every order.
#include "tests/datamove/cases.h"
#include "tests/datamove/runner.h"

namespace {

using namespace test;

bool has(const Case& c, const char* part) { return c.name.find(part) != std::string::npos; }
// Image pointers, steps, size, order; the others test the size before the steps and the order with the pointers.
bool checksStepsFirst(const Case& c) { return has(c, "_AC4R") || has(c, "IR"); }
int sourceChannels(const Case& c) { return has(c, "_C3") || has(c, "_AC4R") ? 3 : 4; }

void expectOrder(const Case& swap, const std::array<int, 4>& order, unsigned seed, bool inPlace) {
    Case c = swap;
    if (!c.hasSource()) c.srcChannels = c.dstChannels;  // in-place forms
    for (size_t k = 0; k < c.from.size(); ++k) {
        c.from[k] = order[k];
        if (has(c, "_C3C4R") && order[k] >= 3) c.from[k] = order[k] == 3 ? kValue : kKept;
    }
    Random random(seed);
    Scene scene(c, random.size(), random);
    if (inPlace) scene.shareImages();
    auto pages = GuardedPages::get(16);
    int* entries = reinterpret_cast<int*>(pages->end()) - c.from.size();  // a three-entry order is not read as four
    std::copy_n(order.begin(), c.from.size(), entries);
    scene.call.order = entries;
    expectMoved(scene, c, scene.expected());
    GuardedPages::put(std::move(pages));
}

TEST(SwapChannels, EveryOrder) {
    for (const Case& c : kSwapCases) {
        const int entries = int(c.from.size()), choices = has(c, "_C3C4R") ? 5 : sourceChannels(c);
        int orders = 1;
        for (int k = 0; k < entries; ++k) orders *= choices;
        for (int n = 0; n < orders; ++n) {
            std::array<int, 4> order{};
            for (int k = 0, rest = n; k < entries; ++k, rest /= choices) order[k] = rest % choices;
            expectOrder(c, order, unsigned(n), !c.hasSource());
            if (c.hasSource() && c.srcChannels == c.dstChannels) expectOrder(c, order, unsigned(n), true);
            if (HasFatalFailure()) FAIL() << "order " << n;
        }
    }
}

TEST(SwapChannels, ChecksInTheOrderOfEachForm) {
    static int badOrder[4] = {0, 0, 0, 0};
    Random random(1);
    for (const Case& c : kSwapCases) {
        std::vector<Fault> pointers = pointerFaults(c), steps;
        if (!c.hasSource()) pointers.pop_back();  // an in-place form has no array of values
        steps.push_back({kvrStatusBadStep, [](Call& call) { call.dstStep = 0; }});
        if (c.hasSource()) steps.push_back({kvrStatusBadStep, [](Call& call) { call.srcStep = 0; }});
        const std::vector<Fault> order = {{kvrStatusNullPointer, [](Call& call) { call.order = nullptr; }}};
        auto entries = [&](int bad) {
            return std::vector<Fault>{{kvrStatusBadChannelOrder, [bad](Call& call) {
                if (call.order == nullptr) return;
                badOrder[2] = bad;
                call.order = badOrder;
            }}};
        };
        std::vector<int> bad = {-1, INT32_MIN};
        if (!has(c, "_C3C4R")) bad.push_back(sourceChannels(c));
        for (int entry : bad) {
            if (checksStepsFirst(c)) expectFaults(c, pointers + steps + kSizeFaults + order + entries(entry), random);
            else expectFaults(c, pointers + order + kSizeFaults + steps + entries(entry), random);
            if (HasFatalFailure()) return;
        }
    }
}

}  // namespace
