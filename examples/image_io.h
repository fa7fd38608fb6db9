// examples/image_io.h: PNG and JPEG files, row by row or as a whole.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "image.h"
#include "png_rows.h"
#include "rows.h"

namespace demo {

// Both carry a message that names the file.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The kind of file is told by its contents. A damaged file is refused, even where a part of it could be shown.
std::unique_ptr<RowReader> openPicture(const std::filesystem::path& path, Depth depth);

// The kind of file is told by the extension: .png, .jpg or .jpeg. The file appears with finish().
std::unique_ptr<RowWriter> createPicture(const std::filesystem::path& path, const PictureInfo& info);

// Whole pictures of 8-bit samples.
AnyImage readAll(RowReader& rows);
AnyImage readImage(const std::filesystem::path& path);
void writeImage(const std::filesystem::path& path, const AnyImage& image);

}  // namespace demo
