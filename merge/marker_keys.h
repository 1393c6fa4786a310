#pragma once
// MarkerKeys: every marker a sweep of the merge looks for, in the order it
// looks for them, indexed by the marker's body (the text between its
// brackets) so that a marker of the template is named in one look-up.
//
// The order is the sweep's: "(Todays Date, <format>)" in the fourteen
// formats, then the rows of the field table by their number: a date field in
// its fourteen date forms "(<display name>, <format>)", any other field in
// its simple form "<display name>". A body may fit more than one key (two
// rows with one display name, a name that holds ", "): the first in the
// order that the sweep has still to come to is the one whose replacement
// reaches it.

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qb {

class FieldListClass;

class MarkerKeys {
 public:
  struct Key {
    int32_t rowIndex;  // the field's row; -1 for today's date
    int32_t format;    // 0 to 13 into mergeFormatTable; -1 for a simple marker
  };

  // Reads the table's rows 1 to getFieldRowCount, as a sweep visits them (a
  // row number with no row is passed over). Leaves the last row visited
  // current.
  explicit MarkerKeys(FieldListClass& table);

  // False when a display name holds a bracket or a backslash: its markers
  // then need not end where their body seems to, and the sweep must search
  // the text for each marker in turn.
  bool usable() const { return usable_; }
  // The key of a marker body (compared ignoring case, as the sweep's search
  // compares), the first in the order after the key passed; -1 when no key
  // still to come has it.
  int32_t match(std::string_view body, int32_t passed) const;
  const Key& key(int32_t order) const { return keys_[order]; }
  // The table's state the keys were read from (FieldListClass::generation).
  uint64_t generation() const { return generation_; }

 private:
  std::vector<Key> keys_;
  // Folded display name: the orders of its keys (of format 0 for a date
  // field), rising.
  std::unordered_map<std::string, std::vector<int32_t>> simple_;
  std::unordered_map<std::string, std::vector<int32_t>> dated_;
  bool usable_ = true;
  uint64_t generation_ = 0;
};

}  // namespace qb
