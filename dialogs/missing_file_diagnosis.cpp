#include "dialogs/missing_file_diagnosis.h"

#include "services/runtime/strings.h"
#include "services/util/file_utilities_class.h"

namespace qb {

MissingFileState diagnoseMissingFile(const fileUtilitiesClass& files, const std::string& path,
                                     const std::string& hostComputerName) {
  if (files.folderExists(files.getFolderFromPath(path))) return MissingFileState::folderPresent;
  if (UCase(hostComputerName) != UCase(files.getComputerName()))
    return MissingFileState::networkComputer;
  return MissingFileState::goneHere;
}

std::string missingFileDescription(MissingFileState state, const std::string& hostComputerName) {
  if (state == MissingFileState::networkComputer) {
    return "This file is on the network computer '" + hostComputerName +
           "' which is not accessible at this time.  Make sure the remote computer is turned on "
           "and is accessible from this computer.";
  }
  return "This file was not found in it's last known location.  Click the 'Browse' button to "
         "specify the file's location.";
}

bool missingFileCanBrowse(MissingFileState state) {
  return state != MissingFileState::networkComputer;
}

}  // namespace qb
