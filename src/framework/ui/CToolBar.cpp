#include "framework/ui/CToolBar.h"

#include "framework/core/Text.h"
#include "framework/ui/Commands.h"
#include "framework/ui/PixelIcon.h"

#include <QAction>

namespace keltavlo {

namespace {

constexpr QSize buttonPicture(16, 16);

CommandId IdOf(const QAction& button) {
    return button.data().toUInt();
}

// Returns the command's tool tip, or its prompt if it has none.
QString ToolTipOf(CommandId id) {
    const std::string tip = CommandToolTip(id);
    return ToQString(tip.empty() ? CommandPrompt(id) : tip);
}

} // namespace

CToolBar::CToolBar(unsigned barId, const std::string& title, QWidget* parent)
    : QToolBar(ToQString(title), parent), Dynamic(barId, *this) {
    setIconSize(buttonPicture);
}

void CToolBar::LoadToolBar(std::span<const ToolBarRow> rows, CCmdTarget& commandTarget) {
    target = &commandTarget;
    for (const ToolBarRow& row : rows)
        if (row.id)
            AddButton(row);
        else
            addSeparator();
    OnUpdateCmdUI();
}

void CToolBar::AddButton(const ToolBarRow& row) {
    QAction* button = addAction(MakePixelIcon(row.icon), ToolTipOf(row.id));
    button->setData(row.id);
    button->setToolTip(ToolTipOf(row.id));
    button->setStatusTip(ToQString(CommandPrompt(row.id)));
    connect(button, &QAction::triggered, this, [this, id = row.id] {
        SendCommand(*target, id);
        OnUpdateCmdUI(); // Qt checks the button by itself, even if the command was not carried out
    });
}

void CToolBar::OnUpdateCmdUI() {
    for (QAction* button : actions()) {
        if (button->isSeparator()) continue;
        const CCmdUI state = AskCommand(*target, IdOf(*button));
        button->setEnabled(state.enabled);
        if (state.checked) button->setCheckable(true);
        button->setChecked(state.checked);
        if (!state.checked) button->setCheckable(false);
    }
}

bool CToolBar::event(QEvent* event) {
    return ForwardPrompt(*event) || QToolBar::event(event);
}

} // namespace keltavlo
