#include "tool/PackSources.h"

#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/OutputPlace.h"
#include "tool/TextureMetadata.h"
#include "tool/Tool.h"
#include "tool/TreeWalk.h"

namespace keltavlo {

namespace {

constexpr std::string_view space = " \t\r";

std::string_view Trim(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(space), line.size()));
    return line.substr(0, line.find_last_not_of(space) + 1);
}

std::vector<PackSource> SourcesOfTree(Tool& tool, const std::string& tree, OutputPlace& outputs) {
    std::vector<PackSource> sources;
    for (const TreeFile& file : ListTree(tool, tree, NestedArchives::asFiles, outputs))
        if (!IsMetadataName(file.name)) sources.push_back({file.path, file.name});
    return sources;
}

std::vector<PackSource> SourcesOfList(Tool& tool, const std::string& list, OutputPlace& outputs) {
    std::vector<PackSource> sources;
    outputs.AddInput(list);
    for (const std::string& name : ReadPathList(list)) {
        const std::string path = FullPath(name.starts_with('/') ? name : JoinPath(ParentOf(list), name));
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(path, status);
        if (!status.exists || status.IsDirectory()) {
            tool.Fail("\"" + ToDisplayPath(path) + "\" is listed, but it is not a file.");
            continue;
        }
        outputs.AddInput(path);
        sources.push_back({path, name.starts_with("./") ? name.substr(2) : name});
    }
    return sources;
}

} // namespace

std::vector<PackSource> GatherPackSources(Tool& tool, const std::string& input, OutputPlace& outputs) {
    const std::string path = TreePath(input);
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    if (IsTree(status)) return SourcesOfTree(tool, path, outputs);
    if (status.exists) return SourcesOfList(tool, FullPath(path), outputs);
    FailToFind(tool, path);
    return {};
}

std::vector<std::string> ReadPathList(const std::string& path) {
    const auto file = FileOrThrow(
        [&](CFileException* failure) { return FileSource::Get().OpenFile(path, CFile::modeRead, failure); });
    const std::vector<std::byte> bytes = ReadAll(*file);
    std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.find('\0') != std::string_view::npos)
        throw CException("The file is not a folder, an archive or a list of files.", path);
    std::vector<std::string> paths;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = Trim(text.substr(0, end));
        if (!line.empty() && line.front() != '#') paths.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return paths;
}

} // namespace keltavlo
