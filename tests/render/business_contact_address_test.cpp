// The address of a contact or a firm employee read from the store.

#include "tests/render/render_fixture.h"

namespace qb::test {
namespace {

struct Flags {
  bool rtf = false, address = true, phones = false, email = false, businessName = false;
};

std::string businessAddress(int32_t contact, int32_t employee, int32_t& company, Flags f) {
  return modFormatAddresses::createBusinessContactAddress(
      contact, f.rtf, employee, company, f.address, f.phones, f.email, f.businessName);
}

class BusinessContactAddress : public RenderTest {
 protected:
  BusinessContactAddress() {
    db.exec(
        "INSERT INTO Contacts (ContactID, DisplayName, BusinessName, BusinessAddress, "
        "BusinessCity, "
        "BusinessPhone_Main, BusinessPhone_Fax, BusinessPhone_Cell, BusinessEmail, "
        "InheritCompanyInfo) VALUES "
        "(10, 'Jane Roe', 'Roe Design', '9 Own St', 'Hull', NULL, 'own-fax', 'own-cell', "
        "'jane@roe.ca', 1),"
        "(11, 'Tom Poe', NULL, '8 Home Rd', 'Aylmer', '555-1111', NULL, NULL, NULL, 0);"
        "INSERT INTO AccountantFirmInfo (CompanyID, Address, City, Province, PostalCode, "
        "OfficeNumber) VALUES (40, '40 Firm Pl', 'Ottawa', 'ON', 'K2P 2P2', '613-555-4000');"
        "INSERT INTO AccountantEmployeeInfo (ContactID, DisplayName, BusinessAddress, "
        "BusinessCity, "
        "InheritCompanyInfo) VALUES (50, 'Eve Clerk', '7 Desk Ln', 'Vanier', 1);");
  }
};

TEST_F(BusinessContactAddress, AnInheritingContactShowsItsCompany) {
  int32_t company = 1;
  Flags f;
  f.phones = true;
  f.email = true;
  // The office number fills the missing phone; the fax test is on the phone
  // too, so the contact keeps its own fax. Cell and email are never inherited.
  EXPECT_EQ(businessAddress(10, -1, company, f),
            "Roe Design\r\nJane Roe\r\n1 First Ave\r\nOttawa, ON  K1A 0A1\r\nPhone: "
            "613-555-0001\r\nFax: own-fax\r\nCell: own-cell\r\nEmail: jane@roe.ca");
  EXPECT_EQ(company, 1);
  EXPECT_EQ(db.errors().pushed.front(),
            "Orvanta.exe-modFormatAddresses-createBusinessContactAddress");

  // No office number: the phone stays blank and so the company's fax wins.
  company = 2;
  EXPECT_EQ(businessAddress(10, -1, company, f),
            "Roe Design\r\nJane Roe\r\n2 Second Ave\r\nKingston, ON  K7L 1A1\r\nFax: "
            "613-555-0009\r\nCell: own-cell\r\nEmail: jane@roe.ca");

  // Without a valid company the contact's own address shows and the id is -1.
  for (int32_t given : {-1, 77}) {
    company = given;
    Flags plain;
    plain.rtf = true;
    EXPECT_EQ(businessAddress(10, -1, company, plain),
              "Roe Design\r\n\\par Jane Roe\r\n\\par 9 Own St\r\n\\par Hull");
    EXPECT_EQ(company, -1);
  }

  // Without the address flag only the name shows, its break cut.
  Flags nameOnly;
  nameOnly.address = false;
  company = 1;
  EXPECT_EQ(businessAddress(11, -1, company, nameOnly), "Tom Poe");
  company = 1;
  EXPECT_EQ(businessAddress(99, -1, company, Flags{}), "");

  // Every recordset opened is closed again; with company -1 none is opened
  // for the company, so none is closed for it either.
  EXPECT_EQ(db.store().openRecordsetCount(), 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(BusinessContactAddress, AnEmployeeInheritsTheFirmOnlyWithoutAValidFirmID) {
  int32_t company = -1;
  EXPECT_EQ(businessAddress(-1, 50, company, Flags{}),
            "Eve Clerk\r\n40 Firm Pl\r\nOttawa, ON  K2P 2P2");
  EXPECT_EQ(company, 40);

  company = 40;  // a valid firm id: no firm address, and the id becomes -1
  EXPECT_EQ(businessAddress(-1, 50, company, Flags{}), "Eve Clerk\r\n7 Desk Ln\r\nVanier");
  EXPECT_EQ(company, -1);
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
