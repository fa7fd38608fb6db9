// examples/label.h: text on grey images.
#pragma once

#include <string>

#include "image.h"

namespace demo {

// Draws one line of UTF-8 text, from 0 (invisible) to 1 (white), its baseline starting at the given point. What is
// not UTF-8, as a file name need not be, is left out.
void drawText(Grey& canvas, KvriPoint baseline, double fontSize, double brightness, const std::string& text);

}  // namespace demo
