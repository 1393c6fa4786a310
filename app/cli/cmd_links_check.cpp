// quillbox links check: every document link of the firm (or of one client)
// with its state: whether its file can be opened, and if not, why.

#include <utility>

#include "app/cli/command.h"
#include "app/cli/link_options.h"
#include "app/cli/progress_bar.h"
#include "app/cli/session.h"
#include "links/link_check.h"
#include "links/link_reader.h"
#include "links/link_report.h"

namespace qb::cli {
namespace {

int runLinksCheck(Context& context) {
  const Arguments& args = context.args;
  links::ReportFormat format = links::ReportFormat::text;
  const std::string formatName = args.value("format", "text");
  if (!links::reportFormatNamed(formatName, format))
    throw UsageError("--format takes text, csv or json, not '" + formatName + "'");
  const links::LinkScope scope = linkScope(args);

  Session session(context);
  requireClient(scope);
  std::vector<links::CheckedLink> checked;
  {
    ProgressBar bar(context.err, "Checking links");
    checked = links::checkLinks(links::readLinks(scope), bar.callback());
  }
  const links::StateCounts counts = links::countStates(checked);
  if (args.has("broken")) {
    std::vector<links::CheckedLink> broken;
    for (links::CheckedLink& link : checked)
      if (links::isBroken(link.state)) broken.push_back(std::move(link));
    checked = std::move(broken);
  }
  links::writeCheckReport(context.out, checked, counts, format);
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "links check",
    "list the document links with the state of their files, and why a file can't be opened",
    "Usage: quillbox links check --db FILE [--company N | --contact N | --all]\n"
    "                            [--format text|csv|json] [--broken]\n"
    "\n"
    "Looks at the file of every document link and prints each link with its\n"
    "state, then a summary line that counts the links in each state:\n"
    "\n"
    "  present         the file is there\n"
    "  read-only       the file is there and is read-only\n"
    "  file-gone       its folder is there, but the file is not\n"
    "  other-computer  the folder is not there, and the link was added on another\n"
    "                  computer (the last field), which can't be reached from here\n"
    "  folder-gone     the folder is gone from this computer\n"
    "  folder          the path names a folder, not a file\n"
    "  no-permission   this user may not read the file, or a folder on its way\n"
    "  no-answer       the disk or share that holds it did not answer in time (a\n"
    "                  share that hangs is waited on about a second, once)\n"
    "  no-path         the link holds no path\n"
    "\n"
    "Links come by client (companies, then contacts, by name), then by category\n"
    "and name. Files are only looked at, never changed. A progress bar runs on\n"
    "standard error when it is a terminal.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --company N     only the links of that company\n"
    "  --contact N     only the links of that contact\n"
    "  --all           the links of every client (the default)\n"
    "  --format F      text (the default): one line a link, fields separated by\n"
    "                  tabs: state, document id, client, category path (names\n"
    "                  joined by \" / \"), link name, path, computer; then the\n"
    "                  summary line. A tab, line break or backslash in a field is\n"
    "                  written as \\t, \\n, \\r or \\\\.\n"
    "                  csv: a header line, then one record a link: state, id,\n"
    "                  client_kind, client_id, client, category, name, path,\n"
    "                  computer (no summary).\n"
    "                  json: {\"links\": [...], \"summary\": {\"links\": N, \"<state>\": N}}\n"
    "  --broken        list only the links whose file can't be opened (all but\n"
    "                  present, read-only and folder); the summary counts them all\n",
    {"db", "company", "contact", "format"},
    {"all", "broken"},
    runLinksCheck,
});

}  // namespace
}  // namespace qb::cli
