#include "framework/ui/PlaceWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace keltavlo {

namespace {

// Returns the screen that shows most of the rectangle, or the first one.
QRect ScreenFor(const QRect& rectangle) {
    const QScreen* best = QGuiApplication::primaryScreen();
    int most = 0;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize common = screen->availableGeometry().intersected(rectangle).size();
        const int shown = common.isEmpty() ? 0 : common.width() * common.height();
        if (shown <= most) continue;
        most = shown;
        best = screen;
    }
    return best ? best->availableGeometry() : rectangle;
}

// Limits a coordinate that is far from any desktop, because sums with it would overflow.
int Bounded(std::int32_t coordinate) {
    constexpr int limit = 1 << 20;
    return std::clamp(coordinate, -limit, limit);
}

QRect OnScreen(const WindowPlacement::Rectangle& wanted) {
    const QRect rectangle(QPoint(Bounded(wanted.left), Bounded(wanted.top)),
                          QPoint(Bounded(wanted.right) - 1, Bounded(wanted.bottom) - 1));
    const QRect screen = ScreenFor(rectangle);
    const QSize size = rectangle.size().boundedTo(screen.size());
    const int x = std::clamp(rectangle.x(), screen.x(), screen.x() + screen.width() - size.width());
    const int y = std::clamp(rectangle.y(), screen.y(), screen.y() + screen.height() - size.height());
    return {QPoint(x, y), size};
}

} // namespace

WindowPlacement GetWindowPlacement(const QWidget& window) {
    WindowPlacement placement;
    const bool isNormal = !window.isMaximized() && !window.isMinimized() && !window.isFullScreen();
    const QRect normal = isNormal ? window.geometry() : window.normalGeometry();
    placement.normal = {normal.left(), normal.top(), normal.right() + 1, normal.bottom() + 1};
    placement.showCommand = window.isMinimized()   ? WindowPlacement::showMinimized
                            : window.isMaximized() ? WindowPlacement::showMaximized
                                                   : WindowPlacement::showNormal;
    return placement;
}

void SetWindowPlacement(QWidget& window, const WindowPlacement& placement) {
    window.setGeometry(OnScreen(placement.normal));
}

void ShowWindow(QWidget& window, std::uint32_t showCommand) {
    switch (showCommand) {
    case WindowPlacement::showNormal:
        return window.showNormal();
    case WindowPlacement::showMinimized:
        return window.showMinimized();
    case WindowPlacement::showMaximized:
        return window.showMaximized();
    default:
        return window.show();
    }
}

} // namespace keltavlo
