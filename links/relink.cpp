#include "links/relink.h"

#include <algorithm>

#include "links/folder_prefix.h"
#include "services/files/file_facts_service.h"

namespace qb::links {

size_t RelinkPlan::foundCount() const {
  size_t count = 0;
  for (const RelinkRow& row : rows) count += row.found ? 1 : 0;
  return count;
}

bool RelinkPlan::newInsideOld() const { return isUnderPrefix(to, from); }

RelinkPlan planRelink(const std::vector<LinkRecord>& links, const std::string& from,
                      const std::string& to, const Progress& progress) {
  RelinkPlan plan{from, to, {}};
  const bool newInsideOld = plan.newInsideOld();
  for (const LinkRecord& link : links) {
    if (!isUnderPrefix(link.path, from)) continue;
    if (newInsideOld && isUnderPrefix(link.path, to)) continue;  // relinked already
    plan.rows.push_back({link, replacePrefix(link.path, from, to), false});
  }
  FileFactsOperation operation;
  FileFactsService& files = fileFacts();
  constexpr size_t kBatch = 512;  // asked side by side on a share
  for (size_t start = 0; start < plan.rows.size(); start += kBatch) {
    const size_t end = std::min(plan.rows.size(), start + kBatch);
    std::vector<std::string> paths;
    for (size_t i = start; i < end; ++i) paths.push_back(plan.rows[i].newPath);
    files.prefetch(paths);
    for (size_t i = start; i < end; ++i)
      plan.rows[i].found = files.facts(paths[i - start]).present();
    if (progress) progress(end, plan.rows.size());
  }
  return plan;
}

std::vector<RepointOutcome> applyRelink(const RelinkPlan& plan, const Progress& progress) {
  std::vector<PlannedMove> moves;
  for (const RelinkRow& row : plan.rows)
    moves.push_back({row.link.documentID, row.link.path, row.found ? row.newPath : ""});
  return repointLinks(moves, progress);
}

}  // namespace qb::links
