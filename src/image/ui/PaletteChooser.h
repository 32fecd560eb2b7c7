#pragma once

#include <QComboBox>

#include <cstdint>
#include <functional>

namespace keltavlo {

class ColorList;

// The list of what the palette bar can show: three fixed modes, then every open color table and every open
// picture's palette. The value of an item is a mode's number, or the address of a color list, which may
// belong to a document that has closed since.
class PaletteChooser final : public QComboBox {
public:
    explicit PaletteChooser(QWidget* parent);

    // Brings the items up to date with the open documents. Happens by itself before the list drops down.
    void FillChooser();
    // Values below 256 are modes.
    std::uintptr_t GetSelectedValue() const;
    // The color list of that value, if a document that is open holds it still; else null.
    static const ColorList* FindList(std::uintptr_t value);

protected:
    void showPopup() override;
};

} // namespace keltavlo
