#pragma once

#include "archives/FolderDocument.h"

namespace keltavlo {

// A map of Quake or Half-Life (".bsp") as a folder of the textures in it. Read only.
class BSPDocument final : public Dynamic<"BSPDocument", BSPDocument, FolderDocument> {
public:
    // badClass, with a sentence, for maps of other versions and games; badIndex for a count or place that
    // leads out of the file, and for textures that together are larger than it; endOfFile for a short file.
    // Textures whose pixels are not in the map are left out and reported to ArchiveNotes.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly
    bool HasLumps() const override { return true; }
};

} // namespace keltavlo
