// The RTF summaries of contacts and employees, where they are stored, and the
// copies in the notes of the companies whose default contact they are.

#include <filesystem>
#include <sstream>

#include "tests/render/render_fixture.h"
#include "tests/render/rtf_reader.h"

namespace qb::test {
namespace {

class ContactSummary : public RenderTest {
 protected:
  ContactSummary() {
    db.exec(
        "INSERT INTO Contacts (ContactID, DisplayName, ClientID, BusinessName, BusinessJobTitle, "
        "BusinessPhone_Main, BusinessEmail, BusinessAddress, BusinessCity, BusinessProvince, "
        "BusinessPostalCode, SocialInsuranceNumber, AltAddressName, AltAddress, AltCity, Custom1) "
        "VALUES (20, 'Ann Lee', 'C-20', 'Lee Consulting', 'Owner', '613-555-0100', 'ann@lee.ca', "
        "'5 Elm St', 'Ottawa', 'ON', 'K1A 0B1', '123 456 789', 'Cottage', '1 Lake Rd', "
        "'Wakefield', 'Blue');"
        "INSERT INTO Contacts (ContactID, DisplayName) VALUES (21, 'Sam Poe');"
        "INSERT INTO Contacts (ContactID, DisplayName, BusinessAddress, InheritCompanyInfo) "
        "VALUES (22, 'Bo Hart', '9 Own St', 1);"
        "INSERT INTO ContactsNotes (ContactNum, Notes) VALUES (20, 'Line one\r\nLine two'), "
        "(22, NULL);"
        "INSERT INTO Categories (CategoryID, CategoryName) VALUES (3, 'Clients');"
        "INSERT INTO ContactLinks (ContactIDNum, CategoryNum) VALUES (20, 3);"
        "INSERT INTO CustomAddressFields (ContactLabel1) VALUES ('Colour:');");
  }
};

TEST_F(ContactSummary, ARichContactWritesEverySection) {
  link(20, 1, "1");
  const std::string expected =
      kHeader +
      "\\b\\pard\\fi-1450\\li1450\\ri0 Name:\\b0  Ann Lee\\par\r\n"
      "\\b\\pard\\fi-1450\\li1450\\ri0 Client ID:\\b0  C-20\\par\r\n"
      "\\b\\pard\\fi-1425\\li1425\\ri0 Company Name:\\b0   Lee Consulting\\par\r\n"
      "\\b\\pard\\fi-800\\li800\\ri0 Job Title:\\b0   Owner\\par\r\n\\par\r\n"
      "\\b Default Contact:\\b0  Yes\\par\r\n\\par\r\n"
      "\\b\\pard\\fi-1100\\li1100\\ri0 Main Phone:\\b0   613-555-0100\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Email:\\b0  \\tab         ann@lee.ca\\par\r\n\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Address:\\b0\\par\r\n"
      "Lee Consulting\r\n\\par Ann Lee\r\n\\par 5 Elm St\r\n\\par Ottawa, ON  K1A 0B1\\par\r\n"
      "\\par\r\n"
      "\\b SIN:\\b0  \\tab\\tab    123 456 789\\par\r\n\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Associated Company: \\b0 Acme Ltd\\par\r\n\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Address (Cottage):\\b0\\par\r\n1 Lake Rd\r\n\\par "
      "Wakefield\\par\r\n"
      "\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Associated Category: \\b0 Clients\\par\r\n\\par\r\n"
      "\\b Colour:\\b0  Blue\\par\r\n\\par\r\n"
      "\\b Notes:\\b0\\par\r\nLine one\r\n\\par Line two\\par\r\n\\par\r\n}";
  EXPECT_EQ(summary(20, 1), expected);
  EXPECT_EQ(businessNotes(20), expected);
  EXPECT_EQ(companyNotes(1), expected);

  // Outside Canada the same number is an SSN; two companies make a list.
  db.locale().countryCode = 2;
  link(20, 2);
  std::string text = summary(20, 2, true);
  EXPECT_NE(text.find("\\b SSN:\\b0  \\tab\\tab    123 456 789\\par\r\n\\par\r\n"
                      "\\b\\pard\\fi0\\li0\\ri0 Other Associated Companies: \\b0\\par\r\n"
                      "Acme Ltd\\par\r\nBolt Inc\\par\r\n\\par\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("Default Contact:\\b0  No"), std::string::npos);
  EXPECT_EQ(companyNotes(1), expected);  // skipped: the other company is left alone
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ContactSummary, AContactWithOnlyANameAndUnknownPeople) {
  const std::string nameOnly =
      kHeader +
      "\\b\\pard\\fi-1450\\li1450\\ri0 Name:\\b0  Sam Poe\\par\r\n\\par\r\n"
      "\\b Default Contact:\\b0  No\\par\r\n\\par\r\n"
      "\\b\\pard\\fi0\\li0\\ri0 Address:\\b0\\par\r\nSam Poe\r\n\\par\\par\r\n"
      "\\par\r\n";
  EXPECT_EQ(summary(21, -1), nameOnly + "}");
  // No notes row: one is added, without a ContactNum.
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM ContactsNotes WHERE ContactNum IS NULL AND "
                      "BusinessNotes LIKE '%Sam Poe%';"),
            "1");
  EXPECT_EQ(summary(99, 1), "");
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM ContactsNotes;"), "3");

  // A linked company without a name lists nothing, yet its row still leaves
  // an empty line for the section.
  db.exec("INSERT INTO Companies (CompanyID) VALUES (5);");
  link(21, 5);
  EXPECT_EQ(summary(21, -1), nameOnly + "\\par\r\n}");
}

TEST_F(ContactSummary, AnEmployeeHasNoCompanyLines) {
  // Links under the employee's id: the category shows, the company does not.
  // With no settings row for the custom labels one is added, its labels blank.
  db.exec(
      "INSERT INTO AccountantEmployeeInfo (ContactID, DisplayName, EmployeeType, Custom2, Notes) "
      "VALUES (50, 'Eve Clerk', 'Staff', 'Night', 'Temp');"
      "INSERT INTO ContactLinks (ContactIDNum, CategoryNum) VALUES (50, 3);"
      "DELETE FROM CustomAddressFields;");
  link(50, 1, "1");
  std::string text = summary(-1, 1, false, 50);
  EXPECT_EQ(text, kHeader +
                      "\\b\\pard\\fi-1450\\li1450\\ri0 Name:\\b0  Eve Clerk\\par\r\n\\par\r\n"
                      "\\b\\pard\\fi0\\li0\\ri0 Address:\\b0\\par\r\nEve Clerk\r\n\\par\\par\r\n"
                      "\\par\r\n"
                      "\\b Employee Type:\\b0  Staff\\par\r\n\\par\r\n"
                      "\\b\\pard\\fi0\\li0\\ri0 Associated Category: \\b0 Clients\\par\r\n\\par\r\n"
                      "\\b \\b0  Night\\par\r\n\\par\r\n"
                      "\\b Notes:\\b0\\par\r\nTemp\\par\r\n\\par\r\n}");
  EXPECT_EQ(db.scalar("SELECT BusinessNotes FROM AccountantEmployeeInfo WHERE ContactID = 50;"),
            text);
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM CustomAddressFields;"), "1");
  EXPECT_EQ(companyNotes(1), "untouched");
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM ContactsNotes;"), "2");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ContactSummary, ACompanysCopyOfItsDefaultContact) {
  link(20, 2, "1");
  modFormatAddresses::saveCompanyContactRTF(2, 20);
  EXPECT_NE(companyNotes(2).find("Default Contact:\\b0  Yes"), std::string::npos);
  EXPECT_EQ(companyNotes(2), businessNotes(20));

  modFormatAddresses::saveCompanyContactRTF(3, -1);
  EXPECT_EQ(companyNotes(3), kHeader + "\\b No Default Contact Selected.\\b0  \\par\r\n}");
  EXPECT_EQ(modFormatAddresses::saveNoDefaultComment(), companyNotes(3));

  // A company without a notes row gets none; an unknown company changes nothing.
  db.exec("INSERT INTO Companies (CompanyID, CompanyName) VALUES (4, 'Dial Ltd');");
  db.exec("UPDATE ContactsNotes SET BusinessNotes = 'kept' WHERE ContactNum = 20;");
  modFormatAddresses::saveCompanyContactRTF(4, 20);
  modFormatAddresses::saveCompanyContactRTF(77, 20);
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM CompaniesNotes;"), "3");
  EXPECT_EQ(businessNotes(20), "kept");
  EXPECT_EQ(db.store().openRecordsetCount(), 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ContactSummary, CopiesGoToEveryCompanyTheContactIsDefaultOf) {
  link(22, 1, "1");
  link(22, 2, "1");
  link(22, 3, "0");
  std::string view1 = summary(22, 1);
  EXPECT_NE(view1.find("1 First Ave"), std::string::npos);  // inherited from company 1
  EXPECT_EQ(companyNotes(1), view1);
  EXPECT_NE(companyNotes(2).find("2 Second Ave"), std::string::npos);
  EXPECT_EQ(companyNotes(3), "untouched");  // linked, but not as default
  // The other company's view was written last, over the contact's own copy.
  EXPECT_EQ(businessNotes(22), companyNotes(2));

  std::string view3 = summary(22, 3, true);
  EXPECT_EQ(businessNotes(22), view3);
  EXPECT_EQ(companyNotes(1), view1);
}

// What a real RTF reader makes of a summary with accents and braces.
TEST_F(ContactSummary, ARealReaderReadsAccentsAndBraces) {
  if (!haveRtfReader()) GTEST_SKIP() << "unrtf is not installed";
  db.exec(
      "INSERT INTO Contacts (ContactID, DisplayName, BusinessName) VALUES "
      "(30, 'Hélène Côté', 'Côté & Fils {Montréal}');"
      "UPDATE Companies SET CompanyName = 'Côté & Fils {Montréal}' WHERE CompanyID = 3;");
  link(30, 3, "1");
  std::string text = rtfReaderText(summary(30, 3), db.folder().path().string());
  EXPECT_NE(text.find("Name: Hélène Côté"), std::string::npos) << text;
  EXPECT_NE(text.find("Company Name: Côté & Fils {Montréal}"), std::string::npos) << text;
  EXPECT_NE(text.find("Associated Company: Côté & Fils {Montréal}"), std::string::npos) << text;
  EXPECT_NE(text.find("Default Contact: Yes"), std::string::npos) << text;
}

// Control characters stored in a value never reach the RTF: a NUL or an ESC
// is dropped, a tab is \tab, and a bare line feed or carriage return is a
// line break as CR LF is.
TEST_F(ContactSummary, ControlCharactersNeverReachTheRtf) {
  db.exec(
      "INSERT INTO Contacts (ContactID, DisplayName, BusinessName, BusinessJobTitle, "
      "BusinessAddress, BusinessCity) VALUES (31, 'Ann' || char(0) || ' Smith', 'North' || "
      "char(10) || 'Wind', 'Chief' || char(9) || 'Baker', 'Unit 4' || char(13) || '9 Elm St', "
      "'Ottawa');"
      "INSERT INTO ContactsNotes (ContactNum, Notes) VALUES (31, 'Called' || char(27) || "
      "'[0m twice' || char(10) || 'Will call back' || char(13) || char(10) || 'Done');");
  std::string rtf = summary(31, -1);
  for (size_t i = 0; i < rtf.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(rtf[i]);
    if (c == '\r') {
      EXPECT_TRUE(i + 1 < rtf.size() && rtf[i + 1] == '\n') << "a bare CR at " << i;
    } else if (c == '\n') {
      EXPECT_TRUE(i > 0 && rtf[i - 1] == '\r') << "a bare LF at " << i;
    } else {
      EXPECT_TRUE(c >= 0x20 && c < 0x7F) << "byte " << int(c) << " at " << i;
    }
  }
  EXPECT_NE(rtf.find("Name:\\b0  Ann Smith\\par\r\n"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("Company Name:\\b0   North\\line Wind\\par\r\n"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("Job Title:\\b0   Chief\\tab Baker\\par\r\n"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("Unit 4\r\n\\par 9 Elm St"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("Called[0m twice\r\n\\par Will call back\r\n\\par Done"), std::string::npos)
      << rtf;

  if (!haveRtfReader()) GTEST_SKIP() << "unrtf is not installed";
  std::string text = rtfReaderText(rtf, db.folder().path().string());
  EXPECT_NE(text.find("Name: Ann Smith\n"), std::string::npos) << text;
  EXPECT_NE(text.find("Company Name: North\nWind\n"), std::string::npos) << text;
  EXPECT_NE(text.find("Will call back\nDone"), std::string::npos) << text;
}

}  // namespace
}  // namespace qb::test
