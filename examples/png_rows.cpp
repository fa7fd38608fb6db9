#include "png_rows.h"

#include <png.h>

#include <bit>
#include <cstring>

namespace demo {
namespace {

// libpng asks for error handlers that do not return. Its frames carry unwind tables on this platform, so an exception
// passes them and, unlike longjmp, runs destructors.
struct PngMessages {
    const char* about;
    std::string warning = {};
};

[[noreturn]] void throwPngError(png_structp png, png_const_charp message) {
    const auto& [about, warning] = *static_cast<const PngMessages*>(png_get_error_ptr(png));
    throw CodecError(about + std::string(message) + (warning.empty() ? "" : " (" + warning + ")"));
}

// A warning often says more precisely what the error that follows it means.
void keepPngWarning(png_structp png, png_const_charp message) {
    static_cast<PngMessages*>(png_get_error_ptr(png))->warning = message;
}

struct PngForReading {
    PngMessages messages{"damaged PNG: "};
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &messages, throwPngError, keepPngWarning);
    png_infop info = png_create_info_struct(png);

    PngForReading() = default;
    PngForReading(const PngForReading&) = delete;
    ~PngForReading() { png_destroy_read_struct(&png, &info, nullptr); }
};

struct PngForWriting {
    PngMessages messages{""};
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &messages, throwPngError, keepPngWarning);
    png_infop info = png_create_info_struct(png);

    PngForWriting() = default;
    PngForWriting(const PngForWriting&) = delete;
    ~PngForWriting() { png_destroy_write_struct(&png, &info); }
};

void orderBytes(png_structp png) {
    if constexpr (std::endian::native == std::endian::little) png_set_swap(png);
}

class PngReader : public RowReader {
    File file_;
    PngForReading png_;
    std::vector<Bytes> kept_;  // of an interlaced file
    int next_ = 0;

    static void take(png_structp png, png_bytep to, size_t count) {
        auto* file = static_cast<FILE*>(png_get_io_ptr(png));
        if (std::fread(to, 1, count, file) == count) return;
        if (std::ferror(file)) throw CodecError(lastSystemError());
        png_error(png, "the file is truncated");
    }

    void toColours(Depth depth) {
        png_set_expand(png_.png);
        if (depth == Depth::Eight) png_set_scale_16(png_.png);
        orderBytes(png_.png);
        const int type = png_get_color_type(png_.png, png_.info);
        const bool alpha = (type & PNG_COLOR_MASK_ALPHA) || png_get_valid(png_.png, png_.info, PNG_INFO_tRNS);
        if (alpha && !(type & PNG_COLOR_MASK_COLOR)) png_set_gray_to_rgb(png_.png);
    }

    Profile profile() {
        Profile profile;
        png_charp name;
        int compression;
        png_bytep bytes;
        png_uint_32 count;
        if (png_get_iCCP(png_.png, png_.info, &name, &compression, &bytes, &count)) profile.icc.assign(bytes, bytes + count);
        if (png_get_eXIf_1(png_.png, png_.info, &count, &bytes)) profile.exif.assign(bytes, bytes + count);
        return profile;
    }

    void keepAll() {
        kept_.assign(size_t(info_.size.height), Bytes(info_.rowBytes()));
        std::vector<png_bytep> rows;
        for (Bytes& row : kept_) rows.push_back(row.data());
        png_read_image(png_.png, rows.data());
    }

public:
    PngReader(File file, Depth depth) : file_(std::move(file)) {
        png_set_read_fn(png_.png, file_.get(), take);
        png_read_info(png_.png, png_.info);
        const Profile stored = profile();
        toColours(depth);
        const int passes = png_set_interlace_handling(png_.png);
        png_read_update_info(png_.png, png_.info);
        info_ = {{int(png_get_image_width(png_.png, png_.info)), int(png_get_image_height(png_.png, png_.info))},
                 {png_get_channels(png_.png, png_.info), png_get_bit_depth(png_.png, png_.info)},
                 stored};
        if (passes > 1) keepAll();
    }

    void read(void* row) override {
        if (kept_.empty()) png_read_row(png_.png, static_cast<png_bytep>(row), nullptr);
        else std::memcpy(row, kept_[size_t(next_)].data(), info_.rowBytes());
        if (++next_ == info_.size.height) png_read_end(png_.png, nullptr);
    }
};

class PngWriter : public RowWriter {
    PngForWriting png_;

    static void append(png_structp png, png_bytep from, size_t count) {
        if (std::fwrite(from, 1, count, static_cast<FILE*>(png_get_io_ptr(png))) != count) throw CodecError(lastSystemError());
    }
    static void flush(png_structp) {}

    static int colourType(int channels) {
        return channels == 1 ? PNG_COLOR_TYPE_GRAY : channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA;
    }

    void put(const Profile& profile) {
        png_set_benign_errors(png_.png, 1);  // a profile that does not suit the pixels is left out
        if (!profile.icc.empty())
            png_set_iCCP(png_.png, png_.info, "icc", PNG_COMPRESSION_TYPE_BASE, profile.icc.data(), png_uint_32(profile.icc.size()));
        if (!profile.exif.empty())
            png_set_eXIf_1(png_.png, png_.info, png_uint_32(profile.exif.size()), Bytes(profile.exif).data());
    }

public:
    PngWriter(FILE* file, const PictureInfo& info) {
        constexpr int kCompression = 4;  // a third of the time of the default, for a few per cent more bytes
        png_set_write_fn(png_.png, file, append, flush);
        png_set_compression_level(png_.png, kCompression);
        png_set_IHDR(png_.png, png_.info, png_uint_32(info.size.width), png_uint_32(info.size.height), info.kind.bits,
                     colourType(info.kind.channels), PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        put(info.profile);
        png_write_info(png_.png, png_.info);
        if (info.kind.bits == 16) orderBytes(png_.png);
    }

    void write(const void* row) override { png_write_row(png_.png, static_cast<png_const_bytep>(row)); }
    void finish() override { png_write_end(png_.png, nullptr); }
};

}  // namespace

std::unique_ptr<RowReader> readPng(File file, Depth depth) { return std::make_unique<PngReader>(std::move(file), depth); }
std::unique_ptr<RowWriter> writePng(FILE* file, const PictureInfo& info) { return std::make_unique<PngWriter>(file, info); }

}  // namespace demo
