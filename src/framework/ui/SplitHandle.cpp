#include "framework/ui/SplitHandle.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

namespace keltavlo {

SplitHandle::SplitHandle(Splitter& owner, SplitTracker& lineTracker, Splitter::Direction dragged,
                         QWidget* window)
    : QWidget(window), splitter(owner), tracker(lineTracker), direction(dragged) {
    setCursor(direction == Splitter::rows ? Qt::SplitVCursor : Qt::SplitHCursor);
}

void SplitHandle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.fillRect(rect(), option.palette.button());
    style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, this);
}

void SplitHandle::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    grip = event->position().toPoint();
    tracker.BeginByMouse(direction);
}

void SplitHandle::mouseMoveEvent(QMouseEvent* event) {
    tracker.MoveTo(mapTo(parentWidget(), event->position().toPoint() - grip));
}

// A click without a move changes nothing.
void SplitHandle::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) tracker.End(true);
}

void SplitHandle::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const bool split = splitter.GetCount(direction) > 1;
    splitter.SetSplit(direction, split ? splitter.GetExtent(direction) : splitter.GetExtent(direction) / 2);
}

} // namespace keltavlo
