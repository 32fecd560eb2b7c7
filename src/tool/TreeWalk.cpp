#include "tool/TreeWalk.h"

#include "archives/FolderDocument.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "resources/DocTemplateRegistry.h"
#include "tool/Tool.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace {

namespace fs = std::filesystem;

using Visitor = std::function<void(const std::string& path, const std::string& name)>;

bool IsFolder(const EntryStatus& status) {
    return (status.attributes & CFileStatus::directoryAttribute) != 0;
}

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

void WalkFolder(Tool& tool, const std::string& folder, const std::string& prefix, const EntryStatus& status,
                const Visitor& visit) {
    std::set<std::string> seen;
    for (const std::string& name : NamesIn(tool, folder, status)) {
        const std::string relative = prefix + name;
        const std::string path = JoinPath(folder, name);
        EntryStatus child;
        tool.GetApplication().GetFileSystem().GetStatus(path, child);
        if (!StaysInside(name))
            tool.Fail("\"" + relative + "\" would lead out of the folder and was left out.");
        else if (!seen.insert(status.onDisk && !status.browsable ? name : FoldCase(name)).second)
            tool.Note("\"" + relative + "\" stands there a second time; the first one counts.");
        else if (IsFolder(child))
            WalkFolder(tool, path, relative + "/", child, visit);
        else
            visit(path, relative);
    }
}

} // namespace

bool IsTree(const EntryStatus& status) {
    return status.exists && (status.browsable || IsFolder(status));
}

void WalkTree(Tool& tool, const std::string& tree, const Visitor& visit) {
    EntryStatus status;
    tool.GetApplication().GetFileSystem().GetStatus(tree, status);
    WalkFolder(tool, tree, {}, status, visit);
}

std::string TypeNameOf(const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CDocTemplate* type = registry.FindTemplate(*registry.GetDocumentClassOfName(path));
    const std::string extension = type->GetDocString(CDocTemplate::filterExt);
    return EqualNoCase(extension, ExtensionOf(path)) ? type->GetDocString(CDocTemplate::filterName)
                                                     : "unknown";
}
