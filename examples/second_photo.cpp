#include "second_photo.h"

#include <algorithm>
#include <vector>

#include "image_io.h"

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

    int specBytes = 0, initBytes = 0, bufferBytes = 0;
    KVRI_CALL(kvriResizeGetSize_8u)(part, size, kvrInterpLinear, 1, &specBytes, &initBytes);
    std::vector<Kvr8u> specMemory(static_cast<size_t>(specBytes)), init(static_cast<size_t>(initBytes));
    auto* spec = reinterpret_cast<KvriResizeSpec*>(specMemory.data());
    KVRI_CALL(kvriResizeAntialiasingLinearInit)(part, size, spec, init.data());
    KVRI_CALL(kvriResizeGetBufferSize_8u)(spec, size, 3, &bufferBytes);
    std::vector<Kvr8u> buffer(static_cast<size_t>(bufferBytes));

    Rgb result(size);
    KVRI_CALL(kvriResizeAntialiasing_8u_C3R)(from, whole.step(), result.data(), result.step(), KvriPoint{0, 0}, size, kvrBorderRepl,
                                             nullptr, spec, buffer.data());
    return result;
}

}  // namespace demo
