#include "support.h"

#include <png.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <turbojpeg.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace test {
namespace fs = std::filesystem;

Folder::Folder() {
    std::string name = fs::temp_directory_path() / "kvri-demo-XXXXXX";
    if (!mkdtemp(name.data())) throw std::runtime_error("cannot make " + name);
    path_ = name;
}

Folder::~Folder() { fs::remove_all(path_); }

Bytes load(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void save(const fs::path& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
}

void makePng(const fs::path& path, KvriSize size, const PngKind& kind, Bytes samples) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    FILE* file = std::fopen(path.c_str(), "wb");
    png_init_io(png, file);
    png_set_IHDR(png, info, png_uint_32(size.width), png_uint_32(size.height), kind.bitDepth, kind.colourType,
                 kind.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (!kind.palette.empty())
        png_set_PLTE(png, info, reinterpret_cast<png_const_colorp>(kind.palette.data()), int(kind.palette.size() / 3));
    if (!kind.paletteAlpha.empty())
        png_set_tRNS(png, info, kind.paletteAlpha.data(), int(kind.paletteAlpha.size()), nullptr);
    std::vector<png_bytep> rows;
    const size_t rowBytes = samples.size() / size_t(size.height);
    for (int y = 0; y < size.height; ++y) rows.push_back(&samples[size_t(y) * rowBytes]);
    png_set_rows(png, info, rows.data());
    png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    png_destroy_write_struct(&png, &info);
    std::fclose(file);
}

Bytes decodePng(const fs::path& path, KvriSize size, int channels, int bits) {
    const int colourType = channels == 1 ? PNG_COLOR_TYPE_GRAY : channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGBA;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    FILE* file = std::fopen(path.c_str(), "rb");
    EXPECT_TRUE(file) << path;
    if (!file) return {};
    png_init_io(png, file);
    png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    EXPECT_EQ(png_get_color_type(png, info), colourType) << path;
    EXPECT_EQ(png_get_bit_depth(png, info), bits) << path;
    EXPECT_EQ(int(png_get_image_width(png, info)), size.width) << path;
    EXPECT_EQ(int(png_get_image_height(png, info)), size.height) << path;
    Bytes samples;
    for (png_uint_32 y = 0; y < png_get_image_height(png, info); ++y) {
        png_const_bytep row = png_get_rows(png, info)[y];
        samples.insert(samples.end(), row, row + png_get_rowbytes(png, info));
    }
    png_destroy_read_struct(&png, &info, nullptr);
    std::fclose(file);
    return samples;
}

void makeJpeg(const fs::path& path, KvriSize size, int pixelFormat, const Bytes& samples) {
    tjhandle codec = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long count = 0;
    const int subsampling = pixelFormat == TJPF_GRAY ? TJSAMP_GRAY : TJSAMP_444;
    EXPECT_EQ(tjCompress2(codec, samples.data(), size.width, 0, size.height, pixelFormat, &bytes, &count, subsampling, 95, 0), 0)
        << tjGetErrorStr2(codec);
    save(path, {bytes, bytes + count});
    tjFree(bytes);
    tjDestroy(codec);
}

Bytes decodeJpeg(const fs::path& path, KvriSize size, int pixelFormat) {
    const Bytes file = load(path);
    tjhandle codec = tjInitDecompress();
    KvriSize actual{};
    int subsampling, colours;
    EXPECT_EQ(tjDecompressHeader3(codec, file.data(), file.size(), &actual.width, &actual.height, &subsampling, &colours), 0)
        << path << tjGetErrorStr2(codec);
    EXPECT_EQ(actual.width, size.width) << path;
    EXPECT_EQ(actual.height, size.height) << path;
    Bytes samples(size_t(actual.width) * actual.height * tjPixelSize[pixelFormat]);
    EXPECT_EQ(tjDecompress2(codec, file.data(), file.size(), samples.data(), 0, 0, 0, pixelFormat, 0), 0) << path;
    tjDestroy(codec);
    return samples;
}

Bytes gradient(KvriSize size, int channels) {
    Bytes samples;
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < channels; ++c) samples.push_back((unsigned char)(10 + 55 * c + x + y / 2));
    return samples;
}

void expectNear(const Bytes& actual, const Bytes& expected, int tolerance) {
    ASSERT_EQ(actual.size(), expected.size());
    for (size_t i = 0; i < actual.size(); ++i) ASSERT_NEAR(actual[i], expected[i], tolerance) << "sample " << i;
}

namespace {

[[noreturn]] void execute(const char* program, const Folder& folder, const std::vector<std::string>& arguments, const fs::path& out,
                          const fs::path& error) {
    std::vector<char*> argv{const_cast<char*>(program)};
    for (const std::string& a : arguments) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    if (std::freopen(out.c_str(), "w", stdout) && std::freopen(error.c_str(), "w", stderr) && chdir(folder.path().c_str()) == 0)
        execv(program, argv.data());
    _exit(127);
}

std::string text(const fs::path& path) {
    const Bytes bytes = load(path);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

Outcome run(const char* program, const Folder& folder, const std::vector<std::string>& arguments) {
    const Folder reports;
    const fs::path out = reports / "out", error = reports / "error";
    const pid_t child = fork();
    if (child == 0) execute(program, folder, arguments, out, error);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text(out), text(error), usage.ru_maxrss};
}

void expectSuccess(const Outcome& outcome) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    EXPECT_EQ(outcome.error, "");
}

void expectFailure(const Outcome& outcome, int code, const std::string& message) {
    EXPECT_EQ(outcome.exitCode, code) << outcome.out;
    EXPECT_CONTAINS(outcome.error, message);
}

}  // namespace test
