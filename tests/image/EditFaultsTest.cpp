// Every allocation of an edit fails once, and from then on: the edit is made whole or not at all.
#include "formats/CodecHarness.h"
#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "res/CommandIds.h"
#include "support/Fault.h"
#include "support/TestApplication.h"

namespace {

struct Edit {
    const char* name;
    void (*make)(TavloDocument&);
};

template <CommandId id>
void Send(TavloDocument& document) {
    document.OnCmdMsg(id, nullptr);
}

const std::string longName = "a name that takes memory of its own";

constexpr Edit edits[] = {
    {"Resize", [](TavloDocument& document) { ResizePicture(document, 12, 5); }},
    {"Paste", [](TavloDocument& document) { PastePicture(document, Image(3, 4)); }},
    {"QuakeName", [](TavloDocument& document) { ChangeQuakeName(document, longName); }},
    {"Quake2Names",
     [](TavloDocument& document) {
         ChangeQuake2Names(document, {longName, longName});
     }},
    {"Value", [](TavloDocument& document) { ChangeValue(document, 7); }},
    {"Nearest", Send<ID_FORMAT_NEAREST>},
    {"Dither", Send<ID_FORMAT_DITHER>},
    {"Undo", Send<ID_EDIT_UNDO>},
    {"Redo", Send<ID_EDIT_REDO>},
};

// What a document says of itself, and every state that its history leads to.
struct Snapshot {
    static std::string Describe(TavloDocument& document) {
        const Texture& texture = document.GetTexture();
        std::string text = std::to_string(texture.GetWidth()) + texture.quakeName + texture.quake2.name +
                           std::to_string(texture.quake2.value) + (texture.palette ? "palette" : "");
        for (const Color pixel : texture.Pixels()) text += ' ' + std::to_string(pixel);
        const UndoHistory& history = document.GetHistory();
        if (history.CanUndo()) text += " undo " + history.TopUndoName();
        if (history.CanRedo()) text += " redo " + history.TopRedoName();
        return text;
    }
    explicit Snapshot(TavloDocument& document) : now(Describe(document)), modified(document.IsModified()) {
        UndoHistory& history = document.GetHistory();
        int undone = 0;
        for (; history.CanUndo(); ++undone) history.Undo();
        for (states.push_back(Describe(document)); history.CanRedo(); states.push_back(Describe(document)))
            history.Redo();
        for (auto steps = static_cast<int>(states.size()) - 1; steps > undone; --steps) history.Undo();
        document.SetModifiedFlag(modified);
    }
    bool operator==(const Snapshot&) const = default;

    std::string now;
    bool modified;
    std::vector<std::string> states;
};

// Takes memory at each update.
struct View final : DocumentView {
    void OnUpdate(DocumentView*, std::intptr_t, CObject*) override {
        text.clear();
        ++updates;
        text = std::string(longName.size() + updates, ' ');
        text.shrink_to_fit();
    }
    DocumentFrame* GetFrame() const override { return nullptr; }

    std::size_t updates = 0;
    std::string text;
};

class EditFaults : public WorkshopTest, public testing::WithParamInterface<Edit> {
protected:
    // A document that can be undone and redone, shown in two views.
    TavloDocument& MakeDocument() {
        application.newType = DocTemplateRegistry::Get().FindTemplate(WALDocument::runtimeClass);
        auto& document = dynamic_cast<TavloDocument&>(*application.OnFileNew());
        document.GetTexture().SetSize(8, 8);
        for (Color color = 0xFF000000; Color & pixel : document.GetTexture().Pixels())
            pixel = color += 0x10305;
        document.GetTexture().SetPalette(ColorList{0xFF000000, 0xFFFFFFFF});
        ResizePicture(document, 9, 9);
        ChangeQuakeName(document, "undone");
        document.GetHistory().Undo();
        document.SetModifiedFlag(false);
        for (View& view : views) document.AddView(view = {});
        return document;
    }
    void Close(TavloDocument& document) {
        for (View& view : views) document.RemoveView(view); // which ends the document
    }

    std::array<View, 2> views;
};

} // namespace

TEST_P(EditFaults, AnEditIsMadeWholeOrNotAtAll) {
    if (!allocationsCanFail) GTEST_SKIP();
    TavloDocument& model = MakeDocument();
    const Snapshot before(model);
    views.back().updates = 0;
    GetParam().make(model);
    const bool isSeen = views.back().updates > 0;
    const Snapshot after(model);
    Close(model);
    EXPECT_NE(before, after);
    bool hit = true;
    for (const bool lasting : {false, true})
        for (unsigned first = 1; (hit || first == 1) && !HasFailure(); ++first) {
            SCOPED_TRACE(testing::Message() << "from " << first << lasting);
            TavloDocument& document = MakeDocument();
            bool failed = false;
            {
                const Fault fault(Step::allocation, first, lasting);
                try {
                    GetParam().make(document);
                } catch (const std::bad_alloc&) {
                    failed = true;
                }
                hit = fault.HasHit();
            }
            EXPECT_TRUE(failed || !isSeen || views.back().updates > 0) << "one view's lack is not another's";
            EXPECT_EQ(Snapshot(document), failed ? before : after);
            Close(document);
        }
}

INSTANTIATE_TEST_SUITE_P(Edits, EditFaults, testing::ValuesIn(edits),
                         [](const auto& edit) { return std::string(edit.param.name); });
