#pragma once

#include "framework/ui/CControlBar.h"

#include <QDockWidget>

namespace keltavlo {

// A bar of controls that docks at the left or the right side of the main window, or floats. Commands are
// offered to it like to any other window.
class CDialogBar : public QDockWidget, public Dynamic<"CDialogBar", CDialogBar, CControlBar> {
public:
    CDialogBar(unsigned barId, const std::string& title, QWidget* parent);

protected:
    bool event(QEvent* event) override;
};

} // namespace keltavlo
