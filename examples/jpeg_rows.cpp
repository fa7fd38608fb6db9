#include "jpeg_rows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <jpeglib.h>  // needs FILE and size_t before it
#include <jerror.h>

namespace demo {
namespace {

constexpr int kExifMarker = JPEG_APP0 + 1, kIccMarker = JPEG_APP0 + 2;
constexpr char kExifName[6] = {'E', 'x', 'i', 'f', 0, 0};  // before its content

// As with libpng, an exception passes the codec's frames. client_data says what a message is about.
[[noreturn]] void throwJpegError(j_common_ptr codec) {
    if (codec->err->msg_code == JERR_FILE_WRITE) throw CodecError(lastSystemError());
    char message[JMSG_LENGTH_MAX];
    codec->err->format_message(codec, message);
    throw CodecError(static_cast<const char*>(codec->client_data) + std::string(message));
}

// Of levels, -1 is a warning: the file's early end among others. The rest is small talk.
void takeJpegMessage(j_common_ptr codec, int level) {
    if (level < 0) throwJpegError(codec);
}

jpeg_error_mgr errorHandlers() {
    jpeg_error_mgr handlers;
    jpeg_std_error(&handlers);
    handlers.error_exit = throwJpegError;
    handlers.emit_message = takeJpegMessage;
    return handlers;
}

struct JpegForReading {
    jpeg_error_mgr errors = errorHandlers();
    jpeg_decompress_struct codec{};

    JpegForReading() {
        codec.err = &errors;
        codec.client_data = const_cast<char*>("damaged JPEG: ");
        jpeg_create_decompress(&codec);
    }
    JpegForReading(const JpegForReading&) = delete;
    ~JpegForReading() { jpeg_destroy_decompress(&codec); }
};

struct JpegForWriting {
    jpeg_error_mgr errors = errorHandlers();
    jpeg_compress_struct codec{};

    JpegForWriting() {
        codec.err = &errors;
        codec.client_data = const_cast<char*>("");
        jpeg_create_compress(&codec);
    }
    JpegForWriting(const JpegForWriting&) = delete;
    ~JpegForWriting() { jpeg_destroy_compress(&codec); }
};

class JpegReader : public RowReader {
    File file_;
    JpegForReading jpeg_;

    J_COLOR_SPACE colours() const {
        switch (jpeg_.codec.jpeg_color_space) {
            case JCS_GRAYSCALE: return JCS_GRAYSCALE;
            case JCS_CMYK:
            case JCS_YCCK: throw CodecError("JPEG with CMYK colours is not supported");
            default: return JCS_RGB;
        }
    }

    Profile profile() {
        Profile profile;
        JOCTET* icc;
        unsigned count;
        if (jpeg_read_icc_profile(&jpeg_.codec, &icc, &count)) {
            const std::unique_ptr<JOCTET, decltype(&std::free)> owner(icc, std::free);
            profile.icc.assign(icc, icc + count);
        }
        for (const auto* marker = jpeg_.codec.marker_list; marker; marker = marker->next)
            if (marker->marker == kExifMarker && marker->data_length > sizeof kExifName &&
                std::memcmp(marker->data, kExifName, sizeof kExifName) == 0)
                profile.exif.assign(marker->data + sizeof kExifName, marker->data + marker->data_length);
        return profile;
    }

public:
    explicit JpegReader(File file) : file_(std::move(file)) {
        constexpr unsigned kLongest = 0xFFFF;
        jpeg_stdio_src(&jpeg_.codec, file_.get());
        jpeg_save_markers(&jpeg_.codec, kExifMarker, kLongest);
        jpeg_save_markers(&jpeg_.codec, kIccMarker, kLongest);
        jpeg_read_header(&jpeg_.codec, TRUE);
        jpeg_.codec.out_color_space = colours();
        jpeg_start_decompress(&jpeg_.codec);
        info_ = {{int(jpeg_.codec.output_width), int(jpeg_.codec.output_height)}, {jpeg_.codec.output_components, 8}, profile()};
    }

    void read(void* row) override {
        auto* to = static_cast<JSAMPROW>(row);
        jpeg_read_scanlines(&jpeg_.codec, &to, 1);
        if (jpeg_.codec.output_scanline == jpeg_.codec.output_height) jpeg_finish_decompress(&jpeg_.codec);
    }
};

// 65535 / 257 = 255: the nearest of 8 bits.
unsigned char toEightBits(Kvr16u sample) { return (unsigned char)((sample * 255u + 32895) >> 16); }

class JpegWriter : public RowWriter {
    JpegForWriting jpeg_;
    bool sixteenBits_;
    Bytes row_;

    void put(const Profile& profile) {
        constexpr size_t kLongest = 65533 - sizeof kExifName;
        if (!profile.icc.empty()) jpeg_write_icc_profile(&jpeg_.codec, profile.icc.data(), unsigned(profile.icc.size()));
        if (profile.exif.empty() || profile.exif.size() > kLongest) return;
        Bytes marker(kExifName, kExifName + sizeof kExifName);
        marker.insert(marker.end(), profile.exif.begin(), profile.exif.end());
        jpeg_write_marker(&jpeg_.codec, kExifMarker, marker.data(), unsigned(marker.size()));
    }

public:
    JpegWriter(FILE* file, const PictureInfo& info) : sixteenBits_(info.kind.bits == 16) {
        constexpr int kQuality = 90;
        if (info.kind.channels == 4) throw CodecError("a JPEG cannot hold alpha");
        auto& codec = jpeg_.codec;
        jpeg_stdio_dest(&codec, file);
        codec.image_width = JDIMENSION(info.size.width);
        codec.image_height = JDIMENSION(info.size.height);
        codec.input_components = info.kind.channels;
        codec.in_color_space = info.kind.channels == 1 ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, kQuality, TRUE);
        codec.comp_info[0].h_samp_factor = codec.comp_info[0].v_samp_factor = 1;  // colours as fine as brightness
        jpeg_start_compress(&codec, TRUE);
        put(info.profile);
        row_.resize(size_t(info.size.width) * size_t(info.kind.channels));
    }

    void write(const void* row) override {
        if (sixteenBits_) {
            const auto* samples = static_cast<const Kvr16u*>(row);
            std::transform(samples, samples + row_.size(), row_.begin(), toEightBits);
        } else {
            std::memcpy(row_.data(), row, row_.size());
        }
        JSAMPROW from = row_.data();
        jpeg_write_scanlines(&jpeg_.codec, &from, 1);
    }
    void finish() override { jpeg_finish_compress(&jpeg_.codec); }
};

}  // namespace

std::unique_ptr<RowReader> readJpeg(File file) { return std::make_unique<JpegReader>(std::move(file)); }
std::unique_ptr<RowWriter> writeJpeg(FILE* file, const PictureInfo& info) { return std::make_unique<JpegWriter>(file, info); }

}  // namespace demo
