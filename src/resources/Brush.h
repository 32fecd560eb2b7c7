#pragma once

#include "image/picture/Color.h"
#include "resources/ReferenceDocument.h"

#include <cstdint>
#include <memory>

namespace keltavlo {

// A point of a picture in texels, from its top left corner. It may be anywhere, because pictures tile
// without end.
struct TexelPoint {
    double x = 0;
    double y = 0;

    // The texel at the point. Truncates toward zero, so that texel 0 extends across the seam; the picture
    // wraps it.
    unsigned Column() const { return static_cast<unsigned>(static_cast<int>(x)); }
    unsigned Row() const { return static_cast<unsigned>(static_cast<int>(y)); }
};

// A picture as a brush sees it: texels, tiled without end.
class BrushTarget {
public:
    virtual ~BrushTarget() = default;
    virtual Color GetTexel(unsigned x, unsigned y) const = 0;
    virtual void SetTexel(unsigned x, unsigned y, Color color) = 0;
};

// A tool that the image view applies where the user clicks or drags.
class Brush {
public:
    // The numbers of the kinds in brush files.
    static constexpr std::uint32_t texelKind = 1;
    static constexpr std::uint32_t colorPickerKind = 2;
    // The numbers of their cursors.
    static constexpr unsigned pencilCursor = 146;
    static constexpr unsigned pipetteCursor = 147;

    virtual ~Brush() = default;
    // Applies the brush from one point to another. A strength below 1 changes nothing.
    virtual void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second) = 0;
    // Returns the number of the cursor to show over a view.
    unsigned GetCursor() const { return cursor; }

    // Makes a brush of that kind; null if there is none.
    static std::unique_ptr<Brush> Make(std::uint32_t kind);

protected:
    explicit Brush(unsigned cursorId) : cursor(cursorId) {}

private:
    unsigned cursor;
};

// A brush file (".kelbrush"): a tagged file that names a kind of brush and its title. Read only.
class BrushDocument final : public Dynamic<"BrushDocument", BrushDocument, ReferenceDocument> {
public:
    static constexpr unsigned arrowCursor = 0; // the standard pointer

    // Does nothing without a brush.
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second);
    unsigned GetCursor() const { return brush ? brush->GetCursor() : arrowCursor; }

    // Throws badSchema for an unknown kind. A file without a kind opens without a brush.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws generic

private:
    std::unique_ptr<Brush> brush;
};

} // namespace keltavlo
