#include "mask.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace demo {

Grey discMask(KvriSize size) {
    Grey mask(size);
    const float centreX = float(size.width) / 3, centreY = float(size.height) * 2 / 5;
    const float radius = 0.9f * std::min(centreX, centreY);
    for (int y = 0; y < size.height; ++y) {
        const float dy = float(y) + 0.5f - centreY;
        for (int x = 0; x < size.width; ++x) {
            const float dx = float(x) + 0.5f - centreX;
            *mask.at(x, y) = Kvr8u(255 * std::clamp(radius - std::sqrt(dx * dx + dy * dy) + 0.5f, 0.0f, 1.0f));
        }
    }
    return mask;
}

Grey brightMask(const Grey& plane, int level) {
    Grey mask(plane.size());
    for (int y = 0; y < plane.size().height; ++y)
        std::transform(plane.at(0, y), plane.at(plane.size().width, y), mask.at(0, y),
                       [level](Kvr8u sample) { return Kvr8u(sample >= level ? 255 : 0); });
    return mask;
}

double setShare(const Grey& mask) {
    int64_t zeros = 0;
    for (int y = 0; y < mask.size().height; ++y)
        zeros += std::count(mask.at(0, y), mask.at(mask.size().width, y), Kvr8u{0});
    return 1 - double(zeros) / (double(mask.size().width) * mask.size().height);
}

int levelReachedBy(const Grey& plane, int percent) {
    std::array<int64_t, 256> count{};
    for (int y = 0; y < plane.size().height; ++y)
        std::for_each(plane.at(0, y), plane.at(plane.size().width, y), [&](Kvr8u sample) { ++count[sample]; });
    const int64_t wanted = int64_t(plane.size().width) * plane.size().height * percent / 100;
    int level = 255;
    for (int64_t reached = count[255]; level > 0 && reached < wanted; reached += count[size_t(level)]) --level;
    return level;
}

}  // namespace demo
