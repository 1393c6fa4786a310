#pragma once
// DocumentListWidget: renders a ListView model in its four views. Icons,
// small icons and list show the rows in a QListView (icon mode with large
// icons; list mode with small icons flowing in rows; list mode flowing top
// to bottom in columns); details shows them in a QTreeView with a header
// section for each column header (width and alignment from the model, order
// from Position). Both views share one ListViewItemModel and one selection,
// kept in step with the rows' Selected. The user's clicks (a click on a row
// raises ItemClick and Click), keys and column clicks reach the model as its
// events; resizing or moving a header section
// writes the column's Width or Position back. HitTest on the model asks the
// view on show which row is under a point. Drags over the list and drags of
// its rows go to the model's OLE drag events; while a drag that can be
// dropped is over the list, a frame in the highlight colour shows it.

#include <QListView>
#include <QTreeView>
#include <QWidget>

#include "gui/bound_widget.h"
#include "gui/forwarding_view.h"
#include "gui/list_view_item_model.h"
#include "services/controls/list_view.h"

class QFrame;
class QStackedLayout;

namespace qb::gui {

class DocumentListWidget : public BoundWidget<QWidget, ListView> {
 public:
  DocumentListWidget(ListView& control, QWidget* parent);
  ~DocumentListWidget() override;

  ListViewItemModel& itemModel() { return model_; }
  // The view on show: the list view for views 0 to 2, the details view for 3.
  QAbstractItemView& currentView() const;
  QListView& listView() { return listView_; }
  QTreeView& detailsView() { return detailsView_; }

 protected:
  void applyChange(ControlChange change) override;

 private:
  void applyView();
  void applyListMode();
  void applyColumns();
  void applySelection();
  void userChangedSelection();
  void userResizedColumn(int section, int newSize);
  void userMovedColumn(int section, int newVisual);
  void userClickedColumn(int section);
  void showDropTarget();

  ListViewItemModel model_;
  ForwardingView<QListView> listView_;
  ForwardingView<QTreeView> detailsView_;
  QStackedLayout* pages_;
  QFrame* dropFrame_;
  bool syncing_ = false;
};

}  // namespace qb::gui
