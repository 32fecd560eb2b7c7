#pragma once

#include "resources/FileSource.h"

#include <memory>
#include <string>
#include <vector>

namespace keltavlo {

class Entry;
class FolderDocument;
class OutputPlace;
class Tool;

// Returns the full path of an argument. Names inside archives may be escaped (NameEscapes.h). Keeps a
// separator at the end: in an archive it selects the folder if a file has the same name.
std::string TreePath(const std::string& argument);

// Whether the path belongs to a folder on the disk, an archive or a folder inside one.
bool IsTree(const EntryStatus& status);

// A file on the disk or in an archive.
struct TreeFile {
    std::string path;                  // to show; also to open a file on the disk
    std::string name;                  // for a copy below another folder: "a/b.wal"
    FolderDocument* archive = nullptr; // open until the application ends; null on the disk
    Entry* entry = nullptr;            // in the archive
};

// How to treat archives in a tree. Only commands that want nothing but textures enter maps, too.
enum class NestedArchives { asFiles, enteredWithoutMaps, entered };

// Returns every file below a folder on the disk or in an archive, and adds each to the inputs of `outputs`.
// Skips and reports a name that leads out of the tree, a second file with exactly the same name in an
// archive, a link back to a folder above it, and a folder or archive that cannot be read. If names in an
// archive are equal, ignoring case, all but the first are changed, with a note. Lumps get the names of their
// files (LumpName.h).
std::vector<TreeFile> ListTree(Tool& tool, const std::string& tree, NestedArchives nested,
                               OutputPlace& outputs);

// Returns the file at a path that is no tree. Its name is that of the path, or of a lump's file.
TreeFile FindFile(Tool& tool, const std::string& path);

// Opens the file for reading. Throws CFileException on failure. Open files in archives one at a time; any
// thread may read them once they are open.
std::unique_ptr<CFile> OpenSource(const TreeFile& source);

// Reports why nothing can be read at the path.
void FailToFind(Tool& tool, const std::string& path);

} // namespace keltavlo
