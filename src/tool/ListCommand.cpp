#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "tool/EntryTypes.h"
#include "tool/NameEscapes.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>

namespace keltavlo {

namespace {

using nlohmann::ordered_json;

struct ListedEntry {
    std::string name; // below the listed folder, escaped
    const EntryType& type;
    std::uint64_t size; // bytes; 0 for a folder
};
using TakeEntry = std::function<void(const ListedEntry&)>;

// Limits a listing, because archives can contain themselves.
constexpr std::size_t maximumCount = 1'000'000;

// Lists the entries of one folder of an archive.
class ArchiveList {
public:
    ArchiveList(Tool& reportingTool, const ToolArguments& toolArguments, TakeEntry takeFunction)
        : tool(reportingTool), arguments(toolArguments), take(std::move(takeFunction)) {}

    void Add(const FolderEntry& folder, const std::string& path, const std::string& prefix) {
        for (const auto& child : folder.GetChildren()) {
            if (const auto* inner = dynamic_cast<const FolderEntry*>(child.get())) {
                const std::string name = folder.GetListedName(*inner);
                AddFolder(*inner, JoinPath(path, name), prefix + EscapePath(name));
            } else {
                const std::string name = child->GetName();
                AddFile(*child, path, name, prefix + EscapeName(name));
            }
        }
    }

private:
    void AddFolder(const FolderEntry& folder, const std::string& path, const std::string& shown) {
        if (arguments.recursive)
            Add(folder, path, shown.ends_with('/') ? shown : shown + "/");
        else
            Append({shown, types.Folder(), 0});
    }

    void AddFile(const Entry& file, const std::string& folder, const std::string& name,
                 const std::string& shown) {
        EntryStatus status;
        file.GetStatus(status);
        const EntryType& type = types.Find(name);
        Append({shown, type, status.size});
        if (!type.isArchive || !arguments.recursive || !arguments.enterArchives) return;
        const std::string path = JoinPath(folder, name);
        if (const FolderEntry* root = tool.GetApplication().GetFileSystem().FindFolder(path).folder)
            Add(*root, path, shown + "/");
    }

    void Append(const ListedEntry& entry) {
        if (++count > maximumCount)
            throw std::length_error("The archive contains more than a million entries.");
        take(entry);
    }

    Tool& tool;
    const ToolArguments& arguments;
    const TakeEntry take;
    std::size_t count = 0;
    EntryTypes types;
};

// Returns how many blanks pad the text to the width.
std::size_t Blanks(const std::string& text, std::size_t width) {
    return width - std::min(width, text.size());
}

// Writes a line for each entry, in blocks: lists are long.
class LineWriter {
public:
    explicit LineWriter(std::ostream& outputStream) : output(outputStream) {}
    ~LineWriter() { output << lines; }
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    void Write(const ListedEntry& entry) {
        constexpr std::size_t sizeWidth = 10, typeWidth = 38, blockSize = 1 << 15;
        const std::string size = entry.type.isFolder ? std::string() : std::to_string(entry.size);
        lines.append(Blanks(size, sizeWidth), ' ').append(size).append("  ");
        lines.append(entry.type.name).append(Blanks(entry.type.name, typeWidth), ' ').append("  ");
        lines.append(entry.name).append("\n");
        if (lines.size() < blockSize) return;
        output << lines;
        lines.clear();
    }

private:
    std::ostream& output;
    std::string lines; // not written yet
};

ordered_json JsonOf(const ListedEntry& entry) {
    ordered_json object{{"name", entry.name}, {"type", entry.type.name}};
    if (!entry.type.isFolder) object["size"] = entry.size;
    return object;
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
        } else if (arguments.json) {
            ordered_json list = ordered_json::array();
            ArchiveList(tool, arguments, [&](const ListedEntry& entry) {
                list.push_back(JsonOf(entry));
            }).Add(*folder, path, {});
            all.push_back({{"path", EscapePath(path)}, {"entries", std::move(list)}});
        } else {
            const bool hasTitle = arguments.inputs.size() > 1;
            if (hasTitle) tool.Output() << EscapePath(path) << ":\n";
            {
                LineWriter writer(tool.Output());
                ArchiveList(tool, arguments, [&](const ListedEntry& entry) {
                    writer.Write(entry);
                }).Add(*folder, path, {});
            }
            if (hasTitle) tool.Output() << "\n";
        }
    }
    if (arguments.json) tool.Output() << all.dump(2) << "\n";
}

} // namespace keltavlo
