#include "framework/ui/MDIClientArea.h"

#include "framework/ui/CMDIChildWnd.h"

#include <QStyle>

#include <algorithm>
#include <cmath>

namespace keltavlo {

MDIClientArea::MDIClientArea(QWidget* parent) : QMdiArea(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

std::vector<CMDIChildWnd*> MDIClientArea::GetChildren() const {
    std::vector<CMDIChildWnd*> children;
    for (QMdiSubWindow* window : subWindowList(CreationOrder))
        if (auto* child = dynamic_cast<CMDIChildWnd*>(window); child && child->IsShown())
            children.push_back(child);
    return children;
}

CMDIChildWnd* MDIClientArea::GetCurrentChild() const {
    auto* child = dynamic_cast<CMDIChildWnd*>(currentSubWindow());
    return child && child->IsShown() && !child->isHidden() ? child : nullptr;
}

void MDIClientArea::Place(CMDIChildWnd& child, int number) const {
    child.resize(child.sizeHint());
    const QSize room = viewport()->size() - child.size();
    const int step = child.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &child) + 4;
    const int steps = std::max(1, std::min(room.width(), room.height()) / step + 1);
    child.move(number % steps * step, number % steps * step);
}

// Up to three windows share one line. More windows fill a grid column by column; if the columns cannot be
// equal, the last ones contain one window more.
void MDIClientArea::Tile(Qt::Orientation orientation) {
    std::vector<CMDIChildWnd*> tiles = GetChildren();
    std::erase_if(tiles, [](const CMDIChildWnd* child) { return child->isMinimized(); });
    if (tiles.empty()) return;
    const int count = static_cast<int>(tiles.size());
    const int root = static_cast<int>(std::sqrt(count));
    const int columns = orientation == Qt::Vertical ? root : count / root;
    const int longColumns = count % columns;
    auto next = tiles.begin();
    for (int column = 0; column < columns; ++column) {
        const int rows = count / columns + (column >= columns - longColumns ? 1 : 0);
        for (int row = 0; row < rows; ++row) PutTile(**next++, {column, columns}, {row, rows});
    }
}

void MDIClientArea::PutTile(CMDIChildWnd& child, const Share& across, const Share& down) const {
    const QSize room = viewport()->size();
    const QPoint from(room.width() * across.index / across.count, room.height() * down.index / down.count);
    const QPoint to(room.width() * (across.index + 1) / across.count,
                    room.height() * (down.index + 1) / down.count);
    child.showNormal();
    child.setGeometry(QRect(from, to - QPoint(1, 1)));
}

// Fills rows from the lower edge upward.
void MDIClientArea::ArrangeIcons() {
    int x = 0;
    int bottom = viewport()->height();
    for (CMDIChildWnd* child : GetChildren()) {
        if (!child->isMinimized()) continue;
        if (x > 0 && x + child->width() > viewport()->width()) {
            x = 0;
            bottom -= child->height();
        }
        child->move(x, bottom - child->height());
        x += child->width();
    }
}

} // namespace keltavlo
