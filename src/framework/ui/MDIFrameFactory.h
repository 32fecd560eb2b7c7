#pragma once

#include "framework/core/DocumentView.h"
#include "framework/ui/WindowClasses.h"

namespace keltavlo {

class MDIFrame;

// Makes document windows from the class names that document types carry.
class MDIFrameFactory : public FrameFactory {
public:
    WindowClasses& GetClasses() { return classes; }
    // The frame that shows the documents made from now on; null when it ends.
    void SetMainFrame(MDIFrame* frame) { mainFrame = frame; }

    DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) override;

private:
    WindowClasses classes;
    MDIFrame* mainFrame = nullptr;
};

} // namespace keltavlo
