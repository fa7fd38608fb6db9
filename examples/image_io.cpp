#include "image_io.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "jpeg_rows.h"

namespace demo {
namespace {

namespace fs = std::filesystem;

template <class Error, class Work>
auto named(const char* task, const fs::path& path, Work work) try {
    return work();
} catch (const CodecError& e) {
    throw Error(std::string(task) + " '" + path.string() + "': " + e.what());
} catch (const std::length_error& e) {
    throw Error(std::string(task) + " '" + path.string() + "': " + e.what());
}

template <class Work>
auto reading(const fs::path& path, Work work) {
    return named<InputError>("cannot read", path, work);
}
template <class Work>
auto writing(const fs::path& path, Work work) {
    return named<OutputError>("cannot write", path, work);
}

std::unique_ptr<RowReader> openCodec(const fs::path& path, Depth depth) {
    constexpr unsigned char kPng[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}, kJpeg[] = {0xFF, 0xD8, 0xFF};
    File file = openToRead(path);
    unsigned char start[sizeof kPng];
    const size_t count = std::fread(start, 1, sizeof start, file.get());
    if (count == 0) throw CodecError(std::ferror(file.get()) ? lastSystemError() : "the file is empty");
    if (std::fseek(file.get(), 0, SEEK_SET) != 0) throw CodecError(lastSystemError());
    const auto startsWith = [&](const auto& signature) {
        return count >= sizeof signature && std::memcmp(start, signature, sizeof signature) == 0;
    };
    if (startsWith(kPng)) return readPng(std::move(file), depth);
    if (startsWith(kJpeg)) return readJpeg(std::move(file));
    throw CodecError("neither a PNG nor a JPEG image");
}

class NamedReader : public RowReader {
    fs::path path_;
    std::unique_ptr<RowReader> codec_;

public:
    NamedReader(const fs::path& path, Depth depth)
        : path_(path), codec_(reading(path, [&] { return openCodec(path, depth); })) {
        info_ = codec_->info();
    }
    void read(void* row) override {
        reading(path_, [&] { codec_->read(row); });
    }
};

// By the extension; fails where it is neither.
bool isPng(const fs::path& path) {
    std::string extension = path.extension();
    std::transform(extension.begin(), extension.end(), extension.begin(), [](unsigned char c) { return std::tolower(c); });
    if (extension == ".png") return true;
    if (extension == ".jpg" || extension == ".jpeg") return false;
    throw CodecError("the name ends in none of .png, .jpg, .jpeg");
}

class NamedWriter : public RowWriter {
    fs::path path_;
    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<RowWriter> codec_;

public:
    NamedWriter(const fs::path& path, const PictureInfo& info) : path_(path) {
        writing(path, [&] {
            const bool png = isPng(path);
            file_ = std::make_unique<OutputFile>(path);
            codec_ = png ? writePng(file_->get(), info) : writeJpeg(file_->get(), info);
        });
    }
    void write(const void* row) override {
        writing(path_, [&] { codec_->write(row); });
    }
    void finish() override {
        writing(path_, [&] {
            codec_->finish();
            file_->commit();
        });
    }
};

template <class Picture>
Picture readRows(RowReader& rows) {
    Picture image(rows.info().size);
    for (int y = 0; y < image.size().height; ++y) rows.read(image.at(0, y));
    return image;
}

}  // namespace

std::unique_ptr<RowReader> openPicture(const fs::path& path, Depth depth) { return std::make_unique<NamedReader>(path, depth); }

std::unique_ptr<RowWriter> createPicture(const fs::path& path, const PictureInfo& info) {
    return std::make_unique<NamedWriter>(path, info);
}

AnyImage readAll(RowReader& rows) {
    switch (rows.info().kind.channels) {
        case 1: return readRows<Grey>(rows);
        case 3: return readRows<Rgb>(rows);
        default: return readRows<Rgba>(rows);
    }
}

AnyImage readImage(const fs::path& path) {
    const auto rows = openPicture(path, Depth::Eight);
    return reading(path, [&] { return readAll(*rows); });
}

void writeImage(const fs::path& path, const AnyImage& image) {
    std::visit(
        [&](const auto& picture) {
            using Picture = std::remove_cvref_t<decltype(picture)>;
            const auto writer = createPicture(path, {picture.size(), {Picture::kChannels, 8}, {}});
            for (int y = 0; y < picture.size().height; ++y) writer->write(picture.at(0, y));
            writer->finish();
        },
        image);
}

}  // namespace demo
