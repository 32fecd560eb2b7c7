#pragma once

#include "framework/ui/CDialog.h"

#include <string>

namespace keltavlo {

// Says what program this is, and on what it runs.
class CAboutDialog : public CDialog {
public:
    CAboutDialog(QWidget* owner, const std::string& settingsPath);
};

} // namespace keltavlo
