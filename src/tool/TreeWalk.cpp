#include "tool/TreeWalk.h"

#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/NameEscapes.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace keltavlo {

namespace {

namespace fs = std::filesystem;

// A component that stays where it is put: no way up, no separator, nothing hidden behind a NUL.
bool StaysInside(const std::string& component) {
    return !component.empty() && component != "." && component != ".." &&
           component.find_first_of(std::string_view("/\\\0", 3)) == std::string::npos;
}

std::vector<std::string> NamesOnDisk(const std::string& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(ToNativePath(folder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> NamesIn(Tool& tool, const std::string& folder, const EntryStatus& status) {
    if (status.onDisk && !status.browsable) return NamesOnDisk(folder);
    FolderListing listing;
    tool.GetApplication().GetFileSystem().ListFolder(folder, listing);
    return listing.names;
}

// Names for the entries of one folder, each used once. Archives do not tell capitals apart.
class NewNames {
public:
    explicit NewNames(const std::vector<std::string>& names) {
        for (const std::string& name : names) all.insert(FoldCase(WithoutSeparator(name)));
    }
    static std::string WithoutSeparator(const std::string& name) {
        return name.substr(0, name.size() - (name.ends_with('/') ? 1 : 0));
    }
    // The name itself if it is still free, else one with a number.
    std::string Take(const std::string& name) {
        if (used.insert(FoldCase(name)).second) return name;
        const std::string_view extension = ExtensionOf(name);
        const std::string stem = name.substr(0, name.size() - extension.size()) + "_";
        std::string numbered = name;
        for (int i = 2; !all.insert(FoldCase(numbered)).second; ++i)
            numbered = (stem + std::to_string(i)).append(extension);
        return numbered;
    }

private:
    std::set<std::string> all, used;
};

// Walks a tree and gathers its files.
class TreeWalk {
public:
    TreeWalk(Tool& reportingTool, OutputPlace& outputPlace) : tool(reportingTool), outputs(outputPlace) {}

    void Walk(const std::string& folder, const std::string& prefix, const EntryStatus& status) {
        const std::vector<std::string> names = NamesIn(tool, folder, status);
        if (status.onDisk && !status.browsable) {
            for (const std::string& name : names) Add(JoinPath(folder, name), prefix, name, name);
            return;
        }
        std::set<std::string> seen;
        NewNames newNames(names);
        for (const std::string& name : names) {
            const std::string plain = NewNames::WithoutSeparator(name);
            if (seen.insert(FoldCase(name)).second)
                Add(JoinPath(folder, name), prefix, plain, newNames.Take(plain));
            else
                NoteDuplicate(prefix + name);
        }
    }

    std::vector<TreeFile> found;

private:
    void NoteDuplicate(const std::string& name) { tool.Note("Skipped another \"" + name + "\"."); }

    void Add(const std::string& path, const std::string& prefix, const std::string& name,
             const std::string& newName) {
        if (!StaysInside(name))
            return tool.Fail("Skipped \"" + prefix + name + "\": it would lead out of the folder.");
        if (newName != name)
            tool.Note("A file and a folder are called \"" + prefix + name + "\"; the second becomes \"" +
                      prefix + newName + "\".");
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(path, status);
        if (status.IsDirectory()) return Walk(path, prefix + newName + "/", status);
        outputs.AddInput(path);
        found.push_back({path, prefix + newName});
    }

    Tool& tool;
    OutputPlace& outputs;
};

} // namespace

std::string TreePath(const std::string& argument) {
    const bool ended = !argument.empty() && IsSeparator(argument.back());
    const std::string path = UnescapePath(FullPath(argument));
    return ended ? JoinPath(path, {}) : path;
}

bool IsTree(const EntryStatus& status) {
    return status.exists && (status.browsable || status.IsDirectory());
}

std::vector<TreeFile> ListTree(Tool& tool, const std::string& tree, OutputPlace& outputs) {
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(tree, status);
    TreeWalk walk(tool, outputs);
    walk.Walk(tree, {}, status);
    return std::move(walk.found);
}

} // namespace keltavlo
