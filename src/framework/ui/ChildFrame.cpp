#include "framework/ui/ChildFrame.h"

#include "framework/core/StandardIds.h"
#include "framework/ui/CSplitterWnd.h"

namespace keltavlo {

CView& ChildFrame::CreateClient(CDocument& document, const CRuntimeClass& viewClass) {
    splitter = new CSplitterWnd(this);
    setWidget(splitter);
    return splitter->CreateView(0, 0, viewClass, document);
}

const CommandMap& ChildFrame::GetCommandMap() const {
    using Self = ChildFrame;
    static const CommandMap map{
        CMDIChildWnd::GetCommandMap(),
        {Command<&Self::OnWindowSplit>(ID_WINDOW_SPLIT),
         CommandRange<&Self::OnNextPane, &Self::OnUpdateNextPane>(ID_NEXT_PANE, ID_PREV_PANE)}};
    return map;
}

void ChildFrame::OnWindowSplit() {
    splitter->DoKeyboardSplit();
}

void ChildFrame::OnNextPane(CommandId id) {
    SetActiveView(splitter->GetNextPane(GetActiveView(), id == ID_PREV_PANE));
}

void ChildFrame::OnUpdateNextPane(CCmdUI& state) {
    state.Enable(splitter->GetCount(CSplitterWnd::rows) * splitter->GetCount(CSplitterWnd::columns) > 1);
}

} // namespace keltavlo
