#include "framework/ui/ColorPrompt.h"

#include <QColorDialog>

std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb) {
    constexpr std::uint32_t channels = 0xFFFFFF;
    const QColor chosen = QColorDialog::getColor(QColor(rgb & channels), owner);
    if (!chosen.isValid()) return std::nullopt;
    return chosen.rgb() & channels;
}
