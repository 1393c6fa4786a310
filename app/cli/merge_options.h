#pragma once
// The options that give a merge its items and its list, shared by the merge
// commands: --company, --contact, --firm, --employee (the user whose record
// the merge reads), --appointment, --task or --schedule (the task of a
// schedule row), --docket, --list-type and --use.

#include <string>
#include <utility>
#include <vector>

#include "app/cli/command.h"
#include "merge/cls_insert_fields_in_rtb.h"

namespace qb::cli {

// --schedule names a schedule row (its task is the merge's).
inline const IdOption kScheduleId = {"schedule", "Schedule", "ScheduleID", "schedule row"};

// The value options of the merge's items and list type.
inline const std::vector<std::string> kMergeItemOptions = {"list-type", "company",  "contact",
                                                           "firm",      "employee", "appointment",
                                                           "task",      "schedule", "docket"};

// Their lines for a command's --help.
inline constexpr const char* kMergeItemHelp =
    "  --company ID       the company\n"
    "  --contact ID       the contact\n"
    "  --firm ID          the firm (the \"Your ...\" fields)\n"
    "  --employee ID      the employee whose record the merge opens (the user)\n"
    "  --appointment ID   the appointment\n"
    "  --task ID          the task\n"
    "  --schedule ID      the task of this schedule row (instead of --task)\n"
    "  --docket ID        the time entry\n"
    "  --list-type N      what the field list describes: 1 company, 2 company or\n"
    "                     contact, 3 contact, 5 appointment, 6 time entry, 8 task.\n"
    "                     Default: 5 with --appointment, else 8 with a task, else 6\n"
    "                     with --docket, else 2\n";
// The line of --use, for the commands that take it.
inline constexpr const char* kMergeUseHelp =
    "  --use N            what the list is for: 1 merge (default), 2 a run over\n"
    "                     many clients, 3 assigning a field, 5 write-back\n";

// The list type the ids ask for, as an empty field table chooses it: an
// appointment, else a task, else a time entry, else a company or contact.
inline int32_t listTypeFromIds(const clsInsertFieldsInRTB& fields) {
  if (fields.AppointmentID() >= 0) return listTypeAppointment;
  if (fields.taskID() >= 0) return listTypeTask;
  if (fields.docketId() >= 0) return listTypeTimeEntry;
  return listTypeCompanyContact;
}

// Sets the merge's items, use (when the command takes it) and list type
// from the options. Call it once
// the session is open: --schedule looks its task up in the database.
inline void setMergeItems(clsInsertFieldsInRTB& fields, const Arguments& args) {
  if (args.has("task") && args.has("schedule")) {
    throw UsageError("give --task or --schedule, not both");
  }
  fields.setMergeFieldListUse(args.id("use", fieldListUseMerge));
  fields.setCompanyID(args.id("company", -1));
  fields.setContactID(args.id("contact", -1));
  fields.setFirmID(args.id("firm", -1));
  fields.setUserID(args.id("employee", -1));
  fields.setAppointmentID(args.id("appointment", -1));
  fields.setDocketId(args.id("docket", -1));
  fields.setTaskID(args.id("task", -1));
  if (args.has("schedule")) fields.setScheduleID(args.id("schedule", -1));
  fields.setListType(args.has("list-type") ? args.id("list-type", 0) : listTypeFromIds(fields));
}

// The options of a command that takes the merge's items, with its own.
inline std::vector<std::string> withMergeItems(std::vector<std::string> own) {
  own.insert(own.end(), kMergeItemOptions.begin(), kMergeItemOptions.end());
  return own;
}
// The same with --use.
inline std::vector<std::string> withMergeItemsAndUse(std::vector<std::string> own) {
  own.push_back("use");
  return withMergeItems(std::move(own));
}

}  // namespace qb::cli
