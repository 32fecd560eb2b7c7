#include "framework/core/SaveJournal.h"

#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"

#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view temporarySuffix = ".keltavlo-save";

fs::path JournalFolder() {
    return fs::path(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()) /
           "KelTavlo" / "saves";
}

// Unique among the running processes of the machine and the saves of this one.
std::string UniqueName() {
    static unsigned count = 0;
    return std::to_string(getpid()) + "-" + std::to_string(++count);
}

std::string WriteRecord(const std::string& name, const std::string& temporary) {
    std::error_code failed;
    fs::create_directories(JournalFolder(), failed);
    const fs::path record = JournalFolder() / name;
    fs::remove(record, failed);
    fs::create_symlink(temporary, record, failed);
    return failed ? std::string() : record.string();
}

bool IsBeingWritten(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return file.IsOpen() && flock(file.Get(), LOCK_EX | LOCK_NB) != 0;
}

} // namespace

TemporaryFile::TemporaryFile(const std::string& target) {
    const std::string name = UniqueName();
    path = (fs::path(target).parent_path() / ("." + name + std::string(temporarySuffix))).string();
    record = WriteRecord(name, path);
    descriptor = Descriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!descriptor.IsOpen()) {
        const int error = errno;
        if (!record.empty()) unlink(record.c_str());
        throw CFileException::FromErrno(error, target);
    }
    flock(descriptor.Get(), LOCK_EX | LOCK_NB);
}

TemporaryFile::~TemporaryFile() {
    if (!path.empty()) unlink(path.c_str());
    if (!record.empty()) unlink(record.c_str());
}

void TemporaryFile::RenameTo(const std::string& target) {
    if (rename(path.c_str(), target.c_str()) != 0) throw CFileException::FromErrno(errno, target);
    path.clear();
}

void RemoveAbandonedSaves() {
    std::error_code failed;
    for (const fs::directory_entry& entry : fs::directory_iterator(JournalFolder(), failed)) {
        const std::string temporary = fs::read_symlink(entry.path(), failed).string();
        if (failed || IsBeingWritten(temporary)) continue;
        if (temporary.ends_with(temporarySuffix)) unlink(temporary.c_str());
        unlink(entry.path().c_str());
    }
}
