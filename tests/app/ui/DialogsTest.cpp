#include "app/ui/HelpWindow.h"
#include "framework/ui/DialogControls.h"
#include "res/ControlIds.h"
#include "support/ui/TavloViewFixture.h"

#include <fstream>
#include <sstream>

namespace keltavlo {

namespace {

bool IsItem(const DialogControls& controls, unsigned id, const QWidget& control) try {
    return &controls.GetDlgItem(id) == &control;
} catch (const std::out_of_range&) {
    return false;
}

QString IdOf(const QWidget& control) {
    for (QWidget* parent = control.parentWidget(); parent; parent = parent->parentWidget())
        if (const auto* controls = dynamic_cast<const DialogControls*>(parent))
            for (unsigned id = 1000; id < 2850; id += id == 1100 ? 1700 : 1)
                if (IsItem(*controls, id, control)) return QString(" #%1").arg(id);
    return {};
}

// Returns nothing for a widget without texts.
QString Describe(QWidget& widget) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&widget);
    if (!face || face->role() == QAccessible::ScrollBar) return {};
    QString text;
    for (const auto part :
         {QAccessible::Name, QAccessible::Accelerator, QAccessible::Description, QAccessible::Value})
        if (const QString said = face->text(part); !said.isEmpty() && !said.contains('\n'))
            text += " '" + said + '\'';
    if (QAccessibleValueInterface* value = face->valueInterface())
        text += QString(" %1..%2 by %3")
                    .arg(value->minimumValue().toInt())
                    .arg(value->maximumValue().toInt())
                    .arg(value->minimumStepSize().toInt());
    if (!widget.statusTip().isEmpty()) text += " prompt '" + widget.statusTip() + '\'';
    if (text.isEmpty()) return text;
    const QAccessible::State state = face->state();
    for (const auto& [holds, name] : {std::pair(bool(state.disabled), " disabled"),
                                      {bool(state.checked), " checked"},
                                      {bool(state.readOnly), " read-only"},
                                      {bool(state.focusable), " focusable"}})
        if (holds) text += name;
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(face->role()) + text + IdOf(widget);
}

struct Item {
    int y, x;
    QString text;
};

// The visible controls of a window row by row, as a screen reader reads them, with their ids.
std::string ReadingOf(const QWidget& window) {
    std::vector<Item> items;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString text = widget->isVisibleTo(&window) ? Describe(*widget) : QString();
        const QPoint place = widget->mapTo(&window, widget->rect().center());
        if (!text.isEmpty()) items.push_back({place.y(), place.x(), text});
    }
    constexpr int sameRow = 8; // pixels
    std::ranges::sort(items, {}, &Item::y);
    for (std::size_t i = 1; i < items.size(); ++i)
        if (items[i].y - items[i - 1].y < sameRow) items[i].y = items[i - 1].y;
    std::ranges::sort(items, {}, [](const Item& item) { return std::tie(item.y, item.x, item.text); });
    QString reading = window.windowTitle();
    for (std::size_t i = 0; i < items.size(); ++i)
        reading += (i > 0 && items[i].y == items[i - 1].y ? "   " : "\n") + items[i].text;
    return reading.toStdString() + '\n';
}

struct DialogsTest : TavloViewFixture {
    void Read(const QWidget& window) {
        reading += ReadingOf(window) + '\n';
        for (QLabel* label : window.findChildren<QLabel*>()) {
            const bool hasText = label->isVisible() && !label->text().isEmpty();
            EXPECT_FALSE(hasText && IsPlain(label->grab().toImage())) << label->text().toStdString();
        }
    }
    // Opens the command's dialog, passes it to the function and closes it.
    void ReadDialog(CommandId id, const std::function<void(QDialog&)>& read) {
        const DialogAnswer answer([&](QDialog& dialog) {
            read(dialog);
            dialog.reject();
        });
        EXPECT_TRUE(Send(id));
    }
    void ReadPages(QDialog& dialog) {
        Read(dialog);
        for (auto* tabs : dialog.findChildren<QTabWidget*>())
            for (int page = 0; page < tabs->count(); ++page) {
                for (QWidget* above = tabs->parentWidget(); above; above = above->parentWidget())
                    if (auto* outer = qobject_cast<QTabWidget*>(above)) outer->setCurrentIndex(2);
                tabs->setCurrentIndex(page);
                Read(*tabs->currentWidget());
            }
    }

    std::string reading;
};

// The file beside this one lists what every dialog shows; a deliberate change edits it, too.
TEST_F(DialogsTest, SayWhatTheyAreKnownToSay) {
    ReadDialog(ID_APP_ABOUT, [&](QDialog& dialog) {
        Read(dialog);
        const QString information = dialog.findChild<QPlainTextEdit*>()->toPlainText();
        for (const std::string& part :
             {PathTo("settings.ini"), std::string(qVersion()), std::string("OpenGL: ")})
            EXPECT_TRUE(information.contains(part.c_str())) << part;
        EXPECT_FALSE(information.contains("not available"));
        QTextBrowser opened;
        for (const char* scheme : {"http", "mailto"})
            QDesktopServices::setUrlHandler(scheme, &opened, "setSource");
        const auto& links = dynamic_cast<DialogControls&>(dialog);
        QTest::mouseClick(&links.GetDlgItem(IDC_WEBSITE), Qt::LeftButton);
        EXPECT_EQ(opened.source(), QUrl("http://www.example.org/keltavlo"));
        QTest::keyClick(&links.GetDlgItem(IDC_EMAIL), Qt::Key_Return);
        EXPECT_EQ(opened.source(), QUrl("mailto:keltavlo@example.org"));
    });
    ReadDialog(ID_FILE_NEW, [&](QDialog& dialog) { Read(dialog); });
    ReadDialog(ID_EDIT_PROPERTIES, [&](QDialog& dialog) { ReadPages(dialog); });
    ReadDialog(ID_TOOLS_OPTIONS, [&](QDialog& dialog) {
        ReadPages(dialog);
        const DialogAnswer answer([&](QDialog& gamma) {
            Read(gamma);
            gamma.reject();
        });
        FindButton(dialog, "&Gamma Settings...").click();
    });
    ReadDialog(ID_FILE_OPEN, [&](QDialog& dialog) {
        for (const char* part : {"lowerList", "enablePreview"})
            Read(*dialog.findChild<QWidget*>(part)->parentWidget());
    });
    Read(*GetMainFrame().findChild<QWidget*>("bar59401"));
    HelpWindow help;
    help.ShowPage("index.html");
    Read(help);
    std::ostringstream known;
    known << std::ifstream(DIALOG_READINGS).rdbuf();
    EXPECT_EQ(reading, known.str());
}

} // namespace

} // namespace keltavlo
