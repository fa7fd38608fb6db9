// examples/second_photo.h: another photograph, to be mixed with the first.
#pragma once

#include "image.h"

namespace demo {

constexpr const char* kBlendCaption = "Blended with a photograph by Aitzol Berasategi, CC-BY-4.0";

// A photograph of the package that the default one comes from, cut and resized to the size of `photo`.
Rgb secondPhoto(const Rgb& photo);

}  // namespace demo
