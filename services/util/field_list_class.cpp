#include "services/util/field_list_class.h"

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

void checkColumn(int32_t column) {
  if (column < 1 || column > FieldListClass::kColumns) {
    throw RuntimeError(err::kSubscript, "Subscript out of range");
  }
}

bool sameValue(const Variant& stored, const Variant& wanted) {
  if (stored.isNumberType() && wanted.isNumberType()) return CDbl(stored) == CDbl(wanted);
  if (stored.isNull() || wanted.isNull()) return stored.isNull() && wanted.isNull();
  return equalsText(toText(stored), toText(wanted));
}

}  // namespace

void FieldListClass::addFieldRow(int32_t& index, std::initializer_list<Variant> columns) {
  addFieldRow(index, std::vector<Variant>(columns));
}

void FieldListClass::addFieldRow(int32_t& index, const std::vector<Variant>& columns) {
  addFieldRow(index, std::vector<Variant>(columns));
}

void FieldListClass::addFieldRow(int32_t& index, std::vector<Variant>&& columns) {
  if (static_cast<int32_t>(columns.size()) > kColumns) {
    throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
  }
  positions_.emplace(index, getFieldRowCount());  // the first row with an index keeps it
  rows_.push_back(Row{index, std::move(columns)});
  ++generation_;
}

void FieldListClass::clearFieldRows() {
  rows_.clear();
  positions_.clear();
  current_ = -1;
  ++generation_;
}

bool FieldListClass::moveToFieldRow(int32_t& index) {
  auto found = positions_.find(index);
  if (found == positions_.end()) return false;
  current_ = found->second;
  return true;
}

int32_t FieldListClass::findFieldRow(int32_t column, const Variant& value) {
  checkColumn(column);
  for (int32_t i = 0; i < getFieldRowCount(); ++i) {
    const std::vector<Variant>& columns = rows_[i].columns;
    const Variant stored =
        column <= static_cast<int32_t>(columns.size()) ? columns[column - 1] : Variant();
    if (sameValue(stored, value)) {
      current_ = i;
      return i;
    }
  }
  return -1;
}

Variant FieldListClass::getFieldColumn(int32_t column) const {
  checkColumn(column);
  if (current_ < 0) return Variant();
  const std::vector<Variant>& columns = rows_[current_].columns;
  return column <= static_cast<int32_t>(columns.size()) ? columns[column - 1] : Variant();
}

Variant FieldListClass::getFieldRowIndex() const {
  if (current_ < 0) return Variant();
  return Variant(rows_[current_].index);
}

}  // namespace qb
