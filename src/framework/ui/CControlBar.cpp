#include "framework/ui/CControlBar.h"

#include "framework/core/Text.h"

#include <QWidget>

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
