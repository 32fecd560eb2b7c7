#include "framework/ui/CMDIFrameWnd.h"

#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/CView.h"
#include "framework/ui/Commands.h"
#include "framework/ui/MDIClientArea.h"

#include <QAbstractEventDispatcher>
#include <QMenuBar>
#include <QShortcut>

namespace {

// Strings whose widths the panes take: a zoom, a position, a colour.
constexpr unsigned paneSamples[] = {1110, 1105, 1109};

} // namespace

CMDIFrameWnd::CMDIFrameWnd()
    : clientArea(new MDIClientArea(this)), statusBarWindow(new CStatusBar(paneSamples, this)) {
    setCentralWidget(clientArea);
    setStatusBar(statusBarWindow);
    statusBarWindow->SetPaneText(0, LoadString(AFX_IDS_IDLEMESSAGE));
    setWindowTitle(ToQString(LoadString(AFX_IDS_APP_TITLE)));
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
    for (const AcceleratorRow& row : accelerators) {
        const QKeySequence keys =
            QKeySequence::fromString(QString::fromUtf8(row.keys), QKeySequence::PortableText);
        connect(new QShortcut(keys, this), &QShortcut::activated, this,
                [this, id = row.id] { SendCommand(*this, id); });
    }
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

std::vector<CMDIChildWnd*> CMDIFrameWnd::GetChildren() const {
    return clientArea->GetChildren();
}

void CMDIFrameWnd::AddChild(CMDIChildWnd& child) {
    const std::size_t number = GetChildren().size();
    clientArea->addSubWindow(&child);
    clientArea->Place(child, static_cast<int>(number));
}

// The next child takes over that the last one filled the client area.
void CMDIFrameWnd::RemoveChild(CMDIChildWnd& child) {
    const bool maximized = activeChild == &child && child.isMaximized();
    if (activeChild == &child) SetActiveChild(nullptr);
    clientArea->removeSubWindow(&child);
    OnChildActivated();
    if (maximized && activeChild) activeChild->showMaximized();
}

void CMDIFrameWnd::MDIActivate(CMDIChildWnd& child) {
    if (child.isMinimized())
        child.showNormal();
    else
        child.show();
    clientArea->setActiveSubWindow(&child);
    OnChildActivated();
}

// The toolkit also tells when a window outside becomes active; the child then stays the one that commands
// are for.
void CMDIFrameWnd::OnChildActivated() {
    SetActiveChild(clientArea->GetCurrentChild());
}

void CMDIFrameWnd::SetActiveChild(CMDIChildWnd* child) {
    if (child == activeChild) return;
    CView* deactivated = activeChild ? activeChild->GetActiveView() : nullptr;
    activeChild = child;
    const CDocument* document = child ? child->GetActiveDocument() : nullptr;
    const CDocTemplate* type = document ? document->GetDocTemplate() : nullptr;
    ShowMenu(type ? type->GetRow().menuId : ownMenuId);
    ChangeActiveView(child ? child->GetActiveView() : nullptr, deactivated);
}

void CMDIFrameWnd::ChangeActiveView(CView* activated, CView* deactivated) {
    if (deactivated) deactivated->OnActivateView(false, activated, deactivated);
    if (!activated) return;
    activated->OnActivateView(true, activated, deactivated);
    activated->setFocus();
}

void CMDIFrameWnd::OnInitMenuPopup(CMenu& menu) {
    UpdateWindowList(menu);
}

// The windows stand below the Window menu's own items, each with a tick when it is the active one.
void CMDIFrameWnd::UpdateWindowList(CMenu& menu) {
    const std::vector<CMDIChildWnd*> children = GetChildren();
    CommandId id = ID_WINDOW_CHILD_FIRST;
    for (const CMDIChildWnd* child : children) {
        const unsigned number = id - ID_WINDOW_CHILD_FIRST + 1;
        std::string text = number < 10 ? "&" : "";
        text += std::to_string(number) + " ";
        text += MenuText(FromQString(child->windowTitle()));
        if (menu.FindItem(id)) {
            menu.ModifyItem(id, id, text);
        } else {
            if (number == 1) menu.AppendItem(ID_WINDOW_NEW, 0, {});
            menu.AppendItem(ID_WINDOW_NEW, id, text);
        }
        ++id;
    }
    for (; menu.FindItem(id); ++id) menu.RemoveItem(id);
}
