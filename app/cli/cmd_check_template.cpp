// quillbox check-template: a template's markers checked as a host checks a
// template the user saves, against the field table a merge builds.

#include "app/cli/command.h"
#include "app/cli/merge_options.h"
#include "app/cli/session.h"
#include "app/cli/template_options.h"

namespace qb::cli {
namespace {

int runCheckTemplate(Context& context) {
  const Arguments& args = context.args;
  std::string text = templateText(args);
  Session session(context, Session::Database::Optional);
  bool hasError = false;
  std::string message;
  {
    clsInsertFieldsInRTB fields;
    setMergeItems(fields, args);
    fields.initializeDataRecordsetsForSingleDocMerge();
    fields.testErrorComment = [&](std::string& raised) { message = raised; };
    hasError = fields.testRTBComment(text, args.has("rich"), true, args.has("skip-fields"));
  }
  context.out << message;
  return hasError ? 1 : session.exitStatus();
}

const CommandRegistration registration(Command{
    "check-template",
    "a template's markers checked; the first error's message",
    std::string("Usage: quillbox check-template (--text TEXT | --template FILE) [--rich]\n"
                "         [--skip-fields] [--db FILE] [the merge's item and list options]\n"
                "\n"
                "Checks the markers of the template as a host checks a template the user\n"
                "saves, up to the first error, and prints that error's message exactly, with\n"
                "nothing added; nothing when the template is good. Exit status 1 when the\n"
                "template has an error, 0 when it has none. Field names are those of the\n"
                "field table a merge builds for the items given (see quillbox merge).\n"
                "\n"
                "  --text TEXT        the template itself\n"
                "  --template FILE    a file that holds the template\n"
                "  --rich             look at the brackets as RTF source writes them\n"
                "                     (\\'ab and \\'bb), and at no others\n"
                "  --skip-fields      do not check the names of the fields\n"
                "  --db FILE          the client database (its custom field labels)\n") +
        kMergeItemHelp + kMergeUseHelp,
    withMergeItemsAndUse({"text", "template", "db"}),
    {"rich", "skip-fields"},
    runCheckTemplate,
    false,
    {kScheduleId},
});

}  // namespace
}  // namespace qb::cli
