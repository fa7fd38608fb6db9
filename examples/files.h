// examples/files.h: files that codecs read and write.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace demo {

// What is wrong with a file or the picture in it, without the file's name.
struct CodecError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string lastSystemError();

struct CloseFile {
    void operator()(FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

File openToRead(const std::filesystem::path& path);

// A file that takes its name when it is complete; until then the old file of that name stays, also as a source of the new
// one. What is no ordinary file, a device or a link, is written in place.
class OutputFile {
    std::filesystem::path path_, part_;
    File file_;

public:
    explicit OutputFile(const std::filesystem::path& path);
    OutputFile(const OutputFile&) = delete;
    ~OutputFile();
    FILE* get() const { return file_.get(); }
    void commit();
};

}  // namespace demo
