#include "steps.h"

#include <array>
#include <cmath>
#include <cstring>

#include "convert.h"
#include "mask.h"
#include "thumbnail.h"

namespace demo {
namespace {

void requireIdentical(const Rgb& a, const Rgb& b, const std::string& what) {
    for (int y = 0; y < a.size().height; ++y)
        if (std::memcmp(a.at(0, y), b.at(0, y), size_t(a.size().width) * Rgb::kPixelBytes) != 0)
            throw LibraryError(what + " changed row " + std::to_string(y) + " of the photograph");
}

AnyImage copy(const Rgb& photo, Bench& bench) {
    Rgb result(photo.size());
    bench.time("copy", photo.size(), 6, KVRI_CALL(kvriCopy_8u_C3R), photo.data(), photo.step(), result.data(),
               result.step(), photo.size());
    return result;
}

Grey sideBySide(const std::array<Grey, 3>& planes) {
    const KvriSize size = planes[0].size();
    const auto part = [&](const Grey& plane) { return thumbnail(plane, {(size.width + 2) / 3, size.height}); };
    const std::array<Grey, 3> parts{part(planes[0]), part(planes[1]), part(planes[2])};
    const KvriSize partSize = parts[0].size();
    Grey result({3 * partSize.width, partSize.height});
    for (int i = 0; i < 3; ++i)
        KVRI_CALL(kvriCopy_8u_C1R)(parts[size_t(i)].data(), parts[size_t(i)].step(), result.at(i * partSize.width, 0),
                                   result.step(), partSize);
    return result;
}

AnyImage planes(const Rgb& photo, Bench& bench) {
    std::array<Grey, 3> images{Grey(photo.size()), Grey(photo.size()), Grey(photo.size())};
    Kvr8u* const plane[3] = {images[0].data(), images[1].data(), images[2].data()};
    const int planeStep = images[0].step();
    bench.time("split into planes", photo.size(), 6, KVRI_CALL(kvriCopy_8u_C3P3R), photo.data(), photo.step(), plane,
               planeStep, photo.size());

    Rgb joined(photo.size());
    bench.time("join planes", photo.size(), 6, KVRI_CALL(kvriCopy_8u_P3C3R), plane, planeStep, joined.data(),
               joined.step(), photo.size());
    requireIdentical(photo, joined, "splitting into planes and joining them");
    return sideBySide(images);
}

// The third of the picture that shows channel c alone: the others become black there.
void leaveOneChannel(const Rgb& photo, Rgb& result, int c) {
    const int left = int(int64_t(photo.size().width) * c / 3), right = int(int64_t(photo.size().width) * (c + 1) / 3);
    const KvriSize third{right - left, photo.size().height};
    if (third.width == 0) return;
    constexpr Kvr8u kBlack[3] = {};
    KVRI_CALL(kvriSet_8u_C3R)(kBlack, result.at(left, 0), result.step(), third);
    KVRI_CALL(kvriCopy_8u_C3CR)(photo.at(left, 0, c), photo.step(), result.at(left, 0, c), result.step(), third);
}

AnyImage bands(const Rgb& photo, Bench& bench) {
    Grey red(photo.size());
    bench.time("one channel out", photo.size(), 4, KVRI_CALL(kvriCopy_8u_C3C1R), photo.data(), photo.step(), red.data(),
               red.step(), photo.size());
    Rgb result(photo.size());
    constexpr Kvr8u kBlack[3] = {};
    bench.time("fill", photo.size(), 3, KVRI_CALL(kvriSet_8u_C3R), kBlack, result.data(), result.step(), photo.size());
    bench.time("one channel in", photo.size(), 4, KVRI_CALL(kvriCopy_8u_C1C3R), red.data(), red.step(), result.data(),
               result.step(), photo.size());
    for (int c : {1, 2}) leaveOneChannel(photo, result, c);
    return result;
}

AnyImage swapped(const Rgb& photo, Bench& bench) {
    Rgb result(photo.size());
    constexpr int kBgr[3] = {2, 1, 0};
    bench.time("swap red and blue", photo.size(), 6, KVRI_CALL(kvriSwapChannels_8u_C3R), photo.data(), photo.step(),
               result.data(), result.step(), photo.size(), kBgr);
    return result;
}

AnyImage grey(const Rgb& photo, Bench& bench) {
    const Grey green = channelOf(photo, 1);
    Rgb result(photo.size());
    bench.time("grey to RGB", photo.size(), 4, KVRI_CALL(kvriDup_8u_C1C3R), green.data(), green.step(), result.data(),
               result.step(), photo.size());
    return result;
}

AnyImage cutOut(const Rgb& photo, Bench& bench) {
    Rgba result(photo.size());
    constexpr int kRgbAndValue[4] = {0, 1, 2, 3};
    constexpr Kvr8u kOpaque = 255;
    bench.time("add alpha", photo.size(), 7, KVRI_CALL(kvriSwapChannels_8u_C3C4R), photo.data(), photo.step(),
               result.data(), result.step(), photo.size(), kRgbAndValue, kOpaque);
    const Grey disc = discMask(photo.size());
    bench.time("replace alpha", photo.size(), 5, KVRI_CALL(kvriCopy_8u_C1C4R), disc.data(), disc.step(),
               result.at(0, 0, 3), result.step(), photo.size());

    Rgb colour(photo.size());
    bench.time("drop alpha", photo.size(), 7, KVRI_CALL(kvriCopy_8u_AC4C3R), result.data(), result.step(), colour.data(),
               colour.step(), photo.size());
    requireIdentical(photo, colour, "adding alpha and dropping it");
    return result;
}

std::string percentSet(const Grey& mask) { return std::to_string(std::lround(100 * setShare(mask))) + " % set"; }

AnyImage poster(const Rgb& photo, Bench& bench) {
    struct Tone {
        int percent;  // of the pixels, the brightest
        Kvr8u colour[3];
    };
    constexpr Kvr8u kNight[3] = {24, 32, 72};
    constexpr Tone kTones[] = {{75, {96, 44, 130}}, {50, {226, 72, 88}}, {25, {250, 178, 60}}, {8, {255, 244, 210}}};

    const Grey green = channelOf(photo, 1);
    Rgb result(photo.size());
    KVRI_CALL(kvriSet_8u_C3R)(kNight, result.data(), result.step(), photo.size());
    for (const Tone& tone : kTones) {
        const Grey mask = brightMask(green, levelReachedBy(green, tone.percent));
        bench.time("fill through a mask, " + percentSet(mask), photo.size(), 1 + 3 * setShare(mask),
                   KVRI_CALL(kvriSet_8u_C3MR), tone.colour, result.data(), result.step(), photo.size(), mask.data(),
                   mask.step());
    }
    return result;
}

AnyImage splash(const Rgb& photo, Bench& bench) {
    Rgb result = toRgb(channelOf(photo, 1));
    const Grey disc = discMask(photo.size());
    bench.time("copy through a mask, " + percentSet(disc), photo.size(), 1 + 6 * setShare(disc), KVRI_CALL(kvriCopy_8u_C3MR), photo.data(), photo.step(),
               result.data(), result.step(), photo.size(), disc.data(), disc.step());
    return result;
}

AnyImage reflection(const Rgb& photo, Bench& bench) {
    const int below = photo.size().height / 2, above = photo.size().height - below;
    Rgb result(photo.size());
    KVRI_CALL(kvriCopy_8u_C3R)(photo.data(), photo.step(), result.data(), result.step(),
                               KvriSize{photo.size().width, above});
    if (below == 0) return result;
    const KvriSize mirrored{photo.size().width, below};
    bench.time("copy upside down", mirrored, 6, KVRI_CALL(kvriCopy_8u_C3R), photo.at(0, above - 1), -photo.step(),
               result.at(0, above), result.step(), mirrored);
    return result;
}

constexpr Step kSteps[] = {
    {"copy", "Copied into padded rows", "kvriCopy_8u_C3R", copy},
    {"planes", "Red, green and blue planes side by side", "kvriCopy_8u_C3P3R, kvriCopy_8u_P3C3R", planes},
    {"bands", "Only red, only green, only blue", "kvriCopy_8u_C3C1R, _C1C3R, _C3CR", bands},
    {"swapped", "Red and blue swapped", "kvriSwapChannels_8u_C3R", swapped},
    {"grey", "The green plane as grey", "kvriDup_8u_C1C3R", grey},
    {"cut-out", "Alpha added and cut to a disc", "kvriSwapChannels_8u_C3C4R, kvriCopy_8u_C1C4R", cutOut},
    {"poster", "Tones filled through masks", "kvriSet_8u_C3R, kvriSet_8u_C3MR", poster},
    {"splash", "Colour copied onto grey through a mask", "kvriCopy_8u_C3MR", splash},
    {"reflection", "The upper half reflected", "kvriCopy_8u_C3R with a negative step", reflection},
};

}  // namespace

std::span<const Step> channelSteps() { return kSteps; }

std::vector<Step> steps() {
    std::vector<Step> all;
    for (const auto& group : {channelSteps(), shapeSteps(), pointSteps()}) all.insert(all.end(), group.begin(), group.end());
    return all;
}

}  // namespace demo
