#pragma once

#include "archives/ui/PreviewPanel.h"
#include "framework/ui/CFileDialog.h"

namespace keltavlo {

// What the file dialog knows of the program.

// The filters of a file dialog: the type's own first, then the program's list for opening or saving, then all
// files.
std::vector<FileFilter> BuildFileFilters(const FileNameQuestion& question);
// The picture of that path as views show it, with its size and its type; or why there is none.
Preview ReadPicturePreview(const std::string& path);
// Whether a file may be saved under that path: asks before a picture gets the format of the first type
// because its name's extension is unknown.
bool MaySave(const FileNameQuestion& question, const std::string& path);

} // namespace keltavlo
