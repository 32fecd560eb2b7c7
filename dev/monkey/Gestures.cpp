#include "monkey/Gestures.h"

#include <QAction>
#include <QCoreApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QUrl>
#include <QWheelEvent>

namespace keltavlo {

namespace {

void AddItems(const QList<QAction*>& actions, QList<QAction*>& items) {
    for (QAction* action : actions) {
        if (QMenu* menu = action->menu()) {
            // Menus update themselves just before they are shown.
            QMetaObject::invokeMethod(menu, "aboutToShow");
            AddItems(menu->actions(), items);
        } else if (action->isEnabled() && !action->isSeparator() && action->text() != "E&xit") {
            items += action;
        }
    }
}

} // namespace

void Gestures::PressKeyIn(QWidget& widget) {
    static constexpr int keys[] = {Qt::Key_Tab,   Qt::Key_Up,       Qt::Key_Down,  Qt::Key_Left,
                                   Qt::Key_Right, Qt::Key_A,        Qt::Key_9,     Qt::Key_Minus,
                                   Qt::Key_Space, Qt::Key_Return,   Qt::Key_F6,    Qt::Key_Delete,
                                   Qt::Key_Home,  Qt::Key_PageDown, Qt::Key_Escape};
    static constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                          Qt::ControlModifier};
    const int key = AnyOf(keys);
    const QString text = key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)) : QString();
    const QPointer<QWidget> target(&widget);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, AnyOf(modifiers), text);
        if (target) QCoreApplication::sendEvent(target, &event);
    }
}

QWidget* Gestures::AnyWidget(const QMainWindow& window) {
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets.removeIf([](const QWidget* widget) { return !widget->isVisible() || !widget->isEnabled(); });
    return widgets.isEmpty() ? nullptr : AnyOf(widgets);
}

void Gestures::Click(const QMainWindow& window) {
    const QPointer<QWidget> target(AnyWidget(window));
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

void Gestures::TurnWheel(const QMainWindow& window) {
    QWidget* target = AnyWidget(window);
    if (!target) return;
    const int notch = Below(2) == 0 ? 120 : -120;
    QWheelEvent event({1, 1}, target->mapToGlobal(QPointF(1, 1)), {}, {0, notch}, Qt::NoButton,
                      Below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

void Gestures::ChooseFromMenu(const QMainWindow& window) {
    QList<QAction*> items;
    AddItems(window.menuWidget()->actions(), items);
    if (!items.isEmpty()) AnyOf(items)->trigger();
}

void Gestures::Drop(QWidget& window, const QString& path) {
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path)});
    QDropEvent event({}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace keltavlo
