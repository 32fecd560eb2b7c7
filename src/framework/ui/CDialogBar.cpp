#include "framework/ui/CDialogBar.h"

#include "framework/core/Text.h"

CDialogBar::CDialogBar(unsigned barId, const std::string& title, QWidget* parent)
    : QDockWidget(ToQString(title), parent), Dynamic(barId, *this) {
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
}
