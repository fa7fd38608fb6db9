#include "files.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace demo {
namespace fs = std::filesystem;

std::string lastSystemError() { return std::strerror(errno); }

File openToRead(const fs::path& path) {
    std::error_code unreadable;  // opening the file tells the reason
    if (fs::is_directory(path, unreadable)) throw CodecError("is a folder");
    File file(std::fopen(path.c_str(), "rb"));
    if (!file) throw CodecError(lastSystemError());
    return file;
}

OutputFile::OutputFile(const fs::path& path) : path_(path), part_(path) {
    std::error_code unreadable;  // opening the file tells the reason
    const fs::file_type type = fs::symlink_status(path, unreadable).type();
    if (type == fs::file_type::regular || type == fs::file_type::not_found) part_ += ".kvri-part";
    const bool readOnly = type == fs::file_type::regular && access(path.c_str(), W_OK) != 0;
    if (!readOnly) file_.reset(std::fopen(part_.c_str(), "wb"));
    if (!file_) throw CodecError(lastSystemError());
}

OutputFile::~OutputFile() {
    std::error_code ignored;
    if (file_ && part_ != path_) fs::remove(part_, ignored);
}

void OutputFile::commit() {
    if (std::fflush(file_.get()) != 0) throw CodecError(lastSystemError());
    std::error_code error;
    if (part_ != path_) fs::rename(part_, path_, error);
    if (error) throw CodecError(error.message());
    file_.reset();
}

}  // namespace demo
