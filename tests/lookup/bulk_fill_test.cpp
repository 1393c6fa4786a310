// The bulk fill of a lookup column: the kinds of the client rows, the
// default contact of a company, a row without a client writing to the rows
// before it, the values read back from the store, the events in order with
// the event pump's two turns per client, and its bad input.

#include <sqlite3.h>

#include "services/runtime/strings.h"
#include "tests/lookup/lookup_fixture.h"

namespace qb::test {
namespace {

class BulkFillTest : public LookupTest {
 protected:
  BulkFillTest() {
    schedule(1, "10", "NULL");
    schedule(2, "10", "NULL");
    schedule(3, "20", "6");
    schedule(4, "NULL", "5");
    schedule(5, "0", "0");
    schedule(6, "30", "NULL");
    fields.setLookUpFieldsType(clsLookupFields::familySchedule);
    fields.setCustomNumber(1);
  }
  std::string column1() { return db.scalar("SELECT group_concat(Custom1, '|') FROM Schedule;"); }

  clsLookupFields fields;
};

TEST_F(BulkFillTest, EachClientRowGetsItsMergeValueByKind) {
  record(fields);
  fields.setFieldName("DisplayName");
  fields.populateLookupFieldValuesForAllClients();
  // Row 4 (the contact) is written, then cleared by the row without a
  // client, which reuses its target; company 1 merges with Ann, its
  // default; (20, 6) writes Bob to the rows of contact 6; company 3 gets
  // its only link made its default.
  EXPECT_EQ(column1(), "Ann Lee|Ann Lee|Bob Roy||old5|Cy Dee");
  EXPECT_EQ(db.scalar("SELECT DefaultContact FROM ContactLinks WHERE CompanyNum = 3;"), "1");
  EXPECT_EQ(opened("SELECT Schedule.Custom1"),
            (std::vector<std::string>{
                "SELECT Schedule.Custom1, Schedule.ContactIDNum FROM Schedule WHERE "
                "Schedule.ContactIDNum = 5;",
                "SELECT Schedule.Custom1, Schedule.ContactIDNum FROM Schedule WHERE "
                "Schedule.ContactIDNum = 5;",
                "SELECT Schedule.Custom1, Schedule.ClientNum FROM Schedule WHERE "
                "Schedule.ClientNum = 10;",
                "SELECT Schedule.Custom1, Schedule.ContactIDNum FROM Schedule WHERE "
                "Schedule.ContactIDNum = 6;",
                "SELECT Schedule.Custom1, Schedule.ClientNum FROM Schedule WHERE "
                "Schedule.ClientNum = 30;"}));
  EXPECT_EQ(opened("SELECT Schedule.ClientNum").front(),
            "SELECT Schedule.ClientNum, Schedule.ContactIDNum From Schedule GROUP BY "
            "Schedule.ClientNum, Schedule.ContactIDNum ORDER BY Schedule.ClientNum, "
            "Schedule.ContactIDNum;");
  EXPECT_EQ(events(), (std::vector<std::string>{"lookup start", "lookup max 5", "lookup inc 1",
                                                "lookup inc 2", "lookup inc 3", "lookup inc 4",
                                                "lookup inc 5", "lookup end"}));
  // Two turns of the pump after each client: the merge's own turns come in
  // eights, before its reads.
  int turns = 0;
  bool first = true;
  for (const std::string& entry : log) {
    if (entry == "pump") {
      ++turns;
    } else if (entry == "lookup max 5") {
      turns = 0;
    } else if (entry.rfind("lookup inc", 0) == 0) {
      EXPECT_EQ(turns % 8, first ? 0 : 2) << entry;
      first = false;
      turns = 0;
    } else if (entry == "lookup end") {
      EXPECT_EQ(turns, 2);
    }
  }
  EXPECT_EQ(screen().pointerHistory(), (std::vector<int16_t>{11, 0}));
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(spy->open, 0);

  // A row with both ids merges with both: the company's name goes to the
  // rows of the contact.
  fields.setFieldName("CompanyName");
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(column1(), "Acme Ltd|Acme Ltd|Birch Inc||old5|Cedar Co");
}

TEST_F(BulkFillTest, PersonalTaxAndProjectsFollowTheirOwnClients) {
  db.exec(
      "INSERT INTO PersonalTaxStatus (PersonalTaxStatusID, ContactNum, TaxYear, Custom1) VALUES "
      "(1, 5, 2025, ''), (2, 6, 2025, ''), (3, 5, 2024, 'kept');"
      "INSERT INTO CompanyProjects (CompanyProjectID, CompanyIDNum, ContactIDNum, Custom3) "
      "VALUES (1, 2, NULL, 'x'), (2, NULL, 7, 'y'), (3, 1, 5, 'z');");
  fields.setFieldName("LastName");
  fields.setLookUpFieldsType(clsLookupFields::familyPersonalTax);
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom1, '|') FROM PersonalTaxStatus;"), "Lee|Roy|kept");
  EXPECT_EQ(spy->sql.back(),
            "SELECT PersonalTaxStatus.ContactNum, PersonalTaxStatus.TaxYear, "
            "PersonalTaxStatus.Custom1 FROM PersonalTaxStatus WHERE TaxYear = 2025 AND "
            "PersonalTaxStatus.ContactNum = 6;");
  fields.setLookUpFieldsType(clsLookupFields::familyProjects);
  fields.setCustomNumber(3);
  fields.populateLookupFieldValuesForAllClients();
  // Company 2 by its default, Cy; contact 7 alone; company 1 with Ann.
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom3, '|') FROM CompanyProjects;"), "Dee|Dee|Lee");
  EXPECT_EQ(opened("SELECT CompanyProjects.Custom3").front(),
            "SELECT CompanyProjects.Custom3, CompanyProjects.ContactIDNum FROM CompanyProjects "
            "WHERE CompanyProjects.ContactIDNum = 7;");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(BulkFillTest, BadInputWritesNothingOrKeepsWhatWasWritten) {
  const std::string before = column1();
  // No family, and a field the catalogue no longer has: nothing at all.
  fields.setFieldName("NoSuchField");
  fields.populateLookupFieldValuesForAllClients();
  fields.setLookUpFieldsType(clsLookupFields::familyNone);
  fields.setFieldName("DisplayName");
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_TRUE(opened("SELECT Schedule").empty());
  EXPECT_TRUE(db.errors().failures.empty());

  // Custom99 is no column: the first write fails, is reported, and the run
  // stops there with the pointer still busy and no end event.
  record(fields);
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  fields.setCustomNumber(99);
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(failedTraces(),
            std::vector<std::string>{
                "Orvanta.exe-clsLookupFieldTasks-populateLookupFieldValuesForAllClients"});
  EXPECT_EQ(events(), (std::vector<std::string>{"lookup start", "lookup max 5"}));
  EXPECT_EQ(column1(), before);

  // A value of 100 KB goes to the store uncut.
  db.exec("UPDATE Contacts SET DisplayName = '" + std::string(100 * 1024, 'n') +
          "' WHERE ContactID = 7;");
  fields.setCustomNumber(1);
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(scheduleCustom(6).size(), 100u * 1024u);

  // Clients whose ids point nowhere merge to nothing and write "".
  db.exec("UPDATE Schedule SET ClientNum = 77 WHERE ScheduleID = 6;");
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(scheduleCustom(6), "");
  EXPECT_EQ(db.errors().failures.size(), 1u);
}

TEST_F(BulkFillTest, GoingOnAfterEachFailureEndsTheRunWithNothingWritten) {
  // The user answers every failure with "go on".
  db.errors().defaultResponse = 1;
  const std::string before = column1();
  record(fields);
  fields.setFieldName("DisplayName");
  fields.setCustomNumber(99);
  fields.populateLookupFieldValuesForAllClients();
  EXPECT_EQ(db.errors().failures.size(), 5u);  // each client's write
  EXPECT_EQ(events().back(), "lookup end");
  EXPECT_EQ(column1(), before);
  EXPECT_EQ(spy->open, 0);
  // A type test whose query fails answers False.
  fields.setCustomNumber(0);
  EXPECT_FALSE(fields.isLookupField());
  EXPECT_EQ(db.errors().failures.size(), 6u);
}

TEST_F(BulkFillTest, ALockedDatabaseStopsTheFillAndKeepsWhatWasWritten) {
  // A store that waits only briefly on a busy file.
  auto quick = std::make_shared<SqliteDatabase>();
  SqliteDatabase::Options options;
  options.busyTimeoutMs = 100;
  quick->open(db.path(), options);
  moduleState().databaseReference = quick;
  // Another writer takes the file once the third client is done.
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(db.path().c_str(), &other), SQLITE_OK);
  fields.incPopulateLookupFields = [&](int32_t& counter) {
    if (counter == 3) sqlite3_exec(other, "BEGIN IMMEDIATE;", nullptr, nullptr, nullptr);
  };
  fields.setFieldName("DisplayName");
  fields.populateLookupFieldValuesForAllClients();
  sqlite3_exec(other, "ROLLBACK;", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_NE(db.errors().failures[0].description.find("locked"), std::string::npos)
      << db.errors().failures[0].description;
  // Clients 1 to 3 kept their values; Bob's rows and company 3's are as
  // they were.
  EXPECT_EQ(column1(), "Ann Lee|Ann Lee|old3||old5|old6");
  quick->close();
}

}  // namespace
}  // namespace qb::test
