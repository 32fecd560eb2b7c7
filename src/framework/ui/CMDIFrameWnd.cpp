#include "framework/ui/CMDIFrameWnd.h"

#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/Commands.h"
#include "framework/ui/MDIClientArea.h"

#include <QAbstractEventDispatcher>
#include <QMenuBar>
#include <QShortcut>

#include <utility>

namespace keltavlo {

namespace {

// Strings whose widths the panes take: a zoom, a position, a colour.
constexpr unsigned paneSamples[] = {1110, 1105, 1109};

} // namespace

CMDIFrameWnd::CMDIFrameWnd()
    : clientArea(new MDIClientArea(this)), statusBarWindow(new CStatusBar(paneSamples, this)) {
    setCentralWidget(clientArea);
    setStatusBar(statusBarWindow);
    statusBarWindow->SetPaneText(0, LoadString(AFX_IDS_IDLEMESSAGE));
    OnUpdateFrameTitle();
    clientArea->setFocus(); // otherwise the first control of a bar gets the focus
    setAcceptDrops(true);
    menuBar()->installEventFilter(this);
    connect(clientArea, &QMdiArea::subWindowActivated, this, [this] { OnChildActivated(); });
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { OnIdle(); });
}

CMDIFrameWnd::~CMDIFrameWnd() {
    disconnect(clientArea, nullptr, this, nullptr);
    for (CMDIChildWnd* child : GetChildren()) delete child;
}

void CMDIFrameWnd::LoadFrame(unsigned menuId, std::span<const AcceleratorRow> accelerators) {
    ownMenuId = menuId;
    ShowMenu(menuId);
    for (const AcceleratorRow& row : accelerators)
        AddKeys(row.keys, [this, id = row.id] { SendCommand(*this, id); });
    AddChildKeys();
}

template <class Action>
void CMDIFrameWnd::AddKeys(const char* keys, Action action) {
    const QKeySequence sequence =
        QKeySequence::fromString(QString::fromUtf8(keys), QKeySequence::PortableText);
    connect(new QShortcut(sequence, this), &QShortcut::activated, this, std::move(action));
}

// Keys that every main frame has, whatever its accelerators.
void CMDIFrameWnd::AddChildKeys() {
    for (const char* keys : {"Ctrl+F4", "Ctrl+Shift+F4"})
        AddKeys(keys, [this] {
            if (activeChild) activeChild->close();
        });
    AddKeys("Ctrl+F6", [this] { MDINext(false); });
    AddKeys("Ctrl+Shift+F6", [this] { MDINext(true); });
}

void CMDIFrameWnd::ShowMenu(unsigned menuId) {
    std::unique_ptr<CMenu>& menu = menus[menuId];
    if (!menu) {
        menu = std::make_unique<CMenu>(GetMenuRows(menuId), *this, this);
        menu->SetInitPopup([this](CMenu& opened) { OnInitMenuPopup(opened); });
    }
    if (currentMenu == menu.get()) return;
    currentMenu = menu.get();
    menuBar()->clear();
    for (const auto& popup : currentMenu->GetPopups()) menuBar()->addMenu(popup.get());
}

bool CMDIFrameWnd::OnCmdMsg(CommandId id, CCmdUI* state) {
    if (activeChild && activeChild->OnCmdMsg(id, state)) return true;
    if (CCmdTarget::OnCmdMsg(id, state)) return true;
    CWinApp* application = CWinApp::Find();
    return application && application->OnCmdMsg(id, state);
}

// Out of memory, items and tools stay as they are until the next idle moment.
void CMDIFrameWnd::OnIdle() noexcept try {
    if (currentMenu) currentMenu->UpdateOpenPopups();
    for (CControlBar* bar : dockedBars) bar->OnUpdateCmdUI();
} catch (const std::bad_alloc&) {
}

void CMDIFrameWnd::OnInitMenuPopup(CMenu& menu) {
    UpdateWindowList(menu);
}

} // namespace keltavlo
