// Random edits, strokes, undos and redos against a plain model of what a history means.
#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "res/CommandIds.h"
#include "resources/BrushDocument.h"
#include "resources/BuiltInPath.h"
#include "resources/PaletteDocument.h"
#include "support/FakeShell.h"
#include "support/TestApplication.h"

#include <deque>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int steps = 20000;
constexpr int largestSide = 6;
constexpr std::size_t capacity = 16;

// A texture in plain values.
struct State {
    int width = 1, height = 1;
    std::vector<Color> pixels{0};
    bool hasPalette = false;
    std::string quakeName, name, nextFrameName;
    std::uint32_t surfaceFlags = 0, contents = 0, value = 0;

    bool operator==(const State&) const = default;
    Color& At(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

State StateOf(const Texture& texture) {
    const Quake2Properties& quake2 = texture.quake2;
    return {texture.GetWidth(),
            texture.GetHeight(),
            {texture.Pixels().begin(), texture.Pixels().end()},
            texture.palette != nullptr,
            texture.quakeName,
            quake2.name,
            quake2.nextFrameName,
            quake2.surfaceFlags,
            quake2.contents,
            quake2.value};
}

State Resized(State old, int width, int height) {
    State result = old;
    result.width = width;
    result.height = height;
    result.pixels.resize(static_cast<std::size_t>(width * height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            result.At(x, y) = old.At(std::min(x, old.width - 1), std::min(y, old.height - 1));
    return result;
}

// States in a row, of which one is current. Edits cut off what lies behind it, strokes change it in its
// place.
class Timeline {
public:
    explicit Timeline(State first) : states{{std::move(first), false}} {}

    State& Current() { return states[position].state; }
    bool CanUndo() const { return position > 0; }
    bool CanRedo() const { return position + 1 < states.size(); }
    void Undo() { Move(position - 1, states[position].propertyOnly); }
    void Redo() { Move(position + 1, states[position + 1].propertyOnly); }
    // An edit that changes nothing is none.
    void Edit(State edited, bool propertyOnly) {
        if (edited == Current()) return;
        Add(std::move(edited), propertyOnly);
    }
    void Add(State edited, bool propertyOnly) {
        states.resize(position + 1);
        states.push_back({std::move(edited), propertyOnly});
        if (states.size() > capacity + 1) states.pop_front();
        position = states.size() - 1;
    }

private:
    // The change of a property knows no pixels: strokes made since stay.
    void Move(std::size_t to, bool propertyOnly) {
        if (propertyOnly) states[to].state.pixels = Current().pixels;
        position = to;
    }

    struct Moment {
        State state;
        bool propertyOnly = false; // what led here from the one before
    };
    std::deque<Moment> states;
    std::size_t position = 0;
};

struct EditWalkTest : WorkshopTest, testing::WithParamInterface<unsigned>, BrushTarget {
    EditWalkTest() {
        for (const BuiltInFile file : {quakePalette, grayScaleColors, rgbaColorSpace})
            palettes.push_back(Open<PaletteDocument>(GetBuiltInPath(file)));
        document.SetCurrentBrush(Open<BrushDocument>(GetBuiltInPath(texelBrushFile)));
    }

    Color GetTexel(unsigned x, unsigned y) const override {
        return document.GetTexture().GetPixelWrapped(x, y);
    }
    void SetTexel(unsigned x, unsigned y, Color color) override {
        document.GetTexture().SetPixelWrapped(x, y, color);
    }

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    int RandomSide() { return 1 + Below(largestSide); }

    // Each does the same to the document and to the model.
    void Stroke() {
        shell.SetCurrentColor(static_cast<Color>(random()));
        const TexelPoint point{Below(200) / 10.0 - 0.9, Below(200) / 10.0 - 0.9};
        document.GetCurrentBrush()->Apply(*this, point, 255, point);
        State& state = model.Current();
        state.At(static_cast<int>(point.x) % state.width, static_cast<int>(point.y) % state.height) =
            shell.GetCurrentColor();
    }
    void Resize() {
        const int width = RandomSide(), height = RandomSide();
        ResizePicture(document, width, height);
        model.Edit(Resized(model.Current(), width, height), false);
    }
    void Paste() {
        Image picture(RandomSide(), RandomSide());
        for (Color& pixel : picture.Pixels()) pixel = static_cast<Color>(random());
        State pasted;
        pasted.width = picture.GetWidth();
        pasted.height = picture.GetHeight();
        pasted.pixels.assign(picture.Pixels().begin(), picture.Pixels().end());
        PastePicture(document, std::move(picture));
        model.Add(std::move(pasted), false);
    }
    void ChangeProperty() {
        State state = model.Current();
        const int value = Below(3);
        switch (Below(5)) {
        case 0:
            ChangeQuakeName(document, state.quakeName = std::to_string(value));
            break;
        case 1:
            ChangeQuake2Names(document, {state.name = std::to_string(value), state.nextFrameName = "next"});
            break;
        case 2:
            ChangeSurfaceFlags(document, state.surfaceFlags = static_cast<std::uint32_t>(value));
            break;
        case 3:
            ChangeContents(document, state.contents = static_cast<std::uint32_t>(value));
            break;
        default:
            ChangeValue(document, state.value = static_cast<std::uint32_t>(value));
        }
        model.Edit(std::move(state), true);
    }
    // What becomes of the pixels is tested elsewhere.
    void Convert() {
        document.SetCurrentPalette(palettes[static_cast<std::size_t>(Below(3))]);
        document.OnCmdMsg(Below(2) ? ID_FORMAT_NEAREST : ID_FORMAT_DITHER, nullptr);
        State state = model.Current();
        state.pixels = StateOf(document.GetTexture()).pixels;
        model.Edit(std::move(state), false);
    }
    void Undo() {
        ASSERT_EQ(document.GetHistory().CanUndo(), model.CanUndo());
        if (!model.CanUndo()) return;
        document.OnCmdMsg(ID_EDIT_UNDO, nullptr);
        model.Undo();
    }
    void Redo() {
        ASSERT_EQ(document.GetHistory().CanRedo(), model.CanRedo());
        if (!model.CanRedo()) return;
        document.OnCmdMsg(ID_EDIT_REDO, nullptr);
        model.Redo();
    }

    FakeShell shell;
    std::mt19937 random{GetParam()};
    std::vector<PaletteDocument*> palettes;
    WALDocument& document = *Open<WALDocument>(Put("walk.wal", MakeWal(8, 8)));
    Timeline model{StateOf(document.GetTexture())};
};

TEST_P(EditWalkTest, AlwaysEqualsThePlainModel) {
    using Walk = EditWalkTest;
    // Undos and redos often come in rows, so that both ends of the history are reached.
    void (Walk::*const choices[])() = {
        &Walk::Stroke,         &Walk::Stroke,         &Walk::Resize, &Walk::Paste, &Walk::Convert,
        &Walk::ChangeProperty, &Walk::ChangeProperty, &Walk::Undo,   &Walk::Undo,  &Walk::Undo,
        &Walk::Undo,           &Walk::Redo,           &Walk::Redo,   &Walk::Redo};
    for (int step = 0; step < steps; ++step) {
        (this->*choices[static_cast<std::size_t>(Below(std::size(choices)))])();
        ASSERT_EQ(StateOf(document.GetTexture()), model.Current()) << "step " << step;
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditWalkTest, testing::Range(1U, 11U));

} // namespace
