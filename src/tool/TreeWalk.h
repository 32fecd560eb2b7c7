#pragma once

#include "resources/FileSource.h"

#include <functional>
#include <string>

class Tool;

// Whether a path is a folder of the disk or an archive, an archive's folder or an archive.
bool IsTree(const EntryStatus& status);

// Calls `visit` for every file below a folder of the disk or of an archive, with its path and its name below
// the tree
// ("a/b.wal"). Archives within the tree count as files. A name that would lead out of the tree is reported
// and left out, as is a second entry of one name, which no path reaches.
void WalkTree(Tool& tool, const std::string& tree,
              const std::function<void(const std::string& path, const std::string& name)>& visit);

// What people call the type that the path would open as, such as "Quake II Texture Files (*.wal)".
std::string TypeNameOf(const std::string& path);
