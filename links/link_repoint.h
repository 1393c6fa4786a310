#pragma once
// Points one link at its file's new place: the one write that relinking and
// locating make. The link's path is written as one field of a writable
// recordset over its row, committed at once, so a link holds its old path or
// its new one whatever stops the program; the file's name does not change,
// so the other columns that follow the path stay as they are. The row is
// read first: a link whose path is no longer the one planned (changed or
// removed since) is left alone.

#include <cstdint>
#include <string>
#include <vector>

#include "links/link_record.h"

namespace qb::links {

enum class RepointOutcome {
  repointed,         // the link now holds the new path
  notFound,          // the file is not at the new place: the link was left
  changedMeanwhile,  // the link was changed or removed since it was read: left
  failed,            // the store failed (reported through the error convention)
};

// The outcome's name in reports ("relinked", "not-found", ...).
const char* repointOutcomeName(RepointOutcome outcome);

// Writes newPath to the link when it still holds oldPath and newPath names
// an existing file or folder (asked afresh).
RepointOutcome repointLink(int32_t documentID, const std::string& oldPath,
                           const std::string& newPath);

// One link of a plan: the path it holds and the path to point it at; an
// empty new path leaves it as it is (notFound).
struct PlannedMove {
  int32_t documentID = -1;
  std::string oldPath;
  std::string newPath;
};

// repointLink for each move, in order, within one operation of the
// file-facts service; one outcome a move.
std::vector<RepointOutcome> repointLinks(const std::vector<PlannedMove>& moves,
                                         const Progress& progress = {});

}  // namespace qb::links
