#pragma once

#include "archives/ui/ArchiveListModel.h"

#include <QStackedWidget>

#include <functional>

class QAbstractItemView;
class QListView;
class QTreeView;

namespace keltavlo {

class ArchiveNameDelegate;

// The lower list: the same lines as a list of names that runs on in further columns, or with their details.
class ArchiveListView final : public QStackedWidget {
public:
    enum class Style { list, details };

    explicit ArchiveListView(QWidget* parent);

    void SetItems(std::vector<ArchiveListItem> items, ArchiveListModel::Describer describe);
    // Where the keyboard goes and how the lines show; the selected line stays.
    void SetStyle(Style style);
    Style GetStyle() const;

    std::function<void(const ArchiveListItem&)> onSelect; // another line is selected
    std::function<void(const ArchiveListItem&)> onOpen;   // double click, or Enter on a folder

protected:
    bool eventFilter(QObject* view, QEvent* event) override;

private:
    void SetUp(QAbstractItemView& view);

    ArchiveListModel* model;
    QListView* list;
    QTreeView* details;
    ArchiveNameDelegate* names;
};

} // namespace keltavlo
