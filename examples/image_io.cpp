#include "image_io.h"

#include <png.h>
#include <turbojpeg.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <span>
#include <type_traits>
#include <vector>

namespace demo {
namespace {

using Bytes = std::vector<unsigned char>;

// What is wrong with an image, without the name of its file.
struct CodecError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// ---- files

std::string lastSystemError() { return std::strerror(errno); }

Bytes readFile(const std::filesystem::path& path) {
    std::error_code unreadable;  // opening the file tells the reason
    if (std::filesystem::is_directory(path, unreadable)) throw CodecError("is a folder");
    std::ifstream file(path, std::ios::binary);
    if (!file) throw CodecError(lastSystemError());
    Bytes bytes{std::istreambuf_iterator<char>(file), {}};
    if (bytes.empty()) throw CodecError("the file is empty");
    return bytes;
}

void writeFile(const std::filesystem::path& path, std::span<const unsigned char> bytes) {
    std::ofstream file(path, std::ios::binary);
    if (file) file.write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
    if (file) file.close();
    if (!file) throw CodecError(lastSystemError());
}

// ---- PNG

// libpng asks for error handlers that do not return. Its frames carry unwind tables on this platform, so an exception
// passes them and, unlike longjmp, runs destructors.
[[noreturn]] void throwPngError(png_structp png, png_const_charp message) {
    const auto& warning = *static_cast<const std::string*>(png_get_error_ptr(png));
    throw CodecError("damaged PNG: " + std::string(message) + (warning.empty() ? "" : " (" + warning + ")"));
}

// A warning often says more precisely what the error that follows it means.
void keepPngWarning(png_structp png, png_const_charp message) {
    *static_cast<std::string*>(png_get_error_ptr(png)) = message;
}

class PngReader {
    std::string warning_;
    std::span<const unsigned char> rest_;
    png_structp png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, &warning_, throwPngError, keepPngWarning);
    png_infop info_ = png_create_info_struct(png_);

    static void take(png_structp png, png_bytep to, size_t count) {
        auto& rest = *static_cast<std::span<const unsigned char>*>(png_get_io_ptr(png));
        if (count > rest.size()) png_error(png, "the file is truncated");
        std::copy_n(rest.begin(), count, to);
        rest = rest.subspan(count);
    }

    void toEightBitColours() {
        png_set_expand(png_);
        png_set_scale_16(png_);
        const int type = png_get_color_type(png_, info_);
        const bool alpha = (type & PNG_COLOR_MASK_ALPHA) || png_get_valid(png_, info_, PNG_INFO_tRNS);
        if (alpha && !(type & PNG_COLOR_MASK_COLOR)) png_set_gray_to_rgb(png_);
        png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
    }

    template <class Picture>
    Picture rows() {
        Picture image({int(png_get_image_width(png_, info_)), int(png_get_image_height(png_, info_))});
        std::vector<png_bytep> row;
        for (int y = 0; y < image.size().height; ++y) row.push_back(reinterpret_cast<png_bytep>(image.at(0, y)));
        png_read_image(png_, row.data());
        png_read_end(png_, nullptr);
        return image;
    }

public:
    explicit PngReader(std::span<const unsigned char> file) : rest_(file) { png_set_read_fn(png_, &rest_, take); }
    PngReader(const PngReader&) = delete;
    ~PngReader() { png_destroy_read_struct(&png_, &info_, nullptr); }

    AnyImage read() {
        png_read_info(png_, info_);
        toEightBitColours();
        switch (png_get_channels(png_, info_)) {
            case 1: return rows<Grey>();
            case 3: return rows<Rgb>();
            default: return rows<Rgba>();
        }
    }
};

class PngWriter {
    std::string warning_;
    Bytes bytes_;
    png_structp png_ = png_create_write_struct(PNG_LIBPNG_VER_STRING, &warning_, throwPngError, keepPngWarning);
    png_infop info_ = png_create_info_struct(png_);

    static void append(png_structp png, png_bytep from, size_t count) {
        auto& bytes = *static_cast<Bytes*>(png_get_io_ptr(png));
        bytes.insert(bytes.end(), from, from + count);
    }
    static void flush(png_structp) {}

    static constexpr int colourType(int channels) {
        return channels == 1 ? PNG_COLOR_TYPE_GRAY : channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA;
    }

public:
    PngWriter() { png_set_write_fn(png_, &bytes_, append, flush); }
    PngWriter(const PngWriter&) = delete;
    ~PngWriter() { png_destroy_write_struct(&png_, &info_); }

    template <class Picture>
    Bytes write(const Picture& image) {
        constexpr int kCompression = 4;  // a third of the time of the default, for a few per cent more bytes
        png_set_compression_level(png_, kCompression);
        png_set_IHDR(png_, info_, png_uint_32(image.size().width), png_uint_32(image.size().height),
                     8 * int(sizeof(typename Picture::Sample)), colourType(Picture::kChannels), PNG_INTERLACE_NONE,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_write_info(png_, info_);
        for (int y = 0; y < image.size().height; ++y)
            png_write_row(png_, reinterpret_cast<png_const_bytep>(image.at(0, y)));
        png_write_end(png_, nullptr);
        return std::move(bytes_);
    }
};

bool isPng(const Bytes& file) {
    constexpr int kSignature = 8;
    return file.size() >= kSignature && png_sig_cmp(file.data(), 0, kSignature) == 0;
}

// ---- JPEG

struct DestroyCodec {
    void operator()(void* codec) const { tjDestroy(codec); }
};
using JpegCodec = std::unique_ptr<void, DestroyCodec>;

struct FreeJpeg {
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};

// The codec reports its warnings, of a file's early end among others, as failures too.
void checkJpeg(int result, const JpegCodec& codec, const std::string& what) {
    if (result != 0) throw CodecError(what + tjGetErrorStr2(codec.get()));
}

constexpr int jpegPixelFormat(int channels) { return channels == 1 ? TJPF_GRAY : TJPF_RGB; }

template <class Picture>
Picture decodeJpeg(const JpegCodec& codec, const Bytes& file, KvriSize size) {
    Picture image(size);
    checkJpeg(tjDecompress2(codec.get(), file.data(), file.size(), image.data(), size.width, image.step(), size.height,
                            jpegPixelFormat(Picture::kChannels), TJFLAG_ACCURATEDCT),
              codec, "damaged JPEG: ");
    return image;
}

AnyImage readJpeg(const Bytes& file) {
    const JpegCodec codec(tjInitDecompress());
    KvriSize size{};
    int subsampling = 0, colours = 0;
    checkJpeg(tjDecompressHeader3(codec.get(), file.data(), file.size(), &size.width, &size.height, &subsampling, &colours),
              codec, "damaged JPEG: ");
    if (size.width == 0) throw CodecError("damaged JPEG: it holds no image");
    switch (colours) {
        case TJCS_GRAY: return decodeJpeg<Grey>(codec, file, size);
        case TJCS_CMYK:
        case TJCS_YCCK: throw CodecError("JPEG with CMYK colours is not supported");
        default: return decodeJpeg<Rgb>(codec, file, size);
    }
}

template <class Picture>
void writeJpeg(const std::filesystem::path& path, const Picture& image) {
    constexpr int kQuality = 90;
    const JpegCodec codec(tjInitCompress());
    unsigned char* bytes = nullptr;
    unsigned long count = 0;
    const int result = tjCompress2(codec.get(), image.data(), image.size().width, image.step(), image.size().height,
                                   jpegPixelFormat(Picture::kChannels), &bytes, &count,
                                   Picture::kChannels == 1 ? TJSAMP_GRAY : TJSAMP_444, kQuality, TJFLAG_ACCURATEDCT);
    const std::unique_ptr<unsigned char, FreeJpeg> owner(bytes);
    checkJpeg(result, codec, "");
    writeFile(path, {bytes, count});
}

bool isJpeg(const Bytes& file) { return file.size() >= 3 && file[0] == 0xFF && file[1] == 0xD8 && file[2] == 0xFF; }

// ----

AnyImage decode(const Bytes& file) {
    if (isPng(file)) return PngReader(file).read();
    if (isJpeg(file)) return readJpeg(file);
    throw CodecError("neither a PNG nor a JPEG image");
}

template <class Picture>
void write(const std::filesystem::path& path, const Picture& image) {
    const std::string extension = path.extension();
    if (extension == ".png")
        writeFile(path, PngWriter().write(image));
    else if (extension != ".jpg" && extension != ".jpeg")
        throw CodecError("the name ends in none of .png, .jpg, .jpeg");
    else if constexpr (Picture::kChannels == 4)
        throw CodecError("a JPEG cannot hold alpha");
    else
        writeJpeg(path, image);
}

}  // namespace

AnyImage readImage(const std::filesystem::path& path) try {
    return decode(readFile(path));
} catch (const CodecError& e) {
    throw InputError("cannot read '" + path.string() + "': " + e.what());
} catch (const std::length_error& e) {
    throw InputError("cannot read '" + path.string() + "': " + e.what());
}

void writeImage(const std::filesystem::path& path, const AnyImage& image) try {
    std::visit([&](const auto& picture) { write(path, picture); }, image);
} catch (const CodecError& e) {
    throw OutputError("cannot write '" + path.string() + "': " + e.what());
}

}  // namespace demo
