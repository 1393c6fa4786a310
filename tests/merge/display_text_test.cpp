// The calendar's display and title texts of appointments, time entries and
// tasks: the user's template or the built-in one, fitted to the client,
// merged and framed; and the task of a schedule row.

#include "tests/merge/merge_firm.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

class DisplayText : public MergeTest {
 protected:
  DisplayText() { addMergeFirm(db); }

  // The text of an item of a kind for a user; a company item unless a
  // contact is given.
  std::string display(int32_t listType, int32_t itemID, int32_t user, bool test = false,
                      int32_t companyID = 5, int32_t contactID = -1) {
    MergeFields fields;
    setUp(fields, listType, itemID, user, companyID, contactID);
    fields.setTestComment(test);
    return fields.createDisplayTextByID();
  }
  std::string title(int32_t listType, int32_t itemID, int32_t user) {
    MergeFields fields;
    setUp(fields, listType, itemID, user, 5, -1);
    return fields.createTitleBarTextByID();
  }
  static void setUp(MergeFields& fields, int32_t listType, int32_t itemID, int32_t user,
                    int32_t companyID, int32_t contactID) {
    fields.setListType(listType);
    fields.setUserID(user);
    fields.setCompanyID(companyID);
    fields.setContactID(contactID);
    if (listType == listTypeAppointment) fields.setAppointmentID(itemID);
    if (listType == listTypeTimeEntry) fields.setDocketId(itemID);
    if (listType == listTypeTask) fields.setTaskID(itemID);
  }
};

// Values go into the text as into rich text: a value that follows a line
// break gets a blank ahead of it.
TEST_F(DisplayText, TheUsersTemplateOrTheBuiltInOne) {
  // A company's item: the contact in the template becomes the company, the
  // item's own text frames the merged one (an empty one adds no line).
  EXPECT_EQ(display(listTypeAppointment, 11, 1), "Reminder:\r\nYear-end meeting with Acme Ltd.");
  // "0", "Text Constant", no settings row: the built-in template.
  EXPECT_EQ(display(listTypeAppointment, 11, 2),
            "Reminder:\r\nYear-end meeting for Acme Ltd.\r\n 9:00 am to 10:30 am");
  EXPECT_EQ(display(listTypeAppointment, 11, 99),
            "Reminder:\r\nYear-end meeting for Acme Ltd.\r\n 9:00 am to 10:30 am");
  EXPECT_EQ(display(listTypeTimeEntry, 41, 1),
            "1:00 pm to 1:40 pm\r\n Acme Ltd.\r\n Bank reconciliation");
  // A bad template of the user's merges as it stands (the bracket left
  // open stays), and falls back on the built-in one in a test.
  EXPECT_EQ(display(listTypeTask, 31, 1), "GST Payment «Bad Field\r\nBring the receipts.");
  EXPECT_EQ(display(listTypeTask, 31, 1, true),
            "1st Quarterly GST Payment for ABC Consulting\r\n 9:00 AM to 9:30 AM\r\nBring the "
            "receipts.");
  // No item: nothing, though the template was read.
  EXPECT_EQ(display(listTypeAppointment, -1, 1), "");
  EXPECT_EQ(display(7, 11, 1), "");
}

TEST_F(DisplayText, AContactsItemShowsTheContactWhereTheTemplateNamesTheCompany) {
  EXPECT_EQ(display(listTypeAppointment, 11, 2, false, -1, 8),
            "Reminder:\r\nYear-end meeting for Sam Solo\r\n 9:00 am to 10:30 am");
  // Only the first occurrence is turned: a second one stays, and is blank.
  db.exec(
      "UPDATE UserCalendarSettings SET ApptTemplate = '«Company Name» / «Company Name»' "
      "WHERE UserIDNum = 1;");
  EXPECT_EQ(display(listTypeAppointment, 11, 1, false, -1, 8), "Reminder:\r\nSam Solo / ");
  // A company's item takes its default contact as the contact.
  MergeFields fields;
  setUp(fields, listTypeAppointment, 11, 1, 5, -1);
  fields.createDisplayTextByID();
  EXPECT_EQ(fields.contactID(), 7);
  EXPECT_EQ(fields.MergeFieldListUse(), fieldListUseMerge);
}

TEST_F(DisplayText, TitleBars) {
  // A title setting may name a field without brackets.
  EXPECT_EQ(title(listTypeAppointment, 11, 1), "Year-end meeting");
  // Only the brackets missing are added: the inner marker merges and the
  // open bracket in front stays.
  EXPECT_EQ(title(listTypeTask, 31, 1), "«Task Acme Ltd.");
  // A blank setting, no settings row, no item: no title.
  EXPECT_EQ(title(listTypeTimeEntry, 41, 1), "");
  EXPECT_EQ(title(listTypeAppointment, 11, 99), "");
  EXPECT_EQ(title(listTypeAppointment, -1, 1), "");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(DisplayText, WithoutAStore) {
  disconnect();
  MergeFields fields;
  setUp(fields, listTypeAppointment, 11, 1, 5, -1);
  fields.setConvertStrToRTF(false);
  // The built-in template merged with blanks: only the text between markers.
  EXPECT_EQ(fields.createDisplayTextByID(), " for \r\n to ");
  EXPECT_EQ(fields.createTitleBarTextByID(), "");
}

TEST_F(DisplayText, TheTaskOfAScheduleRow) {
  MergeFields fields;
  fields.setScheduleID(21);
  EXPECT_EQ(fields.taskID(), 31);
  fields.setScheduleID(22);  // archived: it answers by its old id
  EXPECT_EQ(fields.taskID(), 90);
  fields.setScheduleID(99);
  EXPECT_EQ(fields.taskID(), -1);
}

}  // namespace
}  // namespace qb::test
