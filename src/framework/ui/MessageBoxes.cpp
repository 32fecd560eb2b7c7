#include "framework/ui/MessageBoxes.h"

#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/NormalCursor.h"

#include <QApplication>
#include <QMessageBox>

namespace keltavlo {

namespace {

using Button = QMessageBox::StandardButton;

Button Ask(QMessageBox::Icon icon, const std::string& text, QMessageBox::StandardButtons buttons,
           Button standard, unsigned titleId = AFX_IDS_APP_TITLE) {
    const NormalCursor arrow;
    QMessageBox box(icon, ToQString(LoadString(titleId)), ToQString(text), buttons, GetDialogOwner());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(standard);
    return static_cast<Button>(box.exec());
}

} // namespace

QWidget* GetDialogOwner() {
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (dynamic_cast<CMDIFrameWnd*>(window) && window->isVisible()) return window;
    return nullptr;
}

void ShowMessageBox(const std::string& text, unsigned titleId) {
    Ask(QMessageBox::Warning, text, QMessageBox::Ok, QMessageBox::Ok, titleId);
}

bool AskYesNo(const std::string& text) {
    return Ask(QMessageBox::Warning, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

SaveAnswer AskSaveChanges(const std::string& name) {
    switch (Ask(QMessageBox::Question, FormatString(AFX_IDS_ASK_TO_SAVE, name.c_str()),
                QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return SaveAnswer::save;
    case QMessageBox::No:
        return SaveAnswer::discard;
    default:
        return SaveAnswer::cancel;
    }
}

} // namespace keltavlo
