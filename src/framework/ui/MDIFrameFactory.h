#pragma once

#include "framework/core/DocumentView.h"
#include "framework/ui/WindowClasses.h"

namespace keltavlo {

class CMDIFrameWnd;

// Makes document windows from the class names that document types carry.
class MDIFrameFactory : public FrameFactory {
public:
    WindowClasses& GetClasses() { return classes; }
    // The frame that shows the documents made from now on; null when it ends.
    void SetMainFrame(CMDIFrameWnd* frame) { mainFrame = frame; }

    DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) override;

private:
    WindowClasses classes;
    CMDIFrameWnd* mainFrame = nullptr;
};

} // namespace keltavlo
