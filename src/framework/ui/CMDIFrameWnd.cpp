#include "framework/ui/CMDIFrameWnd.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CControlBar.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/Commands.h"
#include "framework/ui/LocalPath.h"
#include "framework/ui/MDIClientArea.h"
#include "framework/ui/NextInRing.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QShortcut>
#include <QStatusTipEvent>

#include <algorithm>
#include <utility>

namespace keltavlo {

CMDIFrameWnd::CMDIFrameWnd(std::span<const unsigned> paneSampleIds)
    : clientArea(new MDIClientArea(this)), statusBarWindow(new CStatusBar(paneSampleIds, this)) {
    setCentralWidget(clientArea);
    setStatusBar(statusBarWindow);
    statusBarWindow->SetPaneText(0, LoadString(AFX_IDS_IDLEMESSAGE));
    OnUpdateFrameTitle();
    clientArea->setFocus(); // otherwise the first control of a bar gets the focus
    setAcceptDrops(true);
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
    menus.Show(menuId);
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

// Adds the keys that every main frame has besides its accelerators.
void CMDIFrameWnd::AddChildKeys() {
    for (const char* keys : {"Ctrl+F4", "Ctrl+Shift+F4"})
        AddKeys(keys, [this] {
            if (activeChild) activeChild->close();
        });
    AddKeys("Ctrl+F6", [this] { MDINext(false); });
    AddKeys("Ctrl+Shift+F6", [this] { MDINext(true); });
}

std::unique_ptr<CMenu> CMDIFrameWnd::MakeMenu(unsigned menuId) {
    auto menu = std::make_unique<CMenu>(GetMenuRows(menuId), *this, this);
    menu->SetInitPopup([this](CMenu& opened) { OnInitMenuPopup(opened); });
    return menu;
}

bool CMDIFrameWnd::OnCmdMsg(CommandId id, CCmdUI* state) {
    if (activeChild && activeChild->OnCmdMsg(id, state)) return true;
    if (CCmdTarget::OnCmdMsg(id, state)) return true;
    CWinApp* application = CWinApp::Find();
    return application && application->OnCmdMsg(id, state);
}

// If memory runs out, items and tools stay unchanged until the next idle moment.
void CMDIFrameWnd::OnIdle() noexcept try {
    if (CMenu* menu = menus.GetCurrent()) menu->UpdateOpenPopups();
    bars.OnUpdateCmdUI();
} catch (const std::bad_alloc&) {
}

void CMDIFrameWnd::OnInitMenuPopup(CMenu& menu) {
    std::vector<std::string> titles;
    for (const CMDIChildWnd* child : GetChildren()) titles.push_back(child->GetTitle());
    UpdateWindowMenu(menu, titles);
}

std::vector<CMDIChildWnd*> CMDIFrameWnd::GetChildren() const {
    return clientArea->GetChildren();
}

void CMDIFrameWnd::AddChild(CMDIChildWnd& child) {
    const std::size_t number = GetChildren().size();
    clientArea->addSubWindow(&child);
    connect(&child, &QMdiSubWindow::windowStateChanged, this, [this] { OnUpdateFrameTitle(); });
    clientArea->Place(child, static_cast<int>(number));
}

// If the removed child was maximized, the next one becomes maximized.
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

// Does not restore a minimized child.
void CMDIFrameWnd::MDINext(bool previous) {
    CMDIChildWnd* next = NextInRing(GetChildren(), activeChild, previous);
    if (!next) return;
    clientArea->setActiveSubWindow(next);
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

// Qt also sends this signal when another top-level window becomes active. The active child then stays the
// target of commands.
void CMDIFrameWnd::OnChildActivated() {
    SetActiveChild(clientArea->GetCurrentChild());
}

void CMDIFrameWnd::SetActiveChild(CMDIChildWnd* child) {
    if (child == activeChild) return;
    CView* deactivated = activeChild ? activeChild->GetActiveView() : nullptr;
    activeChild = child;
    const CDocument* document = child ? child->GetActiveDocument() : nullptr;
    const CDocTemplate* type = document ? document->GetDocTemplate() : nullptr;
    menus.Show(type ? type->GetRow().menuId : ownMenuId);
    OnUpdateFrameTitle();
    if (!child) clientArea->setFocus();
    fileCheck.Request();
    ChangeActiveView(child ? child->GetActiveView() : nullptr, deactivated);
}

// The activation of a window that is in the background waits until the user turns to it.
void CMDIFrameWnd::CheckActiveFile() {
    CDocument* document = activeChild && isActiveWindow() ? activeChild->GetActiveDocument() : nullptr;
    if (document) document->CheckFile();
}

void CMDIFrameWnd::ChangeActiveView(CView* activated, CView* deactivated) {
    if (deactivated) deactivated->OnActivateView(false, activated, deactivated);
    if (!activated) return;
    activated->OnActivateView(true, activated, deactivated);
    activated->setFocus();
}

const CommandMap& CMDIFrameWnd::GetCommandMap() const {
    using Self = CMDIFrameWnd;
    static const CommandMap map{
        Dynamic::GetCommandMap(),
        {Command<&Self::OnWindowNew, &Self::OnUpdateWithChild>(ID_WINDOW_NEW),
         CommandRange<&Self::OnWindowArrange, &Self::OnUpdateWithChild>(ID_WINDOW_ARRANGE,
                                                                        ID_WINDOW_TILE_VERT),
         CommandRange<&Self::OnWindowActivate, &Self::OnUpdateWindowActivate>(ID_WINDOW_CHILD_FIRST,
                                                                              ID_WINDOW_CHILD_LAST),
         Command<&Self::OnViewControlBar, &Self::OnUpdateViewControlBar>(ID_VIEW_TOOLBAR),
         Command<&Self::OnViewStatusBar, &Self::OnUpdateViewStatusBar>(ID_VIEW_STATUS_BAR)}};
    return map;
}

void CMDIFrameWnd::OnUpdateWithChild(CCmdUI& state) {
    state.Enable(activeChild != nullptr);
}

void CMDIFrameWnd::OnWindowNew() {
    CDocument* document = activeChild->GetActiveDocument();
    const CDocTemplate* type = document ? document->GetDocTemplate() : nullptr;
    DocumentFrame* frame = type ? type->CreateNewFrame(*document) : nullptr;
    if (frame) frame->InitialUpdate(true);
}

void CMDIFrameWnd::OnWindowArrange(CommandId id) {
    switch (id) {
    case ID_WINDOW_ARRANGE:
        return clientArea->ArrangeIcons();
    case ID_WINDOW_CASCADE:
        return clientArea->cascadeSubWindows();
    default:
        return clientArea->Tile(id == ID_WINDOW_TILE_HORZ ? Qt::Vertical : Qt::Horizontal);
    }
}

void CMDIFrameWnd::OnWindowActivate(CommandId id) {
    const std::vector<CMDIChildWnd*> children = GetChildren();
    if (const std::size_t index = id - ID_WINDOW_CHILD_FIRST; index < children.size())
        MDIActivate(*children[index]);
}

void CMDIFrameWnd::OnUpdateWindowActivate(CCmdUI& state) {
    const std::vector<CMDIChildWnd*> children = GetChildren();
    const std::size_t index = state.id - ID_WINDOW_CHILD_FIRST;
    state.Enable(index < children.size());
    state.SetCheck(index < children.size() && children[index] == activeChild);
}

void CMDIFrameWnd::OnViewStatusBar() {
    statusBarWindow->setVisible(statusBarWindow->isHidden());
}

void CMDIFrameWnd::OnUpdateViewStatusBar(CCmdUI& state) {
    state.SetCheck(!statusBarWindow->isHidden());
}

// These commands have the same ids as the bars.
void CMDIFrameWnd::OnViewControlBar(CommandId id) {
    CControlBar::OnToggle(bars.Find(id));
}

void CMDIFrameWnd::OnUpdateViewControlBar(CCmdUI& state) {
    CControlBar::OnUpdateToggle(bars.Find(state.id), state);
}

// Qt adds a maximized child's title to the current title and removes it again later.
bool CMDIFrameWnd::event(QEvent* event) {
    if (event->type() == QEvent::WindowTitleChange) OnUpdateFrameTitle();
    if (event->type() == QEvent::WindowActivate) fileCheck.Request();
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    statusBarWindow->ShowPrompt(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

// Asks about every document before it closes the first one, so that a refusal leaves all of them open.
void CMDIFrameWnd::closeEvent(QCloseEvent* event) {
    // The end of the desktop session arrives here even while a dialog asks about a document, which
    // must stay open.
    if (QApplication::activeModalWidget()) return event->ignore();
    CWinApp* application = CWinApp::Find();
    const bool agreed = !application || application->SaveAllModified();
    event->setAccepted(agreed);
    if (agreed && application) application->CloseAllDocuments();
}

void CMDIFrameWnd::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (std::ranges::any_of(urls, &QUrl::isLocalFile)) event->acceptProposedAction();
}

void CMDIFrameWnd::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    activateWindow();
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) CWinApp::Get().OpenDocumentFile(LocalPathOf(url));
}

} // namespace keltavlo
