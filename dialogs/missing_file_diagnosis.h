#pragma once
// Why a linked file is not there, as the properties dialog explains it. The
// tests go in this order: the file's folder is there (the file alone is
// gone); else the link was added on another computer, which can't be reached
// now (names compared without regard to case); else the file is gone from
// this computer. Only the network case offers no Browse: a file on a
// computer that is switched off is not to be relinked by mistake.

#include <string>

namespace qb {

class fileUtilitiesClass;

enum class MissingFileState {
  folderPresent,    // the folder is there, the file is not
  networkComputer,  // on another computer that can't be reached
  goneHere,         // folder and file gone on this computer
};

MissingFileState diagnoseMissingFile(const fileUtilitiesClass& files, const std::string& path,
                                     const std::string& hostComputerName);

// The explanation the dialog shows (lblErrorDescription) for a state; the
// computer name is the one stored with the link.
std::string missingFileDescription(MissingFileState state, const std::string& hostComputerName);
// Whether the dialog offers Browse for the state.
bool missingFileCanBrowse(MissingFileState state);

// The explanation once Browse found the file again.
constexpr const char* kFileLocationFixed = "There is no error with this file location.";

}  // namespace qb
