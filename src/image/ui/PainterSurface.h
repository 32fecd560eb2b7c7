#pragma once

#include "image/picture/DrawingSurface.h"

#include <QPainter>

namespace keltavlo {

// Paints on a widget or an image while it exists.
class PainterSurface final : public DrawingSurface {
public:
    explicit PainterSurface(QPaintDevice& device) : painter(&device) {}

    void StretchBits(const DibSection& bitmap, const QRect& destination) override;

private:
    QPainter painter;
};

} // namespace keltavlo
