// examples/resize.cpp: resizes PNG and JPEG files.
#include <CLI/CLI.hpp>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <optional>
#include <thread>

#include "compare.h"
#include "image_io.h"
#include "program.h"
#include "progress.h"
#include "resizer.h"
#include "strips.h"
#include "table.h"
#include "zone_plate.h"

namespace {

using namespace demo;
namespace fs = std::filesystem;

struct Options {
    std::vector<fs::path> files;
    std::optional<KvriSize> size, fit, zonePlate;
    std::optional<double> scale;
    std::string method = "aa-lanczos3";
    CubicFamily cubic;
    Tiling tiling{std::max(1, int(std::thread::hardware_concurrency()))};
    bool compare = false, progress = false;
};

struct Job {
    fs::path from, to;
};

// ---- the command line

KvriSize parseSize(const std::string& option, const std::string& text) {
    KvriSize size{};
    char end;
    if (std::sscanf(text.c_str(), "%9dx%9d%c", &size.width, &size.height, &end) != 2 || size.width < 1 || size.height < 1)
        throw CLI::ValidationError(option, "'" + text + "' is not WIDTHxHEIGHT, both at least 1");
    return size;
}

template <class Size>
CLI::Option* addSize(CLI::App& app, const std::string& name, Size& size, const std::string& description) {
    const auto parse = [name, &size](const std::string& text) { size = parseSize(name, text); };
    return app.add_option_function<std::string>(name, parse, description)->type_name("WxH");
}

void declare(CLI::App& app, Options& options) {
    app.add_option("IN... OUT", options.files, "PNG or JPEG: one or more to read, then the file, or an existing folder, to write")
        ->option_text(" ")
        ->required();

    const char* const kSizes = "Size of the result, one of";
    addSize(app, "--size", options.size, "width and height")->group(kSizes);
    addSize(app, "--fit", options.fit, "the largest size within these that keeps the proportions")->group(kSizes);
    app.add_option("--scale", options.scale, "factor on width and height")
        ->type_name("F")
        ->check(CLI::PositiveNumber)
        ->group(kSizes);

    std::vector<std::string> names;
    for (const Method& method : methods()) names.push_back(method.name);
    app.add_option("--method", options.method, CLI::detail::join(names, ", ") + "; aa: antialiased where the picture shrinks")
        ->check(CLI::IsMember(names))
        ->option_text("NAME=" + options.method);
    app.add_option("--b", options.cubic.b, "B of the cubic methods; B = 1, C = 0 is the B-spline")->capture_default_str();
    app.add_option("--c", options.cubic.c, "C of the cubic methods")->capture_default_str();
    app.add_flag("--compare", options.compare, "write one sheet that shows what every method makes of the picture");
    addSize(app, "--zone-plate", options.zonePlate, "take a test picture of this size, rings of every fineness, in place of IN");
    app.add_option("--threads", options.tiling.threads, "that share the work")
        ->check(CLI::Range(1, 1024))
        ->option_text("N=" + std::to_string(options.tiling.threads));
    addSize(app, "--tile", options.tiling.tile, "cut the work into tiles of this size");
    app.add_flag("--progress", options.progress, "report progress even where stderr is no terminal");
    app.set_version_flag("--version", libraryVersion());
    app.footer("The result has the samples (8 or 16 bits) and channels (grey, RGB, RGBA) of the input; JPEG has 8 bits and no\n"
               "alpha. Colour profile and EXIF data are kept. Mpixel/s counts the pixels of the result, and not the\n"
               "time for files.\n"
               "Exit codes: 0 success, 1 usage or sizes that the method does not allow, 2 a picture cannot be read,\n"
               "3 a picture cannot be written, 4 a failure in the library or the program.");
}

// Pairs inputs with outputs.
std::vector<Job> jobsOf(const Options& options) {
    std::vector<fs::path> inputs(options.files.begin(), options.files.end() - 1);
    const fs::path& out = options.files.back();
    if (options.size.has_value() + options.fit.has_value() + options.scale.has_value() != 1)
        throw CLI::RequiredError("one of --size, --fit and --scale");
    if (options.zonePlate && !inputs.empty()) throw CLI::ValidationError("--zone-plate", "takes the place of IN, give OUT alone");
    if (options.zonePlate) inputs.push_back("zone-plate.png");
    if (inputs.empty()) throw CLI::ValidationError("files", "give at least one picture to read and then where to write");

    const bool folder = fs::is_directory(out) || !out.has_filename();
    if (inputs.size() > 1 && fs::exists(out) && !folder)
        throw CLI::ValidationError("files", "several pictures need a folder to go to, '" + out.string() + "' is a file");
    if ((inputs.size() > 1 || folder) && !fs::exists(out)) throw OutputError("the folder '" + out.string() + "' does not exist");

    std::vector<Job> jobs;
    for (const fs::path& in : inputs) {
        const fs::path to = folder ? out / in.filename() : out;
        for (const Job& other : jobs)
            if (other.to == to) throw CLI::ValidationError("files", "two pictures would become '" + to.string() + "'");
        jobs.push_back({in, to});
    }
    return jobs;
}

// ---- the work

constexpr int kLongest = 1'000'000;  // side of a picture; PNG's library takes no longer ones either

KvriSize scaled(KvriSize size, double factor) {
    const auto length = [&](int n) { return std::max(1, int(std::min(std::round(n * factor), kLongest + 1.0))); };
    return {length(size.width), length(size.height)};
}

KvriSize wantedSize(KvriSize source, const Options& options) {
    if (options.size) return *options.size;
    if (options.scale) return scaled(source, *options.scale);
    return scaled(source, std::min(double(options.fit->width) / source.width, double(options.fit->height) / source.height));
}

KvriSize sizeFor(KvriSize source, const Options& options) {
    const KvriSize size = wantedSize(source, options);
    if (std::max(size.width, size.height) > kLongest) throw SizeError("the result would have a side of more than a million pixels");
    return size;
}

std::unique_ptr<RowReader> open(const Job& job, const Options& options) {
    if (options.zonePlate) return std::make_unique<ZonePlate>(*options.zonePlate);
    return openPicture(job.from, options.compare ? Depth::Eight : Depth::AsStored);
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void resize(const Job& job, const Options& options, Progress& progress) {
    const auto start = std::chrono::steady_clock::now();
    const auto reader = open(job, options);
    const PictureInfo& from = reader->info();
    const KvriSize size = sizeFor(from.size, options);
    const Resizer resizer(methodOf(options.method), options.cubic, from.kind, from.size, size);
    const auto writer = createPicture(job.to, {size, from.kind, from.profile});
    const double seconds = resizeInStrips(*reader, *writer, resizer, options.tiling, [&](double done) { progress.part(done); });
    writer->finish();

    progress.clear();
    std::cout << job.from.string() << " (" << toString(from.size) << ", " << toString(from.kind) << ") -> " << job.to.string() << " ("
              << toString(size) << "): " << options.method << ", " << options.tiling.threads
              << (options.tiling.threads == 1 ? " thread, " : " threads, ") << decimal(seconds * 1e3, 1) << " ms, "
              << decimal(double(size.width) * size.height / seconds / 1e6, 1) << " Mpixel/s; with files "
              << decimal(secondsSince(start), 2) << " s\n";
}

void compare(const Job& job, const Options& options, Progress& progress) {
    const auto reader = open(job, options);
    const KvriSize from = reader->info().size, size = sizeFor(from, options);
    const std::string title = job.from.filename().string() + ", " + toString(from) + " pixels to " + toString(size);
    Comparison result = compareMethods(readAll(*reader), title, size, options.cubic, [&](double done) { progress.part(done); });
    writeImage(job.to, std::move(result.sheet));

    progress.clear();
    std::cout << job.from.string() << " (" << toString(from) << ") by every method to " << toString(size) << ", 1 thread\n";
    result.times.print(std::cout);
    std::cout << "all on one sheet: " << job.to.string() << '\n';
}

int fail(ExitCode code, const std::string& message) {
    std::cerr << "kvri-resize: " << message << '\n';
    return code;
}

template <class Work>
int reportingErrors(const Work& work) try {
    work();
    return kSuccess;
} catch (const SizeError& e) {
    return fail(kUsage, e.what());
} catch (const InputError& e) {
    return fail(kInput, e.what());
} catch (const OutputError& e) {
    return fail(kOutput, e.what());
} catch (const std::bad_alloc&) {
    return fail(kFailure, "not enough memory");
} catch (const std::exception& e) {
    return fail(kFailure, e.what());
}

// A picture that fails does not keep the others from being resized. Returns the first failure's code.
int run(const std::vector<Job>& jobs, const Options& options) {
    int result = kSuccess;
    Progress progress(int(jobs.size()), options.progress);
    for (const Job& job : jobs) {
        progress.next(job.from.string());
        const int code = reportingErrors([&] { (options.compare ? compare : resize)(job, options, progress); });
        if (result == kSuccess) result = code;
    }
    return result;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    CLI::App app("Resizes PNG and JPEG pictures of any size, row by row.", "kvri-resize");
    declare(app, options);
    std::vector<Job> jobs;
    try {
        app.parse(argc, argv);
        jobs = jobsOf(options);
    } catch (const CLI::ParseError& e) {
        return app.exit(e) == 0 ? kSuccess : kUsage;
    } catch (const OutputError& e) {
        return fail(kOutput, e.what());
    }
    return run(jobs, options);
}
