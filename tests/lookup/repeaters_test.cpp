// The repeaters and the clearing of a column: the rows each one selects,
// the value written (a repeater's first 255 characters), its events in
// order and the busy pointer around them, read back from the store.

#include "services/runtime/strings.h"
#include "tests/lookup/lookup_fixture.h"

namespace qb::test {
namespace {

TEST_F(LookupTest, ClientRepeaterWritesTheClientsRowsOnly) {
  schedule(1, "10", "NULL");
  schedule(2, "10", "NULL");
  schedule(3, "20", "6");
  schedule(4, "NULL", "5");
  clsLookupFields fields;
  record(fields);
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  fields.setCustomNumber(2);
  // Written as code points: 300 characters, "é" two bytes each.
  std::string value;
  for (int i = 0; i < 300; ++i) value += i % 2 ? "é" : "x";
  fields.setRepeatValue(value);
  // Without a client nothing happens at all.
  fields.populateClientRepeaterFieldValues();
  EXPECT_TRUE(spy->sql.empty());

  fields.setClientIDNum(10);
  fields.populateClientRepeaterFieldValues();
  EXPECT_EQ(scheduleCustom(1, 2), Left(value, 255));
  EXPECT_EQ(Len(scheduleCustom(2, 2)), 255);
  EXPECT_EQ(scheduleCustom(3, 2), "old3");
  EXPECT_EQ(scheduleCustom(4, 2), "old4");
  EXPECT_EQ(scheduleCustom(1, 1), "old1");  // no other column
  EXPECT_EQ(spy->sql.back(),
            "SELECT Schedule.Custom2, Schedule.ClientNum FROM Schedule WHERE Schedule.ClientNum "
            "= 10;");
  EXPECT_EQ(events(), (std::vector<std::string>{"client start", "client max 2", "client inc 1",
                                                "client inc 2", "client end"}));
  EXPECT_EQ(screen().pointerHistory(), (std::vector<int16_t>{11, 0}));

  // A contact: the rows by ContactIDNum.
  fields.setRepeatValue("Direct deposit");
  fields.setContactIDNum(5);
  fields.populateClientRepeaterFieldValues();
  EXPECT_EQ(scheduleCustom(4, 2), "Direct deposit");
  EXPECT_EQ(spy->sql.back(),
            "SELECT Schedule.Custom2, Schedule.ContactIDNum FROM Schedule WHERE "
            "Schedule.ContactIDNum = 5;");

  // A column that is no client repeater is left alone; so is a client
  // without rows (no events).
  log.clear();
  fields.setCustomNumber(1);
  fields.populateClientRepeaterFieldValues();
  EXPECT_EQ(scheduleCustom(4, 1), "old4");
  fields.setCustomNumber(2);
  fields.setContactIDNum(7);
  fields.populateClientRepeaterFieldValues();
  EXPECT_TRUE(events().empty());
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(spy->open, 0);
}

TEST_F(LookupTest, ProjectsRepeatByCompanyIdAndByProjectType) {
  db.exec(
      "INSERT INTO CompanyProjects (CompanyProjectID, CompanyIDNum, ContactIDNum, "
      "SavedProjectIDNum, Custom1, Custom2) VALUES (1, 2, NULL, 1, 'a', 'a'), "
      "(2, 2, NULL, 2, 'b', 'b'), (3, 1, NULL, 2, 'c', 'c'), (4, NULL, 5, 1, 'd', 'd');");
  clsLookupFields fields;
  record(fields);
  fields.setLookUpFieldsType(clsLookupFields::familyProjects);
  fields.setCustomNumber(1);
  fields.setRepeatValue("Partner: Marie");
  fields.setCompanyIDNum(2);
  fields.populateClientRepeaterFieldValues();
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom1, '|') FROM CompanyProjects;"),
            "Partner: Marie|Partner: Marie|c|d");
  EXPECT_EQ(spy->sql.back(),
            "SELECT CompanyProjects.Custom1, CompanyProjects.CompanyIDNum FROM CompanyProjects "
            "WHERE CompanyProjects.CompanyIDNum = 2;");

  fields.setCustomNumber(2);
  fields.setRepeatValue("Hourly");
  fields.populateProjectTypeRepeaterFieldValues(2);
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom2, '|') FROM CompanyProjects;"),
            "a|Hourly|Hourly|d");
  EXPECT_EQ(spy->sql.back(),
            "SELECT CompanyProjects.Custom2, CompanyProjects.SavedProjectIDNum FROM "
            "CompanyProjects WHERE CompanyProjects.SavedProjectIDNum = 2;");
  EXPECT_EQ(events(),
            (std::vector<std::string>{"client start", "client max 2", "client inc 1",
                                      "client inc 2", "client end", "type start", "type max 2",
                                      "type inc 1", "type inc 2", "type end"}));
  // The task types are the schedule's: nothing here.
  const size_t asked = spy->sql.size();
  fields.populateTaskTypeRepeaterFieldValues(101, 1);
  EXPECT_EQ(spy->sql.size(), asked);
}

TEST_F(LookupTest, TaskTypeRepeaterTellsTotal111ApartByScheduleNumber) {
  schedule(1, "10", "NULL", 111, 5);
  schedule(2, "20", "NULL", 111, 6);
  schedule(3, "30", "NULL", 111, 7);
  schedule(4, "10", "NULL", 101, 6);
  clsLookupFields fields;
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  fields.setCustomNumber(3);
  fields.setRepeatValue("E-filed");
  fields.populateTaskTypeRepeaterFieldValues(111, 6);
  EXPECT_EQ(spy->sql.back(),
            "SELECT Schedule.Custom3, Schedule.ScheduleNum, Schedule.TotalNum FROM Schedule WHERE "
            "Schedule.TotalNum = 111 AND Schedule.ScheduleNum = 6;");
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom3, '|') FROM Schedule;"),
            "old1|E-filed|old3|old4");
  // Below 6 the total number alone names the type.
  fields.setRepeatValue("Paper");
  fields.populateTaskTypeRepeaterFieldValues(111, 5);
  EXPECT_EQ(spy->sql.back(),
            "SELECT Schedule.Custom3, Schedule.TotalNum FROM Schedule WHERE Schedule.TotalNum = "
            "111;");
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom3, '|') FROM Schedule;"),
            "Paper|Paper|Paper|old4");
  fields.populateTaskTypeRepeaterFieldValues(101, 6);
  EXPECT_EQ(scheduleCustom(4, 3), "Paper");
  // The project types are the projects': nothing here.
  const size_t asked = spy->sql.size();
  fields.populateProjectTypeRepeaterFieldValues(1);
  EXPECT_EQ(spy->sql.size(), asked);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(LookupTest, RemoveClearsTheFamilysColumnWithinTheTaxYear) {
  schedule(1, "10", "NULL");
  schedule(2, "20", "NULL");
  db.exec(
      "INSERT INTO PersonalTaxStatus (PersonalTaxStatusID, ContactNum, TaxYear, Custom1) VALUES "
      "(1, 5, 2025, 'NOA'), (2, 6, 2025, 'NOA'), (3, 5, 2024, 'kept');");
  clsLookupFields fields;
  record(fields);
  fields.removeLookupFieldVales();  // no family: nothing
  EXPECT_TRUE(spy->sql.empty());
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  fields.setCustomNumber(1);
  fields.removeLookupFieldVales();
  EXPECT_EQ(spy->sql.back(), "SELECT Schedule.Custom1 FROM Schedule;");
  EXPECT_EQ(db.scalar("SELECT count(*) FROM Schedule WHERE Custom1 = '';"), "2");
  EXPECT_EQ(scheduleCustom(1, 2), "old1");
  fields.setLookUpFieldsType(clsLookupFields::familyPersonalTax);
  fields.removeLookupFieldVales();
  EXPECT_EQ(spy->sql.back(),
            "SELECT PersonalTaxStatus.TaxYear, PersonalTaxStatus.Custom1 FROM PersonalTaxStatus "
            "WHERE TaxYear = 2025;");
  EXPECT_EQ(db.scalar("SELECT group_concat(Custom1, '|') FROM PersonalTaxStatus;"), "||kept");
  EXPECT_EQ(events(),
            (std::vector<std::string>{"remove start", "remove max 2", "remove inc 1",
                                      "remove inc 2", "remove end", "remove start", "remove max 2",
                                      "remove inc 1", "remove inc 2", "remove end"}));
  // A column the table does not have: reported, the pointer never busy.
  fields.setCustomNumber(99);
  fields.removeLookupFieldVales();
  EXPECT_EQ(failedTraces(),
            std::vector<std::string>{"Orvanta.exe-clsLookupFieldTasks-removeLookupFieldVales"});
  EXPECT_EQ(screen().MousePointer(), 0);
}

}  // namespace
}  // namespace qb::test
