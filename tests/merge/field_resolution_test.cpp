// Field resolution on the small firm: the recordsets a merge opens and
// their SQL, those opened on first use, the turns of the event pump before
// each search, values formatted by type, and the fields with rules of their
// own (inherited details, the couple's name, abbreviated provinces, coded
// columns, durations).

#include "data/mod_database_functions.h"
#include "merge/merge_sql.h"
#include "services/controls/platform.h"
#include "tests/data/data_test.h"
#include "tests/merge/merge_firm.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

// The store as the merge sees it, recording each SQL text with its lock and
// the event pump's count at each search.
class MergeSpy : public SpyStore {
 public:
  using SpyStore::SpyStore;
  std::vector<std::pair<std::string, int32_t>> opened;
  std::vector<int32_t> turnsAtFind;
  H openRecordset(const S& text, int32_t cursor, int32_t lock, bool a, const S& n,
                  bool b) override {
    opened.emplace_back(text, lock);
    return SpyStore::openRecordset(text, cursor, lock, a, n, b);
  }
  bool findRecord(H h, const S& f, const S& v, const S& a, const S& b, const S& c,
                  const S& d) override {
    turnsAtFind.push_back(doEventsCount());
    return SpyStore::findRecord(h, f, v, a, b, c, d);
  }
  // The SQL texts opened since the mark that begin with one of the merge's
  // recordset texts, with their locks.
  std::vector<std::string> mergeOpens(size_t from = 0) const {
    std::vector<std::string> found;
    for (size_t i = from; i < opened.size(); ++i) {
      const std::string& sql = opened[i].first;
      if (sql.rfind("SELECT CustomFields", 0) == 0 || sql.rfind("SELECT CustomAddress", 0) == 0 ||
          sql.rfind("SELECT ClientData.", 0) == 0) {
        continue;  // the catalogues' labels and the client look-up
      }
      found.push_back(std::to_string(opened[i].second) + " " + sql);
    }
    return found;
  }
};

class FieldResolution : public MergeTest {
 protected:
  FieldResolution() : spy(std::make_shared<MergeSpy>(db.storePtr())) {
    addMergeFirm(db);
    moduleState().databaseReference = spy;
  }

  void setIds(MergeFields& fields) {
    fields.setCompanyID(5);
    fields.setContactID(7);
    fields.setFirmID(1);
    fields.setUserID(3);
    fields.setAppointmentID(11);
    fields.setDocketId(41);
    fields.setTaskID(31);
    fields.setListType(listTypeAppointment);
    fields.setConvertStrToRTF(false);
  }

  std::shared_ptr<MergeSpy> spy;
};

std::string withId(const char* sql, int id) { return sql + std::to_string(id) + ";"; }
std::string lock(int32_t lockType, const std::string& sql) {
  return std::to_string(lockType) + " " + sql;
}

TEST_F(FieldResolution, AMergeOpensItsRecordsetsInTheirOrder) {
  {
    MergeFields fields;
    setIds(fields);
    fields.initializeDataRecordsetsForSingleDocMerge();
    const std::string clientSql = modDatabaseFunctions::getMainBusinessSQLString(false, 3, 50);
    EXPECT_EQ(spy->mergeOpens(), (std::vector<std::string>{
                                     lock(1, clientSql),
                                     lock(1, withId(merge_sql::kCompany, 5)),
                                     lock(1, withId(merge_sql::kSoftwareByCompany, 5)),
                                     lock(1, withId(merge_sql::kContact, 7)),
                                     lock(1, withId(merge_sql::kFirm, 1)),
                                     lock(1, withId(merge_sql::kFirmUser, 3)),
                                     lock(1, withId(merge_sql::kAppointment, 11)),
                                     lock(1, withId(merge_sql::kDocket, 41)),
                                     lock(1, withId(merge_sql::kTask, 31)),
                                 }));
    EXPECT_EQ(fields.ListType(), listTypeAppointment);
    EXPECT_GT(fields.FieldList().getFieldRowCount(), 150);
  }
  // Every recordset is closed with the object.
  EXPECT_EQ(db.store().openRecordsetCount(), 0);

  // Write-back opens them writable; a contact of its own brings its
  // software; a task without a schedule row is read by itself.
  spy->opened.clear();
  MergeFields fields;
  fields.setMergeFieldListUse(fieldListUseWriteBack);
  fields.setContactID(8);
  fields.setTaskID(32);
  fields.setListType(listTypeTask);
  fields.initializeDataRecordsetsForSingleDocMerge();
  EXPECT_EQ(spy->mergeOpens(), (std::vector<std::string>{
                                   lock(3, withId(merge_sql::kContact, 8)),
                                   lock(3, withId(merge_sql::kSoftwareByContact, 8)),
                                   lock(3, withId(merge_sql::kTask, 32)),
                                   lock(3, withId(merge_sql::kTaskAlone, 32)),
                               }));
  fields.setConvertStrToRTF(false);
  EXPECT_EQ(fields.valueOf("Task Subject"), "Call the bank");
  // A store that is not connected opens nothing and still builds the table.
  spy->connected = false;
  spy->opened.clear();
  fields.initializeDataRecordsetsForSingleDocMerge();
  EXPECT_TRUE(spy->opened.empty());
  EXPECT_GT(fields.FieldList().getFieldRowCount(), 100);
  EXPECT_EQ(fields.valueOf("Task Subject"), "");
  // Without a list type the table holds the firm's fields only.
  fields.setListType(0);
  fields.initializeDataRecordsetsForSingleDocMerge();
  EXPECT_EQ(fields.FieldList().getFieldRowCount(), 18);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, RecordsetsOpenedOnFirstUse) {
  MergeFields fields;
  fields.setConvertStrToRTF(false);
  fields.setCompanyID(5);
  fields.setContactID(7);
  fields.setFirmID(1);
  fields.setTaskID(32);
  fields.setListType(listTypeTask);
  bool bypass = true;
  bool clear = true;
  fields.createDefaultFieldListStructure(bypass, clear);
  spy->opened.clear();
  EXPECT_EQ(fields.valueOf("Company Name"), "Acme Ltd.");
  EXPECT_EQ(fields.valueOf("Task Subject"), "Call the bank");
  EXPECT_EQ(fields.valueOf("Your Company Name"), "Rideau Accounting");
  EXPECT_EQ(fields.valueOf("Contact Notes"), "Likes tea");
  // The task's first recordset stays open beside the one that read it.
  EXPECT_EQ(spy->mergeOpens(), (std::vector<std::string>{
                                   lock(1, withId(merge_sql::kCompanyOnFirstUse, 5)),
                                   lock(1, withId(merge_sql::kSoftwareByCompany, 5)),
                                   lock(1, withId(merge_sql::kTask, 32)),
                                   lock(1, withId(merge_sql::kTaskAlone, 32)),
                                   lock(1, withId(merge_sql::kFirmOnFirstUse, 1)),
                                   lock(1, withId(merge_sql::kContactNotes, 7)),
                               }));
  // Opened this way the fifth custom column of the company and the firm has
  // no alias: its field finds no column, and that is a failure.
  EXPECT_EQ(fields.valueOf("Company Custom Field 4"), "");
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(fields.valueOf("Company Custom Field 5"), "");
  EXPECT_EQ(fields.valueOf("Your Company Custom Field 5"), "");
  ASSERT_EQ(db.errors().failures.size(), 2u);
  EXPECT_EQ(db.errors().failures[0].number, err::kItemNotFound);

  // Opened by the merge it has its alias.
  db.errors().failures.clear();
  fields.initializeDataRecordsetsForSingleDocMerge();
  EXPECT_EQ(fields.valueOf("Company Custom Field 5"), "company five");
  EXPECT_EQ(fields.valueOf("Your Company Custom Field 5"), "firm five");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, ARunOverManyClientsReadsWholeTables) {
  MergeFields fields;
  fields.setConvertStrToRTF(false);
  fields.setMergeFieldListUse(fieldListUseBatchMerge);
  fields.setContactID(7);
  fields.setCompanyID(5);
  bool bypass = true;
  bool clear = true;
  fields.setListType(listTypeCompanyContact);
  fields.createDefaultFieldListStructure(bypass, clear);
  spy->opened.clear();
  EXPECT_EQ(fields.valueOf("Company Name"), "Acme Ltd.");
  // Ann inherits the company's details: her fields search the company's
  // recordset, which a company field has opened.
  EXPECT_EQ(fields.valueOf("Contact First Name"), "Ann");
  EXPECT_EQ(fields.valueOf("Contact Notes"), "Likes tea");
  EXPECT_EQ(fields.valueOf("Company Notes"), "");  // its key is spelt "ComapnyNum"
  // The software's recordset is read only when something opened it.
  EXPECT_EQ(fields.valueOf("Software Name"), "");
  EXPECT_EQ(spy->mergeOpens(),
            (std::vector<std::string>{
                lock(1, merge_sql::kAllCompanies), lock(1, merge_sql::kAllContacts),
                lock(3, merge_sql::kAllContactNotes), lock(3, merge_sql::kAllCompanyNotes)}));
  // The same recordsets serve another client by findRecord.
  fields.setContactID(8);
  EXPECT_EQ(fields.valueOf("Contact First Name"), "Sam");
  EXPECT_EQ(spy->mergeOpens().size(), 4u);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, TheEventPumpTurnsEightTimesBeforeEachSearch) {
  MergeFields fields;
  setIds(fields);
  fields.initializeDataRecordsetsForSingleDocMerge();
  spy->turnsAtFind.clear();
  const int32_t start = doEventsCount();
  fields.setTemplateText("«Company Name» «Contact First Name» «City» «Nope»");
  EXPECT_EQ(fields.parseRTBComment(), "Acme Ltd. Ann Ottawa ");
  // Ann inherits her company's details: her field searches the company too.
  EXPECT_EQ(spy->turnsAtFind,
            (std::vector<int32_t>{start + 8, start + 16, start + 24, start + 32}));

  // Test mode reads no store at all.
  fields.setTestComment(true);
  const int callsBefore = spy->calls;
  EXPECT_EQ(fields.parseRTBComment(), "ABC Consulting Jane Ottawa ");
  EXPECT_EQ(spy->calls, callsBefore);
}

TEST_F(FieldResolution, ValuesAreFormattedByTheirType) {
  db.exec(
      "UPDATE Dockets SET TotalTimeReal = 0.375, TotalTimeRounded = 0.625, "
      "TotalTimeAdjusted = 0, TotalAmountReal = 0 WHERE DocketID = 41;");
  MergeFields fields;
  setIds(fields);
  fields.setListType(listTypeTimeEntry);
  fields.initializeDataRecordsetsForSingleDocMerge();
  fields.setTemplateText(
      "«(Year End Date, mmmm d, yyyy)»|«Time Entry Start Time»|«Time Entry End Time»|«Total "
      "Amount (Final)»|«Billable Time»|«Is Invoiced»|«Total Time (Final)»|«Total Time "
      "(Actual)»|«Total Time (Rounded)»|«Total Time (Adjusted)»|«Total Amount (Actual)»|«Time "
      "Entry Locked»");
  // Hours are rounded to whole minutes half to even: 22.5 to 22, 37.5 to
  // 38. A blank value is never formatted; zero is a value.
  EXPECT_EQ(fields.parseRTBComment(),
            "March 31, 2025|1:00 pm|1:40 pm|$-1,234.50|Yes||1 hr 30 min|22 min|38 min|0 min|$0.00|"
            "No");
  EXPECT_EQ(fields.getMergeDataFromFieldName("YearEndDate"), "Mar 31, 2025");
  EXPECT_EQ(fields.getMergeDataFromFieldName("IncorporationDate"), "");  // 1899
  EXPECT_EQ(fields.getMergeDataFromFieldName("CompanyName"), "Acme Ltd.");
  EXPECT_EQ(fields.getMergeDataFromFieldName(""), "");
  EXPECT_EQ(fields.getMergeDataFromFieldName("NoSuchColumn"), "");
  EXPECT_EQ(fields.getMergeDataFromDisplayName("company name"), "Acme Ltd.");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, FieldsWithRulesOfTheirOwn) {
  MergeFields fields;
  setIds(fields);
  fields.initializeDataRecordsetsForSingleDocMerge();
  // Ann inherits Acme's details: the address from the company, her own
  // telephone, the company's fax where she has none.
  EXPECT_EQ(fields.valueOf("Contact Business City"), "Ottawa");
  EXPECT_EQ(fields.valueOf("Contact Business Postal Code"), "K1A 0B1");
  EXPECT_EQ(fields.valueOf("Contact Business Phone"), "819-555-0007");
  EXPECT_EQ(fields.valueOf("Contact Business Fax"), "613-555-0199");
  db.exec("UPDATE Companies SET City = NULL WHERE CompanyID = 5;");
  EXPECT_EQ(fields.valueOf("Contact Business City"), "Gatineau");
  EXPECT_EQ(fields.valueOf("Contact & Spouse Name"), "Ann & Bob Lee");
  EXPECT_EQ(fields.valueOf("Contact Home Abbreviated Province"), "AB");
  EXPECT_EQ(fields.valueOf("Contact Business Abbreviated Province"), "QC");
  EXPECT_EQ(fields.valueOf("Abbreviated Province"), "ON");
  EXPECT_EQ(fields.valueOf("Company Alternate Abbreviated Province"), "NS");
  // Coded columns read as text; a blank one as its default code's text.
  EXPECT_EQ(fields.valueOf("RC59 Permission Level"), "None");
  EXPECT_EQ(fields.valueOf("RC59 Form Status"), "CRA Processing");
  EXPECT_EQ(fields.valueOf("HST Filing Method"), "Quick Method");
  EXPECT_EQ(fields.valueOf("Financial Statements"), "Not Specified");
  EXPECT_EQ(fields.valueOf("Corporation Type"), "CCPC");
  EXPECT_EQ(fields.valueOf("Corporation Level"), "Provincial Corporation");
  EXPECT_EQ(fields.valueOf("Company Type"), "1");  // the company's own column
  EXPECT_EQ(fields.valueOf("Custom Field 1"), "client one");
  EXPECT_EQ(fields.valueOf("Contact Custom Field 2"), "contact two");
  // A duration; a task's is read from the appointment, as it always was.
  EXPECT_EQ(fields.valueOf("Time Duration"), "1 hr 30 min");
  fields.setListType(listTypeTask);
  fields.initializeDataRecordsetsForSingleDocMerge();
  // The task's Subject is its schedule row's, which the join names first.
  fields.setTemplateText("«Task Name» / «Task Subject»: «Time Duration»");
  EXPECT_EQ(fields.parseRTBComment(), "GST Payment / GST Payment: 1 hr 30 min");
  // The software's key and the company notes' key are no columns of
  // theirs: nothing is found, and that is no failure.
  EXPECT_EQ(fields.valueOf("Software Name"), "");
  EXPECT_EQ(fields.valueOf("Company Notes"), "");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, WhatGivesNothing) {
  MergeFields fields;
  setIds(fields);
  fields.setAppointmentID(-1);
  fields.setListType(listTypeTask);
  fields.initializeDataRecordsetsForSingleDocMerge();
  // A task's duration with no appointment: the recordset is not there.
  EXPECT_EQ(fields.valueOf("Time Duration"), "");
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].number, err::kBadHandle);
  db.errors().failures.clear();
  // Ids that name no row, an id not set, a store that is not connected.
  MergeFields nowhere;
  nowhere.setConvertStrToRTF(false);
  nowhere.setCompanyID(999);
  nowhere.setContactID(998);
  nowhere.setListType(listTypeCompanyContact);
  nowhere.initializeDataRecordsetsForSingleDocMerge();
  nowhere.setTemplateText("[«Company Name»][«Contact First Name»][«Your Company Name»]");
  EXPECT_EQ(nowhere.parseRTBComment(), "[][][]");
  spy->connected = false;
  EXPECT_EQ(fields.valueOf("Company Name"), "");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(FieldResolution, AColumnMissingFromTheDatabaseIsReportedAndTheRestMerges) {
  db.exec("ALTER TABLE Companies DROP COLUMN WebSite;");
  MergeFields fields;
  setIds(fields);
  fields.setListType(listTypeCompany);
  fields.initializeDataRecordsetsForSingleDocMerge();
  fields.setTemplateText("«Company Name» [«Web Site»] «City»");
  EXPECT_EQ(fields.parseRTBComment(), "Acme Ltd. [] Ottawa");
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].number, err::kItemNotFound);
  EXPECT_EQ(db.errors().failures[0].source,
            "Orvanta.exe-clsInsertFieldsInRTB-getDataFieldFromRecordset");
}

}  // namespace
}  // namespace qb::test
