// The frame: service objects and their first-assignment rule, the client
// rules, module state shared by two instances, the access level and the
// navigation buttons.

#include "services/quillbox/doc_quillbox_references_class.h"
#include "services/util/date_utilities_class.h"
#include "services/util/general_utilities_class.h"
#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

using FrameTest = QuillboxTest;

TEST_F(FrameTest, FirstAssignmentOfEachServiceObjectWins) {
  quillbox.Initialize();
  ModuleState& module = moduleState();
  quillbox.setErrorClass(errors);
  quillbox.setErrorClass(std::make_shared<RecordingErrorObject>());
  EXPECT_EQ(module.errorClass, errors);
  EXPECT_EQ(module.generalUtilities->errorClass(), errors);
  EXPECT_EQ(module.dateUtilities->errorClass(), errors);
  EXPECT_EQ(module.references->errorClass(), errors);  // the first one, passed on again
  // No store leaves the module without one; the next assignment takes effect.
  quillbox.setDatabaseReference(nullptr);
  EXPECT_EQ(quillbox.DatabaseReference(), nullptr);
  quillbox.setDatabaseReference(db.storePtr());
  EXPECT_EQ(quillbox.DatabaseReference(), db.storePtr());
  EXPECT_EQ(module.references->databaseReference(), db.storePtr());
  quillbox.setLocaleReference(locale);
  quillbox.setLocaleReference(std::make_shared<FixedLocale>());  // stored and passed on only once
  EXPECT_EQ(module.references->localeReference(), locale);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(FrameTest, ClientSelectionKeepsClientTypeInStep) {
  auto state = [&] {
    return std::to_string(quillbox.clientType()) + " " + std::to_string(quillbox.companyIDNum()) +
           " " + std::to_string(quillbox.contactIDNum());
  };
  quillbox.setCompanyIDNum(0);  // 0 is a valid company
  EXPECT_EQ(state(), "2 0 -1");
  quillbox.setContactIDNum(-4);  // a negative contact leaves a company client
  EXPECT_EQ(state(), "2 0 -1");
  quillbox.setContactIDNum(5);
  EXPECT_EQ(state(), "1 -1 5");
  quillbox.setCompanyIDNum(-1);
  EXPECT_EQ(state(), "1 -1 5");
  quillbox.setContactIDNum(-1);
  EXPECT_EQ(state(), "0 -1 -1");
}

TEST_F(FrameTest, TwoInstancesShareModuleState) {
  bind(quillbox);
  EXPECT_TRUE(quillbox.ShowDocQuillboxClientNavButtons());
  EXPECT_EQ(quillbox.DocQuillboxProgram(), enumDocQuillboxProgramOrvanta);
  {
    nvDocumentQuillbox second;
    second.Initialize();  // the reference object exists: no defaults
    EXPECT_FALSE(second.ShowDocQuillboxClientNavButtons());
    EXPECT_EQ(second.DocQuillboxProgram(), 0);
  }
  // Ending one clears the helpers for the other; the service objects stay.
  ModuleState& module = moduleState();
  EXPECT_EQ(module.fileUtilities, nullptr);
  EXPECT_EQ(module.generalUtilities, nullptr);
  EXPECT_EQ(module.dateUtilities, nullptr);
  EXPECT_EQ(module.references, nullptr);
  EXPECT_EQ(module.databaseReference, db.storePtr());
  EXPECT_EQ(module.errorClass, errors);
}

TEST_F(FrameTest, UserLevelFiveDisablesOpenFindAndAddCategories) {
  auto enabled = [](nvDocumentQuillbox& q, int16_t level) {
    q.setUserLevel(level);
    q.StartDocQuillboxControl();
    std::string flags;
    for (int16_t i = 0; i < 5; ++i) flags += q.cmdDocManager(i).Enabled() ? "1" : "0";
    return flags;
  };
  bind(quillbox);
  EXPECT_EQ(enabled(quillbox, 4), "11111");
  nvDocumentQuillbox limited;
  bind(limited);
  EXPECT_EQ(enabled(limited, 5), "10100");
}

TEST_F(FrameTest, NavigationButtonsAskTheHostOnlyWhileConnected) {
  bind(quillbox);
  std::string raised;
  quillbox.moveFirst = [&] { raised += "first "; };
  quillbox.movePrevious = [&] { raised += "previous "; };
  quillbox.moveNext = [&] { raised += "next "; };
  quillbox.moveLast = [&] { raised += "last "; };
  quillbox.findClient = [&] { raised += "find"; };
  for (int16_t i = 0; i < 5; ++i) quillbox.cmdClientNav(i).click();
  quillbox.cmdClientNav_Click(7);
  EXPECT_EQ(raised, "first previous next last find");
  db.store().close();
  for (int16_t i = 0; i < 5; ++i) quillbox.cmdClientNav(i).click();
  EXPECT_EQ(raised, "first previous next last find");
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
