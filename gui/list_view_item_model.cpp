#include "gui/list_view_item_model.h"

#include <algorithm>

#include "gui/theme_icons.h"

namespace qb::gui {

namespace {

int columnsOf(const ListView& list) { return std::max(1, list.ColumnHeaders().Count()); }

}  // namespace

ListViewItemModel::ListViewItemModel(ListView& list, QObject* parent)
    : QAbstractTableModel(parent),
      list_(list),
      rows_(list.ListItems().Count()),
      columns_(columnsOf(list)) {}

int ListViewItemModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListViewItemModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

ListItem* ListViewItemModel::itemAt(const QModelIndex& index) const {
  if (!index.isValid() || index.model() != this) return nullptr;
  if (index.row() >= list_.ListItems().Count()) return nullptr;
  return &list_.ListItems().item(index.row() + 1);
}

QModelIndex ListViewItemModel::indexOf(const ListItem& item) const {
  if (&item.list() != &list_ || item.Index() > rows_) return QModelIndex();
  return index(item.Index() - 1, 0);
}

Qt::Alignment ListViewItemModel::alignmentOf(int column) const {
  if (column >= list_.ColumnHeaders().Count()) return Qt::AlignLeft | Qt::AlignVCenter;
  switch (list_.ColumnHeaders().item(column + 1).Alignment()) {
    case lvwColumnRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    case lvwColumnCenter:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

QVariant ListViewItemModel::data(const QModelIndex& index, int role) const {
  ListItem* item = itemAt(index);
  if (item == nullptr || index.column() >= columns_) return QVariant();
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(item->SubItems(index.column()));
    case Qt::DecorationRole:
      if (index.column() != 0) return QVariant();
      return iconFor(list_.pictureOf(*item));
    case Qt::TextAlignmentRole:
      // The first column keeps the view's own alignment (centred under a
      // large icon, left in the other views).
      if (index.column() == 0) return QVariant();
      return QVariant::fromValue(alignmentOf(index.column()));
    default:
      return QVariant();
  }
}

QVariant ListViewItemModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= list_.ColumnHeaders().Count()) return QVariant();
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(list_.ColumnHeaders().item(section + 1).Text());
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(alignmentOf(section));
    default:
      return QVariant();
  }
}

Qt::ItemFlags ListViewItemModel::flags(const QModelIndex& index) const {
  // Rows can be dragged (the list's OLE drag decides what the drag does).
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                         : Qt::NoItemFlags;
}

void ListViewItemModel::reset() {
  beginResetModel();
  rows_ = list_.ListItems().Count();
  columns_ = columnsOf(list_);
  endResetModel();
}

void ListViewItemModel::textsChanged() {
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1), {Qt::DisplayRole});
}

void ListViewItemModel::picturesChanged() {
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, 0), {Qt::DecorationRole});
}

void ListViewItemModel::headersChanged() {
  if (columnsOf(list_) != columns_) {
    reset();
    return;
  }
  emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

}  // namespace qb::gui
