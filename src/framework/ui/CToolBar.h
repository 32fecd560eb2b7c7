#pragma once

#include "framework/core/ToolBarTable.h"
#include "framework/ui/CControlBar.h"

#include <QToolBar>

namespace keltavlo {

// A toolbar made from a table. Its buttons know only command ids, send them to the target and show their
// states. It docks at any side.
class CToolBar : public QToolBar, public Dynamic<"CToolBar", CToolBar, CControlBar> {
public:
    CToolBar(unsigned barId, const std::string& title, QWidget* parent);

    void LoadToolBar(std::span<const ToolBarRow> rows, CCmdTarget& commandTarget);
    void OnUpdateCmdUI() override;

protected:
    bool event(QEvent* event) override;

private:
    void AddButton(const ToolBarRow& row);

    CCmdTarget* target = nullptr;
};

} // namespace keltavlo
