#pragma once

#include "framework/core/CFile.h"
#include "tool/archives/ArchiveItem.h"
#include "tool/archives/ArchiveKind.h"

#include <span>

namespace keltavlo {

class OutputStream;

// The contents of an archive that can be written.
struct ArchiveContents {
    ArchiveKind kind = ArchiveKind::pak;
    std::vector<ArchiveItem> items;
};

// Reads the entries of a pack or a WAD in the order of its directory. Their bytes are read from the file only
// when needed. Throws what PAKDocument and WADDocument throw, and CException for compressed lumps.
ArchiveContents ReadArchive(std::unique_ptr<CFile> file);

// Writes the archive as WritePAK and WriteWAD do.
void WriteArchive(OutputStream& out, const ArchiveContents& contents);

// What AddItems may do.
struct ArchiveEdit {
    bool append = false;  // add entries with new names
    bool replace = false; // replace entries, in their positions
};

// Adds the items to the archive. Returns sentences about items that the edit does not allow; if there are
// any, the contents must not be used.
std::vector<std::string> AddItems(ArchiveContents& contents, std::vector<ArchiveItem> items,
                                  const ArchiveEdit& edit);
// Returns sentences about limits that the archive as a whole exceeds.
std::vector<std::string> TellSurplus(const ArchiveContents& contents);
// Removes the entries with those names, ignoring case. Returns sentences about names that the archive lacks.
std::vector<std::string> RemoveItems(ArchiveContents& contents, std::span<const std::string> names);

} // namespace keltavlo
