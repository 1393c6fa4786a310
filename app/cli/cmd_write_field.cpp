// quillbox write-field: one value written back to the column behind a merge
// field, as a document opened for write-back stores an edited value.

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
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
    FieldListClass table = fields.FieldList();
    if (table.findFieldRow(fieldNameColumn, Variant(field)) < 0) {
      context.err << "quillbox: the field list of these items has no field named '" << field
                  << "' (quillbox fields lists them)\n";
      return 1;
    }
    fields.writeDataToField(field, Variant(value));
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
                "  --field NAME       the field's name (quillbox fields, second column)\n"
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
