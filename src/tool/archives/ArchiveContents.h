#pragma once

#include "framework/core/CFile.h"
#include "tool/archives/ArchiveItem.h"
#include "tool/archives/ArchiveKind.h"

#include <span>

namespace keltavlo {

class OutputStream;

// An archive that can be written.
struct ArchiveContents {
    ArchiveKind kind = ArchiveKind::pak;
    std::vector<ArchiveItem> items;
};

// The entries of a pack or a WAD in the order of its directory. Their bytes are read from the file when they
// are needed. Throws what PAKDocument and WADDocument throw, and CException for compressed lumps.
ArchiveContents ReadArchive(std::unique_ptr<CFile> file);

// Writes the archive as WritePAK and WriteWAD do.
void WriteArchive(OutputStream& out, const ArchiveContents& contents);

// What a change of an archive does with an entry of a name that the archive has, or lacks.
struct ArchiveEdit {
    bool append = false;  // adds entries of new names
    bool replace = false; // replaces entries, in their places
};

// Adds the items to the archive. Returns sentences about those that the edit does not allow, in which case
// the contents must not be used.
std::vector<std::string> AddItems(ArchiveContents& contents, std::vector<ArchiveItem> items,
                                  const ArchiveEdit& edit);
// Sentences about limits that the archive exceeds as a whole.
std::vector<std::string> TellSurplus(const ArchiveContents& contents);
// Removes the entries of those names, without regard to case. Returns sentences about names that the archive
// lacks.
std::vector<std::string> RemoveItems(ArchiveContents& contents, std::span<const std::string> names);

} // namespace keltavlo
