#pragma once

#include "resources/FileSource.h"

#include <string>
#include <vector>

namespace keltavlo {

class OutputPlace;
class Tool;

// The full path of an argument, whose names in archives may be escaped (NameEscapes.h). A separator at its
// end stays: in an archive it picks the folder where a file has the same name.
std::string TreePath(const std::string& argument);

// Whether a path is a folder of the disk or an archive, an archive's folder or an archive.
bool IsTree(const EntryStatus& status);

// A file below a tree.
struct TreeFile {
    std::string path;
    std::string name; // what to call it below another folder: "a/b.wal"
};

// Every file below a folder of the disk or of an archive; each becomes an input of `outputs`. Archives within
// the tree count as files. Skips, and reports, a name that would lead out of the tree, and a second file of
// one name in an archive, because no path reaches it. Of a file and a folder of one name, the second gets
// another name, which a note tells.
std::vector<TreeFile> ListTree(Tool& tool, const std::string& tree, OutputPlace& outputs);

} // namespace keltavlo
