#include "image/TextureEdits.h"

#include "image/ImageDocuments.h"
#include "support/TestApplication.h"

namespace {

// A view that counts how often it is told to show the document anew.
struct CountingView : DocumentView {
    void OnUpdate(DocumentView*, std::intptr_t, CObject*) override { ++updates; }
    DocumentFrame* GetFrame() const override { return nullptr; }
    int updates = 0;
};

class TextureEditsTest : public WorkshopTest {
protected:
    TextureEditsTest() { document.AddView(view); }
    ~TextureEditsTest() override { document.RemoveView(view); }

    WALDocument& document = *Open<WALDocument>(Put("floor.wal", MakeWal(16, 8)));
    CountingView view;
};

TEST_F(TextureEditsTest, WhatChangesNothingIsNotRecorded) {
    ResizePicture(document, 16, 8);
    ChangeQuakeName(document, document.GetQuakeName());
    ChangeQuake2Names(document, document.GetQuake2Names());
    ChangeValue(document, document.GetValue());
    EXPECT_FALSE(document.GetHistory().CanUndo());
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(view.updates, 0);
}

TEST_F(TextureEditsTest, PropertiesMarkTheDocumentAndTellNoView) {
    ChangeQuake2Names(document, {"new", "next"});
    ChangeValue(document, 5);
    document.GetHistory().Undo();
    EXPECT_EQ(document.GetValue(), 0U);
    EXPECT_EQ(document.GetQuake2Names(), (Quake2Names{"new", "next"}));
    document.SetModifiedFlag(false);
    document.GetHistory().Undo();
    EXPECT_EQ(document.GetQuake2Names(), (Quake2Names{"test", ""}));
    EXPECT_TRUE(document.IsModified());
    document.GetHistory().Redo();
    document.GetHistory().Redo();
    EXPECT_EQ(document.GetValue(), 5U);
    EXPECT_EQ(view.updates, 0);
}

TEST_F(TextureEditsTest, PicturesTellTheViews) {
    const Color corner = document.GetTexture().GetPixel(15, 7);
    ResizePicture(document, 20, 8);
    EXPECT_EQ(document.GetTexture().GetPixel(19, 7), corner);
    EXPECT_GT(view.updates, 0);
    PastePicture(document, Image(3, 2));
    EXPECT_EQ(document.GetTexture().GetWidth(), 3);
    EXPECT_EQ(document.GetQuake2Names(), Quake2Names());
    const int before = view.updates;
    document.GetHistory().Undo();
    EXPECT_GT(view.updates, before);
    EXPECT_EQ(document.GetTexture().GetWidth(), 20);
    EXPECT_EQ(document.GetQuake2Names().name, "test");
}

} // namespace
