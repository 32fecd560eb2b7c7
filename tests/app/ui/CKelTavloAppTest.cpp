#include "app/ui/CKelTavloApp.h"

#include "app/ui/CommandLine.h"
#include "app/ui/FileFilters.h"
#include "support/ui/ProgramFixture.h"

#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace {

using CKelTavloAppTest = ProgramFixture;

TEST_F(CKelTavloAppTest, AsksForATypeWhenThereIsNothingToOpen) {
    const DialogAnswer wal([&](QDialog& dialog) {
        auto* list = dialog.findChild<QListWidget*>();
        ASSERT_TRUE(list);
        EXPECT_EQ(list->count(), 5);
        EXPECT_EQ(list->item(4)->text(), "Wal");
        EXPECT_TRUE(GetMainFrame().isVisible());
        list->setCurrentRow(4);
        emit list->itemDoubleClicked(list->item(4));
    });
    EXPECT_TRUE(program.InitInstance({}));
    EXPECT_TRUE(std::ranges::any_of(
        program.GetDocuments(), [](const CDocument* document) { return document->GetTitle() == "wal1"; }));
}

TEST_F(CKelTavloAppTest, EndsAtOnceWhenItsFileCannotBeOpened) {
    const DialogAnswer noted(Press(QDialogButtonBox::Ok));
    EXPECT_FALSE(program.InitInstance({PathTo("missing.wal")}));
}

TEST_F(CKelTavloAppTest, OffersTheTypesFilterFirst) {
    FileNameQuestion question;
    EXPECT_EQ(BuildFileFilters(question).at(3).patterns, "*.pak;*.pcx;*.tga;*.wad;");
    question.open = false;
    question.type = program.GetTemplates()[4];
    const std::vector<FileFilter> filters = BuildFileFilters(question);
    ASSERT_EQ(filters.size(), 8U);
    EXPECT_EQ(filters.front().label, "Quake II Texture Files (*.wal)");
    EXPECT_EQ(filters.front().patterns, "*.wal");
    EXPECT_EQ(filters.back().label, "All Files (*.*)");
}

TEST_F(CKelTavloAppTest, OpensFilesThatAreDropped) {
    Start();
    const std::string path = Put("floor.wal", MakeWal(8, 8));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QString::fromStdString(path)), QUrl("http://example.invalid/x.wal")});
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    // Drops come through the native window: it alone knows which widget they are for.
    QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &enter);
    QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &drop);
    QCoreApplication::processEvents();
    EXPECT_EQ(program.GetRecentFiles().GetPaths(), std::vector<std::string>{path});
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
