#pragma once
// xmlNodeListClass: the nodes a path matched, counted and taken by index
// from 0, in document order.

#include <cstdint>
#include <vector>

#include "services/util/xml_node_class.h"

namespace qb {

class xmlNodeListClass {
 public:
  xmlNodeListClass() = default;
  explicit xmlNodeListClass(std::vector<xmlNodeClass> nodes) : nodes_(std::move(nodes)) {}

  int32_t count() const { return static_cast<int32_t>(nodes_.size()); }
  // The node at the index, from 0; an index outside 0 to count - 1 fails
  // with err::kSubscript.
  xmlNodeClass item(int32_t index) const;

 private:
  std::vector<xmlNodeClass> nodes_;
};

}  // namespace qb
