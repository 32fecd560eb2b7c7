#pragma once

#include "framework/ui/ChildFrame.h"

namespace keltavlo {

class TavloDocument;

// The window around an image document's views, which share its zoom. Copies the document's picture to the
// clipboard and pastes one from there.
class TavloViewFrame final : public Dynamic<"TavloViewFrame", TavloViewFrame, ChildFrame> {
public:
    static constexpr int maximumZoom = 16;

    // Screen pixels per texel: 1, 2, 4, 8 or 16.
    int GetZoom() const { return zoom; }
    void SetZoom(int newZoom);

protected:
    const CommandMap& GetCommandMap() const override;

private:
    template <int value>
    void OnZoom() {
        SetZoom(value);
    }
    template <int value>
    void OnUpdateZoom(CCmdUI& state) const {
        state.SetRadio(zoom == value);
    }

    // Returns null while the window closes.
    TavloDocument* GetDocument() const;
    void OnEditCopy();
    void OnEditCut();
    void OnEditPaste();
    void OnUpdateEditPaste(CCmdUI& state) const;
    // Does nothing, because there is no selection to clear.
    void OnEditClear() {}
    void OnUpdateEditClear(CCmdUI& state) const { state.Enable(false); }

    int zoom = 1;
};

} // namespace keltavlo
