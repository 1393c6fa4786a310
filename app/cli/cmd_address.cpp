// quillbox address: the address block of a contact or a firm employee.

#include "app/cli/person_options.h"
#include "app/cli/session.h"
#include "render/mod_format_addresses.h"

namespace qb::cli {
namespace {

int runAddress(Context& context) {
  const Arguments& args = context.args;
  PersonOptions person = personOptions(args);
  bool convertRTF = args.has("rtf");
  bool includeAddress = args.has("address");
  bool includePhones = args.has("phones");
  bool includeEmail = args.has("email");
  bool includeBusinessName = args.has("business-name");
  Session session(context);
  std::string address = modFormatAddresses::createBusinessContactAddress(
      person.contactID, convertRTF, person.employeeID, person.companyID, includeAddress,
      includePhones, includeEmail, includeBusinessName);
  context.out << address << "\n";
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "address",
    "print the address block of a contact or a firm employee",
    "Usage: quillbox address --db FILE (--contact ID | --employee ID) [--company ID]\n"
    "                        [--rtf] [--address] [--phones] [--email] [--business-name]\n"
    "\n"
    "Prints the address block of a contact, or of a firm employee when --employee\n"
    "names one, exactly as it is composed (lines end in CR LF), then a newline.\n"
    "The contact's name always shows.\n"
    "\n"
    "  --db FILE          the client database\n"
    "  --contact ID       the contact (default -1, none)\n"
    "  --employee ID      the firm employee; takes precedence over --contact (default -1)\n"
    "  --company ID       for a contact: the company whose address an inheriting contact\n"
    "                     shows; for an employee, leave it out (-1) to show the firm's\n"
    "                     address to an inheriting employee (default -1)\n"
    "  --rtf              follow each line break with the RTF paragraph mark \\par\n"
    "  --address          include the business name and the street address lines\n"
    "  --phones           include Phone, Fax and Cell lines\n"
    "  --email            include the Email line\n"
    "  --business-name    include the business name\n"
    "\n"
    "An unknown person prints an empty line.\n",
    {"db", "contact", "employee", "company"},
    {"rtf", "address", "phones", "email", "business-name"},
    runAddress,
});

}  // namespace
}  // namespace qb::cli
