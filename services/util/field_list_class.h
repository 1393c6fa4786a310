#pragma once
// FieldListClass: a table of rows, each an index and up to 24 Variant
// columns, with one current row. The merge engine keeps its field table in
// one (column 1 the field's name, 2 its display name, 3 its source, 4 its
// type, 5 its sample, 6 its maximum length); the other columns are free.
//
// Rows keep the order they were added in. Text compares without regard to
// case when a row is looked for: a template's marker names the same field
// in any case, and the check and the merge must agree on what a name means.

#include <cstdint>
#include <initializer_list>
#include <unordered_map>
#include <vector>

#include "services/runtime/variant.h"

namespace qb {

class FieldListClass {
 public:
  static constexpr int32_t kColumns = 24;

  // Appends a row with its index and the columns from column 1 on; columns
  // left out read back Empty. More than 24 fail with err::kInvalidCall. The
  // new row does not become current.
  void addFieldRow(int32_t& index, std::initializer_list<Variant> columns);
  void addFieldRow(int32_t& index, const std::vector<Variant>& columns);
  void addFieldRow(int32_t& index, std::vector<Variant>&& columns);
  // Empties the table; no row is current.
  void clearFieldRows();
  int32_t getFieldRowCount() const { return static_cast<int32_t>(rows_.size()); }
  // A number that changes whenever a row is added or the table is emptied:
  // what a reader derived from the rows stays good while it is the same.
  uint64_t generation() const { return generation_; }

  // Makes the row with this index current; false, and the current row stays
  // what it was, when no row has it. Of two rows with one index the first.
  bool moveToFieldRow(int32_t& index);
  // Makes the first row whose column equals the value current and returns
  // its position from 0; -1 when none does, the current row staying as it
  // was. Text compares ignoring case, numbers by value, Empty as "". A
  // column outside 1 to 24 fails with err::kSubscript.
  int32_t findFieldRow(int32_t column, const Variant& value);
  // A column of the current row; Empty when no row is current. A column
  // outside 1 to 24 fails with err::kSubscript.
  Variant getFieldColumn(int32_t column) const;
  // The index of the current row; Empty when no row is current.
  Variant getFieldRowIndex() const;

 private:
  struct Row {
    int32_t index;
    std::vector<Variant> columns;  // as many as were given
  };

  std::vector<Row> rows_;
  std::unordered_map<int32_t, int32_t> positions_;  // index to the position of its first row
  int32_t current_ = -1;                            // position of the current row
  uint64_t generation_ = 0;
};

}  // namespace qb
