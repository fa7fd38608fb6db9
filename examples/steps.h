// examples/steps.h: the pictures that the demo makes of a photograph.
#pragma once

#include <span>
#include <vector>

#include "bench.h"
#include "image.h"

namespace demo {

struct Step {
    const char* name;  // of the file
    const char* caption;
    const char* functions;
    AnyImage (*make)(const Rgb& photo, Bench& bench);
};

std::span<const Step> channelSteps();
std::span<const Step> shapeSteps();
std::span<const Step> pointSteps();

// All of them, in the order of the contact sheet.
std::vector<Step> steps();

}  // namespace demo
