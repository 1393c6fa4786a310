#pragma once
// What the dialogs need beyond a command's session, for the commands that
// run a dialog without a screen: the file and general utilities, the form
// helper, the firm's data folder (the database's folder) and a message
// object that records what the dialog would have said. No form service is
// installed, so a modal dialog returns as soon as it is filled and the
// command reads what it shows.

#include <filesystem>
#include <memory>

#include "app/cli/session.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "services/host/working_folder.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"
#include "services/util/standard_form_helper.h"

namespace qb::cli {

inline std::shared_ptr<RecordingMessageObject> hostDialogs(Session& session,
                                                           const std::string& databasePath) {
  auto messages = std::make_shared<RecordingMessageObject>();
  ModuleState& module = moduleState();
  module.msgboxClass = messages;
  module.fileUtilities = std::make_shared<fileUtilitiesClass>();
  module.generalUtilities = std::make_shared<generalUtilitiesClass>();
  module.workingFolderReference = std::make_shared<FixedWorkingFolder>(
      std::filesystem::absolute(databasePath).parent_path().string());
  session.locale().formHelper = std::make_shared<StandardFormHelper>();
  return messages;
}

}  // namespace qb::cli
