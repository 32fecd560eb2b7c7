#pragma once

#include "framework/ui/CFileDialog.h"

namespace keltavlo {

// The filters of a file dialog: the type's own first, then the program's list for opening or saving, then all
// files.
std::vector<FileFilter> BuildFileFilters(const FileNameQuestion& question);

} // namespace keltavlo
