#pragma once
// ListViewItemModel: the rows and columns of a ListView model as a Qt item
// model, for the Qt views that show the list. Row r is ListItems(r + 1);
// column c is ColumnHeaders(c + 1) and shows the row's sub-item c (column 0
// the row's Text); a list without column headers has the one column of
// texts. Column 0 carries the row's picture from the list's image lists, or
// a drawn page when the row has none, so no row is ever blank.
//
// The adapter reads the model afresh for every question; the widget tells it
// when rows or columns changed (reset) and when texts or pictures did.

#include <QAbstractTableModel>

#include "services/controls/list_view.h"

namespace qb::gui {

class ListViewItemModel : public QAbstractTableModel {
 public:
  explicit ListViewItemModel(ListView& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  // The row an index stands for, nullptr when it stands for none.
  ListItem* itemAt(const QModelIndex& index) const;
  // The index of a row of the list (column 0), invalid for another list's row.
  QModelIndex indexOf(const ListItem& item) const;

  // The rows or the columns changed: the views start afresh.
  void reset();
  // Texts, or pictures, of any row changed.
  void textsChanged();
  void picturesChanged();
  // The column headers' texts or alignment changed.
  void headersChanged();

 private:
  Qt::Alignment alignmentOf(int column) const;

  ListView& list_;
  int rows_ = 0;     // as the views were last told
  int columns_ = 1;  // likewise
};

}  // namespace qb::gui
