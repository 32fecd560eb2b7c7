#include "framework/ui/PixelIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace {

constexpr double disabledOpacity = 0.35;

QColor Between(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

// The accents stand out from light and from dark grounds.
QColor InkOf(char letter, const QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::ButtonText);
    switch (letter) {
    case '#':
        return text;
    case 'w':
        return palette.color(QPalette::Active, QPalette::Base);
    case 'g':
        return Between(text, palette.color(QPalette::Active, QPalette::Button));
    case 'b':
        return {0x3B, 0x7D, 0xD8};
    case 'y':
        return {0xE3, 0xA2, 0x1A};
    case 'r':
        return {0xD9, 0x48, 0x3B};
    case 'n':
        return {0x3A, 0xA6, 0x55};
    default:
        return Qt::transparent;
    }
}

int WidestOf(PixelArt art) {
    std::size_t width = 1;
    for (const std::string_view row : art) width = std::max(width, row.size());
    return static_cast<int>(width);
}

class PixelIconEngine final : public QIconEngine {
public:
    explicit PixelIconEngine(PixelArt pixels) : art(pixels) {}

    QIconEngine* clone() const override { return new PixelIconEngine(art); }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }
    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * disabledOpacity);
        const int height = static_cast<int>(art.size());
        const int scale = std::max(1, std::min(area.width() / WidestOf(art), area.height() / height));
        const QPoint corner(area.x() + (area.width() - WidestOf(art) * scale) / 2,
                            area.y() + (area.height() - height * scale) / 2);
        for (int y = 0; y < height; ++y)
            PaintRow(*painter, art[static_cast<std::size_t>(y)], corner, y, scale);
    }

private:
    static void PaintRow(QPainter& painter, std::string_view row, QPoint corner, int y, int scale) {
        const QPalette palette = QGuiApplication::palette();
        for (int x = 0; x < static_cast<int>(row.size()); ++x)
            painter.fillRect(QRect(corner + QPoint(x, y) * scale, QSize(scale, scale)),
                             InkOf(row[static_cast<std::size_t>(x)], palette));
    }

    PixelArt art;
};

} // namespace

QIcon MakePixelIcon(PixelArt art) {
    return QIcon(new PixelIconEngine(art));
}
