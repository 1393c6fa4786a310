#pragma once
// ColumnHeader and ColumnHeaderCollection: the columns of a ListView's report
// view, 1-based. Left is computed from the widths of the columns before it in
// display order (Position). The column at index 1 shows the rows' Text and is
// always left-aligned; the column at index k shows sub-item k - 1
// (SubItemIndex).

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qb {

class ListView;

// Alignment values.
constexpr int16_t lvwColumnLeft = 0;
constexpr int16_t lvwColumnRight = 1;
constexpr int16_t lvwColumnCenter = 2;

class ColumnHeader {
 public:
  int32_t Index() const { return index_; }
  const std::string& Key() const { return key_; }
  const std::string& Text() const { return text_; }
  void setText(std::string value);
  // Width in twips; a negative width is refused with err::kInvalidProperty.
  float Width() const { return width_; }
  void setWidth(float value);
  // 0 left, 1 right, 2 centre. The first column refuses anything but 0 with
  // RuntimeError(err::kInvalidProperty, "Invalid property value").
  int16_t Alignment() const { return alignment_; }
  void setAlignment(int16_t value);
  // Sum of the widths of the columns before this one in display order.
  float Left() const;
  // Display order, from 1. Setting it moves the column there among the others.
  int16_t Position() const;
  void setPosition(int16_t value);
  int16_t SubItemIndex() const { return static_cast<int16_t>(index_ - 1); }
  const std::string& Tag() const { return tag_; }
  void setTag(std::string value) { tag_ = std::move(value); }

 private:
  friend class ColumnHeaderCollection;
  explicit ColumnHeader(ListView& list) : list_(&list) {}
  ListView* list_;
  int32_t index_ = 0;
  std::string key_;
  std::string text_;
  float width_ = 1440;
  int16_t alignment_ = 0;
  std::string tag_;
};

class ColumnHeaderCollection {
 public:
  explicit ColumnHeaderCollection(ListView& list) : list_(list) {}

  // Adds a column and returns it. index: 1..Count+1, 0 appends; past Count + 1
  // is refused with RuntimeError(err::kIndexOutOfBounds, "Index out of
  // bounds"). width < 0 takes the default of 1440 twips. A key in use is
  // refused with err::kKeyNotUnique. A first column with an alignment other
  // than 0 is refused as ColumnHeader::setAlignment does. The new column goes
  // at the end of the display order.
  ColumnHeader& Add(int32_t index = 0, const std::string& key = "", const std::string& text = "",
                    float width = -1, int16_t alignment = 0);
  int32_t Count() const { return static_cast<int32_t>(columns_.size()); }
  // By index (from 1) or key; failures as ListItems.
  ColumnHeader& item(int32_t index) const;
  ColumnHeader& item(const std::string& key) const;
  ColumnHeader& operator()(int32_t index) const { return item(index); }
  void Remove(int32_t index);
  void Clear();
  // The columns in display order (by Position).
  std::vector<ColumnHeader*> inDisplayOrder() const;

 private:
  friend class ColumnHeader;
  void renumber();
  void changed();
  ListView& list_;
  std::vector<std::unique_ptr<ColumnHeader>> columns_;  // by index
  std::vector<ColumnHeader*> order_;                    // by position
};

}  // namespace qb
