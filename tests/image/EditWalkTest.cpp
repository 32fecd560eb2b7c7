// Random edits, strokes, undos and redos against a plain model of what a history means.
#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "res/CommandIds.h"
#include "resources/Brush.h"
#include "support/CodecHarness.h"
#include "support/FakeShell.h"
#include "support/TestApplication.h"

#include <deque>

namespace keltavlo {

namespace {

constexpr int steps = 20000, largestSide = 6;
constexpr std::size_t capacity = 16;

struct State {
    Image picture;
    std::string quakeName;
    std::uint32_t value = 0;
    bool propertyOnly = false; // the edit that led here from the state before
};

bool Shows(const Texture& texture, const State& state) {
    return SamePixels(texture, state.picture) && texture.quakeName == state.quakeName &&
           texture.quake2.value == state.value;
}

// States in a row, of which one is current. Edits cut off what lies behind it, strokes change it in its
// place.
struct Timeline {
    State& Current() { return states[position]; }
    bool CanUndo() const { return position > 0; }
    bool CanRedo() const { return position + 1 < states.size(); }
    void Undo() { Move(position - 1, Current().propertyOnly); }
    void Redo() { Move(position + 1, states[position + 1].propertyOnly); }
    void Add(State edited, bool propertyOnly) {
        edited.propertyOnly = propertyOnly;
        states.resize(position + 1);
        states.push_back(std::move(edited));
        if (states.size() > capacity + 1) states.pop_front();
        position = states.size() - 1;
    }
    // The change of a property knows no pixels: strokes made since stay.
    void Move(std::size_t to, bool propertyOnly) {
        if (propertyOnly) states[to].picture = Current().picture;
        position = to;
    }

    std::deque<State> states{1};
    std::size_t position = 0;
};

struct EditWalkTest : WorkshopTest, testing::WithParamInterface<unsigned> {
    EditWalkTest() { model.Current().picture = document.GetTexture(); }

    unsigned Below(unsigned limit) { return static_cast<unsigned>(random() % limit); }
    int RandomSide() { return 1 + static_cast<int>(Below(largestSide)); }

    // Each does the same to the document and to the model.
    void Stroke() {
        shell.SetCurrentColor(static_cast<Color>(random()));
        const unsigned x = Below(20), y = Below(20);
        brush.Apply(document, {x + 0.9, y + 0.1}, 255, {});
        model.Current().picture.SetPixelWrapped(x, y, shell.GetCurrentColor());
    }
    void Resize() {
        State state = model.Current();
        const int width = RandomSide(), height = RandomSide();
        const bool same = width == state.picture.GetWidth() && height == state.picture.GetHeight();
        ResizePicture(document, width, height);
        state.picture.Resize(width, height);
        if (!same) model.Add(state, false);
    }
    void Paste() {
        Image picture(RandomSide(), RandomSide());
        for (Color& pixel : picture.Pixels()) pixel = static_cast<Color>(random());
        model.Add({picture, {}, 0}, false);
        PastePicture(document, std::move(picture));
    }
    void ChangeProperty() {
        State state = model.Current();
        if (Below(2))
            ChangeQuakeName(document, state.quakeName += 'x');
        else
            ChangeValue(document, ++state.value);
        model.Add(state, true);
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
    BrushDocument& brush = *OpenBuiltIn<BrushDocument>(texelBrushFile);
    WALDocument& document = *Open<WALDocument>(Put("walk.wal", MakeWal(8, 8, "")));
    Timeline model;
};

TEST_P(EditWalkTest, AlwaysEqualsThePlainModel) {
    using Walk = EditWalkTest;
    // Undos and redos often come in rows, so that both ends of the history are reached.
    void (Walk::*const choices[])() = {
        &Walk::Stroke,         &Walk::Stroke,         &Walk::Resize, &Walk::Paste,
        &Walk::ChangeProperty, &Walk::ChangeProperty, &Walk::Undo,   &Walk::Undo,
        &Walk::Undo,           &Walk::Redo,           &Walk::Redo};
    for (int step = 0; step < steps; ++step) {
        (this->*choices[Below(std::size(choices))])();
        ASSERT_TRUE(Shows(document.GetTexture(), model.Current())) << "step " << step;
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditWalkTest, testing::Range(1U, 11U));

} // namespace

} // namespace keltavlo
