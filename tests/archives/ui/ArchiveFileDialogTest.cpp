#include "archives/ui/ArchiveFileDialog.h"

#include "archives/ui/ArchiveListView.h"
#include "archives/ui/PreviewPanel.h"
#include "framework/core/Path.h"
#include "res/ShellStrings.h"
#include "support/TestApplication.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

namespace {

// A folder with two packs, a bad one and a picture, and a dialog on it.
class ArchiveFileDialogTest : public WorkshopTest {
protected:
    ArchiveFileDialogTest() {
        AddStrings(ShellStrings());
        PackBuilder first, second, nested;
        nested.Add("c.wal", MakeWal(8, 8));
        first.Add("textures/Wall.wal", MakeWal(16, 8));
        first.Add("textures/e1/b.wal", MakeWal(8, 8));
        first.Add("zebra.txt", Bytes(500));
        first.Add("apple.wal", Bytes(3 * 1024 - 1));
        first.Add("inner.pak", nested.Build());
        second.Add("x.wal", MakeWal(8, 8));
        Put("pak0.pak", first.Build());
        Put("pak1.pak", second.Build());
        Put("bad.pak", ToBytes("this is no pack at all"));
        Put("plain.wal", MakeWal(32, 16));
    }

    void Show() {
        FileNameQuestion question;
        question.open = question.mustExist = true;
        dialog = std::make_unique<ArchiveFileDialog>(
            nullptr, question, std::vector<FileFilter>{{"Packs (*.x)", "*.pak;*.wal;*.wad;"}},
            ArchiveFileDialog::Services{application.GetFileSystem(),
                                        [this](const std::string& path) {
                                            previewed.push_back(path);
                                            return Preview{QImage(4, 2, QImage::Format_RGB32), "4 x 2"};
                                        },
                                        [this](const std::string& what) { missing.push_back(what); }});
        dialog->setDirectory(folder.path());
        dialog->resize(900, 700);
        dialog->show();
        lower = dialog->findChild<ArchiveListView*>("lowerList");
    }

    // Clicks the file in the standard list, once it is there.
    void Select(const QString& name) {
        auto* upper = dialog->findChild<QListView*>("listView");
        QModelIndexList found;
        ASSERT_TRUE(QTest::qWaitFor([&] {
            const QModelIndex first = upper->model()->index(0, 0, upper->rootIndex());
            found = upper->model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly);
            return !found.isEmpty() && upper->visualRect(found.front()).isValid();
        })) << name.toStdString();
        ClickAt(*upper, found.front());
    }
    static void ClickAt(QAbstractItemView& view, const QModelIndex& index) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }

    QAbstractItemView& View() const { return dynamic_cast<QAbstractItemView&>(*lower->currentWidget()); }
    std::string Cell(int row, int column) const {
        return View().model()->index(row, column).data().toString().toStdString();
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (int row = 0; row < View().model()->rowCount(); ++row) names.push_back(Cell(row, 0));
        return names;
    }
    QModelIndex Line(const std::string& name) const {
        for (int row = 0; row < View().model()->rowCount(); ++row)
            if (Cell(row, 0) == name) return View().model()->index(row, 0);
        return {};
    }
    void Click(const std::string& name) { ClickAt(View(), Line(name)); }
    void DoubleClick(const std::string& name) {
        Click(name);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().visualRect(Line(name)).center());
    }
    QToolButton& Tool(const QString& tip) const {
        for (QToolButton* button : dialog->findChildren<QToolButton*>())
            if (button->accessibleName() == tip) return *button;
        throw std::runtime_error("no such button");
    }
    std::string NameBox() const { return dialog->findChild<QLineEdit*>("nameBox")->text().toStdString(); }
    void Type(const QString& name) {
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        edit->setCompleter(nullptr); // its list takes the focus on the offscreen platform
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, name);
    }
    // Whether the dialog took what is chosen.
    bool PressOK() {
        auto* box = dialog->findChild<QDialogButtonBox*>();
        box->button(QDialogButtonBox::Open)->click();
        return !dialog->isVisible();
    }

    std::unique_ptr<ArchiveFileDialog> dialog;
    ArchiveListView* lower = nullptr;
    std::vector<std::string> previewed, missing;
};

TEST_F(ArchiveFileDialogTest, ListsTheSelectedArchive) {
    Show();
    EXPECT_FALSE(lower->isEnabled());
    EXPECT_FALSE(Tool("Up One Level").isEnabled());
    Select("pak0.pak");
    EXPECT_EQ(Names(), (std::vector<std::string>{"apple.wal", "inner.pak", "textures", "zebra.txt"}));
    EXPECT_TRUE(lower->isEnabled());
    EXPECT_EQ(Cell(0, 1) + Cell(2, 1) + Cell(3, 1), "2KB0KB") << "folders have no size";
    EXPECT_FALSE(Cell(0, 2).empty());
    Select("plain.wal");
    EXPECT_TRUE(Names().empty());
    EXPECT_FALSE(lower->isEnabled());
}

TEST_F(ArchiveFileDialogTest, WalksIntoFoldersAndArchivesAndTakesTheFileChosenThere) {
    Show();
    Select("pak0.pak");
    EXPECT_FALSE(PressOK()) << "an archive alone is no answer";
    DoubleClick("textures");
    EXPECT_EQ(Names(), (std::vector<std::string>{"e1", "Wall.wal"}));
    Click("e1");
    EXPECT_FALSE(PressOK());
    Click("Wall.wal");
    EXPECT_EQ(NameBox(), "Wall.wal");
    DoubleClick("Wall.wal");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(PressOK());
    EXPECT_EQ(ToNativePath(dialog->GetSelectedInnerPath()), PathTo("pak0.pak/textures/Wall.wal"));
    Show();
    Select("pak0.pak");
    DoubleClick("inner.pak");
    Click("c.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_TRUE(Open<CDocument>(dialog->GetSelectedInnerPath()));
}

TEST_F(ArchiveFileDialogTest, KeepsTheChosenNameWhenTheArchiveChanges) {
    Show();
    Select("pak0.pak");
    Click("apple.wal");
    Select("plain.wal");
    EXPECT_EQ(NameBox(), "apple.wal");
    EXPECT_EQ(dialog->GetSelectedInnerPath(), "");
    Select("pak1.pak");
    EXPECT_EQ(ToNativePath(dialog->GetSelectedInnerPath()), PathTo("pak1.pak/apple.wal"));
    Type("plain.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_EQ(dialog->GetSelectedInnerPath(), "") << "a typed name wins";
    EXPECT_EQ(dialog->GetPathName(), PathTo("plain.wal"));
}

TEST_F(ArchiveFileDialogTest, IsUsedWithTheKeyboardAlone) {
    Show();
    Type("pak0.pak");
    EXPECT_FALSE(PressOK()) << "shows the archive first";
    lower->setFocus();
    QWidget& view = View();
    QTest::keyClicks(&view, "tex");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(Names(), (std::vector<std::string>{"e1", "Wall.wal"}));
    QTest::qWait(QApplication::keyboardInputInterval() + 1); // else it goes on with the word
    QTest::keyClicks(&view, "w");
    EXPECT_EQ(NameBox(), "Wall.wal");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(ToNativePath(dialog->GetSelectedInnerPath()), PathTo("pak0.pak/textures/Wall.wal"));
}

TEST_F(ArchiveFileDialogTest, SwitchesBetweenListAndDetails) {
    Show();
    Select("pak0.pak");
    EXPECT_TRUE(Tool("List").isChecked());
    Click("apple.wal");
    Tool("Details").click();
    EXPECT_TRUE(Tool("Details").isChecked() && !Tool("List").isChecked());
    EXPECT_TRUE(dynamic_cast<QTreeView*>(&View()));
    EXPECT_EQ(View().currentIndex().row(), 0);
    Tool("Up One Level").click();
    EXPECT_EQ(missing, std::vector<std::string>{"Up One Level"});
    EXPECT_EQ(Names().size(), 4U);
}

TEST_F(ArchiveFileDialogTest, ReadsABadArchiveOnceForEachActOfThePerson) {
    Show();
    Select("bad.pak");
    EXPECT_NE(TakeMessage().find("bad.pak"), std::string::npos);
    EXPECT_TRUE(Names().empty());
    EXPECT_FALSE(PressOK());
    EXPECT_TRUE(messages.empty());
    Type("bad.pak/x.wal");
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(PressOK());
        TakeMessage();
    }
    Select("pak1.pak");
    EXPECT_EQ(Names(), std::vector<std::string>{"x.wal"});
}

TEST_F(ArchiveFileDialogTest, ReadsPreviewsOnlyWhileTheyAreSwitchedOn) {
    Show();
    Select("plain.wal");
    Select("pak0.pak");
    Click("apple.wal");
    EXPECT_TRUE(previewed.empty());
    QTest::keyClick(dialog->findChild<QCheckBox*>("enablePreview"), Qt::Key_Space);
    Click("textures");
    Select("plain.wal");
    ASSERT_EQ(previewed.size(), 2U);
    EXPECT_EQ(ToNativePath(previewed[0]), PathTo("pak0.pak/apple.wal"));
    EXPECT_EQ(previewed[1], PathTo("plain.wal"));
    EXPECT_EQ(dialog->findChild<QLabel*>("previewText")->text(), "4 x 2");
}

TEST_F(ArchiveFileDialogTest, AFolderOfManyFilesKeepsTheWindowAlive) {
    constexpr int files = 3000; // with the toolkit's own icons they take 600 ms at rest
    for (int i = 0; i < files; ++i) Put("f" + std::to_string(i) + ".wal", {});
    QElapsedTimer sinceTick;
    qint64 longestPause = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout,
                     [&] { longestPause = std::max(longestPause, sinceTick.restart()); });
    sinceTick.start();
    tick.start(5);
    Show();
    const auto* upper = dialog->findChild<QListView*>("listView");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return upper->model()->rowCount(upper->rootIndex()) >= files; }, 20000));
    EXPECT_LT(longestPause, 500) << "milliseconds, on a busy machine";
}

} // namespace
