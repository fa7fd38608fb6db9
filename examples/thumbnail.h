// examples/thumbnail.h: small versions of large pictures.
#pragma once

#include <algorithm>

#include "image.h"
#include "resizer.h"

namespace demo {

// Smaller by a whole number, so that the result fits into the box; a picture that fits is copied.
template <class Picture>
Picture thumbnail(const Picture& image, KvriSize box) {
    const auto parts = [](int length, int count) { return (length + count - 1) / count; };
    const int n = std::max(parts(image.size().width, box.width), parts(image.size().height, box.height));
    Picture small({parts(image.size().width, n), parts(image.size().height, n)});
    resizeWhole(Resizer(methodOf("super"), {}, {Picture::kChannels, 8}, image.size(), small.size()), image, small);
    return small;
}

}  // namespace demo
