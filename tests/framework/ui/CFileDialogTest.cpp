#include "framework/ui/CFileDialog.h"

#include "support/FolderTest.h"
#include "support/ui/DialogAnswer.h"

namespace keltavlo {

struct CFileDialogTest : FolderTest {
    CFileDialogTest() {
        for (const char* name : {"pak0.pak", "README"}) Put(name, {});
    }

    // Types the name, presses the button and returns the accepted path; nothing if the dialog stays open.
    std::optional<std::string> Type(bool open, const QString& name) {
        FileNameQuestion question;
        question.open = question.mustExist = open;
        CFileDialog dialog(nullptr, question, {{"All Files (*.*)", "*.*"}});
        dialog.setDirectory(folder.path());
        dialog.show();
        EnterName(dialog, name, open ? QDialogButtonBox::Open : QDialogButtonBox::Save);
        if (dialog.isVisible()) return std::nullopt;
        return dialog.GetPathName();
    }
};

TEST_F(CFileDialogTest, TakesPathsThatLeadIntoAnArchive) {
    for (const bool open : {true, false}) {
        EXPECT_EQ(Type(open, "pak0.pak/textures/a.wal"), PathTo("pak0.pak/textures/a.wal"));
        EXPECT_EQ(Type(open, "pak0.pak\\textures\\a.wal"), PathTo("pak0.pak/textures/a.wal"));
        EXPECT_EQ(Type(open, folder.filePath("pak0.pak/b.wal")), PathTo("pak0.pak/b.wal"));
    }
    EXPECT_EQ(Type(true, "README"), PathTo("README"));
    EXPECT_EQ(Type(false, "new.wal"), PathTo("new.wal"));
}

TEST_F(CFileDialogTest, RefusesWhatIsNotThereAndAsksBeforeItReplacesAFile) {
    for (const auto& [open, name, answer, taken] :
         {std::tuple{true, "nowhere/a.wal", QDialogButtonBox::Ok, false},
          {false, "nowhere/a.wal", QDialogButtonBox::Ok, false},
          {false, "README", QDialogButtonBox::No, false},
          {false, "README", QDialogButtonBox::Yes, true}}) {
        const DialogAnswer noted(Press(answer));
        EXPECT_EQ(Type(open, name), taken ? std::optional(PathTo(name)) : std::nullopt);
    }
}

TEST_F(CFileDialogTest, ProposesANameInItsFolderOrTheWayThroughAnArchive) {
    FileNameQuestion question;
    question.open = false;
    for (const auto& [name, path] : {std::pair{"/bitmap1.bmp", "bitmap1.bmp"},
                                     {"/pak0.pak\\textures\\a.wal", "pak0.pak/textures/a.wal"}}) {
        question.proposal = folder.path().toStdString() + name;
        EXPECT_EQ(CFileDialog(nullptr, question, {}).GetPathName(), PathTo(path));
    }
}

// A separator at the end adds no empty pattern.
TEST_F(CFileDialogTest, FiltersByPatterns) {
    for (const char* name : {"a.wal", "b.tga", "c.x", "noise"}) Put(name, {});
    CFileDialog dialog(nullptr, {}, {{"Targa (*.x)", "*tga;*.pak;"}, {"All Files (*.*)", "*.*"}});
    dialog.setDirectory(folder.path());
    dialog.show();
    auto* types = dialog.findChild<QComboBox*>("fileTypeCombo");
    const auto* list = dialog.findChild<QListView*>("listView");
    const auto holds = [&](int count) {
        return WaitFor([&] { return list->model()->rowCount(list->rootIndex()) == count; });
    };
    EXPECT_TRUE(holds(2)) << "b.tga and pak0.pak";
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_TRUE(holds(6));
}

} // namespace keltavlo
