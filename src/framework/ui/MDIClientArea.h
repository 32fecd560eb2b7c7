#pragma once

#include <QMdiArea>

namespace keltavlo {

class CMDIChildWnd;

// The part of the main frame that contains the document windows.
class MDIClientArea : public QMdiArea {
public:
    explicit MDIClientArea(QWidget* parent);

    // Returns the document windows that are not closing, in the order of creation.
    std::vector<CMDIChildWnd*> GetChildren() const;
    // Returns the active child, or null. If another top-level window is active, returns the child that was
    // active before.
    CMDIChildWnd* GetCurrentChild() const;
    // Offsets a new child down and to the right of the `number` children before it.
    void Place(CMDIChildWnd& child, int number) const;
    // Places the children that are not minimized one above the other (Qt::Vertical) or side by side; four or
    // more in a grid.
    void Tile(Qt::Orientation orientation);
    // Places the minimized children in rows at the lower edge.
    void ArrangeIcons();

private:
    struct Share {
        int index, count;
    };
    // Gives the child its share of the width and height.
    void PutTile(CMDIChildWnd& child, const Share& across, const Share& down) const;
};

} // namespace keltavlo
