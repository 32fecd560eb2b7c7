// The file dialog as the program uses it, with the real documents behind it.
#include "app/PreviewReader.h"
#include "app/ui/CKelTavloApp.h"
#include "app/ui/HelpWindow.h"
#include "app/ui/MainFrame.h"
#include "app/ui/PicturePreview.h"
#include "archives/ui/ArchiveFileDialog.h"
#include "framework/core/Path.h"
#include "framework/ui/Commands.h"
#include "image/TavloDocument.h"
#include "res/CommandIds.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

class FileDialogsTest : public testing::Test {
protected:
    FileDialogsTest() {
        QApplication::setQuitOnLastWindowClosed(false); // there may be another program after this one
        PackBuilder pack;
        pack.Add("textures/a.wal", MakeWal(8, 8, "a"));
        pack.Add("textures/b.wal", MakeWal(8, 8, "b"));
        pack.Add("textures/large.wal", MakeWal(64, 64, "large"));
        pack.Add("textures/bad.wal", ToBytes("bad"));
        WriteFile(packPath, pack.Build());
    }

    void Start(const std::vector<std::string>& paths) {
        program = std::make_unique<CKelTavloApp>(
            std::make_unique<ProfileStore>(folder.filePath("settings.ini").toStdString()));
        ASSERT_TRUE(program->InitInstance(paths));
    }
    static void Type(QDialog& dialog, const std::string& name) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name));
    }
    static void PressButton(QDialog& dialog, QDialogButtonBox::StandardButton button) {
        dialog.findChild<QDialogButtonBox*>()->button(button)->click();
    }

    QTemporaryDir folder;
    std::string packPath = folder.filePath("pak0.pak").toStdString();
    std::unique_ptr<CKelTavloApp> program;
};

TEST_F(FileDialogsTest, OpensWhatIsChosenInAnArchive) {
    Start({packPath + "/textures/a.wal"});
    {
        const DialogAnswer answer([&](QDialog& dialog) {
            Type(dialog, packPath + "/textures/large.wal");
            PressButton(dialog, QDialogButtonBox::Open);
        });
        SendCommand(*program->GetMainFrame(), ID_FILE_OPEN);
    }
    EXPECT_EQ(program->GetRecentFiles().GetPaths().front(), packPath + "/textures/large.wal");
}

TEST_F(FileDialogsTest, SavesOverAnEntryAndTellsAtTheEndThatArchivesAreReadOnly) {
    Start({packPath + "/textures/a.wal"});
    const Bytes before = ReadFile(packPath);
    {
        // A texture from an archive is saved under a name that the person confirms, and replaces what is
        // there.
        const DialogAnswer yes([&](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "pak0.pak/textures/a.wal");
            Type(dialog, packPath + "/textures/b.wal");
            QTimer::singleShot(0, [] {
                auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_TRUE(question);
                EXPECT_TRUE(question->text().contains("already exists"));
                question->button(QMessageBox::Yes)->click();
            });
            PressButton(dialog, QDialogButtonBox::Save);
        });
        EXPECT_TRUE(SendCommand(*program->GetMainFrame(), ID_FILE_SAVE));
    }
    EXPECT_EQ(ReadFile(packPath), before);
    std::vector<std::string> told;
    const auto answer = [&told](QMessageBox::StandardButton button) {
        return [&told, button](QDialog& dialog) {
            told.push_back(dynamic_cast<QMessageBox&>(dialog).text().toStdString());
            Press(button)(dialog);
        };
    };
    {
        const DialogAnswer yes(answer(QMessageBox::Yes));
        QTimer::singleShot(300, [&] {
            const DialogAnswer ok(answer(QMessageBox::Ok));
            QTest::qWait(300);
        });
        EXPECT_FALSE(program->SaveAllModified());
    }
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], "Save changes to " + packPath + "?");
    EXPECT_NE(told[1].find("pak0.pak"), std::string::npos);
    EXPECT_EQ(ReadFile(packPath), before);
}

TEST_F(FileDialogsTest, TellsWhatIsNotImplemented) {
    Start({packPath + "/textures/a.wal"});
    const DialogAnswer ok([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Not Implemented");
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(dialog).text().startsWith(
            "Up One Level is not implemented.\nKelTavlo is not fully implemented yet. Sorry.\n\n"));
        dialog.accept();
    });
    program->NotImplemented("Up One Level");
}

TEST_F(FileDialogsTest, RemembersThatThePreviewIsOn) {
    for (const bool wasOn : {false, true}) {
        Start({packPath + "/textures/a.wal"});
        const DialogAnswer answer([&](QDialog& dialog) {
            auto* enable = dialog.findChild<QCheckBox*>("enablePreview");
            EXPECT_EQ(enable->isChecked(), wasOn);
            enable->click();
            dialog.reject();
        });
        EXPECT_TRUE(SendCommand(*program->GetMainFrame(), ID_FILE_OPEN)) << wasOn;
        program.reset();
    }
}

TEST_F(FileDialogsTest, PreviewsPicturesAndNothingElse) {
    Start({packPath + "/textures/a.wal"});
    const std::size_t documents = program->GetDocuments().size();
    const Preview preview = ReadPicturePreview(packPath + "/textures/large.wal");
    EXPECT_EQ(preview.picture.size(), QSize(64, 64));
    EXPECT_TRUE(preview.text.startsWith("64 x 64\n"));
    const Preview bad = ReadPicturePreview(packPath + "/textures/bad.wal");
    EXPECT_TRUE(bad.picture.isNull());
    EXPECT_FALSE(bad.text.isEmpty());
    EXPECT_EQ(ReadPicturePreview(packPath + "/textures").text, "");
    EXPECT_EQ(ReadForPreview(packPath), nullptr);
    EXPECT_EQ(program->GetDocuments().size(), documents);
    EXPECT_EQ(ReadForPreview(packPath + "/textures/a.wal")->GetTexture().GetPixel(0, 0),
              dynamic_cast<TavloDocument&>(*program->OpenDocumentFile(packPath + "/textures/a.wal"))
                  .GetTexture()
                  .GetPixel(0, 0));
}

// Every page that is linked to and every picture is there.
TEST(HelpWindowTest, HasEveryPageAndPicture) {
    HelpWindow help;
    help.ShowPage("models.html");
    auto* topics = help.findChild<QListWidget*>();
    auto* browser = help.findChild<QTextBrowser*>();
    EXPECT_EQ(browser->documentTitle(), "Models in 3D");
    EXPECT_EQ(topics->currentItem()->text(), "Models in 3D");
    qint64 pictureBytes = 0;
    std::set<QString> counted;
    for (int row = 0; row < topics->count(); ++row) {
        topics->setCurrentRow(row);
        EXPECT_EQ(browser->documentTitle(), topics->item(row)->text());
        for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                const QString picture = format.toImageFormat().name();
                for (const QString& file : {picture, format.anchorHref()})
                    EXPECT_TRUE(file.isEmpty() || QFile::exists(":/help/" + file)) << file.toStdString();
                if (!picture.isEmpty() && counted.insert(picture).second)
                    pictureBytes += QFile(":/help/" + picture).size();
            }
    }
    EXPECT_GE(counted.size(), 5U);
    EXPECT_LT(pictureBytes, 300'000);
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

} // namespace
