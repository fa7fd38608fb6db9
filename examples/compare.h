// examples/compare.h: what every method makes of one picture.
#pragma once

#include <functional>
#include <string>

#include "image.h"
#include "resizer.h"
#include "table.h"

namespace demo {

struct Comparison {
    Table times;
    Rgb sheet;
};

// Resizes the picture by every method that the sizes allow, on one thread.
Comparison compareMethods(const AnyImage& picture, const std::string& title, KvriSize size, CubicFamily cubic,
                          const std::function<void(double done)>& progress);

}  // namespace demo
