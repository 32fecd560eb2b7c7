#include "framework/core/RescueFile.h"

#include "framework/core/FolderNames.h"
#include "framework/core/ReplacingFile.h"
#include "framework/core/TemporaryFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

namespace fs = std::filesystem;

constexpr const char* rescueSuffix = ".rescued";

// The name contains the time of writing after the first "-".
std::string TimeIn(const std::string& path) {
    return path.substr(path.find('-', path.rfind('/')));
}

} // namespace

// The lock belongs to the open file, so it is there before the file has its name.
RescueFile::RescueFile(const std::string& folder, std::span<const std::byte> bytes)
    : path(folder + "/" + UniqueSaveName() + rescueSuffix) {
    std::error_code failed; // then the file cannot be made either
    fs::create_directories(folder, failed);
    fs::permissions(folder, fs::perms::owner_all, failed);
    TemporaryFile temporary(path);
    file = Descriptor(fcntl(temporary.GetDescriptor(), F_DUPFD_CLOEXEC, 0));
    if (!file.IsOpen() || flock(file.Get(), LOCK_EX) != 0) throw CFileException::FromErrno(errno, path);
    WriteAll(file.Get(), bytes, path);
    if (fsync(file.Get()) != 0) throw CFileException::FromErrno(errno, path);
    temporary.RenameTo(path);
    FlushFolder(folder);
}

std::vector<RescueFile> RescueFile::TakeAbandoned(const std::string& folder) {
    std::vector<RescueFile> files;
    std::error_code failed;
    for (const std::string& name : NamesInFolder(folder, failed)) {
        if (!name.ends_with(rescueSuffix)) continue;
        const std::string path = std::string(folder).append("/").append(name);
        Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        if (!file.IsOpen() || flock(file.Get(), LOCK_EX | LOCK_NB) != 0) continue;
        struct stat info {};
        // Another program may have removed the file before this one locked it.
        if (fstat(file.Get(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_nlink == 0) continue;
        files.push_back(RescueFile(path, std::move(file)));
    }
    std::ranges::sort(files, {}, [](const RescueFile& file) { return TimeIn(file.path); });
    return files;
}

void RescueFile::Remove() const noexcept {
    unlink(path.c_str());
}

} // namespace keltavlo
