// Each allocation of an edit fails, once or from then on. The edit is made whole or not at all.
#include "image/ConvertedPicture.h"
#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "res/CommandIds.h"
#include "support/CodecHarness.h"
#include "support/Fault.h"
#include "support/TestApplication.h"

namespace keltavlo {

namespace {

struct Edit {
    const char* name;
    void (*make)(TavloDocument&);
};

const std::string longName = "a name that takes memory of its own";

constexpr Edit edits[] = {
    {"Resize", [](TavloDocument& document) { ResizePicture(document, 12, 5); }},
    {"Paste", [](TavloDocument& document) { PastePicture(document, Image(3, 4)); }},
    {"QuakeName", [](TavloDocument& document) { ChangeQuakeName(document, longName); }},
    {"Nearest", Send<ID_FORMAT_NEAREST>},
    {"Undo", Send<ID_EDIT_UNDO>},
    {"Redo", Send<ID_EDIT_REDO>},
};

std::string DescribeNow(TavloDocument& document) {
    const Texture& texture = document.GetTexture();
    std::string text = texture.quakeName + (document.IsModified() ? " modified" : "");
    for (const Color pixel : texture.Pixels()) text += ' ' + std::to_string(pixel);
    return text;
}

// Returns the document, then every state in its history.
std::string Describe(TavloDocument& document) {
    std::string text = DescribeNow(document);
    UndoHistory& history = document.GetHistory();
    while (history.CanUndo()) history.Undo();
    for (; history.CanRedo(); history.Redo()) text += DescribeNow(document) + history.TopRedoName();
    return text + DescribeNow(document);
}

// Allocates memory at each update.
struct View final : DocumentView {
    void OnUpdate(DocumentView*, std::intptr_t, CObject*) override {
        told = true;
        text = std::string(longName.size() + text.size(), ' ');
    }
    DocumentFrame* GetFrame() const override { return nullptr; }

    bool told = false;
    std::string text;
};

class EditFaults : public WorkshopTest, public testing::WithParamInterface<Edit> {
protected:
    struct Outcome {
        std::string description;
        bool failed, toldLastView, hit;
    };

    // Makes the edit, or none, in a new document with two views and changes to undo and redo.
    Outcome Run(bool makeEdit, unsigned first, bool lasting) {
        auto& document = New<WALDocument>();
        document.GetTexture().SetSize(8, 8);
        document.GetTexture().SetPixel(1, 1, 0xFF123456);
        ResizePicture(document, 9, 9);
        ChangeQuakeName(document, "undone");
        document.GetHistory().Undo();
        document.SetModifiedFlag(false);
        std::array<View, 2> views;
        for (View& view : views) document.AddView(view);
        const auto [hit, failed] = RunWithFault(Step::allocation, first, lasting, [&] {
            if (makeEdit) GetParam().make(document);
        });
        const bool toldLastView = views.back().told;
        const Outcome outcome{Describe(document), failed, toldLastView, hit};
        for (View& view : views) document.RemoveView(view); // closes the document
        return outcome;
    }
};

} // namespace

TEST_P(EditFaults, AnEditIsMadeWholeOrNotAtAll) {
    if (!allocationsCanFail) GTEST_SKIP();
    constexpr unsigned never = 1000000;
    const std::string before = Run(false, never, false).description;
    const Outcome whole = Run(true, never, false);
    EXPECT_NE(before, whole.description);
    for (const bool lasting : {false, true})
        for (unsigned first = 1; !HasFailure(); ++first) {
            SCOPED_TRACE(testing::Message() << "from " << first << lasting);
            const Outcome outcome = Run(true, first, lasting);
            EXPECT_EQ(outcome.description, outcome.failed ? before : whole.description);
            EXPECT_EQ(outcome.toldLastView, !outcome.failed && whole.toldLastView)
                << "whatever the first one lacks";
            if (!outcome.hit) break;
        }
}

INSTANTIATE_TEST_SUITE_P(Edits, EditFaults, testing::ValuesIn(edits),
                         [](const auto& edit) { return std::string(edit.param.name); });

// No view gets a half-converted picture or the tables of another palette.
TEST(ConvertedPictureFaults, LeaveNothingBehind) {
    const Image picture = RandomTexture(7, 5);
    const ColorList list{0xFF000000, 0xFF80FF00, 0xFFFFFFFF}, other{0xFF102030, 0xFFFFFF00};
    for (const auto conversion : {PictureConversion::nearest, PictureConversion::errorDiffusion}) {
        ConvertedPicture converted, undisturbed;
        bool hit = allocationsCanFail;
        for (unsigned first = 1; hit && !testing::Test::HasFailure(); ++first) {
            converted.Get(picture, conversion, &other);
            hit = RunWithFault(Step::allocation, first, false, [&] {
                      converted.Get(picture, conversion, &list);
                  }).wasHit;
            EXPECT_TRUE(SamePixels(converted.Get(picture, conversion, &list),
                                   undisturbed.Get(picture, conversion, &list)))
                << first;
        }
    }
}

} // namespace keltavlo
