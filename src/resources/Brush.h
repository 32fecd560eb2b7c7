#pragma once

#include "image/picture/Color.h"
#include "resources/ReferenceDocument.h"

#include <cstdint>
#include <memory>

namespace keltavlo {

// A point of a picture in texels, from its top left corner; any point will do, for pictures tile without end.
struct TexelPoint {
    double x = 0;
    double y = 0;

    // The texel at the point, for whoever paints, picks or tells of it. Truncated toward zero, so that texel
    // 0 reaches over the seam; the picture wraps it.
    unsigned Column() const { return static_cast<unsigned>(static_cast<int>(x)); }
    unsigned Row() const { return static_cast<unsigned>(static_cast<int>(y)); }
};

// What a brush sees of the picture it is applied to: its texels, tiled without end.
class BrushTarget {
public:
    virtual ~BrushTarget() = default;
    virtual Color GetTexel(unsigned x, unsigned y) const = 0;
    virtual void SetTexel(unsigned x, unsigned y, Color color) = 0;
};

// A tool that the image view applies where the mouse clicks or drags.
class Brush {
public:
    // The kinds, as brush files number them.
    static constexpr std::uint32_t texelKind = 1;
    static constexpr std::uint32_t colorPickerKind = 2;
    // Their cursors.
    static constexpr unsigned pencilCursor = 146;
    static constexpr unsigned pipetteCursor = 147;

    virtual ~Brush() = default;
    // Applies the brush from one point to another; a strength below 1 changes nothing.
    virtual void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second) = 0;
    // Number of the cursor to show over a view.
    unsigned GetCursor() const { return cursor; }

    // The brush of that kind; null when there is none.
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

    // Nothing without a brush.
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second);
    unsigned GetCursor() const { return brush ? brush->GetCursor() : arrowCursor; }

    // badSchema for a kind that is not known; a file without a kind opens without a brush.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // generic

private:
    std::unique_ptr<Brush> brush;
};

} // namespace keltavlo
