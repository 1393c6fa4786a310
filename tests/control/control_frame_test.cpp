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
  auto otherErrors = std::make_shared<RecordingErrorObject>();
  quillbox.setErrorClass(errors);
  quillbox.setErrorClass(otherErrors);
  EXPECT_EQ(module.errorClass, errors);
  EXPECT_EQ(module.generalUtilities->errorClass(), errors);
  EXPECT_EQ(module.dateUtilities->errorClass(), errors);
  EXPECT_EQ(module.references->errorClass(), errors);  // the first one, passed on again

  quillbox.setMsgboxClass(messages);
  quillbox.setMsgboxClass(std::make_shared<RecordingMessageObject>());
  EXPECT_EQ(module.msgboxClass, messages);
  EXPECT_EQ(module.references->msgboxClass(), messages);

  // No store leaves the module without one; the next assignment takes effect.
  quillbox.setDatabaseReference(nullptr);
  EXPECT_EQ(quillbox.DatabaseReference(), nullptr);
  quillbox.setDatabaseReference(db.storePtr());
  EXPECT_EQ(quillbox.DatabaseReference(), db.storePtr());
  EXPECT_EQ(module.references->databaseReference(), db.storePtr());

  quillbox.setLocaleReference(locale);
  quillbox.setLocaleReference(std::make_shared<FixedLocale>());
  EXPECT_EQ(module.localeReference, locale);
  EXPECT_EQ(module.references->localeReference(), locale);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(FrameTest, ServiceObjectsBeforeInitializeFailSilently) {
  quillbox.setErrorClass(errors);  // the utilities it goes to don't exist yet
  EXPECT_EQ(moduleState().errorClass, errors);
  EXPECT_TRUE(errors->failures.empty());
  EXPECT_EQ(errors->shown, 0);
}

TEST_F(FrameTest, ClientSelectionKeepsClientTypeInStep) {
  quillbox.setCompanyIDNum(0);  // 0 is a valid company
  EXPECT_EQ(quillbox.clientType(), enumDocQuillboxClientTypeCompany);
  EXPECT_EQ(quillbox.companyIDNum(), 0);
  EXPECT_EQ(quillbox.contactIDNum(), -1);
  quillbox.setContactIDNum(-4);  // a negative contact leaves the company client
  EXPECT_EQ(quillbox.clientType(), enumDocQuillboxClientTypeCompany);
  EXPECT_EQ(quillbox.contactIDNum(), -1);
  quillbox.setContactIDNum(5);
  EXPECT_EQ(quillbox.clientType(), enumDocQuillboxClientTypeContact);
  EXPECT_EQ(quillbox.companyIDNum(), -1);
  quillbox.setCompanyIDNum(-1);
  EXPECT_EQ(quillbox.clientType(), enumDocQuillboxClientTypeContact);
  quillbox.setContactIDNum(-1);
  EXPECT_EQ(quillbox.clientType(), 0);
  EXPECT_EQ(quillbox.contactIDNum(), -1);
}

TEST_F(FrameTest, TwoInstancesShareModuleState) {
  bind(quillbox);
  EXPECT_TRUE(quillbox.ShowDocQuillboxClientNavButtons());
  EXPECT_EQ(quillbox.DocQuillboxProgram(), enumDocQuillboxProgramOrvanta);
  {
    nvDocumentQuillbox second;
    second.Initialize();
    // The reference object existed: the second instance gets no defaults.
    EXPECT_FALSE(second.ShowDocQuillboxClientNavButtons());
    EXPECT_EQ(second.DocQuillboxProgram(), 0);
    second.UserControl_Terminate();
  }
  // Ending one clears the helpers for the other; the service objects stay.
  ModuleState& module = moduleState();
  EXPECT_EQ(module.fileUtilities, nullptr);
  EXPECT_EQ(module.generalUtilities, nullptr);
  EXPECT_EQ(module.dateUtilities, nullptr);
  EXPECT_EQ(module.references, nullptr);
  EXPECT_EQ(module.databaseReference, db.storePtr());
  EXPECT_EQ(module.errorClass, errors);
  EXPECT_EQ(module.localeReference, locale);
}

TEST_F(FrameTest, StartMakesTheCategoryObjectsAndLeavesTheFillToTheHost) {
  bind(quillbox);
  quillbox.setCompanyIDNum(1);
  quillbox.StartDocQuillboxControl();
  EXPECT_NE(quillbox.clientCategoriesObject(), nullptr);
  EXPECT_NE(quillbox.categoryObject(), nullptr);
  EXPECT_EQ(quillbox.tvClientDocumentation().Nodes().Count(), 0);
  EXPECT_EQ(quillbox.clientDocumentationSplitter().LeftOrTopControl(), &quillbox.fraDocumentInfo(0));
  EXPECT_EQ(quillbox.clientDocumentationSplitter().RightOrBottomControl(), &quillbox.fraDocumentInfo(1));
  quillbox.populateClientDocumentCategories();
  EXPECT_EQ(quillbox.tvClientDocumentation().dump(),
            "(Category:1 Acme Holdings(Category:4 Empty)(Category:3 Letters)(Category:2 Taxes))");
  EXPECT_EQ(quillbox.lvDocuments().ListItems().Count(), 0);
  quillbox.UserControl_Terminate();
  EXPECT_EQ(quillbox.categoryObject(), nullptr);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(FrameTest, UserLevelFiveDisablesOpenFindAndAddCategories) {
  auto enabled = [](nvDocumentQuillbox& q) {
    std::string flags;
    for (int16_t i = 0; i < 5; ++i) flags += q.cmdDocManager(i).Enabled() ? "1" : "0";
    return flags;
  };
  bind(quillbox);
  quillbox.setUserLevel(4);
  quillbox.StartDocQuillboxControl();
  EXPECT_EQ(enabled(quillbox), "11111");
  nvDocumentQuillbox limited;
  bind(limited);
  limited.setUserLevel(5);
  limited.StartDocQuillboxControl();
  EXPECT_EQ(enabled(limited), "10100");
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
  raised.clear();
  for (int16_t i = 0; i < 5; ++i) quillbox.cmdClientNav(i).click();
  EXPECT_EQ(raised, "");
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
