// Input of an image view: the mouse, the wheel and the menu key.
#include "framework/ui/CMDIFrameWnd.h"
#include "framework/ui/CMenu.h"
#include "image/TavloDocument.h"
#include "image/ui/BrushCursors.h"
#include "image/ui/TavloView.h"
#include "image/ui/TavloViewFrame.h"
#include "res/Menus.h"
#include "resources/Brush.h"
#include "resources/MenuItemList.h"
#include "resources/Shell.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <cmath>

namespace keltavlo {

namespace {

constexpr int brushStrength = 255;
constexpr int wheelStep = 120;           // one notch
constexpr int scrollPixelsPerNotch = 48; // screen pixels

} // namespace

TexelPoint TavloView::TexelAt(const QPointF& devicePoint) const {
    const double zoom = GetZoom();
    return {devicePoint.x() / zoom + GetScrollX(), devicePoint.y() / zoom + GetScrollY()};
}

TexelPoint TavloView::TexelUnder(const QMouseEvent& event) const {
    return TexelAt(event.position() * devicePixelRatioF());
}

// Without a brush, the view never captures the mouse, and nothing changes.
void TavloView::mousePressEvent(QMouseEvent* event) {
    const TexelPoint texel = TexelUnder(*event);
    if (event->button() == Qt::LeftButton && shown && shown->HasBrush()) {
        captured = true;
        ApplyBrush(texel);
    }
    ShowTexel(texel);
    InfiniteScrollView::mousePressEvent(event);
}

void TavloView::mouseMoveEvent(QMouseEvent* event) {
    ShowBrushCursor();
    const TexelPoint texel = TexelUnder(*event);
    ShowTexel(texel);
    // The release event is lost if a dialog opens in the middle of a stroke.
    if (captured && !event->buttons().testFlag(Qt::LeftButton)) EndStroke();
    if (captured) ApplyBrush(texel);
    InfiniteScrollView::mouseMoveEvent(event);
}

void TavloView::mouseReleaseEvent(QMouseEvent* event) {
    if (captured && event->button() == Qt::LeftButton) {
        ApplyBrush(TexelUnder(*event));
        EndStroke();
    }
    InfiniteScrollView::mouseReleaseEvent(event);
}

void TavloView::ApplyBrush(const TexelPoint& texel) {
    if (shown && shown->HasBrush()) shown->GetCurrentBrush()->Apply(*shown, texel, brushStrength, texel);
}

void TavloView::EndStroke() {
    captured = false;
    const QScopedValueRollback ending(endsStroke, true);
    if (shown) shown->SetModifiedAndUpdate(true);
}

void TavloView::ShowBrushCursor() {
    const unsigned wanted =
        shown && shown->HasBrush() ? shown->GetCurrentBrush()->GetCursor() : BrushDocument::arrowCursor;
    if (wanted == shownCursor) return;
    shownCursor = wanted;
    setCursor(LoadBrushCursor(wanted, devicePixelRatioF()));
}

// Shows position and color in the status bar, for the texel that a brush would change.
void TavloView::ShowTexel(const TexelPoint& texel) const {
    if (!shown) return;
    const Texture& texture = shown->GetTexture();
    Shell& shell = Shell::Get();
    shell.SetPositionText(std::fmod(texel.x, texture.GetWidth()), std::fmod(texel.y, texture.GetHeight()));
    shell.SetColorText(shown->GetTexel(texel.Column(), texel.Row()));
}

// Shift+F10, because Qt handles only the menu key.
void TavloView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_F10 || event->modifiers() != Qt::ShiftModifier)
        return InfiniteScrollView::keyPressEvent(event);
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, rect().center(), mapToGlobal(rect().center()));
    contextMenuEvent(&menu);
}

// Makes the menu anew each time, including the runs that change. Does nothing during a stroke.
void TavloView::contextMenuEvent(QContextMenuEvent* event) {
    auto* frame = dynamic_cast<CMDIFrameWnd*>(window());
    if (captured || !frame) return;
    CMenu menu(ImageContextMenuRows(), *frame, frame);
    MenuItemList::UpdateAll(menu, shown);
    menu.GetPopups().front()->exec(event->globalPos());
}

// With Ctrl alone, the wheel zooms; without keys it scrolls vertically, with Shift horizontally.
void TavloView::wheelEvent(QWheelEvent* event) {
    const Qt::KeyboardModifiers keys = event->modifiers();
    if (event->buttons() == Qt::NoButton && keys == Qt::ControlModifier)
        ZoomByWheel(event->angleDelta().y());
    else if (keys == Qt::NoModifier || keys == Qt::ShiftModifier)
        ScrollByWheel(event->angleDelta(), keys == Qt::ShiftModifier);
    else
        return InfiniteScrollView::wheelEvent(event);
    event->accept();
}

void TavloView::ZoomByWheel(int delta) {
    TavloViewFrame* frame = GetViewFrame();
    if (!frame) return;
    wheelRemainder += delta;
    int zoom = frame->GetZoom();
    for (; wheelRemainder >= wheelStep; wheelRemainder -= wheelStep)
        zoom = std::min(zoom * 2, TavloViewFrame::maximumZoom);
    for (; wheelRemainder <= -wheelStep; wheelRemainder += wheelStep) zoom = std::max(zoom / 2, 1);
    frame->SetZoom(zoom);
}

void TavloView::ScrollByWheel(const QPoint& delta, bool sideways) {
    // Some systems transpose the delta themselves while Shift is held.
    const QPoint turned = sideways && delta.x() == 0 ? delta.transposed() : delta;
    scrollRemainder -= turned * scrollPixelsPerNotch;
    const int perTexel = wheelStep * GetZoom();
    const QPoint whole(scrollRemainder.x() / perTexel, scrollRemainder.y() / perTexel);
    scrollRemainder -= whole * perTexel;
    if (whole.x() != 0) SetScrollX(GetScrollX() + whole.x());
    if (whole.y() != 0) SetScrollY(GetScrollY() + whole.y());
}

} // namespace keltavlo
