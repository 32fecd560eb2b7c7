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

constexpr const char* usualManners =
    "alignment=129 allowedAreas=15 autoDefault=0 default=0 editTriggers=0 features=7 flow=0 frameShape=0 "
    "hasSelectedText=0 horizontalScrollBarPolicy=0 isWrapping=0 openLinks=1 pageStep=10 rootIsDecorated=0 "
    "selectionMode=1 sizeGripEnabled=0 tabChangesFocus=1 textElideMode=1 textFormat=2 tickInterval=0 "
    "uniformRowHeights=1 verticalScrollBarPolicy=0 wordWrap=0";

// Returns how the widget shows its texts and what it does with input, as far as that differs from the usual.
QString MannersOf(const QWidget& widget) {
    QString manners;
    for (const QString& usual : QString(usualManners).split(' ')) {
        const QString name = usual.section('=', 0, 0);
        const QVariant value = widget.property(qPrintable(name));
        const QString manner = QString("%1=%2").arg(name).arg(value.toInt());
        if (value.isValid() && manner != usual) manners += ' ' + manner;
    }
    return manners;
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
    for (const auto& [holds, name] : {std::pair(widget.window()->focusWidget() == &widget, " with the focus"),
                                      {bool(state.disabled), " disabled"},
                                      {bool(state.checked), " checked"},
                                      {bool(state.readOnly), " read-only"},
                                      {bool(state.focusable), " focusable"}})
        if (holds) text += name;
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(face->role()) + text + IdOf(widget);
}

bool IsInLayout(const QWidget& widget) {
    const QList<QLayout*> layouts = widget.parentWidget()->findChildren<QLayout*>();
    return std::ranges::any_of(layouts, [&](const QLayout* each) { return each->indexOf(&widget) >= 0; });
}

QRect PlaceOf(const QWidget& widget, const QWidget& window) {
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

struct Item {
    QWidget* widget;
    QString text;
    int y, x;
    QRect place, grown; // in the window, and in the window when it is larger
};

constexpr QSize room(512, 512); // so large that the sizes of texts do not matter
constexpr int growth = 128;     // pixels
constexpr int belowAll = std::numeric_limits<int>::max();

// Returns the visible controls row by row, and those that contain others or have no text in a last row.
std::vector<Item> ItemsOf(QWidget& window) {
    std::vector<Item> items;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) continue;
        const QString text = Describe(*widget);
        const QString manners = MannersOf(*widget);
        const bool isPart = !qobject_cast<QScrollBar*>(widget) &&
                            (IsInLayout(*widget) || qobject_cast<QSplitter*>(widget->parentWidget()));
        const QRect place = PlaceOf(*widget, window);
        const bool isInRow = !text.isEmpty() && !widget->layout();
        const QPoint center = isInRow ? place.center() : QPoint(0, belowAll);
        const QString name = text.isEmpty() ? widget->metaObject()->className() : text;
        if (isPart || !text.isEmpty())
            items.push_back({widget, name + manners, center.y(), center.x(), place, {}});
    }
    window.window()->resize(window.window()->size() + QSize(growth, growth));
    for (Item& item : items) item.grown = PlaceOf(*item.widget, window);
    constexpr int sameRow = 8; // pixels
    std::ranges::sort(items, {}, &Item::y);
    for (std::size_t i = 1; i < items.size(); ++i)
        if (items[i].y - items[i - 1].y < sameRow) items[i].y = items[i - 1].y;
    std::ranges::sort(items, {}, [](const Item& item) {
        return std::tuple(item.y, item.x, item.text, item.place.x(), item.place.y());
    });
    return items;
}

// Numbers the edges in the order of their first appearance: equal numbers are in line.
struct Edges {
    qsizetype NumberOf(int edge) {
        if (!known.contains(edge)) known.append(edge);
        return known.indexOf(edge);
    }
    QList<int> known;
};

// The share of a larger window that an item gets, in eighths.
QString Share(const char* name, int before, int after) {
    const int eighths = qRound((after - before) * 8.0 / growth);
    return eighths == 0 ? QString() : QString(" %1%2").arg(name).arg(eighths);
}

// The visible controls of a window row by row, as a screen reader reads them, with their ids, what is in line
// with what and what moves or grows when the window grows: [0-2 x4 w4] has the left edge 0 and the right edge
// 2, and if the window grows, the control moves by half as much and becomes wider by half as much.
std::string ReadingOf(QWidget& window) {
    const QSize size = window.window()->size();
    window.window()->resize(size + room);
    const std::vector<Item> items = ItemsOf(window);
    window.window()->resize(size);
    Edges left, right;
    QString reading = window.windowTitle();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const Item& item = items[i];
        const auto& [place, grown] = std::tie(item.place, item.grown);
        reading += (i > 0 && item.y == items[i - 1].y ? "   " : "\n") + item.text +
                   QString(" [%1-%2").arg(left.NumberOf(place.left())).arg(right.NumberOf(place.right())) +
                   Share("x", place.x(), grown.x()) + Share("y", place.y(), grown.y()) +
                   Share("w", place.width(), grown.width()) + Share("h", place.height(), grown.height()) +
                   ']';
    }
    return reading.toStdString() + '\n';
}

struct DialogsTest : TavloViewFixture {
    void Read(QWidget& window) {
        reading += ReadingOf(window) + '\n';
        for (QLabel* label : window.findChildren<QLabel*>()) {
            const bool isEmpty = !label->isVisible() || (label->text().isEmpty() && label->pixmap().isNull());
            EXPECT_TRUE(label->buddy() || !label->text().contains('&')) << "would be shown";
            EXPECT_TRUE(isEmpty || !IsPlain(label->grab().toImage())) << label->text().toStdString();
        }
        ExpectTidy(window);
    }
    // Expects even margins, and controls that do not cover each other.
    static void ExpectTidy(QWidget& window) {
        for (const QLayout* layout : window.findChildren<QLayout*>()) {
            const QMargins margins = layout->contentsMargins();
            EXPECT_EQ(margins.left(), margins.right()) << window.windowTitle().toStdString();
            EXPECT_EQ(margins.top(), margins.bottom()) << window.windowTitle().toStdString();
        }
        QCoreApplication::processEvents();
        for (const QTimer* timer : window.findChildren<QTimer*>())
            EXPECT_FALSE(timer->isActive() && timer->interval() == 0) << "would keep the processor busy";
        QList<QWidget*> parts = window.findChildren<QWidget*>();
        parts.removeIf([](QWidget* part) { return !part->isVisible() || !IsInLayout(*part); });
        for (const QWidget* part : parts) {
            const std::string name = part->metaObject()->className();
            EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry())) << name;
            for (const QWidget* other : parts)
                EXPECT_FALSE(part != other && part->parent() == other->parent() &&
                             part->geometry().intersects(other->geometry()))
                    << name << " and " << other->metaObject()->className();
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
    for (const CommandId id : {ID_FILE_OPEN, ID_FILE_SAVE_AS})
        ReadDialog(id, [&](QDialog& dialog) {
            dynamic_cast<QFileDialog&>(dialog).setDirectory("/");
            // The toolkit remembers folders of other dialogs.
            FindButton(dialog, "Back").setEnabled(false);
            Read(dialog);
        });
    QApplication::clipboard()->clear(); // disables Paste
    GetMainFrame().OnIdle();
    Read(GetMainFrame());
    HelpWindow help;
    help.ShowPage("index.html");
    Read(help);
    std::ostringstream known;
    known << std::ifstream(DIALOG_READINGS).rdbuf();
    EXPECT_EQ(reading, known.str());
}

} // namespace

} // namespace keltavlo
