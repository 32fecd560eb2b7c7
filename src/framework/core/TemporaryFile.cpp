#include "framework/core/TemporaryFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace keltavlo {

TemporaryFile::TemporaryFile(const std::string& target) : TemporaryFile(target, UniqueSaveName()) {}

TemporaryFile::TemporaryFile(const std::string& target, const std::string& name)
    : path(std::filesystem::path(target).parent_path() / ("." + name + temporarySuffix)), record(name) {
    record.Add(path);
    descriptor = Descriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!descriptor.IsOpen()) throw CFileException::FromErrno(errno, target);
}

TemporaryFile::~TemporaryFile() {
    if (!path.empty()) unlink(path.c_str());
}

void TemporaryFile::RenameTo(const std::string& target) {
    if (rename(path.c_str(), target.c_str()) != 0) throw CFileException::FromErrno(errno, target);
    path.clear();
}

} // namespace keltavlo
