#include "framework/ui/CControlBar.h"

#include "framework/core/Text.h"

#include <QCoreApplication>
#include <QEvent>

namespace keltavlo {

// Qt stores the state of a bar under its object name.
CControlBar::CControlBar(unsigned barId, QWidget& barWindow) : id(barId), window(barWindow) {
    window.setObjectName(QStringLiteral("bar%1").arg(barId));
}

std::string CControlBar::GetWindowText() const {
    return FromQString(window.windowTitle());
}

bool CControlBar::IsVisible() const {
    return !window.isHidden();
}

void CControlBar::Show(bool visible) {
    window.setVisible(visible);
}

void CControlBar::OnToggle(CControlBar* bar) {
    if (bar) bar->Show(!bar->IsVisible());
}

void CControlBar::OnUpdateToggle(const CControlBar* bar, CCmdUI& state) {
    state.Enable(bar != nullptr);
    state.SetCheck(bar && bar->IsVisible());
}

// Qt stops such an event at the first top-level window, which a floating bar is.
bool CControlBar::ForwardPrompt(QEvent& event) {
    return event.type() == QEvent::StatusTip && window.isWindow() && window.parentWidget() &&
           QCoreApplication::sendEvent(window.parentWidget(), &event);
}

CDialogBar::CDialogBar(unsigned barId, const std::string& title, QWidget* parent)
    : QDockWidget(ToQString(title), parent), Dynamic(barId, *this) {
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
}

bool CDialogBar::event(QEvent* event) {
    return ForwardPrompt(*event) || QDockWidget::event(event);
}

} // namespace keltavlo
