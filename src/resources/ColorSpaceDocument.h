#pragma once

#include "resources/PaletteDocument.h"

namespace keltavlo {

// A colour space (".kelcolorspace"): a tagged file that names a whole space of colours; RGBA is the only one.
// Read only.
class ColorSpaceDocument final : public Dynamic<"ColorSpaceDocument", ColorSpaceDocument, PaletteDocument> {
public:
    bool IsColorTable() const override { return false; }
    std::size_t GetColorCount() const override { return 0; }
    Color GetColor(std::size_t) const override { return 0; }

    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly
};

} // namespace keltavlo
