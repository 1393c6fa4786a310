#include "links/link_state.h"

#include "dialogs/missing_file_diagnosis.h"
#include "services/files/file_facts_service.h"
#include "services/util/file_utilities_class.h"

namespace qb::links {

namespace {

struct StateText {
  LinkState state;
  const char* name;
  const char* label;
};

constexpr StateText kTexts[] = {
    {LinkState::present, "present", "Present"},
    {LinkState::readOnly, "read-only", "Read-only"},
    {LinkState::fileGone, "file-gone", "File gone"},
    {LinkState::otherComputer, "other-computer", "Other computer"},
    {LinkState::folderGone, "folder-gone", "Folder gone"},
    {LinkState::folder, "folder", "Folder"},
    {LinkState::noPermission, "no-permission", "No permission"},
    {LinkState::noAnswer, "no-answer", "No answer"},
    {LinkState::noPath, "no-path", "No path"},
};

const StateText& textOf(LinkState state) { return kTexts[static_cast<size_t>(state)]; }

}  // namespace

const char* linkStateName(LinkState state) { return textOf(state).name; }

const char* linkStateLabel(LinkState state) { return textOf(state).label; }

bool linkStateNamed(const std::string& name, LinkState& state) {
  for (const StateText& text : kTexts) {
    if (name == text.name) {
      state = text.state;
      return true;
    }
  }
  return false;
}

std::string linkStateDescription(LinkState state, const std::string& computer) {
  switch (state) {
    case LinkState::present:
      return "The file is there.";
    case LinkState::readOnly:
      return "The file is there and is read-only.";
    case LinkState::fileGone:
      return "The folder is there, but the file is not.";
    case LinkState::otherComputer:
      return "The file is on the computer '" + computer +
             "', which can't be reached from this one.";
    case LinkState::folderGone:
      return "The file's folder is gone from this computer.";
    case LinkState::folder:
      return "The path names a folder, not a file.";
    case LinkState::noPermission:
      return "This user may not read the file, or a folder on its way.";
    case LinkState::noAnswer:
      return "The disk or share that holds the file did not answer.";
    case LinkState::noPath:
      return "The link holds no path.";
  }
  return "";
}

bool isBroken(LinkState state) {
  return state != LinkState::present && state != LinkState::readOnly && state != LinkState::folder;
}

bool mayBeLookedFor(LinkState state) {
  return state == LinkState::fileGone || state == LinkState::folderGone ||
         state == LinkState::otherComputer;
}

LinkState linkStateOf(const std::string& path, const std::string& computer,
                      const ReaderRights& rights) {
  if (path.empty()) return LinkState::noPath;
  const FileFacts facts = fileFacts().facts(path);
  switch (facts.reach) {
    case FileReach::present:
      if (facts.isFolder) return LinkState::folder;
      if (!rights.mayRead(facts)) return LinkState::noPermission;
      return (facts.mode & 0222) == 0 ? LinkState::readOnly : LinkState::present;
    case FileReach::denied:
      return LinkState::noPermission;
    case FileReach::unreachable:
      return LinkState::noAnswer;
    case FileReach::missing:
      break;
  }
  switch (diagnoseMissingFile(fileUtilitiesClass(), path, computer)) {
    case MissingFileState::folderPresent:
      return LinkState::fileGone;
    case MissingFileState::networkComputer:
      return LinkState::otherComputer;
    case MissingFileState::goneHere:
      break;
  }
  return LinkState::folderGone;
}

}  // namespace qb::links
