// The default-contact rule: one default link per company, the company's copy
// of its details, the repair on read, and the summaries it rewrites.

#include "render/mod_database_client_functions.h"
#include "tests/render/render_fixture.h"

namespace qb::test {
namespace {

using namespace modDatabaseClientFunctions;

class DefaultContact : public RenderTest {
 protected:
  DefaultContact() {
    db.exec(
        "INSERT INTO Contacts (ContactID, DisplayName, BusinessPhone_Main, BusinessPhone_Fax, "
        "BusinessEmail) VALUES (10, 'Ann Lee', '613-555-0010', '613-555-0011', 'ann@lee.ca'),"
        "(11, 'Bo Hart', NULL, 'bo-fax', NULL);"
        "INSERT INTO ContactsNotes (ContactNum) VALUES (10), (11);"
        "UPDATE Companies SET DefaultContactName = 'Old', DefaultContactPhoneNumber = 'Old', "
        "DefaultContactFaxNumber = 'Old', DefaultContactEmail = 'Old';");
  }

  // The company's copy of its default contact's details, "|"-separated.
  std::string copied(int company) {
    return db.scalar(
        "SELECT IFNULL(DefaultContactName, '') || '|' || IFNULL(DefaultContactPhoneNumber, '') || "
        "'|' || IFNULL(DefaultContactFaxNumber, '') || '|' || IFNULL(DefaultContactEmail, '') "
        "FROM Companies WHERE CompanyID = " +
        std::to_string(company) + ";");
  }

  std::string storedDefault(int company) {
    return db.scalar(
        "SELECT ContactIDNum FROM ContactLinks WHERE DefaultContact = True AND "
        "CompanyNum = " +
        std::to_string(company) + ";");
  }
};

TEST_F(DefaultContact, AReadMakesTheFirstLinkTheDefault) {
  link(10, 1);
  link(11, 1);
  EXPECT_EQ(getDefaultContactIDFromCompanyID(1), 10);
  EXPECT_EQ(db.errors().pushed.front(),
            "Orvanta.exe-modDatabaseClientFunctions-getDefaultContactIDFromCompanyID");
  EXPECT_TRUE(db.errors().stack.empty());

  EXPECT_EQ(storedDefault(1), "10");
  EXPECT_TRUE(isContactDefaultContact(1, 10));
  EXPECT_FALSE(isContactDefaultContact(1, 11));
  EXPECT_EQ(copied(1), "Ann Lee|613-555-0010|613-555-0011|ann@lee.ca");
  EXPECT_NE(companyNotes(1).find("Name:\\b0  Ann Lee\\par"), std::string::npos);
  EXPECT_EQ(companyNotes(1), businessNotes(10));
  EXPECT_NE(businessNotes(10).find("Default Contact:\\b0  Yes"), std::string::npos);
  EXPECT_NE(businessNotes(11).find("Default Contact:\\b0  No"), std::string::npos);

  EXPECT_EQ(getDefaultContactIDFromCompanyID(1), 10);  // the second read changes nothing
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM ContactLinks WHERE DefaultContact = True;"), "1");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(DefaultContact, ACompanyWithoutLinksHasNone) {
  EXPECT_EQ(checkForDefaultContact(3, true), -1);
  EXPECT_EQ(copied(3), "|||");
  EXPECT_EQ(companyNotes(3), kHeader + "\\b No Default Contact Selected.\\b0  \\par\r\n}");
  EXPECT_EQ(modFormatAddresses::saveNoDefaultComment(), companyNotes(3));
  EXPECT_EQ(getDefaultContactIDFromCompanyID(3), -1);

  bool skipSummary = true;  // the details are cleared, the notes left alone
  db.exec("UPDATE CompaniesNotes SET ContactNotes = 'kept' WHERE CompanyNum = 2;");
  setNoContactAsDefault(2, skipSummary);
  EXPECT_EQ(copied(2), "|||");
  EXPECT_EQ(companyNotes(2), "kept");
}

TEST_F(DefaultContact, CheckingWithoutRepairAndADefaultWithoutAContactRow) {
  link(10, 1, "NULL");  // a Null flag is no default
  link(11, 1);
  EXPECT_EQ(checkForDefaultContact(1, false), -1);
  EXPECT_EQ(storedDefault(1), "");
  EXPECT_EQ(copied(1), "Old|Old|Old|Old");
  EXPECT_EQ(companyNotes(1), "untouched");
  EXPECT_FALSE(isContactDefaultContact(1, 10));
  EXPECT_EQ(checkForDefaultContact(1, true), 10);
  EXPECT_EQ(checkForDefaultContact(1, false), 10);

  // A default link whose contact has no row: the read answers with it and
  // ends, and the company's copy is cleared.
  link(99, 2, "1");
  link(11, 2);
  EXPECT_EQ(getDefaultContactIDFromCompanyID(2), 99);
  EXPECT_EQ(storedDefault(2), "99");
  updateDefaultContactInfo(2);
  EXPECT_EQ(copied(2), "|||");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(DefaultContact, SettingADefault) {
  link(10, 1, "1");
  link(11, 1);
  bool skipSummary = false;
  setContactAsDefault(11, 1, skipSummary);
  EXPECT_EQ(storedDefault(1), "11");
  EXPECT_EQ(copied(1), "Bo Hart||bo-fax|");  // Null columns copy as ""
  EXPECT_EQ(companyNotes(1), businessNotes(11));
  EXPECT_NE(businessNotes(11).find("Default Contact:\\b0  Yes"), std::string::npos);
  EXPECT_NE(businessNotes(10).find("Default Contact:\\b0  No"), std::string::npos);

  // A contact without a link leaves no default, and refreshing the company's
  // copy then repairs it with the first link.
  skipSummary = true;
  setContactAsDefault(99, 1, skipSummary);
  EXPECT_EQ(storedDefault(1), "10");
  EXPECT_EQ(copied(1), "Ann Lee|613-555-0010|613-555-0011|ann@lee.ca");
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
