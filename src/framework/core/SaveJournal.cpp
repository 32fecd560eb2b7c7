#include "framework/core/SaveJournal.h"

#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"

#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
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

bool WasRemoved(const Descriptor& file) {
    struct stat status {};
    return fstat(file.Get(), &status) == 0 && status.st_nlink == 0;
}

// Removes the file unless its save still runs. The lock is held until the file is gone, so that a save that
// has just made it sees that.
bool RemoveUnlessBeingWritten(const std::string& temporary) {
    const Descriptor file(open(temporary.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen()) return true;
    if (flock(file.Get(), LOCK_EX | LOCK_NB) != 0) return false;
    if (temporary.ends_with(temporarySuffix)) unlink(temporary.c_str());
    return true;
}

} // namespace

TemporaryFile::TemporaryFile(const std::string& target) {
    const std::string name = UniqueName();
    path = (fs::path(target).parent_path() / ("." + name + std::string(temporarySuffix))).string();
    // Another program that starts meanwhile may take the file for an abandoned one until it is locked.
    do {
        record = WriteRecord(name, path);
        descriptor = Descriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!descriptor.IsOpen()) {
            const int error = errno;
            if (!record.empty()) unlink(record.c_str());
            throw CFileException::FromErrno(error, target);
        }
        flock(descriptor.Get(), LOCK_EX);
    } while (WasRemoved(descriptor));
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
        if (!failed && RemoveUnlessBeingWritten(temporary)) unlink(entry.path().c_str());
    }
}
