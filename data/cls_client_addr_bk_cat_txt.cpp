#include "data/cls_client_addr_bk_cat_txt.h"

#include "data/mod_database_functions.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"

namespace qb {

void clsClientAddrBkCatTxt::setClientID(int32_t id, int32_t type, int32_t& own, int32_t& other) {
  if (id >= 0) {
    own = id;
    clientType_ = type;
    other = -1;
  } else {
    own = -1;
    if (clientType_ == type) clientType_ = 0;
  }
}

void clsClientAddrBkCatTxt::setCompanyIDNum(int32_t id) {
  setClientID(id, 2, companyIDNum_, contactIDNum_);
}

void clsClientAddrBkCatTxt::setContactIDNum(int32_t id) {
  setClientID(id, 1, contactIDNum_, companyIDNum_);
}

void clsClientAddrBkCatTxt::generateCategoryText() {
  // The trace keeps the class's shorter name.
  Procedure proc("Orvanta.exe-clsClientAddrBookCatText-generateCategoryText");
  std::string indent = "    ";
  if (clientType_ != 2) return;

  int32_t parent = -1;
  proc.step([&] { parent = getParentCategoryIDFromCompanyID(companyIDNum_); });
  proc.step([&] {
    // The limit guards against a cycle in the category data.
    for (int pass = 1; parent >= 0; ++pass) {
      parent = getParentCategoryIDFromCategoryNum(parent);
      if (parent < 1 || pass >= 100) break;
    }
  });

  if (linkList_.isEmpty()) return;
  proc.step([&] { linkList_.moveFirst(); });
  while (!proc.leaving() && !linkList_.isEnd()) {
    proc.step([&] {
      int32_t kind = CLng(linkList_.column(1));
      int32_t id = CLng(linkList_.column(2));
      std::string name;
      switch (kind) {
        case kCategory:
          // Asks about the category whose id is the kind (3), not about this
          // row's: when that one is the main category every category row is
          // left out.
          if (!showMainAddressBookCategory_ &&
              modDatabaseFunctions::isCategoryMainCategory(CLng(linkList_.column(1)))) {
            return;
          }
          name = modDatabaseFunctions::getCategoryNameFromCategoryID(id);
          break;
        case kCompany:
          name = modDatabaseFunctions::getCompanyNameFromCompanyID(id);
          break;
        case kContact:
          name = modDatabaseFunctions::getContactNameDisplayed(id, -1, false);
          break;
        default:
          return;
      }
      categoryText_ += indent + name + "\r\n";
      indent += "    ";
    });
    linkList_.moveNext();
  }
}

}  // namespace qb
