#include "archives/ui/ArchiveFileDialog.h"

#include "archives/ui/ArchiveListView.h"
#include "archives/ui/PreviewPanel.h"
#include "framework/core/Path.h"
#include "framework/ui/ColumnSizer.h"
#include "res/ShellStrings.h"
#include "support/TestApplication.h"
#include "support/ui/DialogAnswer.h"

#include <ctime>

namespace keltavlo {

// A dialog that shows a folder with two packs, a damaged pack and a picture.
struct ArchiveFileDialogTest : WorkshopTest {
    ArchiveFileDialogTest() {
        AddStrings(ShellStrings());
        const Bytes small = PackBuilder{{"c.wal", MakeWal(8, 8)}}.Build();
        const PackBuilder large{{"textures/Wall.wal", MakeWal(16, 8)},
                                {"textures/e1/b.wal", MakeWal(8, 8)},
                                {"zebra.txt", Bytes(500)},
                                {"apple.wal", Bytes(3 * 1024 - 1)},
                                {"inner.pak", small}};
        Put("pak0.pak", large.Build());
        Put("pak1.pak", small);
        Put("bad.pak", ToBytes("this is no pack at all"));
        Put("plain.wal", MakeWal(32, 16));
    }

    void Show(const QString& selected = {}) {
        dialog.setDirectory(folder.path());
        dialog.resize(900, 700);
        dialog.show();
        if (!selected.isEmpty()) Select(selected);
    }

    // Waits for the row of that name and returns its center.
    static QPoint PlaceOf(const QAbstractItemView& view, const QString& name) {
        QRect area;
        EXPECT_TRUE(WaitFor([&] {
            const QModelIndex first = view.model()->index(0, 0, view.rootIndex());
            const auto found = view.model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly);
            area = found.isEmpty() ? QRect() : view.visualRect(found.front());
            return area.isValid();
        })) << name.toStdString();
        return area.center();
    }
    // Selects a name in the standard list.
    void Select(const QString& name) {
        QTest::mouseClick(upper.viewport(), Qt::LeftButton, {}, PlaceOf(upper, name));
    }
    // Clicks a name in the archive's list.
    void Click(const QString& name) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(View(), name));
    }
    void DoubleClick(const QString& name) {
        Click(name);
        QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(View(), name));
    }

    QAbstractItemView& View() const { return dynamic_cast<QAbstractItemView&>(*lower.currentWidget()); }
    QStringList Column(int column = 0) const {
        QStringList texts;
        for (int row = 0; row < View().model()->rowCount(); ++row)
            texts += View().model()->index(row, column).data().toString();
        return texts;
    }
    QAbstractButton& Tool(const QString& tip) const { return FindButton(dialog, tip); }
    QString NameBox() const { return dialog.findChild<QLineEdit*>("nameBox")->text(); }
    void Type(const QString& name) {
        auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_TRUE(WaitFor([&] { return dialog.isActiveWindow(); }));
        edit->setCompleter(nullptr); // its list takes the focus on the offscreen platform
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, name);
    }
    // Returns whether the dialog accepted and closed.
    bool PressOK() {
        Press(dialog, QDialogButtonBox::Open);
        return !dialog.isVisible();
    }
    std::string InnerPath() const { return ToNativePath(dialog.GetSelectedInnerPath()); }

    std::vector<std::string> previewed, missing;
    FileDialogMemory memory;
    ArchiveFileDialog dialog{nullptr,
                             {.proposal = {}, .mustExist = true},
                             {{"Packs (*.x)", "*.pak;*.wal;*.wad;"}},
                             {application.GetFileSystem(),
                              [this](const std::string& path) {
                                  previewed.push_back(path);
                                  QImage picture(4, 2, QImage::Format_RGB32);
                                  picture.fill(Qt::red);
                                  return Preview{picture, "4 x 2\n8 bytes"};
                              },
                              [this](const std::string& what) { missing.push_back(what); },
                              [](const std::string&) { return true; }, memory}};
    QListView& upper = *dialog.findChild<QListView*>("listView");
    ArchiveListView& lower = *dialog.findChild<ArchiveListView*>("lowerList");
};

TEST_F(ArchiveFileDialogTest, ListsTheSelectedArchive) {
    Show("pak0.pak");
    EXPECT_EQ(Column(), QStringList({"apple.wal", "inner.pak", "textures", "zebra.txt"}));
    EXPECT_TRUE(lower.isEnabled());
    EXPECT_EQ(Column(1), QStringList({"2KB", "0KB", "", "0KB"})) << "folders have no size";
    EXPECT_FALSE(Column(2).contains(""));
    const QAbstractItemModel& model = *View().model();
    QStringList titles;
    for (int column = 0; column < model.columnCount(); ++column) {
        titles += model.headerData(column, Qt::Horizontal).toString();
        for (const QVariant& alignment : {model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                                          model.index(0, column).data(Qt::TextAlignmentRole)})
            EXPECT_EQ((alignment.value<Qt::Alignment>() & Qt::AlignRight) != 0, column == 1);
        EXPECT_EQ(model.index(0, column).data(Qt::DecorationRole).isNull(), column > 0);
    }
    EXPECT_EQ(titles, QStringList({"Name", "Size", "Type", "Modified"}));
    const auto iconOf = [&](int row) {
        return model.index(row, 0).data(Qt::DecorationRole).value<QIcon>().cacheKey();
    };
    EXPECT_TRUE(iconOf(1) == iconOf(2) && iconOf(0) == iconOf(3) && iconOf(0) != iconOf(1))
        << "folders and files";
    Select("plain.wal");
    EXPECT_TRUE(Column().isEmpty());
    EXPECT_FALSE(lower.isEnabled());
}

TEST_F(ArchiveFileDialogTest, WalksIntoFoldersAndArchivesAndTakesTheFileChosenThere) {
    Show("pak0.pak");
    EXPECT_FALSE(PressOK()) << "an archive alone is no answer";
    DoubleClick("textures");
    EXPECT_EQ(Column(), QStringList({"e1", "Wall.wal"}));
    Click("e1");
    EXPECT_FALSE(PressOK());
    Click("Wall.wal");
    EXPECT_EQ(NameBox(), "Wall.wal");
    DoubleClick("Wall.wal");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(InnerPath(), PathTo("pak0.pak/textures/Wall.wal"));
    Select("pak1.pak");
    Select("pak0.pak");
    DoubleClick("inner.pak");
    Click("c.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_TRUE(Open<CDocument>(dialog.GetSelectedInnerPath()));
}

TEST_F(ArchiveFileDialogTest, EntersAFolderOfAFilesName) {
    Put("twins.pak", PackBuilder{{"a", Bytes(2048)}, {"a/b.wal", MakeWal(8, 8)}}.Build());
    Show("twins.pak");
    EXPECT_EQ(Column(), QStringList({"a", "a"}));
    EXPECT_EQ(Column(1), QStringList({"2KB", ""}));
    const QRect folderLine = View().visualRect(View().model()->index(1, 0));
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, folderLine.center());
    EXPECT_EQ(NameBox(), "");
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, folderLine.center());
    EXPECT_EQ(dialog.findChild<QLabel*>("lowerTitle")->text(), "Contents of twins.pak/a:");
    Click("b.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_TRUE(Open<CDocument>(dialog.GetSelectedInnerPath()));
}

TEST_F(ArchiveFileDialogTest, KeepsTheChosenNameWhenTheArchiveChanges) {
    Show("pak0.pak");
    Click("apple.wal");
    Select("plain.wal");
    EXPECT_EQ(NameBox(), "apple.wal");
    EXPECT_EQ(InnerPath(), "");
    Select("pak1.pak");
    EXPECT_EQ(InnerPath(), PathTo("pak1.pak/apple.wal"));
    Type("plain.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_EQ(InnerPath(), "") << "a typed name wins";
    EXPECT_EQ(dialog.GetPathName(), PathTo("plain.wal"));
}

TEST_F(ArchiveFileDialogTest, IsUsedWithTheKeyboardAlone) {
    Show();
    Type("pak0.pak");
    EXPECT_FALSE(PressOK()) << "shows the archive first";
    lower.setFocus();
    QWidget& view = View();
    QTest::keyClicks(&view, "tex");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(Column(), QStringList({"e1", "Wall.wal"}));
    QTest::qWait(QApplication::keyboardInputInterval() + 1); // so that the list starts a new search
    QTest::keyClicks(&view, "w");
    EXPECT_EQ(NameBox(), "Wall.wal");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(InnerPath(), PathTo("pak0.pak/textures/Wall.wal"));
}

TEST_F(ArchiveFileDialogTest, ReadsABadArchiveOnceForEachActOfTheUser) {
    Show("bad.pak");
    EXPECT_NE(TakeMessage().find("bad.pak"), std::string::npos);
    EXPECT_TRUE(Column().isEmpty());
    EXPECT_FALSE(PressOK());
    EXPECT_TRUE(messages.empty());
    Type("bad.pak/x.wal");
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(PressOK());
        TakeMessage();
    }
    Select("pak1.pak");
    EXPECT_EQ(Column(), QStringList("c.wal"));
}

TEST_F(ArchiveFileDialogTest, ReadsPreviewsOnlyWhileTheyAreSwitchedOn) {
    Show("plain.wal");
    Select("pak0.pak");
    Click("apple.wal");
    EXPECT_TRUE(previewed.empty());
    auto* area = dialog.findChild<QLabel*>("previewArea");
    const int height = area->height();
    QTest::keyClick(dialog.findChild<QCheckBox*>("enablePreview"), Qt::Key_Space);
    Click("textures");
    Click("zebra.txt");
    QCoreApplication::processEvents();
    const EventSpy painted(*area);
    Select("plain.wal");
    QCoreApplication::processEvents();
    EXPECT_FALSE(painted.region.isEmpty());
    ASSERT_EQ(previewed.size(), 3U);
    EXPECT_EQ(ToNativePath(previewed[0]), PathTo("pak0.pak/apple.wal"));
    EXPECT_EQ(previewed[2], PathTo("plain.wal"));
    EXPECT_EQ(dialog.findChild<QLabel*>("previewText")->text(), "4 x 2\n8 bytes");
    EXPECT_EQ(area->height(), height) << "as without a text";
    const QImage preview = area->grab().toImage();
    EXPECT_EQ(preview.pixelColor(preview.rect().center()), QColor(Qt::red));
    EXPECT_NE(preview.pixelColor(preview.width() / 2, 1), QColor(Qt::red)) << "as wide as the area";
}

TEST_F(ArchiveFileDialogTest, ListsATypedFolderOfAnArchiveAndNamesIt) {
    Show();
    const auto* title = dialog.findChild<QLabel*>("lowerTitle");
    for (const auto& [other, shown, typed] :
         {std::tuple{"plain.wal", "", "pak0.pak/textures"},
          {"pak1.pak", "Contents of pak1.pak:", "pak0.pak\\textures\\"}}) {
        Select(other);
        EXPECT_EQ(title->text(), shown);
        Type(typed);
        EXPECT_FALSE(PressOK());
        EXPECT_EQ(Column(), QStringList({"e1", "Wall.wal"}));
        EXPECT_EQ(title->text(), "Contents of pak0.pak/textures:");
    }
    DoubleClick("e1");
    EXPECT_EQ(title->text(), "Contents of pak0.pak/textures/e1:");
    Click("b.wal");
    EXPECT_TRUE(PressOK());
    EXPECT_EQ(InnerPath(), PathTo("pak0.pak/textures/e1/b.wal"));
}

TEST_F(ArchiveFileDialogTest, EnterClosesTheListOfCompletions) {
    Show();
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(WaitFor([&] { return dialog.isActiveWindow(); }));
    edit->setFocus();
    const QWidget& popup = *edit->completer()->popup();
    PlaceOf(upper, "pak0.pak"); // completions come from the list
    for (const char* typed : {"pak", "0.pak"}) {
        QTest::keyClicks(edit, typed);
        ASSERT_TRUE(WaitFor([&] { return popup.isVisible(); })) << typed;
    }
    QTest::keyClick(edit->completer()->popup(), Qt::Key_Return);
    EXPECT_EQ(Column().size(), 4);
    EXPECT_FALSE(popup.isVisible());
}

TEST_F(ArchiveFileDialogTest, CutsNoColumnOfTheUpperListWhileThereIsRoom) {
    Put("a rather long name of a texture.wal", {});
    dialog.setViewMode(QFileDialog::Detail);
    Show();
    auto& tree = *dialog.findChild<QTreeView*>("treeView");
    const QAbstractItemView& lines = tree;
    PlaceOf(tree, "plain.wal");
    for (const int width : {900, 1200}) {
        dialog.resize(width, 700);
        EXPECT_TRUE(WaitFor([&] {
            for (int column = 0; column < tree.model()->columnCount(); ++column)
                if (tree.columnWidth(column) < lines.sizeHintForColumn(column)) return false;
            return !tree.horizontalScrollBar()->isVisible();
        }));
    }
    tree.setColumnHidden(2, true); // as the menu of the titles does
    EXPECT_EQ(WidthOfContents(tree, 2), 0);
}

TEST_F(ArchiveFileDialogTest, DetailsOfManyLinesNeedNoScrollingAside) {
    PackBuilder pack;
    for (int i = 0; i < 200; ++i) pack.Add("file" + std::to_string(i), {});
    Put("many.pak", pack.Build());
    Show("many.pak");
    Click("file1");
    Tool("Details").click();
    EXPECT_TRUE(Tool("Details").isChecked() && !Tool("List").isChecked());
    EXPECT_EQ(View().currentIndex().row(), 1);
    Tool("Up One Level").click();
    EXPECT_EQ(missing, std::vector<std::string>{"Up One Level"});
    for (const int width : {1200, 800}) {
        dialog.resize(width, 700);
        EXPECT_TRUE(WaitFor([&] { return !View().horizontalScrollBar()->isVisible(); })) << width;
        EXPECT_TRUE(View().verticalScrollBar()->isVisible());
        const auto& tree = dynamic_cast<QTreeView&>(View());
        EXPECT_TRUE(WaitFor([&] { // shares of the width
            const int all = tree.viewport()->width();
            return tree.columnWidth(0) == 2 * all / 7 && std::abs(tree.columnWidth(1) - all / 7) < 2 &&
                   std::abs(tree.columnWidth(2) - tree.columnWidth(3)) < 2;
        }));
    }
}

TEST(ArchiveListViewTest, CutsNoNameInTheList) {
    AddStrings(ShellStrings());
    const QStyledItemDelegate plain;
    for (const char* first : {"a", "e1", "fill", "Wiwi.w"})
        for (const char* longest :
             {"floor1_1.wal", "WALL_metal.pcx", "illiterate1.tga", "tttttttttttt", "1jfj1jfj1"}) {
            ArchiveListView view(nullptr);
            view.SetItems({{first, 0}, {longest, 1}}, [](ArchiveListItem&) {});
            view.resize(600, 300);
            view.show();
            auto& list = dynamic_cast<QListView&>(*view.currentWidget());
            QStyleOptionViewItem option;
            option.initFrom(&list);
            option.decorationSize = list.iconSize();
            option.widget = &list;
            for (int row = 0; row < 2; ++row) {
                const QModelIndex index = list.model()->index(row, 0);
                EXPECT_GE(list.visualRect(index).width(), plain.sizeHint(option, index).width())
                    << first << ", " << longest;
            }
        }
}

TEST_F(ArchiveFileDialogTest, AFolderOfManyFilesKeepsTheWindowAlive) {
    constexpr int files = 3000; // with Qt's own icons they take 600 ms on an idle machine
    for (int i = 0; i < files; ++i) Put(std::to_string(i) + ".wal", {});
    const auto processorSeconds = [] { // because other programs do not affect it
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
    };
    double lastTick = processorSeconds(), longestPause = 0;
    QTimer tick;
    tick.callOnTimeout([&] {
        const double now = processorSeconds();
        longestPause = std::max(longestPause, now - std::exchange(lastTick, now));
    });
    tick.start(5);
    Show();
    EXPECT_TRUE(WaitFor([&] { return upper.model()->rowCount(upper.rootIndex()) >= files; }));
    EXPECT_LT(longestPause, 0.15) << "seconds";
}

} // namespace keltavlo
