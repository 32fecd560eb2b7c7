#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include <functional>
#include <vector>

namespace keltavlo {

// A line of the lower list.
struct ArchiveListItem {
    QString name;         // as people read it, like the other texts
    std::size_t data = 0; // the place of the name in the listing: lines are sorted, listings are not

    // Empty until the line is described.
    bool described = false;
    bool folder = false;
    QString size{}, type{}, modified{};
};

// What the lower list shows, sorted by name without regard to case; equal names keep their order.
class ArchiveListModel final : public QAbstractTableModel {
public:
    explicit ArchiveListModel(QObject* parent);

    // Fills what a line has beside its name and data. Archives have tens of thousands of lines and a window
    // shows a few: a line is described when it is first looked at.
    using Describer = std::function<void(ArchiveListItem& item)>;

    void SetItems(std::vector<ArchiveListItem> newItems, Describer newDescriber);
    // Described.
    const ArchiveListItem& GetItem(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int column, Qt::Orientation orientation, int role) const override;

private:
    mutable std::vector<ArchiveListItem> items;
    Describer describe;
    QIcon fileIcon, folderIcon;
};

} // namespace keltavlo
