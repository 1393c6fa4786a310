// The look-ups behind the category text: from a company or a category to the
// next category up, adding each level passed to the link list. They trace as
// functions of modDatabaseFunctions.

#include "data/cls_client_addr_bk_cat_txt.h"
#include "data/module_support.h"
#include "data/query_shape.h"

namespace qb {

namespace {

// Branch companies are followed through their main companies by recursion;
// data in which a company is its own main company would never end, so past
// this depth the look-up fails as the platform does when it runs out of stack.
constexpr int kMaxCompanyDepth = 256;
constexpr int32_t kOutOfStackSpace = 28;

}  // namespace

int32_t clsClientAddrBkCatTxt::getParentCategoryIDFromCompanyID(int32_t companyID) {
  return parentFromCompany(companyID, 0);
}

int32_t clsClientAddrBkCatTxt::parentFromCompany(int32_t companyID, int depth) {
  Procedure proc(modDatabaseFunctions::traceName("getParentCategoryIDFromCompanyID"));
  int32_t result = -1;
  QueryShape query(proc, [&] { result = -1; });
  if (!query.connected()) return result;
  query.open(
      "SELECT Companies.CompanyID, Companies.CompanyNum, Companies.CategoryNum FROM Companies "
      "WHERE Companies.CompanyID = " +
          std::to_string(companyID) + ";",
      adLockOptimistic);
  if (query.moveFirst()) {
    int32_t categoryNum = -1;
    int32_t companyNum = -1;
    query.step([&] { categoryNum = query.idOrDefault("CategoryNum", -1); });
    if (categoryNum >= 0) {
      result = categoryNum;
      linkList_.add(kCategory, categoryNum);
    } else {
      query.step([&] { companyNum = query.idOrDefault("CompanyNum", -1); });
      if (companyNum >= 0) {
        // A branch: its main company's category is the one up.
        linkList_.add(kCompany, companyNum);
        bool withinDepth = query.step([&] {
          if (depth >= kMaxCompanyDepth) throw RuntimeError(kOutOfStackSpace, "Out of stack space");
        });
        int16_t position = 0;
        query.step([&] { position = query.store().getRecordPosition(query.handle()); });
        if (withinDepth && !proc.leaving()) result = parentFromCompany(companyNum, depth + 1);
        query.step([&] { query.store().setRecordPosition(query.handle(), position); });
      }
    }
  }
  query.close();
  return result;
}

int32_t clsClientAddrBkCatTxt::getParentCategoryIDFromCategoryNum(int32_t categoryID) {
  Procedure proc(modDatabaseFunctions::traceName("getParentCategoryIDFromCategoryNum"));
  int32_t result = -1;
  QueryShape query(proc, [&] { result = -1; });
  if (!query.connected()) return result;
  query.readFirstRow(
      "SELECT Categories.CategoryID, Categories.CategoryNum FROM Categories WHERE "
      "CategoryID = " +
          std::to_string(categoryID) + ";",
      [&] {
        int32_t categoryNum = query.idOrDefault("CategoryNum", -1);
        if (categoryNum < 0) return;
        result = categoryNum;
        linkList_.add(kCategory, categoryNum);
      });
  return result;
}

}  // namespace qb
