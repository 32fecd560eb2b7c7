// The program's file dialog with real documents.
#include "app/PictureFiles.h"
#include "app/ui/FileDialogServices.h"
#include "app/ui/HelpPages.h"
#include "app/ui/HelpWindow.h"
#include "image/TavloDocument.h"
#include "support/ui/ProgramFixture.h"

#include <set>

namespace keltavlo {

struct FileDialogsTest : ProgramFixture {
    FileDialogsTest() {
        QApplication::setQuitOnLastWindowClosed(false); // the next test starts another program
        const PackBuilder pack{{"textures/a.wal", MakeWal(8, 8, "a")},
                               {"textures/b.wal", MakeWal(8, 8, "b")},
                               {"textures/large.wal", MakeWal(64, 64, "large")},
                               {"textures/bad.wal", ToBytes("bad")},
                               {"readme", ToBytes("bad")}};
        Put("pak0.pak", pack.Build());
        EXPECT_TRUE(program.InitInstance({textures + "a.wal"}));
    }

    const std::string textures = PathTo("pak0.pak/textures/");
};

TEST_F(FileDialogsTest, SavesOverAnEntryAndTellsAtTheEndThatArchivesAreReadOnly) {
    const Bytes before = ReadFile(PathTo("pak0.pak"));
    {
        const DialogAnswer answers( // a texture from an archive is saved under a name that the user confirms
            [&](QDialog& dialog) {
                EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "pak0.pak/textures/a.wal");
                EnterName(dialog, QString::fromStdString(textures + "b.wal"), QDialogButtonBox::Save);
            },
            Confirm("already exists", QDialogButtonBox::Yes));
        EXPECT_TRUE(Send(ID_FILE_SAVE));
    }
    {
        const std::string question = "Save changes to " + PathTo("pak0.pak") + "?";
        const DialogAnswer answers(Confirm(question.c_str(), QDialogButtonBox::Yes),
                                   Confirm("pak0.pak", QDialogButtonBox::Ok));
        EXPECT_FALSE(program.SaveAllModified());
    }
    EXPECT_EQ(ReadFile(PathTo("pak0.pak")), before);
}

// The rows of file types in Save As for a Quake II texture.
enum SaveType { ownType, everyType, bmpType, mipType, pcxType, tgaType, walType, anyType };

TEST_F(FileDialogsTest, TheFileTypeDecidesTheExtension) {
    for (const auto& [typed, type, shown, saved] : {std::tuple{"new1.bmp", pcxType, "new1.pcx", "new1.pcx"},
                                                    {"new1.BMP", tgaType, "new1.tga", "new1.tga"},
                                                    {"new2.tga", walType, "new2.wal", "new2.wal"},
                                                    {"new3.tga", everyType, "new3.tga", "new3.tga"},
                                                    {"new3.pcx", anyType, "new3.pcx", "new3.pcx"},
                                                    {"flt", tgaType, "flt.tga", "flt.tga"},
                                                    {"plain", anyType, "plain", "plain.wal"},
                                                    {"wall.v2.mip", bmpType, "wall.v2.bmp", "wall.v2.bmp"}}) {
        const DialogAnswer answer([&](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            auto* types = dialog.findChild<QComboBox*>("fileTypeCombo");
            dialog.findChild<QListView*>("listView")->clearSelection();
            name->setText(typed);
            types->setCurrentIndex(type);
            emit types->activated(type);
            EXPECT_EQ(name->text(), shown) << typed;
            Press(dialog, QDialogButtonBox::Save);
        });
        EXPECT_TRUE(Send(ID_FILE_SAVE_AS));
        EXPECT_EQ(program.GetRecentFiles().GetPaths().front(), PathTo(saved));
    }
    const DialogAnswer answers(
        [](QDialog& dialog) {
            dialog.findChild<QListView*>("listView")->clearSelection();
            dialog.findChild<QComboBox*>("fileTypeCombo")->setCurrentIndex(tgaType);
            EnterName(dialog, "typed", QDialogButtonBox::Save);
        },
        [&](QDialog& dialog) {
            EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory(), QDir(folder.path()));
            dialog.reject();
        });
    Send(ID_FILE_SAVE_AS);
    Send(ID_FILE_OPEN);
    EXPECT_EQ(program.GetRecentFiles().GetPaths().front(), PathTo("typed.tga"));
}

TEST_F(FileDialogsTest, AsksBeforeAnUnknownExtensionMakesABitmap) {
    const auto standard = [](QDialog& dialog) {
        EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(),
                    testing::HasSubstr("Bitmap Image"));
        dynamic_cast<QMessageBox&>(dialog).defaultButton()->click();
    };
    const DialogAnswer answers(
        [](QDialog& dialog) {
            EnterName(dialog, "x.png", QDialogButtonBox::Save);
            EXPECT_TRUE(dialog.isVisible());
            Press(dialog, QDialogButtonBox::Save);
        },
        standard, Press(QDialogButtonBox::Yes));
    Send(ID_FILE_SAVE_AS);
    EXPECT_EQ(ReadFile(PathTo("x.png")).at(0), std::byte{'B'});
}

TEST_F(FileDialogsTest, StartsAsTheLastOneEnded) {
    {
        const DialogAnswer answers(
            [&](QDialog& dialog) {
                EnterName(dialog, QString::fromStdString(textures), QDialogButtonBox::Open);
                FindButton(dialog, "Details").click();
                auto* preview = dialog.findChild<QCheckBox*>("enablePreview");
                EXPECT_FALSE(preview->isChecked());
                preview->click();
                dialog.reject();
            },
            [&](QDialog& dialog) {
                EXPECT_TRUE(FindButton(dialog, "Details").isChecked());
                auto* list = dialog.findChild<QStackedWidget*>("lowerList")->findChild<QTreeView*>();
                ASSERT_TRUE(list && list->model()->rowCount() == 4);
                list->setCurrentIndex(list->model()->index(3, 0));
                Press(dialog, QDialogButtonBox::Open);
            },
            [&](QDialog& dialog) { // beside the archive, with the proposed name
                EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory(), QDir(folder.path()));
                EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "bitmap1.bmp");
                dialog.reject();
            });
        Send(ID_FILE_OPEN);
        Send(ID_FILE_OPEN);
        EXPECT_EQ(program.GetRecentFiles().GetPaths().front(), textures + "large.wal");
        program.GetTemplates().front()->OpenDocumentFile({});
        Send(ID_FILE_SAVE_AS);
    }
    CKelTavloApp next(ProfileStore(PathTo("settings.ini")));
    next.InitInstance({textures + "a.wal"});
    const DialogAnswer answer([](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QCheckBox*>("enablePreview")->isChecked());
        dialog.reject();
    });
    EXPECT_TRUE(SendCommand(*next.GetMainFrame(), ID_FILE_OPEN));
}

TEST_F(FileDialogsTest, PreviewsPicturesAndNothingElse) {
    const std::size_t documents = program.GetDocuments().size();
    const Preview preview = ReadPicturePreview(textures + "large.wal");
    EXPECT_EQ(preview.picture.size(), QSize(64, 64));
    EXPECT_TRUE(preview.text.startsWith("64 x 64\n"));
    const Preview bad = ReadPicturePreview(textures + "bad.wal");
    EXPECT_TRUE(bad.picture.isNull());
    EXPECT_FALSE(bad.text.isEmpty());
    EXPECT_EQ(ReadPicturePreview(PathTo("pak0.pak/readme")).text, "This file has no preview.");
    EXPECT_EQ(ReadForPreview(PathTo("pak0.pak")), nullptr);
    EXPECT_EQ(program.GetDocuments().size(), documents);
    CDocument* document = program.OpenDocumentFile(textures + "a.wal");
    EXPECT_EQ(ReadForPreview(textures + "a.wal")->GetTexture().GetPixel(7, 0),
              dynamic_cast<TavloDocument&>(*document).GetTexture().GetPixel(7, 0));
}

namespace {

// The links and pictures of a page, in their order.
std::pair<QStringList, QStringList> ReadPage(const QTextDocument& page) {
    QStringList links, pictures;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isAnchor()) links.append(format.anchorHref());
            if (format.isImageFormat()) pictures.append(format.toImageFormat().name());
        }
    return {links, pictures};
}

std::string InOneLine(const QStringList& names) {
    return names.join(' ').toStdString();
}

} // namespace

// Links to pages and pictures that do not exist would differ from the list of files.
TEST(HelpWindowTest, PagesLeadToEachOther) {
    HelpWindow help;
    const QAbstractButton& back = FindButton(help, "&Back");
    help.ShowPage("models.html");
    EXPECT_TRUE(back.isEnabled());
    auto* topics = help.findChild<QListWidget*>();
    auto* browser = help.findChild<QTextBrowser*>();
    FindButton(help, "&Back").click();
    EXPECT_EQ(browser->source().fileName(), "index.html");
    FindButton(help, "&Forward").click();
    EXPECT_EQ(topics->currentItem()->text(), "Look at a model");
    QStringList pages;
    std::set<QString> known;
    for (int row = 0; row < topics->count(); ++row) {
        topics->setCurrentRow(row);
        EXPECT_EQ(browser->documentTitle(), topics->item(row)->text());
        pages.append(browser->source().fileName());
    }
    for (int row = 0; row < pages.size(); ++row) {
        topics->setCurrentRow(row);
        const auto [links, pictures] = ReadPage(*browser->document());
        known.insert(links.begin(), links.end());
        known.insert(pictures.begin(), pictures.end());
        const QStringList neighbors = pages.mid(row - 1, 1) + pages.mid(row + 1, 1);
        EXPECT_EQ(InOneLine(links.mid(links.size() - neighbors.size())), InOneLine(neighbors));
        EXPECT_TRUE(row > 0 || links == pages.mid(1) + neighbors) << InOneLine(links);
    }
    EXPECT_EQ(InOneLine({known.begin(), known.end()}), InOneLine(QDir(":/help").entryList()));
    for (CommandId id = 0; id <= 0xFFFF; ++id)
        EXPECT_TRUE(!HelpPageFor(id) || pages.contains(HelpPageFor(id))) << id;
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

} // namespace keltavlo
