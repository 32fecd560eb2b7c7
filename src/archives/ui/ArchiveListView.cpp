#include "archives/ui/ArchiveListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>

// Gives every line of the list the width of the longest name: the list, which takes all lines to be alike so
// that long listings are quick, measures a single one.
class ArchiveNameDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void SetNames(const std::vector<ArchiveListItem>& items, const QFontMetrics& metrics) {
        longest = 0;
        for (const ArchiveListItem& item : items)
            longest = std::max(longest, metrics.horizontalAdvance(item.name));
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize own = QStyledItemDelegate::sizeHint(option, index);
        const int ownName = option.fontMetrics.horizontalAdvance(index.data().toString());
        return {own.width() - ownName + longest, own.height()};
    }

private:
    int longest = 0; // pixels
};

ArchiveListView::ArchiveListView(QWidget* parent)
    : QStackedWidget(parent), model(new ArchiveListModel(this)), list(new QListView(this)),
      details(new QTreeView(this)), names(new ArchiveNameDelegate(this)) {
    list->setItemDelegate(names);
    list->setFlow(QListView::TopToBottom);
    list->setWrapping(true);
    list->setResizeMode(QListView::Adjust);
    list->setUniformItemSizes(true);
    details->setRootIsDecorated(false);
    details->setItemsExpandable(false);
    details->setUniformRowHeights(true);
    details->header()->setSectionResizeMode(QHeaderView::Interactive);
    SetUp(*list);
    SetUp(*details);
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
    names->SetNames(items, list->fontMetrics());
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

// Enter on a folder opens it; on a file it goes on to the dialog's button.
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

void ArchiveListView::showEvent(QShowEvent* event) {
    QStackedWidget::showEvent(event);
    if (!columnsSized) SizeColumns();
    columnsSized = true;
}

// Two sevenths for the name, a fifth of the rest for the size; type and time share what remains.
void ArchiveListView::SizeColumns() {
    int rest = contentsRect().width() - 2 * details->frameWidth();
    const auto size = [&](int column, int columnWidth) {
        details->header()->resizeSection(column, columnWidth);
        rest -= columnWidth;
    };
    size(0, 2 * rest / 7);
    size(1, rest / 5);
    size(2, rest / 2);
    size(3, rest);
}
