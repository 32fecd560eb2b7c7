#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

struct MenuRunsTest : TavloViewFixture {
    QAction* Item(CommandId id) { return GetMainFrame().GetCurrentMenu().FindItem(id); }
    // Returns the checked items of the popup that contains the command.
    QStringList CheckedAround(CommandId id) {
        GetMainFrame().GetCurrentMenu().UpdateAll();
        QStringList texts;
        for (const QAction* item : qobject_cast<QMenu*>(Item(id)->parent())->actions())
            if (item->isChecked()) texts += item->text();
        return texts;
    }
    QStringList TextsAround(CommandId id) {
        return Item(id) ? ItemTexts(*qobject_cast<QMenu*>(Item(id)->parent())) : QStringList();
    }
};

TEST_F(MenuRunsTest, ListWhatIsOpen) {
    EXPECT_EQ(TextsAround(ID_BRUSH_NONE), QStringList({"Texel Brush", "Color Picker", "", "None"}));
    EXPECT_EQ(TextsAround(ID_PALETTE_NONE).front(), "RGBA");
    EXPECT_EQ(TextsAround(ID_PALETTE_NONE).count("Quake II"), 1) << "palettes are color tables too";
    program.OpenDocumentFile(Put("R&B.kelbrush", ToBytes("KEL\xE5\xD0TAVBrsh" + std::string(4, '\0'))));
    EXPECT_EQ(TextsAround(ID_BRUSH_NONE), QStringList({"Texel Brush", "RB", "Color Picker", "", "None"}));
    QAction& third = *Item(ID_BRUSH_FIRST + 2);
    EXPECT_EQ(third.statusTip(), "Select this brush for the active document");
    third.trigger();
    EXPECT_EQ(document->GetCurrentBrush()->GetTitle(), "R&B");
    EXPECT_EQ(CheckedAround(ID_BRUSH_NONE), QStringList("R&&B"));
    EXPECT_EQ(CheckedAround(ID_PALETTE_NONE), QStringList("&None"));
    Send(ID_BRUSH_NONE);
    Send(ID_COLOR_TABLE_FIRST + 1);
    EXPECT_EQ(CheckedAround(ID_BRUSH_NONE), QStringList("&None"));
    EXPECT_EQ(CheckedAround(ID_PALETTE_NONE), QStringList(Item(ID_COLOR_TABLE_FIRST + 1)->text()));
    EXPECT_EQ(Item(ID_WINDOW_CHILD_FIRST)->statusTip(), "Activate this window");
    EXPECT_FALSE(StateOf(ID_COLOR_SPACE_FIRST).enabled) << "color spaces are listed, not chosen";
}

TEST_F(MenuRunsTest, ShowAndHideTheBars) {
    EXPECT_EQ(TextsAround(ID_BAR_FIRST), QStringList({"Palette", "Standard", "View Filter"}));
    auto& popup = *qobject_cast<QMenu*>(Item(ID_BAR_FIRST)->parent());
    for (const bool shown : {false, true}) {
        EXPECT_TRUE(Send(ID_BAR_FIRST));
        popup.popup({});
        EXPECT_EQ(Item(ID_BAR_FIRST)->isChecked(), shown);
        popup.close();
        EXPECT_EQ(StateOf(ID_BAR_FIRST).checked, shown);
        EXPECT_TRUE(StateOf(ID_BAR_FIRST + 1).checked);
    }
    EXPECT_FALSE(StateOf(ID_BAR_FIRST + 3).enabled);
}

TEST_F(MenuRunsTest, KeysUndoAndRedo) {
    const auto texel = [&] { return document->GetTexture().GetPixel(15, 7); };
    ASSERT_TRUE(Send(ID_COLOR_TABLE_FIRST));
    const Color before = texel();
    ASSERT_TRUE(Send(ID_FORMAT_NEAREST));
    const Color after = texel();
    ASSERT_NE(before, after);
    QApplication::setActiveWindow(&GetMainFrame());
    QTest::keyClick(&GetMainFrame(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texel(), before);
    QTest::keyClick(&GetMainFrame(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(texel(), after);
    QTest::keyClick(&GetMainFrame(), Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(texel(), before);
}

TEST_F(MenuRunsTest, TheColorDialogKeepsAlpha) {
    program.SetCurrentColor(0x80112233);
    for (const int result : {QDialog::Accepted, QDialog::Rejected}) {
        const DialogAnswer choose([&](QDialog& dialog) {
            dynamic_cast<QColorDialog&>(dialog).setCurrentColor(result ? QColor(1, 2, 3) : Qt::red);
            dialog.done(result);
        });
        Send(ID_FORMAT_COLOR);
        EXPECT_EQ(program.GetCurrentColor(), 0x80010203U);
    }
}

} // namespace keltavlo
