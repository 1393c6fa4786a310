// The activity catalogues: the fields of an appointment, of a task (as
// scheduled work, then as a calendar entry) and of a time entry, each group
// followed by its five custom fields.
//
// Without a connected store the fifth custom row of every block here is
// named "Custom Remmit Field 5" while its list line reads the block's own
// default name, so a pick of that line inserts a marker with the other text.
// The firm's lists have always had it so.

#include "merge/catalogue_builder.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"

namespace qb {

namespace {

constexpr const char* kCustomFieldsQuery = "SELECT CustomFields.* FROM CustomFields;";
constexpr const char* kRemmitFifth = "Custom Remmit Field 5";

constexpr CatalogueRow kAppointmentRows[] = {
    {"Subject", "Appointment Name", 1, "Client Appointment", 255},
    {"DateFrom", "Appointment Date", 2, "{DATE:THIS-01-31}", -1},
    {"TimeFrom", "Appointment Start Time", 3, "9:00 AM", -1},
    {"TimeTo", "Appointment End Time", 3, "9:30 AM", -1},
    {"TimeDuration", "Time Duration", 1, "1 hr 30 min", -1},
    {"AppointmentText", "Appointment Text", 1, "Sample appointment description text", -1},
};

constexpr CustomBlock kAppointmentCustomBlock = {kCustomFieldsQuery,
                                                 "ApptCustom",
                                                 "ApptCustomName",
                                                 "Custom Appt Field ",
                                                 "Custom Appt Info ",
                                                 "",
                                                 255,
                                                 kRemmitFifth};

// The task as scheduled work.
constexpr CatalogueRow kScheduledTaskRows[] = {
    {"Subject", "Task Name", 1, "1st Quarterly GST Payment", 150},
    {"DueDate", "Task Due Date", 2, "{DATE:THIS-01-31}", -1},
    {"inHouseDueDate", "Task in-House Due Date", 2, "{DATE:THIS-01-27}", -1},
    {"PeriodEndDate", "Period End Date", 2, "{DATE:LAST-12-31}", -1},
    {"PeriodDescription", "Period Description", 1,
     "Period For: {DATE:LAST-12-01} to {DATE:LAST-12-31}", 50},
    {"CalendarDate", "Task Calendar Date", 2, "{DATE:THIS-01-27}", kLeftOut},
    {"EmployeeAssigned", "Employee Assigned", 1, "Ms. Accountant", 50},
    {"Year", "Task Year", 1, "{YEAR}", 12},
    {"Amount", "Amount Paid", 1, "$123.50", 15},
    {"PersonCompleted", "Completed By", 1, "Chris Counter", 50},
    {"DateCompleted", "Date Completed", 2, "01/29/{YEAR}", -1},
};

constexpr CustomBlock kScheduledTaskCustomBlock = {kCustomFieldsQuery,
                                                   "ScheduleCustom",
                                                   "RemittanceLabel",
                                                   "Custom Task Field ",
                                                   "Custom Task Info ",
                                                   "",
                                                   255,
                                                   kRemmitFifth};

// The task as a calendar entry.
constexpr CatalogueRow kCalendarTaskRows[] = {
    {"Subject", "Task Subject", 1, "Client Task", 255},
    {"DateFrom", "Task Calendar Date", 2, "{DATE:THIS-01-31}", -1},
    {"TimeFrom", "Task Start Time", 3, "9:00 AM", -1},
    {"TimeTo", "Task End Time", 3, "9:30 AM", -1},
    {"TimeDuration", "Time Duration", 1, "1 hr 30 min", -1},
    {"AppointmentText", "Task Text", 1, "Sample task description text", 255},
};

constexpr CustomBlock kCalendarTaskCustomBlock = {kCustomFieldsQuery,
                                                  "TaskCustom",
                                                  "TaskCustomName",
                                                  "Custom Task Field ",
                                                  "Custom Task Info ",
                                                  "",
                                                  255,
                                                  kRemmitFifth};

constexpr CatalogueRow kTimeEntryRows[] = {
    {"Subject", "Time Entry Name", 1, "Client Time Entry", -1},
    {"DateFrom", "Time Entry Date", 2, "{DATE:THIS-01-31}", -1},
    {"TimeFrom", "Time Entry Start Time", 3, "9:00 AM", -1},
    {"TimeTo", "Time Entry End Time", 3, "9:30 AM", -1},
    {"TimeDuration", "Time Duration", 1, "1 hr 30 min", -1},
    {"AppointmentText", "Time Entry Text", 1, "Sample time entry description text", 255},
    {"DocketLocked", "Time Entry Locked", 5, "False", -1},
    {"Invoiced", "Is Invoiced", 5, "True", -1},
    {"UsedRealTime", "Used Time Entry Timer", 5, "True", -1},
    {"RealTimeFrom", "Time From (Actual Time)", 3, "9:27 am", -1},
    {"RealTimeTo", "Time To (Actual Time)", 3, "10:03 am", -1},
    {"OriginalRealTimeFrom", "Time From (Original Time)", 3, "9:27 am", -1},
    {"OriginalRealTimeTo", "Time To (Original Time)", 3, "10:03 am", -1},
    {"RoundedTimeFrom", "Time From (Rounded Time)", 3, "9:30 am", -1},
    {"RoundedTimeTo", "Time To (Rounded Time)", 3, "10:00 am", -1},
    {"TextBody", "Time Entry Notes", 1, "Sample notes", -1},
    {"DocketBillingType", "Billing Type", 1, "Hourly Billing", -1},
    {"BillingJobRate", "Billing Rate", 1, "$50/hr", -1},
    {"BillableTime", "Billable Time", 5, "True", -1},
    {"TotalTimeReal", "Total Time (Actual)", 6, "31 min", -1},
    {"TotalTimeRounded", "Total Time (Rounded)", 6, "30 min", -1},
    {"UseAdjustedTime", "Use Adjusted Time", 5, "False", -1},
    {"TotalTimeAdjusted", "Total Time (Adjusted)", 6, "0 min", -1},
    {"TotalTimeFinal", "Total Time (Final)", 6, "30 min", -1},
    {"TotalAmountReal", "Total Amount (Actual)", 4, "$25.00", -1},
    {"TotalAmountFinal", "Total Amount (Final)", 4, "$25.00", -1},
    {"DescriptionInternal", "Internal Time Entry Description", 1,
     "Sample internal description text", -1},
    {"DescriptionClient", "Invoice Time Entry Description", 1, "Sample invoice description text",
     -1},
};

constexpr CustomBlock kTimeEntryCustomBlock = {kCustomFieldsQuery,
                                               "DocketCustom",
                                               "DocketCustomName",
                                               "Custom Time Entry Field ",
                                               "Custom Time Entry Info ",
                                               "",
                                               255,
                                               kRemmitFifth};

}  // namespace

void clsInsertFieldsInRTB::createAppointmentInfoFieldListStructure(bool& bypassListBox) {
  Procedure proc(merge::traceName("createAppointmentInfoFieldListStructure"));
  CatalogueBuilder build(*this, proc, listBox_, bypassListBox);
  build.rows("AppointInfo", kAppointmentRows);
  build.customBlock("AppointInfo", kAppointmentCustomBlock);
}

void clsInsertFieldsInRTB::createTaskInfoFieldListStructure(bool& bypassListBox) {
  Procedure proc(merge::traceName("createTaskInfoFieldListStructure"));
  CatalogueBuilder build(*this, proc, listBox_, bypassListBox);
  build.rows("TaskInfo", kScheduledTaskRows);
  build.customBlock("TaskInfo", kScheduledTaskCustomBlock);
  build.header("");
  build.header("[Task Info]");
  build.rows("TaskInfo", kCalendarTaskRows);
  build.customBlock("TaskInfo", kCalendarTaskCustomBlock);
}

void clsInsertFieldsInRTB::createDocketInfoFieldListStructure(bool& bypassListBox) {
  Procedure proc(merge::traceName("createDocketInfoFieldListStructure"));
  CatalogueBuilder build(*this, proc, listBox_, bypassListBox);
  build.rows("DocketInfo", kTimeEntryRows);
  build.customBlock("DocketInfo", kTimeEntryCustomBlock);
}

}  // namespace qb
