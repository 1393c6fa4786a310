#pragma once
// ListView: rows (ListItems) with sub-items, column headers, two image lists,
// selection, sorting and the row layout that HitTest reads.
//
// Sorting: while Sorted is True the rows are kept in order of the text of
// column SortKey (0 = Text, k = sub-item k), compared as text ignoring case,
// ascending with SortOrder 0 and descending with 1; rows that compare equal
// keep their order. The rows themselves move, so Index follows the order and
// each row keeps its own Icon and Tag. Setting Sorted False leaves the order
// as it stands.
//
// Headless layout: one row per item top to bottom, RowHeight twips each,
// starting at row ScrollTop, below the column headers (HeaderHeight) in the
// report view when they show. A GUI installs a hit-test provider so that hits
// follow the real widget.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/controls/column_header.h"
#include "services/controls/control.h"
#include "services/controls/image_list.h"
#include "services/controls/list_item.h"
#include "services/controls/list_item_collection.h"

namespace qb {

// View values.
constexpr int16_t lvwIcon = 0;
constexpr int16_t lvwSmallIcon = 1;
constexpr int16_t lvwList = 2;
constexpr int16_t lvwReport = 3;
// Arrange values.
constexpr int16_t lvwNone = 0;
constexpr int16_t lvwAutoLeft = 1;
constexpr int16_t lvwAutoTop = 2;
// SortOrder values.
constexpr int16_t lvwAscending = 0;
constexpr int16_t lvwDescending = 1;
// FindItem: where to look, how to match.
constexpr int16_t lvwText = 0;
constexpr int16_t lvwSubItem = 1;
constexpr int16_t lvwTag = 2;
constexpr int16_t lvwWholeWord = 0;
constexpr int16_t lvwPartial = 1;

using ListItemHitTestProvider = std::function<ListItem*(float x, float y)>;

class ListView : public Control {
 public:
  explicit ListView(std::string name = "", int32_t index = -1);
  ~ListView() override;

  ListItemCollection& ListItems() { return items_; }
  const ListItemCollection& ListItems() const { return items_; }
  ColumnHeaderCollection& ColumnHeaders() { return columns_; }
  const ColumnHeaderCollection& ColumnHeaders() const { return columns_; }

  // The row selected last while it stays selected, else the first selected
  // row, else nullptr.
  ListItem* SelectedItem() const;
  // Selects item (as item.setSelected(true)); nullptr clears every selection.
  void setSelectedItem(ListItem* item);
  // The selected rows in index order.
  std::vector<ListItem*> selectedItems() const;
  bool MultiSelect() const { return multiSelect_; }
  // Turning MultiSelect off keeps only SelectedItem selected.
  void setMultiSelect(bool value);

  // The row under the point (twips, relative to the list), or nullptr for
  // empty space. Uses the hit-test provider when one is installed.
  ListItem* HitTest(float x, float y) const;
  void setHitTestProvider(ListItemHitTestProvider provider) {
    hitTestProvider_ = std::move(provider);
  }
  float RowHeight() const { return rowHeight_; }
  void setRowHeight(float twips) { rowHeight_ = twips; }
  float HeaderHeight() const { return headerHeight_; }
  void setHeaderHeight(float twips) { headerHeight_ = twips; }
  int32_t ScrollTop() const { return scrollTop_; }
  void setScrollTop(int32_t row);
  // The top of the row's place in the headless layout (twips), so that
  // HitTest at a point below it finds the row; -1 when it is scrolled above
  // ScrollTop.
  float rowTop(const ListItem& item) const;

  // The first row from index start on (1-based) that matches text, or nullptr.
  // where: lvwText (the row's Text), lvwSubItem (any sub-item), lvwTag. match:
  // lvwWholeWord, the searched text begins the value and ends there or before
  // a character that is not a letter or digit; lvwPartial, it begins the
  // value. Both ignore case. A start past the end finds nothing.
  ListItem* FindItem(const std::string& text, int16_t where = lvwText, int32_t start = 1,
                     int16_t match = lvwWholeWord) const;

  // 0 icons, 1 small icons, 2 list, 3 report (details). Other values are
  // refused with RuntimeError(err::kInvalidProperty, "Invalid property value").
  int16_t View() const { return view_; }
  void setView(int16_t value);
  // 0 none, 1 left, 2 top; other values refused as View.
  int16_t Arrange() const { return arrange_; }
  void setArrange(int16_t value);
  // Setting Sorted True (or SortKey or SortOrder while Sorted) sorts at once.
  bool Sorted() const { return sorted_; }
  void setSorted(bool value);
  int16_t SortKey() const { return sortKey_; }
  // A negative key is refused as View.
  void setSortKey(int16_t value);
  int16_t SortOrder() const { return sortOrder_; }
  // 0 or 1; other values refused as View.
  void setSortOrder(int16_t value);
  bool HideColumnHeaders() const { return hideColumnHeaders_; }
  void setHideColumnHeaders(bool value);

  // The image lists of the icon views and of the small-icon, list and report
  // views; nullptr for none. The list does not own them.
  qb::ImageList* Icons() const { return icons_; }
  void setIcons(qb::ImageList* images);
  qb::ImageList* SmallIcons() const { return smallIcons_; }
  void setSmallIcons(qb::ImageList* images);
  // The picture a row shows in the current view (Icon from Icons in view 0,
  // SmallIcon from SmallIcons otherwise), or an empty Picture.
  Picture pictureOf(const ListItem& item) const;

  // What a user does: click a row (selects it alone, raises ItemClick then
  // Click), or click a column header (raises ColumnClick).
  void userClickItem(ListItem& item);
  void userClickColumn(ColumnHeader& column);

  // True when the model holds together: indexes run 1..Count, every key maps
  // to its row, sub-item indexes run 1..Count on each row, SelectedItem is a
  // selected row of this list, a single-selection list has at most one
  // selected row, and a Sorted list is in order.
  bool isConsistent() const;
  // The rows as text: "[Text|sub 1|sub 2]" for each row in order, e.g.
  // "[a.pdf|1.5 Mb][b.txt|0 Mb]". With marks, selected rows start with "*".
  std::string dump(bool marks = false) const;

  Event<void(ListItem& item)> ItemClick;
  Event<void(ColumnHeader& column)> ColumnClick;

 private:
  friend class ListItem;
  friend class ListSubItem;
  friend class ListSubItemCollection;
  friend class ListItemCollection;
  friend class ColumnHeader;
  friend class ColumnHeaderCollection;

  void changed(ControlChange change) { notify(change); }
  // Re-sorts when Sorted; then renumbers.
  void keepSorted();
  // Numbers the rows from position from (0-based) on.
  void renumber(size_t from = 0);
  void selectionChanged(ListItem& item, bool selected);
  void forget(ListItem& item);

  ListItemCollection items_{*this};
  ColumnHeaderCollection columns_{*this};
  std::vector<std::unique_ptr<ListItem>> rows_;  // in index order
  std::unordered_map<std::string, ListItem*> keys_;
  ListItem* focused_ = nullptr;
  bool multiSelect_ = false;
  ListItemHitTestProvider hitTestProvider_;
  float rowHeight_ = 255;
  float headerHeight_ = 300;
  int32_t scrollTop_ = 0;
  int16_t view_ = lvwIcon;
  int16_t arrange_ = lvwNone;
  bool sorted_ = false;
  int16_t sortKey_ = 0;
  int16_t sortOrder_ = lvwAscending;
  bool hideColumnHeaders_ = false;
  qb::ImageList* icons_ = nullptr;
  qb::ImageList* smallIcons_ = nullptr;
};

}  // namespace qb
