#include "convert.h"

#include <algorithm>

namespace demo {
namespace {

Rgb chequers(KvriSize size) {
    constexpr int kField = 12;
    constexpr Kvr8u kLight[3] = {204, 204, 204}, kDark[3] = {153, 153, 153};
    Rgb image(size);
    for (int y = 0; y < size.height; y += kField)
        for (int x = 0; x < size.width; x += kField)
            KVRI_CALL(kvriSet_8u_C3R)((x + y) / kField % 2 == 0 ? kLight : kDark, image.at(x, y), image.step(),
                                      KvriSize{std::min(kField, size.width - x), std::min(kField, size.height - y)});
    return image;
}

}  // namespace

Grey channelOf(const Rgb& image, int channel) {
    Grey plane(image.size());
    KVRI_CALL(kvriCopy_8u_C3C1R)(image.at(0, 0, channel), image.step(), plane.data(), plane.step(), image.size());
    return plane;
}

Rgb toRgb(const Grey& image) {
    Rgb colour(image.size());
    KVRI_CALL(kvriDup_8u_C1C3R)(image.data(), image.step(), colour.data(), colour.step(), image.size());
    return colour;
}

Rgb withoutAlpha(const Rgba& image) {
    Rgb colour(image.size());
    KVRI_CALL(kvriCopy_8u_AC4C3R)(image.data(), image.step(), colour.data(), colour.step(), image.size());
    return colour;
}

Rgb overChequers(const Rgba& image) {
    Rgb result = chequers(image.size());
    const Rgb colour = withoutAlpha(image);
    Grey alpha(image.size());
    KVRI_CALL(kvriCopy_8u_C4C1R)(image.at(0, 0, 3), image.step(), alpha.data(), alpha.step(), image.size());
    KVRI_CALL(kvriCopy_8u_C3MR)(colour.data(), colour.step(), result.data(), result.step(), image.size(), alpha.data(),
                                alpha.step());
    return result;
}

}  // namespace demo
