#pragma once

#include "archives/ui/ArchiveListModel.h"

#include <QStackedWidget>

#include <functional>

class QAbstractItemView;
class QListView;
class QTreeView;

namespace keltavlo {

class ArchiveNameDelegate;

// The lower list: its lines either as names in several columns or with their details.
class ArchiveListView final : public QStackedWidget {
public:
    enum class Style { list, details };

    explicit ArchiveListView(QWidget* parent);

    void SetItems(std::vector<ArchiveListItem> items, ArchiveListModel::Describer describe);
    // Shows the lines in that style and moves the focus there. The selection stays.
    void SetStyle(Style style);
    Style GetStyle() const;

    std::function<void(const ArchiveListItem&)> onSelect; // called when another line is selected
    std::function<void(const ArchiveListItem&)> onOpen;   // called on a double click or on Enter for a folder

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
