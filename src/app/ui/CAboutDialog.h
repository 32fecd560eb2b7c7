#pragma once

#include "framework/ui/CDialog.h"

#include <string>

namespace keltavlo {

// Shows the program's version and the system that it runs on.
class CAboutDialog : public CDialog {
public:
    CAboutDialog(QWidget* owner, const std::string& settingsPath);
};

} // namespace keltavlo
