#include "tool/OutputPlace.h"

#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"
#include "tool/Tool.h"

#include <filesystem>

bool PrepareOutput(Tool& tool, const std::string& path, bool force) {
    CFileStatus status;
    if (!force && CFile::GetStatus(path, status)) {
        tool.Fail("\"" + ToDisplayPath(path) + "\" exists; --force writes over it.");
        return false;
    }
    std::error_code failure;
    std::filesystem::create_directories(ToNativePath(ParentOf(path)), failure);
    if (failure)
        tool.Fail("The folder of \"" + ToDisplayPath(path) + "\" cannot be made: " + failure.message() + ".");
    return !failure;
}

bool WriteOutput(Tool& tool, const std::string& path, std::span<const std::byte> bytes) {
    try {
        ReplacingFile file(path);
        file.Write(bytes.data(), bytes.size());
        file.Close();
        return true;
    } catch (const std::exception& failure) {
        tool.Fail(DescribeFailure(Direction::saving, path, failure));
        return false;
    }
}
