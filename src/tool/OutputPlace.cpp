#include "tool/OutputPlace.h"

#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"
#include "tool/Tool.h"

#include <filesystem>
#include <optional>
#include <sys/stat.h>

namespace keltavlo {

namespace {

std::optional<std::pair<std::uint64_t, std::uint64_t>> IdentityOf(const std::string& path) {
    struct stat info {};
    if (stat(ToNativePath(path).c_str(), &info) != 0) return {};
    return std::pair(std::uint64_t{info.st_dev}, std::uint64_t{info.st_ino});
}

} // namespace

void OutputPlace::AddInput(const std::string& path) {
    for (std::string file = path; !file.empty(); file = ParentOf(file)) {
        const auto identity = IdentityOf(file);
        if (!identity) continue;
        inputs.insert(*identity);
        return;
    }
}

bool OutputPlace::Prepare(const std::string& path) {
    if (!MayOverwrite(path)) return false;
    std::error_code failure;
    std::filesystem::create_directories(ToNativePath(ParentOf(path)), failure);
    if (failure)
        tool.Fail("Cannot create the folder of \"" + ToDisplayPath(path) + "\": " + failure.message() + ".");
    return !failure;
}

bool OutputPlace::MayOverwrite(const std::string& path) {
    const auto identity = IdentityOf(path);
    if (!identity) return true;
    const char* reason = nullptr;
    if (inputs.contains(*identity))
        reason = "is read in this run and cannot be overwritten.";
    else if (outputs.contains(*identity))
        reason = "was written in this run and cannot be overwritten.";
    else if (!overwrites)
        reason = "already exists; use --force to overwrite it.";
    if (reason) tool.Fail("\"" + ToDisplayPath(path) + "\" " + reason);
    return !reason;
}

void OutputPlace::AddWritten(const std::string& path) {
    if (const auto identity = IdentityOf(path)) outputs.insert(*identity);
}

bool OutputPlace::Write(const std::string& path, std::span<const std::byte> bytes) {
    if (!Prepare(path)) return false;
    try {
        ReplacingFile file(path);
        file.Write(bytes.data(), bytes.size());
        file.Close();
        AddWritten(path);
        return true;
    } catch (const std::exception& failure) {
        tool.Fail(DescribeFailure(Direction::saving, path, failure));
        return false;
    }
}

} // namespace keltavlo
