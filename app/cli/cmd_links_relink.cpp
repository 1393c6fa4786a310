// quillbox links relink: "everything under this old folder now lives under
// that new one": a preview of every link under the old folder, and with
// --apply the change of those whose file is at the new place.

#include "app/cli/command.h"
#include "app/cli/link_options.h"
#include "app/cli/progress_bar.h"
#include "app/cli/session.h"
#include "links/folder_prefix.h"
#include "links/link_reader.h"
#include "links/link_report.h"
#include "links/relink.h"

namespace qb::cli {
namespace {

std::string prefixOption(const Arguments& args, const std::string& name) {
  std::string prefix, error;
  if (!links::normalizePrefix(args.required(name), prefix, error))
    throw UsageError("--" + name + ": " + error);
  return prefix;
}

int runLinksRelink(Context& context) {
  const Arguments& args = context.args;
  const std::string from = prefixOption(args, "from");
  std::string to = prefixOption(args, "to");
  if (from == to) throw UsageError("--from and --to name the same folder, " + from);
  const links::LinkScope scope = linkScope(args);

  ReadsUnlessApplied preview(context);
  Session session(context);
  requireClient(scope);
  std::string error;
  if (!links::checkFolderReachable(to, error)) {
    context.err << "quillbox: the new folder can't be used: " << error
                << ". Nothing was changed.\n";
    return 1;
  }
  links::RelinkPlan plan;
  {
    ProgressBar bar(context.err, "Looking at the new places");
    plan = links::planRelink(links::readLinks(scope), from, to, bar.callback());
  }
  return previewOrApply(
      context, session,
      [&](const links::Progress& progress) { return links::applyRelink(plan, progress); },
      [&](const std::vector<links::RepointOutcome>* outcomes) {
        links::writeRelinkReport(context.out, plan, outcomes);
      });
}

const CommandRegistration kRegistration(Command{
    "links relink",
    "point the links under an old folder at the same files under a new one",
    "Usage: quillbox links relink --db FILE --from OLD_FOLDER --to NEW_FOLDER\n"
    "                             [--company N | --contact N | --all] [--apply]\n"
    "\n"
    "For a share or drive that moved: every link whose path lies under the old\n"
    "folder is listed with its new path, the same path under the new folder, and\n"
    "whether the file is there. Folders match whole names: /srv/data holds\n"
    "/srv/data/a.pdf but not /srv/database/a.pdf. Without --apply nothing is\n"
    "changed. With --apply each link whose file is at the new place gets its new\n"
    "path, one link at a time (a link keeps its old path or has its new one,\n"
    "whatever stops the program); the others are left as they were. Running the\n"
    "same relink again changes nothing. Files are never moved, renamed or\n"
    "deleted.\n"
    "\n"
    "One line a link, fields separated by tabs: found or not-found (with --apply:\n"
    "relinked, not-found, changed-meanwhile for a link changed since it was read,\n"
    "or failed), document id, client, link name, old path, new path; then a\n"
    "summary line.\n"
    "\n"
    "  --db FILE         the client database\n"
    "  --from FOLDER     the folder the links point into now, a whole path from \"/\"\n"
    "                    (an ending \"/\" makes no difference)\n"
    "  --to FOLDER       the folder that holds the files now; it must be there\n"
    "  --company N       only the links of that company\n"
    "  --contact N       only the links of that contact\n"
    "  --all             the links of every client (the default)\n"
    "  --apply           change the links whose file is at the new place\n",
    {"db", "from", "to", "company", "contact"},
    {"all", "apply"},
    runLinksRelink,
    true,  // writes with --apply
});

}  // namespace
}  // namespace qb::cli
