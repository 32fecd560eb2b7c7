#pragma once

#include "image/picture/ColorList.h"
#include "resources/PaletteDocument.h"

namespace keltavlo {

// A colour table (".kelcolors"): 4-byte entries without a header, each 0xAARRGGBB, little-endian. Read only.
class ColorTableDocument : public Dynamic<"ColorTableDocument", ColorTableDocument, PaletteDocument> {
public:
    bool IsColorTable() const override { return true; }
    std::size_t GetColorCount() const override { return colors.GetCount(); }
    Color GetColor(std::size_t index) const override { return colors.GetColor(index); }
    const ColorList& GetColors() const { return colors; }

    // badIndex when the length is not a multiple of 4.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // generic

protected:
    void DeleteContents() override { colors = {}; }

    ColorList colors;
};

} // namespace keltavlo
