#pragma once
// The state of a document link: whether its file can be opened, and if not,
// why. A missing file is explained as the properties dialog explains it
// (missing_file_diagnosis.h): its folder is there; else the link was added
// on another computer, which can't be reached now; else it is gone from this
// computer. The facts come from the file-facts service, one metadata call a
// file, so a share that hangs costs its bounded wait once.

#include <array>
#include <cstddef>
#include <string>

#include "services/files/reader_rights.h"

namespace qb::links {

enum class LinkState {
  present,        // the file is there
  readOnly,       // the file is there and carries no write permission
  fileGone,       // its folder is there, the file is not
  otherComputer,  // added on another computer, which can't be reached now
  folderGone,     // its folder is gone from this computer
  folder,         // the path names a folder, not a file
  noPermission,   // this user may not read the file, or search a folder on its way
  noAnswer,       // the disk or share failed, or did not answer in time
  noPath,         // the link holds no path
};

constexpr size_t kLinkStateCount = 9;
constexpr std::array<LinkState, kLinkStateCount> kLinkStates = {
    LinkState::present,       LinkState::readOnly,   LinkState::fileGone,
    LinkState::otherComputer, LinkState::folderGone, LinkState::folder,
    LinkState::noPermission,  LinkState::noAnswer,   LinkState::noPath};

// The state's name in reports and on the command line ("file-gone").
const char* linkStateName(LinkState state);
// The state of a name as linkStateName gives it; false when none has it.
bool linkStateNamed(const std::string& name, LinkState& state);
// The state as a window shows it ("File gone").
const char* linkStateLabel(LinkState state);
// One sentence on the state; the computer is the one stored with the link.
std::string linkStateDescription(LinkState state, const std::string& computer);
// True for the states in which the link's file can't be opened from here.
bool isBroken(LinkState state);
// True for the states in which the file is not where the link says, so that
// looking for it elsewhere makes sense: gone, or on another computer that
// can't be reached (the user looks deliberately, with a preview); not on a
// share that did not answer, whose files are most likely still there.
bool mayBeLookedFor(LinkState state);

// The state of a link to path, added on computer, for a user with rights.
// Asks the file-facts service of this thread (within its operation, each
// path once).
LinkState linkStateOf(const std::string& path, const std::string& computer,
                      const ReaderRights& rights);

}  // namespace qb::links
