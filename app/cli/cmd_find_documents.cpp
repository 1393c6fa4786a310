// quillbox find-documents: the find dialog's search of document links, for
// scripts: one result a line in the order found.

#include "app/cli/command.h"
#include "app/cli/dialog_host.h"
#include "dialogs/frm_find_document.h"

namespace qb::cli {
namespace {

constexpr const char* kBlankText = "You must enter a search criteria in the 'Search Text' field";

int runFindDocuments(Context& context) {
  const Arguments& args = context.args;
  const std::string text = args.required("text");
  const int32_t field = args.number("field", 0);
  if (field < 0 || field > 4) throw UsageError("--field takes 0, 1, 2, 3 or 4");
  const int scopes = args.has("company") + args.has("contact") + args.has("all");
  if (scopes > 1) throw UsageError("give one of --company N, --contact N and --all");
  const int32_t company = args.id("company", -1);
  const int32_t contact = args.id("contact", -1);
  if (args.has("company") && company < 0) throw UsageError("--company takes an id of 0 or more");
  if (args.has("contact") && contact < 0) throw UsageError("--contact takes an id of 0 or more");

  Session session(context);
  auto messages = hostDialogs(session, args.required("db"));
  frmFindDocument form;
  form.initializeFind(company, contact);
  // The criteria as a user sets them, then Find.
  for (int32_t i = 0; i < form.cboField(2).ListCount(); ++i) {
    if (form.cboField(2).ItemData(i) == field) form.cboField(2).setListIndex(i);
  }
  form.txtField().setText(text);
  form.chkField(0).setValue(args.has("whole-phrase") ? 1 : 0);
  form.chkField(1).setValue(args.has("match-case") ? 1 : 0);
  form.optSearchClients(company >= 0 || contact >= 0 ? 0 : 1).setValue(true);
  form.cmdFind().click();
  for (const auto& message : messages->messages) {
    if (message.text == kBlankText) throw UsageError("--text needs a search text");
  }

  const ListItemCollection& rows = form.FindResults().ListItems();
  for (int32_t i = 1; i <= rows.Count(); ++i) {
    const ListItem& row = rows.item(i);
    context.out << row.Text() << '\t' << row.SubItems(1) << '\t' << row.SubItems(2) << '\t'
                << row.SubItems(3) << '\n';
  }
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "find-documents",
    "search the document links of a client or of all clients, as the find dialog does",
    "Usage: quillbox find-documents --db FILE --text TEXT [--field 0|1|2|3|4] [--whole-phrase]\n"
    "                               [--match-case] [--company N | --contact N | --all]\n"
    "\n"
    "Searches the document links by text as the find dialog does and prints one\n"
    "result a line, in the order found: the link's display name, its document id,\n"
    "the text that matched and the client's name, separated by tabs. Nothing is\n"
    "printed when nothing matches.\n"
    "\n"
    "  --db FILE        the client database\n"
    "  --text TEXT      the text to look for, as typed (not trimmed)\n"
    "  --field N        where to look: 0 all four fields below, the first that matches\n"
    "                   (the default); 1 the display name; 2 the file's name without\n"
    "                   its extension; 3 the file's extension; 4 the full path\n"
    "  --whole-phrase   the text must stand at the start or after a blank, with the\n"
    "                   rest empty or ending in a blank up to the next match (so \"tax\"\n"
    "                   finds \"2005 tax\" but not \"tax return\")\n"
    "  --match-case     upper and lower case as typed\n"
    "  --company N      only the links of that company\n"
    "  --contact N      only the links of that contact\n"
    "  --all            the links of every client (the default)\n",
    {"db", "text", "field", "company", "contact"},
    {"whole-phrase", "match-case", "all"},
    runFindDocuments,
});

}  // namespace
}  // namespace qb::cli
