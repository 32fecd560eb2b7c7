#include "app/ui/CKelTavloApp.h"

#include "app/ui/CommandLine.h"
#include "app/ui/FileFilters.h"
#include "app/ui/MainFrame.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/Commands.h"
#include "res/CommandIds.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

class CKelTavloAppTest : public testing::Test {
protected:
    QTemporaryDir folder;
    CKelTavloApp program{std::make_unique<ProfileStore>(folder.filePath("settings.ini").toStdString())};
};

TEST_F(CKelTavloAppTest, AsksForATypeWhenThereIsNothingToOpen) {
    const DialogAnswer cancel([&](QDialog& dialog) {
        const QListWidget* list = dialog.findChild<QListWidget*>();
        ASSERT_TRUE(list);
        EXPECT_EQ(list->count(), 5);
        EXPECT_EQ(list->item(4)->text(), "Wal");
        EXPECT_TRUE(program.GetMainFrame()->isVisible());
        dialog.reject();
    });
    EXPECT_TRUE(program.InitInstance({}));
    EXPECT_TRUE(program.GetDocuments().empty());
}

TEST_F(CKelTavloAppTest, MakesADocumentOfTheTypeThatIsDoubleClicked) {
    const DialogAnswer wal([](QDialog& dialog) {
        auto* list = dialog.findChild<QListWidget*>();
        list->setCurrentRow(4);
        emit list->itemDoubleClicked(list->item(4));
    });
    EXPECT_TRUE(program.InitInstance({}));
    bool found = false;
    for (const CDocument* document : program.GetDocuments()) found |= document->GetTitle() == "wal1";
    EXPECT_TRUE(found);
}

TEST_F(CKelTavloAppTest, EndsAtOnceWhenItsFileCannotBeOpened) {
    const DialogAnswer noted(Press(QDialogButtonBox::Ok));
    EXPECT_FALSE(program.InitInstance({folder.filePath("missing.wal").toStdString()}));
}

TEST_F(CKelTavloAppTest, ShowsCommandsThatNobodyHandlesDisabled) {
    const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
    program.InitInstance({});
    MainFrame& frame = *program.GetMainFrame();
    frame.GetCurrentMenu().UpdateAll();
    EXPECT_TRUE(frame.GetCurrentMenu().FindItem(ID_FILE_NEW)->isEnabled());
    EXPECT_FALSE(frame.GetCurrentMenu().FindItem(ID_FILE_MRU_FIRST)->isEnabled());
    EXPECT_EQ(frame.GetCurrentMenu().FindItem(ID_FILE_MRU_FIRST)->text(), "Recent File");
    EXPECT_FALSE(SendCommand(frame, ID_FILE_SAVE));
}

TEST_F(CKelTavloAppTest, WritesPositionsAndColorsToTheirPanes) {
    const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
    program.InitInstance({});
    const CStatusBar& bar = program.GetMainFrame()->GetStatusBar();
    program.SetPositionText(5.25, 1.254);
    EXPECT_EQ(bar.GetPaneText(2), "5.25, 1.25");
    program.SetColorText(0x80FF0000);
    EXPECT_EQ(bar.GetPaneText(3), "rgba: FF 00 00 80");
    program.SetColorText(0x00123456);
    EXPECT_EQ(bar.GetPaneText(3), "rgb: (12 34 56)");
    program.SetColorText(0xFF123456);
    EXPECT_EQ(bar.GetPaneText(3), "rgb: 12 34 56");
}

TEST_F(CKelTavloAppTest, OffersTheTypesFilterFirst) {
    FileNameQuestion question;
    std::vector<FileFilter> filters = BuildFileFilters(question);
    ASSERT_EQ(filters.size(), 5U);
    EXPECT_EQ(filters[3].patterns, "*.pak;*.pcx;*.tga;*.wad;");
    question.open = false;
    question.type = program.GetTemplates()[4];
    filters = BuildFileFilters(question);
    ASSERT_EQ(filters.size(), 8U);
    EXPECT_EQ(filters.front().label, "Quake II Texture Files (*.wal)");
    EXPECT_EQ(filters.front().patterns, "*.wal");
    EXPECT_EQ(filters.back().label, "All Files (*.*)");
}

TEST_F(CKelTavloAppTest, OpensFilesThatAreDropped) {
    const DialogAnswer cancel([](QDialog& dialog) { dialog.reject(); });
    program.InitInstance({});
    const QString path = folder.filePath("floor.wal");
    WriteFile(path.toStdString(), MakeWal(8, 8));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path), QUrl("http://example.invalid/x.wal")});
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    // Drops come through the native window: it alone knows which widget they are for.
    QCoreApplication::sendEvent(program.GetMainFrame()->windowHandle(), &enter);
    QCoreApplication::sendEvent(program.GetMainFrame()->windowHandle(), &drop);
    QCoreApplication::processEvents();
    EXPECT_EQ(program.GetRecentFiles().GetPaths(), std::vector<std::string>{path.toStdString()});
}

TEST(CommandLineTest, TellsPathsFromOptions) {
    const CommandLine line = ParseCommandLine({"keltavlo", "a.wal", "--", "-b.wal"});
    EXPECT_EQ(line.paths, (std::vector<std::string>{"a.wal", "-b.wal"}));
    EXPECT_TRUE(line.error.empty());
    EXPECT_TRUE(ParseCommandLine({"keltavlo", "-platform", "offscreen", "--help"}).help);
    EXPECT_FALSE(ParseCommandLine({"keltavlo", "-reverse"}).version);
    EXPECT_FALSE(ParseCommandLine({"keltavlo", "--bogus"}).error.empty());
}

} // namespace
