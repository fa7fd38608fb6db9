// examples/steps_points.cpp: arithmetic, thresholds, comparison and lookup tables.
#include <vector>

#include "convert.h"
#include "second_photo.h"
#include "steps.h"

namespace demo {
namespace {

AnyImage blended(const Rgb& photo, Bench& bench) {
    const Rgb second = secondPhoto(photo);
    Rgb result(photo.size());
    bench.time("blend", photo.size(), 9, KVRI_CALL(kvriAdd_8u_C3RSfs), photo.data(), photo.step(), second.data(), second.step(),
               result.data(), result.step(), photo.size(), 1);
    return result;
}

AnyImage brightened(const Rgb& photo, Bench& bench) {
    constexpr Kvr8u kThreeHalves[3] = {3, 3, 3};
    Rgb result(photo.size());
    bench.time("brighten by 3/2", photo.size(), 6, KVRI_CALL(kvriMulC_8u_C3RSfs), photo.data(), photo.step(), kThreeHalves,
               result.data(), result.step(), photo.size(), 1);
    return result;
}

// Between each pixel and the one to the lower right, four times enlarged: contours.
AnyImage difference(const Rgb& photo, Bench& bench) {
    constexpr int kTimesFour = -2;
    Rgb result(photo.size());
    constexpr Kvr8u kBlack[3] = {};
    KVRI_CALL(kvriSet_8u_C3R)(kBlack, result.data(), result.step(), photo.size());
    const KvriSize size{photo.size().width - 1, photo.size().height - 1};
    if (size.width < 1 || size.height < 1) return result;
    Rgb other(photo.size());
    bench.time("difference", size, 9, KVRI_CALL(kvriSub_8u_C3RSfs), photo.data(), photo.step(), photo.at(1, 1), photo.step(),
               result.data(), result.step(), size, kTimesFour);
    KVRI_CALL(kvriSub_8u_C3RSfs)(photo.at(1, 1), photo.step(), photo.data(), photo.step(), other.data(), other.step(), size, kTimesFour);
    bench.time("or, in place", size, 9, KVRI_CALL(kvriOr_8u_C3IR), other.data(), other.step(), result.data(), result.step(), size);
    return result;
}

AnyImage otsu(const Rgb& photo, Bench& bench) {
    const Grey green = channelOf(photo, 1);
    Kvr8u threshold = 0;
    bench.time("Otsu's threshold", green.size(), 1, KVRI_CALL(kvriComputeThreshold_Otsu_8u_C1R), green.data(), green.step(), green.size(), &threshold);
    Grey result(green.size());
    bench.time("threshold to two values", green.size(), 2, KVRI_CALL(kvriThreshold_LTValGTVal_8u_C1R), green.data(), green.step(),
               result.data(), result.step(), green.size(), threshold, Kvr8u{0}, threshold, Kvr8u{255});
    return result;
}

constexpr KvriSize kMask{51, 51};
constexpr float kBelowMean = 6;

AnyImage adaptiveBox(const Rgb& photo, Bench& bench) {
    const Grey green = channelOf(photo, 1);
    Grey result(green.size());
    int bytes = 0;
    KVRI_CALL(kvriThresholdAdaptiveBoxGetBufferSize)(green.size(), kMask, kvrDataType8u, 1, &bytes);
    std::vector<Kvr8u> buffer(static_cast<size_t>(bytes));
    bench.time("adaptive threshold, box", green.size(), 2, KVRI_CALL(kvriThresholdAdaptiveBox_8u_C1R), green.data(), green.step(),
               result.data(), result.step(), green.size(), kMask, kBelowMean, Kvr8u{255}, Kvr8u{0}, kvrBorderRepl, Kvr8u{0}, buffer.data());
    return result;
}

AnyImage adaptiveGauss(const Rgb& photo, Bench& bench) {
    const Grey green = channelOf(photo, 1);
    Grey result(green.size());
    int specBytes = 0, bytes = 0;
    KVRI_CALL(kvriThresholdAdaptiveGaussGetBufferSize)(green.size(), kMask, kvrDataType8u, 1, &specBytes, &bytes);
    std::vector<Kvr8u> memory(static_cast<size_t>(specBytes)), buffer(static_cast<size_t>(bytes));
    auto* spec = reinterpret_cast<KvriThresholdAdaptiveSpec*>(memory.data());
    KVRI_CALL(kvriThresholdAdaptiveGaussInit)(green.size(), kMask, kvrDataType8u, 1, 0.0f, spec);
    bench.time("adaptive threshold, Gauss", green.size(), 2, KVRI_CALL(kvriThresholdAdaptiveGauss_8u_C1R), green.data(), green.step(),
               result.data(), result.step(), green.size(), kMask, kBelowMean, Kvr8u{255}, Kvr8u{0}, kvrBorderRepl, Kvr8u{0}, spec, buffer.data());
    return result;
}

// One table for all three channels.
template <size_t n>
AnyImage throughTable(const Rgb& photo, Bench& bench, const std::string& name, auto call, const Kvr32s (&levels)[n], const Kvr32s (&values)[n]) {
    const Kvr32s* const allLevels[3] = {levels, levels, levels};
    const Kvr32s* const allValues[3] = {values, values, values};
    const int counts[3] = {int(n), int(n), int(n)};
    Rgb result(photo.size());
    bench.time(name, photo.size(), 6, call, photo.data(), photo.step(), result.data(), result.step(), photo.size(), allValues, allLevels, counts);
    return result;
}

AnyImage posterised(const Rgb& photo, Bench& bench) {
    static constexpr Kvr32s kLevels[] = {0, 64, 128, 192, 256}, kValues[] = {24, 96, 168, 240, 240};
    return throughTable(photo, bench, "posterise", KVRI_CALL(kvriLUT_8u_C3R), kLevels, kValues);
}

// Dark tones darker and bright ones brighter, along a smooth curve.
AnyImage contrast(const Rgb& photo, Bench& bench) {
    static constexpr Kvr32s kLevels[] = {0, 64, 192, 256}, kValues[] = {0, 32, 224, 256};
    return throughTable(photo, bench, "contrast curve", KVRI_CALL(kvriLUT_Cubic_8u_C3R), kLevels, kValues);
}

AnyImage highlights(const Rgb& photo, Bench& bench) {
    constexpr Kvr8u kBright = 200, kGold[3] = {255, 208, 64};
    const Grey green = channelOf(photo, 1);
    Grey mask(green.size());
    bench.time("compare with a value", green.size(), 2, KVRI_CALL(kvriCompareC_8u_C1R), green.data(), green.step(), kBright, mask.data(),
               mask.step(), green.size(), kvrCmpGreaterEq);
    Rgb result = toRgb(green);
    KVRI_CALL(kvriSet_8u_C3MR)(kGold, result.data(), result.step(), result.size(), mask.data(), mask.step());
    return result;
}

constexpr Step kSteps[] = {
    {"blend", kBlendCaption, "kvriAdd_8u_C3RSfs", blended},
    {"brightened", "Brightened by 3/2", "kvriMulC_8u_C3RSfs", brightened},
    {"difference", "Difference from the diagonal neighbour, times 4", "kvriSub_8u_C3RSfs, kvriOr_8u_C3IR", difference},
    {"otsu", "Otsu's threshold", "kvriComputeThreshold_Otsu_8u_C1R", otsu},
    {"adaptive-box", "Above the mean of 51 x 51 pixels", "kvriThresholdAdaptiveBox_8u_C1R", adaptiveBox},
    {"adaptive-gauss", "Above a Gaussian mean", "kvriThresholdAdaptiveGauss_8u_C1R", adaptiveGauss},
    {"posterised", "Four tones per channel", "kvriLUT_8u_C3R", posterised},
    {"contrast", "A contrast curve", "kvriLUT_Cubic_8u_C3R", contrast},
    {"highlights", "Gold where a comparison holds", "kvriCompareC_8u_C1R, kvriSet_8u_C3MR", highlights},
};

}  // namespace

std::span<const Step> pointSteps() { return kSteps; }

}  // namespace demo
