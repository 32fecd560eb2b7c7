#include "framework/ui/CDialogBar.h"

#include "framework/core/Text.h"

namespace keltavlo {

CDialogBar::CDialogBar(unsigned barId, const std::string& title, QWidget* parent)
    : QDockWidget(ToQString(title), parent), Dynamic(barId, *this) {
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
}

bool CDialogBar::event(QEvent* event) {
    return ForwardPrompt(*event) || QDockWidget::event(event);
}

} // namespace keltavlo
