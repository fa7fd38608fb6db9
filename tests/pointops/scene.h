// tests/pointops/scene.h: one call of a pointwise function, run against its contract, and against its errors.
#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "tests/pointops/pointwise.h"
#include "tests/support/memory.h"

namespace test::pointwise {

inline double number(const std::string& type, const uint8_t* p) {
    const auto as = [&](auto sample) {
        std::memcpy(&sample, p, sizeof sample);
        return double(sample);
    };
    if (type == "8u") return as(uint8_t());
    if (type == "8s") return as(int8_t());
    if (type == "16u") return as(uint16_t());
    if (type == "16s") return as(int16_t());
    return type == "32s" ? as(int32_t()) : as(float());
}

// Few different samples, so that equal ones meet: limits of the type, their neighbours, others.
class Pool {
    std::vector<uint32_t> bits_;

public:
    Pool(const Case& c, Random& random) {
        const uint32_t integers[] = {0, 1, 0x7F, 0x80, 0xFF, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFF, 0x80000000};
        const uint32_t floats[] = {0,          0x80000000, 0x7FC12345, 0x7F800001, 0xFFC00000, 0x7F800000,
                                   0xFF800000, 0x3F800000, 0x3F800001, 0xBF800000, 1,          0x807FFFFF};
        while (bits_.size() < 6) {
            if (random.chance(50)) bits_.push_back(uint32_t(random.bits()));
            else if (c.isFloat()) bits_.push_back(floats[random.in(0, 11)]);
            else bits_.push_back(integers[random.in(0, 9)] + uint32_t(random.in(-1, 1)));
        }
    }
    uint32_t draw(Random& random) const { return bits_[size_t(random.in(0, 5))]; }
    void fill(uint8_t* p, ptrdiff_t bytes, int sampleBytes, Random& random) const {
        for (ptrdiff_t i = 0; i + sampleBytes <= bytes; i += sampleBytes) {
            const uint32_t sample = draw(random);
            std::memcpy(p + i, &sample, size_t(sampleBytes));
        }
    }
};

// Images, and parameters that end at an unmapped page, as three must not be read as four.
class Scene {
    std::vector<TestImage> src_;
    TestImage dst_;
    std::vector<std::unique_ptr<GuardedPages>> valuePages_;

public:
    const Case& c;
    Call call;

    Scene(const Case& c, KvriSize size, Random& random)
        : dst_(c.resultBytes() * size.width, size.height, random, false), c(c) {
        const Pool pool(c, random);
        auto fill = [&](TestImage& image) {
            for (int y = 0; y < size.height; ++y) pool.fill(image.row(y), image.rowBytes, c.sampleBytes, random);
        };
        if (!c.mask) fill(dst_);
        for (int i = 0; i < c.sources(); ++i) {
            fill(src_.emplace_back(c.pixelBytes() * size.width, size.height, random, false));
            call.src[size_t(i)] = src_.back().roi;
            call.srcStep[size_t(i)] = src_.back().step;
        }
        call.dst = dst_.roi;
        call.dstStep = dst_.step;
        call.roi = size;
        size_t next = 0;
        for (Role role : c.function.roles)
            if (role == Role::Array || role == Role::Value) {
                const bool counts = c.is("Shift");
                const int sampleBytes = counts ? 4 : c.sampleBytes, n = role == Role::Array ? c.colours : 1;
                auto pages = GuardedPages::get(64);
                uint8_t* p = pages->end() - n * sampleBytes;
                if (counts) fillCounts(p, n, random);
                else pool.fill(p, n * sampleBytes, sampleBytes, random);
                call.value[next++] = p;
                valuePages_.push_back(std::move(pages));
            }
    }
    Scene(const Scene&) = delete;
    ~Scene() {
        for (auto& pages : valuePages_) GuardedPages::put(std::move(pages));
    }

    // Operand i of the operation: a source, or in place the destination.
    const uint8_t* sample(int i, int x, int y, int k) const {
        const TestImage& image = i < int(src_.size()) ? src_[size_t(i)] : dst_;
        return image.row(y) + (x * c.channels + k) * c.sampleBytes;
    }
    // Parameter i for channel k.
    const uint8_t* value(int i, int k) const {
        const int sampleBytes = c.is("Shift") ? 4 : c.sampleBytes;
        return static_cast<const uint8_t*>(call.value[size_t(i)]) + k * sampleBytes;
    }

    // contract(scene, x, y, result) writes a pixel's result over what was there.
    template <class Contract>
    void expectResult(Contract contract, KvrStatus status = kvrStatusOk) {
        auto want = dst_.memory();
        if (status == kvrStatusOk)
            for (int y = 0; y < call.roi.height; ++y)
                for (int x = 0; x < call.roi.width; ++x)
                    contract(*this, x, y, want.data() + dst_.position(y, x * c.resultBytes()));
        ASSERT_EQ(c.function.call(call, 1), status) << c.name;
        const auto have = dst_.memory();
        if (have == want) return;
        size_t at = 0;
        while (have[at] == want[at]) ++at;
        FAIL() << c.name << ": byte " << at << " of " << want.size() << " is " << int(have[at]) << " instead of "
               << int(want[at]) << ", ROI " << call.roi.width << "x" << call.roi.height << ", step " << call.dstStep
               << ", code " << call.code;
    }

private:
    static void fillCounts(uint8_t* p, int n, Random& random) {
        const uint32_t beyond[] = {32, 33, 63, 64, 255, 256, 0x10000, 0x7FFFFFFF, 0x80000001, 0xFFFFFFFF};
        const bool alike = random.chance(40);
        uint32_t count = 0;
        for (int i = 0; i < n; ++i) {
            if (i == 0 || !alike) count = random.chance(80) ? uint32_t(random.in(0, random.chance(50) ? 8 : 33)) : beyond[random.in(0, 9)];
            std::memcpy(p + 4 * i, &count, 4);
        }
    }
};

// One fault in a call, and the status it leads to. Faults are listed in the order in which they are checked.
struct Fault {
    KvrStatus status;
    std::function<void(Call&)> make;
};
using Faults = std::vector<Fault>;

inline Faults operator+(Faults a, const Faults& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline Faults nullPointers(const Case& c) {
    Faults faults{{kvrStatusNullPointer, [](Call& call) { call.dst = nullptr; }}};
    for (size_t i = 0; i < size_t(c.sources()); ++i)
        faults.push_back({kvrStatusNullPointer, [i](Call& call) { call.src[i] = nullptr; }});
    size_t next = 0;
    for (Role role : c.function.roles) {
        if (role == Role::Array) faults.push_back({kvrStatusNullPointer, [next](Call& call) { call.value[next] = nullptr; }});
        next += role == Role::Array || role == Role::Value;
    }
    return faults;
}

inline Faults badSteps(const Case& c) {
    Faults faults{{kvrStatusBadStep, [](Call& call) { call.dstStep = 0; }}};
    for (size_t i = 0; i < size_t(c.sources()); ++i)
        faults.push_back({kvrStatusBadStep, [i](Call& call) { call.srcStep[i] = -call.srcStep[i]; }});
    return faults;
}

inline Faults badSizes() {
    return {{kvrStatusBadSize, [](Call& call) { call.roi.width = 0; }}, {kvrStatusBadSize, [](Call& call) { call.roi.height = -1; }}};
}

// Each fault alone, then several at once: the status is that of the first one, and nothing is written.
inline void expectFaults(const Case& c, const Faults& faults, Random& random) {
    for (int round = 0; round < 60; ++round) {
        Scene scene(c, {5, 3}, random);
        scene.call.code = kvrCmpGreater;
        KvrStatus first = kvrStatusOk;
        for (size_t i = 0; i < faults.size(); ++i)
            if (round < int(faults.size()) ? round == int(i) : random.chance(35)) {
                faults[i].make(scene.call);
                if (first == kvrStatusOk) first = faults[i].status;
            }
        if (first == kvrStatusOk) continue;
        scene.expectResult([](auto&&...) {}, first);
        if (::testing::Test::HasFatalFailure()) return;
    }
}

template <class Contract, class Prepare>
void expectContract(const std::vector<Case>& cases, unsigned rounds, Prepare prepare, Contract contract) {
    for (const Case& c : cases)
        for (unsigned seed = 0; seed < rounds; ++seed) {
            Random random(seed);
            Scene scene(c, random.size(), random);
            const KvrStatus status = prepare(scene, random);
            scene.expectResult(contract, status);
            if (::testing::Test::HasFatalFailure()) FAIL() << "seed " << seed;
        }
}

}  // namespace test::pointwise
