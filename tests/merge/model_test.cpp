// The merge class's model: start values and properties with side effects,
// the table filled on demand, names and display names, and what a pick from
// a field list inserts into the rich text box.

#include "services/controls/rich_text_box.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

using Model = MergeTest;

TEST_F(Model, StartValuesAndTheHeadersThatGoOffForGood) {
  clsInsertFieldsInRTB fields;
  EXPECT_EQ(fields.MergeFieldListUse(), fieldListUseMerge);
  EXPECT_EQ(fields.ListType(), 0);
  for (int32_t id : {fields.companyID(), fields.contactID(), fields.firmID(), fields.userID(),
                     fields.AppointmentID(), fields.docketId(), fields.taskID()}) {
    EXPECT_EQ(id, -1);
  }
  EXPECT_FALSE(fields.TestComment());
  EXPECT_TRUE(fields.ConvertStrToRTF());
  EXPECT_FALSE(fields.ConvertCompanyNameToContactNameForContacts());
  EXPECT_TRUE(fields.ShowListCategoryHeaders());
  EXPECT_EQ(fields.ListBox(), nullptr);
  EXPECT_EQ(fields.RTB(), nullptr);
  EXPECT_EQ(fields.FieldList().getFieldRowCount(), 0);
  EXPECT_EQ(db.errors().pushed.front(), "Orvanta.exe-clsInsertFieldsInRTB-Class_Initialize");

  fields.setMergeFieldListUse(2);
  EXPECT_TRUE(fields.ShowListCategoryHeaders());
  fields.setMergeFieldListUse(fieldListUseWriteBack);
  fields.setMergeFieldListUse(fieldListUseMerge);
  EXPECT_FALSE(fields.ShowListCategoryHeaders());
  fields.setShowListCategoryHeaders(true);
  fields.setMergeFieldListUse(fieldListUseMapping);
  EXPECT_FALSE(fields.ShowListCategoryHeaders());

  fields.setCompanyID(4);
  fields.setContactID(5);
  fields.setTaskID(6);
  fields.setTemplateText("kept");
  fields.setListType(listTypeTask);
  fields.resetAllItemIDs();
  EXPECT_EQ(fields.companyID(), -1);
  EXPECT_EQ(fields.contactID(), -1);
  EXPECT_EQ(fields.taskID(), -1);
  EXPECT_EQ(fields.TemplateText(), "kept");
  EXPECT_EQ(fields.ListType(), listTypeTask);
  EXPECT_EQ(fields.MergeFieldListUse(), fieldListUseMapping);
}

TEST_F(Model, TheTableIsBuiltOnDemandAndTheCallThatBuildsItAnswersFalse) {
  MergeFields none;
  EXPECT_FALSE(none.verifyFieldListIsPopulated());
  EXPECT_EQ(none.FieldList().getFieldRowCount(), 0);
  EXPECT_EQ(none.ListType(), 0);

  MergeFields company;
  company.setCompanyID(5);
  EXPECT_FALSE(company.verifyFieldListIsPopulated());
  EXPECT_EQ(company.ListType(), listTypeCompanyContact);
  EXPECT_GT(company.FieldList().getFieldRowCount(), 100);
  EXPECT_TRUE(company.verifyFieldListIsPopulated());

  // The first id that is set decides: appointment, task, time entry, client.
  struct Case {
    int32_t appointment, task, docket, company, contact, listType;
  };
  const Case cases[] = {
      {3, 3, 3, 3, -1, listTypeAppointment},       {-1, 0, 3, 3, -1, listTypeTask},
      {-1, -1, 0, 3, 3, listTypeTimeEntry},        {-1, -1, -1, 0, -1, listTypeCompanyContact},
      {-1, -1, -1, -1, 0, listTypeCompanyContact},
  };
  for (const Case& c : cases) {
    MergeFields fields;
    fields.setAppointmentID(c.appointment);
    fields.setTaskID(c.task);
    fields.setDocketId(c.docket);
    fields.setCompanyID(c.company);
    fields.setContactID(c.contact);
    EXPECT_FALSE(fields.verifyFieldListIsPopulated());
    EXPECT_EQ(fields.ListType(), c.listType);
  }

  // A list box that is set is filled by the build on demand too.
  ListBox list("lstFields");
  list.AddItem("old");
  MergeFields listed;
  listed.setListBox(&list);
  listed.setContactID(1);
  listed.verifyFieldListIsPopulated();
  EXPECT_EQ(list.List(0), "[Company Address Info]");  // "old" was cleared
  EXPECT_EQ(list.List(1), "Company Name");
}

TEST_F(Model, NamesAndDisplayNamesTranslateByTheFirstRowThatHasThem) {
  clsInsertFieldsInRTB fields;
  build(fields, listTypeCompanyContact);
  std::string name = "Contact Gender";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(name), "Gender");
  name = "contact gender";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(name), "Gender");
  name = "No Such Field";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(name), "No Such Field");
  name = "";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(name), "");
  // ClientID is the company's first for a company or contact list.
  name = "ClientID";
  EXPECT_EQ(fields.getDisplayFieldNameFromDBFieldName(name), "Client ID");
  FieldListClass table = fields.FieldList();
  EXPECT_EQ(table.findFieldRow(1, Variant(name)), 1);
  EXPECT_EQ(toText(table.getFieldColumn(3)), "CompanyInfo");
  name = "CompanyName";
  EXPECT_EQ(fields.getDisplayFieldNameFromDBFieldName(name), "Company Name");
  name = "Nope";
  EXPECT_EQ(fields.getDisplayFieldNameFromDBFieldName(name), "Nope");
}

TEST_F(Model, AListLineGivesItsMarkerAndAHeaderLineNothing) {
  clsInsertFieldsInRTB fields;
  build(fields, listTypeContact);
  const int32_t birthday = indexNamed(fields, "Contact Birthday");
  const int32_t gender = indexNamed(fields, "Contact Gender");
  bool brackets = true;
  EXPECT_EQ(fields.parseListItem(birthday, brackets), "«(Contact Birthday, mmmm d yyyy)»");
  EXPECT_EQ(fields.parseListItem(gender, brackets), "«Contact Gender»");
  EXPECT_EQ(fields.parseListItem(-1, brackets), "");
  EXPECT_EQ(fields.getDBFieldFromListItem(birthday), "(Contact Birthday, mmmm d yyyy)");
  EXPECT_EQ(fields.getDBFieldFromListItem(gender), "Gender");
  EXPECT_EQ(fields.getDBFieldFromListItem(-1), "");
  brackets = false;
  EXPECT_EQ(fields.parseListItem(gender, brackets), "Contact Gender");
  // An unknown item reads the row that was current before.
  EXPECT_EQ(fields.parseListItem(100000, brackets), "Contact Gender");
  EXPECT_EQ(fields.getDBFieldFromListItem(100000), "Gender");

  int32_t key = 15;
  brackets = true;
  EXPECT_EQ(fields.insertCurrentDateMergeField(key, brackets), "«(Todays Date, )»");
  key = 3;
  EXPECT_EQ(fields.insertCurrentDateMergeField(key, brackets), "«(Todays Date, mmmm d, yyyy)»");
  brackets = false;
  key = 14;
  EXPECT_EQ(fields.insertCurrentDateMergeField(key, brackets), "(Todays Date, mmmm d)");
  key = 0;
  EXPECT_EQ(fields.insertCurrentDateMergeField(key, brackets), "(Todays Date, )");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(Model, APickInsertsItsMarkerAtTheCaret) {
  RichTextBox box("rtbTemplate");
  box.setText("Dear ,\r\nthanks.");
  box.setSelStart(5);
  clsInsertFieldsInRTB fields;
  fields.setRTB(&box);
  build(fields, listTypeContact);
  int32_t item = indexNamed(fields, "Contact First Name");
  EXPECT_EQ(fields.onListClick(item), Variant(true));
  EXPECT_EQ(box.Text(), "Dear «Contact First Name»,\r\nthanks.");
  EXPECT_EQ(box.SelStart(), 25);
  int32_t header = -1;
  EXPECT_TRUE(fields.onListClick(header).isEmpty());
  EXPECT_EQ(box.Text(), "Dear «Contact First Name»,\r\nthanks.");
  int32_t format = 1;
  fields.insertCurrentDate(format);
  EXPECT_EQ(box.Text(), "Dear «Contact First Name»«(Todays Date, dddd, mmmm d yyyy)»,\r\nthanks.");
  format = 20;
  box.setSelStart(0);
  fields.insertCurrentDate(format);
  EXPECT_EQ(box.Text().substr(0, 20), "«(Todays Date, )»D");
  EXPECT_TRUE(db.errors().failures.empty());

  // Without a rich text box the pick is a failure, reported, and nothing else.
  clsInsertFieldsInRTB noBox;
  build(noBox, listTypeContact);
  EXPECT_TRUE(noBox.onListClick(item).isEmpty());
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].number, err::kObjectRequired);
  EXPECT_EQ(db.errors().failures[0].stack.back(), "Orvanta.exe-clsInsertFieldsInRTB-onListClick");
}

TEST_F(Model, AScheduleRowNamesItsTaskOrTheTaskItWasBeforeItsArchive) {
  db.exec(
      "INSERT INTO Tasks (TaskID, ScheduleIDNum) VALUES (31, 7);"
      "INSERT INTO archiveTasks (oldTaskID, ScheduleIDNum) VALUES (12, 8);");
  clsInsertFieldsInRTB fields;
  fields.setScheduleID(7);
  EXPECT_EQ(fields.taskID(), 31);
  fields.setScheduleID(8);
  EXPECT_EQ(fields.taskID(), 12);
  fields.setScheduleID(9);
  EXPECT_EQ(fields.taskID(), -1);
  fields.setTaskID(4);
  disconnect();
  fields.setScheduleID(7);
  EXPECT_EQ(fields.taskID(), -1);
}

}  // namespace
}  // namespace qb::test
