// Write-back: a value stored in the column behind a field, by source and
// type, read back from the database; the rules that send it elsewhere, the
// cases that write nothing, and a database another writer holds.

#include <sqlite3.h>

#include "tests/merge/merge_firm.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

class WriteBack : public MergeTest {
 protected:
  WriteBack() {
    addMergeFirm(db);
    fields.setMergeFieldListUse(fieldListUseWriteBack);
    fields.setCompanyID(5);
    fields.setContactID(7);
    fields.setDocketId(41);
    fields.setListType(listTypeTimeEntry);
    fields.initializeDataRecordsetsForSingleDocMerge();
  }

  void write(const std::string& fieldName, const Variant& value) {
    EXPECT_FALSE(fields.writeDataToField(fieldName, value));
  }
  std::string company(const std::string& column) {
    return db.scalar("SELECT " + column + " FROM Companies WHERE CompanyID = 5;");
  }
  std::string contact(const std::string& column) {
    return db.scalar("SELECT " + column + " FROM Contacts WHERE ContactID = 7;");
  }

  MergeFields fields;
};

TEST_F(WriteBack, EachSourceAndType) {
  write("CompanyName", "Acme Inc.");
  EXPECT_EQ(company("CompanyName"), "Acme Inc.");
  write("FirstName", "Annie");
  EXPECT_EQ(contact("FirstName"), "Annie");
  write("Birthday", "1981-02-03");
  EXPECT_EQ(contact("Birthday"), "1981-02-03");
  write("BusinessNumber", "987654321");
  EXPECT_EQ(db.scalar("SELECT BusinessNumber FROM AccountingServices;"), "987654321");
  write("YearEndDate", Variant::date(DateSerial(2026, 12, 31)));
  EXPECT_EQ(db.scalar("SELECT YearEndDate FROM AccountingServices;"), "2026-12-31");
  // Amounts and hours in single precision, Booleans as such, times as dates.
  write("TotalAmountFinal", "99.99");
  EXPECT_EQ(db.scalar("SELECT TotalAmountFinal FROM Dockets WHERE DocketID = 41;"), "99.99");
  write("TotalTimeFinal", 2.25);
  EXPECT_EQ(db.scalar("SELECT TotalTimeFinal FROM Dockets WHERE DocketID = 41;"), "2.25");
  write("Invoiced", "1");
  EXPECT_EQ(db.scalar("SELECT Invoiced FROM Dockets WHERE DocketID = 41;"), "1");
  write("TimeTo", "2025-02-14 15:05:00");
  EXPECT_EQ(db.scalar("SELECT TimeTo FROM Dockets WHERE DocketID = 41;"), "2025-02-14 15:05:00");
  write("Subject", "Reconciliation");  // the first "Subject" is the time entry's
  EXPECT_EQ(db.scalar("SELECT Subject FROM Dockets WHERE DocketID = 41;"), "Reconciliation");
  // The first "Notes" of the table is the company's: its notes row is opened
  // writable on the first write.
  write("Notes", "Pays on time");
  EXPECT_EQ(db.scalar("SELECT Notes FROM CompaniesNotes WHERE CompanyNum = 5;"), "Pays on time");
  // What was written reads back through the merge.
  fields.setConvertStrToRTF(false);
  fields.setTemplateText("«Company Name» «Contact First Name» «(Contact Birthday, yyyy)»");
  EXPECT_EQ(fields.parseRTBComment(), "Acme Inc. Annie 1981");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(WriteBack, RulesThatSendTheValueElsewhere) {
  // An inherited business detail goes to the company as well.
  write("BusinessCity", "Hull");
  EXPECT_EQ(contact("BusinessCity"), "Hull");
  EXPECT_EQ(company("City"), "Hull");
  write("BusinessPhone_Fax", "819-555-0000");
  EXPECT_EQ(company("FaxNumber"), "819-555-0000");
  // A contact who does not inherit writes only her own.
  db.exec("UPDATE Contacts SET InheritCompanyInfo = 0 WHERE ContactID = 7;");
  write("BusinessCountry", "Canada!");
  EXPECT_EQ(contact("BusinessCountry"), "Canada!");
  EXPECT_EQ(company("Country"), "Canada");
  // Abbreviated provinces are written to the full column.
  write("HomeAbbreviatedProvince", "NS");
  EXPECT_EQ(contact("HomeProvince"), "NS");
  write("AltAbbreviatedProvince", "PEI");
  EXPECT_EQ(company("AltProvince"), "PEI");
  // A coded column takes the code, as a whole number rounded half to even.
  write("RC59Status", "3");
  write("GSTFilingMethod", 1.5);
  EXPECT_EQ(db.scalar("SELECT RC59Status || ',' || GSTFilingMethod FROM AccountingServices;"),
            "3,2");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(WriteBack, WhatWritesNothing) {
  const std::string before = db.scalar(
      "SELECT group_concat(Birthday || FirstName || "
      "ifnull(SpouseFirstName, '')) FROM Contacts;");
  write("ContactAndSpouseName", "Ann & Rob Lee");  // computed: no column
  write("Birthday", "1850-01-01");                 // before 1900
  write("NoSuchField", "x");
  write("", "x");
  EXPECT_EQ(db.scalar("SELECT group_concat(Birthday || FirstName || ifnull(SpouseFirstName, '')) "
                      "FROM Contacts;"),
            before);
  disconnect();
  write("CompanyName", "Nobody");
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(company("CompanyName"), "Acme Ltd.");
}

TEST_F(WriteBack, ADatabaseHeldByAnotherWriterIsReportedAndNothingIsLost) {
  // The merge's store waits a tenth of a second for the lock.
  auto store = std::make_shared<SqliteDatabase>();
  SqliteDatabase::Options options;
  options.busyTimeoutMs = 100;
  store->open(db.path(), options);
  moduleState().databaseReference = store;
  MergeFields merge;
  merge.setMergeFieldListUse(fieldListUseWriteBack);
  merge.setCompanyID(5);
  merge.setListType(listTypeCompany);
  merge.initializeDataRecordsetsForSingleDocMerge();

  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(db.path().c_str(), &other), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE;", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_FALSE(merge.writeDataToField("CompanyName", "Blocked Ltd."));
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].source, "Orvanta.exe-clsInsertFieldsInRTB-writeDataToField");
  sqlite3_exec(other, "ROLLBACK;", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_EQ(company("CompanyName"), "Acme Ltd.");
  // Once the other writer is gone the same write goes through.
  merge.writeDataToField("CompanyName", "Free Ltd.");
  EXPECT_EQ(company("CompanyName"), "Free Ltd.");
}

}  // namespace
}  // namespace qb::test
