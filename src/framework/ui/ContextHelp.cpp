#include "framework/ui/ContextHelp.h"

#include "framework/core/StandardIds.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CStatusBar.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QToolButton>

#include <utility>

namespace keltavlo {

namespace {

// Floating bars and menus also belong to the window.
bool BelongsTo(const QWidget* widget, const QWidget& window) {
    while (widget && widget != &window) widget = widget->parentWidget();
    return widget;
}

// Returns whether the click only opens another menu.
bool OpensMenu(const QWidget& hit, const QPoint& place) {
    if (qobject_cast<const QMenuBar*>(&hit)) return true;
    const auto* menu = qobject_cast<const QMenu*>(&hit);
    const QAction* item = menu ? menu->actionAt(place) : nullptr;
    return menu && (!item || item->menu() || item->isSeparator());
}

CommandId IdAt(QWidget& hit, const QPoint& place) {
    if (const auto* menu = qobject_cast<const QMenu*>(&hit)) return menu->actionAt(place)->data().toUInt();
    for (QWidget* widget = &hit; widget; widget = widget->parentWidget()) {
        const auto* tool = qobject_cast<const QToolButton*>(widget);
        if (tool && tool->defaultAction()) return tool->defaultAction()->data().toUInt();
        if (const auto* bar = dynamic_cast<const CControlBar*>(widget)) return bar->GetBarId();
        if (dynamic_cast<const CStatusBar*>(widget)) return ID_VIEW_STATUS_BAR;
    }
    return 0;
}

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

} // namespace

ContextHelp::ContextHelp(QWidget& askedWindow, Answer receiver)
    : window(askedWindow), answer(std::move(receiver)) {}

ContextHelp::~ContextHelp() {
    End();
}

void ContextHelp::Begin() {
    if (std::exchange(asking, true)) return;
    QGuiApplication::setOverrideCursor(Qt::WhatsThisCursor);
    QCoreApplication::instance()->installEventFilter(this);
}

void ContextHelp::End() {
    if (!std::exchange(asking, false)) return;
    QCoreApplication::instance()->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
}

bool ContextHelp::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return widget && OnMouse(*widget, static_cast<QMouseEvent*>(event)->pos(),
                                 event->type() == QEvent::MouseButtonRelease);
    case QEvent::KeyPress:
        if (!widget || IsModifier(static_cast<QKeyEvent*>(event)->key())) return false;
        End();
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    case QEvent::ApplicationDeactivate:
        End();
        return false;
    default:
        return false;
    }
}

// Answers on the release, so that no window gets half a click.
bool ContextHelp::OnMouse(QWidget& hit, const QPoint& place, bool released) {
    if (!BelongsTo(&hit, window)) {
        End();
        return false;
    }
    if (OpensMenu(hit, place)) return false;
    if (!released) return true;
    const CommandId id = IdAt(hit, place);
    End();
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    answer(id);
    return true;
}

} // namespace keltavlo
