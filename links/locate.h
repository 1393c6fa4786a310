#pragma once
// Finding moved files by name: for each link whose file is not where the
// link says (mayBeLookedFor), the files of the same name, exactly,
// under a folder. The folder tree is walked once for all the links; symbolic
// links to files count as files, symbolic links to folders are not followed
// (a tree can't loop), and folders this user may not read are passed over.
// Each folder is asked of the file-facts service before it is read, so a
// share that stops answering midway costs its bounded wait once and its
// other folders are passed over at once.
// One match is proposed; several are listed for the user to choose; none is
// reported. Applying changes the links with one match only.

#include <string>
#include <vector>

#include "links/link_check.h"
#include "links/link_repoint.h"

namespace qb::links {

struct LocateRow {
  CheckedLink link;
  std::vector<std::string> matches;  // full paths, sorted
};

struct LocatePlan {
  std::string folder;  // the folder walked, absolute
  std::vector<LocateRow> rows;
  size_t filesSeen = 0;        // files met in the walk
  size_t foldersSkipped = 0;   // folders that could not be read, of which
  size_t foldersNoAnswer = 0;  // on a share that did not answer

  size_t withMatches(size_t count) const;  // rows with exactly count matches
  size_t withSeveral() const;              // rows with more than one
};

// The plan for the checked links (their order kept) and a folder that
// checkFolderReachable accepted; progress counts the files seen (total 0).
LocatePlan planLocate(const std::vector<CheckedLink>& checked, const std::string& folder,
                      const Progress& progress = {});

// Points each link with exactly one match at it; the other rows are left.
// One outcome per row: notFound for rows with none or several matches.
std::vector<RepointOutcome> applyLocate(const LocatePlan& plan, const Progress& progress = {});

}  // namespace qb::links
