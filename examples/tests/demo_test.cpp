// examples/tests/demo_test.cpp: the program from end to end.
#include <gtest/gtest.h>
#include <png.h>
#include <turbojpeg.h>

#include <algorithm>
#include <fstream>

#include "steps.h"
#include "support.h"

namespace {

using namespace test;
namespace fs = std::filesystem;

constexpr KvriSize kSize{90, 60};

Bytes photo() { return gradient(kSize, 3); }

void makePhoto(const fs::path& path) { makePng(path, kSize, {PNG_COLOR_TYPE_RGB, 8}, photo()); }

// The samples of the pixel at (x, y).
Bytes pixel(const Bytes& samples, int channels, int x, int y) {
    const auto first = samples.begin() + (ptrdiff_t(y) * kSize.width + x) * channels;
    return {first, first + channels};
}

// Each sample of the picture, made from the photograph's pixel.
template <class Change>
Bytes changed(Change change) {
    Bytes samples = photo();
    for (size_t i = 0; i < samples.size(); i += 3) change(&samples[i], int(i / 3) % kSize.width);
    return samples;
}

Outcome run(const Folder& folder, const std::vector<std::string>& arguments) { return test::run(KVRI_DEMO, folder, arguments); }

// Steps make what they say: the pictures of a PNG, whose pixels are known.
class Pictures : public testing::Test {
protected:
    static inline std::unique_ptr<Folder> folder;

    static void SetUpTestSuite() {
        folder = std::make_unique<Folder>();
        makePhoto(*folder / "photo.png");
        expectSuccess(run(*folder, {"photo.png", "--out", "new/pictures", "--repeat", "2"}));
    }
    static void TearDownTestSuite() { folder.reset(); }
    static fs::path picture(const std::string& name) { return *folder / "new/pictures" / name; }
    static Bytes jpeg(const std::string& name) { return decodeJpeg(picture(name), kSize, TJPF_RGB); }
};

TEST_F(Pictures, Copy) { expectNear(jpeg("01-copy.jpg"), photo(), 8); }

TEST_F(Pictures, PlanesFromLeftToRight) {
    const Bytes planes = decodeJpeg(picture("02-planes.jpg"), {90, 20}, TJPF_GRAY);
    for (int c = 0; c < 3; ++c)
        for (int x : {2, 15, 27}) {
            const int expected = pixel(photo(), 3, 3 * x, 30)[size_t(c)];
            EXPECT_NEAR(planes[size_t(10 * 90 + 30 * c + x)], expected, 10) << "channel " << c << ", column " << x;
        }
}

TEST_F(Pictures, Bands) {
    const Bytes bands = jpeg("03-bands.jpg");
    for (int x : {4, 25, 34, 55, 64, 85}) {  // not at the edges of the bands, where JPEG blurs
        Bytes expected(3, 0);
        expected[size_t(x / 30)] = pixel(photo(), 3, x, 30)[size_t(x / 30)];
        expectNear(pixel(bands, 3, x, 30), expected, 20);
    }
}

TEST_F(Pictures, Swapped) {
    expectNear(jpeg("04-swapped.jpg"), changed([](auto* p, int) { std::swap(p[0], p[2]); }), 8);
}

TEST_F(Pictures, Grey) {
    expectNear(jpeg("05-grey.jpg"), changed([](auto* p, int) { p[0] = p[2] = p[1]; }), 8);
}

TEST_F(Pictures, CutOut) {
    const Bytes cut = decodePng(picture("06-cut-out.png"), kSize, 4);
    int opaque = 0, clear = 0;
    for (int y = 0; y < kSize.height; ++y)
        for (int x = 0; x < kSize.width; ++x) {
            Bytes colour = pixel(cut, 4, x, y);
            opaque += colour[3] == 255;
            clear += colour[3] == 0;
            colour.pop_back();
            ASSERT_EQ(colour, pixel(photo(), 3, x, y)) << x << ", " << y;
        }
    EXPECT_NEAR(opaque, 3.1416 * 21.6 * 21.6, 100);  // the disc around (30, 24) reaches nine tenths of the way to the edge
    EXPECT_LT(kSize.width * kSize.height - opaque - clear, 200);
    EXPECT_EQ(pixel(cut, 4, 30, 24)[3], 255);
    EXPECT_EQ(pixel(cut, 4, 30, 47)[3], 0);
    EXPECT_EQ(pixel(cut, 4, 53, 24)[3], 0);
}

TEST_F(Pictures, PosterIsDarkWhereThePhotographIsDark) {
    const Bytes poster = jpeg("07-poster.jpg");
    expectNear(pixel(poster, 3, 2, 2), {24, 32, 72}, 20);
    expectNear(pixel(poster, 3, 87, 57), {255, 244, 210}, 20);
}

TEST_F(Pictures, SplashIsColouredInTheDiscOnly) {
    const Bytes splash = jpeg("08-splash.jpg");
    expectNear(pixel(splash, 3, 30, 24), pixel(photo(), 3, 30, 24), 20);
    const int grey = pixel(photo(), 3, 80, 50)[1];
    expectNear(pixel(splash, 3, 80, 50), Bytes(3, (unsigned char)grey), 10);
}

TEST_F(Pictures, Reflection) {
    Bytes expected;
    for (int y = 0; y < kSize.height; ++y)
        for (int x = 0; x < kSize.width; ++x) {
            const Bytes p = pixel(photo(), 3, x, std::min(y, kSize.height - 1 - y));
            expected.insert(expected.end(), p.begin(), p.end());
        }
    expectNear(jpeg("09-reflection.jpg"), expected, 8);
}

TEST_F(Pictures, ContactSheetShowsThemAll) {
    const KvriSize page{1520, 3444};
    const Bytes sheet = decodePng(picture("contact-sheet.png"), page, 3);
    // A picture as small as these is shown as it is, at the left of its cell of 480 x 270 pixels.
    const auto shown = [&](int number, int x, int y) {
        const int left = 20 + (number - 1) % 3 * 500, top = 64 + (number - 1) / 3 * 338 + (270 - kSize.height) / 2;
        const size_t at = (size_t(top + y) * size_t(page.width) + size_t(left + x)) * 3;
        return Bytes(&sheet[at], &sheet[at + 3]);
    };
    for (int number = 1; number <= 9; ++number)
        EXPECT_NE(shown(number, 45, 30), Bytes(3, sheet[0])) << "picture " << number;
    EXPECT_EQ(shown(1, 0, 0), pixel(photo(), 3, 0, 0));
    EXPECT_EQ(shown(1, 89, 59), pixel(photo(), 3, 89, 59));
    EXPECT_EQ(shown(6, 30, 24), pixel(photo(), 3, 30, 24));
    EXPECT_EQ(shown(6, 85, 50), Bytes(3, 153)) << "the chequered ground";
    EXPECT_EQ(shown(6, 73, 50), Bytes(3, 204)) << "the chequered ground";
}

TEST(Call, ReportsFunctionAndStatus) {
    Kvr8u sample = 7;
    try {
        KVRI_CALL(kvriSet_8u_C1R)(Kvr8u{1}, &sample, 1, KvriSize{0, 1});
        FAIL() << "an empty region was filled";
    } catch (const demo::LibraryError& e) {
        EXPECT_CONTAINS(e.what(), "kvriSet_8u_C1R");
        EXPECT_CONTAINS(e.what(), std::to_string(kvrStatusBadSize));
    }
}

TEST(Demo, TableNamesEveryTimedFunction) {
    const Folder folder;
    makePhoto(folder / "photo.png");
    const Outcome outcome = run(folder, {"photo.png", "--repeat", "1"});
    expectSuccess(outcome);
    for (const char* function : {"kvriCopy_8u_C3R ", "kvriCopy_8u_C3P3R", "kvriCopy_8u_P3C3R", "kvriSwapChannels_8u_C3C4R",
                                 "kvriSet_8u_C3MR", "kvriCopy_8u_C3MR", "kvriDup_8u_C1C3R"})
        EXPECT_CONTAINS(outcome.out, function);
    EXPECT_CONTAINS(outcome.out, "90 x 30") << "the half that is turned upside down";
    EXPECT_TRUE(fs::exists(folder / "demo-out/contact-sheet.png"));
}

TEST(Demo, TakesJpeg) {
    const Folder folder;
    makeJpeg(folder / "photo.jpg", kSize, TJPF_RGB, photo());
    expectSuccess(run(folder, {"photo.jpg", "--out", "out"}));
    expectNear(decodeJpeg(folder / "out/04-swapped.jpg", kSize, TJPF_BGR), photo(), 12);
}

TEST(Demo, TakesAnyFileName) {
    const Folder folder;
    for (const char* name : {"Löwenzahn & Gras.png", "latin1 caf\xE9.png", "no extension"}) {
        makePhoto(folder / name);
        const Outcome outcome = run(folder, {name});
        expectSuccess(outcome);
        EXPECT_CONTAINS(outcome.out, name);
    }
}

TEST(Demo, TakesGreyAndAlpha) {
    const Folder folder;
    makePng(folder / "grey.png", kSize, {PNG_COLOR_TYPE_GRAY, 8}, gradient(kSize, 1));
    expectSuccess(run(folder, {"grey.png", "--out", "grey"}));
    expectNear(decodeJpeg(folder / "grey/01-copy.jpg", kSize, TJPF_GRAY), gradient(kSize, 1), 8);
    makePng(folder / "rgba.png", kSize, {PNG_COLOR_TYPE_RGBA, 8}, gradient(kSize, 4));
    expectSuccess(run(folder, {"rgba.png", "--out", "rgba"}));
    expectNear(decodeJpeg(folder / "rgba/01-copy.jpg", kSize, TJPF_RGB), photo(), 8);
}

TEST(Demo, TakesTheSmallestPictures) {
    const Folder folder;
    for (KvriSize size : {KvriSize{1, 1}, {2, 1}, {1, 2}, {1, 900}, {900, 1}}) {
        makePng(folder / "small.png", size, {PNG_COLOR_TYPE_RGB, 8}, Bytes(size_t(size.width) * size.height * 3, 99));
        expectSuccess(run(folder, {"small.png", "--out", "out"}));
        expectNear(decodeJpeg(folder / "out/09-reflection.jpg", size, TJPF_RGB),
                   Bytes(size_t(size.width) * size.height * 3, 99), 4);
    }
}

TEST(Demo, WithoutArgumentsTakesTheDefaultPhotograph) {
    const Folder folder;
    const Outcome outcome = run(folder, {});
    if (fs::exists("/usr/share/backgrounds/seeding_by_Clements_Engelhardt.jpg")) {
        expectSuccess(outcome);
        EXPECT_CONTAINS(outcome.out, "Clements Engelhardt, CC0");
        decodeJpeg(folder / "demo-out/01-copy.jpg", {5312, 2988}, TJPF_RGB);
    } else {
        expectFailure(outcome, 2, "install the package lomiri-wallpapers-16.04");
    }
}

TEST(Demo, RefusesWhatIsNoPhotograph) {
    const Folder folder;
    expectFailure(run(folder, {"missing.png"}), 2, "cannot read 'missing.png': No such file or directory");
    std::ofstream(folder / "note.txt") << "not a picture\n";
    expectFailure(run(folder, {"note.txt"}), 2, "cannot read 'note.txt': neither a PNG nor a JPEG image");
    EXPECT_FALSE(fs::exists(folder / "demo-out")) << "made before the photograph was read";
}

TEST(Demo, RefusesTruncatedPhotographs) {
    const Folder folder;
    makePhoto(folder / "half.png");
    fs::resize_file(folder / "half.png", fs::file_size(folder / "half.png") / 2);
    expectFailure(run(folder, {"half.png"}), 2, "cannot read 'half.png': damaged PNG: the file is truncated");
    makeJpeg(folder / "half.jpg", kSize, TJPF_RGB, photo());
    fs::resize_file(folder / "half.jpg", fs::file_size(folder / "half.jpg") / 2);
    expectFailure(run(folder, {"half.jpg"}), 2, "cannot read 'half.jpg': damaged JPEG: ");
}

TEST(Demo, ReportsPicturesThatCannotBeWritten) {
    const Folder folder;
    makePhoto(folder / "photo.png");
    std::ofstream(folder / "file") << "in the way\n";
    expectFailure(run(folder, {"photo.png", "--out", "file"}), 3, "cannot make the folder 'file'");
    fs::create_directories(folder / "taken/01-copy.jpg");
    expectFailure(run(folder, {"photo.png", "--out", "taken"}), 3, "cannot write 'taken/01-copy.jpg': Is a directory");
    fs::create_directory(folder / "full");
    fs::create_symlink("/dev/full", folder / "full/contact-sheet.png");
    expectFailure(run(folder, {"photo.png", "--out", "full"}), 3, "cannot write 'full/contact-sheet.png': No space left");
}

TEST(Demo, ReportsWrongUsage) {
    const Folder folder;
    expectFailure(run(folder, {"--wrong"}), 1, "--wrong");
    expectFailure(run(folder, {"--repeat", "0"}), 1, "--repeat");
    expectFailure(run(folder, {"one.png", "two.png"}), 1, "two.png");
    EXPECT_FALSE(fs::exists(folder / "demo-out"));
}

TEST(Demo, Helps) {
    const Folder folder;
    const Outcome help = run(folder, {"--help"});
    expectSuccess(help);
    for (const char* option : {"photo", "--out", "--repeat", "--progress", "Exit codes"}) EXPECT_CONTAINS(help.out, option);
    const Outcome version = run(folder, {"--version"});
    expectSuccess(version);
    EXPECT_CONTAINS(version.out, kvriGetLibVersion()->version);
}

TEST(Demo, ReportsProgressOnRequest) {
    const Folder folder;
    makePhoto(folder / "photo.png");
    const Outcome outcome = run(folder, {"photo.png", "--progress"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(std::count(outcome.error.begin(), outcome.error.end(), '\n'), ptrdiff_t(demo::steps().size()));
    EXPECT_CONTAINS(outcome.error, "[28/28] highlights");
}

}  // namespace
