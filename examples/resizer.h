// examples/resizer.h: one resizing of pictures of one kind, from one size to another, by the library's specification object.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

#include "image.h"
#include "rows.h"

namespace demo {

struct Method {
    const char* name;
    const char* description;
    KvriInterpolationType interpolation;
    bool antialiasing;
    int lobes;           // of Lanczos
    int smallestSource;  // width and height
};

std::span<const Method> methods();
const Method& methodOf(const std::string& name);  // one of them

// The two parameters of the cubic methods.
struct CubicFamily {
    float b = 0, c = 0.5f;
};

// A size that cannot be, or that the method does not allow.
struct SizeError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct RowRange {
    int first, end;
    int count() const { return end - first; }
};

// Rows of a picture from row `first` on, anywhere in memory.
template <class Byte>
struct RowsIn {
    Byte* data;
    int step, first;
    Byte* operator[](int y) const { return data + ptrdiff_t(y - first) * step; }
    operator RowsIn<const Byte>() const { return {data, step, first}; }
};
using Rows = RowsIn<unsigned char>;
using ConstRows = RowsIn<const unsigned char>;

class Resizer {
    struct Functions;

    const Functions& functions_;
    Method method_;
    PixelKind kind_;
    KvriSize source_, destination_;
    Bytes spec_;

    void requireSizes() const;
    void init(CubicFamily cubic);
    const KvriResizeSpec* spec() const { return reinterpret_cast<const KvriResizeSpec*>(spec_.data()); }
    KvriResizeSpec* spec() { return reinterpret_cast<KvriResizeSpec*>(spec_.data()); }

public:
    Resizer(const Method& method, CubicFamily cubic, PixelKind kind, KvriSize source, KvriSize destination);

    PixelKind kind() const { return kind_; }
    KvriSize source() const { return source_; }
    KvriSize destination() const { return destination_; }

    // The source rows that rows of the destination are made of.
    RowRange sourceRows(RowRange destination) const;

    // Of apply's buffer, for tiles up to this size.
    size_t bufferBytes(KvriSize tile) const;

    // Makes a tile of the destination. Any number of threads may do so at once, each with a buffer of its own.
    void apply(ConstRows source, Rows destination, KvriRect tile, unsigned char* buffer) const;
};

// A picture of 8-bit samples in one piece.
template <class Picture>
void resizeWhole(const Resizer& resizer, const Picture& from, Picture& to) {
    Bytes buffer(resizer.bufferBytes(to.size()));
    resizer.apply(ConstRows{from.data(), from.step(), 0}, Rows{to.data(), to.step(), 0}, {0, 0, to.size().width, to.size().height},
                  buffer.data());
}

}  // namespace demo
