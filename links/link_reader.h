#pragma once
// Reads the document links of a scope through the store, with each link's
// client name and category path. Categories and client names are read once
// per walk, not once per link.

#include <vector>

#include "links/link_record.h"

namespace qb::links {

// The links of the scope, ordered as the reports list them: the companies'
// links, then the contacts', each client by name ignoring case (then by id),
// within a client by category path and by link name, ignoring case, then by
// id. A link of no client comes last. A store failure goes through the error
// convention and gives the links read so far (none when the store is not
// connected).
std::vector<LinkRecord> readLinks(const LinkScope& scope);

// One link by its id, as readLinks gives it; false when there is no such
// row.
bool readLink(int32_t documentID, LinkRecord& link);

// The separator between a category's name and its parents' in categoryPath.
constexpr const char* kCategoryPathSeparator = " / ";

}  // namespace qb::links
