// quillbox category-text: the address-book chain of categories and main
// companies above a company, one indented line per level.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "data/cls_client_addr_bk_cat_txt.h"

namespace qb::cli {
namespace {

int runCategoryText(Context& context) {
  int32_t companyID = context.args.requiredId("company");
  Session session(context);
  clsClientAddrBkCatTxt text;
  text.setCompanyIDNum(companyID);
  text.setShowMainAddressBookCategory(context.args.has("show-main"));
  text.generateCategoryText();
  // Each line already ends in a carriage return and a line feed.
  context.out << text.CategoryText();
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "category-text",
    "the indented chain of address-book categories above a company",
    "Usage: quillbox category-text --db FILE --company ID [--show-main]\n"
    "\n"
    "Prints the categories (and main companies of a branch) above the company,\n"
    "nearest first, one per line, each indented four blanks more than the last.\n"
    "Lines end in CR LF. Prints nothing when the company has no category.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --company ID    the company (Companies.CompanyID)\n"
    "  --show-main     keep the address book's main category in the text\n",
    {"db", "company"},
    {"show-main"},
    runCategoryText,
});

}  // namespace
}  // namespace qb::cli
