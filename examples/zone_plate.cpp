#include "zone_plate.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace demo {

void ZonePlate::read(void* row) {
    const auto [width, height] = info_.size;
    const double finestAt = std::min(width, height) / 2.0, centreX = (width - 1) / 2.0, dy = next_++ - (height - 1) / 2.0;
    auto* sample = static_cast<Kvr8u*>(row);
    for (int x = 0; x < width; ++x) {
        const double dx = x - centreX;
        sample[x] = Kvr8u(std::lround(127.5 + 127.5 * std::cos(std::numbers::pi * (dx * dx + dy * dy) / (2 * finestAt))));
    }
}

}  // namespace demo
