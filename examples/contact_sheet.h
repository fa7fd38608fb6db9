// examples/contact_sheet.h: small versions of many pictures on one page.
#pragma once

#include <string>
#include <utility>

#include "image.h"

namespace demo {

struct SheetLayout {
    int columns = 3;
    KvriSize cell{480, 270};  // of a picture, without its caption
};

class ContactSheet {
    SheetLayout layout_;
    Rgb page_;
    int count_ = 0;

    KvriPoint nextPlace();
    void addCaption(KvriPoint place, const std::string& caption, const std::string& details);

public:
    ContactSheet(const std::string& title, int pictures, const SheetLayout& layout = {});

    // Takes the next free place. The caption has two lines.
    void add(const AnyImage& image, const std::string& caption, const std::string& details);
    void addMissing(const std::string& caption, const std::string& details);
    Rgb page() && { return std::move(page_); }
};

}  // namespace demo
