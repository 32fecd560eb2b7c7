#pragma once

#include <QFontMetrics>
#include <QWidget>

namespace keltavlo {

// Converts a size in dialog units to pixels: quarters of a character's average width, eighths of its height.
inline QSize FromDialogUnits(const QWidget& widget, const QSize& units) {
    const QFontMetrics metrics = widget.fontMetrics();
    return {units.width() * metrics.averageCharWidth() / 4, units.height() * metrics.height() / 8};
}

} // namespace keltavlo
