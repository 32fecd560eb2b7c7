#include "framework/ui/MessageBoxes.h"

#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/NormalCursor.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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

std::string ReloadQuestion(const ChangedFile& file) {
    const unsigned question = file.isSaving ? AFX_IDS_SAVE_OVER_CHANGE : AFX_IDS_FILE_CHANGED;
    const std::string text = FormatString(question, file.path.c_str());
    if (!file.isModified) return text;
    return text + LoadString(file.canUndo ? AFX_IDS_RELOAD_UNDO : AFX_IDS_RELOAD_REPLACES);
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

// Enter and Escape choose what loses nothing: to keep the document, or not to save it.
ChangeAnswer AskReload(const ChangedFile& file) {
    const NormalCursor arrow;
    QMessageBox box(QMessageBox::Warning, ToQString(LoadString(AFX_IDS_APP_TITLE)),
                    ToQString(ReloadQuestion(file)), QMessageBox::NoButton, GetDialogOwner());
    box.setTextFormat(Qt::PlainText);
    const auto add = [&](unsigned textId, QMessageBox::ButtonRole role) {
        return box.addButton(ToQString(LoadString(textId)), role);
    };
    const QAbstractButton* reload = add(AFX_IDS_RELOAD_BUTTON, QMessageBox::ActionRole);
    QPushButton* keep = file.isSaving ? add(AFX_IDS_OVERWRITE_BUTTON, QMessageBox::DestructiveRole)
                                      : add(AFX_IDS_KEEP_BUTTON, QMessageBox::RejectRole);
    QPushButton* harmless = file.isSaving ? box.addButton(QMessageBox::Cancel) : keep;
    box.setDefaultButton(harmless);
    box.setEscapeButton(harmless);
    box.exec();
    if (box.clickedButton() == reload) return ChangeAnswer::reload;
    return box.clickedButton() == keep ? ChangeAnswer::keep : ChangeAnswer::cancel;
}

} // namespace keltavlo
