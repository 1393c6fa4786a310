// The catalogues: which rows the field table holds for a region and a use,
// the list lines and headers the user sees, the custom fields' labels and
// the rows a store that is not connected gives.

#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

using Catalogue = MergeTest;

struct SizeCase {
  const char* region;
  int32_t country, province, use;
  int contactRows;  // name rows and further contact rows
  int accountingRows, companyRows;
};

TEST_F(Catalogue, SizesByRegionAndUse) {
  // The label tables have no row, so no custom rows are added.
  const SizeCase cases[] = {
      {"Ontario", 1, 3, 1, 8 + 66, 25, 26},
      {"Quebec", 1, 8, 1, 8 + 66, 24, 26},
      {"Alberta", 1, 0, 1, 8 + 66, 23, 26},
      {"code 7", 1, 7, 1, 8 + 66, 23, 26},
      {"US", 2, 3, 1, 8 + 62, 11, 24},
      {"Ontario mapping", 1, 3, 3, 7 + 70, 25, 28},
      {"Quebec mapping", 1, 8, 3, 7 + 70, 24, 28},
      {"US mapping", 2, 3, 3, 7 + 70, 11, 28},
      // Uses that mean nothing build the ordinary list.
      {"use 4", 1, 3, 4, 8 + 66, 25, 26},
      {"use -1", 2, 3, -1, 8 + 62, 11, 24},
  };
  for (const SizeCase& c : cases) {
    SCOPED_TRACE(c.region);
    region(c.country, c.province);
    clsInsertFieldsInRTB fields;
    fields.setMergeFieldListUse(c.use);
    build(fields, listTypeCompany);
    EXPECT_EQ(fromSource(fields, "ContactInfo"), c.contactRows);
    EXPECT_EQ(fromSource(fields, "ClientInfo"), c.accountingRows);
    EXPECT_EQ(fromSource(fields, "SoftwareInfo"), 7);
    EXPECT_EQ(fromSource(fields, "contactNotes"), 1);
    EXPECT_EQ(fromSource(fields, "CompanyInfo"), c.companyRows);
    EXPECT_EQ(fromSource(fields, "CompanyNotes"), 1);
    EXPECT_EQ(fromSource(fields, "FirmInfo"), 13);
  }
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(Catalogue, ActivityCataloguesStandFirstInTheirOrder) {
  clsInsertFieldsInRTB fields;
  build(fields, listTypeAppointment);
  EXPECT_EQ(fromSource(fields, "AppointInfo"), 6);
  EXPECT_EQ(rows(fields).front(),
            "1|Subject|Appointment Name|AppointInfo|1|Client Appointment|255");
  build(fields, listTypeTask);
  EXPECT_EQ(fromSource(fields, "TaskInfo"), 11 + 6);
  build(fields, listTypeTimeEntry);
  EXPECT_EQ(fromSource(fields, "DocketInfo"), 28);
  EXPECT_EQ(rowNamed(fields, "Total Time (Actual)"),
            "TotalTimeReal|Total Time (Actual)|DocketInfo|6|31 min|-1");
  EXPECT_EQ(indexNamed(fields, "Total Time (Actual)"), 20);
  // The activity's catalogue comes before the company's, whose first row
  // follows it directly.
  EXPECT_EQ(rows(fields)[28], "29|CompanyName|Company Name|CompanyInfo|1|ABC Consulting|255");
  // Not the first row of its name: by display name the first is found.
  build(fields, listTypeTask);
  std::string calendarDate = "Task Calendar Date";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(calendarDate), "CalendarDate");
  std::string subject = "Subject";
  EXPECT_EQ(fields.getDisplayFieldNameFromDBFieldName(subject), "Task Name");
}

TEST_F(Catalogue, RegionalLabelsComeFromTheFirmsProvinceAndTheClock) {
  clsInsertFieldsInRTB fields;
  region(1, 8);
  build(fields, listTypeCompany);
  // Company 26 and its notes, contact names 8, then the accounting rows.
  EXPECT_EQ(rowNamed(fields, "Quebec ID Number"), "MCBS|Quebec ID Number|ClientInfo|1|94837284|50");
  EXPECT_EQ(indexNamed(fields, "Quebec ID Number"), 27 + 8 + 12);
  EXPECT_NE(rowNamed(fields, "NEQ Number"), "");
  EXPECT_NE(rowNamed(fields, "CSST Premium Rate"), "");
  EXPECT_NE(rowNamed(fields, "CSST Coverage"), "");
  EXPECT_NE(rowNamed(fields, "QST Number"), "");
  EXPECT_NE(rowNamed(fields, "Que. Corp. Tax Number"), "");
  EXPECT_EQ(rowNamed(fields, "ON Corp. MCBS Number"), "");
  EXPECT_EQ(rowNamed(fields, "CSST Firm Number"), "");

  region(1, 3);
  today(2010, 6, 30);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "GST Number"), "");
  EXPECT_NE(rowNamed(fields, "GST Filing Method"), "");
  today(2010, 7, 1);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "HST Number"), "");
  EXPECT_EQ(rowNamed(fields, "GST Number"), "");
  EXPECT_NE(rowNamed(fields, "WSIB Firm Number"), "");
  EXPECT_NE(rowNamed(fields, "ON Corp. MCBS Number"), "");

  region(1, 9);
  today(2001, 1, 1);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "HST Number"), "");
  EXPECT_NE(rowNamed(fields, "N.S. Corp. Tax Number"), "");
  region(1, 10);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "WHSCC Premium Rate"), "");

  // A province outside the list reads as Ontario's labels, without its rows.
  region(1, 42);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "WSIB Number"), "");
  EXPECT_NE(rowNamed(fields, "ON Corp. Tax Number"), "");
  EXPECT_EQ(rowNamed(fields, "ON Corp. MCBS Number"), "");

  region(2, 3);
  build(fields, listTypeCompany);
  EXPECT_NE(rowNamed(fields, "State"), "");
  EXPECT_NE(rowNamed(fields, "Zip Code"), "");
  EXPECT_NE(rowNamed(fields, "Contact SSN"), "");
  EXPECT_EQ(rowNamed(fields, "Abbreviated Province"), "");
  EXPECT_EQ(rowNamed(fields, "Your State"), "Province|Your State|FirmInfo|1|California|");
}

TEST_F(Catalogue, SamplesAreWorkedOutFromTheHostsToday) {
  clsInsertFieldsInRTB fields;
  build(fields, listTypeTask);
  EXPECT_EQ(rowNamed(fields, "Year End Date"),
            "YearEndDate|Year End Date|ClientInfo|2|03/31/2026|-1");
  EXPECT_EQ(rowNamed(fields, "Incorporation Date"),
            "IncorporationDate|Incorporation Date|ClientInfo|2|Nov 1, 2026|");
  EXPECT_EQ(rowNamed(fields, "Period Description"),
            "PeriodDescription|Period Description|TaskInfo|1|Period For: Dec 1, 2025 to Dec 31, "
            "2025|50");
  EXPECT_EQ(rowNamed(fields, "Task Year"), "Year|Task Year|TaskInfo|1|2026|12");
  EXPECT_EQ(rowNamed(fields, "Task Due Date"), "DueDate|Task Due Date|TaskInfo|2|Jan 31, 2026|-1");
  EXPECT_EQ(rowNamed(fields, "Task in-House Due Date"),
            "inHouseDueDate|Task in-House Due Date|TaskInfo|2|Jan 27, 2026|-1");
  EXPECT_EQ(rowNamed(fields, "Date Completed"),
            "DateCompleted|Date Completed|TaskInfo|2|01/29/2026|-1");
  EXPECT_EQ(rowNamed(fields, "Contact Birthday"),
            "Birthday|Contact Birthday|ContactInfo|2|Jun 25, 1951|-1");
  EXPECT_EQ(rowNamed(fields, "Spouse Birthday"),
            "SpouseBirthday|Spouse Birthday|ContactInfo|1|Apr 29, 1950|-1");
  today(2031, 1, 1);
  region(2, 3);
  build(fields, listTypeCompany);
  EXPECT_EQ(rowNamed(fields, "Year End Date"),
            "USYearEndDate|Year End Date|ClientInfo|2|12/312031|-1");
  EXPECT_EQ(rowNamed(fields, "Incorporation Date"),
            "USIncorporationDate|Incorporation Date|ClientInfo|2|12/31/05|-1");
}

TEST_F(Catalogue, ListLinesAndHeadersFollowTheListTypeAndUse) {
  ListBox list("lstFields");
  clsInsertFieldsInRTB fields;
  fields.setListBox(&list);
  build(fields, listTypeAppointment);
  EXPECT_EQ(lines(list)[0], "-1 [Appointment Info]");
  EXPECT_EQ(lines(list)[1], "1 Appointment Name");
  // An appointment's company section has a blank line ahead of it...
  EXPECT_EQ(lines(list)[7], "-1 ");
  EXPECT_EQ(lines(list)[8], "-1 [Company Address Info]");
  // ...a time entry's has none.
  build(fields, listTypeTimeEntry);
  EXPECT_EQ(lines(list)[28], "28 Invoice Time Entry Description");
  EXPECT_EQ(lines(list)[29], "-1 [Company Address Info]");
  // A task has its second header.
  build(fields, listTypeTask);
  EXPECT_EQ(lines(list)[12], "-1 ");
  EXPECT_EQ(lines(list)[13], "-1 [Task Info]");
  EXPECT_EQ(lines(list)[14], "12 Task Subject");

  // A contact: its name, its further details, no company.
  build(fields, listTypeContact);
  EXPECT_EQ(lines(list)[0], "-1 ");
  EXPECT_EQ(lines(list)[1], "-1 [Contact Name]");
  EXPECT_EQ(lines(list).back(), std::to_string(74 + 1) + " Contact Notes");
  fields.setCompanyID(0);  // 0 is a company
  build(fields, listTypeContact);
  EXPECT_EQ(lines(list)[lines(list).size() - 28], "-1 [Company Info]");
  EXPECT_EQ(lines(list).back(), std::to_string(75 + 27) + " Company Notes");

  // Types that mean nothing: no lines, the firm's rows in the table.
  for (int32_t nothing : {0, 4, 7, 99, -1}) {
    build(fields, nothing);
    EXPECT_TRUE(lines(list).empty());
    EXPECT_EQ(fields.fieldListCounter(), 13 + 0);  // no label rows in this store
    EXPECT_EQ(fromSource(fields, "FirmInfo"), 13);
  }

  // A mapping list: "Not Assigned" first; headers off, unless forced on.
  fields.setMergeFieldListUse(fieldListUseMapping);
  build(fields, listTypeCompanyContact);
  EXPECT_EQ(lines(list)[0], "-1 Not Assigned");
  EXPECT_EQ(lines(list)[1], "1 Company Name");
  EXPECT_EQ(rowNamed(fields, "Contact Full Name"),
            "DisplayName|Contact Full Name|ContactInfo|1|Jane Smith|255");
  EXPECT_EQ(indexNamed(fields, "Contact Full Name"), 28 + 1 + 1);
  EXPECT_EQ(rowNamed(fields, "Contact Display Name"), "");
  EXPECT_EQ(rowNamed(fields, "Contact & Spouse Name"), "");
  EXPECT_EQ(rowNamed(fields, "Contact Business Address 2"),
            "BusinessAddress2|Contact Business Address 2|ContactInfo|1|101 Industrial Dr.|255");
  EXPECT_EQ(rowNamed(fields, "Spouse Home Address 3"),
            "SpouseAddress3|Spouse Home Address 3|ContactInfo|1|101 Finchley St.|50");
  fields.setShowListCategoryHeaders(true);
  build(fields, listTypeCompanyContact);
  EXPECT_EQ(lines(list)[0], "-1 Not Assigned");
  EXPECT_EQ(lines(list)[1], "-1 [Company Address Info]");

  // Every line that inserts something carries the index of its row.
  FieldListClass table = fields.FieldList();
  for (int32_t i = 0; i < list.ListCount(); ++i) {
    int32_t index = list.ItemData(i);
    if (index < 0) continue;
    ASSERT_TRUE(table.moveToFieldRow(index));
    EXPECT_EQ(toText(table.getFieldColumn(2)), list.List(i));
  }
}

TEST_F(Catalogue, AListBoxThatIsSetCannotBeBypassedButOneLeftOutIsNeverTouched) {
  ListBox list("lstFields");
  ListBox firmList("lstFirm");
  firmList.AddItem("kept");
  clsInsertFieldsInRTB fields;
  fields.setListBox2(&firmList);
  fields.setListType(listTypeCompany);
  bool bypass = false;
  bool clear = true;
  fields.createDefaultFieldListStructure(bypass, clear);
  EXPECT_TRUE(bypass);  // no ListBox: built silently
  const int32_t built = fields.fieldListCounter();
  fields.setListBox(&list);
  list.AddItem("old");
  bypass = true;
  clear = false;
  fields.createDefaultFieldListStructure(bypass, clear);
  EXPECT_FALSE(bypass);
  EXPECT_EQ(list.List(0), "old");  // not cleared
  // "old", nine header and blank lines, then the rows of company and notes,
  // contact names, accounting, software, further contact and notes.
  EXPECT_EQ(list.ListCount(), 1 + 9 + (27 + 8 + 25 + 7 + 67));
  EXPECT_EQ(fields.fieldListCounter(), built);
  // The firm's list stays as it was; its rows are in the table all the same.
  EXPECT_EQ(lines(firmList), std::vector<std::string>{"0 kept"});
  EXPECT_EQ(list.refreshCount(), 1);
}

TEST_F(Catalogue, TheFirmsListIsFilledOnRequestAndItsRowsAppendedAgain) {
  ListBox firmList("lstFirm");
  firmList.AddItem("stale");
  clsInsertFieldsInRTB fields;
  fields.setListBox2(&firmList);
  build(fields, listTypeCompany);
  const int32_t first = fields.fieldListCounter();
  bool bypass = true;
  bool clear = true;
  fields.createAccountantFieldListStructure(bypass, clear);
  EXPECT_EQ(lines(firmList), std::vector<std::string>{"0 stale"});  // bypassed on request
  bypass = false;
  fields.createAccountantFieldListStructure(bypass, clear);
  ASSERT_EQ(firmList.ListCount(), 1 + 13);
  EXPECT_EQ(lines(firmList)[0], "-1 Insert your Letterhead");
  EXPECT_EQ(lines(firmList)[1], std::to_string(first + 14) + " Your Company Name");
  EXPECT_EQ(fromSource(fields, "FirmInfo"), 3 * 13);
  // The first copy answers by name.
  std::string name = "Your Company Name";
  EXPECT_EQ(fields.getDBFieldNameFromDisplayFieldName(name), "CompanyName");
  FieldListClass table = fields.FieldList();
  EXPECT_EQ(table.findFieldRow(2, Variant(name)), first - 13);
}

TEST_F(Catalogue, CustomLabelsComeFromTheStore) {
  db.exec(
      "INSERT INTO CustomFields (CustomName1, CustomName2, CustomName3, CustomName4, CustomName5, "
      "ApptCustomName1, ApptCustomName5) VALUES ('Engagement Signed:', 'Custom 2', 'Custom 3:', "
      "'Fee: ', 'Café Préféré', 'Room:', 'Custom 5:');"
      "INSERT INTO CustomAddressFields (CompanyLabel1, CompanyLabel2, ContactLabel1) VALUES "
      "('Bank:', 'Custom 2:', 'Birthday Card::');");
  ListBox list("lstFields");
  ListBox firmList("lstFirm");
  clsInsertFieldsInRTB fields;
  fields.setListBox(&list);
  fields.setListBox2(&firmList);
  build(fields, listTypeAppointment);
  // One trailing colon goes; a label left as "Custom N" takes the default.
  EXPECT_EQ(rowNamed(fields, "Engagement Signed"),
            "ClientCustom1|Engagement Signed|ClientInfo|1|Custom Info 1|255");
  EXPECT_NE(rowNamed(fields, "Custom Field 2"), "");
  EXPECT_NE(rowNamed(fields, "Custom Field 3"), "");
  EXPECT_NE(rowNamed(fields, "Fee: "), "");  // the colon is not the last character
  EXPECT_NE(rowNamed(fields, "Café Préféré"), "");
  EXPECT_NE(rowNamed(fields, "Birthday Card:"), "");
  EXPECT_EQ(rows(fields)[6], "7|ApptCustom1|Room|AppointInfo|1|Custom Appt Info 1|255");
  EXPECT_EQ(rows(fields)[10],
            "11|ApptCustom5|Custom Appt Field 5|AppointInfo|1|Custom Appt Info 5|255");
  // A Null label reads as an empty one.
  EXPECT_EQ(rows(fields)[7], "8|ApptCustom2||AppointInfo|1|Custom Appt Info 2|255");
  EXPECT_EQ(lines(list)[8], "8 ");
  // The firm's custom fields carry the company labels behind "Your ".
  bool bypass = false;
  bool clear = true;
  fields.createAccountantFieldListStructure(bypass, clear);
  EXPECT_EQ(lines(firmList)[14], std::to_string(fields.fieldListCounter() - 4) + " Your Bank");
  EXPECT_EQ(lines(firmList)[15],
            std::to_string(fields.fieldListCounter() - 3) + " Your Company Custom Field 2");
  EXPECT_EQ(rowNamed(fields, "Your Bank"),
            "FirmCustom1|Your Bank|FirmInfo|1|Company Custom Info 1|");
  EXPECT_EQ(indexNamed(fields, "Your Bank"), fields.fieldListCounter() - 18 - 4);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(Catalogue, AnEmptyLabelTableGivesNoCustomRowsAndAMissingOneIsAFailure) {
  db.exec("INSERT INTO CustomAddressFields (CompanyLabel1) VALUES ('Bank');");
  clsInsertFieldsInRTB fields;
  build(fields, listTypeCompany);
  // No client custom rows: the software rows follow the accounting rows.
  EXPECT_EQ(indexNamed(fields, "Law Society Member Number"), (26 + 5 + 1) + 8 + 25);
  EXPECT_EQ(indexNamed(fields, "Software Name"), (26 + 5 + 1) + 8 + 25 + 1);
  EXPECT_EQ(rowNamed(fields, "Bank"),
            "CompanyCustom1|Bank|CompanyInfo|1|Company Custom Info 1|255");
  EXPECT_EQ(fromSource(fields, "ContactInfo"), 8 + 66 + 5);

  // A failed open is a failure, not a fall-back to the default names; the
  // rows before it stay.
  db.exec("DROP TABLE CustomFields;");
  build(fields, listTypeCompany);
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].stack.back(),
            "Orvanta.exe-clsInsertFieldsInRTB-createDefaultFieldListStructure");
  EXPECT_EQ(rowNamed(fields, "Custom Field 1"), "");
  EXPECT_NE(rowNamed(fields, "Law Society Member Number"), "");
}

TEST_F(Catalogue, WithoutAConnectedStoreTheCustomRowsTakeTheirDefaultNames) {
  disconnect();
  ListBox list("lstFields");
  clsInsertFieldsInRTB fields;
  fields.setListBox(&list);
  region(2, 3);
  build(fields, listTypeTimeEntry);
  // The first row of a block carries its sample one column on.
  EXPECT_EQ(
      rows(fields)[28],
      "29|DocketCustom1|Custom Time Entry Field 1|DocketInfo|1||Custom Time Entry Info 1|255");
  EXPECT_EQ(rows(fields)[29],
            "30|DocketCustom2|Custom Time Entry Field 2|DocketInfo|1|Custom Time Entry Info 2|255");
  // The fifth is named otherwise than its line.
  EXPECT_EQ(rows(fields)[32],
            "33|DocketCustom5|Custom Remmit Field 5|DocketInfo|1|Custom Time Entry Info 5|255");
  EXPECT_EQ(lines(list)[33], "33 Custom Time Entry Field 5");
  // The line of the employer number has two blanks, its name one.
  EXPECT_EQ(rowNamed(fields, "Federal Employer Identification Number"),
            "EIN|Federal Employer Identification Number|ClientInfo|1|45-6547893|50");
  bool found = false;
  for (const std::string& line : lines(list)) {
    found = found || line.find(" Federal Employer Identification  Number") != std::string::npos;
  }
  EXPECT_TRUE(found);
  // Time entry, company, names, accounting, software, further contact with
  // their custom blocks and notes, then the firm.
  EXPECT_EQ(fields.fieldListCounter(), 33 + 30 + 8 + 16 + 7 + 68 + 18);
  EXPECT_EQ(rows(fields).back(),
            "180|FirmCustom5|Your Company Custom Field 5|FirmInfo|1|Company Custom Info 5|");
  EXPECT_EQ(rows(fields)[rows(fields).size() - 5],
            "176|FirmCustom1|Your Company Custom Field 1|FirmInfo|1||Company Custom Info 1");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(Catalogue, WithoutALocaleTheBuildReportsAndKeepsWhatItHas) {
  moduleState().localeReference.reset();
  clsInsertFieldsInRTB fields;
  build(fields, listTypeCompany);
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures[0].number, err::kObjectRequired);
  EXPECT_EQ(fields.fieldListCounter(), 0);
}

}  // namespace
}  // namespace qb::test
