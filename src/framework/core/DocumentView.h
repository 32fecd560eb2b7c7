#pragma once

#include "framework/core/RuntimeClass.h"

#include <cstdint>

namespace keltavlo {

class CDocument;

// The window around a document's views, as the document sees it.
class DocumentFrame {
public:
    virtual ~DocumentFrame() = default;
    // Shows the frame and brings it to the front; a hidden document's frame stays hidden.
    virtual void ActivateFrame() = 0;
    // Updates the views of a new or newly opened document for the first time, then shows the
    // frame if `visible`.
    virtual void InitialUpdate(bool visible) = 0;
    // Closes the window and its views without asking.
    virtual void DestroyFrame() = 0;
    // Called when the document's title or modified mark changes.
    virtual void OnTitleChanged() = 0;
    // Returns whether the user sees the frame (false for hidden documents).
    virtual bool IsShown() const = 0;
};

// A view, as its document sees it: the document reports changes to it and never asks it to paint.
class DocumentView {
public:
    virtual ~DocumentView() = default;
    virtual void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) = 0;
    virtual DocumentFrame* GetFrame() const = 0;
};

class CDocTemplate;

// Makes frames and views from the class names in a document type. A program without windows has no factory,
// and its documents open without a frame.
class FrameFactory {
public:
    virtual ~FrameFactory() = default;
    // Makes a frame for the document with a view attached. Returns null if the type's classes
    // are not registered.
    virtual DocumentFrame* CreateFrame(const CDocTemplate& type, CDocument& document) = 0;
};

} // namespace keltavlo
