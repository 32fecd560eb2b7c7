#pragma once

#include <string>

struct stat;

namespace keltavlo {

// Gives an open file what the file at `path`, with status `old`, has beside its bytes: its owner and its
// extended attributes as far as the user may set them, its access control list, and its permissions.
// CFileException with `path` if the permissions cannot be set or the disk has no room for the attributes.
void TakeOverAttributes(int descriptor, const struct stat& old, const std::string& path);

} // namespace keltavlo
