#pragma once
// The dialogs' test host: a fresh client database (two companies, a contact,
// an employee, document links to real files in the test's folder), the
// module's service and helper objects, a recording shell, and a form service
// through which a test acts as the user inside the modal call.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "services/controls/form.h"
#include "services/controls/platform.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "services/host/working_folder.h"
#include "services/shell/common_dialog.h"
#include "services/shell/recording_shell.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"
#include "services/util/standard_form_helper.h"
#include "tests/support/test_database.h"

namespace qb::test {

class DialogTest : public ::testing::Test {
 protected:
  DialogTest() {
    resetPlatform();
    ModuleState& module = moduleState();
    module.msgboxClass = messages;
    module.fileUtilities = std::make_shared<fileUtilitiesClass>();
    module.generalUtilities = std::make_shared<generalUtilitiesClass>();
    module.workingFolderReference =
        std::make_shared<FixedWorkingFolder>(db.folder().path().string());
    db.locale().formHelper = helper;
    installShell(shell);
    db.exec(
        "INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Holdings'),"
        " (2, 'Birch & Sons');"
        "INSERT INTO Contacts (ContactID, DisplayName) VALUES (5, 'Ann Lee');"
        "INSERT INTO AccountantEmployeeInfo (ContactID, UserName) VALUES (1, 'jsmith');");
  }
  ~DialogTest() override {
    installShell(nullptr);
    installFileDialogService(nullptr);
    resetPlatform();
  }

  // A link row; client "company:N" or "contact:N" or "" for none.
  void addLink(int id, const std::string& client, const std::string& name, const std::string& path,
               const std::string& computer = "OFFICE-1") {
    std::string company = "NULL", contact = "NULL";
    if (client.rfind("company:", 0) == 0) company = client.substr(8);
    if (client.rfind("contact:", 0) == 0) contact = client.substr(8);
    auto quoted = [](std::string text) {
      for (size_t at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 2))
        text.insert(at, 1, '\'');
      return text;
    };
    std::string fileName = path.substr(path.rfind('/') + 1);
    std::string base = fileName.substr(0, fileName.rfind('.'));
    db.exec(
        "INSERT INTO Documents (DocumentID, CompanyIDNum, ContactIDNum, DocCategoryNum, DocPath,"
        " DocIconName, DocName, DocFileName, DocHostComputerName, DocDateAdded,"
        " DocAddedByUserIDNum) VALUES (" +
        std::to_string(id) + ", " + company + ", " + contact + ", 2, '" + quoted(path) + "', '" +
        quoted(name) + "', '" + quoted(base) + "', '" + quoted(fileName) + "', '" + computer +
        "', '2024-03-05 09:30:00', 1);");
  }

  // Runs act as the user whenever a form of that type is shown modally.
  template <class F>
  void whenShown(std::function<void(F&)> act) {
    installFormService([act](Form& form, OwnerForm*) { act(dynamic_cast<F&>(form)); });
  }

  TestDatabase db;
  std::shared_ptr<RecordingMessageObject> messages = std::make_shared<RecordingMessageObject>();
  std::shared_ptr<StandardFormHelper> helper = std::make_shared<StandardFormHelper>();
  std::shared_ptr<RecordingShell> shell = std::make_shared<RecordingShell>();
};

}  // namespace qb::test
