#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include <vector>

// A line of the lower list.
struct ArchiveListItem {
    QString name, size, type, modified; // as people read them
    bool folder = false;
    std::size_t data = 0; // the place of its name in the listing: lines are sorted, listings are not
};

// What the lower list shows, sorted by name without regard to case; equal names keep their order.
class ArchiveListModel final : public QAbstractTableModel {
public:
    explicit ArchiveListModel(QObject* parent);

    void SetItems(std::vector<ArchiveListItem> newItems);
    const ArchiveListItem& GetItem(int row) const { return items[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int column, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ArchiveListItem> items;
    QIcon fileIcon, folderIcon;
};
