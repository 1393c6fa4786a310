#include "links/locate.h"

#include <algorithm>
#include <filesystem>
#include <unordered_map>

#include "services/files/file_facts_service.h"
#include "services/util/file_utilities_class.h"

namespace qb::links {

namespace fs = std::filesystem;

size_t LocatePlan::withMatches(size_t count) const {
  return static_cast<size_t>(std::count_if(
      rows.begin(), rows.end(), [&](const LocateRow& row) { return row.matches.size() == count; }));
}

size_t LocatePlan::withSeveral() const {
  return static_cast<size_t>(std::count_if(
      rows.begin(), rows.end(), [](const LocateRow& row) { return row.matches.size() > 1; }));
}

LocatePlan planLocate(const std::vector<CheckedLink>& checked, const std::string& folder,
                      const Progress& progress) {
  LocatePlan plan;
  plan.folder = folder;
  const fileUtilitiesClass files;
  std::unordered_map<std::string, std::vector<std::string>> found;  // name -> paths
  for (const CheckedLink& link : checked) {
    if (!mayBeLookedFor(link.state)) continue;
    const std::string name = files.getFileNameFromPath(link.link.path);
    if (name.empty()) continue;
    plan.rows.push_back({link, {}});
    found.emplace(name, std::vector<std::string>{});
  }
  if (plan.rows.empty()) return plan;

  // One walk for all the names, folder by folder. A symbolic link to a
  // folder is not followed; one to a file counts as the file.
  FileFactsOperation operation;
  FileFactsService& facts = fileFacts();
  std::vector<fs::path> pending{fs::path(folder)};
  while (!pending.empty()) {
    const fs::path at = std::move(pending.back());
    pending.pop_back();
    if (facts.facts(at.string()).reach == FileReach::unreachable) {
      ++plan.foldersSkipped;
      ++plan.foldersNoAnswer;
      continue;
    }
    std::error_code failed;
    fs::directory_iterator entries(at, failed);
    for (; !failed && entries != fs::directory_iterator(); entries.increment(failed)) {
      const fs::directory_entry& entry = *entries;
      std::error_code typeFailed;
      if (fs::is_directory(entry.symlink_status(typeFailed))) {
        pending.push_back(entry.path());
        continue;
      }
      if (!entry.is_regular_file(typeFailed)) continue;
      ++plan.filesSeen;
      if (progress && plan.filesSeen % 1024 == 0) progress(plan.filesSeen, 0);
      auto wanted = found.find(entry.path().filename().string());
      if (wanted != found.end()) wanted->second.push_back(entry.path().string());
    }
    if (failed) ++plan.foldersSkipped;  // passed over, the walk goes on
  }
  if (progress) progress(plan.filesSeen, 0);

  for (LocateRow& row : plan.rows) {
    row.matches = found[files.getFileNameFromPath(row.link.link.path)];
    std::sort(row.matches.begin(), row.matches.end());
  }
  return plan;
}

std::vector<RepointOutcome> applyLocate(const LocatePlan& plan, const Progress& progress) {
  std::vector<PlannedMove> moves;
  for (const LocateRow& row : plan.rows) {
    const LinkRecord& link = row.link.link;
    moves.push_back(
        {link.documentID, link.path, row.matches.size() == 1 ? row.matches.front() : ""});
  }
  return repointLinks(moves, progress);
}

}  // namespace qb::links
