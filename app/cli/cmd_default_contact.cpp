// quillbox default-contact: the default contact of a company, repairing the
// company on the way.

#include "app/cli/session.h"
#include "render/mod_database_client_functions.h"

namespace qb::cli {
namespace {

int runDefaultContact(Context& context) {
  int32_t companyID = context.args.requiredId("company");
  Session session(context);
  context.out << modDatabaseClientFunctions::getDefaultContactIDFromCompanyID(companyID) << "\n";
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "default-contact",
    "print a company's default contact id, making its first link the default if needed",
    "Usage: quillbox default-contact --db FILE --company ID\n"
    "\n"
    "Prints the id of the company's default contact, -1 when the company has no\n"
    "contact links. A company that has links but no default is repaired: its\n"
    "first link becomes the default, the company's copy of the default contact's\n"
    "name, phone, fax and e-mail is refreshed, and the stored summaries are\n"
    "rewritten.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --company ID    the company\n",
    {"db", "company"},
    {},
    runDefaultContact,
    true,  // writes
});

}  // namespace
}  // namespace qb::cli
