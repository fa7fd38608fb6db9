// examples/rows.h: pictures that are read and written row by row, whatever their file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "kvri.h"

namespace demo {

using Bytes = std::vector<unsigned char>;

struct PixelKind {
    int channels;  // 1 grey, 3 RGB, 4 RGB and alpha
    int bits;      // of a sample: 8, or 16 in the processor's byte order

    int bytes() const { return channels * bits / 8; }
};

inline std::string toString(PixelKind kind) {
    return std::to_string(kind.bits) + "-bit " + (kind.channels == 1 ? "grey" : kind.channels == 3 ? "RGB" : "RGBA");
}

// What files say about showing the samples. It goes from picture to picture as it is; empty where there is none.
struct Profile {
    Bytes icc;   // colours
    Bytes exif;  // among others, which way up
};

struct PictureInfo {
    KvriSize size;
    PixelKind kind;
    Profile profile;

    size_t rowBytes() const { return size_t(size.width) * size_t(kind.bytes()); }
};

class RowReader {
protected:
    PictureInfo info_{};

public:
    virtual ~RowReader() = default;
    const PictureInfo& info() const { return info_; }

    // The next row. With the last one the rest of the file is checked.
    virtual void read(void* row) = 0;
};

class RowWriter {
public:
    virtual ~RowWriter() = default;
    virtual void write(const void* row) = 0;
    virtual void finish() = 0;  // after the last row
};

}  // namespace demo
