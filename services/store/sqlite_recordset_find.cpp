// findRecord: the first row whose field equals a value. Each field searched
// gets an index from its normalised values to the rows that hold them, made
// on the first search and kept up to date by this recordset's own writes; it
// is made afresh when the field's table was written through another
// recordset since.

#include <algorithm>
#include <charconv>

#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"
#include "services/store/sqlite_recordset.h"
#include "services/store/sqlite_store_errors.h"

namespace qb::sqlite {

namespace {

// Numbers (and dates, by their serial) compare by value: 5 and 5.0 share
// "n:5". Booleans are "b:1"/"b:0"; text is "s:" and the text in upper case.
std::string numberKey(double number) {
  if (number == 0) number = 0;  // -0 and 0 are one value
  char buffer[40];
  auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  return "n:" + std::string(buffer, end);
}

// The key of a stored value; "" for Null, which equals nothing.
std::string valueKey(const Variant& value) {
  switch (value.type()) {
    case VarType::Boolean:
      return value.rawBool() ? "b:1" : "b:0";
    case VarType::Integer:
    case VarType::Long:
      return numberKey(value.rawInt());
    case VarType::Double:
    case VarType::Date:
      return numberKey(value.rawDouble());
    case VarType::String:
      return "s:" + UCase(value.rawString());
    default:
      return "";
  }
}

// Every key the searched text can stand for in a field of that kind.
std::vector<std::string> searchKeys(const std::string& text, FieldKind kind) {
  std::vector<std::string> keys{"s:" + UCase(text)};
  double number = 0;
  std::string trimmed = Trim(text);
  if (parseNumber(trimmed, number)) {
    keys.push_back(numberKey(number));
    keys.push_back(number != 0 ? "b:1" : "b:0");
  } else if (equalsText(trimmed, "True") || equalsText(trimmed, "False")) {
    keys.push_back(equalsText(trimmed, "True") ? "b:1" : "b:0");
  } else if (kind == FieldKind::Date && parseDate(trimmed, number)) {
    keys.push_back(numberKey(number));
  }
  return keys;
}

}  // namespace

bool Recordset::find(const std::string& name, const std::string& value) {
  int column = requireColumn(Variant(name));
  FindIndex& index = indexOf(column);
  int table = shape_->columns[column].table;
  size_t best = rows_;
  for (const std::string& key : searchKeys(value, shape_->columns[column].kind)) {
    auto found = index.find(key);
    if (found == index.end()) continue;
    for (size_t row : found->second) {
      if (row >= best) break;
      if (table < 0 || !keyOf(row, table).deleted) {
        best = row;
        break;
      }
    }
  }
  position_ = best;
  return best < rows_;
}

Recordset::FindIndex& Recordset::indexOf(int column) {
  int table = shape_->columns[column].table;
  auto found = indexes_.find(column);
  bool current = table < 0 || seen_[table] == connection_.version(shape_->tables[table].tableId);
  if (found != indexes_.end() && current) return found->second;

  // Made from fresh values, so afterwards all of this table's values of the
  // recordset are current. Rows read afresh on the way keep the other
  // fields' indexes up to date themselves.
  if (found != indexes_.end()) indexes_.erase(found);
  FindIndex index;
  for (size_t row = 0; row < rows_; ++row) {
    const Variant* stored = freshValue(row, column);
    if (stored == nullptr) continue;
    std::string key = valueKey(*stored);
    if (!key.empty()) index[key].push_back(row);
  }
  if (table >= 0) seen_[table] = connection_.version(shape_->tables[table].tableId);
  return indexes_[column] = std::move(index);
}

void Recordset::reindex(int column, size_t row, const Variant& before, const Variant& after) {
  auto found = indexes_.find(column);
  if (found == indexes_.end()) return;
  FindIndex& index = found->second;
  std::string oldKey = valueKey(before), newKey = valueKey(after);
  if (oldKey == newKey) return;
  if (!oldKey.empty()) {
    auto& rows = index[oldKey];
    auto at = std::lower_bound(rows.begin(), rows.end(), row);
    if (at != rows.end() && *at == row) rows.erase(at);
  }
  if (!newKey.empty()) {
    auto& rows = index[newKey];
    rows.insert(std::lower_bound(rows.begin(), rows.end(), row), row);
  }
}

}  // namespace qb::sqlite
