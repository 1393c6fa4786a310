#pragma once
// CategoryTreeWidget: renders a TreeView model with a QTreeWidget. The items
// follow the model's nodes (text, picture, expansion, selection) through its
// change notifications; the user's clicks, keys, expanding and collapsing go
// back to the model as its events. HitTest on the model asks this widget
// which node is under a point.
//
// As on the platform, a right press does not select: the control decides
// what a right click selects. Drags go to the model's OLE drag events; while
// a drag that can be dropped passes over a node, the node is highlighted.

#include <QHash>
#include <QTreeWidget>

#include "gui/bound_widget.h"
#include "gui/forwarding_view.h"
#include "services/controls/tree_view.h"

namespace qb::gui {

class CategoryTreeWidget : public BoundWidget<ForwardingView<QTreeWidget>, TreeView> {
 public:
  CategoryTreeWidget(TreeView& control, QWidget* parent);
  ~CategoryTreeWidget() override;

  // The item that shows node, nullptr when none does.
  QTreeWidgetItem* itemOf(const Node* node) const { return items_.value(node, nullptr); }
  // The node an item shows, nullptr for none.
  Node* nodeOf(const QTreeWidgetItem* item) const { return nodes_.value(item, nullptr); }

 protected:
  void applyChange(ControlChange change) override;

 private:
  void rebuild();
  void addItems(Node& node, QTreeWidgetItem* parent);
  void applyTexts();
  void applyIcons();
  void applyExpansion();
  void applySelection();
  void userChangedCurrent(QTreeWidgetItem* current);
  void userExpanded(QTreeWidgetItem* item, bool expanded);
  // Highlights the node a drag over the tree would drop on.
  void showDropTarget();

  QHash<const Node*, QTreeWidgetItem*> items_;
  QHash<const QTreeWidgetItem*, Node*> nodes_;
  QTreeWidgetItem* dropTarget_ = nullptr;
  bool syncing_ = false;
};

}  // namespace qb::gui
