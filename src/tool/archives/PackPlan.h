#pragma once

#include "tool/archives/ArchiveKind.h"
#include "tool/pictures/TextureFields.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace keltavlo {

class Entry;
class FolderDocument;

// A file that is to be packed.
struct PackSource {
    std::string path;
    std::string name;                  // its path below the packed folder, with "/"
    FolderDocument* archive = nullptr; // of a file in an archive
    Entry* entry = nullptr;            // in the archive
    TextureFields fields = {};         // of a picture, from the metadata of its folder
};

// The entry that a file becomes.
struct PlannedEntry {
    PackSource source;
    std::string name;           // in a pack a path, in a WAD the name of the lump
    LumpType type = LumpType{}; // in a WAD
    std::string format; // that a picture is converted to, with its dot; empty if the file goes in as it is
};

// The name of the entry for a file, or for a name as archives are listed: in a WAD, the file name without the
// extension of a picture or palette and without escapes.
std::string EntryNameOf(ArchiveKind kind, const std::string& fileName);

// Names the entries of an archive that is to be written, and finds what does not fit before anything is done.
class PackPlan {
public:
    // `format` is the one that pictures in a pack are converted to, with its dot; empty for none.
    explicit PackPlan(ArchiveKind archiveKind, std::string format = {});

    // Adds a file, or a complaint.
    void Add(const PackSource& source);

    const std::vector<PlannedEntry>& GetEntries() const { return entries; }
    // Sentences for the user, each of which names a file.
    const std::vector<std::string>& GetComplaints() const { return complaints; }

private:
    PlannedEntry NameEntry(const PackSource& source) const;
    std::string ReasonAgainst(const PlannedEntry& entry) const;

    ArchiveKind kind;
    std::string pictureFormat;
    std::vector<PlannedEntry> entries;
    std::vector<std::string> complaints;
    std::unordered_map<std::string, std::string> sources; // the names of the files by folded entry name
};

} // namespace keltavlo
