#pragma once

#include "framework/core/DocumentView.h"
#include "framework/ui/WindowClasses.h"

namespace keltavlo {

class MDIFrame;

// Makes document windows from the class names in document types.
class MDIFrameFactory : public FrameFactory {
public:
    WindowClasses& GetClasses() { return classes; }
    // Sets the frame for the windows of all documents opened from now on, or null when the frame closes.
    void SetMainFrame(MDIFrame* frame) { mainFrame = frame; }

    DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) override;

private:
    WindowClasses classes;
    MDIFrame* mainFrame = nullptr;
};

} // namespace keltavlo
