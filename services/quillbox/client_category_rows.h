#pragma once
// A client's document categories as the library shows them, in the tree and
// in the parent combo of the category editor alike.
//
// Order: a category under its parent (DocCategoryNum); one whose parent is
// none, is not one of this client's, or lies in a parent loop stands at the
// top. Siblings: the main category, then the merge documents folder, then
// the merge shortcut list, then the ordinary ones; within a kind by
// DocCategorySortOrder (blank counts as 0), then by name ignoring case, then
// by key.

#include <cstdint>
#include <string>
#include <vector>

#include "services/store/database_reference.h"

namespace qb::quillboxLibrary {

struct CategoryRow {
  int32_t id = -1;
  int32_t parent = -1;
  std::string name;
  int32_t specialType = 0;
  int32_t sortOrder = 0;
  // The node key "Category:<id>".
  std::string key() const { return "Category:" + std::to_string(id); }
};

// A category in display order: its depth (0 at the top) and the place of its
// parent in the same list (-1 at the top).
struct PlacedCategory {
  CategoryRow row;
  int32_t depth = 0;
  int32_t parentPlace = -1;
};

// The categories of the company (when 0 or more), else of the contact (when
// 0 or more), in the store's order; empty for no client. The caller has
// tested isConnected.
std::vector<CategoryRow> readClientCategories(DatabaseReference& db, int32_t companyID,
                                              int32_t contactID);
// The rows depth-first in display order, parents before their children.
std::vector<PlacedCategory> arrangeCategories(std::vector<CategoryRow> rows);

}  // namespace qb::quillboxLibrary
