#include "tool/archives/PackPlan.h"

#include "archives/PAKFormat.h"
#include "framework/core/Path.h"
#include "tool/archives/LumpName.h"
#include "tool/pictures/PictureFormat.h"

namespace keltavlo {

namespace {

constexpr std::size_t longestPath = sizeof PAKRecord::name - 1; // bytes; the games expect a NUL
constexpr std::size_t longestLumpName = sizeof WADRecord::name - 1;
constexpr std::string_view lumpFormat = ".mip";
constexpr std::string_view paletteExtension = ".lmp";

std::string Complain(const std::string& name, const std::string& reason) {
    return "\"" + name + "\" does not fit: " + reason;
}

bool IsPalette(const std::string& fileName) {
    return EqualNoCase(ExtensionOf(fileName), paletteExtension);
}

// Whether a path with "/" begins at the root or has a component that leads upward.
bool LeadsOut(const std::string& path) {
    return path.starts_with('/') || ("/" + path + "/").find("/../") != std::string::npos;
}

bool HasSeparator(std::string_view name) {
    return name.find_first_of(std::string_view("\\:\0", 3)) != std::string_view::npos;
}

} // namespace

std::string EntryNameOf(ArchiveKind kind, const std::string& fileName) {
    if (!IsWAD(kind)) return fileName;
    const bool isLump = FindPictureFormat(fileName) || IsPalette(fileName);
    return LumpNameOfFile(isLump ? BaseNameOf(fileName) : FileNameOf(fileName));
}

PackPlan::PackPlan(ArchiveKind archiveKind, std::string format)
    : kind(archiveKind), pictureFormat(std::move(format)) {}

void PackPlan::Add(const PackSource& source) {
    PlannedEntry entry = NameEntry(source);
    std::string reason = ReasonAgainst(entry);
    if (reason.empty()) {
        // Readers of archives ignore case.
        const auto [place, isNew] = sources.emplace(FoldCase(entry.name), source.name);
        if (!isNew) reason = "\"" + place->second + "\" has the same name in the archive.";
    }
    if (reason.empty())
        entries.push_back(std::move(entry));
    else
        complaints.push_back(Complain(source.name, reason));
}

PlannedEntry PackPlan::NameEntry(const PackSource& source) const {
    PlannedEntry entry{source, EntryNameOf(kind, source.name), LumpType{}, {}};
    const bool isPicture = FindPictureFormat(source.name) != nullptr;
    const std::string_view extension = ExtensionOf(source.name);
    if (IsWAD(kind)) {
        if (isPicture) {
            entry.type = TextureTypeOf(kind);
            entry.format = lumpFormat;
        } else if (IsPalette(source.name)) {
            entry.type = LumpType::palette;
        }
    } else if (isPicture && !pictureFormat.empty() && !EqualNoCase(extension, pictureFormat)) {
        entry.name.resize(entry.name.size() - extension.size());
        entry.name += pictureFormat;
        entry.format = pictureFormat;
    }
    return entry;
}

std::string PackPlan::ReasonAgainst(const PlannedEntry& entry) const {
    if (!IsWAD(kind)) {
        if (entry.name.size() > longestPath)
            return "paths in a pack have at most " + std::to_string(longestPath) + " characters.";
        if (LeadsOut(entry.name)) return "its path leads out of the packed folder.";
        if (HasSeparator(entry.name)) return "a pack would take its name for a path.";
        return {};
    }
    if (entry.type == LumpType{}) return "it is neither a picture nor a palette (.lmp).";
    if (entry.name.empty()) return "its name is empty.";
    if (entry.name.size() > longestLumpName)
        return "names in a WAD have at most " + std::to_string(longestLumpName) + " characters.";
    if (HasSeparator(entry.name) || entry.name.find('/') != std::string::npos)
        return "a WAD would take its name for a path.";
    return {};
}

} // namespace keltavlo
