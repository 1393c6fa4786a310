// quillbox merge: a template merged for the items given, as a host merges
// one document: the items and flags set, the recordsets opened, the
// template parsed, the finished text printed.

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
#include "app/cli/template_options.h"

namespace qb::cli {
namespace {

int runMerge(Context& context) {
  const Arguments& args = context.args;
  if (args.has("rtf") && args.has("plain")) throw UsageError("give --rtf or --plain, not both");
  const std::string text = templateText(args);
  Session session(context, Session::Database::Optional);
  std::string merged;
  {
    clsInsertFieldsInRTB fields;
    setMergeItems(fields, args);
    fields.setTestComment(args.has("test"));
    // Values are made ready for rich text when the template is RTF, unless
    // the flags say otherwise.
    fields.setConvertStrToRTF(args.has("rtf") ||
                              (!args.has("plain") && text.rfind("{\\rtf", 0) == 0));
    if (args.has("no-wrap")) fields.setUseWordWrap(false);
    fields.setConvertCompanyNameToContactNameForContacts(args.has("company-as-contact"));
    fields.initializeDataRecordsetsForSingleDocMerge();
    fields.setTemplateText(text);
    merged = fields.parseRTBComment();
  }
  context.out << merged;
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "merge",
    "a template merged for a client, an appointment, a task or a time entry",
    std::string("Usage: quillbox merge (--text TEXT | --template FILE) [--db FILE]\n"
                "         [--list-type N] [--use N] [--company ID] [--contact ID] [--firm ID]\n"
                "         [--employee ID] [--appointment ID] [--task ID | --schedule ID]\n"
                "         [--docket ID] [--test] [--rtf | --plain] [--no-wrap]\n"
                "         [--company-as-contact]\n"
                "\n"
                "Merges the template as a host merges one document and prints the finished\n"
                "text exactly, with nothing added (no final newline): each marker such as\n"
                "«Company Name» or «(Year End Date, mmmm d yyyy)» (also <<...>> and, in RTF,\n"
                "\\'ab...\\'bb) becomes the field's value, and markers that name no field are\n"
                "removed. Without --db the store is not connected and every field is blank\n"
                "(--test gives the samples all the same).\n"
                "\n"
                "  --text TEXT        the template itself\n"
                "  --template FILE    a file that holds the template (plain text or RTF)\n"
                "  --db FILE          the client database\n") +
        kMergeItemHelp + kMergeUseHelp +
        "  --test             merge the fields' sample values, not the client's data\n"
        "  --rtf, --plain     values made ready for RTF (line breaks as paragraphs,\n"
        "                     accents as escapes, a blank after a control word) or\n"
        "                     left as they are; default: RTF when the template starts\n"
        "                     with \"{\\rtf\"\n"
        "  --no-wrap          in RTF, the lines of a value run on, comma-separated\n"
        "  --company-as-contact\n"
        "                     for a contact without a company, «Company Name» stands\n"
        "                     for «Contact Display Name»\n",
    withMergeItemsAndUse({"text", "template", "db"}),
    {"test", "rtf", "plain", "no-wrap", "company-as-contact"},
    runMerge,
    false,
    {kScheduleId},
});

}  // namespace
}  // namespace qb::cli
