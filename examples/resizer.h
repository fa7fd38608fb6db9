// examples/resizer.h: one resizing of pictures of one kind, from one size to another, by the library's specification object.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

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

// The two parameters of the cubic methods.
struct CubicFamily {
    float b = 0, c = 0.5f;
};

// The sizes do not allow the method.
struct MethodError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct RowRange {
    int first, end;
    int count() const { return end - first; }
};

// Rows of a picture from row `first` on, anywhere in memory.
struct Rows {
    unsigned char* data;
    int step, first;
    unsigned char* operator[](int y) const { return data + ptrdiff_t(y - first) * step; }
};

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
    void apply(Rows source, Rows destination, KvriRect tile, unsigned char* buffer) const;
};

}  // namespace demo
