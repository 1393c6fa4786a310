#pragma once
// The check's results as a window shows them: grouped by client, filtered by
// state.

#include <vector>

#include "links/link_check.h"

namespace qb::links {

// Which links a view shows: the broken ones, all, or those of one state.
struct StateFilter {
  enum class Kind { broken, all, one };
  Kind kind = Kind::broken;
  LinkState state = LinkState::present;  // with Kind::one

  bool accepts(LinkState linkState) const;
  static StateFilter only(LinkState state) { return {Kind::one, state}; }
};

// The links of one client: a run of the checked links, which come by client.
struct ClientGroup {
  const LinkRecord* first = nullptr;  // the client's first link, for its name and id
  std::vector<size_t> shown;          // indexes of the links the filter accepts, in order
  StateCounts counts;                 // of all the client's links
};

// The clients that have links the filter accepts, in the order of the
// checked links (readLinks' order keeps a client's links together).
std::vector<ClientGroup> groupByClient(const std::vector<CheckedLink>& checked,
                                       const StateFilter& filter);

}  // namespace qb::links
