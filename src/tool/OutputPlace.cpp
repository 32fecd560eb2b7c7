#include "tool/OutputPlace.h"

#include "framework/core/Path.h"
#include "tool/Tool.h"

#include <sys/stat.h>

namespace keltavlo {

namespace {

std::optional<std::pair<std::uint64_t, std::uint64_t>> IdentityOf(const std::string& path) {
    struct stat info {};
    if (stat(ToNativePath(path).c_str(), &info) != 0) return {};
    return std::pair(std::uint64_t{info.st_dev}, std::uint64_t{info.st_ino});
}

// Returns the path with the disk's separators; paths of trees contain both kinds.
std::string DiskPath(const std::string& path) {
    return FullPath(path);
}

} // namespace

OutputPlace::OutputPlace(Tool& reportingTool, bool force)
    : tool(reportingTool), overwrites(force), batch([this](const std::string& path, const auto& failure) {
          ++lostCount;
          tool.FailSaving(path, failure);
      }) {}

void OutputPlace::AddInput(const std::string& path) {
    for (std::string file = path; !file.empty(); file = ParentOf(file)) {
        const auto identity = IdentityOf(file);
        if (!identity) continue;
        inputs.insert(*identity);
        return;
    }
}

bool OutputPlace::Write(const std::string& path, std::span<const std::byte> bytes) {
    try {
        if (IsTaken(path)) {
            RefuseTaken(path);
            return false;
        }
        return Accept(path, Stage(path, bytes));
    } catch (const std::exception& failure) {
        tool.FailSaving(path, failure);
        return false;
    }
}

bool OutputPlace::Finish() {
    const std::size_t before = lostCount;
    batch.Finish();
    return lostCount == before;
}

StagedFile OutputPlace::Stage(const std::string& path, std::span<const std::byte> bytes) {
    return {folders.Resolve(DiskPath(path)), bytes, names};
}

bool OutputPlace::Accept(const std::string& path, StagedFile file) {
    if (!MayWrite(path, file.GetTarget())) return false;
    batch.Add(std::move(file), overwrites, path);
    return true;
}

bool OutputPlace::IsTaken(const std::string& path) {
    struct stat info {};
    return !overwrites && lstat(DiskPath(path).c_str(), &info) == 0;
}

void OutputPlace::RefuseTaken(const std::string& path) {
    const std::string target = folders.Resolve(DiskPath(path));
    const std::string reason = ReasonAgainst(target, IdentityOf(target));
    tool.Fail("\"" + ToDisplayPath(path) + "\" " +
              (reason.empty() ? "was removed during this run." : reason));
}

bool OutputPlace::MayWrite(const std::string& path, const std::string& target) {
    const std::optional<Identity> identity = IdentityOf(target);
    const std::string reason = ReasonAgainst(target, identity);
    if (!reason.empty()) {
        tool.Fail("\"" + ToDisplayPath(path) + "\" " + reason);
        return false;
    }
    targets.insert(target);
    if (identity) overwritten.insert(*identity);
    return true;
}

std::string OutputPlace::ReasonAgainst(const std::string& target,
                                       const std::optional<Identity>& identity) const {
    constexpr const char* written = "was written in this run and cannot be overwritten.";
    if (targets.contains(target)) return written;
    if (!identity) return {};
    if (inputs.contains(*identity)) return "is read in this run and cannot be overwritten.";
    if (overwritten.contains(*identity)) return written;
    return overwrites ? "" : "already exists; use --force to overwrite it.";
}

} // namespace keltavlo
