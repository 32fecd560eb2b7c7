#include "app/ui/CKelTavloApp.h"

#include "app/ui/CommandLine.h"
#include "app/ui/FileDialogServices.h"
#include "support/ui/ProgramFixture.h"

#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QWindow>

#include <filesystem>

namespace keltavlo {

namespace fs = std::filesystem;

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
    const std::string path = Put("caf\xE9%.wal", MakeWal(8, 8)); // not UTF-8
    const QUrl page("http://example.invalid/x.wal");
    const QUrl file = QUrl::fromEncoded("file://" + QByteArray::fromStdString(PathTo("caf%E9%25.wal")));
    // Drops come through the native window: it alone knows which widget they are for.
    const auto drag = [&](const QList<QUrl>& urls) {
        QMimeData files;
        files.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &enter);
        if (enter.isAccepted()) QCoreApplication::sendEvent(GetMainFrame().windowHandle(), &drop);
        return enter.isAccepted();
    };
    EXPECT_FALSE(drag({page}));
    EXPECT_TRUE(drag({file, page}));
    QCoreApplication::processEvents();
    ASSERT_EQ(program.GetRecentFiles().GetPaths(), std::vector<std::string>{path});
    EXPECT_TRUE(Send(ID_FILE_SAVE));
    EXPECT_EQ(std::distance(fs::directory_iterator(PathTo("")), {}), 2) << "the settings, and the same file";
    EXPECT_TRUE(fs::remove(path)); // the toolkit could not
}

TEST(CommandLineTest, TellsPathsFromOptions) {
    const CommandLine line = ParseCommandLine({"keltavlo", "caf\xE9.wal", "", "--", "-b.wal"});
    EXPECT_EQ(line.paths, (std::vector<std::string>{"caf\xE9.wal", "", "-b.wal"}));
    EXPECT_TRUE(line.error.empty());
    const CommandLine toolkit =
        ParseCommandLine({"keltavlo", "-platform", "offscreen", "-reverse", "a", "--style=fusion", "--help"});
    EXPECT_EQ(toolkit.error, "");
    EXPECT_EQ(toolkit.paths, std::vector<std::string>{"a"});
    EXPECT_TRUE(toolkit.help && !toolkit.version);
    for (const char* option : {"--bogus", "--help-all"})
        EXPECT_FALSE(ParseCommandLine({"keltavlo", option}).error.empty()) << option;
    EXPECT_EQ(HelpText().find("--help-all"), std::string::npos);
}

} // namespace keltavlo
