#pragma once
// clsClientAddrBkCatTxt: for a company, the indented text that shows where it
// stands in the address book: the chain of categories and main companies
// above it, one per line, each level further in.
//
//   clsClientAddrBkCatTxt text;
//   text.setCompanyIDNum(42);
//   text.generateCategoryText();
//   show(text.CategoryText());

#include <cstdint>
#include <string>

#include "data/link_list.h"

namespace qb {

class clsClientAddrBkCatTxt {
 public:
  // Kinds of the link list's rows.
  static constexpr int32_t kContact = 1;
  static constexpr int32_t kCompany = 2;
  static constexpr int32_t kCategory = 3;

  // 0 none, 1 contact, 2 company.
  int32_t clientType() const { return clientType_; }

  int32_t companyIDNum() const { return companyIDNum_; }
  // 0 or more makes the object a company's (clientType 2, no contact); below
  // 0 the id is -1 and a company's object falls to clientType 0.
  void setCompanyIDNum(int32_t id);
  int32_t contactIDNum() const { return contactIDNum_; }
  // 0 or more makes the object a contact's (clientType 1, no company); below
  // 0 the id is -1 and a contact's object falls to clientType 0.
  void setContactIDNum(int32_t id);

  // False at creation: the address book's main category is left out.
  bool ShowMainAddressBookCategory() const { return showMainAddressBookCategory_; }
  void setShowMainAddressBookCategory(bool show) { showMainAddressBookCategory_ = show; }

  const std::string& CategoryText() const { return categoryText_; }
  void setCategoryText(std::string text) { categoryText_ = std::move(text); }

  // Adds the company's chain to CategoryText, one line per level ending in
  // "\r\n" and indented four blanks more than the last; the nearest level
  // comes first. A contact's object (or none) leaves the text as it was. A
  // cycle in the category data ends after 100 passes.
  void generateCategoryText();

 private:
  // The next category up from a company, or -1; a branch company goes on
  // through its main company. Adds what it passes to the link list.
  int32_t getParentCategoryIDFromCompanyID(int32_t companyID);
  // The parent of a category, or -1; adds it to the link list.
  int32_t getParentCategoryIDFromCategoryNum(int32_t categoryID);

  int32_t parentFromCompany(int32_t companyID, int depth);
  // Sets the company's or the contact's id (type 2 or 1); setting one clears
  // the other.
  void setClientID(int32_t id, int32_t type, int32_t& own, int32_t& other);

  int32_t clientType_ = 0;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
  bool showMainAddressBookCategory_ = false;
  std::string categoryText_;
  LinkList linkList_;
};

}  // namespace qb
