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

// The full path of an argument, whose names in archives may be escaped (NameEscapes.h). A separator at its
// end stays: in an archive it picks the folder where a file has the same name.
std::string TreePath(const std::string& argument);

// Whether a path is a folder of the disk or an archive, an archive's folder or an archive.
bool IsTree(const EntryStatus& status);

// A file of the disk or of an archive.
struct TreeFile {
    std::string path;                  // for people, and of files on the disk
    std::string name;                  // what to call it below another folder: "a/b.wal"
    FolderDocument* archive = nullptr; // open as long as the application lives; null on the disk
    Entry* entry = nullptr;            // in the archive
};

// What a walk does with archives in a tree. A map counts as an archive of its textures only where textures
// are all that is wanted.
enum class NestedArchives { asFiles, enteredWithoutMaps, entered };

// Every file below a folder of the disk or of an archive; each becomes an input of `outputs`. Skips, and
// reports, a name that would lead out of the tree, a second file of exactly the same name in an archive, a
// link that leads back to a folder above it, and a folder or archive that cannot be read. Of names in an
// archive that are equal without regard to case, all but the first get other names, which notes tell. Lumps
// have the names of their files (LumpName.h).
std::vector<TreeFile> ListTree(Tool& tool, const std::string& tree, NestedArchives nested,
                               OutputPlace& outputs);

// The file of a path that is no tree. Its name is that of the path, or of a lump's file.
TreeFile FindFile(Tool& tool, const std::string& path);

// Opens the file for reading; CException if that fails. Files of archives must be opened one after the other;
// what was opened may be read in any thread.
std::unique_ptr<CFile> OpenSource(const TreeFile& source);

// Reports that nothing can be read at the path, and why.
void FailToFind(Tool& tool, const std::string& path);

} // namespace keltavlo
