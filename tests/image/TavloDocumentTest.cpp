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
    EXPECT_EQ(std::pair(wal.GetTexture().GetWidth(), wal.GetTexture().GetHeight()), std::pair(64, 64));
    EXPECT_EQ(wal.GetCurrentPalette()->GetTitle(), "Quake II");
    EXPECT_EQ(New<MIPDocument>().GetCurrentPalette()->GetTitle(), "Quake");
    auto& bitmap = New<BMPDocument>();
    EXPECT_FALSE(bitmap.HasPalette() || bitmap.HasBrush() || bitmap.IsModified());
    std::vector<std::string> titles;
    for (const auto* reference : bitmap.GetReferences()) titles.push_back(reference->GetTitle());
    EXPECT_THAT(titles,
                testing::ElementsAre("Texel Brush", "Color Picker", "Gray Scale Colors", "Quake", "Quake II",
                                     "Hexen II", "Internet Safe Colors", "Alpha Scale Colors", "RGBA"));
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
    document.GetTexture().SetSize(64, 61); // one side fits already
    document.GetTexture().SetPixel(63, 60, 0xFFFFFFFF);
    ASSERT_TRUE(document.OnSaveDocument(PathTo("new.wal")));
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(document.GetTexture().GetPixel(63, 63), 0xFFFFFFFF);
    EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "&Undo Reformating for File Save\tCtrl+Z");
    document.OnCmdMsg(ID_EDIT_UNDO, nullptr);
    EXPECT_EQ(document.GetTexture().GetHeight(), 61);
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

TEST_F(TavloDocumentTest, EveryChangeMarksTheDocumentAndIsTakenBack) {
    struct Edit {
        std::string name;
        void (*make)(TavloDocument&);
        bool (*isMade)(const Texture&);
        bool ofPicture = false;
    };
    const auto isGray = [](const Texture& texture) {
        return (texture.GetPixel(15, 7) & 0xFFFFFF) % 0x10101 == 0;
    };
    const Edit edits[] = {
        {"Resize", [](TavloDocument& document) { ResizePicture(document, 3, 5); },
         [](const Texture& texture) { return texture.GetWidth() == 3 && texture.GetHeight() == 5; }, true},
        {"Paste", [](TavloDocument& document) { PastePicture(document, Image(3, 2)); },
         [](const Texture& texture) { return texture.GetWidth() == 3 && texture.quake2.name.empty(); }, true},
        {"Quake Name", [](TavloDocument& document) { ChangeQuakeName(document, "a"); },
         [](const Texture& texture) { return texture.quakeName == "a"; }},
        {"Quake II Name",
         [](TavloDocument& document) {
             ChangeQuake2Names(document, {"a", "b"});
         },
         [](const Texture& texture) {
             return texture.quake2 == Quake2Properties{"a", "b", 0, 0, 0};
         }},
        {"Quake II Surface", [](TavloDocument& document) { ChangeSurfaceFlags(document, 7); },
         [](const Texture& texture) {
             return texture.quake2 == Quake2Properties{"test", "", 7, 0, 0};
         }},
        {"Quake II Contents", [](TavloDocument& document) { ChangeContents(document, 7); },
         [](const Texture& texture) {
             return texture.quake2 == Quake2Properties{"test", "", 0, 7, 0};
         }},
        {"Quake II Value", [](TavloDocument& document) { ChangeValue(document, 7); },
         [](const Texture& texture) {
             return texture.quake2 == Quake2Properties{"test", "", 0, 0, 7};
         }},
        {"Nearest Color", [](TavloDocument& document) { document.OnCmdMsg(ID_FORMAT_NEAREST, nullptr); },
         isGray, true},
        {"Error Diffusion Dithering",
         [](TavloDocument& document) { document.OnCmdMsg(ID_FORMAT_DITHER, nullptr); }, isGray, true},
    };
    for (const auto& [name, make, isMade, ofPicture] : edits) {
        auto& document = *Open<WALDocument>(Put(name + ".wal", MakeWal(16, 8)));
        document.SetCurrentPalette(OpenBuiltIn<PaletteDocument>(grayScaleColors));
        CountingView view;
        document.AddView(view);
        const auto check = [&, name = name, isMade = isMade, ofPicture = ofPicture](bool made) {
            EXPECT_EQ(isMade(document.GetTexture()), made) << name;
            EXPECT_TRUE(document.IsModified()) << name;
            EXPECT_EQ(view.updates > 0, ofPicture) << name;
            document.SetModifiedFlag(false);
            view.updates = 0;
        };
        make(document);
        check(true);
        document.GetHistory().Undo();
        check(false);
        document.GetHistory().Redo();
        check(true);
        EXPECT_EQ(document.GetHistory().TopUndoName(), name);
        make(document);
        EXPECT_EQ(document.IsModified(), name == "Paste") << "what changes nothing is no change: " << name;
        document.RemoveView(view); // the last view: the document goes with it
        EXPECT_TRUE(
            DocTemplateRegistry::Get().FindTemplate(WALDocument::runtimeClass)->GetDocuments().empty());
    }
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
