#pragma once

#include <QMdiArea>

namespace keltavlo {

class CMDIChildWnd;

// The part of the main frame in which the document windows lie.
class MDIClientArea : public QMdiArea {
public:
    explicit MDIClientArea(QWidget* parent);

    // In the order of creation; only document windows that are not ending.
    std::vector<CMDIChildWnd*> GetChildren() const;
    // The child that is active, or was before a window outside became so; null when there is none.
    CMDIChildWnd* GetCurrentChild() const;
    // Puts a new child below and beside the ones before it, of which there are `number`.
    void Place(CMDIChildWnd& child, int number) const;
    // Lays the children that are not minimized one above the other (Qt::Vertical) or side by side; from four
    // on, in a grid.
    void Tile(Qt::Orientation orientation);
    // Puts the minimized children in rows at the lower edge.
    void ArrangeIcons();

private:
    struct Share {
        int index, count;
    };
    // Gives the child its share of the width and the height.
    void PutTile(CMDIChildWnd& child, const Share& across, const Share& down) const;
};

} // namespace keltavlo
