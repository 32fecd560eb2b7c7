#include "framework/ui/DockedBars.h"

#include "framework/core/CWinApp.h"
#include "framework/core/SealedState.h"
#include "framework/ui/CToolBar.h"

#include <QMainWindow>
#include <QStatusBar>

#include <algorithm>

namespace keltavlo {

namespace {

constexpr std::uint32_t stateVersion = 1; // raise it when the bars change
constexpr const char* stateValue = "State";

} // namespace

void DockedBars::Dock(CToolBar& bar) {
    window.addToolBar(Qt::TopToolBarArea, &bar);
    bars.push_back(&bar);
}

void DockedBars::Dock(CDialogBar& bar, Qt::DockWidgetArea side) {
    window.addDockWidget(side, &bar);
    bars.push_back(&bar);
}

CControlBar* DockedBars::Find(unsigned barId) const {
    const auto place = std::ranges::find(bars, barId, &CControlBar::GetBarId);
    return place == bars.end() ? nullptr : *place;
}

void DockedBars::OnUpdateCmdUI() {
    for (CControlBar* bar : bars) bar->OnUpdateCmdUI();
}

void DockedBars::SaveState(const std::string& profileName) const {
    const QByteArray statusBar(1, window.statusBar()->isHidden() ? '\0' : '\1');
    CWinApp::Get().GetProfile().WriteBinary(profileName, stateValue,
                                            SealState(stateVersion, statusBar + window.saveState()));
}

// Qt crashes or hangs on a damaged state, so it gets only what comes back unchanged.
void DockedBars::LoadState(const std::string& profileName) {
    const auto sealed = CWinApp::Get().GetProfile().ReadBinary(profileName, stateValue);
    if (!sealed) return;
    const QByteArray state = UnsealState(stateVersion, *sealed);
    if (!state.isEmpty() && window.restoreState(state.mid(1)))
        window.statusBar()->setVisible(state.front() != '\0');
}

// Hides and shows the bars, because a window manager looks for a window's owner only when it maps the window.
void DockedBars::LiftFloating() {
    for (CControlBar* bar : bars) {
        const auto* widget = dynamic_cast<QWidget*>(bar);
        if (!widget || !widget->isWindow() || !bar->IsVisible()) continue;
        bar->Show(false);
        bar->Show(true);
    }
}

} // namespace keltavlo
