#pragma once

#include "framework/ui/CMDIChildWnd.h"

namespace keltavlo {

class CSplitterWnd;

// A document window whose client area is a splitter.
class ChildFrame : public Dynamic<"ChildFrame", ChildFrame, CMDIChildWnd> {
public:
    CSplitterWnd& GetSplitter() const { return *splitter; }

protected:
    CView& CreateClient(CDocument& document, const CRuntimeClass& viewClass) override;
    const CommandMap& GetCommandMap() const override;

private:
    void OnWindowSplit();
    void OnNextPane(CommandId id);
    void OnUpdateNextPane(CCmdUI& state);

    CSplitterWnd* splitter = nullptr; // a child of this window
};

} // namespace keltavlo
