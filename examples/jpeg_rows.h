// examples/jpeg_rows.h: JPEG files.
#pragma once

#include "files.h"
#include "rows.h"

namespace demo {

std::unique_ptr<RowReader> readJpeg(File file);

// Samples of 16 bits are written with 8; alpha is refused.
std::unique_ptr<RowWriter> writeJpeg(FILE* file, const PictureInfo& info);

}  // namespace demo
