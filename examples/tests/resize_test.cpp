// examples/tests/resize_test.cpp: kvri-resize from end to end.
#include <gtest/gtest.h>
#include <png.h>
#include <turbojpeg.h>

#include "resizer.h"
#include "support.h"

namespace {

using namespace test;
namespace fs = std::filesystem;
using demo::methods;
using demo::toString;

constexpr KvriSize kSize{90, 60};

Outcome run(const Folder& folder, const std::vector<std::string>& arguments) { return test::run(KVRI_RESIZE, folder, arguments); }

int channelsOf(int colourType) { return colourType == PNG_COLOR_TYPE_GRAY ? 1 : colourType == PNG_COLOR_TYPE_RGB ? 3 : 4; }

Bytes samplesOf(KvriSize size, int colourType, int bits) { return gradient({size.width * bits / 8, size.height}, channelsOf(colourType)); }

void makePhoto(const fs::path& path, KvriSize size = kSize) { makePng(path, size, {PNG_COLOR_TYPE_RGB, 8}, gradient(size, 3)); }

Bytes pixel(const Bytes& samples, int width, int channels, int x, int y) {
    const auto first = samples.begin() + (ptrdiff_t(y) * width + x) * channels;
    return {first, first + channels};
}

void cut(const fs::path& path) { fs::resize_file(path, fs::file_size(path) / 2); }

int files(const Folder& folder) { return int(std::distance(fs::directory_iterator(folder.path()), {})); }

TEST(Resize, KeepsDepthAndChannelsOfPng) {
    const Folder folder;
    for (bool interlaced : {false, true})
        for (int bits : {8, 16})
            for (int type : {PNG_COLOR_TYPE_GRAY, PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGBA}) {
                const Bytes samples = samplesOf(kSize, type, bits);
                makePng(folder / "in.png", kSize, {type, bits, interlaced}, samples);
                expectSuccess(run(folder, {"in.png", "same.png", "--scale", "1"}));
                EXPECT_EQ(decodePng(folder / "same.png", kSize, channelsOf(type), bits), samples) << type << ", " << bits << " bits";

                const Outcome outcome = run(folder, {"in.png", "half.png", "--scale", "0.5", "--method", "nearest"});
                expectSuccess(outcome);
                EXPECT_CONTAINS(outcome.out, std::to_string(bits) + "-bit");
                const Bytes half = decodePng(folder / "half.png", {45, 30}, channelsOf(type), bits);
                const size_t bytes = size_t(channelsOf(type) * bits / 8);
                ASSERT_EQ(half.size(), 45 * 30 * bytes);
                for (size_t y = 0; y < 30; ++y)  // a coordinate between two pixels takes the upper left one
                    for (size_t x = 0; x < 45; ++x)
                        ASSERT_EQ(Bytes(&half[(y * 45 + x) * bytes], &half[(y * 45 + x + 1) * bytes]),
                                  Bytes(&samples[(y * 180 + x * 2) * bytes], &samples[(y * 180 + x * 2 + 1) * bytes]));
            }
}

TEST(Resize, ReadsAndWritesJpeg) {
    const Folder folder;
    for (int format : {TJPF_GRAY, TJPF_RGB}) {
        const int channels = format == TJPF_GRAY ? 1 : 3;
        makeJpeg(folder / "in.JPG", kSize, format, gradient(kSize, channels));
        expectSuccess(run(folder, {"in.JPG", "out.JPG", "--size", "180x120"}));
        const Bytes twice = decodeJpeg(folder / "out.JPG", {180, 120}, format);
        expectSuccess(run(folder, {"out.JPG", "out.png", "--scale", "0.5"}));
        expectNear(decodePng(folder / "out.png", kSize, channels), gradient(kSize, channels), 8);
        expectNear(pixel(twice, 180, channels, 90, 60), pixel(gradient(kSize, channels), 90, channels, 45, 30), 8);
    }
}

TEST(Resize, ReducesToEightBitsForJpeg) {
    const Folder folder;
    Bytes samples;
    for (unsigned char sample : gradient(kSize, 3)) samples.insert(samples.end(), {sample, sample});
    makePng(folder / "in.png", kSize, {PNG_COLOR_TYPE_RGB, 16}, samples);
    expectSuccess(run(folder, {"in.png", "out.jpg", "--scale", "1"}));
    expectNear(decodeJpeg(folder / "out.jpg", kSize, TJPF_RGB), gradient(kSize, 3), 6);
}

TEST(Resize, GreyWithAlphaAndPalettesBecomeColours) {
    const Folder folder;
    makePng(folder / "in.png", {2, 1}, {PNG_COLOR_TYPE_GRAY_ALPHA, 8}, {9, 200, 90, 0});
    expectSuccess(run(folder, {"in.png", "out.png", "--scale", "1", "--method", "nearest"}));
    EXPECT_EQ(decodePng(folder / "out.png", {2, 1}, 4), Bytes({9, 9, 9, 200, 90, 90, 90, 0}));
    makePng(folder / "in.png", {2, 1}, {PNG_COLOR_TYPE_PALETTE, 8, false, {1, 2, 3, 40, 50, 60}}, {1, 0});
    expectSuccess(run(folder, {"in.png", "out.png", "--scale", "1", "--method", "nearest"}));
    EXPECT_EQ(decodePng(folder / "out.png", {2, 1}, 3), Bytes({40, 50, 60, 1, 2, 3}));
}

TEST(Resize, ThreadsAndTilesDoNotChangeThePixels) {
    const Folder folder;
    makePhoto(folder / "in.png", {700, 500});
    for (const char* size : {"333x222", "900x1100"}) {
        expectSuccess(run(folder, {"in.png", "one.png", "--size", size, "--threads", "1"}));
        expectSuccess(run(folder, {"in.png", "many.png", "--size", size, "--threads", "5"}));
        expectSuccess(run(folder, {"in.png", "tiles.png", "--size", size, "--threads", "3", "--tile", "33x7"}));
        EXPECT_EQ(load(folder / "one.png"), load(folder / "many.png")) << size;
        EXPECT_EQ(load(folder / "one.png"), load(folder / "tiles.png")) << size;
    }
}

TEST(Resize, TakesEveryMethod) {
    const Folder folder;
    makePng(folder / "in.png", {60, 60}, {PNG_COLOR_TYPE_GRAY, 16}, gradient({60, 60}, 2));
    std::vector<Bytes> results;
    for (const auto& method : methods()) {
        const Outcome outcome = run(folder, {"in.png", "out.png", "--size", "23x37", "--method", method.name});
        expectSuccess(outcome);
        EXPECT_CONTAINS(outcome.out, std::string("): ") + method.name);
        for (const Bytes& other : results) EXPECT_NE(load(folder / "out.png"), other) << method.name << " is as one before it";
        results.push_back(load(folder / "out.png"));
    }
    expectSuccess(run(folder, {"in.png", "out.png", "--size", "23x37", "--method", "cubic", "--b", "1", "--c", "0"}));
    EXPECT_NE(load(folder / "out.png"), results[2]);
}

TEST(Resize, FindsTheSize) {
    const struct {
        const char *option, *value;
        KvriSize expected;
    } kCases[] = {{"--size", "7x200", {7, 200}}, {"--scale", "1.5", {135, 90}}, {"--scale", "0.001", {1, 1}},
                  {"--fit", "45x45", {45, 30}},  {"--fit", "300x60", {90, 60}}, {"--fit", "200x200", {200, 133}}};
    const Folder folder;
    makePhoto(folder / "in.png");
    for (const auto& c : kCases) {
        const Outcome outcome = run(folder, {"in.png", "out.png", c.option, c.value});
        expectSuccess(outcome);
        EXPECT_CONTAINS(outcome.out, "in.png (90 x 60, 8-bit RGB) -> out.png (" + toString(c.expected) + ")");
        decodePng(folder / "out.png", c.expected, 3);
    }
}

TEST(Resize, SendsSeveralPicturesToAFolder) {
    const Folder folder;
    fs::create_directories(folder / "small/already");
    makePhoto(folder / "a.png");
    makeJpeg(folder / "b.jpg", kSize, TJPF_RGB, gradient(kSize, 3));
    expectSuccess(run(folder, {"a.png", "b.jpg", "small", "--fit", "45x45"}));
    decodePng(folder / "small/a.png", {45, 30}, 3);
    decodeJpeg(folder / "small/b.jpg", {45, 30}, TJPF_RGB);
    expectSuccess(run(folder, {"a.png", "small/already/", "--scale", "2"}));
    decodePng(folder / "small/already/a.png", {180, 120}, 3);

    expectFailure(run(folder, {"a.png", "b.jpg", "missing", "--scale", "1"}), 3, "the folder 'missing' does not exist");
    expectFailure(run(folder, {"a.png", "missing/", "--scale", "1"}), 3, "the folder 'missing/' does not exist");
    expectFailure(run(folder, {"a.png", "missing/a.png", "--scale", "1"}), 3, "cannot write 'missing/a.png': No such file");
    expectFailure(run(folder, {"a.png", "b.jpg", "a.png", "--scale", "1"}), 1, "'a.png' is a file");
    expectFailure(run(folder, {"a.png", "small/a.png", "small", "--scale", "1"}), 1, "two pictures would become 'small/a.png'");
}

TEST(Resize, OnePictureThatFailsDoesNotStopTheOthers) {
    const Folder folder;
    fs::create_directory(folder / "out");
    makePhoto(folder / "a.png");
    makePhoto(folder / "half.png");
    cut(folder / "half.png");
    makePhoto(folder / "z.png");
    const Outcome outcome = run(folder, {"a.png", "half.png", "missing.png", "z.png", "out", "--scale", "0.5"});
    expectFailure(outcome, 2, "cannot read 'half.png': damaged PNG: the file is truncated");
    EXPECT_CONTAINS(outcome.error, "cannot read 'missing.png': No such file");
    decodePng(folder / "out/a.png", {45, 30}, 3);
    decodePng(folder / "out/z.png", {45, 30}, 3);
    EXPECT_FALSE(fs::exists(folder / "out/half.png"));
}

TEST(Resize, ReplacesItsOwnInputWhenItIsRead) {
    const Folder folder;
    const KvriSize size{200, 300};
    Bytes samples(size_t(size.width) * size.height * 3);  // more than is read at a time
    for (unsigned i = 0; i < samples.size(); ++i) samples[i] = (unsigned char)(i * i * 40503 >> 9);
    makePng(folder / "in.png", size, {PNG_COLOR_TYPE_RGB, 8}, samples);
    ASSERT_GT(fs::file_size(folder / "in.png"), 50'000u);
    expectSuccess(run(folder, {"in.png", "in.png", "--scale", "2"}));
    decodePng(folder / "in.png", {400, 600}, 3);
    EXPECT_EQ(files(folder), 1);
}

TEST(Resize, LeavesNothingBehindWhenAPictureIsDamaged) {
    const Folder folder;
    makePhoto(folder / "in.png", {300, 300});
    cut(folder / "in.png");
    makeJpeg(folder / "in.jpg", {300, 300}, TJPF_RGB, gradient({300, 300}, 3));
    cut(folder / "in.jpg");
    save(folder / "old.png", {1, 2, 3});
    for (const char* method : {"nearest", "aa-lanczos3"}) {
        expectFailure(run(folder, {"in.png", "old.png", "--scale", "0.1", "--method", method}), 2, "the file is truncated");
        expectFailure(run(folder, {"in.jpg", "new.png", "--scale", "0.1", "--method", method}), 2, "cannot read 'in.jpg': damaged JPEG");
    }
    EXPECT_EQ(load(folder / "old.png"), Bytes({1, 2, 3}));
    EXPECT_EQ(files(folder), 3);
}

TEST(Resize, ReportsFilesThatCannotBeReadOrWritten) {
    const Folder folder;
    makePhoto(folder / "in.png");
    save(folder / "note.txt", {'h', 'e', 'l', 'l', 'o'});
    makePng(folder / "alpha.png", kSize, {PNG_COLOR_TYPE_RGBA, 8}, gradient(kSize, 4));
    fs::create_symlink("/dev/full", folder / "full.png");
    fs::create_symlink("/dev/full", folder / "full.jpg");
    expectFailure(run(folder, {"missing.png", "out.png", "--scale", "1"}), 2, "cannot read 'missing.png': No such file or directory");
    expectFailure(run(folder, {"note.txt", "out.png", "--scale", "1"}), 2, "cannot read 'note.txt': neither a PNG nor a JPEG image");
    expectFailure(run(folder, {"in.png", "out.gif", "--scale", "1"}), 3, "the name ends in none of .png, .jpg, .jpeg");
    expectFailure(run(folder, {"alpha.png", "out.jpg", "--scale", "1"}), 3, "cannot write 'out.jpg': a JPEG cannot hold alpha");
    expectFailure(run(folder, {"in.png", "full.png", "--scale", "1"}), 3, "cannot write 'full.png': No space left on device");
    expectFailure(run(folder, {"in.png", "full.jpg", "--scale", "1"}), 3, "cannot write 'full.jpg': No space left on device");
    expectFailure(run(folder, {"in.png", "out.jpg", "--size", "70000x1"}), 3, "65500");
    EXPECT_EQ(files(folder), 5);
}

TEST(Resize, ReportsWrongUsage) {
    const Folder folder;
    makePhoto(folder / "in.png");
    const struct {
        std::vector<std::string> arguments;
        const char* message;
    } kCases[] = {{{}, "IN... OUT"},
                  {{"in.png", "--scale", "1"}, "at least one picture"},
                  {{"in.png", "out.png"}, "one of --size, --fit and --scale"},
                  {{"in.png", "out.png", "--scale", "2", "--fit", "3x3"}, "one of --size, --fit and --scale"},
                  {{"in.png", "out.png", "--size", "0x60"}, "'0x60' is not WIDTHxHEIGHT"},
                  {{"in.png", "out.png", "--size", "90"}, "'90' is not WIDTHxHEIGHT"},
                  {{"in.png", "out.png", "--fit", "9x9x9"}, "'9x9x9' is not WIDTHxHEIGHT"},
                  {{"in.png", "out.png", "--fit", "-4x9"}, "'-4x9' is not WIDTHxHEIGHT"},
                  {{"in.png", "out.png", "--tile", "0x0", "--scale", "1"}, "'0x0' is not WIDTHxHEIGHT"},
                  {{"in.png", "out.png", "--scale", "0"}, "--scale"},
                  {{"in.png", "out.png", "--scale", "1e9"}, "more than a million pixels"},
                  {{"in.png", "out.png", "--scale", "1", "--threads", "0"}, "--threads"},
                  {{"in.png", "out.png", "--scale", "1", "--method", "magic"}, "magic"},
                  {{"in.png", "out.png", "--scale", "1.1", "--method", "super"}, "super does not enlarge"},
                  {{"in.png", "out.png", "--scale", "1", "--wrong"}, "--wrong"},
                  {{"in.png", "out.png", "--scale", "1", "--zone-plate", "9x9"}, "--zone-plate"}};
    for (const auto& c : kCases) expectFailure(run(folder, c.arguments), 1, c.message);
    EXPECT_EQ(files(folder), 1);

    makePhoto(folder / "tiny.png", {3, 9});
    expectFailure(run(folder, {"tiny.png", "out.png", "--scale", "2"}), 1,
                  "aa-lanczos3 needs a picture of at least 6 x 6 pixels, this one has 3 x 9");
}

TEST(Resize, ComparesMethodsOnOneSheet) {
    const Folder folder;
    makePhoto(folder / "in.png", {1000, 600});
    const KvriSize page{20 + 5 * 220, 64 + 2 * 188};  // five columns, two rows
    const Outcome outcome = run(folder, {"in.png", "sheet.png", "--fit", "200x200", "--compare"});
    expectSuccess(outcome);
    const Bytes sheet = decodePng(folder / "sheet.png", page, 3);
    for (size_t i = 0; i < methods().size(); ++i) {
        EXPECT_CONTAINS(outcome.out, methods()[i].name);
        // The middle of each result: 500, 300 of the picture.
        const int x = 20 + int(i) % 5 * 220 + 100, y = 64 + int(i) / 5 * 188 + 60;
        expectNear(pixel(sheet, page.width, 3, x, y), pixel(gradient({1000, 600}, 3), 1000, 3, 500, 300), 4);
    }

    expectSuccess(run(folder, {"in.png", "sheet.jpg", "--size", "1200x700", "--compare"}));
    decodeJpeg(folder / "sheet.jpg", {20 + 5 * 1220, 64 + 2 * 768}, TJPF_RGB);  // super has an empty place
}

TEST(Resize, TakesAZonePlate) {
    const Folder folder;
    expectSuccess(run(folder, {"plate.png", "--zone-plate", "101x201", "--scale", "1"}));
    const Bytes plate = decodePng(folder / "plate.png", {101, 201}, 1);
    EXPECT_EQ(plate[100 * 101 + 50], 255) << "the centre";
    for (size_t i = 0; i < plate.size(); ++i) ASSERT_EQ(plate[i], plate[plate.size() - 1 - i]) << "sample " << i;
    EXPECT_GT(std::abs(plate[100 * 101 + 100] - plate[100 * 101 + 99]), 180) << "finest at the edge";
}

// A segment of a JPEG file behind its first mark.
void insertSegment(const fs::path& path, unsigned char marker, const std::string& name, const Bytes& content) {
    Bytes file = load(path), segment{0xFF, marker};
    const size_t length = 2 + name.size() + content.size();
    segment.insert(segment.end(), {(unsigned char)(length >> 8), (unsigned char)length});
    segment.insert(segment.end(), name.begin(), name.end());
    segment.insert(segment.end(), content.begin(), content.end());
    file.insert(file.begin() + 2, segment.begin(), segment.end());
    save(path, file);
}

// What codecs require of an ICC profile: its size, kind, colours, signature and white point. Behind the header are bytes that
// do not compress; libpng takes a short chunk for a damaged one.
Bytes colourProfile() {
    Bytes icc(132);
    for (unsigned i = 0; i < 300; ++i) icc.push_back((unsigned char)(i * i * 40503 >> 7));
    const auto put = [&](size_t at, const std::string& text) { std::copy(text.begin(), text.end(), icc.begin() + ptrdiff_t(at)); };
    icc[2] = (unsigned char)(icc.size() >> 8), icc[3] = (unsigned char)icc.size();
    put(12, "mntrRGB XYZ ");
    put(36, "acsp");
    put(68, {0, 0, '\xF6', '\xD6', 0, 1, 0, 0, 0, 0, '\xD3', '\x2D'});
    return icc;
}

TEST(Resize, KeepsColourProfileAndExif) {
    const Folder folder;
    const Bytes icc = colourProfile();
    const Bytes exif{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1, 1, 0x12, 0, 3, 0, 0, 0, 1, 0, 6, 0, 0, 0, 0, 0, 0};  // turned to the right
    makeJpeg(folder / "in.jpg", kSize, TJPF_RGB, gradient(kSize, 3));
    insertSegment(folder / "in.jpg", 0xE2, std::string("ICC_PROFILE\0\1\1", 14), icc);
    insertSegment(folder / "in.jpg", 0xE1, std::string("Exif\0\0", 6), exif);
    expectSuccess(run(folder, {"in.jpg", "a.jpg", "--scale", "0.5"}));
    expectSuccess(run(folder, {"in.jpg", "b.png", "--scale", "0.5"}));
    expectSuccess(run(folder, {"b.png", "c.png", "--scale", "2"}));
    expectSuccess(run(folder, {"c.png", "d.jpg", "--scale", "2"}));
    for (const char* name : {"a.jpg", "d.jpg"})
        for (const Bytes& part : {icc, exif}) {
            const Bytes file = load(folder / name);
            const auto found = std::search(file.begin(), file.end(), part.begin(), part.end());
            EXPECT_NE(found, file.end()) << name << ", " << part.size() << " bytes";
        }
}

#ifndef __SANITIZE_ADDRESS__
TEST(Resize, HoldsOnlyTheRowsAtWork) {
    const Folder folder;
    const KvriSize size{5000, 20000};  // 100 MB
    makePng(folder / "in.png", size, {PNG_COLOR_TYPE_GRAY, 8}, Bytes(size_t(size.width) * size.height, 77));
    for (const char* method : {"nearest", "aa-lanczos3"}) {
        const Outcome outcome = run(folder, {"in.png", "out.png", "--scale", "0.1", "--method", method});
        expectSuccess(outcome);
        EXPECT_LT(outcome.kilobytes, 50'000) << method;
        EXPECT_EQ(decodePng(folder / "out.png", {500, 2000}, 1), Bytes(500 * 2000, 77));
    }
}
#endif

TEST(Resize, Helps) {
    const Folder folder;
    const Outcome help = run(folder, {"--help"});
    expectSuccess(help);
    for (const char* part : {"IN... OUT", "--size", "--fit", "--scale", "--method", "--threads", "--tile", "--compare", "Exit codes"})
        EXPECT_CONTAINS(help.out, part);
    for (const auto& method : methods()) EXPECT_CONTAINS(help.out, method.name);
    EXPECT_CONTAINS(run(folder, {"--version"}).out, kvriGetLibVersion()->version);
}

}  // namespace
