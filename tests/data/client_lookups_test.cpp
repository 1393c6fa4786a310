// Id and name look-ups, existence tests and the task of a schedule row.

#include "tests/data/data_test.h"

namespace qb::test {
namespace {

using namespace modDatabaseFunctions;

std::string text(int32_t value) { return std::to_string(value); }
std::string text(bool value) { return value ? "true" : "false"; }
std::string text(std::string value) { return value; }

template <auto lookUp>
std::string byId(int32_t id) {
  return text(lookUp(id));
}
template <auto test>
std::string byText(int32_t id) {
  return text(test(std::to_string(id)));
}
std::string nameByType2(int32_t id) { return getContactNameDisplayedByType(2, id, -1, false); }

// A look-up that tests the connection first, the id of a row it finds, what
// it gives for that row, its default, and the first SQL text it opens for
// that row, which the host's store runs as it stands.
struct LookUp {
  std::string name;
  std::string (*call)(int32_t);
  int32_t id;
  std::string found;
  std::string fallback;
  std::string sql;
};

const std::vector<LookUp> kLookUps = {
    {"getClientDataIDFromCompanyID", byId<getClientDataIDFromCompanyID>, 1, "10", "-1",
     "SELECT ClientData.ClientDataID, ClientData.CompanyIDNum FROM ClientData WHERE "
     "CompanyIDNum=1;"},
    {"getCompanyIDFromClientDataID", byId<getCompanyIDFromClientDataID>, 10, "1", "-1",
     "SELECT ClientData.ClientDataID, ClientData.CompanyIDNum FROM ClientData WHERE "
     "ClientDataID=10;"},
    {"getDisplayNameFromContactID", byId<getDisplayNameFromContactID>, 5, " Smith, Ann ", "",
     "SELECT Contacts.ContactID, Contacts.DisplayName FROM Contacts WHERE ContactID=5;"},
    {"getCompanyNameFromCompanyID", byId<getCompanyNameFromCompanyID>, 1, "Acme Ltd", "",
     "SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE CompanyID=1;"},
    {"getCategoryNameFromCategoryID", byId<getCategoryNameFromCategoryID>, 7, "Clients", "",
     "SELECT Categories.CategoryName, Categories.CategoryID FROM Categories WHERE CategoryID=7;"},
    {"getCompanyIDFromDocumentID", byId<getCompanyIDFromDocumentID>, 100, "1", "-1",
     "SELECT Documents.CompanyIDNum, Documents.DocumentID FROM Documents WHERE DocumentID=100;"},
    {"getContactIDFromDocumentID", byId<getContactIDFromDocumentID>, 101, "5", "-1",
     "SELECT Documents.ContactIDNum, Documents.DocumentID FROM Documents WHERE DocumentID=101;"},
    {"getUserNameFromUserID", byId<getUserNameFromUserID>, 5, "ann", "",
     "SELECT AccountantEmployeeInfo.ContactID, AccountantEmployeeInfo.UserName FROM "
     "AccountantEmployeeInfo WHERE ContactID = 5 ORDER BY AccountantEmployeeInfo.UserName;"},
    {"isCategoryMainCategory", byId<isCategoryMainCategory>, 7, "true", "false",
     "SELECT Categories.CategoryID, Categories.CategorySpecialCode FROM Categories WHERE "
     "CategoryID = 7;"},
    {"getTaskIDFromScheduleIDNum", byId<getTaskIDFromScheduleIDNum>, 300, "30", "-1",
     "SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE ScheduleIDNum=300;"},
    {"validCompanyID", byText<validCompanyID>, 1, "true", "false",
     "SELECT Companies.CompanyID FROM Companies WHERE CompanyID = 1;"},
    {"validContactID", byText<validContactID>, 5, "true", "false",
     "SELECT Contacts.ContactID FROM Contacts WHERE ContactID = 5;"},
    {"validFirmID", byText<validFirmID>, 1, "true", "false",
     "SELECT AccountantFirmInfo.CompanyID FROM AccountantFirmInfo WHERE CompanyID = 1;"},
    {"validEmployeeID", byText<validEmployeeID>, 5, "true", "false",
     "SELECT AccountantEmployeeInfo.ContactID FROM AccountantEmployeeInfo WHERE ContactID = 5;"},
    {"getContactNameDisplayedByType", nameByType2, 5, "Ann Smith", "",
     "SELECT Contacts.ContactID, Contacts.FirstName, Contacts.LastName, Contacts.DisplayName, "
     "Contacts.ContactPersonalTaxDisplayType, Contacts.SpouseFirstName, "
     "Contacts.SpouseLastName FROM Contacts WHERE Contacts.ContactID=5;"},
};

class ClientLookUpsTest : public DataTest {
 protected:
  ClientLookUpsTest() {
    db.exec(R"(
      INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Ltd');
      INSERT INTO ClientData (ClientDataID, CompanyIDNum) VALUES (10, 1);
      INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName)
        VALUES (5, 'Ann', 'Smith', ' Smith, Ann ');
      INSERT INTO Categories (CategoryID, CategoryName, CategorySpecialCode)
        VALUES (7, 'Clients', 'main'), (8, 'Suppliers', NULL), (9, 'Others', 'Mainly');
      INSERT INTO Documents (DocumentID, CompanyIDNum, ContactIDNum)
        VALUES (100, 1, NULL), (101, NULL, 5);
      INSERT INTO AccountantEmployeeInfo (ContactID, UserName) VALUES (5, 'ann');
      INSERT INTO AccountantFirmInfo (CompanyID) VALUES (1);
      INSERT INTO Tasks (TaskID, ScheduleIDNum) VALUES (30, 300);
      INSERT INTO archiveTasks (oldTaskID, ScheduleIDNum) VALUES (31, 301);
    )");
  }
};

TEST_F(ClientLookUpsTest, LookUpsReadTheFirstRowOrGiveTheirDefaultAndCloseEveryRecordset) {
  for (const LookUp& lookUp : kLookUps) {
    size_t asked = spy->sql.size();
    EXPECT_EQ(lookUp.call(lookUp.id), lookUp.found) << lookUp.name;
    ASSERT_GT(spy->sql.size(), asked) << lookUp.name;
    EXPECT_EQ(spy->sql[asked], lookUp.sql) << lookUp.name;
    EXPECT_EQ(lookUp.call(999), lookUp.fallback) << lookUp.name;
  }
  EXPECT_EQ(getCompanyIDFromDocumentID(101), -1);  // a contact's document: Null company
  EXPECT_EQ(getContactIDFromDocumentID(100), -1);
  EXPECT_FALSE(isCategoryMainCategory(8));
  EXPECT_FALSE(isCategoryMainCategory(9));
  EXPECT_EQ(getTaskIDFromScheduleIDNum(301), 31);  // archived: its old id
  EXPECT_EQ(getAccountantFirmID(), 1);
  EXPECT_EQ(spy->sql.back(), "SELECT AccountantFirmInfo.CompanyID From AccountantFirmInfo;");
  db.exec("DELETE FROM AccountantFirmInfo;");
  EXPECT_EQ(getAccountantFirmID(), -1);
  EXPECT_EQ(spy->open, 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ClientLookUpsTest, ValidIdTestsAskOnlyAboutNumbersOfZeroOrMore) {
  size_t asked = spy->sql.size();
  for (const char* id : {"", "abc", "-1"}) {
    EXPECT_FALSE(validCompanyID(id) || validContactID(id) || validFirmID(id) ||
                 validEmployeeID(id));
  }
  EXPECT_EQ(getTaskIDFromScheduleIDNum(-1), -1);
  EXPECT_EQ(spy->sql.size(), asked);
  EXPECT_TRUE(validCompanyID(" 1"));  // the text goes in as it stood
  EXPECT_EQ(spy->sql.back(), "SELECT Companies.CompanyID FROM Companies WHERE CompanyID =  1;");
}

TEST_F(ClientLookUpsTest, WithoutAConnectionLookUpsGiveTheirDefaultAndAskNothingElse) {
  spy->connected = false;
  for (const LookUp& lookUp : kLookUps) {
    EXPECT_EQ(lookUp.call(lookUp.id), lookUp.fallback) << lookUp.name;
  }
  EXPECT_EQ(spy->calls, 0);
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(getAccountantFirmID(), 1);  // asked without a connection test
}

TEST_F(ClientLookUpsTest, AFailingStoreGivesTheFailureValueAndIsReportedUnderTheLookUpsName) {
  spy->failOpen = true;
  std::vector<std::string> expected;
  for (const LookUp& lookUp : kLookUps) {
    EXPECT_EQ(lookUp.call(lookUp.id), lookUp.fallback) << lookUp.name;
    expected.push_back("Orvanta.exe-modDatabaseFunctions-" + lookUp.name);
  }
  EXPECT_EQ(getAccountantFirmID(), -1);
  expected.push_back("Orvanta.exe-modDatabaseFunctions-getAccountantFirmID");
  EXPECT_EQ(failedTraces(), expected);
  EXPECT_EQ(db.errors().failures.front().number, err::kStoreError);
  EXPECT_TRUE(db.errors().stack.empty());  // every trace popped again
}

}  // namespace
}  // namespace qb::test
