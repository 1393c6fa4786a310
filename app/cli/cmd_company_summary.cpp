// quillbox company-summary: write a company's copy of its default contact's
// summary.

#include <string>

#include "app/cli/session.h"
#include "render/mod_format_addresses.h"
#include "services/runtime/conversions.h"

namespace qb::cli {
namespace {

// The company's ContactNotes as stored; "" when it has no notes row.
std::string storedContactNotes(SqliteDatabase& store, int32_t companyID) {
  RecordsetHandle notes = store.openRecordset(
      "SELECT CompaniesNotes.CompanyNum, CompaniesNotes.ContactNotes FROM CompaniesNotes "
      "WHERE CompanyNum=" +
          std::to_string(companyID) + ";",
      adOpenKeyset, adLockReadOnly);
  std::string text;
  if (store.moveFirstRecord(notes))
    text = toText(store.getFieldValue(notes, Variant("ContactNotes")));
  store.closeRecordset(notes);
  return text;
}

int runCompanySummary(Context& context) {
  int32_t companyID = context.args.requiredId("company");
  int32_t contactID = context.args.requiredId("contact");
  Session session(context);
  modFormatAddresses::saveCompanyContactRTF(companyID, contactID);
  context.out << storedContactNotes(session.store(), companyID) << "\n";
  return session.exitStatus();
}

const CommandRegistration kRegistration(Command{
    "company-summary",
    "write and print a company's copy of its default contact's RTF summary",
    "Usage: quillbox company-summary --db FILE --company ID --contact ID\n"
    "\n"
    "Writes the company's ContactNotes: the summary of the contact (which is also\n"
    "stored as the contact's BusinessNotes and copied to the other companies it is\n"
    "default contact of), or with --contact -1 the \"No Default Contact Selected.\"\n"
    "text. Then prints the company's ContactNotes as stored (lines end in CR LF),\n"
    "then a newline. A company without a notes row is left alone and prints an\n"
    "empty line.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --company ID    the company\n"
    "  --contact ID    the contact whose summary to copy; -1 for none\n",
    {"db", "company", "contact"},
    {},
    runCompanySummary,
    true,  // writes
});

}  // namespace
}  // namespace qb::cli
