#include "framework/core/SaveJournal.h"

#include <QStandardPaths>

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

namespace fs = std::filesystem;

fs::path JournalFolder() {
    return fs::path(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString()) /
           "KelTavlo" / "saves";
}

bool WasRemoved(const Descriptor& file) {
    struct stat status {};
    return fstat(file.Get(), &status) == 0 && status.st_nlink == 0;
}

// The record, which names the temporary file and stays locked while it is open.
Descriptor WriteRecord(const std::string& record, const std::string& temporary) {
    for (;;) {
        Descriptor file(open(record.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!file.IsOpen()) return file;
        flock(file.Get(), LOCK_EX);
        // Another program that starts meanwhile takes a record that is not locked yet for an abandoned one.
        if (WasRemoved(file)) continue;
        // A record that could not be written whole names nothing, and the save goes on without it.
        static_cast<void>(write(file.Get(), temporary.data(), temporary.size()) < 0);
        return file;
    }
}

std::string ReadRecord(const Descriptor& record) {
    char path[PATH_MAX];
    const ssize_t length = read(record.Get(), path, sizeof path);
    return {path, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

} // namespace

SaveRecord::SaveRecord(const std::string& name, const std::string& temporary) {
    std::error_code failed;
    fs::create_directories(JournalFolder(), failed);
    path = JournalFolder() / name;
    file = WriteRecord(path, temporary);
}

SaveRecord::~SaveRecord() {
    if (file.IsOpen()) unlink(path.c_str());
}

void RemoveAbandonedSaves() {
    std::error_code failed;
    for (const fs::directory_entry& entry : fs::directory_iterator(JournalFolder(), failed)) {
        const Descriptor record(open(entry.path().c_str(), O_RDONLY | O_CLOEXEC));
        if (!record.IsOpen() || flock(record.Get(), LOCK_EX | LOCK_NB) != 0) continue;
        const std::string temporary = ReadRecord(record);
        if (temporary.ends_with(temporarySuffix)) unlink(temporary.c_str());
        // While the lock is held, so that a save that has just made the record sees that it is gone.
        unlink(entry.path().c_str());
    }
}

} // namespace keltavlo
