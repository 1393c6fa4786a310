// quillbox links locate: looks for the files of broken links by name under a
// folder; one match is proposed (and with --apply taken), several are listed
// for the user to choose.

#include "app/cli/command.h"
#include "app/cli/link_options.h"
#include "app/cli/progress_bar.h"
#include "app/cli/session.h"
#include "links/folder_prefix.h"
#include "links/link_reader.h"
#include "links/link_report.h"
#include "links/locate.h"

namespace qb::cli {
namespace {

int runLinksLocate(Context& context) {
  const Arguments& args = context.args;
  std::string folder = args.required("under");
  const links::LinkScope scope = linkScope(args);

  ReadsUnlessApplied preview(context);
  Session session(context);
  requireClient(scope);
  std::string error;
  if (!links::checkFolderReachable(folder, error)) {
    context.err << "quillbox: --under: " << error << ". Nothing was changed.\n";
    return 1;
  }
  links::LocatePlan plan;
  {
    std::vector<links::CheckedLink> checked;
    {
      ProgressBar bar(context.err, "Checking links");
      checked = links::checkLinks(links::readLinks(scope), bar.callback());
    }
    ProgressBar bar(context.err, "Files seen under " + folder);
    plan = links::planLocate(checked, folder, bar.callback());
  }
  return previewOrApply(
      context, session,
      [&](const links::Progress& progress) { return links::applyLocate(plan, progress); },
      [&](const std::vector<links::RepointOutcome>* outcomes) {
        links::writeLocateReport(context.out, plan, outcomes);
      });
}

const CommandRegistration kRegistration(Command{
    "links locate",
    "look for the files of broken links by name under a folder",
    "Usage: quillbox links locate --db FILE --under FOLDER\n"
    "                             [--company N | --contact N | --all] [--apply]\n"
    "\n"
    "For each link whose file is not where the link says (file-gone, folder-gone\n"
    "or other-computer in 'quillbox links check'), looks for files of exactly the\n"
    "same name under the folder, which is walked once for all the links. Links on\n"
    "a share that does not answer are left: their file is most likely still\n"
    "there. Symbolic links to folders are not followed; folders this user may\n"
    "not read, and a share under the folder that does not answer (waited on\n"
    "about a second, once), are passed over and counted in the summary.\n"
    "\n"
    "One line a link, fields separated by tabs: found (one match), several (a\n"
    "line for each match, for the user to choose, for instance in the link's\n"
    "properties dialog) or none; then document id, client, link name, old path,\n"
    "match; then a summary line. With --apply each link with one match is\n"
    "pointed at it (relinked); the others are left as they were. Files are never\n"
    "moved, renamed or deleted.\n"
    "\n"
    "  --db FILE        the client database\n"
    "  --under FOLDER   where to look (a relative folder is taken from the\n"
    "                   working folder)\n"
    "  --company N      only the links of that company\n"
    "  --contact N      only the links of that contact\n"
    "  --all            the links of every client (the default)\n"
    "  --apply          relink the links with one match\n",
    {"db", "under", "company", "contact"},
    {"all", "apply"},
    runLinksLocate,
    true,  // writes with --apply
});

}  // namespace
}  // namespace qb::cli
