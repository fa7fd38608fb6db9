// tests/datamove/runner.h: the contract of moving samples, literally, and the run of one function against it.
#pragma once

#include <gtest/gtest.h>

#include "tests/datamove/call.h"
#include "tests/support/memory.h"

namespace test {

// The images, mask and value of one call of a case.
class Scene {
    const Case& case_;
    std::vector<TestImage> src_, dst_, mask_;
    std::unique_ptr<GuardedPages> valuePages_;

public:
    Call call;

    Scene(const Case& c, KvriSize size, Random& random) : case_(c) {
        if (c.hasSource()) src_ = planes(c.srcPlanes(), c.srcRow(size.width), size.height, random);
        dst_ = planes(c.dstPlanes(), c.dstRow(size.width), size.height, random);
        call.roi = size;
        if (c.hasSource()) call.srcStep = src_[0].step;
        call.dstStep = dst_[0].step;
        for (size_t i = 0; i < src_.size(); ++i) call.src[i] = src_[i].roi;
        for (size_t i = 0; i < dst_.size(); ++i) call.dst[i] = dst_[i].roi;
        if (c.is(kMasked)) addMask(size, random);

        // Values end at an unmapped page, as a three-value constant must not be read as four.
        const size_t bytes = size_t(c.sampleBytes) * (c.is(kByValue) ? 1 : c.from.size());
        valuePages_ = GuardedPages::get(bytes);
        uint8_t* value = valuePages_->end() - bytes;
        random.fill(value, bytes);
        call.value = value;
    }
    Scene(const Scene&) = delete;
    ~Scene() { GuardedPages::put(std::move(valuePages_)); }

    std::vector<std::vector<uint8_t>> memory() const {
        std::vector<std::vector<uint8_t>> all;
        for (const auto& image : dst_) all.push_back(image.memory());
        return all;
    }

    // What memory() must be after the call.
    std::vector<std::vector<uint8_t>> expected() const {
        auto want = memory();
        for (int y = 0; y < call.roi.height; ++y)
            for (int x = 0; x < call.roi.width; ++x)
                if (!case_.is(kMasked) || mask_[0].row(y)[x] != 0) movePixel(want, x, y);
        return want;
    }

    // The destination doubles as source: same image, same step.
    void shareImages() {
        call.src[0] = call.dst[0];
        call.srcStep = call.dstStep;
        src_.clear();
    }

private:
    static std::vector<TestImage> planes(int count, int rowBytes, int rows, Random& random) {
        std::vector<TestImage> images;
        images.emplace_back(rowBytes, rows, random);
        while (int(images.size()) < count) {
            images.emplace_back(rowBytes, rows, images[0].step, random.chance(50) ? Edge::Begin : Edge::End);
            for (int y = 0; y < rows; ++y) random.fill(images.back().row(y), size_t(rowBytes));
        }
        return images;
    }

    // None, all, single pixels, runs; any value counts that is not 0.
    void addMask(KvriSize size, Random& random) {
        mask_.emplace_back(size.width, size.height, random);
        const int kind = random.in(0, 3);
        for (int y = 0; y < size.height; ++y) {
            bool on = random.chance(50);
            for (int x = 0; x < size.width; ++x) {
                if (kind == 2 || random.chance(5)) on = random.chance(50);
                if (kind < 2) on = kind == 1;
                mask_[0].row(y)[x] = on ? uint8_t(random.in(1, 255)) : 0;
            }
        }
        call.mask = mask_[0].roi;
        call.maskStep = mask_[0].step;
    }

    void movePixel(std::vector<std::vector<uint8_t>>& want, int x, int y) const {
        const int s = case_.sampleBytes;
        for (int k = 0; k < int(case_.from.size()); ++k) {
            if (case_.from[k] == kKept) continue;
            const int plane = case_.is(kDstPlanar) ? k : 0;
            const int offset = case_.is(kDstPlanar) ? x * s : (x * case_.dstChannels + k) * s;
            std::memcpy(want[plane].data() + dst_[plane].position(y, offset), sample(k, x, y), size_t(s));
        }
    }

    const uint8_t* sample(int k, int x, int y) const {
        const int s = case_.sampleBytes, channel = case_.from[k];
        if (channel == kValue) return static_cast<const uint8_t*>(call.value) + (case_.hasArray() ? k * s : 0);
        const auto& images = src_.empty() ? dst_ : src_;
        if (case_.is(kSrcPlanar)) return images[channel].row(y) + x * s;
        return images[0].row(y) + (x * case_.srcChannels + channel) * s;
    }
};

inline void expectMoved(const Scene& scene, const Case& c, const std::vector<std::vector<uint8_t>>& want) {
    ASSERT_EQ(c.function(scene.call, 1), kvrStatusOk);
    const auto have = scene.memory();
    for (size_t i = 0; i < want.size(); ++i)
        if (have[i] != want[i]) {
            size_t at = 0;
            while (have[i][at] == want[i][at]) ++at;
            FAIL() << c.name << ": image " << i << " differs at byte " << at << " of " << want[i].size() << ", ROI "
                   << scene.call.roi.width << "x" << scene.call.roi.height << ", steps " << scene.call.srcStep << " "
                   << scene.call.dstStep;
        }
}

// One fault in a call, and the status it leads to. Faults are listed in the order in which they are checked.
struct Fault {
    KvrStatus status;
    std::function<void(Call&)> make;
};

// Every combination of faults gives the status of the first one and writes nothing.
inline void expectFaults(const Case& c, const std::vector<Fault>& faults, Random& random) {
    for (unsigned set = 1; set < 1u << faults.size(); ++set) {
        Scene scene(c, {5, 3}, random);
        int order[4] = {0, 1, 2, 2};
        scene.call.order = order;
        const auto before = scene.memory();
        KvrStatus first = kvrStatusOk;
        for (size_t i = 0; i < faults.size(); ++i)
            if (set >> i & 1) {
                faults[i].make(scene.call);
                if (first == kvrStatusOk) first = faults[i].status;
            }
        ASSERT_EQ(c.function(scene.call, 1), first) << c.name << ", faults " << set;
        ASSERT_EQ(scene.memory(), before) << c.name << ", faults " << set;
    }
}

// Null for each pointer that the case has, then a bad size.
inline std::vector<Fault> pointerFaults(const Case& c) {
    std::vector<Fault> faults;
    auto null = [&](auto make) { faults.push_back({kvrStatusNullPointer, make}); };
    if (c.hasSource())
        for (int i = 0; i < c.srcPlanes(); ++i) null([i](Call& call) { call.src[i] = nullptr; });
    for (int i = 0; i < c.dstPlanes(); ++i) null([i](Call& call) { call.dst[i] = nullptr; });
    if (c.is(kMasked)) null([](Call& call) { call.mask = nullptr; });
    if (c.hasArray()) null([](Call& call) { call.value = nullptr; });
    return faults;
}

inline const std::vector<Fault> kSizeFaults = {
    {kvrStatusBadSize, [](Call& call) { call.roi.width = 0; }},
    {kvrStatusBadSize, [](Call& call) { call.roi.height = -1; }},
};

inline std::vector<Fault> operator+(std::vector<Fault> a, const std::vector<Fault>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

}  // namespace test
