#include "merge/marker_keys.h"

#include <algorithm>

#include "merge/merge_field_types.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"
#include "services/util/field_list_class.h"

namespace qb {

namespace {

constexpr int32_t kFormats = static_cast<int32_t>(mergeFormatTable.size());
constexpr std::string_view kTodaysDate = "todays date";

// A name whose marker could hold a bracket of either form inside.
bool holdsBracket(const std::string& name) {
  return name.find('\\') != std::string::npos || name.find("«") != std::string::npos ||
         name.find("»") != std::string::npos;
}

// The format of a folded format text; -1 when it is none of the fourteen.
int32_t formatNamed(std::string_view folded) {
  for (int32_t f = 0; f < kFormats; ++f) {
    if (folded == mergeFormatTable[f]) return f;  // the formats are in lower case
  }
  return -1;
}

}  // namespace

MarkerKeys::MarkerKeys(FieldListClass& table) : generation_(table.generation()) {
  for (int32_t f = 0; f < kFormats; ++f) keys_.push_back({-1, f});
  const int32_t count = table.getFieldRowCount();
  for (int32_t number = 1; number <= count; ++number) {
    int32_t index = number;
    if (!table.moveToFieldRow(index)) continue;
    const std::string name = toText(table.getFieldColumn(fieldDisplayNameColumn));
    const Variant type = table.getFieldColumn(fieldTypeColumn);
    const int32_t rowIndex = CLng(table.getFieldRowIndex());
    if (holdsBracket(name)) usable_ = false;
    const int32_t order = static_cast<int32_t>(keys_.size());
    if (type.isNumberType() && CLng(type) == fieldTypeDate) {
      dated_[LCase(name)].push_back(order);
      for (int32_t f = 0; f < kFormats; ++f) keys_.push_back({rowIndex, f});
    } else {
      simple_[LCase(name)].push_back(order);
      keys_.push_back({rowIndex, -1});
    }
  }
}

int32_t MarkerKeys::match(std::string_view body, int32_t passed) const {
  const std::string folded = LCase(std::string(body));
  int32_t best = -1;
  // The first of the rising orders, each plus offset, that comes after the
  // key passed.
  auto consider = [&](const std::vector<int32_t>& orders, int32_t offset) {
    const auto next = std::upper_bound(orders.begin(), orders.end(), passed - offset);
    if (next != orders.end() && (best < 0 || *next + offset < best)) best = *next + offset;
  };
  if (auto simple = simple_.find(folded); simple != simple_.end()) consider(simple->second, 0);
  // A date form: "(" name ", " format ")", the name ending at any ", ".
  if (folded.size() >= 2 && folded.front() == '(' && folded.back() == ')') {
    const std::string_view inner = std::string_view(folded).substr(1, folded.size() - 2);
    for (size_t comma = inner.find(", "); comma != std::string_view::npos;
         comma = inner.find(", ", comma + 1)) {
      const int32_t format = formatNamed(inner.substr(comma + 2));
      if (format < 0) continue;
      const std::string_view name = inner.substr(0, comma);
      if (name == kTodaysDate && format > passed && (best < 0 || format < best)) best = format;
      if (auto dated = dated_.find(std::string(name)); dated != dated_.end()) {
        consider(dated->second, format);
      }
    }
  }
  return best;
}

}  // namespace qb
