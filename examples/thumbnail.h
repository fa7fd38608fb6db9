// examples/thumbnail.h: small versions of large pictures.
#pragma once

#include <algorithm>

#include "image.h"

namespace demo {

// Every n-th pixel of every n-th row, so that the result fits into the box; a picture that fits is copied.
template <class Picture>
Picture thumbnail(const Picture& image, KvriSize box) {
    const auto parts = [](int length, int count) { return (length + count - 1) / count; };
    const int n = std::max(parts(image.size().width, box.width), parts(image.size().height, box.height));
    Picture small({parts(image.size().width, n), parts(image.size().height, n)});
    // A row seen as a column of single pixels: the step that skips pixels makes one call copy every n-th of them.
    for (int y = 0; y < small.size().height; ++y)
        kCopy<typename Picture::Sample, Picture::kChannels>(image.at(0, y * n), n * Picture::kPixelBytes, small.at(0, y),
                                                            Picture::kPixelBytes, KvriSize{1, small.size().width});
    return small;
}

}  // namespace demo
