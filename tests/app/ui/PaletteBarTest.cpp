#include "image/ui/PaletteBar.h"

#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CStatusBar.h"
#include "image/ui/PaletteChooser.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class PaletteBarTest : public testing::Test {
protected:
    PaletteBarTest() {
        const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
        program.InitInstance({});
        bar = program.GetMainFrame()->findChild<QDockWidget*>("bar59401");
        palette = dynamic_cast<PaletteBar*>(bar);
        chooser = dynamic_cast<PaletteChooser*>(bar->findChild<QComboBox*>());
    }

    // Through the window, as the windowing system sends it.
    void Click(PalettePlanes::Part part, const QPoint& point) {
        QTest::mouseClick(program.GetMainFrame()->windowHandle(), Qt::LeftButton, {}, InWindow(part, point));
    }
    QPoint InWindow(PalettePlanes::Part part, const QPoint& point) {
        const auto* control = bar->findChild<QWidget*>(PaletteBar::partNames.at(part));
        return control->mapTo(control->window(), point);
    }
    // By the keyboard, with the list closed.
    void Choose(int index) {
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Home);
        for (int i = 0; i < index; ++i) QTest::keyClick(chooser, Qt::Key_Down);
        ASSERT_EQ(chooser->currentIndex(), index);
    }
    CDocument* OpenTable(const std::string& name, int count) {
        Bytes bytes;
        for (int i = 0; i < count * 4; ++i) bytes.push_back(static_cast<std::byte>(i % 4 == 3 ? 255 : i / 4));
        WriteFile(folder.filePath(QString::fromStdString(name)).toStdString(), bytes);
        return program.OpenDocumentFile(folder.filePath(QString::fromStdString(name)).toStdString());
    }

    QTemporaryDir folder;
    CKelTavloApp program{std::make_unique<ProfileStore>(folder.filePath("settings.ini").toStdString())};
    QDockWidget* bar = nullptr;
    PaletteBar* palette = nullptr;
    PaletteChooser* chooser = nullptr;
};

TEST_F(PaletteBarTest, ClicksPickThePixelUnderThem) {
    Choose(PalettePlanes::rgba);
    program.SetCurrentColor(Compose(200, 100, 50));
    program.UpdatePaletteBar(Shell::colorChanged);
    Click(PalettePlanes::plane, {30, 40});
    EXPECT_EQ(program.GetCurrentColor(), Compose(40, 30, 50));
    Click(PalettePlanes::strip1, {255, 3});
    EXPECT_EQ(program.GetCurrentColor(), Compose(40, 30, 255));
    Click(PalettePlanes::strip2, {0, 15});
    EXPECT_EQ(program.GetCurrentColor(), 0x00281EFFU);
    EXPECT_EQ(palette->GetPlanes().HitTest(PalettePlanes::strip1, 9, 9), 0x00281E09U);
    Click(PalettePlanes::plane, {30, -3}); // between the controls
    EXPECT_EQ(program.GetCurrentColor(), 0x00281EFFU);
}

// The scale is fixed for a process.
TEST_F(PaletteBarTest, ClicksPickTheSamePixelsAtTwiceTheScale) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "2");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(),
                  {"--gtest_filter=PaletteBarTest.ClicksPickThePixelUnderThem"});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardOutput().toStdString();
}

TEST_F(PaletteBarTest, TheStatusBarNamesTheColorUnderThePointer) {
    Choose(PalettePlanes::rgba);
    QTest::mouseMove(program.GetMainFrame()->windowHandle(), InWindow(PalettePlanes::plane, {3, 4}));
    QTest::mouseMove(program.GetMainFrame()->windowHandle(), InWindow(PalettePlanes::strip2, {128, 4}));
    EXPECT_EQ(program.GetMainFrame()->GetStatusBar().GetPaneText(3), "rgba: 00 00 00 80");
}

TEST_F(PaletteBarTest, ListsWhatIsOpenWhenItIsShownAndDropsDown) {
    EXPECT_EQ(chooser->count(), 3);
    EXPECT_EQ(chooser->itemText(0), "(None)");
    EXPECT_EQ(chooser->itemText(1), "(Color Table)");
    EXPECT_EQ(chooser->itemText(2), "RGBA");
    OpenTable("a.kelcolors", 200);
    CDocument* second = OpenTable("b.kelcolors", 5);
    EXPECT_EQ(chooser->count(), 3);
    static_cast<QComboBox*>(chooser)->showPopup();
    chooser->hidePopup();
    EXPECT_EQ(chooser->count(), 5);
    EXPECT_EQ(chooser->itemText(4).toStdString(), second->GetTitle());
    Choose(4);
    program.GetDocuments().at(program.GetDocuments().size() - 2)->OnCloseDocument();
    chooser->FillChooser();
    EXPECT_EQ(chooser->currentText().toStdString(), second->GetTitle());
    OpenTable("c.kelcolors", 7);
    second->OnCloseDocument();
    bar->hide();
    bar->show();
    EXPECT_EQ(chooser->count(), 4);
    EXPECT_EQ(chooser->currentIndex(), PalettePlanes::colorTable);
}

TEST_F(PaletteBarTest, KeepsACopyOfTheTableThatItShows) {
    CDocument* table = OpenTable("a.kelcolors", 200);
    program.SetCurrentColor(0x12345678);
    chooser->FillChooser();
    Choose(3);
    table->OnCloseDocument();
    Click(PalettePlanes::plane, {16 * 7 + 4, 16 + 4});
    EXPECT_EQ(program.GetCurrentColor(), 0xFF171717U);
    Click(PalettePlanes::plane, {250, 250}); // no entry: the current colour itself
    EXPECT_EQ(program.GetCurrentColor(), 0xFF171717U);
    chooser->FillChooser();
    EXPECT_EQ(chooser->currentIndex(), PalettePlanes::colorTable);
    Choose(0);
    Choose(PalettePlanes::colorTable);
    EXPECT_EQ(palette->GetPlanes().GetColors().GetCount(), 200U);
}

// The chooser's values are only good until the documents change.
TEST_F(PaletteBarTest, LeavesTheListsOfClosedDocumentsAlone) {
    CDocument* table = OpenTable("a.kelcolors", 9);
    chooser->FillChooser();
    ASSERT_EQ(chooser->count(), 4);
    table->OnCloseDocument();
    chooser->setFocus();
    QTest::keyClick(chooser, Qt::Key_End);
    EXPECT_EQ(palette->GetPlanes().GetMode(), PalettePlanes::none);
    EXPECT_EQ(chooser->count(), 3);
    EXPECT_EQ(chooser->currentIndex(), PalettePlanes::none);
}

} // namespace
