#include "framework/ui/WindowedUserInterface.h"

#include "framework/core/CWinApp.h"
#include "framework/ui/CNewTypeDlg.h"
#include "framework/ui/MessageBoxes.h"
#include "framework/ui/NormalCursor.h"

#include <QGuiApplication>

namespace keltavlo {

void WindowedUserInterface::ShowMessage(const std::string& text) {
    ShowMessageBox(text);
}

SaveAnswer WindowedUserInterface::AskToSave(const std::string& name) {
    return AskSaveChanges(name);
}

// Types without a name for new documents are left out; a single one is taken without asking.
const CDocTemplate* WindowedUserInterface::PromptNewType() {
    std::vector<const CDocTemplate*> types;
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (!type->GetDocString(CDocTemplate::fileNewName).empty()) types.push_back(type);
    if (types.size() < 2) return types.empty() ? nullptr : types.front();
    const NormalCursor arrow;
    CNewTypeDlg dialog(GetDialogOwner(), std::move(types));
    return dialog.exec() == QDialog::Accepted ? dialog.GetSelected() : nullptr;
}

void WindowedUserInterface::BeginWaitCursor() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void WindowedUserInterface::EndWaitCursor() {
    QGuiApplication::restoreOverrideCursor();
}

} // namespace keltavlo
