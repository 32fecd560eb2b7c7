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
    // The hint that the current color has changed: the id of the command that edits it.
    static constexpr unsigned colorChanged = ID_FORMAT_COLOR;

    // Updates the runs of the menus. The document may be null.
    virtual void UpdateMenus(BaseDocument* activeDocument) = 0;
    // `hint` is colorChanged, or 0 if anything may have changed.
    virtual void UpdatePaletteBar(unsigned hint) = 0;
    // Shows a position in texels in the status bar.
    virtual void SetPositionText(double x, double y) = 0;
    // Shows a color, 0xAARRGGBB, in the status bar.
    virtual void SetColorText(std::uint32_t color) = 0;

    // The color that brushes paint and pick, 0xAARRGGBB.
    virtual std::uint32_t GetCurrentColor() const = 0;
    virtual void SetCurrentColor(std::uint32_t color) = 0;
    // Returns the channel table of 256 entries for displaying pictures, or null before the main
    // window exists.
    virtual const std::uint32_t* GetGammaTable() const = 0;

    // Lets the user edit what the games store beside the texture's pixels.
    virtual void EditProperties(BaseDocument&) {}
    // Shows a text above a bar. The user can do nothing else while the window is open. Returns null if
    // nothing is shown.
    virtual std::unique_ptr<ProgressWindow> OpenProgressWindow(const std::string&, const Progress&) {
        return nullptr;
    }
};

} // namespace keltavlo
