#include "contact_sheet.h"

#include "convert.h"
#include "label.h"
#include "thumbnail.h"

namespace demo {
namespace {

constexpr Kvr8u kPaper = 28;
constexpr int kColumns = 3, kMargin = 20, kTitleHeight = 44, kCaptionHeight = 48;
constexpr KvriSize kCell{480, 270};

KvriSize pageSize(int pictures) {
    const int rows = (pictures + kColumns - 1) / kColumns;
    return {kMargin + kColumns * (kCell.width + kMargin),
            kMargin + kTitleHeight + rows * (kCell.height + kCaptionHeight + kMargin)};
}

KvriPoint placeOf(int index) {
    return {kMargin + index % kColumns * (kCell.width + kMargin),
            kMargin + kTitleHeight + index / kColumns * (kCell.height + kCaptionHeight + kMargin)};
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

ContactSheet::ContactSheet(const std::string& title, int pictures) : page_(toRgb(paper(pageSize(pictures)))) {
    Grey heading = paper({page_.size().width - 2 * kMargin, kTitleHeight});
    drawText(heading, {0, 26}, 24, 1, title);
    paste(heading, page_, {kMargin, kMargin});
}

void ContactSheet::add(const AnyImage& image, const std::string& caption, const std::string& details) {
    const KvriPoint place = placeOf(count_++);
    std::visit(
        [&](const auto& picture) {
            const auto small = thumbnail(picture, kCell);
            paste(small, page_, {place.x, place.y + (kCell.height - small.size().height) / 2});
        },
        image);
    Grey text = paper({kCell.width, kCaptionHeight});
    drawText(text, {0, 22}, 16, 0.95, caption);
    drawText(text, {0, 42}, 13, 0.55, details);
    paste(text, page_, {place.x, place.y + kCell.height});
}

}  // namespace demo
