#include "framework/ui/ColorPrompt.h"

#include <QColorDialog>

namespace keltavlo {

std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb) {
    constexpr std::uint32_t channels = 0xFFFFFF;
    const QColor chosen = QColorDialog::getColor(QColor(rgb & channels), owner);
    if (!chosen.isValid()) return std::nullopt;
    return chosen.rgb() & channels;
}

std::array<std::uint32_t, 16> GetCustomColors() {
    std::array<std::uint32_t, 16> colors;
    for (int i = 0; i < static_cast<int>(colors.size()); ++i) {
        const QColor color = QColorDialog::customColor(i);
        colors[static_cast<std::size_t>(i)] =
            static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
    }
    return colors;
}

void SetCustomColors(const std::array<std::uint32_t, 16>& colors) {
    for (int i = 0; i < static_cast<int>(colors.size()); ++i) {
        const std::uint32_t color = colors[static_cast<std::size_t>(i)];
        QColorDialog::setCustomColor(i,
                                     qRgb(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                                          static_cast<int>(color >> 16 & 0xFF)));
    }
}

} // namespace keltavlo
