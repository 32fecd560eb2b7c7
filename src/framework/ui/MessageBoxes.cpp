#include "framework/ui/MessageBoxes.h"

#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/NormalCursor.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <initializer_list>
#include <iterator>
#include <vector>

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

template <class Answer>
struct Choice {
    unsigned textId;
    QMessageBox::ButtonRole role;
    Answer answer;
};

// Enter selects the choice with the number `standard`, Escape the last one.
template <class Answer>
Answer AskChoices(const std::string& question, std::initializer_list<Choice<Answer>> choices,
                  std::size_t standard) {
    const NormalCursor arrow;
    QMessageBox box(QMessageBox::Warning, ToQString(LoadString(AFX_IDS_APP_TITLE)), ToQString(question),
                    QMessageBox::NoButton, GetDialogOwner());
    box.setTextFormat(Qt::PlainText);
    std::vector<QPushButton*> buttons;
    for (const Choice<Answer>& choice : choices)
        buttons.push_back(box.addButton(ToQString(LoadString(choice.textId)), choice.role));
    box.setDefaultButton(buttons[standard]);
    box.setEscapeButton(buttons.back());
    box.exec();
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i] == box.clickedButton()) return choices.begin()[i].answer;
    return std::rbegin(choices)->answer;
}

std::string ReloadQuestion(const ChangedFile& file) {
    const unsigned question = file.isSaving ? AFX_IDS_SAVE_OVER_CHANGE : AFX_IDS_FILE_CHANGED;
    std::string text = FormatString(question, file.path.c_str());
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
    using Answer = ChangeAnswer;
    const Choice<Answer> reload{AFX_IDS_RELOAD_BUTTON, QMessageBox::ActionRole, Answer::reload};
    const std::string question = ReloadQuestion(file);
    if (!file.isSaving)
        return AskChoices<Answer>(question,
                                  {reload, {AFX_IDS_KEEP_BUTTON, QMessageBox::RejectRole, Answer::keep}}, 1);
    return AskChoices<Answer>(question,
                              {reload,
                               {AFX_IDS_OVERWRITE_BUTTON, QMessageBox::DestructiveRole, Answer::keep},
                               {AFX_IDS_CANCEL_BUTTON, QMessageBox::RejectRole, Answer::cancel}},
                              2);
}

RescueAnswer AskToOpenRescued(const std::string& name, bool isNew) {
    using Answer = RescueAnswer;
    return AskChoices<Answer>(FormatString(isNew ? AFX_IDS_RESCUED_NEW : AFX_IDS_RESCUED, name.c_str()),
                              {{AFX_IDS_OPEN_BUTTON, QMessageBox::AcceptRole, Answer::open},
                               {AFX_IDS_DISCARD_BUTTON, QMessageBox::DestructiveRole, Answer::discard},
                               {AFX_IDS_LATER_BUTTON, QMessageBox::RejectRole, Answer::later}},
                              0);
}

} // namespace keltavlo
