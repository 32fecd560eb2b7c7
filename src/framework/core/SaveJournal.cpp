#include "framework/core/SaveJournal.h"

#include "framework/core/FolderNames.h"
#include "framework/core/Text.h"

#include <QStandardPaths>

#include <algorithm>
#include <chrono>
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

// Creates an empty record that stays locked while it is open.
Descriptor MakeRecord(const std::string& record) {
    for (;;) {
        Descriptor file(open(record.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600));
        if (!file.IsOpen()) return file;
        flock(file.Get(), LOCK_EX);
        // Before the lock, a program that starts takes the record for an abandoned one and removes it.
        if (!WasRemoved(file)) return file;
    }
}

std::string ReadRecord(const Descriptor& record) {
    std::string content;
    char part[PATH_MAX];
    for (ssize_t length; (length = read(record.Get(), part, sizeof part)) > 0;)
        content.append(part, static_cast<std::size_t>(length));
    return content;
}

// Removes the files that the record lists.
void RemoveListed(const Descriptor& record) {
    const std::string content = ReadRecord(record);
    for (std::string_view left = content; !left.empty();) {
        const std::string temporary(UpToNul(left));
        left.remove_prefix(std::min(temporary.size() + 1, left.size()));
        if (temporary.ends_with(temporarySuffix)) unlink(temporary.c_str());
    }
}

} // namespace

std::string UniqueSaveName() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::to_string(getpid()) + "-" + std::to_string(now / std::chrono::nanoseconds(1));
}

SaveRecord::SaveRecord(const std::string& name) {
    std::error_code failed;
    fs::create_directories(JournalFolder(), failed);
    path = JournalFolder() / name;
    file = MakeRecord(path);
}

SaveRecord::~SaveRecord() {
    if (file.IsOpen()) unlink(path.c_str());
}

void SaveRecord::Add(const std::string& temporary) {
    // A path that cannot be written whole is not listed, and the save continues. A single call, so that paths
    // from several threads do not mix.
    if (file.IsOpen()) static_cast<void>(write(file.Get(), temporary.c_str(), temporary.size() + 1) < 0);
}

void RemoveAbandonedSaves() {
    std::error_code failed;
    const fs::path folder = JournalFolder();
    for (const std::string& name : NamesInFolder(folder, failed)) {
        const fs::path path = folder / name;
        const Descriptor record(open(path.c_str(), O_RDONLY | O_CLOEXEC));
        if (!record.IsOpen() || flock(record.Get(), LOCK_EX | LOCK_NB) != 0) continue;
        RemoveListed(record);
        // Removed under the lock, so that a save that has just created the record sees that it is gone.
        unlink(path.c_str());
    }
}

} // namespace keltavlo
