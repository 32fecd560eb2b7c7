#include "framework/ui/PixelIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace keltavlo {

namespace {

constexpr double disabledOpacity = 0.35;

QColor Between(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

// The accent colors are visible on light and on dark backgrounds.
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
        const QSize letters(WidestOf(art), static_cast<int>(art.size()));
        const QSize whole = letters.scaled(area.size(), Qt::KeepAspectRatio);
        const int scale = (whole.width() + letters.width() - 1) / letters.width();
        QRect target({}, whole);
        target.moveCenter(area.center());
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * disabledOpacity);
        painter->setRenderHint(QPainter::SmoothPixmapTransform, scale * letters.width() != whole.width());
        painter->drawImage(target, Draw(letters, scale));
    }

private:
    QImage Draw(const QSize& letters, int scale) const {
        const QPalette palette = QGuiApplication::palette();
        QImage picture(letters, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        for (std::size_t y = 0; y < art.size(); ++y)
            for (std::size_t x = 0; x < art[y].size(); ++x)
                picture.setPixelColor(static_cast<int>(x), static_cast<int>(y), InkOf(art[y][x], palette));
        return picture.scaled(letters * scale);
    }

    PixelArt art;
};

} // namespace

QIcon MakePixelIcon(PixelArt art) {
    return QIcon(new PixelIconEngine(art));
}

} // namespace keltavlo
