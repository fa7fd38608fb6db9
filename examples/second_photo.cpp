#include "second_photo.h"

#include <algorithm>

#include "image_io.h"
#include "resizer.h"

namespace demo {
namespace {

constexpr const char* kFile = "/usr/share/backgrounds/life_by_Aitzol_Berasategi.jpg";

Rgb read() {
    AnyImage image = readImage(kFile);
    if (auto* rgb = std::get_if<Rgb>(&image)) return std::move(*rgb);
    throw InputError(std::string("'") + kFile + "' has no colours");
}

// The largest part of a picture of size `whole` with the proportions of `like`.
KvriSize partLike(KvriSize whole, KvriSize like) {
    const double scale = std::min(double(whole.width) / like.width, double(whole.height) / like.height);
    return {std::clamp(int(like.width * scale), 4, whole.width), std::clamp(int(like.height * scale), 4, whole.height)};
}

}  // namespace

Rgb secondPhoto(const Rgb& photo) {
    static const Rgb whole = read();
    const KvriSize size = photo.size(), part = partLike(whole.size(), size);
    const Kvr8u* from = whole.at((whole.size().width - part.width) / 2, (whole.size().height - part.height) / 2);

    const Resizer resizer(methodOf("aa-linear"), {}, PixelKind{Rgb::kChannels, 8}, part, size);
    Bytes buffer(resizer.bufferBytes(size));
    Rgb result(size);
    resizer.apply(ConstRows{from, whole.step(), 0}, Rows{result.data(), result.step(), 0}, {0, 0, size.width, size.height}, buffer.data());
    return result;
}

}  // namespace demo
