#pragma once
// DocQuillboxClientCategoriesClass: fills the component's category tree with
// the document categories of one client (a company or a contact).
//
// The tree it builds:
//  - one node per category, Key and Tag "Category:<DocCategoryID>", Text the
//    category's name, Image "OneClosed" and SelectedImage "OneOpened" (keys
//    of the component's category image list);
//  - nesting and sibling order as client_category_rows.h tells;
//  - the top-level nodes expanded, the rest collapsed.
// After a fill the main category is selected (made visible), or the first
// top-level node when the client has none; then setupCategoryDocumentsDisplay
// fires, once per fill that left a node selected.

#include <cstdint>

#include "services/controls/event.h"

namespace qb {

class TreeView;

class DocQuillboxClientCategoriesClass {
 public:
  // The tree to fill; kept by reference, it must outlive this object.
  void setTreeView(TreeView& tree) { tree_ = &tree; }
  // The client whose categories are wanted, -1 for none. A company of 0 or
  // more takes precedence over a contact.
  void setCompanyIDNum(int32_t value) { companyIDNum_ = value; }
  void setContactIDNum(int32_t value) { contactIDNum_ = value; }

  // Empties the tree.
  void clearCategories();
  // Fills the tree afresh for the client set (see above). A client with no
  // main category gets one first (client_main_category.h). With no client,
  // or an id that names no client, the tree stays empty and nothing is
  // selected. Without a tree set, a failure (91).
  void populateCategories();

  Event<void()> setupCategoryDocumentsDisplay;

 private:
  TreeView* tree_ = nullptr;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
};

}  // namespace qb
