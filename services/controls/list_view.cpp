#include "services/controls/list_view.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "services/controls/collection_support.h"
#include "services/runtime/strings.h"

namespace qb {

ListView::ListView(std::string name, int32_t index) : Control(std::move(name), index) {}
ListView::~ListView() = default;

ListItem* ListView::SelectedItem() const {
  if (focused_ && focused_->selected_) return focused_;
  for (auto& row : rows_) {
    if (row->selected_) return row.get();
  }
  return nullptr;
}

void ListView::setSelectedItem(ListItem* item) {
  if (item) {
    if (&item->list() != this) control_failures::invalidProperty();
    item->setSelected(true);
    return;
  }
  for (auto& row : rows_) row->selected_ = false;
  focused_ = nullptr;
  notify(ControlChange::Selection);
}

std::vector<ListItem*> ListView::selectedItems() const {
  std::vector<ListItem*> selected;
  for (auto& row : rows_) {
    if (row->selected_) selected.push_back(row.get());
  }
  return selected;
}

void ListView::setMultiSelect(bool value) {
  multiSelect_ = value;
  if (!value) {
    ListItem* keep = SelectedItem();
    for (auto& row : rows_) row->selected_ = row.get() == keep;
    notify(ControlChange::Selection);
  }
}

void ListView::selectionChanged(ListItem& item, bool selected) {
  if (selected) {
    if (!multiSelect_) {
      for (auto& row : rows_) {
        if (row.get() != &item) row->selected_ = false;
      }
    }
    focused_ = &item;
  }
  notify(ControlChange::Selection);
}

ListItem* ListView::HitTest(float x, float y) const {
  if (hitTestProvider_) return hitTestProvider_(x, y);
  float top = view_ == lvwReport && !hideColumnHeaders_ ? headerHeight_ : 0;
  if (x < 0 || y < top || rowHeight_ <= 0) return nullptr;
  auto row = static_cast<int64_t>(std::floor((y - top) / rowHeight_)) + scrollTop_;
  return row < static_cast<int64_t>(rows_.size()) ? rows_[row].get() : nullptr;
}

float ListView::rowTop(const ListItem& item) const {
  const float top = view_ == lvwReport && !hideColumnHeaders_ ? headerHeight_ : 0;
  const int32_t row = item.Index() - 1 - scrollTop_;
  return row < 0 ? -1 : top + static_cast<float>(row) * rowHeight_;
}

void ListView::setScrollTop(int32_t row) {
  scrollTop_ = std::max(0, row);
  notify(ControlChange::View);
}

namespace {

// True when value begins with text, ignoring case; with wholeWord the match
// must also end at the end of value or before a character that is not a
// letter or a digit.
bool beginsWith(const std::string& value, const std::string& text, bool wholeWord) {
  std::string folded = UCase(value);
  std::string wanted = UCase(text);
  if (folded.compare(0, wanted.size(), wanted) != 0) return false;
  if (!wholeWord || folded.size() == wanted.size()) return true;
  unsigned char after = static_cast<unsigned char>(folded[wanted.size()]);
  return after < 0x80 && !std::isalnum(after);
}

}  // namespace

ListItem* ListView::FindItem(const std::string& text, int16_t where, int32_t start,
                             int16_t match) const {
  if (where < lvwText || where > lvwTag || match < lvwWholeWord || match > lvwPartial) {
    control_failures::invalidCall();
  }
  bool wholeWord = match == lvwWholeWord;
  for (int32_t i = std::max(1, start); i <= ListItems().Count(); ++i) {
    ListItem& row = *rows_[i - 1];
    if (where == lvwText && beginsWith(row.text_, text, wholeWord)) return &row;
    if (where == lvwTag && beginsWith(row.tag_, text, wholeWord)) return &row;
    if (where == lvwSubItem) {
      for (int32_t k = 1; k <= row.ListSubItems().Count(); ++k) {
        if (beginsWith(row.ListSubItems().item(k).Text(), text, wholeWord)) return &row;
      }
    }
  }
  return nullptr;
}

void ListView::setView(int16_t value) {
  if (value < lvwIcon || value > lvwReport) control_failures::invalidProperty();
  view_ = value;
  notify(ControlChange::View);
}

void ListView::setArrange(int16_t value) {
  if (value < lvwNone || value > lvwAutoTop) control_failures::invalidProperty();
  arrange_ = value;
  notify(ControlChange::View);
}

void ListView::setSorted(bool value) {
  sorted_ = value;
  keepSorted();
  notify(ControlChange::View);
}

void ListView::setSortKey(int16_t value) {
  if (value < 0) control_failures::invalidProperty();
  sortKey_ = value;
  keepSorted();
  notify(ControlChange::View);
}

void ListView::setSortOrder(int16_t value) {
  if (value != lvwAscending && value != lvwDescending) control_failures::invalidProperty();
  sortOrder_ = value;
  keepSorted();
  notify(ControlChange::View);
}

void ListView::setHideColumnHeaders(bool value) {
  hideColumnHeaders_ = value;
  notify(ControlChange::View);
}

void ListView::setIcons(qb::ImageList* images) {
  icons_ = images;
  notify(ControlChange::Images);
}

void ListView::setSmallIcons(qb::ImageList* images) {
  smallIcons_ = images;
  notify(ControlChange::Images);
}

Picture ListView::pictureOf(const ListItem& item) const {
  qb::ImageList* images = view_ == lvwIcon ? icons_ : smallIcons_;
  int32_t index = view_ == lvwIcon ? item.icon_ : item.smallIcon_;
  if (!images || index == 0) return Picture();
  return images->pictureOf(Variant(index));
}

void ListView::userClickItem(ListItem& item) {
  setSelectedItem(nullptr);
  item.setSelected(true);
  ItemClick.raise(item);
  Click.raise();
}

void ListView::userClickColumn(ColumnHeader& column) { ColumnClick.raise(column); }

namespace {

// The order of two rows by the text of one column, ignoring case.
bool sortsBefore(const ListItem& a, const ListItem& b, int16_t column, int16_t order) {
  std::string left = UCase(a.SubItems(column));
  std::string right = UCase(b.SubItems(column));
  return order == lvwDescending ? right < left : left < right;
}

}  // namespace

void ListView::keepSorted() {
  if (!sorted_ || rows_.size() < 2) return;
  // Each row's folded sort text is made once, not at every comparison; the
  // order is the one sortsBefore gives.
  std::vector<std::string> texts(rows_.size());
  std::vector<size_t> places(rows_.size());
  for (size_t i = 0; i < rows_.size(); ++i) {
    texts[i] = UCase(rows_[i]->SubItems(sortKey_));
    places[i] = i;
  }
  bool descending = sortOrder_ == lvwDescending;
  std::stable_sort(places.begin(), places.end(), [&](size_t a, size_t b) {
    return descending ? texts[b] < texts[a] : texts[a] < texts[b];
  });
  std::vector<std::unique_ptr<ListItem>> sorted;
  sorted.reserve(rows_.size());
  for (size_t place : places) sorted.push_back(std::move(rows_[place]));
  rows_ = std::move(sorted);
  renumber();
  notify(ControlChange::Items);
}

void ListView::renumber(size_t from) {
  collection_support::numberFromOne(rows_, &ListItem::index_, from);
}

void ListView::forget(ListItem& item) {
  if (focused_ == &item) focused_ = nullptr;
  if (!item.key_.empty()) keys_.erase(item.key_);
  std::erase_if(rows_,
                [&item](const std::unique_ptr<ListItem>& row) { return row.get() == &item; });
  renumber();
  notify(ControlChange::Items);
}

bool ListView::isConsistent() const {
  size_t keyed = 0;
  int32_t selected = 0;
  for (size_t i = 0; i < rows_.size(); ++i) {
    const ListItem& row = *rows_[i];
    if (row.index_ != static_cast<int32_t>(i + 1) || row.list_ != this) return false;
    if (!row.key_.empty()) {
      ++keyed;
      auto found = keys_.find(row.key_);
      if (found == keys_.end() || found->second != &row) return false;
    }
    for (int32_t k = 1; k <= row.ListSubItems().Count(); ++k) {
      if (row.ListSubItems().item(k).Index() != k) return false;
    }
    if (row.selected_) ++selected;
    if (sorted_ && i > 0 && sortsBefore(row, *rows_[i - 1], sortKey_, sortOrder_)) return false;
  }
  if (keyed != keys_.size()) return false;
  if (!multiSelect_ && selected > 1) return false;
  ListItem* current = SelectedItem();
  if (current && (current->list_ != this || !current->selected_)) return false;
  if (focused_ && std::none_of(rows_.begin(), rows_.end(),
                               [this](const auto& row) { return row.get() == focused_; })) {
    return false;
  }
  return true;
}

std::string ListView::dump(bool marks) const {
  std::string out;
  for (auto& row : rows_) {
    out += "[";
    if (marks && row->selected_) out += "*";
    out += row->text_;
    for (int32_t k = 1; k <= row->ListSubItems().Count(); ++k) {
      out += "|" + row->ListSubItems().item(k).Text();
    }
    out += "]";
  }
  return out;
}

}  // namespace qb
