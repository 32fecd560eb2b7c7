#pragma once

#include "framework/core/Service.h"
#include "res/CommandIds.h"
#include "resources/ProgressWindow.h"

#include <cstdint>
#include <memory>
#include <string>

namespace keltavlo {

class BaseDocument;

// The main window as documents, brushes and views see it.
class Shell : public Service<Shell> {
public:
    // The hint of a new current color: the id of the command that edits it.
    static constexpr unsigned colorChanged = ID_FORMAT_COLOR;

    // Refreshes the dynamic menu sections; null when no document is meant.
    virtual void UpdateMenus(BaseDocument* activeDocument) = 0;
    // `hint` is colorChanged or 0, "anything may have changed".
    virtual void UpdatePaletteBar(unsigned hint) = 0;
    // The status bar's pane for positions, in texels.
    virtual void SetPositionText(double x, double y) = 0;
    // The status bar's pane for colors, 0xAARRGGBB.
    virtual void SetColorText(std::uint32_t color) = 0;

    // The color that brushes paint with and pick, 0xAARRGGBB.
    virtual std::uint32_t GetCurrentColor() const = 0;
    virtual void SetCurrentColor(std::uint32_t color) = 0;
    // 256 entries: the channel table through which pictures are shown; null before there is a main window.
    virtual const std::uint32_t* GetGammaTable() const = 0;

    // Lets the user edit what a texture document stores beside its pixels.
    virtual void EditProperties(BaseDocument&) {}
    // Shows a text above a bar. While the window is there the user can do nothing else. Null where nothing
    // is shown.
    virtual std::unique_ptr<ProgressWindow> OpenProgressWindow(const std::string&, const Progress&) {
        return nullptr;
    }
};

} // namespace keltavlo
