#pragma once

#include "tool/archives/ArchiveKind.h"
#include "tool/pictures/TextureFields.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace keltavlo {

class Entry;
class FolderDocument;

// A file to pack.
struct PackSource {
    std::string path;
    std::string name;                  // its path below the packed folder, with "/"
    FolderDocument* archive = nullptr; // null on the disk
    Entry* entry = nullptr;            // in the archive
    TextureFields fields = {};         // of a picture, from its folder's metadata
};

// The entry to make from a file.
struct PlannedEntry {
    PackSource source;
    std::string name;           // in a pack a path, in a WAD the name of the lump
    LumpType type = LumpType{}; // in a WAD
    std::string format;         // for a picture, with its dot; empty to keep the file as it is
};

// Returns the name of the entry for a file or for a listed name: in a WAD, the file name without escapes and
// without the extension of a picture or palette.
std::string EntryNameOf(ArchiveKind kind, const std::string& fileName);

// Names the entries of an archive to be written, and finds what does not fit before anything is written.
class PackPlan {
public:
    // `format` is the one to convert pictures in a pack to, with its dot; empty to keep theirs.
    explicit PackPlan(ArchiveKind archiveKind, std::string format = {});

    // Adds a file, or a complaint about it.
    void Add(const PackSource& source);

    const std::vector<PlannedEntry>& GetEntries() const { return entries; }
    // Returns sentences for the user, each of which names a file.
    const std::vector<std::string>& GetComplaints() const { return complaints; }

private:
    PlannedEntry NameEntry(const PackSource& source) const;
    std::string ReasonAgainst(const PlannedEntry& entry) const;

    ArchiveKind kind;
    std::string pictureFormat;
    std::vector<PlannedEntry> entries;
    std::vector<std::string> complaints;
    std::unordered_map<std::string, std::string> sources; // file names by folded entry name
};

} // namespace keltavlo
