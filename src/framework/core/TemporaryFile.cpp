#include "framework/core/TemporaryFile.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace keltavlo {

namespace {

namespace fs = std::filesystem;

// Unlike that of any other save, even of a process that was killed and had the same number.
std::string UniqueName() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::to_string(getpid()) + "-" + std::to_string(now / std::chrono::nanoseconds(1));
}

} // namespace

TemporaryFile::TemporaryFile(const std::string& target) : TemporaryFile(target, UniqueName()) {}

TemporaryFile::TemporaryFile(const std::string& target, const std::string& name)
    : path(fs::path(target).parent_path() / ("." + name + temporarySuffix)), record(name, path),
      descriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {
    if (descriptor.IsOpen()) return;
    throw CFileException::FromErrno(errno, target);
}

TemporaryFile::~TemporaryFile() {
    if (!path.empty()) unlink(path.c_str());
}

void TemporaryFile::RenameTo(const std::string& target) {
    if (rename(path.c_str(), target.c_str()) != 0) throw CFileException::FromErrno(errno, target);
    path.clear();
}

} // namespace keltavlo
