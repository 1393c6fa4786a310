#pragma once
// Relinking by folder: "everything under this old folder now lives under
// that new one". The plan lists every link under the old folder with its new
// path and whether the file is there; applying it changes only the links
// whose file is at the new place, one link at a time (link_repoint.h), and
// leaves the others as they were. Applying the same relink again changes
// nothing: no link is left under the old folder that has its file at the
// new place, and when the new folder lies inside the old one, the links
// already under the new folder are not taken again.

#include <string>
#include <vector>

#include "links/link_record.h"
#include "links/link_repoint.h"

namespace qb::links {

struct RelinkRow {
  LinkRecord link;
  std::string newPath;
  bool found = false;  // a file (or folder) is at the new path
};

struct RelinkPlan {
  std::string from;  // the prefixes as normalizePrefix gave them
  std::string to;
  std::vector<RelinkRow> rows;

  size_t foundCount() const;
  // True when the new folder lies inside the old one: the links already
  // under it are not taken.
  bool newInsideOld() const;
};

// The plan for the links given (in their order) and two normalized
// prefixes; progress while the new places are asked.
RelinkPlan planRelink(const std::vector<LinkRecord>& links, const std::string& from,
                      const std::string& to, const Progress& progress = {});

// Applies the plan: each found row's link is pointed at its new path, the
// others are left. The outcomes, one per row in the plan's order.
std::vector<RepointOutcome> applyRelink(const RelinkPlan& plan, const Progress& progress = {});

}  // namespace qb::links
