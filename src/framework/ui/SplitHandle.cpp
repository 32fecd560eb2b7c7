#include "framework/ui/SplitHandle.h"

#include "framework/ui/SplitTracker.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

namespace keltavlo {

SplitHandle::SplitHandle(CSplitterWnd& owner, CSplitterWnd::Direction dragged)
    : QWidget(&owner), splitter(owner), direction(dragged) {
    setCursor(direction == CSplitterWnd::rows ? Qt::SplitVCursor : Qt::SplitHCursor);
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
    splitter.GetTracker().BeginByMouse(direction);
}

void SplitHandle::mouseMoveEvent(QMouseEvent* event) {
    splitter.GetTracker().MoveTo(mapTo(&splitter, event->position().toPoint() - grip));
}

// A click alone is no drag: it leaves everything as it is.
void SplitHandle::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) splitter.GetTracker().End(true);
}

void SplitHandle::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const bool split = splitter.GetCount(direction) > 1;
    splitter.SetSplit(direction, split ? splitter.GetExtent(direction) : splitter.GetExtent(direction) / 2);
}

} // namespace keltavlo
