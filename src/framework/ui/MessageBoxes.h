#pragma once

#include "framework/core/StandardIds.h"
#include "framework/core/UserInterface.h"

class QWidget;

namespace keltavlo {

// Message boxes above the window that the user works in. Texts are shown unchanged.
void ShowMessageBox(const std::string& text, unsigned titleId = AFX_IDS_APP_TITLE);
// Asks a question with Yes and No, which is the default.
bool AskYesNo(const std::string& text);
SaveAnswer AskSaveChanges(const std::string& name);
ChangeAnswer AskReload(const ChangedFile& file);
RescueAnswer AskToOpenRescued(const std::string& name, bool isNew);

// Returns the window that dialogs open above: the topmost dialog, otherwise the main window, or null.
QWidget* GetDialogOwner();

} // namespace keltavlo
