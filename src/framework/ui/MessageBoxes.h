#pragma once

#include "framework/core/StandardIds.h"
#include "framework/core/UserInterface.h"

class QWidget;

namespace keltavlo {

// Message boxes over the window in which the user works now. Texts are shown unchanged.
void ShowMessageBox(const std::string& text, unsigned titleId = AFX_IDS_APP_TITLE);
// Yes or No; No is the default.
bool AskYesNo(const std::string& text);
SaveAnswer AskSaveChanges(const std::string& name);

// The window over which a dialog opens: the uppermost dialog, else the main window; null without one.
QWidget* GetDialogOwner();

} // namespace keltavlo
