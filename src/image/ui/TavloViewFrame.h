#pragma once

#include "framework/ui/ChildFrame.h"

// The window round an image document's views, which share its zoom.
class TavloViewFrame final : public Dynamic<"TavloViewFrame", TavloViewFrame, ChildFrame> {
public:
    static constexpr int maximumZoom = 16;

    // Screen pixels a texel: 1, 2, 4, 8 or 16.
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

    int zoom = 1;
};
