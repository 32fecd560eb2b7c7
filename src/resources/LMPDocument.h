#pragma once

#include "resources/ColorTableDocument.h"

namespace keltavlo {

// A palette lump (".lmp"): 256 triples of red, green and blue bytes. Read only.
class LMPDocument final : public Dynamic<"LMPDocument", LMPDocument, ColorTableDocument> {
public:
    // endOfFile when there are fewer than 768 bytes; more are ignored.
    void ReadContents(InputStream& in) override;
};

} // namespace keltavlo
