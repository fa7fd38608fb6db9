// examples/demo.cpp: takes a photograph through the library and writes the pictures and a table of times.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "contact_sheet.h"
#include "convert.h"
#include "image_io.h"
#include "program.h"
#include "progress.h"
#include "steps.h"

namespace {

using namespace demo;
namespace fs = std::filesystem;

const fs::path kDefaultPhoto = "/usr/share/backgrounds/seeding_by_Clements_Engelhardt.jpg";
constexpr const char* kDefaultPhotoCredit = "photograph by Clements Engelhardt, CC0";
constexpr const char* kDefaultPhotoPackage = "lomiri-wallpapers-16.04";

struct Options {
    fs::path photo = kDefaultPhoto, out = "demo-out";
    int repeats = 5;
    bool progress = false;
};

void declare(CLI::App& app, Options& options) {
    app.add_option("photo", options.photo, "PNG or JPEG; where none is given, a photograph of the package " +
                                               std::string(kDefaultPhotoPackage))
        ->type_name("FILE");
    app.add_option("--out", options.out, "folder for the pictures, made where it is missing")
        ->type_name("DIR")
        ->capture_default_str();
    app.add_option("--repeat", options.repeats, "runs per function, the best of which counts")
        ->check(CLI::Range(1, 1000))
        ->capture_default_str();
    app.add_flag("--progress", options.progress, "report progress even where stderr is no terminal");
    app.set_version_flag("--version", libraryVersion());
    app.footer("Exit codes: 0 success, 1 usage, 2 the photograph cannot be read, 3 a picture cannot be written,\n"
               "4 a failure in the library or the program.");
}

Rgb readPhoto(const fs::path& path) {
    if (path == kDefaultPhoto && !fs::exists(path))
        throw InputError("'" + path.string() + "' is not there: install the package " + kDefaultPhotoPackage +
                         " or name a PNG or JPEG file");
    AnyImage image = readImage(path);
    if (const auto* grey = std::get_if<Grey>(&image)) return toRgb(*grey);
    if (const auto* rgba = std::get_if<Rgba>(&image)) return withoutAlpha(*rgba);
    return std::get<Rgb>(std::move(image));
}

void makeFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) throw OutputError("cannot make the folder '" + path.string() + "': " + error.message());
}

std::string fileName(int number, const Step& step, const AnyImage& picture) {
    std::ostringstream name;
    name << std::setfill('0') << std::setw(2) << number << '-' << step.name
         << (std::holds_alternative<Rgba>(picture) ? ".png" : ".jpg");
    return name.str();
}

// Writes every picture and returns the page that shows them all.
Rgb makePictures(const Rgb& photo, const std::string& title, const Options& options, Bench& bench) {
    const auto all = steps();
    Progress progress(int(all.size()), options.progress);
    ContactSheet sheet(title, int(all.size()));
    int number = 0;
    for (const Step& step : all) {
        progress.next(step.name);
        const AnyImage picture = step.make(photo, bench);
        writeImage(options.out / fileName(++number, step, picture), picture);
        sheet.add(picture, step.caption, step.functions);
    }
    return std::move(sheet).page();
}

void run(const Options& options) {
    const Rgb photo = readPhoto(options.photo);
    makeFolder(options.out);
    std::cout << libraryVersion() << " on " << kvriGetLibVersion()->name << '\n'
              << options.photo.string() << ", " << toString(photo.size())
              << (options.photo == kDefaultPhoto ? std::string(", ") + kDefaultPhotoCredit : "") << "\n\n";

    Bench bench(options.repeats);
    const std::string title =
        libraryVersion() + " - " + options.photo.filename().string() + ", " + toString(photo.size()) + " pixels";
    const fs::path sheet = options.out / "contact-sheet.png";
    writeImage(sheet, makePictures(photo, title, options, bench));

    bench.print(std::cout);
    std::cout << "\nBest of " << options.repeats << " runs; GB/s counts the bytes that must be read and written.\n"
              << "Planes joined again and alpha dropped again: identical to the photograph.\n"
              << "Pictures in " << fs::absolute(options.out).lexically_normal().string() << ", all at a glance in "
              << sheet.filename().string() << '\n';
}

int fail(ExitCode code, const std::exception& error) {
    std::cerr << "kvri-demo: " << error.what() << '\n';
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    CLI::App app("Takes a photograph through the functions of kvri; writes the pictures and prints a table of times.",
                 "kvri-demo");
    declare(app, options);
    try {
        app.parse(argc, argv);
        run(options);
        return kSuccess;
    } catch (const CLI::ParseError& e) {
        return app.exit(e) == 0 ? kSuccess : kUsage;
    } catch (const InputError& e) {
        return fail(kInput, e);
    } catch (const OutputError& e) {
        return fail(kOutput, e);
    } catch (const std::exception& e) {
        return fail(kFailure, e);
    }
}
