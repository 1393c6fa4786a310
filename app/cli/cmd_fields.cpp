// quillbox fields: the merge field table as the merge engine builds it for an
// item, or the lines of its two field lists.

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/list_box.h"
#include "services/runtime/conversions.h"

namespace qb::cli {
namespace {

void printTable(const clsInsertFieldsInRTB& fields, std::ostream& out) {
  FieldListClass table = fields.FieldList();
  for (int32_t index = 1; index <= fields.fieldListCounter(); ++index) {
    // A row whose step failed has no index in the table.
    if (!table.moveToFieldRow(index)) continue;
    out << toText(table.getFieldRowIndex());
    for (int32_t column = fieldNameColumn; column <= fieldMaxLengthColumn; ++column) {
      out << '\t' << toText(table.getFieldColumn(column));
    }
    out << '\n';
  }
}

void printLines(const ListBox& box, std::ostream& out) {
  for (int32_t line = 0; line < box.ListCount(); ++line) {
    out << box.ItemData(line) << '\t' << box.List(line) << '\n';
  }
}

int runFields(Context& context) {
  const Arguments& args = context.args;
  if (args.has("list-box") && args.has("firm-list-box")) {
    throw UsageError("give --list-box or --firm-list-box, not both");
  }
  const int32_t use = args.number("use", fieldListUseMerge);
  const int32_t companyID = args.id("company", -1);
  const int32_t contactID = args.id("contact", -1);
  const int32_t appointmentID = args.id("appointment", -1);
  const int32_t taskID = args.id("task", -1);
  const int32_t docketID = args.id("docket", -1);
  const bool listTypeGiven = args.has("list-type");
  const int32_t listType = args.number("list-type", 0);

  Session session(context, Session::Database::Optional);
  ListBox clientList("lstClientFields");
  ListBox firmList("lstFirmFields");
  {
    clsInsertFieldsInRTB fields;
    fields.setListBox(&clientList);
    fields.setListBox2(&firmList);
    fields.setMergeFieldListUse(use);
    fields.setCompanyID(companyID);
    fields.setContactID(contactID);
    fields.setAppointmentID(appointmentID);
    fields.setTaskID(taskID);
    fields.setDocketId(docketID);
    fields.setListType(listTypeGiven ? listType : listTypeFromIds(fields));
    bool bypassListBox = false;
    bool clearListbox = true;
    fields.createDefaultFieldListStructure(bypassListBox, clearListbox);
    if (args.has("firm-list-box")) {
      bool bypassFirmList = false;
      bool clearFirmList = true;
      fields.createAccountantFieldListStructure(bypassFirmList, clearFirmList);
      printLines(firmList, context.out);
    } else if (args.has("list-box")) {
      printLines(clientList, context.out);
    } else {
      printTable(fields, context.out);
    }
  }
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "fields",
    "the merge field table for an item, or the lines of its field lists",
    "Usage: quillbox fields [--db FILE] [--list-type N] [--use N] [--company ID]\n"
    "                       [--contact ID] [--appointment ID] [--task ID] [--docket ID]\n"
    "                       [--list-box | --firm-list-box]\n"
    "\n"
    "Builds the merge field table as the merge engine does for the item and\n"
    "prints one row a line, in table order, tab-separated: the row's index,\n"
    "field name, display name, source, type, sample and maximum length; a\n"
    "column the row leaves out prints empty. The firm's rows come last.\n"
    "Without --db the store is not connected and the custom fields take their\n"
    "default names. --country and --province choose the rows of the firm's\n"
    "region; samples and the GST/HST labels read --today.\n"
    "\n"
    "  --db FILE          the client database (its custom field labels)\n"
    "  --list-type N      the item the list describes: 1 company, 2 company or\n"
    "                     contact, 3 contact, 5 appointment, 6 time entry, 8 task;\n"
    "                     any other number builds only the firm's rows. Default:\n"
    "                     5 with --appointment, else 8 with --task, else 6 with\n"
    "                     --docket, else 2\n"
    "  --use N            what the list is for: 1 merge (default), 2 batch merge,\n"
    "                     3 assigning a field (no headers, address lines split),\n"
    "                     5 write-back\n"
    "  --company ID       the company (with --list-type 3, 0 or more adds the\n"
    "                     company's fields)\n"
    "  --contact ID       the contact\n"
    "  --appointment ID   the appointment\n"
    "  --task ID          the task\n"
    "  --docket ID        the time entry\n"
    "  --list-box         print the client field list instead: each line's item\n"
    "                     data (the row's index, -1 for a header), a tab, its text\n"
    "  --firm-list-box    fill the firm's field list too and print its lines\n",
    {"db", "list-type", "use", "company", "contact", "appointment", "task", "docket"},
    {"list-box", "firm-list-box"},
    runFields,
});

}  // namespace
}  // namespace qb::cli
