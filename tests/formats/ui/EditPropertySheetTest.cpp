#include "formats/ui/EditPropertySheet.h"

#include "image/ui/TavloViewFixture.h"
#include "res/CommandIds.h"
#include "res/ControlIds.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace {

template <class Widget>
std::vector<Widget*> FindAll(const QWidget& window) {
    std::vector<Widget*> found;
    for (QWidget* child : window.findChildren<QWidget*>())
        if (auto* widget = dynamic_cast<Widget*>(child)) found.push_back(widget);
    return found;
}

// The sheet as a person at the keyboard meets it.
class Sheet {
public:
    explicit Sheet(QDialog& window) : dialog(window) {}

    void ShowPage(int index) { Outer().setCurrentIndex(index); }
    void ShowInnerPage(int index) {
        ShowPage(2);
        FindAll<QTabWidget>(dialog).at(1)->setCurrentIndex(index);
    }
    int GetPage() { return Outer().currentIndex(); }
    CPropertyPage& GetActivePage() {
        CPropertyPage* page = nullptr;
        for (CPropertySheet* sheet : FindAll<CPropertySheet>(dialog))
            if (sheet->isVisible()) page = sheet->GetActivePage();
        return *page;
    }
    template <class Control>
    Control& Get(unsigned id) {
        return dynamic_cast<Control&>(GetActivePage().GetDlgItem(id));
    }
    void Type(unsigned id, const QString& text) {
        auto& edit = Get<QLineEdit>(id);
        edit.selectAll();
        edit.insert(text);
    }
    void Press(QDialogButtonBox::StandardButton button) {
        FindAll<QDialogButtonBox>(dialog).front()->button(button)->click();
    }
    // Runs the action, which is to be answered by a message.
    QString Refusal(const std::function<void()>& action) {
        QString text;
        const DialogAnswer message([&](QDialog& box) {
            text = dynamic_cast<QMessageBox&>(box).text();
            box.accept();
        });
        action();
        return text;
    }
    bool IsOpen() { return dialog.isVisible(); }

private:
    QTabWidget& Outer() { return *FindAll<QTabWidget>(dialog).front(); }

    QDialog& dialog;
};

class EditPropertySheetTest : public TavloViewFixture {
protected:
    void Run(const std::function<void(Sheet&)>& whatToDo) {
        const DialogAnswer answer([&](QDialog& dialog) {
            Sheet sheet(dialog);
            whatToDo(sheet);
            if (sheet.IsOpen()) sheet.Press(QDialogButtonBox::Ok);
            if (sheet.IsOpen()) dialog.reject();
        });
        EXPECT_TRUE(Send(ID_EDIT_PROPERTIES));
    }
    // The names of the recorded changes, in the order in which they were made. Takes them back.
    std::vector<std::string> TakeChanges() {
        std::vector<std::string> names;
        for (; document->GetHistory().CanUndo(); document->GetHistory().Undo())
            names.insert(names.begin(), document->GetHistory().TopUndoName());
        return names;
    }
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(EditPropertySheetTest, ConfirmingUnchangedValuesChangesNothingHoweverUnusualTheyAre) {
    GetTexture().SetSize(2000, 1);
    GetTexture().quakeName = "m\xFCr\xFF 16 bytes..."; // neither UTF-8 nor short enough
    GetTexture().quake2 = {std::string(32, 'x'), "a\nb\x81", 0xFFFFFFFF, 0x80000001, 0x80000000};
    const Quake2Properties before = GetTexture().quake2;
    Run([](Sheet& sheet) {
        sheet.ShowPage(1);
        for (int page : {0, 1, 2}) sheet.ShowInnerPage(page);
    });
    EXPECT_FALSE(document->IsModified());
    EXPECT_TRUE(TakeChanges().empty());
    EXPECT_EQ(GetTexture().quakeName, "m\xFCr\xFF 16 bytes...");
    EXPECT_EQ(GetTexture().quake2, before);
}

TEST_F(EditPropertySheetTest, EachChangedGroupIsOneUndoableChange) {
    GetTexture().quakeName = "Wall";
    Run([](Sheet& sheet) {
        sheet.Type(IDC_WIDTH, "128");
        sheet.ShowPage(1);
        sheet.Type(IDC_NAME, "wall");
        sheet.ShowInnerPage(0);
        sheet.Type(IDC_NAME, QString::fromUtf8("mür"));
        sheet.Type(IDC_NEXT_FRAME_NAME, "next");
        sheet.Type(IDC_VALUE, "-32767");
        sheet.ShowInnerPage(1);
        QTest::keyClick(&sheet.Get<QCheckBox>(IDC_FIRST_FLAG + 2), Qt::Key_Space);
        sheet.ShowInnerPage(2);
        QTest::keyClick(&sheet.Get<QCheckBox>(IDC_FIRST_FLAG + 29), Qt::Key_Space);
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
    Run([](Sheet& sheet) { sheet.Type(IDC_HEIGHT, "1024"); });
    EXPECT_EQ(GetTexture().GetHeight(), 1024);
    EXPECT_EQ(TakeChanges(), Names{"Resize"});
    Run([&](Sheet& sheet) {
        sheet.Type(IDC_HEIGHT, "16");
        sheet.Press(QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(GetTexture().GetHeight(), 32);
    EXPECT_TRUE(TakeChanges().empty());
    Run([](Sheet& sheet) {
        sheet.Type(IDC_WIDTH, "128");
        sheet.ShowPage(1);
        sheet.ShowPage(0);
        sheet.Type(IDC_WIDTH, "64");
    });
    EXPECT_TRUE(TakeChanges().empty()) << "a value that is typed back counts again";
}

TEST_F(EditPropertySheetTest, RefusesValuesOutsideTheirRangesAndStays) {
    struct Case {
        int page, innerPage; // no inner page: -1
        unsigned control;
        QString text;
        const char* message;
    };
    const Case cases[] = {
        {0, -1, IDC_WIDTH, "0", "between 1 and 1024"},
        {0, -1, IDC_HEIGHT, "1025", "between 1 and 1024"},
        {0, -1, IDC_HEIGHT, "", "whole number"},
        {0, -1, IDC_WIDTH, "12.5", "whole number"},
        {0, -1, IDC_WIDTH, "99999999999999999999", "whole number"},
        {1, -1, IDC_NAME, QString(16, 'x'), "more than 15"},
        {1, -1, IDC_NAME, QString(8, QChar(0xFC)), "more than 15"}, // two bytes each
        {2, 0, IDC_NAME, QString(32, 'x'), "more than 31"},
        {2, 0, IDC_VALUE, "40000", "between -32767 and 32768"},
        {2, 0, IDC_VALUE, "-32768", "between -32767 and 32768"},
    };
    Run([&](Sheet& sheet) {
        for (const Case& row : cases) {
            sheet.ShowPage(row.page);
            if (row.innerPage >= 0) sheet.ShowInnerPage(row.innerPage);
            const QString old = sheet.Get<QLineEdit>(row.control).text();
            sheet.Type(row.control, row.text);
            EXPECT_TRUE(sheet.Refusal([&] { sheet.Press(QDialogButtonBox::Ok); }).contains(row.message))
                << row.text.toStdString();
            ASSERT_TRUE(sheet.IsOpen());
            sheet.Refusal([&] { sheet.ShowPage(row.page == 0 ? 1 : 0); });
            EXPECT_EQ(sheet.GetPage(), row.page) << "the page is not left either";
            EXPECT_EQ(sheet.Get<QLineEdit>(row.control).text(), row.text);
            sheet.Type(row.control, old);
        }
    });
    EXPECT_TRUE(TakeChanges().empty());
    EXPECT_FALSE(document->IsModified());
}

TEST_F(EditPropertySheetTest, StepsStayWithinTheRanges) {
    GetTexture().SetSize(1023, 2000);
    struct Step {
        unsigned edit, spin;
        QString typed; // empty: as it was
        Qt::Key key;
        const char* then;
    };
    const Step steps[] = {
        {IDC_WIDTH, IDC_WIDTH_SPIN, "", Qt::Key_Up, "1024"},
        {IDC_WIDTH, IDC_WIDTH_SPIN, "", Qt::Key_Up, "1024"},
        {IDC_WIDTH, IDC_WIDTH_SPIN, "1", Qt::Key_Down, "1"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "", Qt::Key_Up, "2000"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "", Qt::Key_Down, "1024"},
        {IDC_HEIGHT, IDC_HEIGHT_SPIN, "x", Qt::Key_Up, "1"},
    };
    Run([&](Sheet& sheet) {
        for (const auto& [edit, spin, typed, key, then] : steps) {
            if (!typed.isEmpty()) sheet.Type(edit, typed);
            QTest::keyClick(&sheet.Get<QAbstractSpinBox>(spin), key);
            EXPECT_EQ(sheet.Get<QLineEdit>(edit).text(), then);
        }
    });
    EXPECT_EQ(GetTexture().GetWidth(), 1);
    EXPECT_EQ(GetTexture().GetHeight(), 1);
}
