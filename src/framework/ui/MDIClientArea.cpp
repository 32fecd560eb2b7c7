#include "framework/ui/MDIClientArea.h"

#include "framework/ui/CMDIChildWnd.h"

#include <QStyle>

#include <algorithm>

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

void MDIClientArea::Tile(Qt::Orientation orientation) {
    std::vector<CMDIChildWnd*> tiles = GetChildren();
    std::erase_if(tiles, [](const CMDIChildWnd* child) { return child->isMinimized(); });
    const int count = static_cast<int>(tiles.size());
    const QSize room = viewport()->size();
    for (int i = 0; i < count; ++i) {
        CMDIChildWnd& child = *tiles[static_cast<std::size_t>(i)];
        child.showNormal();
        if (orientation == Qt::Vertical)
            child.setGeometry(0, room.height() * i / count, room.width(),
                              room.height() * (i + 1) / count - room.height() * i / count);
        else
            child.setGeometry(room.width() * i / count, 0,
                              room.width() * (i + 1) / count - room.width() * i / count, room.height());
    }
}

void MDIClientArea::ArrangeIcons() {
    int x = 0;
    for (CMDIChildWnd* child : GetChildren()) {
        if (!child->isMinimized()) continue;
        child->move(x, viewport()->height() - child->height());
        x += child->width();
    }
}
