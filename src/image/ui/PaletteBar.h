#pragma once

#include "framework/ui/CControlBar.h"
#include "image/PalettePlanes.h"

#include <array>

namespace keltavlo {

class CObject;
class PaletteChooser;

// The bar that picks the current color: from the entries of a color table, from the palette of an open
// picture, or from planes of red, green, blue and alpha.
class PaletteBar final : public Dynamic<"PaletteBar", PaletteBar, CDialogBar> {
public:
    // The object names of the widgets for the plane and the strips, in the order of PalettePlanes::Part.
    static constexpr std::array<const char*, 3> partNames{"Palette A", "Palette B", "Palette C"};

    PaletteBar(unsigned barId, QWidget* parent);

    // Called when the current color or anything else in the bar changes.
    virtual void OnUpdate(const QWidget* sender, unsigned hint, CObject* hintObject);
    void SetMode(PalettePlanes::Mode mode);
    const PalettePlanes& GetPlanes() const { return planes; }

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CreateControls();
    void Renew();
    void FillChooser();
    void ChooserSelected();
    void Pick(const QPoint& point);
    void ShowColorAt(const QPoint& point) const;
    // Returns the color at a point of the bar's contents, or null.
    std::optional<Color> HitTest(const QPoint& point) const;
    PalettePlanes::Look GetLook() const;

    PalettePlanes planes;
    PaletteChooser* chooser = nullptr; // children of the contents
    std::array<QWidget*, 3> parts{};
};

} // namespace keltavlo
