#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "tool/EntryTypes.h"
#include "tool/NameEscapes.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace keltavlo {

namespace {

using nlohmann::ordered_json;

struct ListedEntry {
    std::string name; // below the listed folder, escaped
    const EntryType* type;
    std::uint64_t size; // bytes; 0 for a folder
};

// Limits a listing, because archives can contain themselves.
constexpr std::size_t maximumCount = 1'000'000;

// Gathers the entries of one folder of an archive.
class ArchiveList {
public:
    ArchiveList(Tool& reportingTool, const ToolArguments& toolArguments)
        : tool(reportingTool), arguments(toolArguments) {}

    void Add(const FolderEntry& folder, const std::string& path, const std::string& prefix) {
        for (const auto& child : folder.GetChildren()) {
            const std::string name = folder.GetListedName(*child);
            if (const auto* inner = dynamic_cast<const FolderEntry*>(child.get()))
                AddFolder(*inner, JoinPath(path, name), prefix + EscapePath(name));
            else
                AddFile(*child, path, name, prefix + EscapeName(name));
        }
    }

    std::vector<ListedEntry> entries;

private:
    void AddFolder(const FolderEntry& folder, const std::string& path, const std::string& shown) {
        if (arguments.recursive)
            Add(folder, path, shown.ends_with('/') ? shown : shown + "/");
        else
            Append({shown, &types.Folder(), 0});
    }

    void AddFile(const Entry& file, const std::string& folder, const std::string& name,
                 const std::string& shown) {
        EntryStatus status;
        file.GetStatus(status);
        const EntryType& type = types.Find(name);
        Append({shown, &type, status.size});
        if (!type.isArchive || !arguments.recursive || !arguments.enterArchives) return;
        const std::string path = JoinPath(folder, name);
        if (const FolderEntry* root = tool.GetApplication().GetFileSystem().FindFolder(path).folder)
            Add(*root, path, shown + "/");
    }

    void Append(ListedEntry entry) {
        if (entries.size() == maximumCount)
            throw std::length_error("The archive contains more than a million entries.");
        entries.push_back(std::move(entry));
    }

    Tool& tool;
    const ToolArguments& arguments;
    EntryTypes types;
};

// Returns how many blanks pad the text to the width.
std::size_t Blanks(const std::string& text, std::size_t width) {
    return width - std::min(width, text.size());
}

std::string LinesOf(const std::vector<ListedEntry>& entries) {
    constexpr std::size_t sizeWidth = 10, typeWidth = 38;
    std::string lines;
    for (const ListedEntry& entry : entries) {
        const std::string size = entry.type->isFolder ? std::string() : std::to_string(entry.size);
        lines.append(Blanks(size, sizeWidth), ' ').append(size).append("  ");
        lines.append(entry.type->name).append(Blanks(entry.type->name, typeWidth), ' ').append("  ");
        lines.append(entry.name).append("\n");
    }
    return lines;
}

ordered_json JsonOf(const std::string& path, const std::vector<ListedEntry>& entries) {
    ordered_json list = ordered_json::array();
    for (const ListedEntry& entry : entries) {
        ordered_json object{{"name", entry.name}, {"type", entry.type->name}};
        if (!entry.type->isFolder) object["size"] = entry.size;
        list.push_back(std::move(object));
    }
    return {{"path", EscapePath(path)}, {"entries", std::move(list)}};
}

// Reports why a path cannot be listed, unless the archive's reader has done so.
void ReportNoFolder(Tool& tool, const std::string& path) {
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    if (!status.exists)
        FailToFind(tool, path);
    else if (!status.browsable)
        tool.Fail("\"" + EscapePath(path) + "\" is not an archive or a folder inside one.");
}

} // namespace

void List(Tool& tool, const ToolArguments& arguments) {
    ordered_json all = ordered_json::array();
    for (const std::string& input : arguments.inputs) {
        const std::string path = TreePath(input);
        const FolderEntry* folder = tool.GetApplication().GetFileSystem().FindFolder(path).folder;
        if (!folder) {
            ReportNoFolder(tool, path);
            continue;
        }
        ArchiveList list(tool, arguments);
        list.Add(*folder, path, {});
        if (arguments.json)
            all.push_back(JsonOf(path, list.entries));
        else if (arguments.inputs.size() > 1)
            tool.Output() << EscapePath(path) << ":\n" << LinesOf(list.entries) << "\n";
        else
            tool.Output() << LinesOf(list.entries);
    }
    if (arguments.json) tool.Output() << all.dump(2) << "\n";
}

} // namespace keltavlo
