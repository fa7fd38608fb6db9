#include "contact_sheet.h"

#include "convert.h"
#include "label.h"
#include "thumbnail.h"

namespace demo {
namespace {

constexpr Kvr8u kPaper = 28;
constexpr int kMargin = 20, kTitleHeight = 44, kCaptionHeight = 48;

KvriSize pageSize(int pictures, const SheetLayout& layout) {
    const int rows = (pictures + layout.columns - 1) / layout.columns;
    return {kMargin + layout.columns * (layout.cell.width + kMargin),
            kMargin + kTitleHeight + rows * (layout.cell.height + kCaptionHeight + kMargin)};
}

Grey paper(KvriSize size) {
    Grey image(size);
    KVRI_CALL(kvriSet_8u_C1R)(kPaper, image.data(), image.step(), size);
    return image;
}

void paste(const Grey& image, Rgb& page, KvriPoint at) {
    KVRI_CALL(kvriDup_8u_C1C3R)(image.data(), image.step(), page.at(at.x, at.y), page.step(), image.size());
}

void paste(const Rgb& image, Rgb& page, KvriPoint at) {
    KVRI_CALL(kvriCopy_8u_C3R)(image.data(), image.step(), page.at(at.x, at.y), page.step(), image.size());
}

void paste(const Rgba& image, Rgb& page, KvriPoint at) { paste(overChequers(image), page, at); }

}  // namespace

ContactSheet::ContactSheet(const std::string& title, int pictures, const SheetLayout& layout)
    : layout_(layout), page_(toRgb(paper(pageSize(pictures, layout)))) {
    Grey heading = paper({page_.size().width - 2 * kMargin, kTitleHeight});
    drawText(heading, {0, 26}, 24, 1, title);
    paste(heading, page_, {kMargin, kMargin});
}

KvriPoint ContactSheet::nextPlace() {
    const int column = count_ % layout_.columns, row = count_ / layout_.columns;
    ++count_;
    return {kMargin + column * (layout_.cell.width + kMargin),
            kMargin + kTitleHeight + row * (layout_.cell.height + kCaptionHeight + kMargin)};
}

void ContactSheet::addCaption(KvriPoint place, const std::string& caption, const std::string& details) {
    Grey text = paper({layout_.cell.width, kCaptionHeight});
    drawText(text, {0, 22}, 16, 0.95, caption);
    drawText(text, {0, 42}, 13, 0.55, details);
    paste(text, page_, {place.x, place.y + layout_.cell.height});
}

void ContactSheet::add(const AnyImage& image, const std::string& caption, const std::string& details) {
    const KvriPoint place = nextPlace();
    std::visit(
        [&](const auto& picture) {
            const auto small = thumbnail(picture, layout_.cell);
            paste(small, page_, {place.x, place.y + (layout_.cell.height - small.size().height) / 2});
        },
        image);
    addCaption(place, caption, details);
}

void ContactSheet::addMissing(const std::string& caption, const std::string& details) {
    addCaption(nextPlace(), caption, details);
}

}  // namespace demo
