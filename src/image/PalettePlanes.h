#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/DibSection.h"
#include "image/picture/Image.h"

#include <optional>

namespace keltavlo {

// The pixels that the palette bar shows: a plane, either with a grid of cells or with red and green, and two
// strips below it. The pictures contain the colors to pick, the bitmaps the colors on the screen.
class PalettePlanes {
public:
    enum Mode { none, colorTable, rgba };
    enum Part { plane, strip1, strip2 };
    static constexpr int side = 256; // of the plane; also the width of the strips
    static constexpr int stripHeight = 16;

    // The colors of sunken edges, from the outer upper left to the outer lower right.
    struct Look {
        Color face = 0; // background of the last strip and of cells without an entry
        Color shadow = 0, darkShadow = 0, light = 0, highlight = 0;
    };

    Mode GetMode() const { return mode; }
    void SetMode(Mode newMode) { mode = newMode; }
    const ColorList& GetColors() const { return colors; }
    // Sets the table for the mode `colorTable`, which shows its first 256 entries.
    void SetColors(const ColorList& list) { colors = list; }

    // Fills the pictures for the current color.
    void Rebuild(Color current);
    // Updates the bitmaps through a channel table of 256 entries; null shows the colors unchanged.
    void Render(const std::uint32_t* gammaTable, const Look& look);

    const DibSection& GetBitmap(Part part) const;
    // Returns the color of a pixel before gamma, or null outside the picture.
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
    DibSection planeBitmap{side, -side, 32}; // rows top-down
    DibSection stripBitmap1{side, -stripHeight, 32};
    DibSection stripBitmap2{side, -stripHeight, 32};
};

} // namespace keltavlo
