// examples/png_rows.h: PNG files.
#pragma once

#include "files.h"
#include "rows.h"

namespace demo {

enum class Depth { Eight, AsStored };

// Samples of fewer than 8 bits and palettes are expanded; grey with alpha becomes RGBA. The rows of an interlaced file are
// read at once and kept.
std::unique_ptr<RowReader> readPng(File file, Depth depth);
std::unique_ptr<RowWriter> writePng(FILE* file, const PictureInfo& info);

}  // namespace demo
