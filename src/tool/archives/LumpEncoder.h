#pragma once

#include "tool/archives/ArchiveKind.h"
#include "tool/pictures/PictureConversion.h"

#include <span>

namespace keltavlo {

struct PlannedEntry;

// Encodes the pictures of an archive. Safe to call from several threads.
class LumpEncoder {
public:
    // In a WAD2, pictures get the game's palette unless the options name another one; in a WAD3, each gets
    // its own. The palettes must outlive the encoder.
    LumpEncoder(ArchiveKind archiveKind, const PaletteSet& paletteSet, PaletteOptions paletteOptions);

    // Converts a picture file to the entry's format. A texture that already has the archive's format keeps
    // its bytes, except for its name. Throws CException, with a sentence, for a picture that cannot be read
    // or has sides that the games do not allow.
    ConvertedFile Encode(std::span<std::byte> file, const PlannedEntry& entry) const;

private:
    void CheckSides(CFile& file, const PlannedEntry& entry) const;
    bool IsReadyLump(std::span<const std::byte> file, const PlannedEntry& entry) const;
    void FinishLump(std::vector<std::byte>& lump, const std::string& name) const;
    ConversionOptions OptionsFor(const PlannedEntry& entry) const;

    ArchiveKind kind;
    const PaletteSet& palettes;
    PaletteOptions palette;
};

} // namespace keltavlo
