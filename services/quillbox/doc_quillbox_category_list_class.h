#pragma once
// docQuillboxCategoryListClass: fills a combo box with the document
// categories of one client, for the category editor's parent choice. Entries
// follow the tree's order (client_category_rows.h), each indented by four
// blanks per level below the top, with the category's key as ItemData.

#include <cstdint>

namespace qb {

class ComboBox;

class docQuillboxCategoryListClass {
 public:
  // The combo to fill; kept by reference, it must outlive this object.
  void setComboBox(ComboBox& combo) { combo_ = &combo; }
  // The client whose categories are listed, -1 for none. A company of 0 or
  // more takes precedence over a contact.
  void setCompanyIDNum(int32_t value) { companyIDNum_ = value; }
  void setContactIDNum(int32_t value) { contactIDNum_ = value; }

  // Empties the combo and lists the client's categories; with no client the
  // combo stays empty. No entry is chosen. Without a combo set, a failure (91).
  void populateComboBox();

 private:
  ComboBox* combo_ = nullptr;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
};

}  // namespace qb
