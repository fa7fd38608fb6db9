// examples/image_io.h: PNG and JPEG files.
#pragma once

#include <filesystem>
#include <stdexcept>

#include "image.h"

namespace demo {

// Both carry a message that names the file.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The kind of file is told by its contents. Samples of fewer than 8 bits and palettes are expanded, 16 bits are reduced
// to 8; grey with alpha becomes RGBA. A damaged file is refused, even where a part of it could be shown.
AnyImage readImage(const std::filesystem::path& path);

// The kind of file is told by the extension: .png, .jpg or .jpeg. JPEG holds no alpha.
void writeImage(const std::filesystem::path& path, const AnyImage& image);

}  // namespace demo
