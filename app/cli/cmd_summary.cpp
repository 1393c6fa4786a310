// quillbox summary: compose and store the RTF summary of a contact or a firm
// employee.

#include "app/cli/person_options.h"
#include "app/cli/session.h"
#include "render/mod_format_addresses.h"

namespace qb::cli {
namespace {

int runSummary(Context& context) {
  const Arguments& args = context.args;
  PersonOptions person = personOptions(args);
  Session session(context);
  std::string text = modFormatAddresses::saveContactBusinessRTF(
      person.contactID, person.employeeID, person.companyID, args.has("skip-other-companies"));
  context.out << text << "\n";
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "summary",
    "compose, store and print the RTF summary of a contact or a firm employee",
    "Usage: quillbox summary --db FILE (--contact ID | --employee ID) [--company ID]\n"
    "                        [--skip-other-companies]\n"
    "\n"
    "Composes the rich-text summary of a contact, or of a firm employee when\n"
    "--employee names one, stores it as the person's BusinessNotes and prints it\n"
    "exactly as stored (lines end in CR LF), then a newline. For a contact, the\n"
    "copy in the ContactNotes of every company it is default contact of is\n"
    "refreshed too; the contact's BusinessNotes then hold the view of the last\n"
    "such company other than --company.\n"
    "\n"
    "  --db FILE                 the client database\n"
    "  --contact ID              the contact (default -1, none)\n"
    "  --employee ID             the firm employee; takes precedence (default -1)\n"
    "  --company ID              for a contact: the company whose view the summary\n"
    "                            takes, its Default Contact line and inherited address;\n"
    "                            for an employee, leave it out (-1) to show the firm's\n"
    "                            address to an inheriting employee (default -1)\n"
    "  --skip-other-companies    leave the other companies' ContactNotes alone\n"
    "\n"
    "The insurance number is labelled SIN with --country 1 and SSN otherwise.\n"
    "An unknown person prints an empty line and writes nothing.\n",
    {"db", "contact", "employee", "company"},
    {"skip-other-companies"},
    runSummary,
    true,  // writes
});

}  // namespace
}  // namespace qb::cli
