#include "image/PalettePlanes.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr int cellsInRow = 16;
constexpr int cellSide = PalettePlanes::side / cellsInRow;
constexpr int markerRadius = 7;

struct Box {
    int left, top, right, bottom; // right and bottom are exclusive
};

void Fill(Image& picture, Color color) {
    std::ranges::fill(picture.Pixels(), color);
}

void SetVisiblePixel(DibSection& bitmap, int x, int y, Color color) {
    if (x >= 0 && x < bitmap.GetWidth() && y >= 0 && y < bitmap.GetHeight())
        bitmap.Row(y)[static_cast<std::size_t>(x)] = color;
}

// Draws a frame of lines one pixel wide and clips it to the bitmap.
void DrawFrame(DibSection& bitmap, const Box& box, Color upperLeft, Color lowerRight) {
    for (int x = box.left; x < box.right; ++x) {
        SetVisiblePixel(bitmap, x, box.top, upperLeft);
        SetVisiblePixel(bitmap, x, box.bottom - 1, lowerRight);
    }
    for (int y = box.top; y < box.bottom; ++y) {
        if (y < box.bottom - 1) SetVisiblePixel(bitmap, box.left, y, upperLeft);
        SetVisiblePixel(bitmap, box.right - 1, y, lowerRight);
    }
}

void DrawThinEdge(DibSection& bitmap, const Box& box, const PalettePlanes::Look& look) {
    DrawFrame(bitmap, box, look.shadow, look.highlight);
}

void DrawFullEdge(DibSection& bitmap, const Box& box, const PalettePlanes::Look& look) {
    DrawThinEdge(bitmap, box, look);
    DrawFrame(bitmap, {box.left + 1, box.top + 1, box.right - 1, box.bottom - 1}, look.darkShadow,
              look.light);
}

void FillBox(DibSection& bitmap, const Box& box, Color color) {
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) SetVisiblePixel(bitmap, x, y, color);
}

constexpr Box wholePlane{0, 0, PalettePlanes::side, PalettePlanes::side};
constexpr Box wholeStrip{0, 0, PalettePlanes::side, PalettePlanes::stripHeight};

Box CellBox(int index) {
    const int left = index % cellsInRow * cellSide;
    const int top = index / cellsInRow * cellSide;
    return {left, top, left + cellSide, top + cellSide};
}

Box StripMarker(std::uint32_t value) {
    const int x = static_cast<int>(value);
    return {x - markerRadius, 1, x + markerRadius, PalettePlanes::stripHeight - 1};
}

} // namespace

void PalettePlanes::Rebuild(Color current) {
    currentColor = current;
    if (mode == rgba) return RebuildRamps();
    Fill(stripImage1, current);
    Fill(stripImage2, current);
    if (mode == colorTable)
        RebuildCells();
    else
        Fill(planeImage, current);
}

void PalettePlanes::RebuildCells() {
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const int index = y / cellSide * cellsInRow + x / cellSide;
            const auto entry = static_cast<std::size_t>(index);
            planeImage.SetPixel(x, y, entry < colors.GetCount() ? colors[entry] : currentColor);
        }
}

void PalettePlanes::RebuildRamps() {
    const std::uint32_t red = Red(currentColor), green = Green(currentColor), blue = Blue(currentColor);
    const std::uint32_t alpha = Alpha(currentColor);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            planeImage.SetPixel(
                x, y, Compose(static_cast<std::uint32_t>(y), static_cast<std::uint32_t>(x), blue, alpha));
    for (int y = 0; y < stripHeight; ++y)
        for (int x = 0; x < side; ++x) {
            const auto value = static_cast<std::uint32_t>(x);
            stripImage1.SetPixel(x, y, Compose(red, green, value, alpha));
            stripImage2.SetPixel(x, y, Compose(red, green, blue, value));
        }
}

void PalettePlanes::Render(const std::uint32_t* gammaTable, const Look& look) {
    const PixelTransform opaque =
        gammaTable ? PixelTransform(ChannelTableTransform{gammaTable}) : PixelTransform(IdentityTransform{});
    const PixelTransform blended = gammaTable
                                       ? PixelTransform(TableThenBackgroundTransform{gammaTable, look.face})
                                       : PixelTransform(OverBackgroundTransform{look.face});
    planeImage.RenderTo(planeBitmap, opaque);
    stripImage1.RenderTo(stripBitmap1, opaque);
    stripImage2.RenderTo(stripBitmap2, blended);
    if (mode == colorTable)
        DrawCellEdges(look);
    else
        DrawThinEdge(planeBitmap, wholePlane, look);
    if (mode == rgba) DrawMarkers(look);
    DrawThinEdge(stripBitmap1, wholeStrip, look);
    DrawThinEdge(stripBitmap2, wholeStrip, look);
}

void PalettePlanes::DrawCellEdges(const Look& look) {
    for (int index = 0; index < cellsInRow * cellsInRow; ++index) {
        const auto entry = static_cast<std::size_t>(index);
        if (entry >= colors.GetCount())
            FillBox(planeBitmap, CellBox(index), look.face);
        else if (colors[entry] == currentColor)
            DrawFullEdge(planeBitmap, CellBox(index), look);
        else
            DrawThinEdge(planeBitmap, CellBox(index), look);
    }
}

void PalettePlanes::DrawMarkers(const Look& look) {
    const int x = static_cast<int>(Green(currentColor));
    const int y = static_cast<int>(Red(currentColor));
    DrawThinEdge(planeBitmap, {x - markerRadius, y - markerRadius, x + markerRadius, y + markerRadius}, look);
    DrawThinEdge(stripBitmap1, StripMarker(Blue(currentColor)), look);
    DrawThinEdge(stripBitmap2, StripMarker(Alpha(currentColor)), look);
}

const DibSection& PalettePlanes::GetBitmap(Part part) const {
    return part == plane ? planeBitmap : part == strip1 ? stripBitmap1 : stripBitmap2;
}

std::optional<Color> PalettePlanes::HitTest(Part part, int x, int y) const {
    const Image& picture = part == plane ? planeImage : part == strip1 ? stripImage1 : stripImage2;
    if (x < 0 || x >= picture.GetWidth() || y < 0 || y >= picture.GetHeight()) return std::nullopt;
    return picture.GetPixel(x, y);
}

} // namespace keltavlo
