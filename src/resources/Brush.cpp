#include "resources/Brush.h"

#include "image/picture/Image.h"
#include "resources/Shell.h"

namespace {

constexpr unsigned paintCursor = 146;
constexpr unsigned pickCursor = 147;

// Truncated toward zero, so that texel 0 reaches half over the seam; the picture wraps it.
unsigned TexelIndex(double coordinate) {
    return static_cast<unsigned>(static_cast<int>(coordinate));
}

// Paints single texels with the current colour.
class TexelBrush final : public Brush {
public:
    TexelBrush() : Brush(paintCursor) {}
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint) override {
        if (strength < 1) return;
        target.GetPicture().SetPixelWrapped(TexelIndex(point.x), TexelIndex(point.y),
                                            Shell::Get().GetCurrentColor());
    }
};

// Takes the colour under the mouse as the current one.
class ColorPickerBrush final : public Brush {
public:
    ColorPickerBrush() : Brush(pickCursor) {}
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint) override {
        if (strength < 1) return;
        Shell& shell = Shell::Get();
        shell.SetCurrentColor(target.GetPicture().GetPixelWrapped(TexelIndex(point.x), TexelIndex(point.y)));
        shell.UpdatePaletteBar(Shell::colorChanged);
    }
};

} // namespace

std::unique_ptr<Brush> Brush::Make(std::uint32_t kind) {
    switch (kind) {
    case texelKind:
        return std::make_unique<TexelBrush>();
    case colorPickerKind:
        return std::make_unique<ColorPickerBrush>();
    default:
        return nullptr;
    }
}
