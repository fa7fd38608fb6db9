// examples/tests/support.h: files made for a test, and the program run on them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "image.h"

#define EXPECT_CONTAINS(text, part) EXPECT_PRED_FORMAT2(testing::IsSubstring, std::string(part), std::string(text))
#define ASSERT_CONTAINS(text, part) ASSERT_PRED_FORMAT2(testing::IsSubstring, std::string(part), std::string(text))

namespace test {

using Bytes = std::vector<unsigned char>;

// A new folder that ends with the object.
class Folder {
    std::filesystem::path path_;

public:
    Folder();
    Folder(const Folder&) = delete;
    ~Folder();
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    const std::filesystem::path& path() const { return path_; }
};

Bytes load(const std::filesystem::path& path);
void save(const std::filesystem::path& path, const Bytes& bytes);

// PNG and JPEG files of samples without padding, by means of the codecs and not of the code under test.
struct PngKind {
    int colourType, bitDepth;
    bool interlaced = false;
    std::vector<unsigned char> palette = {};        // red, green, blue of each entry
    std::vector<unsigned char> paletteAlpha = {};   // of the first entries
};
void makePng(const std::filesystem::path& path, KvriSize size, const PngKind& kind, Bytes samples);
Bytes decodePng(const std::filesystem::path& path, KvriSize size, int channels, int bits = 8);
void makeJpeg(const std::filesystem::path& path, KvriSize size, int pixelFormat, const Bytes& samples);
Bytes decodeJpeg(const std::filesystem::path& path, KvriSize size, int pixelFormat);

// Samples that differ from pixel to pixel and from channel to channel, yet slowly enough for JPEG.
Bytes gradient(KvriSize size, int channels);

template <class Picture>
Picture imageOf(KvriSize size, const Bytes& samples) {
    Picture image(size);
    for (int y = 0; y < size.height; ++y)
        std::copy_n(&samples[size_t(y) * size.width * Picture::kPixelBytes], size.width * Picture::kPixelBytes, image.at(0, y));
    return image;
}

// The image's samples without the rows' padding; fails where the file held another kind or size.
template <class Picture>
Bytes samplesOf(const demo::AnyImage& image, KvriSize size) {
    const auto* picture = std::get_if<Picture>(&image);
    if (!picture || picture->size().width != size.width || picture->size().height != size.height) {
        ADD_FAILURE() << "kind " << image.index() << " of " << demo::toString(sizeOf(image)) << " pixels";
        return {};
    }
    Bytes samples;
    for (int y = 0; y < size.height; ++y)
        samples.insert(samples.end(), picture->at(0, y), picture->at(size.width, y));
    return samples;
}

void expectNear(const Bytes& actual, const Bytes& expected, int tolerance);

struct Outcome {
    int exitCode;
    std::string out, error;
    long kilobytes;  // of memory, at most
};
// Runs a program in the given folder.
Outcome run(const char* program, const Folder& folder, const std::vector<std::string>& arguments);

void expectSuccess(const Outcome& outcome);
void expectFailure(const Outcome& outcome, int code, const std::string& message);

}  // namespace test
