#pragma once

#include <QAbstractTableModel>
#include <QIcon>

#include <functional>
#include <vector>

namespace keltavlo {

// A line of the lower list.
struct ArchiveListItem {
    QString name;         // for display, like the other texts
    std::size_t data = 0; // the name's index in the listing, which is not sorted

    // The fields below are empty until the line is described.
    bool described = false;
    bool folder = false;
    QString size{}, type{}, modified{};
};

// The contents of the lower list, sorted by name, ignoring case. Equal names keep their order.
class ArchiveListModel final : public QAbstractTableModel {
public:
    explicit ArchiveListModel(QObject* parent);

    // Fills the fields of a line other than its name and data. A line is described when it is first shown,
    // because archives have tens of thousands of lines and a window shows only a few.
    using Describer = std::function<void(ArchiveListItem& item)>;

    void SetItems(std::vector<ArchiveListItem> newItems, Describer newDescriber);
    // Returns the line after describing it.
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
