#include "links/link_groups.h"

namespace qb::links {

bool StateFilter::accepts(LinkState linkState) const {
  switch (kind) {
    case Kind::broken:
      return isBroken(linkState);
    case Kind::all:
      return true;
    case Kind::one:
      return linkState == state;
  }
  return false;
}

std::vector<ClientGroup> groupByClient(const std::vector<CheckedLink>& checked,
                                       const StateFilter& filter) {
  std::vector<ClientGroup> groups;
  ClientGroup group;
  auto close = [&] {
    if (!group.shown.empty()) groups.push_back(std::move(group));
    group = ClientGroup();
  };
  for (size_t i = 0; i < checked.size(); ++i) {
    const LinkRecord& link = checked[i].link;
    if (group.first != nullptr &&
        (group.first->companyID != link.companyID || group.first->contactID != link.contactID))
      close();
    if (group.first == nullptr) group.first = &link;
    ++group.counts.counts[static_cast<size_t>(checked[i].state)];
    ++group.counts.total;
    if (filter.accepts(checked[i].state)) group.shown.push_back(i);
  }
  close();
  return groups;
}

}  // namespace qb::links
