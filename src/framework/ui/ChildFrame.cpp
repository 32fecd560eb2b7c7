#include "framework/ui/ChildFrame.h"

#include "framework/ui/CSplitterWnd.h"

CView& ChildFrame::CreateClient(CDocument& document, const CRuntimeClass& viewClass) {
    splitter = new CSplitterWnd(this);
    setWidget(splitter);
    return splitter->CreateView(0, 0, viewClass, document);
}
