#include "framework/core/ModulePath.h"

#include "framework/core/Path.h"

#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

struct Module {
    std::string path;
    struct stat identity {};

    Module() {
        char target[PATH_MAX];
        const ssize_t length = readlink("/proc/self/exe", target, sizeof target);
        if (length > 0) path.assign(target, static_cast<std::size_t>(length));
        stat(path.c_str(), &identity);
    }
};

const Module& TheModule() {
    static const Module module;
    return module;
}

} // namespace

const std::string& GetModulePath() {
    return TheModule().path;
}

bool IsModulePath(std::string_view path) {
    if (path.empty() || !IsSeparator(path.front())) return false;
    const Module& module = TheModule();
    if (FileNameOf(path) == FileNameOf(module.path) && FullPath(path) == module.path) return true;
    struct stat info {};
    return stat(ToNativePath(path).c_str(), &info) == 0 && info.st_ino == module.identity.st_ino &&
           info.st_dev == module.identity.st_dev;
}

} // namespace keltavlo
