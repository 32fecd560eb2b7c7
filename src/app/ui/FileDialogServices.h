#pragma once

#include "archives/ui/PreviewPanel.h"
#include "framework/ui/CFileDialog.h"

namespace keltavlo {

// Functions that the program provides to the file dialog.

// Returns the filters of a file dialog: the type's own first, then the program's list for opening or saving,
// then all files.
std::vector<FileFilter> BuildFileFilters(const FileNameQuestion& question);
// Returns the picture at the path as views show it, with its size and type, or the reason why there is none.
Preview ReadPicturePreview(const std::string& path);
// Returns whether a file may be saved under the path. If the extension is unknown, a picture would get the
// format of the first type, so this asks the user first.
bool MaySave(const FileNameQuestion& question, const std::string& path);

} // namespace keltavlo
