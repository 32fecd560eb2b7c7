#pragma once

#include "archives/FolderDocument.h"

namespace keltavlo {

// A map of Quake or Half-Life (".bsp") as a folder of the textures in it. Read only.
class BSPDocument final : public Dynamic<"BSPDocument", BSPDocument, FolderDocument> {
public:
    // Throws badClass, with a sentence, for maps of other versions and games; badIndex for a count or
    // position outside the file, and for textures that together are larger than the file; endOfFile for a
    // short file. Skips textures whose pixels are not in the map, and tells ArchiveNotes.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws readOnly
    bool HasLumps() const override { return true; }
};

} // namespace keltavlo
