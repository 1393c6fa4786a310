#include "links/link_check.h"

#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/util/file_utilities_class.h"

namespace qb::links {

namespace {

// Links asked at once: on a share, the service runs their calls side by side.
constexpr size_t kBatch = 512;

}  // namespace

size_t StateCounts::broken() const {
  size_t count = 0;
  for (LinkState state : kLinkStates)
    if (isBroken(state)) count += of(state);
  return count;
}

std::vector<CheckedLink> checkLinks(std::vector<LinkRecord> links, const Progress& progress) {
  Procedure proc("Orvanta.exe-linkHealth-checkLinks");
  std::vector<CheckedLink> checked;
  checked.reserve(links.size());
  FileFactsOperation operation;
  FileFactsService& files = fileFacts();
  const fileUtilitiesClass utilities;
  const ReaderRights rights = ReaderRights::ofThisProcess();
  for (size_t start = 0; start < links.size() && !proc.leaving(); start += kBatch) {
    const size_t end = std::min(links.size(), start + kBatch);
    proc.step([&] {
      std::vector<std::string> paths;
      for (size_t i = start; i < end; ++i) paths.push_back(links[i].path);
      files.prefetch(paths);
      // The folders of the files that are not there tell why.
      std::vector<std::string> folders;
      for (const std::string& path : paths) {
        if (!path.empty() && files.facts(path).reach == FileReach::missing)
          folders.push_back(utilities.getFolderFromPath(path));
      }
      files.prefetch(folders);
      for (size_t i = start; i < end; ++i) {
        LinkState state = linkStateOf(links[i].path, links[i].computer, rights);
        checked.push_back({std::move(links[i]), state});
      }
    });
    if (progress) progress(end, links.size());
  }
  return checked;
}

StateCounts countStates(const std::vector<CheckedLink>& checked) {
  StateCounts counts;
  for (const CheckedLink& link : checked) ++counts.counts[static_cast<size_t>(link.state)];
  counts.total = checked.size();
  return counts;
}

std::string stateSummary(const StateCounts& counts) {
  std::string text = std::to_string(counts.total) + (counts.total == 1 ? " link:" : " links:");
  for (LinkState state : kLinkStates) {
    text += state == kLinkStates.front() ? " " : ", ";
    text += std::string(linkStateName(state)) + " " + std::to_string(counts.of(state));
  }
  return text;
}

}  // namespace qb::links
