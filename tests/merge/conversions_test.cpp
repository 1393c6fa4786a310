// The value conversions: a template normalised to today's names and the
// firm's region, province names, a couple's name, durations, today's date
// and values made ready for rich text.

#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

using Conversions = MergeTest;

std::string converted(const std::string& text) {
  clsInsertFieldsInRTB fields;
  return fields.convertProvinceFields(text);
}

TEST_F(Conversions, TemplatesTakeTodaysNamesWhateverTheRegion) {
  region(3, 0);  // a country without rows of its own: only the first list runs
  EXPECT_EQ(converted(""), "");
  EXPECT_EQ(converted("<<Company Name>> and >>"), "«Company Name» and »");
  EXPECT_EQ(converted("«(Docket Date, d)»"), "«(Time Entry Date, d)»");
  EXPECT_EQ(converted("the docket is DOCKETED"), "the Time Entry is Time EntryED");
  EXPECT_EQ(converted("«(due date, Long Date)» «(In-House Due Date, Short Date)»"),
            "«(Task Due Date, dddd, mmmm d yyyy)» «(Task in-House Due Date, dd/mm/yy)»");
  EXPECT_EQ(converted("«(Calendar Date, Medium Date)»"), "«(Task Calendar Due Date, mmm d yyyy)»");
  EXPECT_EQ(converted("\\'ab(Due Date, d)\\'bb"), "\\'ab(Task Due Date, d)\\'bb");
  EXPECT_EQ(converted("«Contact Full Name» \\'abContact Full Name\\'bb Contact Full Name"),
            "«Contact Display Name» \\'abContact Display Name\\'bb Contact Display Name");
  EXPECT_EQ(converted("«Notified Date»«Weekday Date»\\'abWeekday Date\\'bb"),
            "«Calendar Date»«Calendar Date»\\'abCalendar Date\\'bb");
  EXPECT_EQ(converted("«Remittance Name» «Remittance Weekday Due Date» «Task Weekday Due Date»"),
            "«Task Name» «Task Calendar Date» «Task Calendar Date»");
  EXPECT_EQ(converted("«Remittance Year»«Custom Remitt Field 3»\\'abCustom Remitt Field 5\\'bb"),
            "«Task Year»«Custom Task Field 3»\\'abCustom Task Field 5\\'bb");
  EXPECT_EQ(converted("\\'abRemittance in-House Due Date\\'bb"),
            "\\'abTask in-House Due Date\\'bb");
  // Regional markers stay for a country without rows of its own.
  EXPECT_EQ(converted("«Province» «HST Number»"), "«Province» «HST Number»");
  EXPECT_TRUE(db.errors().failures.empty());
}

struct RegionCase {
  int32_t country, province;
  const char* text;
  const char* expected;
};

TEST_F(Conversions, RegionalMarkersBecomeTheFirmsOwn) {
  const RegionCase cases[] = {
      {2, 3, "«Postal Code» \\'abPostal Code\\'bb «Spouse SIN»",
       "«Zip Code» \\'abPostal Code\\'bb «Spouse SSN»"},
      {2, 3, "«Your Province» «HST Number»", "«Your State» «HST Number»"},
      // Ontario: GST on any date, the US markers undone, MCBS back.
      {1, 3, "«HST Number» «GST Number» «State» «Contact Home Zip Code»",
       "«GST Number» «GST Number» «Province» «Contact Home Postal Code»"},
      {1, 3, "«WCB Number» «NEQ Number» «WHSCC Number» «WCB Firm Number» «WCB Premium Rate»",
       "«WSIB Number» «WSIB Number» «WSIB Number» «WSIB Firm Number» «WSIB Premium Rate»"},
      {1, 3, "«Quebec ID Number» «Alberta Corp. Tax Number» «Sask. Corp. Tax Number»",
       "«ON Corp. MCBS Number» «ON Corp. Tax Number» «ON Corp. Tax Number»"},
      {1, 6, "«BC Corp. Tax Number» «Zip Code»", "«ON Corp. Tax Number» «Postal Code»"},
      {1, 9, "«GST Number» «WSIB Number» «NEQ Number» «WSIB Premium Rate»",
       "«HST Number» «WCB Number» «WCB Number» «WCB Premium Rate»"},
      {1, 10, "«GST Number» «WCB Number» «WSIB Premium Rate» «ON Corp. Tax Number»",
       "«HST Number» «WHSCC Number» «WHSCC Premium Rate» «N.B. Corp. Tax Number»"},
      {1, 11, "«NEQ Number» «P.E.I. Corp. Tax Number»", "«WHSCC Number» «Nfld. Corp. Tax Number»"},
      {1, 12, "«HST Number» «WHSCC Number»", "«GST Number» «WCB Number»"},
      {1, 0, "«WSIB Number» «NEQ Number» «HST Number» «Que. Corp. Tax Number»",
       "«WCB Number» «WCB Number» «GST Number» «Alberta Corp. Tax Number»"},
      {1, 2, "«WHSCC Number» «ON Corp. Tax Number»", "«WCB Number» «Manitoba Corp. Tax Number»"},
      {1, 4, "«WSIB Premium Rate» «N.S. Corp. Tax Number»",
       "«WCB Premium Rate» «Sask. Corp. Tax Number»"},
      {1, 1, "«HST Number» «ON Corp. Tax Number» «State»",
       "«GST Number» «BC Corp. Tax Number» «State»"},
      // Quebec: the Saskatchewan marker is not among those it takes over.
      {1, 8, "«WSIB Number» «WSIB Premium Rate» «WHSCC Number» «HST Number»",
       "«NEQ Number» «CSST Premium Rate» «WCB Number» «GST Number»"},
      {1, 8, "«Sask. Corp. Tax Number» «ON Corp. Tax Number» «ON Corp. MCBS Number»",
       "«Sask. Corp. Tax Number» «Que. Corp. Tax Number» «Quebec ID Number»"},
      // Replacing a marker by itself still gives it the marker's case.
      {1, 0, "«wsib firm number»", "«WSIB Firm Number»"},
      {1, 3, "«wsib firm number»", "«wsib firm number»"},
  };
  for (const RegionCase& c : cases) {
    SCOPED_TRACE(c.text);
    region(c.country, c.province);
    EXPECT_EQ(converted(c.text), c.expected);
  }
  // The date rule comes before the row that undoes it.
  for (auto [year, month, day] : {std::tuple{2010, 6, 30}, std::tuple{2010, 7, 1}}) {
    today(year, month, day);
    region(1, 1);
    EXPECT_EQ(converted("«GST Number»"), "«GST Number»");
    region(1, 3);
    EXPECT_EQ(converted("«GST Number»"), "«GST Number»");
  }
}

TEST_F(Conversions, ProvinceNamesInShortAndLongForm) {
  MergeFields fields;
  const std::pair<const char*, const char*> shortForms[] = {
      {"alta.", "AB"},
      {"Quebec", "QC"},
      {"british columbia", "BC"},
      {"BritishColumbia", "BC"},
      {"Ont", "ON"},
      {"P.E.I.", "PEI"},
      {"NEWFOUNDLAND & LABRADOR", "NL"},
      {"nl", "NL"},
      {"Nfld.", "Nfld."},
      {"Newfoundland and Labrador", "Newfoundland and Labrador"},
      {"PE", "PE"},
      {"Florida", "Florida"},
      {"", ""},
      {" ON", " ON"},
      {"yt", "YT"},
  };
  for (auto [given, expected] : shortForms)
    EXPECT_EQ(fields.getAbbreviatedProvince(given), expected);
  EXPECT_EQ(fields.getFullProvinceString("qc"), "Quebec");
  EXPECT_EQ(fields.getFullProvinceString("N.W.T."), "Northwest Territories");
  EXPECT_EQ(fields.getFullProvinceString("PEI"), "Prince Edward Island");
  EXPECT_EQ(fields.getFullProvinceString("Texas"), "Texas");
}

TEST_F(Conversions, ACoupleIsNamedByWhichNamesThereAre) {
  db.exec(
      "INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName, SpouseFirstName, "
      "SpouseLastName) VALUES "
      "(1, 'Ann', 'Lee', 'Ann Lee', 'Bob', 'Lee'), (2, 'Ann', 'Lee', 'Ann Lee', 'Bob', 'Hall'),"
      "(3, 'Ann', 'LEE', 'Ann Lee', 'Bob', 'Lee'), (4, NULL, 'Lee', 'Lee Co', 'Bob', 'Lee'),"
      "(5, 'Ann', '', 'Ann', 'Bob', 'Hall'), (6, '', '', 'A. L.', 'Bob', 'Hall'),"
      "(7, NULL, NULL, 'A. L.', 'Bob', NULL), (8, 'Ann', 'Lee', 'Ann Lee', NULL, 'Hall'),"
      "(9, '', 'Lee', 'Lee', '', ''), (10, 'Ann', 'Lee', 'Ann Lee', 'Bob', NULL);");
  struct Case {
    int32_t contact;
    const char* natural;
    const char* surnameFirst;
  };
  const Case cases[] = {
      {1, "Ann & Bob Lee", "Lee, Ann & Bob"},
      {2, "Ann Lee & Bob Hall", "Lee, Ann & Hall, Bob"},
      {3, "Ann & Bob LEE", "LEE, Ann & Bob"},
      {4, "Bob Lee", "Lee, Bob"},
      {5, "Ann & Bob Hall", "Ann & Hall, Bob"},
      {6, "A. L.", "A. L. & Hall, Bob"},
      {7, "A. L.", "A. L. & , Bob"},
      {8, "Ann Lee", "Lee, Ann"},
      {9, "Lee", "Lee"},
      {10, "Ann Lee & Bob ", "Lee, Ann & , Bob"},
  };
  MergeFields fields;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.contact);
    EXPECT_EQ(fields.getContactAndSpouseName(c.contact, false), c.natural);
    EXPECT_EQ(fields.getContactAndSpouseName(c.contact, true), c.surnameFirst);
    EXPECT_EQ(fields.contactID(), c.contact);  // a valid other contact becomes the object's
  }
  // An unknown contact: the object keeps its own, which the recordset holds.
  EXPECT_EQ(fields.getContactAndSpouseName(99, false), "");
  EXPECT_EQ(fields.contactID(), 10);
  EXPECT_EQ(fields.getContactAndSpouseName(-1, false), "");
  EXPECT_TRUE(db.store().isRecordsetOpen(fields.contactRecordset()));
  EXPECT_TRUE(db.errors().failures.empty());

  disconnect();
  MergeFields offline;
  EXPECT_EQ(offline.getContactAndSpouseName(1, false), "");
}

TEST_F(Conversions, TheKeptRecordsetsCloseWithTheObject) {
  db.exec("INSERT INTO Contacts (ContactID, FirstName, LastName) VALUES (1, 'Ann', 'Lee');");
  {
    MergeFields fields;
    fields.getContactAndSpouseName(1, false);
    EXPECT_EQ(db.store().openRecordsetCount(), 1);
  }
  EXPECT_EQ(db.store().openRecordsetCount(), 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(Conversions, DurationsTodayAndRichTextValues) {
  MergeFields fields;
  const double nine = DateSerial(2026, 3, 2) + TimeSerial(9, 0, 0);
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine, nine + TimeSerial(1, 30, 0)), "1 hr 30 min");
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine + TimeSerial(1, 30, 0), nine), "1 hr 30 min");
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine, nine + TimeSerial(0, 31, 0)), "31 min");
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine, nine + TimeSerial(0, 0, 59)), "0 min");
  EXPECT_EQ(
      fields.getTimeDurationFieldValue(nine + TimeSerial(0, 0, 59), nine + TimeSerial(0, 1, 0)),
      "1 min");
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine, nine + 1), "24 hr");
  EXPECT_EQ(fields.getTimeDurationFieldValue(nine, nine + TimeSerial(2, 0, 0)), "2 hr");

  EXPECT_EQ(fields.getTodaysDate(""), "Nov 23, 2026");
  EXPECT_EQ(fields.getTodaysDate("dddd, mmmm d yyyy"), "Monday, November 23 2026");
  EXPECT_EQ(fields.getTodaysDate("dd/mm/yy"), "23/11/26");
  fields.setTestComment(true);  // test mode does not touch today's date
  EXPECT_EQ(fields.getTodaysDate("yyyy"), "2026");

  EXPECT_EQ(fields.convertToRTF("A\r\nB\r\nC"), "A\\par \r\nB\\par \r\nC");
  EXPECT_EQ(fields.convertToRTF("one line"), "one line");
  EXPECT_EQ(fields.convertToRTF("Café {x}"), "Caf\\'e9 {x}");
  fields.setUseWordWrap(false);
  EXPECT_EQ(fields.convertToRTF("A\r\nB\r\nC"), "A, \r\nB, \r\nC");
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
