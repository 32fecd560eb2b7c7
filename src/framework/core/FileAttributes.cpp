#include "framework/core/FileAttributes.h"

#include "framework/core/Exceptions.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace keltavlo {

namespace {

// Calls a function that fills a buffer until the buffer is large enough. Empty if there is nothing to read.
template <typename Function>
std::vector<char> ReadGrowing(Function read) {
    std::vector<char> buffer;
    for (;;) {
        const ssize_t size = read(nullptr, std::size_t{0});
        if (size <= 0) return {};
        buffer.resize(static_cast<std::size_t>(size));
        const ssize_t got = read(buffer.data(), buffer.size());
        if (got < 0 && errno == ERANGE) continue; // it grew in between
        buffer.resize(static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
        return buffer;
    }
}

// An access control list is an extended attribute, too.
void TakeOverExtendedAttributes(int descriptor, const std::string& path) {
    const std::vector<char> names =
        ReadGrowing([&](char* to, std::size_t room) { return listxattr(path.c_str(), to, room); });
    for (auto name = names.begin(); name != names.end(); name = std::find(name, names.end(), '\0') + 1) {
        const std::vector<char> value =
            ReadGrowing([&](char* to, std::size_t room) { return getxattr(path.c_str(), &*name, to, room); });
        // Other errors mean that the system reserves the attribute for itself.
        if (fsetxattr(descriptor, &*name, value.data(), value.size(), 0) != 0 &&
            (errno == ENOSPC || errno == EDQUOT))
            throw CFileException::FromErrno(errno, path);
    }
}

} // namespace

void TakeOverAttributes(int descriptor, const struct stat& old, const std::string& path) {
    // Only root may give files away; others may at least choose among their own groups.
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0)
        static_cast<void>(fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) == 0);
    TakeOverExtendedAttributes(descriptor, path);
    // Last, because a change of the owner clears the set-user-ID bit.
    if (fchmod(descriptor, old.st_mode & 07777) != 0) throw CFileException::FromErrno(errno, path);
}

} // namespace keltavlo
