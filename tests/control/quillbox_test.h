#pragma once
// The component's test host: a fresh client database with a small firm (two
// companies, a contact, a user, categories, links to real files in the test's
// folder), recording error and message objects, a fixed locale, and one
// component bound and started as a host does.

#include <gtest/gtest.h>
#include <sys/time.h>

#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "services/controls/platform.h"
#include "services/errors/recording_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "services/host/working_folder.h"
#include "tests/support/test_database.h"

namespace qb::test {

// The host's form, owner of the component's dialogs and messages.
class HostForm : public OwnerForm {
 public:
  int64_t hWnd() const override { return 4242; }
};

class QuillboxTest : public ::testing::Test {
 protected:
  QuillboxTest() {
    resetModuleState();  // the component hands the service objects in itself
    resetPlatform();
    db.exec(
        "INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Holdings'), (2, 'Birch');"
        "INSERT INTO Contacts (ContactID, DisplayName) VALUES (5, 'Ann Lee');"
        "INSERT INTO AccountantEmployeeInfo (ContactID, UserName) VALUES (1, 'jsmith');"
        "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, ContactIDNum,"
        " DocCategoryName, DocCategorySpecialType) VALUES (1, NULL, 1, NULL, 'Acme Holdings', 1),"
        " (2, 1, 1, NULL, 'Taxes', 0), (3, 1, 1, NULL, 'Letters', 0), (4, 1, 1, NULL, 'Empty', 0),"
        " (7, NULL, NULL, 5, 'Ann Lee', 1);");
    returnPdf = addDocument(10, 2, "return.pdf", 1572864, "2025 Return", 1);
    notesTxt = addDocument(11, 2, "notes.txt", 0, "Notes", 1);
    budgetXlsx = addDocument(12, 2, "budget.xlsx", 2048, "Budget", 2);
    letterDoc = addDocument(13, 3, "letter.doc", 100, "Letter", 1);
    // Modified and accessed 5 March 2024, 14:07 local time.
    std::tm local{};
    local.tm_year = 124, local.tm_mon = 2, local.tm_mday = 5, local.tm_hour = 14, local.tm_min = 7;
    local.tm_isdst = -1;
    timeval times[2] = {{std::mktime(&local), 0}, {std::mktime(&local), 0}};
    utimes(returnPdf.c_str(), times);
  }
  ~QuillboxTest() override { resetPlatform(); }

  // A file of the size in the test's folder and a link to it; returns its path.
  std::string addDocument(int id, int category, const std::string& file, size_t bytes,
                          const std::string& name, int user) {
    std::string path = db.folder().writeFileOfSize("docs/" + file, bytes);
    db.exec(
        "INSERT INTO Documents (DocumentID, CompanyIDNum, DocCategoryNum, DocPath, DocIconName,"
        " DocHostComputerName, DocAddedByUserIDNum) VALUES (" +
        std::to_string(id) + ", 1, " + std::to_string(category) + ", '" + path + "', '" + name +
        "', 'OFFICE-1', " + std::to_string(user) + ");");
    return path;
  }

  // Initialize and the five service objects, in the host's order.
  void bind(nvDocumentQuillbox& q) {
    q.Initialize();
    q.setErrorClass(errors);
    q.setMsgboxClass(messages);
    q.setDatabaseReference(db.storePtr());
    q.setWorkingFolderReference(std::make_shared<FixedWorkingFolder>(db.folder().path().string()));
    q.setLocaleReference(locale);
  }

  // Binds, names company 1, starts, fills the tree, sizes and lays out.
  void start(nvDocumentQuillbox& q) {
    bind(q);
    q.setCompanyIDNum(1);
    q.StartDocQuillboxControl();
    q.populateClientDocumentCategories();
    q.Move(0, 0, 12000, 8000);
    q.resizeDocQuillbox();
  }

  // Selects the category's node and releases the left button over the tree.
  void show(nvDocumentQuillbox& q, int32_t categoryID) {
    TreeView& tree = q.tvClientDocumentation();
    tree.setSelectedItem(&tree.Nodes().item("Category:" + std::to_string(categoryID)));
    tree.MouseUp.raise(1, 0, 10, 10);
  }

  TestDatabase db;
  std::shared_ptr<RecordingErrorObject> errors = std::make_shared<RecordingErrorObject>();
  std::shared_ptr<RecordingMessageObject> messages = std::make_shared<RecordingMessageObject>();
  std::shared_ptr<FixedLocale> locale = std::make_shared<FixedLocale>();
  std::string returnPdf, notesTxt, budgetXlsx, letterDoc;
  nvDocumentQuillbox quillbox;
};

}  // namespace qb::test
