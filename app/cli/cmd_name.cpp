// quillbox name: a contact's display name as lists and titles show it.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "data/mod_database_functions.h"

namespace qb::cli {
namespace {

int runName(Context& context) {
  const Arguments& args = context.args;
  int32_t contactID = args.requiredId("contact");
  int32_t relatedID = args.id("related", -1);
  bool showRelationship = args.has("show-relationship");
  bool byType = args.has("type");
  int32_t type = args.number("type", 0);
  Session session(context);
  std::string name = byType ? modDatabaseFunctions::getContactNameDisplayedByType(
                                  type, contactID, relatedID, showRelationship)
                            : modDatabaseFunctions::getContactNameDisplayed(contactID, relatedID,
                                                                            showRelationship);
  context.out << name << "\n";
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "name",
    "a contact's display name, optionally with a family relationship",
    "Usage: quillbox name --db FILE --contact ID [--type N] [--related ID] [--show-relationship]\n"
    "\n"
    "Prints the name lists and titles show for the contact.\n"
    "\n"
    "  --db FILE              the client database\n"
    "  --contact ID           the contact (Contacts.ContactID)\n"
    "  --type N               2 given name first (\"Ann & Bob Smith\"), 3 surname first\n"
    "                         (\"Smith, Ann & Bob\"), anything else the stored display name;\n"
    "                         without it the module's display type (0: the display name)\n"
    "  --related ID           another contact; with --show-relationship the family\n"
    "                         relationship of the contact to it follows in brackets\n"
    "  --show-relationship    add the relationship to --related\n"
    "\n"
    "Prints an empty line when the contact does not exist.\n",
    {"db", "contact", "type", "related"},
    {"show-relationship"},
    runName,
});

}  // namespace
}  // namespace qb::cli
