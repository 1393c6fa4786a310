#include "services/controls/column_header.h"

#include <algorithm>

#include "services/controls/collection_support.h"
#include "services/controls/list_view.h"

namespace qb {

void ColumnHeader::setText(std::string value) {
  text_ = std::move(value);
  list_->ColumnHeaders().changed();
}

void ColumnHeader::setWidth(float value) {
  if (value < 0) control_failures::invalidProperty();
  width_ = value;
  list_->ColumnHeaders().changed();
}

void ColumnHeader::setAlignment(int16_t value) {
  if (value < 0 || value > 2 || (index_ == 1 && value != lvwColumnLeft)) {
    control_failures::invalidProperty();
  }
  alignment_ = value;
  list_->ColumnHeaders().changed();
}

float ColumnHeader::Left() const {
  float left = 0;
  for (const ColumnHeader* column : list_->ColumnHeaders().order_) {
    if (column == this) break;
    left += column->width_;
  }
  return left;
}

int16_t ColumnHeader::Position() const {
  const auto& order = list_->ColumnHeaders().order_;
  return static_cast<int16_t>(std::find(order.begin(), order.end(), this) - order.begin() + 1);
}

void ColumnHeader::setPosition(int16_t value) {
  auto& order = list_->ColumnHeaders().order_;
  if (value < 1 || value > static_cast<int16_t>(order.size())) control_failures::invalidProperty();
  std::erase(order, this);
  order.insert(order.begin() + (value - 1), this);
  list_->ColumnHeaders().changed();
}

ColumnHeader& ColumnHeaderCollection::Add(int32_t index, const std::string& key,
                                          const std::string& text, float width, int16_t alignment) {
  if (index < 0 || index > Count() + 1) control_failures::indexOutOfBounds();
  if (index == 0) index = Count() + 1;
  if (alignment < 0 || alignment > 2 || (index == 1 && alignment != lvwColumnLeft)) {
    control_failures::invalidProperty();
  }
  if (!key.empty()) {
    for (auto& column : columns_) {
      if (column->key_ == key) control_failures::keyNotUnique();
    }
  }
  auto owned = std::unique_ptr<ColumnHeader>(new ColumnHeader(list_));
  owned->key_ = key;
  owned->text_ = text;
  if (width >= 0) owned->width_ = width;
  owned->alignment_ = alignment;
  ColumnHeader& added = *owned;
  columns_.insert(columns_.begin() + (index - 1), std::move(owned));
  order_.push_back(&added);
  renumber();
  changed();
  return added;
}

ColumnHeader& ColumnHeaderCollection::item(int32_t index) const {
  if (index < 1 || index > Count()) control_failures::indexOutOfBounds();
  return *columns_[index - 1];
}

ColumnHeader& ColumnHeaderCollection::item(const std::string& key) const {
  for (auto& column : columns_) {
    if (!key.empty() && column->key_ == key) return *column;
  }
  control_failures::elementNotFound();
}

void ColumnHeaderCollection::Remove(int32_t index) {
  ColumnHeader& column = item(index);
  std::erase(order_, &column);
  columns_.erase(columns_.begin() + (index - 1));
  renumber();
  changed();
}

void ColumnHeaderCollection::Clear() {
  order_.clear();
  columns_.clear();
  changed();
}

std::vector<ColumnHeader*> ColumnHeaderCollection::inDisplayOrder() const { return order_; }

void ColumnHeaderCollection::renumber() {
  collection_support::numberFromOne(columns_, &ColumnHeader::index_);
}

void ColumnHeaderCollection::changed() { list_.changed(ControlChange::View); }

}  // namespace qb
