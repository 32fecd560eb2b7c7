#include "framework/core/CDocument.h"
#include "framework/core/CWinApp.h"
#include "framework/core/StandardIds.h"
#include "framework/core/Text.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CStatusBar.h"
#include "framework/ui/MDIClientArea.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusTipEvent>
#include <QUrl>

#include <algorithm>

namespace keltavlo {

namespace {

// The name's own bytes: QUrl::toLocalFile would replace those that are not UTF-8.
std::string LocalPathOf(const QUrl& url) {
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

} // namespace

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

// The toolkit adds a maximized child's title to whatever title there is, and takes it away again later.
bool CMDIFrameWnd::event(QEvent* event) {
    if (event->type() == QEvent::WindowTitleChange) OnUpdateFrameTitle();
    if (event->type() != QEvent::StatusTip) return QMainWindow::event(event);
    statusBarWindow->ShowPrompt(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
}

// Of menus with the same mnemonic the toolkit takes each in turn; here it is always the first.
bool CMDIFrameWnd::eventFilter(QObject* watched, QEvent* event) {
    if (watched != menuBar() || event->type() != QEvent::Shortcut)
        return QMainWindow::eventFilter(watched, event);
    const auto* shortcut = static_cast<QShortcutEvent*>(event);
    if (!shortcut->isAmbiguous()) return false;
    for (QAction* menu : menuBar()->actions())
        if (QKeySequence::mnemonic(menu->text()) == shortcut->key()) {
            menuBar()->setActiveAction(menu);
            return true;
        }
    return false;
}

// Every document is asked before the first one closes: a refusal leaves all of them open.
void CMDIFrameWnd::closeEvent(QCloseEvent* event) {
    // The desktop's end of session comes here also while a dialog asks about a document, which must stay.
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
