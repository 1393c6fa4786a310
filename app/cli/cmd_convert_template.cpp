// quillbox convert-template: a template normalised as a merge normalises it
// first: typed brackets, legacy names and the firm's regional markers.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "app/cli/template_options.h"
#include "merge/cls_insert_fields_in_rtb.h"

namespace qb::cli {
namespace {

int runConvertTemplate(Context& context) {
  const std::string text = templateText(context.args);
  Session session(context, Session::Database::Optional);
  std::string converted;
  {
    clsInsertFieldsInRTB fields;
    converted = fields.convertProvinceFields(text);
  }
  context.out << converted;
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "convert-template",
    "a template's markers normalised to today's names and the firm's region",
    "Usage: quillbox convert-template (--text TEXT | --template FILE)\n"
    "\n"
    "Prints the template exactly as a merge normalises it before it looks for\n"
    "markers, with nothing added (no final newline): \"<<\" and \">>\" become\n"
    "\"«\" and \"»\", legacy field names and the date words Long Date, Medium Date\n"
    "and Short Date become today's, \"Docket\" becomes \"Time Entry\"\n"
    "anywhere in the text, and the markers of another country or province\n"
    "become the firm's (--country, --province; the GST/HST rule of British\n"
    "Columbia and Ontario reads --today). Replacements ignore case.\n"
    "\n"
    "  --text TEXT        the template itself\n"
    "  --template FILE    a file that holds the template (plain text or RTF)\n",
    {"text", "template"},
    {},
    runConvertTemplate,
});

}  // namespace
}  // namespace qb::cli
