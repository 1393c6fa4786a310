// Id and name look-ups, existence tests and the task of a schedule row.

#include <functional>

#include "tests/data/data_fixture.h"

namespace qb::test {
namespace {

using namespace modDatabaseFunctions;

std::string text(int32_t value) { return std::to_string(value); }
std::string text(bool value) { return value ? "true" : "false"; }
std::string text(std::string value) { return value; }

struct LookUp {
  std::string name;
  std::function<std::string()> call;
  std::string fallback;
};

// Every look-up that tests the connection first, on ids whose rows exist.
const std::vector<LookUp>& connectedLookUps() {
  static const std::vector<LookUp> lookUps = {
      {"getClientDataIDFromCompanyID", [] { return text(getClientDataIDFromCompanyID(1)); }, "-1"},
      {"getCompanyIDFromClientDataID", [] { return text(getCompanyIDFromClientDataID(10)); }, "-1"},
      {"getDisplayNameFromContactID", [] { return text(getDisplayNameFromContactID(5)); }, ""},
      {"getCompanyNameFromCompanyID", [] { return text(getCompanyNameFromCompanyID(1)); }, ""},
      {"getCategoryNameFromCategoryID", [] { return text(getCategoryNameFromCategoryID(7)); }, ""},
      {"getCompanyIDFromDocumentID", [] { return text(getCompanyIDFromDocumentID(100)); }, "-1"},
      {"getContactIDFromDocumentID", [] { return text(getContactIDFromDocumentID(101)); }, "-1"},
      {"getUserNameFromUserID", [] { return text(getUserNameFromUserID(5)); }, ""},
      {"isCategoryMainCategory", [] { return text(isCategoryMainCategory(7)); }, "false"},
      {"getTaskIDFromScheduleIDNum", [] { return text(getTaskIDFromScheduleIDNum(300)); }, "-1"},
      {"validCompanyID", [] { return text(validCompanyID("1")); }, "false"},
      {"validContactID", [] { return text(validContactID("5")); }, "false"},
      {"validFirmID", [] { return text(validFirmID("1")); }, "false"},
      {"validEmployeeID", [] { return text(validEmployeeID("5")); }, "false"},
      {"getContactNameDisplayedByType",
       [] { return text(getContactNameDisplayedByType(2, 5, -1, false)); }, ""},
  };
  return lookUps;
}

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

TEST_F(ClientLookUpsTest, LookUpsReadTheFirstRowAndCloseEveryRecordset) {
  EXPECT_EQ(getClientDataIDFromCompanyID(1), 10);
  EXPECT_EQ(spy->sql.back(),
            "SELECT ClientData.ClientDataID, ClientData.CompanyIDNum FROM ClientData WHERE "
            "CompanyIDNum=1;");
  EXPECT_EQ(getCompanyIDFromClientDataID(10), 1);
  EXPECT_EQ(getDisplayNameFromContactID(5), " Smith, Ann ");  // as it stands, not trimmed
  EXPECT_EQ(getCompanyNameFromCompanyID(1), "Acme Ltd");
  EXPECT_EQ(getCategoryNameFromCategoryID(7), "Clients");
  EXPECT_EQ(getCompanyIDFromDocumentID(100), 1);
  EXPECT_EQ(getCompanyIDFromDocumentID(101), -1);  // a contact's document: Null company
  EXPECT_EQ(getContactIDFromDocumentID(101), 5);
  EXPECT_EQ(getContactIDFromDocumentID(100), -1);
  EXPECT_EQ(getUserNameFromUserID(5), "ann");
  EXPECT_EQ(spy->sql.back(),
            "SELECT AccountantEmployeeInfo.ContactID, AccountantEmployeeInfo.UserName FROM "
            "AccountantEmployeeInfo WHERE ContactID = 5 ORDER BY AccountantEmployeeInfo.UserName;");
  EXPECT_EQ(getAccountantFirmID(), 1);
  EXPECT_TRUE(isCategoryMainCategory(7));
  EXPECT_FALSE(isCategoryMainCategory(8));
  EXPECT_FALSE(isCategoryMainCategory(9));
  EXPECT_EQ(getTaskIDFromScheduleIDNum(300), 30);
  EXPECT_EQ(getTaskIDFromScheduleIDNum(301), 31);  // archived: its old id

  // No row: the default, and the recordset is still closed.
  EXPECT_EQ(getClientDataIDFromCompanyID(999), -1);
  EXPECT_EQ(getCompanyIDFromClientDataID(999), -1);
  EXPECT_EQ(getDisplayNameFromContactID(999), "");
  EXPECT_EQ(getCompanyNameFromCompanyID(999), "");
  EXPECT_EQ(getCategoryNameFromCategoryID(999), "");
  EXPECT_EQ(getCompanyIDFromDocumentID(999), -1);
  EXPECT_EQ(getContactIDFromDocumentID(999), -1);
  EXPECT_EQ(getUserNameFromUserID(999), "");
  EXPECT_FALSE(isCategoryMainCategory(999));
  EXPECT_EQ(getTaskIDFromScheduleIDNum(302), -1);
  size_t asked = spy->sql.size();
  EXPECT_EQ(getTaskIDFromScheduleIDNum(-1), -1);
  EXPECT_EQ(spy->sql.size(), asked);
  db.exec("DELETE FROM AccountantFirmInfo;");
  EXPECT_EQ(getAccountantFirmID(), -1);

  EXPECT_EQ(spy->open, 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ClientLookUpsTest, ValidIdTestsAskOnlyAboutNumbersOfZeroOrMore) {
  for (const char* id : {"", "abc", "-1"}) {
    EXPECT_FALSE(validCompanyID(id)) << id;
    EXPECT_FALSE(validContactID(id)) << id;
    EXPECT_FALSE(validFirmID(id)) << id;
    EXPECT_FALSE(validEmployeeID(id)) << id;
  }
  EXPECT_EQ(spy->calls, 0);

  EXPECT_TRUE(validCompanyID("1"));
  EXPECT_FALSE(validCompanyID("2"));
  EXPECT_TRUE(validContactID("5"));
  EXPECT_FALSE(validContactID("1"));
  EXPECT_TRUE(validFirmID("1"));
  EXPECT_TRUE(validEmployeeID("5"));
  EXPECT_TRUE(validCompanyID(" 1"));  // the text goes in as it stood
  EXPECT_EQ(spy->sql.back(), "SELECT Companies.CompanyID FROM Companies WHERE CompanyID =  1;");
  EXPECT_EQ(spy->open, 0);
}

TEST_F(ClientLookUpsTest, WithoutAConnectionLookUpsGiveTheirDefaultAndAskNothingElse) {
  spy->connected = false;
  for (const LookUp& lookUp : connectedLookUps()) {
    EXPECT_EQ(lookUp.call(), lookUp.fallback) << lookUp.name;
  }
  EXPECT_EQ(spy->calls, 0);
  EXPECT_TRUE(db.errors().failures.empty());
  // The firm's id is asked without a connection test.
  EXPECT_EQ(getAccountantFirmID(), 1);
}

TEST_F(ClientLookUpsTest, AFailingStoreGivesTheFailureValueAndIsReportedUnderTheLookUpsName) {
  spy->failOpen = true;
  std::vector<std::string> expected;
  for (const LookUp& lookUp : connectedLookUps()) {
    EXPECT_EQ(lookUp.call(), lookUp.fallback) << lookUp.name;
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
