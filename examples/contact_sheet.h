// examples/contact_sheet.h: small versions of many pictures on one page.
#pragma once

#include <string>
#include <utility>

#include "image.h"

namespace demo {

class ContactSheet {
    Rgb page_;
    int count_ = 0;

public:
    ContactSheet(const std::string& title, int pictures);

    // Takes the next free place. The caption has two lines.
    void add(const AnyImage& image, const std::string& caption, const std::string& details);
    Rgb page() && { return std::move(page_); }
};

}  // namespace demo
