// quillbox write-field: one value written back to the column behind a merge
// field, as a document opened for write-back stores an edited value.

#include <string>

#include "app/cli/command.h"
#include "app/cli/merge_field_option.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
#include "services/runtime/conversions.h"
#include "services/runtime/variant.h"

namespace qb::cli {
namespace {

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
    fields.writeDataToField(fieldNameOfOption(fields, field, "write-back"), Variant(value));
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
