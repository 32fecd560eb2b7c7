#pragma once

#include "framework/core/RuntimeClass.h"

#include <cstdint>

namespace keltavlo {

class CDocument;

// The window round a document's views, as the document sees it.
class DocumentFrame {
public:
    virtual ~DocumentFrame() = default;
    // Shows the frame and brings it to the front; a hidden document's frame stays hidden.
    virtual void ActivateFrame() = 0;
    // The first update of the views of a new or just opened document, then the showing when `visible`.
    virtual void InitialUpdate(bool visible) = 0;
    // Ends the window and its views without a question.
    virtual void DestroyFrame() = 0;
    // The title or the modified mark of the document changed.
    virtual void OnTitleChanged() = 0;
    // Whether people see the frame (false for hidden documents).
    virtual bool IsShown() const = 0;
};

// A view as its document sees it: told of changes, never asked to paint.
class DocumentView {
public:
    virtual ~DocumentView() = default;
    virtual void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) = 0;
    virtual DocumentFrame* GetFrame() const = 0;
};

class CDocTemplate;

// Makes frames and views by the class names that a document type carries. Without windows nobody implements
// it, and documents open without a frame.
class FrameFactory {
public:
    virtual ~FrameFactory() = default;
    // A frame for the document, with a view attached to it; null when the type's classes are not known.
    virtual DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) = 0;
};

} // namespace keltavlo
