#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class QTreeView;

namespace keltavlo {

// Sizes the columns of a view when its width or its lines change, until the user drags one. The last column
// takes what the others leave, so the view scrolls sideways only if the others need more than its width.
class ColumnSizer final : public QObject {
public:
    // Returns the widths of all columns but the last in a view of `room` pixels.
    using Widths = std::function<std::vector<int>(int room)>;

    ColumnSizer(QTreeView& sizedView, Widths widthsFor);

protected:
    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void Size();

    QTreeView& view;
    Widths widths;
    QTimer later{this}; // delays the sizing, because many changes come at once
    bool sizing = false;
    bool dragged = false;
};

// Returns the width that the column needs for its title and the lines near the visible ones, or 0
// if it is hidden.
int WidthOfContents(const QTreeView& view, int column);

} // namespace keltavlo
