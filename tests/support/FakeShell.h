#pragma once

#include "resources/Shell.h"

namespace keltavlo {

// A main window that only keeps the current colour.
struct FakeShell : Shell {
    void UpdateMenus(BaseDocument*) override {}
    void UpdatePaletteBar(unsigned) override {}
    void SetPositionText(double, double) override {}
    void SetColorText(std::uint32_t) override {}
    std::uint32_t GetCurrentColor() const override { return color; }
    void SetCurrentColor(std::uint32_t newColor) override { color = newColor; }
    const std::uint32_t* GetGammaTable() const override { return nullptr; }

    std::uint32_t color = 0;
};

} // namespace keltavlo
