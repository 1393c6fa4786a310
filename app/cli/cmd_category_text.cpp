// quillbox category-text: the address-book chain of categories and main
// companies above a company, one indented line per level.

#include <set>
#include <utility>

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "data/cls_client_addr_bk_cat_txt.h"
#include "services/runtime/conversions.h"

namespace qb::cli {
namespace {

// A parent column of one row: -1 when the row or its value is missing.
int32_t parentOf(SqliteDatabase& store, const std::string& sql, const char* column) {
  RecordsetHandle row = store.openRecordset(sql, adOpenKeyset, adLockReadOnly);
  int32_t parent = -1;
  if (store.moveFirstRecord(row)) {
    Variant value = store.getFieldValue(row, Variant(std::string(column)));
    if (!isBlankValue(value)) parent = CLng(value);
  }
  store.closeRecordset(row);
  return parent;
}

// The chain above the company, walked as the category text walks it; a row
// met twice is a loop, which the text would repeat a hundred times or recurse
// on without end. Throws a message that names the loop and what to correct.
void refuseLoops(SqliteDatabase& store, int32_t companyID) {
  std::set<std::pair<char, int32_t>> seen;
  std::string chain;
  auto visit = [&](char kind, int32_t id) {
    std::string name = std::string(kind == 'c' ? "company " : "category ") + std::to_string(id);
    chain += (chain.empty() ? "" : " -> ") + name;
    if (seen.insert({kind, id}).second) return;
    throw std::runtime_error(
        "The address book holds a loop above company " + std::to_string(companyID) + " (" + chain +
        "), so its category text never ends. Correct the " +
        (kind == 'c' ? "main company (CompanyNum)" : "parent category (CategoryNum)") + " of " +
        name + " or of another member of the loop, then try again.");
  };
  int32_t company = companyID;
  int32_t category = -1;
  while (company >= 0 && category < 0) {
    visit('c', company);
    std::string where =
        " FROM Companies WHERE Companies.CompanyID = " + std::to_string(company) + ";";
    category =
        parentOf(store, "SELECT Companies.CompanyID, Companies.CategoryNum" + where, "CategoryNum");
    if (category < 0)
      company =
          parentOf(store, "SELECT Companies.CompanyID, Companies.CompanyNum" + where, "CompanyNum");
  }
  // The text walks categories while their parent is at least 1.
  while (category >= 0) {
    visit('k', category);
    category =
        parentOf(store,
                 "SELECT Categories.CategoryID, Categories.CategoryNum FROM Categories WHERE "
                 "CategoryID = " +
                     std::to_string(category) + ";",
                 "CategoryNum");
    if (category < 1) break;
  }
}

int runCategoryText(Context& context) {
  int32_t companyID = context.args.requiredId("company");
  Session session(context);
  refuseLoops(session.store(), companyID);
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
    "Lines end in CR LF. Prints nothing when the company has no category. A loop\n"
    "in the address book (a category or company above itself) is reported and\n"
    "nothing is printed.\n"
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
