#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "image/picture/ColorList.h"
#include "res/CommandIds.h"
#include "resources/BuiltInFiles.h"
#include "resources/PaletteDocument.h"
#include "support/TestApplication.h"

#include <sys/stat.h>

namespace keltavlo {

using testing::HasSubstr;

namespace {

struct CountingView : DocumentView {
    void OnUpdate(DocumentView*, std::intptr_t, CObject*) override { ++updates; }
    DocumentFrame* GetFrame() const override { return nullptr; }
    int updates = 0;
};

class TavloDocumentTest : public WorkshopTest {
protected:
    template <class Document>
    Document& New() {
        application.newType = DocTemplateRegistry::Get().FindTemplate(Document::runtimeClass);
        return dynamic_cast<Document&>(*application.OnFileNew());
    }
};

} // namespace

TEST_F(TavloDocumentTest, NewDocuments) {
    auto& wal = New<WALDocument>();
    EXPECT_EQ(wal.GetTitle(), "wal1");
    EXPECT_EQ(wal.GetTexture().GetWidth(), 64);
    EXPECT_EQ(wal.GetCurrentPalette()->GetTitle(), "Quake II");
    EXPECT_EQ(New<MIPDocument>().GetCurrentPalette()->GetTitle(), "Quake");
    auto& bitmap = New<BMPDocument>();
    EXPECT_FALSE(bitmap.HasPalette() || bitmap.HasBrush() || bitmap.IsModified());
    EXPECT_EQ(bitmap.GetReferences().at(1)->GetTitle(), "Color Picker");
    EXPECT_EQ(bitmap.GetReferences().at(8)->GetTitle(), "RGBA");
    EXPECT_EQ(New<WALDocument>().GetTitle(), "wal2");
}

TEST_F(TavloDocumentTest, OpeningTwiceGivesOneDocument) {
    const std::string path = Put("Floor.WAL", MakeWal(16, 8, "e1u1/floor"));
    auto* document = Open<WALDocument>(path);
    EXPECT_EQ(document->GetTexture().GetPixel(15, 7), GetQuakeIIPalette()[22]);
    EXPECT_EQ(Open<WALDocument>(PathTo("/./Floor.WAL")), document);
    EXPECT_NE(Open<WALDocument>(Put("floor.wal", MakeWal(8, 8))), document) << "another file on the disk";
}

TEST_F(TavloDocumentTest, TheNameDecidesTheFormat) {
    auto* document = Open<WALDocument>(Put("a.wal", MakeWal(8, 8)));
    EXPECT_FALSE(document->OnSaveDocument(PathTo("palette.lmp")));
    EXPECT_THAT(TakeMessage(), HasSubstr("Quake II Palette Files (*.lmp) cannot be written."));
    EXPECT_NE(Try<TavloDocument>(ToBytes("no bitmap"), ".unknown"), "");
    for (const std::string& path : {PathTo("missing.wal"), std::string()}) {
        EXPECT_EQ(Open<TavloDocument>(path), nullptr);
        EXPECT_THAT(TakeMessage(), HasSubstr("not found"));
    }
}

TEST_F(TavloDocumentTest, AFileThatNobodyMayWriteIsSavedUnderANameThatIsAskedFor) {
    const std::string path = Put("a.wal", MakeWal(8, 8));
    chmod(path.c_str(), 0444); // which does not stop root
    auto* document = Open<WALDocument>(path);
    EXPECT_FALSE(document->DoFileSave());
    application.fileName = PathTo("b.wal");
    EXPECT_TRUE(document->DoFileSave());
    EXPECT_EQ(document->GetPathName(), PathTo("b.wal"));
    EXPECT_FALSE(document->OnSaveDocument(path));
    EXPECT_THAT(TakeMessage(), HasSubstr("denied"));
}

TEST_F(TavloDocumentTest, SavingFitsTheSizeAsAnUndoableChange) {
    auto& document = New<WALDocument>();
    document.GetTexture().SetSize(60, 61);
    document.GetTexture().SetPixel(59, 60, 0xFFFFFFFF);
    ASSERT_TRUE(document.OnSaveDocument(PathTo("new.wal")));
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(document.GetTexture().GetPixel(63, 63), 0xFFFFFFFF);
    EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "&Undo Reformating for File Save\tCtrl+Z");
    document.OnCmdMsg(ID_EDIT_UNDO, nullptr);
    EXPECT_EQ(document.GetTexture().GetWidth(), 60);
    EXPECT_TRUE(document.IsModified());
}

TEST_F(TavloDocumentTest, UndoAndRedoNameWhatTheyExchange) {
    auto& document = New<BMPDocument>();
    EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "Can't &Undo\tCtrl+Z");
    PastePicture(document, Image(3, 2));
    EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "&Undo Paste\tCtrl+Z");
    document.GetHistory().Undo();
    EXPECT_FALSE(StateOf(document, ID_EDIT_UNDO).enabled);
    EXPECT_EQ(StateOf(document, ID_EDIT_REDO).text, "&Redo Paste\tCtrl+Y");
    PastePicture(document, Image(2, 3));
    EXPECT_EQ(StateOf(document, ID_EDIT_REDO).text, "Can't &Redo\tCtrl+Y");
}

TEST_F(TavloDocumentTest, PropertiesMarkTheDocumentAndPicturesTellTheViews) {
    auto& document = *Open<WALDocument>(Put("floor.wal", MakeWal(16, 8)));
    CountingView view;
    document.AddView(view);
    ResizePicture(document, 16, 8);
    ChangeQuake2Names(document, document.GetQuake2Names());
    EXPECT_FALSE(document.IsModified()) << "what changes nothing is no change";
    ChangeQuake2Names(document, {"new", "next"});
    document.SetModifiedFlag(false);
    document.GetHistory().Undo();
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ(document.GetQuake2Names(), (Quake2Names{"test", ""}));
    EXPECT_EQ(view.updates, 0);
    PastePicture(document, Image(3, 2));
    const int before = view.updates;
    EXPECT_GT(before, 0);
    document.GetHistory().Undo();
    EXPECT_GT(view.updates, before);
    document.RemoveView(view); // the last view: the document goes with it
    EXPECT_TRUE(DocTemplateRegistry::Get().FindTemplate(WALDocument::runtimeClass)->GetDocuments().empty());
}

TEST_F(TavloDocumentTest, SaveAsksForANameWhereItMust) {
    auto& document = New<WALDocument>();
    document.SetTitle("wall #2");
    application.fileName = std::nullopt;
    EXPECT_FALSE(document.DoFileSave());
    application.fileName = PathTo("wall.wal");
    EXPECT_TRUE(document.DoFileSave());
    EXPECT_EQ(document.GetTitle(), "wall.wal");
    EXPECT_EQ(application.GetRecentFiles().GetPaths().front(), PathTo("wall.wal"));
    application.fileName = PathTo("no folder/wall.wal");
    document.SetModifiedFlag();
    EXPECT_FALSE(document.DoFileSaveAs());
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ(document.GetPathName(), PathTo("wall.wal"));
    EXPECT_THAT(TakeMessage(), HasSubstr("no folder/wall.wal"));
}

TEST_F(TavloDocumentTest, RecentFilesThatFailLeaveTheList) {
    const std::string path = Put("a.wal", MakeWal(8, 8));
    Open<WALDocument>(path)->OnCloseDocument();
    Open<WALDocument>(Put("b.wal", MakeWal(8, 8)));
    std::remove(path.c_str());
    application.OpenRecentFile(1);
    TakeMessage();
    EXPECT_EQ(application.GetRecentFiles().GetPaths().size(), 1U);
}

} // namespace keltavlo
