#include "archives/ui/ArchiveListModel.h"

#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "res/ShellStrings.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

namespace keltavlo {

namespace {

struct Column {
    unsigned title;
    QString ArchiveListItem::*text;
    Qt::Alignment alignment;
};

const Column columns[] = {
    {IDS_COLUMN_NAME, &ArchiveListItem::name, Qt::AlignLeft | Qt::AlignVCenter},
    {IDS_COLUMN_SIZE, &ArchiveListItem::size, Qt::AlignRight | Qt::AlignVCenter},
    {IDS_COLUMN_TYPE, &ArchiveListItem::type, Qt::AlignLeft | Qt::AlignVCenter},
    {IDS_COLUMN_MODIFIED, &ArchiveListItem::modified, Qt::AlignLeft | Qt::AlignVCenter},
};

} // namespace

ArchiveListModel::ArchiveListModel(QObject* parent)
    : QAbstractTableModel(parent), fileIcon(QApplication::style()->standardIcon(QStyle::SP_FileIcon)),
      folderIcon(QApplication::style()->standardIcon(QStyle::SP_DirIcon)) {}

void ArchiveListModel::SetItems(std::vector<ArchiveListItem> newItems, Describer newDescriber) {
    beginResetModel();
    items = std::move(newItems);
    describe = std::move(newDescriber);
    std::ranges::sort(items, [](const ArchiveListItem& a, const ArchiveListItem& b) {
        const int order = a.name.compare(b.name, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a.data < b.data;
    });
    endResetModel();
}

const ArchiveListItem& ArchiveListModel::GetItem(int row) const {
    ArchiveListItem& item = items[static_cast<std::size_t>(row)];
    if (!item.described) describe(item);
    item.described = true;
    return item;
}

int ArchiveListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items.size());
}

int ArchiveListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::size(columns));
}

QVariant ArchiveListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Column& column = columns[index.column()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        // Does not describe the line: its name is enough, and a search reads the names of all lines.
        if (index.column() == 0) return items[static_cast<std::size_t>(index.row())].name;
        return GetItem(index.row()).*column.text;
    case Qt::DecorationRole:
        if (index.column() > 0) return {};
        return GetItem(index.row()).folder ? folderIcon : fileIcon;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment);
    default:
        return {};
    }
}

QVariant ArchiveListModel::headerData(int column, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(columns[column].alignment);
    return role == Qt::DisplayRole ? ToQString(LoadString(columns[column].title)) : QVariant();
}

} // namespace keltavlo
