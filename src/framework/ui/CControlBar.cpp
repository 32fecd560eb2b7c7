#include "framework/ui/CControlBar.h"

#include "framework/core/Text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace keltavlo {

// The toolkit keeps the state of a bar under its object name.
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

// The toolkit ends the way of such an event at the first window of its own.
bool CControlBar::ForwardPrompt(QEvent& event) {
    return event.type() == QEvent::StatusTip && window.isWindow() && window.parentWidget() &&
           QCoreApplication::sendEvent(window.parentWidget(), &event);
}

} // namespace keltavlo
