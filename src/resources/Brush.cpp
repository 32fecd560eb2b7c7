#include "resources/Brush.h"

#include "resources/Shell.h"
#include "resources/streams/OutputStream.h"
#include "resources/streams/TaggedFile.h"

namespace keltavlo {

namespace {

// Paints single texels with the current color.
class TexelBrush final : public Brush {
public:
    TexelBrush() : Brush(pencilCursor) {}
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint) override {
        if (strength < 1) return;
        target.SetTexel(point.Column(), point.Row(), Shell::Get().GetCurrentColor());
    }
};

// Makes the color under the mouse the current color.
class ColorPickerBrush final : public Brush {
public:
    ColorPickerBrush() : Brush(pipetteCursor) {}
    void Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint) override {
        if (strength < 1) return;
        Shell& shell = Shell::Get();
        shell.SetCurrentColor(target.GetTexel(point.Column(), point.Row()));
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

void BrushDocument::Apply(BrushTarget& target, TexelPoint point, int strength, TexelPoint second) {
    if (brush) brush->Apply(target, point, strength, second);
}

void BrushDocument::ReadContents(InputStream& in) {
    const TaggedContents contents = ReadTaggedContents(in, tagged::brushType);
    fixedTitle = contents.title;
    brush = Brush::Make(contents.id);
    if (!brush && contents.id != 0) in.FailUnnamed(StreamError::badSchema);
}

void BrushDocument::WriteContents(OutputStream& out) {
    out.FailUnnamed(StreamError::generic);
}

} // namespace keltavlo
