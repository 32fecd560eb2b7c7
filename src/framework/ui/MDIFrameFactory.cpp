#include "framework/ui/MDIFrameFactory.h"

#include "framework/core/CDocTemplate.h"
#include "framework/ui/CMDIChildWnd.h"

namespace keltavlo {

// The document owns the frame from now on: it ends with its views.
DocumentFrame* MDIFrameFactory::CreateFrame(const CDocTemplate& type, CDocument& document) {
    const CDocTemplate::Row& row = type.GetRow();
    const CRuntimeClass* frameClass = classes.Find(row.frameClass);
    const CRuntimeClass* viewClass = classes.Find(row.viewClass);
    if (!frameClass || !viewClass) return nullptr;
    CMDIChildWnd* frame = CreateWindowOf<CMDIChildWnd>(*frameClass).release();
    frame->Create(document, *viewClass, mainFrame);
    return frame;
}

} // namespace keltavlo
