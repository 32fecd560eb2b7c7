#pragma once

#include "image/picture/ColorList.h"
#include "resources/ReferenceDocument.h"

namespace keltavlo {

// A document that provides colors for an image: a list of colors or a whole color space.
class PaletteDocument : public Dynamic<"PaletteDocument", PaletteDocument, ReferenceDocument> {
public:
    // Returns whether this is a list of colors.
    virtual bool IsColorTable() const = 0;
    virtual std::size_t GetColorCount() const = 0;
    // Returns the color at the index. Throws std::out_of_range past the end of a list.
    virtual Color GetColor(std::size_t index) const = 0;
};

// A color table (".kelcolors"): 4-byte entries without a header, each 0xAARRGGBB, little-endian. Read only.
class ColorTableDocument : public Dynamic<"ColorTableDocument", ColorTableDocument, PaletteDocument> {
public:
    bool IsColorTable() const override { return true; }
    std::size_t GetColorCount() const override { return colors.GetCount(); }
    Color GetColor(std::size_t index) const override { return colors.GetColor(index); }
    const ColorList& GetColors() const { return colors; }

    // Throws badIndex if the length is not a multiple of 4.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws generic

protected:
    void DeleteContents() override { colors = {}; }

    ColorList colors;
};

// A palette lump (".lmp"): 256 triples of red, green and blue bytes. Read only.
class LMPDocument final : public Dynamic<"LMPDocument", LMPDocument, ColorTableDocument> {
public:
    // Throws endOfFile for fewer than 768 bytes and ignores further ones.
    void ReadContents(InputStream& in) override;
};

// A color space (".kelcolorspace"): a tagged file that names a whole space of colors; RGBA is the only one.
// Read only.
class ColorSpaceDocument final : public Dynamic<"ColorSpaceDocument", ColorSpaceDocument, PaletteDocument> {
public:
    bool IsColorTable() const override { return false; }
    std::size_t GetColorCount() const override { return 0; }
    Color GetColor(std::size_t) const override { return 0; }

    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws readOnly
};

} // namespace keltavlo
