// quillbox clients: the firm's clients with their ids, for the commands that
// take a company or a contact id.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "app/common/client_roster.h"
#include "app/common/desk_settings.h"
#include "services/runtime/strings.h"

namespace qb::cli {
namespace {

int runClients(Context& context) {
  Arguments& args = context.args;
  const bool companies = args.has("companies");
  const bool contacts = args.has("contacts");
  if (companies && contacts) throw UsageError("give --companies or --contacts, not both");
  if (!args.has("db")) {
    const std::string last = hosts::lastDeskDatabase();
    if (last.empty()) {
      throw UsageError("--db is required (the desktop program has no database open last)");
    }
    args.values_["db"] = last;
  }
  const std::string find = args.value("find");
  Session session(context);
  const hosts::ClientRoster roster = hosts::ClientRoster::load(session.store());
  for (const hosts::Client& client : roster.clients()) {
    if ((companies && !client.isCompany) || (contacts && client.isCompany)) continue;
    if (!find.empty() && InStr(client.name, find, CompareMode::Text) == 0) continue;
    context.out << client.id << '\t' << (client.isCompany ? "company" : "contact") << '\t'
                << client.name << '\n';
  }
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "clients",
    "list the firm's clients with their ids",
    "Usage: quillbox clients [--db FILE] [--companies | --contacts] [--find TEXT]\n"
    "\n"
    "Prints the firm's clients, one a line: the id, \"company\" or \"contact\", and the\n"
    "name, separated by tabs. Companies come first, then contacts, each by name, as\n"
    "the desktop program's First, Previous, Next and Last walk them. The firm itself\n"
    "and its users are not clients. The ids are those that --company and --contact\n"
    "of the other commands take.\n"
    "\n"
    "  --db FILE       the client database (default: the one the desktop program\n"
    "                  opened last)\n"
    "  --companies     only the companies\n"
    "  --contacts      only the contacts\n"
    "  --find TEXT     only the clients whose names contain TEXT, ignoring case\n",
    {"db", "find"},
    {"companies", "contacts"},
    runClients,
});

}  // namespace
}  // namespace qb::cli
