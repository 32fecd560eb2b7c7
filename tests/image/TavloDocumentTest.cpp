#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "image/picture/ColorList.h"
#include "res/CommandIds.h"
#include "resources/PaletteDocument.h"
#include "support/TestApplication.h"

#include <random>
#include <sstream>
#include <sys/stat.h>

namespace keltavlo {

using testing::HasSubstr;

namespace {

struct CountingView : DocumentView {
    void OnUpdate(DocumentView*, std::intptr_t, CObject*) override { ++updates; }
    DocumentFrame* GetFrame() const override { return nullptr; }
    int updates = 0;
};

// Returns the sides, names and numbers, whether the last texel is gray, and whether there is a palette.
std::string Describe(const Texture& texture) {
    std::ostringstream text;
    text << texture.GetWidth() << 'x' << texture.GetHeight() << ',' << texture.quakeName;
    for (const std::string& name : {texture.quake2.name, texture.quake2.nextFrameName}) text << ',' << name;
    for (const auto number : {texture.quake2.surfaceFlags, texture.quake2.contents, texture.quake2.value})
        text << ',' << number;
    text << ((texture.GetPixelWrapped(15, 7) & 0xFFFFFF) % 0x10101 == 0 ? " gray" : "")
         << (texture.palette ? " own" : "");
    return text.str();
}

using TavloDocumentTest = WorkshopTest;

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
    chmod(path.c_str(), 0444); // does not stop root
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

TEST_F(TavloDocumentTest, EveryChangeMarksTheDocumentAndIsTakenBack) {
    struct Edit {
        std::string name;
        void (*make)(TavloDocument&);
        std::string result;
        bool ofPicture = false;
    };
    const Edit edits[] = {
        {"Resize", [](auto& document) { ResizePicture(document, 3, 5); }, "3x5,,test,,0,0,0 gray own", true},
        {"Paste", [](auto& document) { PastePicture(document, Image(3, 2)); }, "3x2,,,,0,0,0 gray", true},
        {"Quake Name", [](auto& document) { ChangeQuakeName(document, "a"); }, "16x8,a,test,,0,0,0 own"},
        {"Quake II Name",
         [](auto& document) {
             ChangeQuake2Names(document, {"a", "b"});
         },
         "16x8,,a,b,0,0,0 own"},
        {"Quake II Surface", [](auto& document) { ChangeSurfaceFlags(document, 7); },
         "16x8,,test,,7,0,0 own"},
        {"Quake II Contents", [](auto& document) { ChangeContents(document, 7); }, "16x8,,test,,0,7,0 own"},
        {"Quake II Value", [](auto& document) { ChangeValue(document, 7); }, "16x8,,test,,0,0,7 own"},
        {"Nearest Color", Send<ID_FORMAT_NEAREST>, "16x8,,test,,0,0,0 gray own", true},
        {"Error Diffusion Dithering", Send<ID_FORMAT_DITHER>, "16x8,,test,,0,0,0 gray own", true},
    };
    for (const Edit& edit : edits) {
        auto& document = *Open<WALDocument>(Put(edit.name + ".wal", MakeWal(16, 8)));
        document.SetCurrentPalette(OpenBuiltIn<PaletteDocument>(grayScaleColors));
        document.GetTexture().SetPalette(ColorList(2));
        CountingView view;
        document.AddView(view);
        const auto check = [&](const std::string& expected) {
            EXPECT_EQ(Describe(document.GetTexture()), expected) << edit.name;
            EXPECT_TRUE(document.IsModified()) << edit.name;
            EXPECT_EQ(view.updates > 0, edit.ofPicture) << edit.name;
            document.SetModifiedFlag(false);
            view.updates = 0;
        };
        edit.make(document);
        check(edit.result);
        EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "&Undo " + edit.name + "\tCtrl+Z");
        EXPECT_EQ(StateOf(document, ID_EDIT_REDO).text, "Can't &Redo\tCtrl+Y");
        document.GetHistory().Undo();
        check("16x8,,test,,0,0,0 own");
        EXPECT_FALSE(StateOf(document, ID_EDIT_UNDO).enabled);
        EXPECT_EQ(StateOf(document, ID_EDIT_UNDO).text, "Can't &Undo\tCtrl+Z");
        EXPECT_EQ(StateOf(document, ID_EDIT_REDO).text, "&Redo " + edit.name + "\tCtrl+Y");
        document.GetHistory().Redo();
        check(edit.result);
        edit.make(document);
        EXPECT_EQ(document.IsModified(), edit.name == "Paste")
            << "what changes nothing is no change: " << edit.name;
        document.RemoveView(view); // the last view closes the document
        EXPECT_TRUE(
            DocTemplateRegistry::Get().FindTemplate(WALDocument::runtimeClass)->GetDocuments().empty());
    }
}

TEST_F(TavloDocumentTest, UndoAndRedoLeadThroughTheStatesOfTheLast16Edits) {
    auto& document = *Open<WALDocument>(Put("a.wal", MakeWal(16, 8)));
    UndoHistory& history = document.GetHistory();
    std::vector<std::string> states{Describe(document.GetTexture())};
    std::size_t oldest = 0, current = 0;
    std::mt19937 random(1);
    const auto below = [&](unsigned limit) { return static_cast<std::uint32_t>(random() % limit); };
    void (*const edits[])(TavloDocument&, std::uint32_t) = {
        [](auto& edited, auto number) { ResizePicture(edited, 1 + static_cast<int>(number), 5); },
        [](auto& edited, auto number) { PastePicture(edited, Image(3, 1 + static_cast<int>(number))); },
        [](auto& edited, auto number) { ChangeQuakeName(edited, std::to_string(number)); },
        [](auto& edited, auto number) {
            ChangeQuake2Names(edited, {"n", std::to_string(number)});
        },
        [](auto& edited, auto number) { ChangeContents(edited, number); }};
    for (int step = 0; step < 3000; ++step) {
        ASSERT_EQ(history.CanUndo(), current > oldest) << step;
        ASSERT_EQ(history.CanRedo(), current + 1 < states.size()) << step;
        const std::uint32_t choice = below(12);
        if (choice < 4 && history.CanUndo()) {
            history.Undo();
            --current;
        } else if (choice < 7 && history.CanRedo()) {
            history.Redo();
            ++current;
        } else {
            edits[choice % 5](document, below(3));
            const std::string state = Describe(document.GetTexture());
            if (state == states[current] && choice % 5 != 1) continue; // only a paste is always recorded
            states.resize(++current);
            states.push_back(state);
            oldest = std::max<std::size_t>(oldest, current < 16 ? 0 : current - 16);
        }
        ASSERT_EQ(Describe(document.GetTexture()), states[current]) << step;
    }
}

TEST_F(TavloDocumentTest, StrokesBelongToThePictureAndNotToOtherChanges) {
    auto& document = New<WALDocument>();
    Texture& texture = document.GetTexture();
    UndoHistory& history = document.GetHistory();
    const auto isPainted = [&](int place) { return texture.GetPixel(place, place) == 0xFFABCDEF; };
    const auto paint = [&](int place) { texture.SetPixel(place, place, 0xFFABCDEF); };
    ResizePicture(document, 9, 9);
    paint(1);
    ChangeValue(document, 5);
    paint(2);
    history.Undo();
    EXPECT_TRUE(isPainted(1) && isPainted(2));
    history.Undo();
    EXPECT_FALSE(isPainted(1) || isPainted(2));
    paint(3);
    history.Redo();
    history.Redo();
    EXPECT_TRUE(isPainted(1) && isPainted(2) && !isPainted(3));
    history.Undo();
    history.Undo();
    EXPECT_TRUE(isPainted(3));
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
