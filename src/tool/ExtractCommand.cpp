#include "framework/core/Path.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

namespace {

std::vector<std::byte> ReadAll(Tool& tool, const std::string& path) {
    CFileException failure;
    const auto file = tool.GetApplication().GetFileSystem().OpenFile(path, CFile::modeRead, &failure);
    if (!file) throw CFileException(failure);
    std::vector<std::byte> bytes(file->GetLength());
    bytes.resize(file->Read(bytes.data(), bytes.size()));
    return bytes;
}

void ExtractFile(Tool& tool, const std::string& path, const std::string& target, bool force) {
    if (!PrepareOutput(tool, target, force)) return;
    try {
        WriteOutput(tool, target, ReadAll(tool, path));
    } catch (const std::exception& failure) {
        tool.Fail(DescribeFailure(Direction::opening, path, failure));
    }
}

} // namespace

void Extract(Tool& tool, const ToolArguments& arguments) {
    const std::string path = FullPath(arguments.paths[0]);
    const std::string folder = FullPath(arguments.paths[1]);
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    if (!status.exists) return tool.Fail("\"" + ToDisplayPath(path) + "\" was not found.");
    if (!IsTree(status))
        return ExtractFile(tool, path, folder + "/" + std::string(FileNameOf(path)), arguments.force);
    WalkTree(tool, path, [&](const std::string& file, const std::string& name) {
        tool.ShowProgress(name);
        ExtractFile(tool, file, folder + "/" + name, arguments.force);
    });
}
