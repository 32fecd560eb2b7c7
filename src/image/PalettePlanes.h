#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/DibSection.h"
#include "image/picture/Image.h"

#include <optional>

namespace keltavlo {

// What the palette bar shows, in pixels: a plane with a grid of cells or with red and green, and two strips
// below it. The pictures hold the colors that are picked, the bitmaps what is seen of them.
class PalettePlanes {
public:
    enum Mode { none, colorTable, rgba };
    enum Part { plane, strip1, strip2 };
    static constexpr int side = 256; // of the plane, and the strips' width
    static constexpr int stripHeight = 16;

    // The colors of sunken edges, from the outside of their upper left corner to that of their lower right.
    struct Look {
        Color face = 0; // what the last strip and cells without an entry lie on
        Color shadow = 0, darkShadow = 0, light = 0, highlight = 0;
    };

    Mode GetMode() const { return mode; }
    void SetMode(Mode newMode) { mode = newMode; }
    const ColorList& GetColors() const { return colors; }
    // The table that the mode `colorTable` shows, from its first 256 entries.
    void SetColors(const ColorList& list) { colors = list; }

    // Fills the pictures for the current color.
    void Rebuild(Color current);
    // Brings the bitmaps up to date through the channel table of 256 entries; null shows colors as they are.
    void Render(const std::uint32_t* gammaTable, const Look& look);

    const DibSection& GetBitmap(Part part) const;
    // The color of the picture's pixel, untouched by gamma; nothing outside the picture.
    std::optional<Color> HitTest(Part part, int x, int y) const;

private:
    void RebuildCells();
    void RebuildRamps();
    void DrawCellEdges(const Look& look);
    void DrawMarkers(const Look& look);

    Mode mode = none;
    Color currentColor = 0;
    ColorList colors;
    Image planeImage{side, side};
    Image stripImage1{side, stripHeight};
    Image stripImage2{side, stripHeight};
    DibSection planeBitmap{side, -side, 32}; // rows from the top
    DibSection stripBitmap1{side, -stripHeight, 32};
    DibSection stripBitmap2{side, -stripHeight, 32};
};

} // namespace keltavlo
