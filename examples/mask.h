// examples/mask.h: masks, one sample per pixel.
#pragma once

#include "image.h"

namespace demo {

// A disc around the point where photographers like to put their subject: a third from the left, two fifths from the top.
// Its edge runs from 255 to 0 over one pixel.
Grey discMask(KvriSize size);

// 255 where a sample is at least `level`, 0 elsewhere.
Grey brightMask(const Grey& plane, int level);

// The part of the mask that is not zero, 0 to 1.
double setShare(const Grey& mask);

// The highest level that `percent` of the samples reach.
int levelReachedBy(const Grey& plane, int percent);

}  // namespace demo
