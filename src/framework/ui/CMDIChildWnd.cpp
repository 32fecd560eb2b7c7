#include "framework/ui/CMDIChildWnd.h"

#include "framework/core/CDocument.h"
#include "framework/core/StandardIds.h"
#include "framework/core/Text.h"
#include "framework/ui/WindowClasses.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

std::vector<CMDIChildWnd*> FramesOf(const CDocument& document) {
    std::vector<CMDIChildWnd*> frames;
    for (DocumentView* view : document.GetViews()) {
        auto* frame = dynamic_cast<CMDIChildWnd*>(view->GetFrame());
        if (frame && std::find(frames.begin(), frames.end(), frame) == frames.end()) frames.push_back(frame);
    }
    return frames;
}

std::vector<CView*> ViewsIn(const CMDIChildWnd& frame, const CDocument& document) {
    std::vector<CView*> views;
    for (DocumentView* view : document.GetViews())
        if (auto* window = dynamic_cast<CView*>(view); window && window->GetParentFrame() == &frame)
            views.push_back(window);
    return views;
}

} // namespace

CMDIChildWnd::CMDIChildWnd() {
    setWindowIcon(style()->standardIcon(QStyle::SP_FileIcon)); // instead of Qt's own icon
    // The program has accelerators of its own. Qt treats keys that are assigned twice as ambiguous and
    // ignores them.
    for (QAction* action : systemMenu()->actions()) action->setShortcuts(QList<QKeySequence>());
}

CMDIChildWnd::~CMDIChildWnd() {
    DetachViews();
    if (std::exchange(shown, false) && mdiFrame) mdiFrame->RemoveChild(*this);
}

// Qt replaces "[*]" in a title by its modified mark and shows two of them as "[*]".
QString CMDIChildWnd::MarkedTitle(const std::string& text) {
    const QString mark = QStringLiteral("[*]");
    return ToQString(text).replace(mark, mark + mark) + mark;
}

void CMDIChildWnd::UpdateTitles(const CDocument& document) {
    const std::vector<CMDIChildWnd*> frames = FramesOf(document);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const std::string number = frames.size() > 1 ? ":" + std::to_string(i + 1) : std::string();
        frames[i]->SetTitle(document.GetTitle() + number, document.IsModified());
    }
}

void CMDIChildWnd::SetTitle(const std::string& text, bool modified) {
    title = text;
    setWindowTitle(MarkedTitle(title));
    setWindowModified(modified);
    if (mdiFrame) mdiFrame->OnUpdateFrameTitle();
}

void CMDIChildWnd::Create(CDocument& document, const CRuntimeClass& viewClass, MDIFrame* owner) {
    mdiFrame = owner;
    activeView = &CreateClient(document, viewClass);
    UpdateTitles(document);
}

CView& CMDIChildWnd::CreateClient(CDocument& document, const CRuntimeClass& viewClass) {
    CView* view = CreateWindowOf<CView>(viewClass).release();
    setWidget(view);
    view->Attach(document, nullptr);
    return *view;
}

void CMDIChildWnd::SetActiveView(CView* view) {
    if (view == activeView || ending) return;
    CView* previous = activeView;
    activeView = view;
    if (mdiFrame && mdiFrame->MDIGetActive() == this) mdiFrame->ChangeActiveView(view, previous);
}

CDocument* CMDIChildWnd::GetActiveDocument() const {
    return activeView ? activeView->GetDocument() : nullptr;
}

void CMDIChildWnd::ActivateFrame() {
    if (ending) return;
    if (!shown) {
        shown = true;
        if (mdiFrame) mdiFrame->AddChild(*this);
    }
    if (!mdiFrame)
        show();
    else
        mdiFrame->MDIActivate(*this);
}

void CMDIChildWnd::InitialUpdate(bool visible) {
    if (CDocument* document = GetActiveDocument())
        for (CView* view : ViewsIn(*this, *document)) view->OnInitialUpdate();
    if (visible) ActivateFrame();
}

void CMDIChildWnd::DestroyFrame() {
    if (ending) return;
    if (!shown) {
        delete this; // no event of this window can be running
        return;
    }
    DetachViews();
    shown = false;
    if (mdiFrame) mdiFrame->RemoveChild(*this);
    deleteLater();
}

void CMDIChildWnd::DetachViews() {
    CDocument* document = GetActiveDocument();
    ending = true;
    if (!document) return;
    if (mdiFrame && mdiFrame->MDIGetActive() == this) mdiFrame->ChangeActiveView(nullptr, activeView);
    activeView = nullptr;
    const std::vector<CView*> own = ViewsIn(*this, *document);
    const bool documentStays = own.size() < document->GetViews().size();
    for (CView* view : own) view->Detach();
    if (documentStays) UpdateTitles(*document);
}

void CMDIChildWnd::OnTitleChanged() {
    if (CDocument* document = GetActiveDocument()) UpdateTitles(*document);
}

bool CMDIChildWnd::OnCmdMsg(CommandId id, CCmdUI* state) {
    return (activeView && activeView->OnCmdMsg(id, state)) || CCmdTarget::OnCmdMsg(id, state);
}

// Large enough to work in, because Qt would cascade windows at the smallest size of their contents.
QSize CMDIChildWnd::sizeHint() const {
    const QMdiArea* area = mdiArea();
    return area ? area->viewport()->size() * 2 / 3 : QMdiSubWindow::sizeHint();
}

const CommandMap& CMDIChildWnd::GetCommandMap() const {
    static const CommandMap map{Dynamic::GetCommandMap(),
                                {Command<&CMDIChildWnd::OnFileClose>(ID_FILE_CLOSE)}};
    return map;
}

// Always ignores the event, because the document and its views decide whether the window closes.
void CMDIChildWnd::closeEvent(QCloseEvent* event) {
    event->ignore();
    CDocument* document = GetActiveDocument();
    if (document && FramesOf(*document).size() == 1)
        OnFileClose();
    else
        DestroyFrame();
}

void CMDIChildWnd::OnFileClose() {
    CDocument* document = GetActiveDocument();
    if (document && document->SaveModified()) document->OnCloseDocument();
}

} // namespace keltavlo
