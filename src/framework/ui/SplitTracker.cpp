#include "framework/ui/SplitTracker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr int keyStep = 10; // pixels
constexpr std::array directions{Splitter::rows, Splitter::columns};

} // namespace

SplitTracker::SplitTracker(Splitter& owner, QWidget* window) : QWidget(window), splitter(owner) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    hide();
}

// For a window that is not split, proposes four panes; otherwise starts from the current lines.
void SplitTracker::BeginByKeyboard() {
    const bool whole = splitter.GetCount(Splitter::rows) == 1 && splitter.GetCount(Splitter::columns) == 1;
    for (const Splitter::Direction direction : directions)
        lines[direction] = {true, whole ? splitter.GetExtent(direction) / 2 : splitter.GetSplit(direction)};
    focused = QApplication::focusWidget();
    Begin(false);
    changed = true;
    setFocus();
}

void SplitTracker::BeginByMouse(Splitter::Direction direction) {
    lines = {};
    lines[direction] = {true, splitter.GetSplit(direction)};
    Begin(true);
}

void SplitTracker::Begin(bool byMouse) {
    changed = false;
    setAttribute(Qt::WA_TransparentForMouseEvents, byMouse);
    setCursor(Qt::SizeAllCursor);
    setGeometry(parentWidget()->rect());
    show();
    raise();
}

void SplitTracker::SetPosition(Splitter::Direction direction, int position) {
    Line& line = lines[direction];
    if (!line.tracked) return;
    line.position = std::clamp(position, 0, splitter.GetExtent(direction));
    changed = true;
    update();
}

void SplitTracker::MoveTo(const QPoint& point) {
    SetPosition(Splitter::rows, point.y());
    SetPosition(Splitter::columns, point.x());
}

void SplitTracker::End(bool accepted) {
    if (isHidden()) return;
    hide();
    if (QWidget* back = std::exchange(focused, nullptr)) back->setFocus();
    for (const Splitter::Direction direction : directions)
        if (accepted && changed && lines[direction].tracked)
            splitter.SetSplit(direction, lines[direction].position);
}

void SplitTracker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor color = palette().color(QPalette::Highlight);
    color.setAlpha(160);
    const int rowsExtent = splitter.GetExtent(Splitter::rows);
    const int columnsExtent = splitter.GetExtent(Splitter::columns);
    if (lines[Splitter::rows].tracked)
        painter.fillRect(0, lines[Splitter::rows].position, columnsExtent, Splitter::lineThickness, color);
    if (lines[Splitter::columns].tracked)
        painter.fillRect(lines[Splitter::columns].position, 0, Splitter::lineThickness, rowsExtent, color);
}

void SplitTracker::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers() & Qt::ControlModifier ? 1 : keyStep;
    switch (event->key()) {
    case Qt::Key_Up:
        return SetPosition(Splitter::rows, lines[Splitter::rows].position - step);
    case Qt::Key_Down:
        return SetPosition(Splitter::rows, lines[Splitter::rows].position + step);
    case Qt::Key_Left:
        return SetPosition(Splitter::columns, lines[Splitter::columns].position - step);
    case Qt::Key_Right:
        return SetPosition(Splitter::columns, lines[Splitter::columns].position + step);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return End(true);
    case Qt::Key_Escape:
        return End(false);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SplitTracker::mouseMoveEvent(QMouseEvent* event) {
    MoveTo(event->position().toPoint());
}

void SplitTracker::mousePressEvent(QMouseEvent* event) {
    MoveTo(event->position().toPoint());
    End(true);
}

void SplitTracker::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) End(false);
}

} // namespace keltavlo
