#pragma once

#include "framework/core/DocumentView.h"
#include "framework/ui/WindowClasses.h"

class CMDIFrameWnd;

// Makes document windows from the class names that document types carry.
class MDIFrameFactory : public FrameFactory {
public:
    // For types that name no frame or no view: what their documents hide in.
    MDIFrameFactory(const CRuntimeClass& hiddenFrame, const CRuntimeClass& hiddenView)
        : defaultFrame(hiddenFrame), defaultView(hiddenView) {}

    WindowClasses& GetClasses() { return classes; }
    // The frame that shows the documents made from now on; null when it ends.
    void SetMainFrame(CMDIFrameWnd* frame) { mainFrame = frame; }

    DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) override;

private:
    WindowClasses classes;
    const CRuntimeClass& defaultFrame;
    const CRuntimeClass& defaultView;
    CMDIFrameWnd* mainFrame = nullptr;
};
