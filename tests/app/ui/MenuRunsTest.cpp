#include "image/TextureEdits.h"
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
    Send(ID_BRUSH_LAST);
    EXPECT_FALSE(document->HasBrush()) << "nothing is listed there";
    Send(ID_COLOR_TABLE_FIRST + 1);
    for (const CommandId id : {ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST})
        EXPECT_FALSE(Send(id)) << "color spaces are listed, not chosen: " << id;
    EXPECT_EQ(CheckedAround(ID_BRUSH_NONE), QStringList("&None"));
    EXPECT_EQ(CheckedAround(ID_PALETTE_NONE), QStringList(Item(ID_COLOR_TABLE_FIRST + 1)->text()));
    EXPECT_FALSE(document->IsModified());
    EXPECT_EQ(Item(ID_WINDOW_CHILD_FIRST)->statusTip(), "Activate this window");
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
    ResizePicture(*document, 3, 3);
    QApplication::setActiveWindow(&GetMainFrame());
    for (const auto& [key, modifier, width] : {std::tuple(Qt::Key_Z, Qt::ControlModifier, 64),
                                               {Qt::Key_Y, Qt::ControlModifier, 3},
                                               {Qt::Key_Backspace, Qt::AltModifier, 64}}) {
        QTest::keyClick(&GetMainFrame(), key, modifier);
        EXPECT_EQ(GetTexture().GetWidth(), width) << key;
    }
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
