#pragma once

#include <QComboBox>

#include <cstdint>
#include <functional>

namespace keltavlo {

class ColorList;

// The list of what the palette bar can show: three fixed modes, then every open color table and the palette
// of every open picture. The value of an item is the number of a mode or the address of a color list, whose
// document may have closed since.
class PaletteChooser final : public QComboBox {
public:
    explicit PaletteChooser(QWidget* parent);

    // Updates the items from the open documents. Runs automatically before the list drops down.
    void FillChooser();
    // Values below 256 are modes.
    std::uintptr_t GetSelectedValue() const;
    // Returns the color list at that address if an open document still contains it, otherwise null.
    static const ColorList* FindList(std::uintptr_t value);

protected:
    void showPopup() override;
};

} // namespace keltavlo
