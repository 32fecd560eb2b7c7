#include "framework/ui/ColumnSizer.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>

namespace keltavlo {

ColumnSizer::ColumnSizer(QTreeView& sizedView, Widths widthsFor)
    : QObject(&sizedView), view(sizedView), widths(std::move(widthsFor)) {
    QHeaderView& header = *view.header();
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setStretchLastSection(true);
    later.setSingleShot(true);
    later.callOnTimeout(this, [this] { Size(); });
    view.viewport()->installEventFilter(this);
    const auto sizeLater = [this] { later.start(); };
    connect(view.model(), &QAbstractItemModel::layoutChanged, this, sizeLater);
    connect(&header, &QHeaderView::sectionResized, this, [this](int column) {
        const bool stretched = column == view.header()->count() - 1;
        dragged = dragged || (!sizing && !stretched && view.isVisible());
    });
}

bool ColumnSizer::eventFilter(QObject* viewport, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) later.start();
    return QObject::eventFilter(viewport, event);
}

void ColumnSizer::Size() {
    if (dragged || !view.isVisible()) return;
    const QScopedValueRollback<bool> now(sizing, true);
    int column = 0;
    for (const int width : widths(view.viewport()->width())) view.header()->resizeSection(column++, width);
}

int WidthOfContents(const QTreeView& view, int column) {
    if (view.isColumnHidden(column)) return 0;
    const QAbstractItemView& lines = view; // this base class makes the hint public
    return std::max(lines.sizeHintForColumn(column), view.header()->sectionSizeHint(column));
}

} // namespace keltavlo
