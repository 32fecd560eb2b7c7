// Random edits, strokes, undos and redos against a plain model of what a history means.
#include "image/ImageDocuments.h"
#include "image/TextureChangeAction.h"
#include "res/CommandIds.h"
#include "res/StringIds.h"
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

// What the model keeps of a texture.
struct Picture {
    int width, height;
    std::vector<Color> pixels;
    std::string quakeName;

    bool operator==(const Picture&) const = default;
    Color& At(unsigned x, unsigned y) {
        const auto column = x % static_cast<unsigned>(width), row = y % static_cast<unsigned>(height);
        return pixels[row * static_cast<unsigned>(width) + column];
    }
};

Picture PictureOf(const Texture& texture) {
    return {texture.GetWidth(),
            texture.GetHeight(),
            {texture.Pixels().begin(), texture.Pixels().end()},
            texture.quakeName};
}

// States in a row, of which one is current. Edits cut off what lies behind it, strokes change it in its
// place.
class Timeline {
public:
    explicit Timeline(Picture first) : states{std::move(first)} {}

    Picture& Current() { return states[position]; }
    bool CanUndo() const { return position > 0; }
    bool CanRedo() const { return position + 1 < states.size(); }
    void Undo() { --position; }
    void Redo() { ++position; }
    void Add(Picture edited) {
        states.resize(position + 1, edited);
        states.push_back(std::move(edited));
        if (states.size() > capacity + 1) states.pop_front();
        position = states.size() - 1;
    }

private:
    std::deque<Picture> states;
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
    Color RandomColor() { return static_cast<Color>(random()); }

    // Each does the same to the document and to the model.
    void Stroke() {
        shell.SetCurrentColor(RandomColor());
        const TexelPoint point{Below(200) / 10.0 - 0.9, Below(200) / 10.0 - 0.9};
        document.GetCurrentBrush()->Apply(*this, point, 255, point);
        model.Current().At(static_cast<unsigned>(point.x), static_cast<unsigned>(point.y)) =
            shell.GetCurrentColor();
    }
    void Resize() {
        Change(IDS_ACTION_RESIZE, [this](Texture& t) { t.Resize(RandomSide(), RandomSide()); });
    }
    void Paste() {
        Change(IDS_ACTION_PASTE, [this](Texture& t) {
            t = Texture(RandomSide(), RandomSide());
            for (Color& pixel : t.Pixels()) pixel = RandomColor();
        });
    }
    void Rename() {
        Change(IDS_ACTION_PASTE, [this](Texture& t) { t.quakeName = std::to_string(Below(100)); });
    }
    // The command itself says whether it records anything.
    void Convert() {
        document.SetCurrentPalette(palettes[static_cast<std::size_t>(Below(3))]);
        document.OnCmdMsg(Below(2) ? ID_FORMAT_NEAREST : ID_FORMAT_DITHER, nullptr);
        if (Picture now = PictureOf(document.GetTexture()); now != model.Current()) model.Add(std::move(now));
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
    Timeline model{PictureOf(document.GetTexture())};

private:
    int RandomSide() { return 1 + Below(largestSide); }
    template <class Edit>
    void Change(unsigned nameId, Edit edit) {
        auto action = std::make_unique<TextureChangeAction>(nameId, document);
        edit(document.GetTexture());
        document.SetModifiedAndUpdate(true);
        document.GetHistory().Add(std::move(action));
        model.Add(PictureOf(document.GetTexture()));
    }
};

TEST_P(EditWalkTest, AlwaysEqualsThePlainModel) {
    using Step = void (EditWalkTest::*)();
    // Undo and redo come in runs often enough to reach both ends of the history.
    const Step choices[] = {&EditWalkTest::Stroke, &EditWalkTest::Stroke, &EditWalkTest::Resize,
                            &EditWalkTest::Paste,  &EditWalkTest::Rename, &EditWalkTest::Convert,
                            &EditWalkTest::Undo,   &EditWalkTest::Undo,   &EditWalkTest::Undo,
                            &EditWalkTest::Redo,   &EditWalkTest::Redo,   &EditWalkTest::Redo};
    for (int step = 0; step < steps; ++step) {
        (this->*choices[static_cast<std::size_t>(Below(std::size(choices)))])();
        ASSERT_EQ(PictureOf(document.GetTexture()), model.Current()) << "step " << step;
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditWalkTest, testing::Range(1U, 11U));

} // namespace
