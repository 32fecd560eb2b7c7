// The main window's children: which one is active, what the title and the Window menu say about them.
#include "framework/core/CDocTemplate.h"
#include "framework/core/CDocument.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CMenu.h"
#include "framework/ui/CView.h"
#include "framework/ui/MDIClientArea.h"

#include <algorithm>

namespace keltavlo {

std::vector<CMDIChildWnd*> CMDIFrameWnd::GetChildren() const {
    return clientArea->GetChildren();
}

void CMDIFrameWnd::AddChild(CMDIChildWnd& child) {
    const std::size_t number = GetChildren().size();
    clientArea->addSubWindow(&child);
    connect(&child, &QMdiSubWindow::windowStateChanged, this, [this] { OnUpdateFrameTitle(); });
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

// A minimized child stays so.
void CMDIFrameWnd::MDINext(bool previous) {
    const std::vector<CMDIChildWnd*> children = GetChildren();
    const auto place = std::find(children.begin(), children.end(), activeChild);
    if (place == children.end()) return;
    const auto index = static_cast<std::size_t>(place - children.begin());
    const std::size_t step = previous ? children.size() - 1 : 1;
    clientArea->setActiveSubWindow(children[(index + step) % children.size()]);
    OnChildActivated();
}

void CMDIFrameWnd::OnUpdateFrameTitle() {
    QString title = ToQString(LoadString(AFX_IDS_APP_TITLE));
    const CDocument* document = activeChild ? activeChild->GetActiveDocument() : nullptr;
    if (document && activeChild->isMaximized())
        title += QStringLiteral(" - [%1]").arg(activeChild->windowTitle());
    else if (document)
        title += QStringLiteral(" - ") + CMDIChildWnd::MarkedTitle(document->GetTitle());
    setWindowTitle(title);
    setWindowModified(document && document->IsModified());
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
    OnUpdateFrameTitle();
    if (!child) clientArea->setFocus();
    ChangeActiveView(child ? child->GetActiveView() : nullptr, deactivated);
}

void CMDIFrameWnd::ChangeActiveView(CView* activated, CView* deactivated) {
    if (deactivated) deactivated->OnActivateView(false, activated, deactivated);
    if (!activated) return;
    activated->OnActivateView(true, activated, deactivated);
    activated->setFocus();
}

// The windows stand below the Window menu's own items, each with a tick when it is the active one.
void CMDIFrameWnd::UpdateWindowList(CMenu& menu) {
    const std::vector<CMDIChildWnd*> children = GetChildren();
    CommandId id = ID_WINDOW_CHILD_FIRST;
    for (const CMDIChildWnd* child : children) {
        const unsigned number = id - ID_WINDOW_CHILD_FIRST + 1;
        std::string text = number < 10 ? "&" : "";
        text += std::to_string(number) + " ";
        text += MenuText(child->GetTitle());
        if (menu.FindItem(id)) {
            menu.ModifyItem(id, id, text);
        } else {
            if (number == 1) menu.AppendItem(ID_WINDOW_NEW, 0, {});
            menu.AppendItem(ID_WINDOW_NEW, id, text);
        }
        menu.SetItemPrompt(id, LoadString(AFX_IDS_MDICHILD));
        ++id;
    }
    for (; menu.FindItem(id); ++id) menu.RemoveItem(id);
}

} // namespace keltavlo
