// Ten thousand things that a person might do, in an order that no person would choose. The seed can be given
// in KELTAVLO_MONKEY_SEED, the number of events in KELTAVLO_MONKEY_EVENTS.
#include "builders/ModelBuilder.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMenu.h"
#include "res/CommandIds.h"
#include "support/ui/ProgramFixture.h"
#include "support/ui/ToolkitComplaints.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include <map>
#include <random>

namespace {

constexpr int ordinaryEvents = 2000;    // the whole ten thousand take their time under a sanitizer
constexpr qint64 longestEvent = 10'000; // milliseconds
constexpr std::size_t mostDocuments = 12;
constexpr int patienceWithADialog = 12; // things done to it before it is sent away

int FromEnvironment(const char* name, int otherwise) {
    bool known = false;
    const int value = qEnvironmentVariableIntValue(name, &known);
    return known ? value : otherwise;
}

class MonkeyTest : public ProgramFixture {
protected:
    MonkeyTest() {
        PackBuilder pack;
        pack.Add("textures/wall.wal", MakeWal(16, 16));
        names = {Put("floor.wal", MakeWal(64, 32)), Put("odd.wal", MakeWal(60, 61)),
                 Put("cut.wal", CutTo(MakeWal(64, 32), 500)), Put("model.md2", Md2Builder{}.Build()),
                 Put("pack.pak", pack.Build())};
        for (const char* name : {"pack.pak/textures/wall.wal", "missing.tga", "saved.wal", "saved.mip",
                                 "saved.pcx", "saved.tga", "saved.bmp", "\xE4\xFF.wal"})
            names.push_back(PathTo(name));
        WatchForDialogs();
        EXPECT_TRUE(program.InitInstance({names[0]}));
    }

    int Below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    template <class Items>
    auto AnyOf(const Items& items) {
        return *std::next(std::begin(items), Below(static_cast<int>(std::size(items))));
    }

    // Dialogs and menus run loops of their own: whoever watches for them starts the next watch before acting.
    void WatchForDialogs() {
        QTimer::singleShot(0, &watcher, [this] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                popup->close();
            } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                WatchForDialogs();
                return ActOn(*dialog);
            } else {
                lastDialog = nullptr;
            }
            WatchForDialogs();
        });
    }

    void ActOn(QDialog& dialog) {
        if (std::exchange(lastDialog, &dialog) != &dialog) {
            patience = patienceWithADialog;
            ++dialogs[dialog.metaObject()->className()];
        }
        if (--patience <= 0) return dialog.reject();
        if (auto* file = qobject_cast<QFileDialog*>(&dialog)) return AnswerFileDialog(*file);
        const QList<QAbstractButton*> buttons = dialog.findChildren<QAbstractButton*>();
        const QList<QLineEdit*> edits = dialog.findChildren<QLineEdit*>();
        if (Below(3) == 0 && !edits.isEmpty())
            PressKeyIn(*AnyOf(edits));
        else if (Below(4) != 0 && !buttons.isEmpty())
            AnyOf(buttons)->click();
        else
            dialog.reject();
    }

    // Only the test's own folder is touched.
    void AnswerFileDialog(QFileDialog& dialog) {
        if (Below(3) == 0) return dialog.reject();
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(AnyOf(names)));
        QMetaObject::invokeMethod(&dialog, "accept");
    }

    void PressKeyIn(QWidget& widget) {
        static constexpr int keys[] = {Qt::Key_Tab,   Qt::Key_Up,       Qt::Key_Down,  Qt::Key_Left,
                                       Qt::Key_Right, Qt::Key_A,        Qt::Key_9,     Qt::Key_Minus,
                                       Qt::Key_Space, Qt::Key_Return,   Qt::Key_F6,    Qt::Key_Delete,
                                       Qt::Key_Home,  Qt::Key_PageDown, Qt::Key_Escape};
        static constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier,
                                                              Qt::ShiftModifier, Qt::ControlModifier};
        const int key = AnyOf(keys);
        const QString text = key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)) : QString();
        const QPointer<QWidget> target(&widget);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, AnyOf(modifiers), text);
            if (target) QCoreApplication::sendEvent(target, &event);
        }
    }

    QWidget* AnyWidget() {
        QList<QWidget*> widgets = GetMainFrame().findChildren<QWidget*>();
        widgets.removeIf([](QWidget* widget) { return !widget->isVisible() || !widget->isEnabled(); });
        return widgets.isEmpty() ? nullptr : AnyOf(widgets);
    }

    void Click() {
        const QPointer<QWidget> target(AnyWidget());
        if (!target) return;
        const Qt::MouseButton button = Below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
        for (const QEvent::Type type :
             {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
            if (!target) return;
            const QPointF place(Below(target->width() + 40) - 20, Below(target->height() + 40) - 20);
            QMouseEvent event(type, place, target->mapToGlobal(place),
                              type == QEvent::MouseMove ? Qt::NoButton : button,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &event);
        }
    }

    void TurnWheel() {
        QWidget* target = AnyWidget();
        if (!target) return;
        const int notch = Below(2) == 0 ? 120 : -120;
        QWheelEvent event({1, 1}, target->mapToGlobal(QPointF(1, 1)), {}, {0, notch}, Qt::NoButton,
                          Below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &event);
    }

    static void AddItems(const QList<QAction*>& actions, QList<QAction*>& items) {
        for (QAction* action : actions) {
            if (action->menu())
                AddItems(action->menu()->actions(), items);
            else if (action->isEnabled() && !action->isSeparator() && action->text() != "E&xit")
                items += action;
        }
    }

    // Any item of the menus but the one that ends the program.
    void ChooseFromMenu() {
        GetMainFrame().GetCurrentMenu().UpdateAll();
        QList<QAction*> items;
        AddItems(GetMainFrame().menuBar()->actions(), items);
        if (!items.isEmpty()) AnyOf(items)->trigger();
    }

    void CloseActive() {
        if (CMDIChildWnd* active = GetMainFrame().MDIGetActive()) active->close();
    }

    void DoAnything() {
        const int choice = Below(100);
        if (program.GetDocuments().size() > mostDocuments)
            CloseActive();
        else if (choice < 40)
            ChooseFromMenu();
        else if (choice < 65)
            Click();
        else if (choice < 80 && QApplication::focusWidget())
            PressKeyIn(*QApplication::focusWidget());
        else if (choice < 88)
            TurnWheel();
        else if (choice < 95)
            program.OpenDocumentFile(AnyOf(names));
        else if (choice < 98)
            CloseActive();
        else
            GetMainFrame().resize(400 + Below(800), 300 + Below(600));
        QCoreApplication::processEvents();
    }

    const ToolkitComplaints complaints;
    QObject watcher; // looks for dialogs as long as it lives
    std::vector<std::string> names;
    std::mt19937 random{static_cast<unsigned>(FromEnvironment("KELTAVLO_MONKEY_SEED", 1))};
    const QDialog* lastDialog = nullptr; // only compared
    int patience = 0;
    std::map<std::string, int> dialogs; // how often each kind was seen
};

TEST_F(MonkeyTest, NeitherCrashesNorHangsNorMakesTheToolkitComplain) {
    const int events = FromEnvironment("KELTAVLO_MONKEY_EVENTS", ordinaryEvents);
    for (int i = 0; i < events; ++i) {
        QElapsedTimer clock;
        clock.start();
        DoAnything();
        ASSERT_LT(clock.elapsed(), longestEvent) << "event " << i;
        ASSERT_TRUE(ToolkitComplaints::texts.empty())
            << "event " << i << ": " << ToolkitComplaints::texts.front();
    }
    for (const char* kind : {"QColorDialog", "QDialog", "QFileDialog", "QMessageBox"})
        EXPECT_GT(dialogs[kind], 0) << "never asked: " << kind;
}

} // namespace
