#include "archives/ui/ArchiveListView.h"

#include "framework/ui/ColumnSizer.h"

#include <QKeyEvent>
#include <QListView>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>

namespace keltavlo {

// Gives every line the size of the one with the longest name. The list measures only one line, because it
// assumes uniform sizes to be fast.
class ArchiveNameDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetNames(const std::vector<ArchiveListItem>& items, const QFontMetricsF& metrics) {
        double longestAdvance = 0; // pixels
        longest.clear();
        for (const ArchiveListItem& item : items) {
            const double advance = metrics.horizontalAdvance(item.name);
            if (advance > longestAdvance) longest = item.name;
            longestAdvance = std::max(advance, longestAdvance);
        }
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem line = option;
        initStyleOption(&line, index);
        line.text = longest;
        return line.widget->style()->sizeFromContents(QStyle::CT_ItemViewItem, &line, {}, line.widget);
    }

private:
    QString longest;
};

namespace {

// The name takes two sevenths, the size a fifth of the rest; type and time share what remains.
std::vector<int> WidthsOfColumns(int room) {
    const int name = 2 * room / 7;
    const int size = (room - name) / 5;
    return {name, size, (room - name - size) / 2};
}

} // namespace

ArchiveListView::ArchiveListView(QWidget* parent)
    : QStackedWidget(parent), model(new ArchiveListModel(this)), list(new QListView(this)),
      details(new QTreeView(this)), names(new ArchiveNameDelegate(this)) {
    list->setItemDelegate(names);
    list->setFlow(QListView::TopToBottom);
    list->setWrapping(true);
    list->setResizeMode(QListView::Adjust);
    list->setUniformItemSizes(true);
    details->setRootIsDecorated(false);
    details->setUniformRowHeights(true);
    SetUp(*list);
    SetUp(*details);
    new ColumnSizer(*details, WidthsOfColumns);
    details->setSelectionModel(list->selectionModel());
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged,
            [this](const QItemSelection& selected) {
                if (!selected.isEmpty() && onSelect) onSelect(model->GetItem(selected.front().top()));
            });
    setFocusProxy(list);
}

void ArchiveListView::SetUp(QAbstractItemView& view) {
    view.setModel(model);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setTextElideMode(Qt::ElideMiddle);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    view.setIconSize({icon, icon});
    view.installEventFilter(this);
    connect(&view, &QAbstractItemView::doubleClicked, [this](const QModelIndex& index) {
        if (onOpen) onOpen(model->GetItem(index.row()));
    });
    addWidget(&view);
}

void ArchiveListView::SetItems(std::vector<ArchiveListItem> items, ArchiveListModel::Describer describe) {
    names->SetNames(items, QFontMetricsF(list->font()));
    model->SetItems(std::move(items), std::move(describe));
}

void ArchiveListView::SetStyle(Style style) {
    if (style == GetStyle()) return;
    QAbstractItemView* view = list;
    if (style == Style::details) view = details;
    setCurrentWidget(view);
    setFocusProxy(view);
    view->scrollTo(view->currentIndex());
}

ArchiveListView::Style ArchiveListView::GetStyle() const {
    return currentWidget() == details ? Style::details : Style::list;
}

// Enter opens a folder; on a file, the dialog's button gets the key.
bool ArchiveListView::eventFilter(QObject* view, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QStackedWidget::eventFilter(view, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const QModelIndex current = list->selectionModel()->currentIndex();
    if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !current.isValid()) return false;
    const ArchiveListItem item = model->GetItem(current.row()); // opening replaces the lines
    if (!item.folder || !onOpen) return false;
    onOpen(item);
    return true;
}

} // namespace keltavlo
