// examples/tests/image_io_test.cpp: files in and out, whole and damaged.
#include "image_io.h"

#include <gtest/gtest.h>
#include <png.h>
#include <turbojpeg.h>
#include <zlib.h>

#include <algorithm>

#include "support.h"

namespace {

using namespace demo;
using namespace test;

constexpr KvriSize kSize{37, 19};

std::string refusal(const std::filesystem::path& path) {
    try {
        readImage(path);
    } catch (const InputError& e) {
        EXPECT_CONTAINS(e.what(), path.string());
        return e.what();
    }
    ADD_FAILURE() << path << " was read";
    return {};
}

std::string refusalToWrite(const std::filesystem::path& path, const AnyImage& image) {
    try {
        writeImage(path, image);
    } catch (const OutputError& e) {
        EXPECT_CONTAINS(e.what(), path.string());
        return e.what();
    }
    ADD_FAILURE() << path << " was written";
    return {};
}

template <class Picture>
void writesPng() {
    const Folder folder;
    const Bytes samples = gradient(kSize, Picture::kChannels);
    writeImage(folder / "a.png", imageOf<Picture>(kSize, samples));
    EXPECT_EQ(decodePng(folder / "a.png", kSize, Picture::kChannels), samples);
}

TEST(ImageIo, WritesPng) {
    writesPng<Grey>();
    writesPng<Rgb>();
    writesPng<Rgba>();
}

template <class Picture>
void readsPng(const PngKind& kind) {
    const Folder folder;
    const Bytes samples = gradient(kSize, Picture::kChannels);
    makePng(folder / "a.png", kSize, kind, samples);
    EXPECT_EQ(samplesOf<Picture>(readImage(folder / "a.png"), kSize), samples);
}

TEST(ImageIo, ReadsPng) {
    for (bool interlaced : {false, true}) {
        readsPng<Grey>({PNG_COLOR_TYPE_GRAY, 8, interlaced});
        readsPng<Rgb>({PNG_COLOR_TYPE_RGB, 8, interlaced});
        readsPng<Rgba>({PNG_COLOR_TYPE_RGBA, 8, interlaced});
    }
}

template <class Picture>
void expands(KvriSize size, const PngKind& kind, const Bytes& stored, const Bytes& expected) {
    const Folder folder;
    makePng(folder / "a.png", size, kind, stored);
    EXPECT_EQ(samplesOf<Picture>(readImage(folder / "a.png"), size), expected);
}

TEST(ImageIo, BringsOtherPngKindsToEightBits) {
    expands<Grey>({8, 1}, {PNG_COLOR_TYPE_GRAY, 1}, {0b10010110}, {255, 0, 0, 255, 0, 255, 255, 0});
    expands<Grey>({3, 1}, {PNG_COLOR_TYPE_GRAY, 16}, {0xFF, 0xFF, 0x80, 0x80, 0, 0xFF}, {255, 128, 1});
    expands<Rgb>({1, 1}, {PNG_COLOR_TYPE_RGB, 16}, {0xFF, 0xFF, 0x40, 0x40, 0, 0}, {255, 64, 0});
    expands<Rgba>({2, 1}, {PNG_COLOR_TYPE_GRAY_ALPHA, 8}, {9, 200, 90, 0}, {9, 9, 9, 200, 90, 90, 90, 0});
    const Bytes palette{1, 2, 3, 40, 50, 60};
    expands<Rgb>({2, 1}, {PNG_COLOR_TYPE_PALETTE, 8, false, palette}, {1, 0}, {40, 50, 60, 1, 2, 3});
    expands<Rgba>({2, 1}, {PNG_COLOR_TYPE_PALETTE, 8, false, palette, {77}}, {1, 0}, {40, 50, 60, 255, 1, 2, 3, 77});
}

TEST(ImageIo, ReadsJpeg) {
    const Folder folder;
    makeJpeg(folder / "rgb.jpg", kSize, TJPF_RGB, gradient(kSize, 3));
    expectNear(samplesOf<Rgb>(readImage(folder / "rgb.jpg"), kSize), gradient(kSize, 3), 6);
    makeJpeg(folder / "grey.jpg", kSize, TJPF_GRAY, gradient(kSize, 1));
    expectNear(samplesOf<Grey>(readImage(folder / "grey.jpg"), kSize), gradient(kSize, 1), 4);
}

TEST(ImageIo, WritesJpeg) {
    const Folder folder;
    for (const char* name : {"a.jpg", "a.jpeg"}) {
        writeImage(folder / name, imageOf<Rgb>(kSize, gradient(kSize, 3)));
        expectNear(decodeJpeg(folder / name, kSize, TJPF_RGB), gradient(kSize, 3), 8);
    }
    writeImage(folder / "grey.jpg", imageOf<Grey>(kSize, gradient(kSize, 1)));
    expectNear(decodeJpeg(folder / "grey.jpg", kSize, TJPF_GRAY), gradient(kSize, 1), 6);
}

// A file cut anywhere, be it within its last mark, is not taken for a whole one.
void refusesEveryBeginningOf(const std::filesystem::path& whole, size_t signature, const std::string& message) {
    const Bytes bytes = load(whole);
    ASSERT_GT(bytes.size(), 60u);
    std::filesystem::path part = whole;
    part.replace_filename("part");
    for (size_t count = 0; count < bytes.size(); ++count) {
        save(part, {bytes.begin(), bytes.begin() + ptrdiff_t(count)});
        const std::string expected = count == 0 ? "the file is empty" : count < signature ? "neither a PNG nor" : message;
        ASSERT_CONTAINS(refusal(part), expected) << count << " bytes";
    }
}

TEST(ImageIo, RefusesTruncatedPng) {
    const Folder folder;
    makePng(folder / "whole.png", kSize, {PNG_COLOR_TYPE_RGB, 8}, gradient(kSize, 3));
    refusesEveryBeginningOf(folder / "whole.png", 8, "damaged PNG: the file is truncated");
}

TEST(ImageIo, RefusesTruncatedJpeg) {
    const Folder folder;
    makeJpeg(folder / "whole.jpg", kSize, TJPF_RGB, gradient(kSize, 3));
    refusesEveryBeginningOf(folder / "whole.jpg", 3, "damaged JPEG: ");
}

TEST(ImageIo, RefusesAlteredPng) {
    const Folder folder;
    makePng(folder / "a.png", kSize, {PNG_COLOR_TYPE_GRAY, 8}, gradient(kSize, 1));
    const Bytes bytes = load(folder / "a.png");
    for (size_t i = 8; i < bytes.size(); ++i) {  // behind the signature
        Bytes altered = bytes;
        altered[i] ^= 1;
        save(folder / "a.png", altered);
        ASSERT_CONTAINS(refusal(folder / "a.png"), "damaged PNG: ") << "byte " << i;
    }
}

// The header's size lies behind signature, length and type; its checksum behind the 13 bytes of content.
void claimPngSize(const std::filesystem::path& path, KvriSize claimed) {
    makePng(path, kSize, {PNG_COLOR_TYPE_RGB, 8}, gradient(kSize, 3));
    Bytes bytes = load(path);
    png_save_uint_32(&bytes[16], png_uint_32(claimed.width));
    png_save_uint_32(&bytes[20], png_uint_32(claimed.height));
    png_save_uint_32(&bytes[29], png_uint_32(crc32(0, &bytes[12], 17)));
    save(path, bytes);
}

TEST(ImageIo, RefusesPngOfNoSizeOrTooLarge) {
    const Folder folder;
    claimPngSize(folder / "a.png", {0, 19});
    EXPECT_CONTAINS(refusal(folder / "a.png"), "width is zero");
    claimPngSize(folder / "a.png", {37, 0});
    EXPECT_CONTAINS(refusal(folder / "a.png"), "height is zero");
    claimPngSize(folder / "a.png", {100000, 100000});
    EXPECT_CONTAINS(refusal(folder / "a.png"), "cannot hold an image of 100000 x 100000 pixels");
}

TEST(ImageIo, RefusesJpegOfNoSize) {
    const Folder folder;
    makeJpeg(folder / "a.jpg", kSize, TJPF_RGB, gradient(kSize, 3));
    Bytes bytes = load(folder / "a.jpg");
    const Bytes frameHeader{0xFF, 0xC0};
    const auto at = std::search(bytes.begin(), bytes.end(), frameHeader.begin(), frameHeader.end());
    ASSERT_LT(at, bytes.end() - 9);
    at[7] = at[8] = 0;  // the width
    save(folder / "a.jpg", bytes);
    EXPECT_CONTAINS(refusal(folder / "a.jpg"), "damaged JPEG: ");
}

TEST(ImageIo, RefusesWhatItCannotRead) {
    const Folder folder;
    EXPECT_CONTAINS(refusal(folder / "missing.png"), "No such file");
    EXPECT_CONTAINS(refusal(folder.path()), "is a folder");
    makeJpeg(folder / "cmyk.jpg", kSize, TJPF_CMYK, gradient(kSize, 4));
    EXPECT_CONTAINS(refusal(folder / "cmyk.jpg"), "CMYK");
}

TEST(ImageIo, RefusesWhatItCannotWrite) {
    const Folder folder;
    const AnyImage rgb = imageOf<Rgb>(kSize, gradient(kSize, 3)), rgba = imageOf<Rgba>(kSize, gradient(kSize, 4));
    EXPECT_CONTAINS(refusalToWrite(folder / "a.gif", rgb), ".png, .jpg, .jpeg");
    EXPECT_CONTAINS(refusalToWrite(folder / "a.jpg", rgba), "alpha");
    EXPECT_CONTAINS(refusalToWrite(folder / "missing/a.png", rgb), "No such file");
    std::filesystem::create_symlink("/dev/full", folder / "full.png");
    EXPECT_CONTAINS(refusalToWrite(folder / "full.png", rgb), "No space left");
    EXPECT_CONTAINS(refusalToWrite(folder / "wide.jpg", Grey({70000, 1})), "65500");
}

}  // namespace
