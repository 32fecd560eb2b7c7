#include "framework/core/CWinApp.h"
#include "framework/core/SealedState.h"
#include "framework/ui/CDialogBar.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/CToolBar.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace keltavlo {

namespace {

constexpr std::uint32_t barStateVersion = 1; // raise it when the bars change
constexpr const char* barStateValue = "State";

// The screen that shows most of the rectangle, or the first one.
QRect ScreenFor(const QRect& rectangle) {
    const QScreen* best = QGuiApplication::primaryScreen();
    int most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize common = screen->availableGeometry().intersected(rectangle).size();
        const int shown = common.isEmpty() ? 0 : common.width() * common.height();
        if (shown <= most) continue;
        most = shown;
        best = screen;
    }
    return best ? best->availableGeometry() : rectangle;
}

// A coordinate that lies on no desktop would overflow in sums.
int Bounded(std::int32_t coordinate) {
    constexpr int limit = 1 << 20;
    return std::clamp(coordinate, -limit, limit);
}

QRect OnScreen(const WindowPlacement::Rectangle& wanted) {
    const QRect rectangle(QPoint(Bounded(wanted.left), Bounded(wanted.top)),
                          QPoint(Bounded(wanted.right) - 1, Bounded(wanted.bottom) - 1));
    const QRect screen = ScreenFor(rectangle);
    const QSize size = rectangle.size().boundedTo(screen.size());
    const int x = std::clamp(rectangle.x(), screen.x(), screen.x() + screen.width() - size.width());
    const int y = std::clamp(rectangle.y(), screen.y(), screen.y() + screen.height() - size.height());
    return {QPoint(x, y), size};
}

} // namespace

void CMDIFrameWnd::DockControlBar(CToolBar& bar) {
    addToolBar(Qt::TopToolBarArea, &bar);
    dockedBars.push_back(&bar);
}

void CMDIFrameWnd::DockControlBar(CDialogBar& bar, Qt::DockWidgetArea side) {
    addDockWidget(side, &bar);
    dockedBars.push_back(&bar);
}

void CMDIFrameWnd::SaveBarState(const std::string& profileName) const {
    const QByteArray statusBar(1, statusBarWindow->isHidden() ? '\0' : '\1');
    CWinApp::Get().GetProfile().WriteBinary(profileName, barStateValue,
                                            SealState(barStateVersion, statusBar + saveState()));
}

// The toolkit crashes or hangs on a damaged state: it sees only what came back as it was written.
void CMDIFrameWnd::LoadBarState(const std::string& profileName) {
    const auto sealed = CWinApp::Get().GetProfile().ReadBinary(profileName, barStateValue);
    if (!sealed) return;
    const QByteArray state = UnsealState(barStateVersion, *sealed);
    if (!state.isEmpty() && restoreState(state.mid(1))) statusBarWindow->setVisible(state.front() != '\0');
}

// Window managers look for the window that another one belongs to only when they meet that other one.
void CMDIFrameWnd::LiftFloatingBars() {
    for (CControlBar* bar : dockedBars) {
        const auto* window = dynamic_cast<QWidget*>(bar);
        if (!window || !window->isWindow() || !bar->IsVisible()) continue;
        bar->Show(false);
        bar->Show(true);
    }
}

WindowPlacement CMDIFrameWnd::GetWindowPlacement() const {
    WindowPlacement placement;
    const QRect normal = isMaximized() || isMinimized() || isFullScreen() ? normalGeometry() : geometry();
    placement.normal = {normal.left(), normal.top(), normal.right() + 1, normal.bottom() + 1};
    placement.showCommand = isMinimized()   ? WindowPlacement::showMinimized
                            : isMaximized() ? WindowPlacement::showMaximized
                                            : WindowPlacement::showNormal;
    return placement;
}

void CMDIFrameWnd::SetWindowPlacement(const WindowPlacement& placement) {
    setGeometry(OnScreen(placement.normal));
}

void CMDIFrameWnd::ShowWindow(std::uint32_t showCommand) {
    switch (showCommand) {
    case WindowPlacement::showNormal:
        return showNormal();
    case WindowPlacement::showMinimized:
        return showMinimized();
    case WindowPlacement::showMaximized:
        return showMaximized();
    default:
        return show();
    }
}

CControlBar* CMDIFrameWnd::FindControlBar(unsigned barId) const {
    const auto place = std::find_if(dockedBars.begin(), dockedBars.end(),
                                    [barId](const CControlBar* bar) { return bar->GetBarId() == barId; });
    return place == dockedBars.end() ? nullptr : *place;
}

// The ids of these commands are those of the bars.
void CMDIFrameWnd::OnViewControlBar(CommandId id) {
    if (CControlBar* bar = FindControlBar(id)) bar->Show(!bar->IsVisible());
}

void CMDIFrameWnd::OnUpdateViewControlBar(CCmdUI& state) {
    const CControlBar* bar = FindControlBar(state.id);
    state.Enable(bar != nullptr);
    state.SetCheck(bar && bar->IsVisible());
}

} // namespace keltavlo
