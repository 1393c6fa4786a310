// quillbox categories: a client's tree of document categories as indented
// text, in the order the document window shows it.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "app/common/client_roster.h"
#include "services/quillbox/client_category_rows.h"

namespace qb::cli {
namespace {

const char* kindOf(int32_t specialType) {
  switch (specialType) {
    case 1:
      return "main";
    case 2:
      return "merge-folder";
    case 3:
      return "merge-shortcuts";
    default:
      return "category";
  }
}

int runCategories(Context& context) {
  const Arguments& args = context.args;
  const int32_t company = args.id("company", -1);
  const int32_t contact = args.id("contact", -1);
  if ((company >= 0) == (contact >= 0)) throw UsageError("give --company or --contact");
  Session session(context);
  const hosts::ClientRoster roster = hosts::ClientRoster::load(session.store());
  if (roster.find(company >= 0, company >= 0 ? company : contact) < 0) {
    context.err << "quillbox: there is no client " << (company >= 0 ? "company " : "contact ")
                << (company >= 0 ? company : contact) << "\n";
    return 1;
  }
  using namespace quillboxLibrary;
  const auto placed = arrangeCategories(readClientCategories(session.store(), company, contact));
  for (const PlacedCategory& category : placed) {
    context.out << std::string(2 * static_cast<size_t>(category.depth), ' ') << category.row.id
                << '\t' << kindOf(category.row.specialType) << '\t' << category.row.name << '\n';
  }
  if (placed.empty()) {
    context.err << "quillbox: the client has no categories yet: the document window, or "
                   "'quillbox category add', makes its main category\n";
  }
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "categories",
    "print a client's tree of document categories",
    "Usage: quillbox categories --db FILE (--company ID | --contact ID)\n"
    "\n"
    "Prints the client's document categories as the document window's tree shows\n"
    "them, one a line, each indented two blanks a level under its parent: the id,\n"
    "the kind and the name, separated by tabs. The kinds: \"main\" (the top of the\n"
    "client's tree, which can't be edited or deleted), \"merge-folder\" (the folder\n"
    "of the client's merge documents), \"merge-shortcuts\" (shortcuts to them; both\n"
    "merge kinds are protected too) and \"category\". The ids are those that the\n"
    "category and document move commands take.\n"
    "\n"
    "  --db FILE      the client database\n"
    "  --company ID   the client company (see quillbox clients)\n"
    "  --contact ID   the client contact\n",
    {"db", "company", "contact"},
    {},
    runCategories,
});

}  // namespace
}  // namespace qb::cli
