// quillbox write-field: one value written back to the column behind a merge
// field, as a document opened for write-back stores an edited value.

#include <stdexcept>
#include <string>

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
#include "services/runtime/conversions.h"
#include "services/runtime/variant.h"

namespace qb::cli {
namespace {

// The field name that write-back is to take for the option's name: a field
// name as it stands, or a display name turned into its field's name. A
// display name whose field name belongs first to another field (the firm's
// "Your City" is City, as the company's City is) can't be written by name:
// write-back takes the first field of a name.
std::string writableFieldName(clsInsertFieldsInRTB& fields, const std::string& given) {
  FieldListClass table = fields.FieldList();
  if (table.findFieldRow(fieldNameColumn, Variant(given)) >= 0) return given;
  const int32_t row = table.findFieldRow(fieldDisplayNameColumn, Variant(given));
  if (row < 0) {
    throw std::runtime_error("the field list of these items has no field named '" + given +
                             "' (quillbox fields lists them: field names in the second column, "
                             "display names in the third)");
  }
  std::string displayName = given;
  const std::string name = fields.getDBFieldNameFromDisplayFieldName(displayName);
  if (table.findFieldRow(fieldNameColumn, Variant(name)) != row) {
    throw std::runtime_error("'" + given + "' is the field " + name +
                             ", but write-back takes that name for the first field of the list "
                             "so named, " +
                             CStr(table.getFieldColumn(fieldDisplayNameColumn)) + " (" +
                             CStr(table.getFieldColumn(fieldSourceColumn)) +
                             "): with these items and list type it can't be written back");
  }
  return name;
}

int runWriteField(Context& context) {
  const Arguments& args = context.args;
  const std::string field = args.required("field");
  const std::string value = args.required("value");
  Session session(context);
  {
    clsInsertFieldsInRTB fields;
    setMergeItems(fields, args);
    fields.setMergeFieldListUse(fieldListUseWriteBack);
    fields.initializeDataRecordsetsForSingleDocMerge();
    // The engine passes over a name it does not know; the tool says so.
    fields.writeDataToField(writableFieldName(fields, field), Variant(value));
  }
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "write-field",
    "a value written back to the column behind a merge field",
    std::string("Usage: quillbox write-field --db FILE --field NAME --value TEXT\n"
                "         [the merge's item and list options]\n"
                "\n"
                "Opens the items for write-back and stores the value in the column behind\n"
                "the field, committed at once, in the form the field's type asks for: a date\n"
                "as a date (nothing before 1900), an amount or hours as a number, a Boolean\n"
                "as True or False, a coded column as its code. A contact that inherits her\n"
                "company's details writes an inherited detail to the company too; an\n"
                "abbreviated province goes to the full column; the couple's name is computed\n"
                "and writes nothing. Prints nothing.\n"
                "\n"
                "  --db FILE          the client database\n"
                "  --field NAME       the field's name or its display name (quillbox fields,\n"
                "                     second or third column)\n"
                "  --value TEXT       the value\n") +
        kMergeItemHelp,
    withMergeItems({"db", "field", "value"}),
    {},
    runWriteField,
    true,
    {kScheduleId},
});

}  // namespace
}  // namespace qb::cli
