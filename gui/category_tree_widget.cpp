#include "gui/category_tree_widget.h"

#include <QHeaderView>

#include "gui/sync_guard.h"
#include "gui/theme_icons.h"
#include "gui/twips.h"

namespace qb::gui {

CategoryTreeWidget::CategoryTreeWidget(TreeView& control, QWidget* parent)
    : BoundWidget(control, parent) {
  setColumnCount(1);
  header()->hide();
  setRootIsDecorated(true);
  setUniformRowHeights(true);
  setIconSize(QSize(16, 16));
  setSelectionMode(QAbstractItemView::SingleSelection);
  setExpandsOnDoubleClick(true);
  setFrameShape(QFrame::StyledPanel);
  forwardTo(&binding().input(), false, &binding().oleDrag());
  binding().oleDrag().onDragChanged = [this] { showDropTarget(); };
  connect(this, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* current) { userChangedCurrent(current); });
  connect(this, &QTreeWidget::itemExpanded, this,
          [this](QTreeWidgetItem* item) { userExpanded(item, true); });
  connect(this, &QTreeWidget::itemCollapsed, this,
          [this](QTreeWidgetItem* item) { userExpanded(item, false); });
  this->control().setHitTestProvider([this](float x, float y) -> Node* {
    const QPoint point = viewport()->mapFrom(this, QPoint(toPixels(x), toPixels(y)));
    return nodeOf(itemAt(point));
  });
  binding().applyAll();
}

CategoryTreeWidget::~CategoryTreeWidget() {
  control().setHitTestProvider({});
  binding().oleDrag().onDragChanged = nullptr;
  // The tree's own teardown must not reach the handlers of a half-gone widget.
  disconnect(this, nullptr, this, nullptr);
}

void CategoryTreeWidget::applyChange(ControlChange change) {
  switch (change) {
    case ControlChange::Items:
      rebuild();
      break;
    case ControlChange::Text:
      applyTexts();
      break;
    case ControlChange::Images:
      applyIcons();
      break;
    case ControlChange::View:
      applyExpansion();
      break;
    case ControlChange::Selection:
      applySelection();
      applyIcons();  // a selected node may show its own picture
      break;
    default:
      break;
  }
}

void CategoryTreeWidget::rebuild() {
  dropTarget_ = nullptr;
  quietly(syncing_, [this] {
    clear();
    items_.clear();
    nodes_.clear();
    for (Node* root : control().roots()) addItems(*root, nullptr);
  });
  applyIcons();
  applyExpansion();
  applySelection();
}

void CategoryTreeWidget::addItems(Node& node, QTreeWidgetItem* parent) {
  auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
  item->setText(0, QString::fromStdString(node.Text()));
  items_.insert(&node, item);
  nodes_.insert(item, &node);
  for (Node* child : node.childNodes()) addItems(*child, item);
}

void CategoryTreeWidget::applyTexts() {
  for (auto it = items_.constBegin(); it != items_.constEnd(); ++it) {
    it.value()->setText(0, QString::fromStdString(it.key()->Text()));
  }
}

void CategoryTreeWidget::applyIcons() {
  for (auto it = items_.constBegin(); it != items_.constEnd(); ++it) {
    it.value()->setIcon(0, iconFor(control().pictureOf(*it.key())));
  }
}

void CategoryTreeWidget::applyExpansion() {
  quietly(syncing_, [this] {
    for (auto it = items_.constBegin(); it != items_.constEnd(); ++it) {
      if (it.value()->isExpanded() != it.key()->Expanded())
        it.value()->setExpanded(it.key()->Expanded());
    }
  });
}

void CategoryTreeWidget::applySelection() {
  quietly(syncing_, [this] {
    QTreeWidgetItem* item = itemOf(control().SelectedItem());
    if (item == currentItem()) return;
    if (item == nullptr) {
      clearSelection();
      setCurrentItem(nullptr);
    } else {
      setCurrentItem(item);
      scrollToItem(item);
    }
  });
}

void CategoryTreeWidget::userChangedCurrent(QTreeWidgetItem* current) {
  if (syncing_) return;
  Node* node = nodeOf(current);
  if (node == nullptr) return;
  // A click selects the node as the user's click; the keys move the
  // selection without one.
  if (pressing()) {
    control().userClickNode(*node);
  } else {
    control().setSelectedItem(node);
  }
}

void CategoryTreeWidget::userExpanded(QTreeWidgetItem* item, bool expanded) {
  if (syncing_) return;
  Node* node = nodeOf(item);
  if (node == nullptr || node->Expanded() == expanded) return;
  if (expanded) {
    control().userExpand(*node);
  } else {
    control().userCollapse(*node);
  }
}

void CategoryTreeWidget::showDropTarget() {
  const OleDragDrop& drag = binding().oleDrag();
  QTreeWidgetItem* target = nullptr;
  if (drag.dragPoint() && drag.dragEffect() != DROPEFFECT_NONE)
    target = itemAt(viewport()->mapFrom(this, *drag.dragPoint()));
  if (target == dropTarget_) return;
  if (dropTarget_ != nullptr) dropTarget_->setData(0, Qt::BackgroundRole, QVariant());
  dropTarget_ = target;
  if (target == nullptr) return;
  QColor shade = palette().color(QPalette::Highlight);
  shade.setAlpha(96);
  target->setBackground(0, shade);
}

}  // namespace qb::gui
