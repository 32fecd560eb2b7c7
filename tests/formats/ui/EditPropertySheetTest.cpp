#include "formats/ui/EditPropertySheet.h"

#include "res/ControlIds.h"
#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

// Uses the sheet by the keyboard.
struct Sheet {
    // The third page contains a sheet of its own, whose pages have the numbers 2, 3 and 4 here.
    void ShowPage(int index) const {
        const auto tabs = dialog.findChildren<QTabWidget*>();
        tabs[0]->setCurrentIndex(std::min(index, 2));
        if (index >= 2) tabs[1]->setCurrentIndex(index - 2);
    }
    template <class Control>
    Control& Get(unsigned id) const {
        CPropertyPage* page = nullptr;
        for (QWidget* child : dialog.findChildren<QWidget*>())
            if (auto* sheet = dynamic_cast<CPropertySheet*>(child); sheet && sheet->isVisible())
                page = sheet->GetActivePage();
        return dynamic_cast<Control&>(page->GetDlgItem(id));
    }
    void Type(unsigned id, const QString& text) const {
        auto& edit = Get<QLineEdit>(id);
        edit.selectAll();
        edit.insert(text);
    }
    void Tick(unsigned id) const { QTest::keyClick(&Get<QCheckBox>(id), Qt::Key_Space); }

    QDialog& dialog;
};

struct EditPropertySheetTest : TavloViewFixture {
    void Run(const std::function<void(const Sheet&)>& whatToDo) {
        const DialogAnswer answer([&](QDialog& dialog) {
            whatToDo({dialog});
            if (dialog.isVisible()) Press(dialog, QDialogButtonBox::Ok);
            if (dialog.isVisible()) dialog.reject();
        });
        EXPECT_TRUE(Send(ID_EDIT_PROPERTIES));
    }
    // Undoes all recorded changes and returns their names, the oldest first.
    std::vector<std::string> TakeChanges() {
        std::vector<std::string> names;
        for (; document->GetHistory().CanUndo(); document->GetHistory().Undo())
            names.insert(names.begin(), document->GetHistory().TopUndoName());
        return names;
    }
};

using Names = std::vector<std::string>;

TEST_F(EditPropertySheetTest, ConfirmingUnchangedValuesChangesNothingHoweverUnusualTheyAre) {
    GetTexture().SetSize(2000, 1);
    GetTexture().quakeName = "m\xFCr\xFF 16 bytes..."; // neither UTF-8 nor short enough
    GetTexture().quake2 = {std::string(32, 'x'), "a\nb\x81", 0xFFFFFFFF, 0x80000001, 0x80000000};
    const Quake2Properties before = GetTexture().quake2;
    Run([](const Sheet& sheet) {
        for (const int page : {1, 2, 3, 4}) sheet.ShowPage(page);
    });
    EXPECT_FALSE(document->IsModified());
    EXPECT_TRUE(TakeChanges().empty());
    EXPECT_EQ(GetTexture().quakeName, "m\xFCr\xFF 16 bytes...");
    EXPECT_EQ(GetTexture().quake2, before);
}

TEST_F(EditPropertySheetTest, EachChangedGroupIsOneUndoableChange) {
    GetTexture().quakeName = "Wall";
    Run([](const Sheet& sheet) {
        sheet.Type(IDC_WIDTH, "128");
        sheet.ShowPage(1);
        sheet.Type(IDC_NAME, "wall");
        sheet.ShowPage(2);
        sheet.Type(IDC_NAME, QString::fromUtf8("mür"));
        sheet.Type(IDC_NEXT_FRAME_NAME, "next");
        sheet.Type(IDC_VALUE, "-32767");
        sheet.ShowPage(3);
        sheet.Tick(IDC_FIRST_FLAG + 2);
        sheet.ShowPage(4);
        sheet.Tick(IDC_FIRST_FLAG + 29);
    });
    EXPECT_EQ(GetTexture().GetWidth(), 128);
    EXPECT_EQ(GetTexture().quakeName, "wall");
    EXPECT_EQ(GetTexture().quake2, (Quake2Properties{"m\xC3\xBCr", "next", 4, 536870912, 0xFFFF8001}));
    EXPECT_EQ(TakeChanges(), (Names{"Resize", "Quake Name", "Quake II Name", "Quake II Value",
                                    "Quake II Surface", "Quake II Contents"}));
    EXPECT_EQ(GetTexture().GetWidth(), 64);
    EXPECT_EQ(GetTexture().quakeName, "Wall");
    EXPECT_EQ(GetTexture().quake2.nextFrameName, "");
}

TEST_F(EditPropertySheetTest, OnlyValuesThatDifferAtTheEndAreTaken) {
    GetTexture().quakeName = std::string(16, 'x');
    Run([](const Sheet& sheet) { sheet.Type(IDC_HEIGHT, "1024"); });
    EXPECT_EQ(GetTexture().GetHeight(), 1024);
    EXPECT_EQ(TakeChanges(), Names{"Resize"});
    Run([&](const Sheet& sheet) {
        sheet.Type(IDC_HEIGHT, "16");
        sheet.dialog.reject();
    });
    EXPECT_EQ(GetTexture().GetHeight(), 32);
    EXPECT_TRUE(TakeChanges().empty());
    Run([](const Sheet& sheet) {
        sheet.Type(IDC_WIDTH, "128");
        sheet.ShowPage(1);
        sheet.ShowPage(0);
        sheet.Type(IDC_WIDTH, "64");
    });
    EXPECT_TRUE(TakeChanges().empty()) << "a value that is typed back counts again";
}

TEST_F(EditPropertySheetTest, RefusesValuesOutsideTheirRangesAndStays) {
    const std::tuple<int, unsigned, QString, const char*> cases[] = {
        {0, IDC_WIDTH, "0", "between 1 and 1024"},
        {0, IDC_HEIGHT, "1025", "between 1 and 1024"},
        {0, IDC_HEIGHT, "", "whole number"},
        {0, IDC_WIDTH, "12.5", "whole number"},
        {0, IDC_WIDTH, "99999999999999999999", "whole number"},
        {1, IDC_NAME, QString(16, 'x'), "more than 15"},
        {1, IDC_NAME, QString(8, QChar(0xFC)), "more than 15"}, // two bytes each
        {2, IDC_NAME, QString(32, 'x'), "more than 31"},
        {2, IDC_VALUE, "40000", "between -32767 and 32768"},
        {2, IDC_VALUE, "-32768", "between -32767 and 32768"},
    };
    Run([&](const Sheet& sheet) {
        for (const auto& [page, control, text, message] : cases) {
            sheet.ShowPage(page);
            auto& edit = sheet.Get<QLineEdit>(control);
            const auto refuse = [&edit, expected = message](QDialog& box) {
                EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains(expected)) << expected;
                EXPECT_TRUE(edit.isVisible()) << "the message is about the page on top";
                box.accept();
            };
            const QString old = edit.text();
            sheet.Type(control, text);
            const DialogAnswer refusals(refuse, refuse);
            Press(sheet.dialog, QDialogButtonBox::Ok);
            ASSERT_TRUE(sheet.dialog.isVisible());
            QTest::keyClick(&edit, Qt::Key_Tab, Qt::ControlModifier); // to the next page
            QCoreApplication::processEvents();
            EXPECT_EQ(edit.text(), text) << "the page is not left either";
            EXPECT_EQ(sheet.dialog.focusWidget(), edit.focusProxy() ? edit.focusProxy() : &edit);
            sheet.Type(control, old);
        }
    });
    EXPECT_TRUE(TakeChanges().empty());
    EXPECT_FALSE(document->IsModified());
}

TEST_F(EditPropertySheetTest, StepsStayWithinTheRanges) {
    GetTexture().SetSize(1023, 2000);
    const std::tuple<unsigned, unsigned, QString, Qt::Key, QString> steps[] = {
        // an empty text changes nothing
        {IDC_WIDTH, IDC_WIDTH_SPIN, "", Qt::Key_Up, "1024"},
        {IDC_WIDTH, IDC_WIDTH_SPIN, "", Qt::Key_Up, "1024"},
        {IDC_WIDTH, IDC_WIDTH_SPIN, "1", Qt::Key_Down, "1"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "", Qt::Key_Up, "2000"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "", Qt::Key_Down, "1024"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "x", Qt::Key_Up, "1"},
    };
    Run([&](const Sheet& sheet) {
        for (const auto& [edit, spin, typed, key, then] : steps) {
            if (!typed.isEmpty()) sheet.Type(edit, typed);
            QTest::keyClick(&sheet.Get<QAbstractSpinBox>(spin), key);
            EXPECT_EQ(sheet.Get<QLineEdit>(edit).text(), then);
        }
    });
    EXPECT_EQ(GetTexture().GetWidth(), 1);
    EXPECT_EQ(GetTexture().GetHeight(), 1);
}

} // namespace keltavlo
