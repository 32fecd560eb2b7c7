#include "image/ui/PaletteBar.h"

#include "image/ui/PaletteChooser.h"
#include "support/ui/ProgramFixture.h"

#include <set>

namespace keltavlo {

struct PaletteBarTest : ProgramFixture {
    // Clicks through the window, as the windowing system does.
    void Click(PalettePlanes::Part part, const QPoint& point) {
        QTest::mouseClick(GetMainFrame().windowHandle(), Qt::LeftButton, {}, InWindow(part, point));
    }
    QPoint InWindow(PalettePlanes::Part part, const QPoint& point) {
        return bar->findChild<QWidget*>(PaletteBar::partNames.at(part))->mapTo(&GetMainFrame(), point);
    }
    std::string ColorUnder(PalettePlanes::Part part, const QPoint& point) {
        QTest::mouseMove(GetMainFrame().windowHandle(), InWindow(part, point));
        return GetMainFrame().GetStatusBar().GetPaneText(3);
    }
    // Chooses by the keyboard while the list is closed.
    void Choose(int index) {
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Home);
        for (int i = 0; i < index; ++i) QTest::keyClick(chooser, Qt::Key_Down);
        ASSERT_EQ(chooser->currentIndex(), index);
    }
    CDocument* OpenTable(const std::string& name, int count) {
        Bytes bytes;
        for (int i = 0; i < count * 4; ++i) bytes.push_back(static_cast<std::byte>(i % 4 == 3 ? 255 : i / 4));
        return program.OpenDocumentFile(Put(name, bytes));
    }

    bool started = Start();
    QDockWidget* bar = GetMainFrame().findChild<QDockWidget*>("bar59401");
    PaletteBar* palette = dynamic_cast<PaletteBar*>(bar);
    PaletteChooser* chooser = dynamic_cast<PaletteChooser*>(bar->findChild<QComboBox*>());
};

TEST_F(PaletteBarTest, ThePointerIsOverThePixelThatItPicks) {
    Choose(PalettePlanes::rgba);
    program.SetCurrentColor(Compose(200, 100, 50));
    program.UpdatePaletteBar(Shell::colorChanged);
    Click(PalettePlanes::plane, {30, 40});
    EXPECT_EQ(program.GetCurrentColor(), Compose(40, 30, 50));
    Click(PalettePlanes::strip1, {255, 3});
    EXPECT_EQ(program.GetCurrentColor(), Compose(40, 30, 255));
    EXPECT_EQ(ColorUnder(PalettePlanes::strip2, {128, 4}), "rgba: 28 1E FF 80");
    Click(PalettePlanes::strip2, {0, 15});
    EXPECT_EQ(program.GetCurrentColor(), 0x00281EFFU);
    EXPECT_EQ(ColorUnder(PalettePlanes::strip1, {9, 9}), "rgb: (28 1E 09)");
    Click(PalettePlanes::plane, {30, -3}); // between the controls
    EXPECT_EQ(program.GetCurrentColor(), 0x00281EFFU);
}

TEST_F(PaletteBarTest, ListsWhatIsOpenWhenItIsShownAndDropsDown) {
    for (const auto& [index, text] : {std::pair{0, "(None)"}, {1, "(Color Table)"}, {2, "RGBA"}})
        EXPECT_EQ(chooser->itemText(index), text);
    CDocument* first = OpenTable("a.kelcolors", 200);
    CDocument* second = OpenTable("b.kelcolors", 5);
    EXPECT_EQ(chooser->count(), 3);
    static_cast<QComboBox*>(chooser)->showPopup();
    chooser->hidePopup();
    EXPECT_EQ(chooser->count(), 5);
    Choose(4);
    first->OnCloseDocument();
    chooser->FillChooser();
    EXPECT_EQ(chooser->currentText().toStdString(), second->GetTitle());
    second->OnCloseDocument();
    bar->hide();
    bar->show();
    EXPECT_EQ(chooser->count(), 3);
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
    Choose(0);
    Choose(PalettePlanes::colorTable);
    EXPECT_EQ(palette->GetPlanes().GetColors().GetCount(), 200U);
}

TEST_F(PaletteBarTest, EdgesHaveTheColorsOfTheDesktop) {
    OpenTable("a.kelcolors", 200);
    chooser->FillChooser();
    Choose(3);
    Click(PalettePlanes::plane, {20, 20});
    QPalette colors = bar->palette();
    const auto roles = {QPalette::Button, QPalette::Dark, QPalette::Shadow, QPalette::Midlight,
                        QPalette::Light};
    for (const QPalette::ColorRole role : roles) colors.setColor(role, QColor(role, 77, 5));
    bar->setPalette(colors);
    const QImage shown =
        bar->findChild<QWidget*>(PaletteBar::partNames[PalettePlanes::plane])->grab().toImage();
    std::set<QRgb> seen;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) seen.insert(shown.pixel(x, y));
    for (const QPalette::ColorRole role : roles) EXPECT_TRUE(seen.contains(qRgb(role, 77, 5))) << role;
}

// The chooser's values are valid only until the documents change.
TEST_F(PaletteBarTest, LeavesTheListsOfClosedDocumentsAlone) {
    CDocument* table = OpenTable("a.kelcolors", 9);
    chooser->FillChooser();
    ASSERT_EQ(chooser->count(), 4);
    table->OnCloseDocument();
    chooser->setFocus();
    QTest::keyClick(chooser, Qt::Key_End);
    EXPECT_EQ(palette->GetPlanes().GetMode(), PalettePlanes::none);
    EXPECT_EQ(chooser->count(), 3);
}

} // namespace keltavlo
