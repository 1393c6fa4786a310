#include "gui/document_list_widget.h"

#include <QFrame>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QResizeEvent>
#include <QStackedLayout>
#include <QStyledItemDelegate>

#include "gui/sync_guard.h"
#include "gui/twips.h"

namespace qb::gui {

namespace {

// Room left between the cells of the grid.
constexpr int kCellGap = 2;
// The width of a cell under large icons.
constexpr int kIconCellWidth = 104;

// Every row of the list view fills its grid cell. The view would otherwise
// size all rows by the first one, so that a short first name (which changes
// with the sort) cut every longer one short; in a cell, a name takes the
// lines and the width the cell has.
class GridCellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const auto* view = qobject_cast<const QListView*>(option.widget);
    if (view == nullptr || !view->gridSize().isValid())
      return QStyledItemDelegate::sizeHint(option, index);
    const QSize cell = view->gridSize() - QSize(kCellGap, kCellGap);
    if (view->viewMode() == QListView::IconMode) return cell;
    return {cell.width(), QStyledItemDelegate::sizeHint(option, index).height()};
  }

 protected:
  // Under a large icon the name starts right below it, however many lines
  // it takes.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->decorationPosition == QStyleOptionViewItem::Top)
      option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
  }
};

}  // namespace

DocumentListWidget::DocumentListWidget(ListView& control, QWidget* parent)
    : BoundWidget(control, parent),
      model_(control),
      listView_(this),
      detailsView_(this),
      pages_(new QStackedLayout(this)),
      dropFrame_(new QFrame(this)) {
  pages_->setContentsMargins(0, 0, 0, 0);
  pages_->addWidget(&listView_);
  pages_->addWidget(&detailsView_);

  listView_.setModel(&model_);
  detailsView_.setModel(&model_);
  // One selection for both views.
  QItemSelectionModel* own = detailsView_.selectionModel();
  detailsView_.setSelectionModel(listView_.selectionModel());
  delete own;

  for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(&listView_),
                                  static_cast<QAbstractItemView*>(&detailsView_)}) {
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setFrameShape(QFrame::StyledPanel);
  }
  listView_.forwardTo(&binding().input(), true, &binding().oleDrag());
  detailsView_.forwardTo(&binding().input(), true, &binding().oleDrag());
  // The drop frame lies over the views and lets every event through.
  dropFrame_->setAttribute(Qt::WA_TransparentForMouseEvents);
  dropFrame_->setFrameShape(QFrame::Box);
  dropFrame_->setLineWidth(2);
  dropFrame_->hide();
  binding().oleDrag().onDragChanged = [this] { showDropTarget(); };
  listView_.setItemDelegate(new GridCellDelegate(&listView_));
  listView_.setUniformItemSizes(true);
  listView_.setTextElideMode(Qt::ElideRight);
  detailsView_.setRootIsDecorated(false);
  detailsView_.setItemsExpandable(false);
  detailsView_.setUniformRowHeights(true);
  detailsView_.setAllColumnsShowFocus(true);
  detailsView_.setIconSize(QSize(16, 16));
  detailsView_.setSortingEnabled(false);
  QHeaderView* header = detailsView_.header();
  header->setStretchLastSection(false);
  header->setSectionsClickable(true);
  header->setSectionsMovable(true);
  header->setHighlightSections(false);
  header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  connect(listView_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { userChangedSelection(); });
  connect(listView_.selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { userChangedSelection(); });
  connect(header, &QHeaderView::sectionResized, this,
          [this](int section, int, int newSize) { userResizedColumn(section, newSize); });
  connect(header, &QHeaderView::sectionMoved, this,
          [this](int section, int, int newVisual) { userMovedColumn(section, newVisual); });
  connect(header, &QHeaderView::sectionClicked, this,
          [this](int section) { userClickedColumn(section); });
  // A click on a row raises ItemClick, then Click, after the view selected it.
  for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(&listView_),
                                  static_cast<QAbstractItemView*>(&detailsView_)}) {
    connect(view, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
      if (ListItem* item = model_.itemAt(index)) this->control().ItemClick.raise(*item);
      this->control().Click.raise();
    });
  }

  this->control().setHitTestProvider([this](float x, float y) -> ListItem* {
    QAbstractItemView& view = currentView();
    const QPoint point = view.viewport()->mapFrom(this, QPoint(toPixels(x), toPixels(y)));
    return model_.itemAt(view.indexAt(point));
  });
  binding().applyAll();
}

DocumentListWidget::~DocumentListWidget() {
  control().setHitTestProvider({});
  binding().oleDrag().onDragChanged = nullptr;
  // The views' own teardown must not reach the handlers of a half-gone widget.
  for (QObject* sender :
       {static_cast<QObject*>(listView_.selectionModel()),
        static_cast<QObject*>(detailsView_.header()), static_cast<QObject*>(&listView_),
        static_cast<QObject*>(&detailsView_)}) {
    disconnect(sender, nullptr, this, nullptr);
  }
}

QAbstractItemView& DocumentListWidget::currentView() const {
  if (control().View() == lvwReport) return const_cast<ForwardingView<QTreeView>&>(detailsView_);
  return const_cast<ForwardingView<QListView>&>(listView_);
}

void DocumentListWidget::applyChange(ControlChange change) {
  switch (change) {
    case ControlChange::Items:
      quietly(syncing_, [this] { model_.reset(); });
      applyColumns();
      applySelection();
      break;
    case ControlChange::Text:
      model_.textsChanged();
      break;
    case ControlChange::Images:
      model_.picturesChanged();
      break;
    case ControlChange::Selection:
      // While the user's own selection goes to the model, the model's
      // notices must not send it back half done.
      if (!syncing_) applySelection();
      break;
    case ControlChange::View:
      applyView();
      break;
    case ControlChange::Repaint:
      listView_.viewport()->update();
      detailsView_.viewport()->update();
      break;
    default:
      break;
  }
}

void DocumentListWidget::applyView() {
  const bool details = control().View() == lvwReport;
  QAbstractItemView& shown = currentView();
  if (pages_->currentWidget() != &shown) {
    const bool hadFocus = pages_->currentWidget() && pages_->currentWidget()->hasFocus();
    pages_->setCurrentWidget(&shown);
    if (hadFocus) shown.setFocus();
  }
  setFocusProxy(&shown);
  if (!details) applyListMode();
  quietly(syncing_, [this] { model_.headersChanged(); });
  applyColumns();
  applySelection();
}

void DocumentListWidget::applyListMode() {
  const int16_t view = control().View();
  // Setting the mode resets flow, wrapping and movement: it goes first.
  listView_.setViewMode(view == lvwIcon ? QListView::IconMode : QListView::ListMode);
  listView_.setMovement(QListView::Static);
  listView_.setResizeMode(QListView::Adjust);
  listView_.setWrapping(true);
  listView_.setWordWrap(view == lvwIcon);
  if (view == lvwIcon) {
    // Arranged to the left the icons fill columns; otherwise rows.
    listView_.setFlow(control().Arrange() == lvwAutoLeft ? QListView::TopToBottom
                                                         : QListView::LeftToRight);
    listView_.setIconSize(QSize(32, 32));
    // A cell holds the icon and three lines of the name.
    listView_.setGridSize(
        QSize(kIconCellWidth, 32 + 3 * listView_.fontMetrics().lineSpacing() + 12));
    listView_.setSpacing(0);
  } else {
    listView_.setFlow(view == lvwSmallIcon ? QListView::LeftToRight : QListView::TopToBottom);
    listView_.setIconSize(QSize(16, 16));
    listView_.setGridSize(QSize(view == lvwSmallIcon ? 190 : 220, 22));
    listView_.setSpacing(0);
  }
  const bool multi = control().MultiSelect();
  for (QAbstractItemView* v : {static_cast<QAbstractItemView*>(&listView_),
                               static_cast<QAbstractItemView*>(&detailsView_)}) {
    v->setSelectionMode(multi ? QAbstractItemView::ExtendedSelection
                              : QAbstractItemView::SingleSelection);
  }
}

void DocumentListWidget::applyColumns() {
  QHeaderView* header = detailsView_.header();
  const ColumnHeaderCollection& columns = control().ColumnHeaders();
  quietly(syncing_, [&] {
    header->setVisible(!control().HideColumnHeaders());
    for (int32_t i = 1; i <= columns.Count() && i <= model_.columnCount(); ++i) {
      const ColumnHeader& column = columns.item(i);
      const int section = i - 1;
      if (header->sectionSize(section) != toPixels(column.Width())) {
        header->resizeSection(section, toPixels(column.Width()));
      }
      const int visual = header->visualIndex(section);
      if (visual != column.Position() - 1) header->moveSection(visual, column.Position() - 1);
    }
    header->setSortIndicatorShown(control().Sorted() && control().SortKey() < model_.columnCount());
    if (control().Sorted()) {
      header->setSortIndicator(control().SortKey(), control().SortOrder() == lvwDescending
                                                        ? Qt::DescendingOrder
                                                        : Qt::AscendingOrder);
    }
  });
}

void DocumentListWidget::applySelection() {
  quietly(syncing_, [this] {
    QItemSelectionModel* selection = listView_.selectionModel();
    QItemSelection rows;
    for (ListItem* item : control().selectedItems()) {
      const QModelIndex first = model_.indexOf(*item);
      if (first.isValid()) rows.select(first, first.siblingAtColumn(model_.columnCount() - 1));
    }
    selection->select(rows, QItemSelectionModel::ClearAndSelect);
    ListItem* current = control().SelectedItem();
    selection->setCurrentIndex(current ? model_.indexOf(*current) : QModelIndex(),
                               QItemSelectionModel::NoUpdate);
  });
}

void DocumentListWidget::userChangedSelection() {
  if (syncing_) return;
  quietly(syncing_, [this] {
    QItemSelectionModel* selection = listView_.selectionModel();
    const int32_t count = control().ListItems().Count();
    // Rows that left the selection first, so that a single-selection list
    // never holds two; the current row last, so that it is SelectedItem.
    for (int32_t i = 1; i <= count; ++i) {
      ListItem& item = control().ListItems().item(i);
      if (item.Selected() && !selection->isRowSelected(i - 1, QModelIndex()))
        item.setSelected(false);
    }
    ListItem* current = model_.itemAt(selection->currentIndex());
    for (int32_t i = 1; i <= count; ++i) {
      ListItem& item = control().ListItems().item(i);
      if (&item != current && !item.Selected() && selection->isRowSelected(i - 1, QModelIndex())) {
        item.setSelected(true);
      }
    }
    if (current && selection->isRowSelected(current->Index() - 1, QModelIndex()))
      current->setSelected(true);
  });
}

void DocumentListWidget::userResizedColumn(int section, int newSize) {
  if (syncing_ || section >= control().ColumnHeaders().Count()) return;
  quietly(syncing_,
          [&] { control().ColumnHeaders().item(section + 1).setWidth(toTwips(newSize)); });
}

void DocumentListWidget::userMovedColumn(int section, int newVisual) {
  if (syncing_ || section >= control().ColumnHeaders().Count()) return;
  quietly(syncing_, [&] {
    control().ColumnHeaders().item(section + 1).setPosition(static_cast<int16_t>(newVisual + 1));
  });
  applyColumns();
}

void DocumentListWidget::showDropTarget() {
  const OleDragDrop& drag = binding().oleDrag();
  const bool shown = drag.dragPoint() && drag.dragEffect() != DROPEFFECT_NONE;
  if (shown) {
    QPalette colours = dropFrame_->palette();
    colours.setColor(QPalette::WindowText, palette().color(QPalette::Highlight));
    dropFrame_->setPalette(colours);
    dropFrame_->setGeometry(rect());
    dropFrame_->raise();
  }
  dropFrame_->setVisible(shown);
}

void DocumentListWidget::userClickedColumn(int section) {
  if (section >= control().ColumnHeaders().Count()) return;
  control().userClickColumn(control().ColumnHeaders().item(section + 1));
}

}  // namespace qb::gui
