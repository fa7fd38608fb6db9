// examples/convert.h: changes from one kind of image to another.
#pragma once

#include "image.h"

namespace demo {

Grey channelOf(const Rgb& image, int channel);
Rgb toRgb(const Grey& image);
Rgb withoutAlpha(const Rgba& image);

// The image before a chequered ground; a pixel shows unless its alpha is 0.
Rgb overChequers(const Rgba& image);

}  // namespace demo
