#pragma once
// The check: every link of a list gets its state, in one operation of the
// file-facts service. The files are asked in batches (side by side on a
// share), and each missing file's folder once for all the files in it; a
// share that stops answering is waited on once, then every later file under
// it counts as not answering.

#include <array>
#include <vector>

#include "links/link_record.h"
#include "links/link_state.h"

namespace qb::links {

struct CheckedLink {
  LinkRecord link;
  LinkState state = LinkState::present;
};

// How many links are in each state, by the state's place in kLinkStates.
struct StateCounts {
  std::array<size_t, kLinkStateCount> counts{};
  size_t total = 0;

  size_t of(LinkState state) const { return counts[static_cast<size_t>(state)]; }
  size_t broken() const;
};

// The links with their states, in the order given; progress (when set) after
// each batch. Failures go through the error convention; a link that could
// not be checked is left out.
std::vector<CheckedLink> checkLinks(std::vector<LinkRecord> links, const Progress& progress = {});

StateCounts countStates(const std::vector<CheckedLink>& checked);

// "120 links: present 100, read-only 2, file-gone 5, ..., no-path 0": every
// state, in order.
std::string stateSummary(const StateCounts& counts);

}  // namespace qb::links
