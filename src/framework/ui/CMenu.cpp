#include "framework/ui/CMenu.h"

#include "framework/core/CCmdTarget.h"
#include "framework/core/Text.h"
#include "framework/ui/Commands.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QStatusTipEvent>

namespace keltavlo {

namespace {

CommandId IdOf(const QAction& action) {
    return action.data().toUInt();
}

// For members of an exclusive group, Qt draws a dot instead of a check mark.
void MarkAsRadio(QAction& action, bool radio) {
    if (radio && !action.actionGroup()) (new QActionGroup(&action))->addAction(&action);
}

} // namespace

CMenu::CMenu(std::span<const MenuRow> rows, CCmdTarget& commandTarget, QWidget* promptOwner)
    : target(commandTarget), owner(promptOwner) {
    for (const MenuRow& row : rows) {
        popups.push_back(std::make_unique<QMenu>(ToQString(row.text), owner));
        Fill(*popups.back(), row.items);
    }
}

void CMenu::Fill(QMenu& popup, std::span<const MenuRow> rows) {
    allPopups.push_back(&popup);
    QObject::connect(&popup, &QMenu::aboutToShow, &popup, [this, &popup] { OnShowPopup(popup); });
    // Qt itself shows prompts only for the popups of a menu bar.
    QObject::connect(&popup, &QMenu::hovered, &popup, [this](QAction* item) { Prompt(item->statusTip()); });
    QObject::connect(&popup, &QMenu::aboutToHide, &popup, [this] { Prompt({}); });
    for (const MenuRow& row : rows)
        if (!row.text)
            popup.addSeparator();
        else if (!row.items.empty())
            Fill(*popup.addMenu(ToQString(row.text)), row.items);
        else
            popup.addAction(MakeItem(popup, row.id, row.text));
}

QAction* CMenu::MakeItem(QMenu& popup, CommandId id, const std::string& text) {
    auto* action = new QAction(&popup);
    SetItem(*action, id, text);
    QObject::connect(action, &QAction::triggered, action,
                     [this, action] { SendCommand(target, IdOf(*action)); });
    return action;
}

void CMenu::SetItem(QAction& action, CommandId id, const std::string& text) {
    action.setData(id);
    action.setText(ToQString(text));
    action.setStatusTip(ToQString(CommandPrompt(id)));
}

QMenu* CMenu::PopupOf(CommandId id) const {
    const QAction* item = FindItem(id);
    return item ? static_cast<QMenu*>(item->parent()) : nullptr;
}

QAction* CMenu::FindItem(CommandId id) const {
    for (const QMenu* popup : allPopups)
        for (QAction* action : popup->actions())
            if (!action->menu() && !action->isSeparator() && IdOf(*action) == id) return action;
    return nullptr;
}

void CMenu::ModifyItem(CommandId id, CommandId newId, const std::string& text) {
    if (QAction* item = FindItem(id)) SetItem(*item, newId, text);
}

void CMenu::InsertItem(CommandId before, CommandId id, const std::string& text) {
    if (QMenu* popup = PopupOf(before)) popup->insertAction(FindItem(before), MakeItem(*popup, id, text));
}

void CMenu::InsertItemAfter(CommandId sibling, CommandId id, const std::string& text) {
    QMenu* popup = PopupOf(sibling);
    if (!popup) return;
    const QList<QAction*> items = popup->actions();
    const qsizetype behind = items.indexOf(FindItem(sibling)) + 1;
    popup->insertAction(behind < items.size() ? items[behind] : nullptr, MakeItem(*popup, id, text));
}

void CMenu::RemoveItem(CommandId id) {
    delete FindItem(id);
}

void CMenu::SetItemPrompt(CommandId id, const std::string& prompt) {
    if (QAction* item = FindItem(id)) item->setStatusTip(ToQString(prompt));
}

void CMenu::AppendItem(CommandId sibling, CommandId id, const std::string& text) {
    QMenu* popup = PopupOf(sibling);
    if (!popup) return;
    if (id)
        popup->addAction(MakeItem(*popup, id, text));
    else if (!popup->actions().back()->isSeparator())
        popup->addSeparator();
}

void CMenu::Prompt(const QString& text) {
    QStatusTipEvent event(text);
    QCoreApplication::sendEvent(owner, &event);
}

void CMenu::OnShowPopup(QMenu& popup) {
    if (initPopup) initPopup(*this);
    UpdatePopup(popup);
}

void CMenu::UpdatePopup(QMenu& popup) {
    for (QAction* action : popup.actions())
        if (!action->isSeparator() && !action->menu()) UpdateItem(*action);
}

void CMenu::UpdateItem(QAction& action) {
    const CCmdUI state = AskCommand(target, IdOf(action));
    action.setEnabled(state.enabled);
    if (state.checked || state.radio) action.setCheckable(true);
    MarkAsRadio(action, state.radio);
    action.setChecked(state.checked);
    if (!state.checked && !action.actionGroup()) action.setCheckable(false);
    if (state.text) action.setText(ToQString(*state.text));
}

void CMenu::UpdateOpenPopups() {
    for (QMenu* popup : allPopups)
        if (popup->isVisible()) UpdatePopup(*popup);
}

void CMenu::UpdateAll() {
    if (initPopup) initPopup(*this);
    for (QMenu* popup : allPopups) UpdatePopup(*popup);
}

} // namespace keltavlo
