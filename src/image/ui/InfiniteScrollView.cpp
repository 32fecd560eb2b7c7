#include "image/ui/InfiniteScrollView.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace keltavlo {

namespace {

struct ScrollKey {
    int key;
    Qt::Orientation orientation;
    QAbstractSlider::SliderAction action;
};
constexpr ScrollKey scrollKeys[] = {
    {Qt::Key_Left, Qt::Horizontal, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Right, Qt::Horizontal, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_Up, Qt::Vertical, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Down, Qt::Vertical, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_PageUp, Qt::Vertical, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_PageDown, Qt::Vertical, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_Home, Qt::Horizontal, QAbstractSlider::SliderToMinimum},
    {Qt::Key_Home, Qt::Vertical, QAbstractSlider::SliderToMinimum},
    {Qt::Key_End, Qt::Horizontal, QAbstractSlider::SliderToMaximum},
    {Qt::Key_End, Qt::Vertical, QAbstractSlider::SliderToMaximum},
};

// Returns the position after an action of the scroll bar.
int PositionAfter(int action, int position, int range, const QScrollBar& bar) {
    switch (action) {
    case QAbstractSlider::SliderSingleStepSub:
        return position - 1;
    case QAbstractSlider::SliderSingleStepAdd:
        return position + 1;
    case QAbstractSlider::SliderPageStepSub:
        return position - range / 2;
    case QAbstractSlider::SliderPageStepAdd:
        return position + range / 2;
    case QAbstractSlider::SliderToMinimum:
    case QAbstractSlider::SliderToMaximum:
        return 0;
    default:
        return bar.sliderPosition();
    }
}

int Wrapped(int position, int range) {
    const int rest = position % range;
    return rest < 0 ? rest + range : rest;
}

} // namespace

void InfiniteScrollView::SetScrollX(int position) {
    SetScroll(horizontal, position);
}

void InfiniteScrollView::SetScrollY(int position) {
    SetScroll(vertical, position);
}

void InfiniteScrollView::SetRangeX(int count) {
    SetRange(horizontal, count);
}

void InfiniteScrollView::SetRangeY(int count) {
    SetRange(vertical, count);
}

void InfiniteScrollView::OnCreate() {
    CView::OnCreate();
    FollowBar(horizontal);
    FollowBar(vertical);
}

// The bar reports every action, even one that cannot move it further; such an action wraps around.
void InfiniteScrollView::FollowBar(Axis& axis) {
    QScrollBar& bar = GetScrollBar(axis.orientation);
    bar.setRange(0, axis.range - 1);
    bar.setPageStep(axis.range / 2);
    bar.setValue(0);
    connect(&bar, &QScrollBar::actionTriggered, this, [this, &axis](int action) { OnScroll(axis, action); });
}

void InfiniteScrollView::OnScroll(Axis& axis, int action) {
    SetScroll(axis, PositionAfter(action, axis.position, axis.range, GetScrollBar(axis.orientation)));
}

void InfiniteScrollView::keyPressEvent(QKeyEvent* event) {
    CView::keyPressEvent(event);
    if (event->modifiers() & ~Qt::KeypadModifier) return;
    for (const ScrollKey& row : scrollKeys) {
        if (row.key != event->key()) continue;
        GetScrollBar(row.orientation).triggerAction(row.action);
        event->accept();
    }
}

void InfiniteScrollView::SetScroll(Axis& axis, int position) {
    const int wrapped = Wrapped(position, axis.range);
    if (wrapped != axis.position) update();
    axis.position = wrapped;
    GetScrollBar(axis.orientation).setSliderPosition(wrapped);
}

void InfiniteScrollView::SetRange(Axis& axis, int count) {
    QScrollBar& bar = GetScrollBar(axis.orientation);
    if (count != bar.maximum() - bar.minimum() + 1) {
        bar.setRange(0, count - 1);
        bar.setPageStep(count / 2);
        bar.setValue(axis.position); // a smaller range may have changed it
        update();
    }
    axis.range = count;
}

} // namespace keltavlo
