#include "tool/output/OutputFolders.h"

#include "framework/core/Exceptions.h"
#include "framework/core/Path.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>

namespace keltavlo {

namespace {

std::string RealPath(const std::string& path) {
    char real[PATH_MAX];
    if (!realpath(path.c_str(), real)) throw CFileException::FromErrno(errno, path);
    return real;
}

bool IsLink(const std::string& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0 && S_ISLNK(info.st_mode);
}

bool Exists(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0;
}

bool IsBelow(const std::string& path, const std::string& folder) {
    return path.starts_with(folder.ends_with('/') ? folder : folder + "/");
}

} // namespace

void OutputFolders::KeepInside(const std::string& folder) {
    root = FullPath(folder);
}

std::string OutputFolders::Resolve(const std::string& path) {
    if (path.size() >= PATH_MAX) throw CFileException::FromErrno(ENAMETOOLONG, path);
    const std::string folder = ResolveFolder(ParentOf(path));
    std::string target = folder + (folder.ends_with('/') ? "" : "/") + std::string(FileNameOf(path));
    if (!IsLink(target) || !Exists(target)) return target; // a dangling link is itself overwritten
    target = RealPath(target);
    CheckInside(target, path);
    return target;
}

std::string OutputFolders::ResolveFolder(const std::string& folder) {
    const std::lock_guard lock(mutex);
    return MakeFolder(folder);
}

std::string OutputFolders::MakeFolder(const std::string& folder) {
    if (const auto known = resolved.find(folder); known != resolved.end()) return known->second;
    std::string made;
    if (!root.empty() && IsBelow(folder, root)) {
        made = MakeBelow(folder);
    } else {
        std::error_code failure;
        std::filesystem::create_directories(folder, failure);
        if (failure) throw CFileException::FromErrno(failure.value(), folder);
        made = RealPath(folder);
        if (folder == root) resolvedRoot = made;
    }
    return resolved[folder] = made;
}

// Creates one folder at a time, so that none is created behind a link that leads out.
std::string OutputFolders::MakeBelow(const std::string& folder) {
    const std::string parent = MakeFolder(ParentOf(folder));
    const std::string path = parent + (parent.ends_with('/') ? "" : "/") + std::string(FileNameOf(folder));
    if (mkdir(path.c_str(), 0777) != 0 && errno != EEXIST) throw CFileException::FromErrno(errno, folder);
    const std::string made = IsLink(path) ? RealPath(path) : path;
    CheckInside(made, folder);
    return made;
}

void OutputFolders::CheckInside(const std::string& target, const std::string& path) const {
    if (root.empty() || target == resolvedRoot || IsBelow(target, resolvedRoot)) return;
    throw CFileException(CFileException::badPath, path, "A link leads out of the output folder.");
}

} // namespace keltavlo
