#include "archives/FolderDocument.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/Tool.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"

#include <ostream>

namespace keltavlo {

void ListFolder(Tool& tool, const ToolArguments& arguments) {
    FileSystem& files = tool.GetApplication().GetFileSystem();
    const std::string folder = TreePath(arguments.paths.front());
    EntryStatus status;
    files.GetStatus(folder, status);
    FolderListing listing;
    files.ListFolder(folder, listing);
    const bool inArchive = status.browsable || !status.onDisk;
    if (!IsTree(status) || !inArchive)
        return tool.Fail("\"" + ToDisplayPath(folder) + "\" is not an archive or a folder in one.");
    for (const std::string& name : listing.names) {
        files.GetStatus(JoinPath(folder, name), status);
        const bool isFolder = (status.attributes & CFileStatus::directoryAttribute) != 0;
        const std::string type = isFolder ? "folder" : TypeNameOf(name);
        tool.Output() << Format("%10s  %-38s  %s\n", isFolder ? "" : std::to_string(status.size).c_str(),
                                type.c_str(), ToUtf8(name).c_str());
    }
}

} // namespace keltavlo
