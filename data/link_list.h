#pragma once
// LinkList: an in-memory list of rows of Variant columns, walked with a
// current row. Rows are read in the order they were added.
//
//   list.add(3, categoryID);
//   if (!list.isEmpty()) {
//     for (list.moveFirst(); !list.isEnd(); list.moveNext()) use(list.column(2));
//   }

#include <array>
#include <cstdint>
#include <vector>

#include "services/runtime/variant.h"

namespace qb {

class LinkList {
 public:
  static constexpr int32_t kColumns = 4;

  // Adds a row at the end; the columns past those given stay Empty.
  void add(Variant first, Variant second, Variant third = {}, Variant fourth = {});
  bool isEmpty() const { return rows_.empty(); }
  int32_t rowCount() const { return static_cast<int32_t>(rows_.size()); }
  void moveFirst() { position_ = 0; }
  void moveNext();
  // True when the current row is past the last.
  bool isEnd() const { return position_ >= rows_.size(); }
  // Column 1 to kColumns of the current row; fails with a subscript error
  // past the end or outside the columns.
  Variant column(int32_t index) const;

 private:
  std::vector<std::array<Variant, kColumns>> rows_;
  size_t position_ = 0;
};

}  // namespace qb
