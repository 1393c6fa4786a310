#include "data/link_list.h"

#include "services/errors/runtime_error.h"

namespace qb {

void LinkList::add(Variant first, Variant second, Variant third, Variant fourth) {
  rows_.push_back({std::move(first), std::move(second), std::move(third), std::move(fourth)});
}

void LinkList::moveNext() {
  if (position_ < rows_.size()) ++position_;
}

Variant LinkList::column(int32_t index) const {
  if (isEnd() || index < 1 || index > kColumns) {
    throw RuntimeError(err::kSubscript, "Subscript out of range");
  }
  return rows_[position_][index - 1];
}

}  // namespace qb
