#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

class QTreeView;

namespace keltavlo {

// Sizes the columns of a view when its width or its lines change, until the user drags one. The last column
// takes what the others leave, so that the view scrolls sideways only where the others need more than there
// is.
class ColumnSizer final : public QObject {
public:
    // The widths of all columns but the last in a view of `room` pixels.
    using Widths = std::function<std::vector<int>(int room)>;

    ColumnSizer(QTreeView& sizedView, Widths widthsFor);

protected:
    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void Size();

    QTreeView& view;
    Widths widths;
    QTimer later; // many changes come at once
    bool sizing = false;
    bool dragged = false;
};

// What the column needs to show its title and the lines near the visible ones; 0 for a hidden one.
int WidthOfContents(const QTreeView& view, int column);

} // namespace keltavlo
