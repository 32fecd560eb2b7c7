#include "tool/TreeWalk.h"

#include "archives/FolderDocument.h"
#include "framework/core/DiskFile.h"
#include "framework/core/FileFailure.h"
#include "framework/core/FolderNames.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/EntryTypes.h"
#include "tool/NameEscapes.h"
#include "tool/NewNames.h"
#include "tool/OutputPlace.h"
#include "tool/Tool.h"
#include "tool/archives/LumpName.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace keltavlo {

namespace {

namespace fs = std::filesystem;

// Whether the component keeps a path inside its folder: no way up, no separator, nothing after a NUL.
bool StaysInside(const std::string& component) {
    return !component.empty() && component != "." && component != ".." &&
           component.find_first_of(std::string_view("/\\\0", 3)) == std::string::npos;
}

std::vector<std::string> NamesOnDisk(const std::string& folder) {
    std::error_code failure;
    std::vector<std::string> names = NamesInFolder(ToNativePath(folder), failure);
    if (failure) throw std::system_error(failure);
    std::sort(names.begin(), names.end());
    return names;
}

// Returns the name of the file on the disk for an entry.
std::string FileNameOfEntry(const FolderDocument& archive, const Entry& entry) {
    return archive.HasLumps() ? FileNameOfLump(entry.GetName()) : entry.GetName();
}

std::vector<std::string> NamesIn(const ArchiveFolder& place) {
    std::vector<std::string> names;
    names.reserve(place.folder->GetChildren().size());
    for (const auto& child : place.folder->GetChildren())
        names.push_back(FileNameOfEntry(*place.archive, *child));
    return names;
}

// Walks a tree and gathers its files.
class TreeWalk {
public:
    TreeWalk(Tool& reportingTool, NestedArchives nestedArchives, OutputPlace& outputPlace)
        : tool(reportingTool), nested(nestedArchives), outputs(outputPlace) {}

    void Walk(const std::string& path, const std::string& prefix, const EntryStatus& status) {
        if (status.onDisk && !status.browsable) return WalkDisk(path, prefix);
        const ArchiveFolder place = tool.GetApplication().GetFileSystem().FindFolder(path);
        if (!place.folder) return; // the application has reported why
        outputs.AddInput(place.archive->GetPathName());
        WalkArchive(place, path, prefix);
    }

    std::vector<TreeFile> found;

private:
    void WalkDisk(const std::string& folder, const std::string& prefix) {
        std::vector<std::string> names;
        try {
            const std::string real = fs::canonical(ToNativePath(folder)).string();
            if (std::ranges::find(way, real) != way.end())
                return tool.Fail("Skipped \"" + ToDisplayPath(folder) +
                                 "\": it leads back to a folder above it.");
            way.push_back(real);
            names = NamesOnDisk(folder);
        } catch (const std::system_error& failure) {
            return tool.Fail("Cannot read the folder \"" + ToDisplayPath(folder) +
                             "\": " + failure.code().message() + ".");
        }
        for (const std::string& name : names) AddFromDisk(JoinPath(folder, name), prefix, name);
        way.pop_back();
    }

    void AddFromDisk(const std::string& path, const std::string& prefix, const std::string& name) {
        if (!StaysInside(name)) return Refuse(prefix + name);
        std::error_code failure;
        const bool isFolder = fs::is_directory(ToNativePath(path), failure);
        if (isFolder) return WalkDisk(path, prefix + name + "/");
        if (IsEntered(name)) {
            EntryStatus status;
            tool.GetApplication().GetFileSystem().GetStatus(path, status);
            return Walk(path, prefix + name + "/", status);
        }
        outputs.AddInput(path);
        found.push_back({path, prefix + name, nullptr, nullptr});
    }

    void WalkArchive(const ArchiveFolder& place, const std::string& path, const std::string& prefix) {
        const std::vector<std::string> names = NamesIn(place);
        std::set<std::string> files;
        NewNames newNames(names);
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::string& name = names[i];
            Entry& child = *place.folder->GetChildren()[i];
            const auto* folder = dynamic_cast<const FolderEntry*>(&child);
            if (!StaysInside(name)) {
                Refuse(prefix + name);
            } else if (!folder && !files.insert(name).second) {
                tool.Note(("Skipped another \"" + prefix).append(name).append("\"."));
            } else {
                const std::string newName = newNames.Take(name);
                if (newName != name) NoteNewName(prefix + name, prefix + newName);
                if (folder)
                    WalkArchive({place.archive, folder}, JoinPath(path, place.folder->GetListedName(child)),
                                prefix + newName + "/");
                else
                    AddEntry(place, child, JoinPath(path, child.GetName()), prefix + newName,
                             newName == name);
            }
        }
    }

    // Of names that are equal, ignoring case, only the first can be entered, because paths lead to that one.
    void AddEntry(const ArchiveFolder& place, Entry& entry, const std::string& path, const std::string& name,
                  bool isFirst) {
        if (isFirst && IsEntered(name)) {
            EntryStatus status;
            tool.GetApplication().GetFileSystem().GetStatus(path, status);
            return Walk(path, name + "/", status);
        }
        found.push_back({path, name, place.archive, &entry});
    }

    bool IsEntered(const std::string& name) {
        if (nested == NestedArchives::asFiles || !types.Find(name).isArchive) return false;
        return nested == NestedArchives::entered || !EqualNoCase(ExtensionOf(name), ".bsp");
    }

    void Refuse(const std::string& name) {
        tool.Fail("Skipped \"" + ToDisplayPath(name) + "\": it would lead out of the folder.");
    }

    void NoteNewName(const std::string& name, const std::string& newName) {
        tool.Note("Another entry has the same name as \"" + name + "\", ignoring case; this one becomes \"" +
                  newName + "\".");
    }

    Tool& tool;
    NestedArchives nested;
    OutputPlace& outputs;
    EntryTypes types;
    std::vector<std::string> way; // real paths of the folders on the disk from the tree to here
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

std::vector<TreeFile> ListTree(Tool& tool, const std::string& tree, NestedArchives nested,
                               OutputPlace& outputs) {
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(tree, status);
    TreeWalk walk(tool, nested, outputs);
    walk.Walk(tree, {}, status);
    return std::move(walk.found);
}

TreeFile FindFile(Tool& tool, const std::string& path) {
    FolderDocument* const archive = tool.GetApplication().GetFileSystem().FindArchive(path);
    Entry* const entry = archive ? archive->FindEntry(path) : nullptr;
    return {path, entry ? FileNameOfEntry(*archive, *entry) : std::string(FileNameOf(path)), archive, entry};
}

std::unique_ptr<CFile> OpenSource(const TreeFile& source) {
    if (!source.entry) return std::make_unique<DiskFile>(source.path, CFile::modeRead);
    return FileOrThrow([&](CFileException* failure) {
        return source.entry->OpenEntry(CFile::modeRead, failure, *source.archive);
    });
}

void FailToFind(Tool& tool, const std::string& path) {
    std::error_code failure;
    const bool isUnreadable = fs::status(ToNativePath(path), failure).type() == fs::file_type::none;
    tool.Fail("\"" + EscapePath(path) + "\" " +
              (isUnreadable ? "cannot be read: " + failure.message() + "." : "was not found."));
}

} // namespace keltavlo
