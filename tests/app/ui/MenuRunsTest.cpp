#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/Commands.h"
#include "image/ImageDocuments.h"
#include "res/CommandIds.h"
#include "resources/BrushDocument.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"
#include "support/ui/PopupAnswer.h"

#include <QApplication>
#include <QColorDialog>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The program with a texture open.
class MenuRunsTest : public testing::Test {
protected:
    MenuRunsTest() {
        WriteFile(PathTo("floor.wal"), MakeWal(16, 8));
        program.InitInstance({PathTo("floor.wal")});
        document = dynamic_cast<WALDocument*>(GetMainFrame().MDIGetActive()->GetActiveDocument());
    }

    MainFrame& GetMainFrame() { return *program.GetMainFrame(); }

    std::string PathTo(const char* name) { return folder.filePath(name).toStdString(); }
    void OpenBrush(const char* name) {
        WriteFile(PathTo(name), ToBytes("KEL\xE5\xD0TAVBrsh" + std::string(4, '\0')));
        program.OpenDocumentFile(PathTo(name));
    }
    // The texts of the popup in which the item stands.
    QStringList TextsAround(CommandId id) {
        const QAction* item = GetMainFrame().GetCurrentMenu().FindItem(id);
        return item ? ItemTexts(*qobject_cast<QMenu*>(item->parent())) : QStringList();
    }

    QTemporaryDir folder;
    CKelTavloApp program{std::make_unique<ProfileStore>(folder.filePath("settings.ini").toStdString())};
    WALDocument* document = nullptr;
};

} // namespace

TEST_F(MenuRunsTest, ListWhatIsOpen) {
    EXPECT_EQ(TextsAround(ID_BRUSH_NONE), QStringList({"Texel Brush", "Color Picker", "", "None"}));
    EXPECT_EQ(TextsAround(ID_PALETTE_NONE).front(), "RGBA");
    EXPECT_EQ(TextsAround(ID_PALETTE_NONE).count("Quake II"), 1) << "palettes are colour tables too";
    OpenBrush("R&B.kelbrush");
    EXPECT_EQ(TextsAround(ID_BRUSH_NONE), QStringList({"Texel Brush", "RB", "Color Picker", "", "None"}));
    const QAction* third = GetMainFrame().GetCurrentMenu().FindItem(ID_BRUSH_FIRST + 2);
    EXPECT_EQ(third->text(), "R&&B");
    EXPECT_EQ(third->statusTip(), "Select this brush for the active document");
    GetMainFrame().GetCurrentMenu().FindItem(ID_BRUSH_FIRST + 2)->trigger();
    EXPECT_EQ(document->GetCurrentBrush()->GetTitle(), "R&B");
    GetMainFrame().GetCurrentMenu().UpdateAll();
    EXPECT_TRUE(third->isChecked());
    EXPECT_EQ(third->text(), "R&&B");
}

TEST_F(MenuRunsTest, ShowAndHideTheBars) {
    EXPECT_EQ(TextsAround(ID_BAR_FIRST), QStringList({"Palette", "Standard", "View Filter"}));
    for (const bool shown : {false, true}) {
        EXPECT_TRUE(SendCommand(GetMainFrame(), ID_BAR_FIRST));
        EXPECT_EQ(AskCommand(GetMainFrame(), ID_BAR_FIRST).checked, shown);
        EXPECT_TRUE(AskCommand(GetMainFrame(), ID_BAR_FIRST + 1).checked);
    }
    EXPECT_FALSE(AskCommand(GetMainFrame(), ID_BAR_FIRST + 3).enabled);
}

TEST_F(MenuRunsTest, KeysUndoAndRedo) {
    ASSERT_TRUE(SendCommand(GetMainFrame(), ID_COLOR_TABLE_FIRST));
    const Color before = document->GetTexture().GetPixel(15, 7);
    ASSERT_TRUE(SendCommand(GetMainFrame(), ID_FORMAT_NEAREST));
    const Color after = document->GetTexture().GetPixel(15, 7);
    ASSERT_NE(before, after);
    QApplication::setActiveWindow(&GetMainFrame());
    QTest::keyClick(&GetMainFrame(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(document->GetTexture().GetPixel(15, 7), before);
    QTest::keyClick(&GetMainFrame(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(document->GetTexture().GetPixel(15, 7), after);
    QTest::keyClick(&GetMainFrame(), Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(document->GetTexture().GetPixel(15, 7), before);
}

TEST_F(MenuRunsTest, TheColorDialogKeepsAlpha) {
    program.SetCurrentColor(0x80112233);
    {
        const DialogAnswer choose([](QDialog& dialog) {
            auto& colors = dynamic_cast<QColorDialog&>(dialog);
            EXPECT_EQ(colors.currentColor(), QColor(0x11, 0x22, 0x33));
            colors.setCurrentColor(QColor(1, 2, 3));
            dialog.accept();
        });
        SendCommand(GetMainFrame(), ID_FORMAT_COLOR);
    }
    EXPECT_EQ(program.GetCurrentColor(), 0x80010203U);
    const DialogAnswer cancel([](QDialog& dialog) {
        dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::red);
        dialog.reject();
    });
    SendCommand(GetMainFrame(), ID_FORMAT_COLOR);
    EXPECT_EQ(program.GetCurrentColor(), 0x80010203U);
}
