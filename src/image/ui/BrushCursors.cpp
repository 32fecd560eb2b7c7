#include "image/ui/BrushCursors.h"

#include "resources/Brush.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace keltavlo {

namespace {

constexpr int side = 24;
constexpr QPointF tip(2.5, 21.5); // center of the pixel

// A tool in coordinates along its axis: the tip is the origin, and the x axis points up the handle.
struct ToolShape {
    QPainterPath body; // white
    QPainterPath dark; // parts of it that are black
};

ToolShape PencilShape() {
    ToolShape shape;
    shape.body.addPolygon(QPolygonF{{0, 0}, {7, 2.6}, {22, 2.6}, {22, -2.6}, {7, -2.6}, {0, 0}});
    shape.dark.addPolygon(QPolygonF{{0, 0}, {3.4, 1.2}, {3.4, -1.2}, {0, 0}});
    shape.dark.addRect(17.5, -2.6, 1.2, 5.2);
    return shape;
}

ToolShape PipetteShape() {
    ToolShape shape;
    shape.body.addPolygon(QPolygonF{{0, 0}, {2.5, 1.5}, {12, 1.5}, {12, -1.5}, {2.5, -1.5}, {0, 0}});
    shape.dark.addRect(11.5, -4.2, 2.2, 8.4);
    shape.dark.addRoundedRect(13, -2.6, 9.5, 5.2, 2.6, 2.6);
    shape.body = shape.body.united(shape.dark);
    return shape;
}

// Outlines the tool in black and white, so that it is visible on every picture.
QPixmap DrawTool(const ToolShape& shape, double ratio) {
    const int pixels = static_cast<int>(std::ceil(side * ratio));
    QPixmap pixmap(pixels, pixels);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(tip);
    painter.rotate(-45);
    painter.strokePath(shape.body, QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(shape.body, Qt::white);
    painter.strokePath(shape.body, QPen(Qt::black, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(shape.dark, Qt::black);
    return pixmap;
}

// The X window system expects a hot spot in pixels of the picture, other systems in units of the window.
double HotSpotScale(double ratio) {
    return QGuiApplication::platformName() == QStringLiteral("xcb") ? ratio : 1;
}

} // namespace

QCursor LoadBrushCursor(unsigned id, double ratio) {
    if (id != Brush::pencilCursor && id != Brush::pipetteCursor) return Qt::ArrowCursor;
    const ToolShape shape = id == Brush::pencilCursor ? PencilShape() : PipetteShape();
    const QPointF hotSpot = tip * HotSpotScale(ratio);
    return QCursor(DrawTool(shape, ratio), static_cast<int>(hotSpot.x()), static_cast<int>(hotSpot.y()));
}

} // namespace keltavlo
