#include "services/quillbox/client_category_rows.h"

#include <algorithm>
#include <map>
#include <set>

#include "services/quillbox/library_store.h"
#include "services/runtime/strings.h"

namespace qb::quillboxLibrary {

namespace {

// Main first, then the two merge kinds, then the ordinary categories.
int kindRank(int32_t specialType) {
  return specialType >= 1 && specialType <= 3 ? specialType - 1 : 3;
}

bool siblingBefore(const CategoryRow& a, const CategoryRow& b) {
  if (kindRank(a.specialType) != kindRank(b.specialType))
    return kindRank(a.specialType) < kindRank(b.specialType);
  if (a.sortOrder != b.sortOrder) return a.sortOrder < b.sortOrder;
  std::string nameA = LCase(a.name), nameB = LCase(b.name);
  if (nameA != nameB) return nameA < nameB;
  return a.id < b.id;
}

class Arranger {
 public:
  explicit Arranger(std::vector<CategoryRow> rows) : rows_(std::move(rows)) {
    std::sort(rows_.begin(), rows_.end(), siblingBefore);
    for (const auto& row : rows_) ids_.insert(row.id);
    for (size_t i = 0; i < rows_.size(); ++i) children_[rows_[i].parent].push_back(i);
  }

  std::vector<PlacedCategory> arrange() {
    for (size_t i = 0; i < rows_.size(); ++i) {
      const CategoryRow& row = rows_[i];
      if (row.parent == row.id || !ids_.count(row.parent)) place(i, 0, -1);
    }
    // Rows in a parent loop were reached by none of the above.
    for (size_t i = 0; i < rows_.size(); ++i) place(i, 0, -1);
    return std::move(placed_);
  }

 private:
  void place(size_t i, int32_t depth, int32_t parentPlace) {
    if (!done_.insert(i).second) return;
    int32_t here = static_cast<int32_t>(placed_.size());
    placed_.push_back({rows_[i], depth, parentPlace});
    auto children = children_.find(rows_[i].id);
    if (children == children_.end()) return;
    for (size_t child : children->second) place(child, depth + 1, here);
  }

  std::vector<CategoryRow> rows_;
  std::set<int32_t> ids_;
  std::map<int32_t, std::vector<size_t>> children_;  // by parent id, in sibling order
  std::set<size_t> done_;
  std::vector<PlacedCategory> placed_;
};

}  // namespace

std::vector<CategoryRow> readClientCategories(DatabaseReference& db, int32_t companyID,
                                              int32_t contactID) {
  std::string sql;
  if (companyID >= 0) {
    sql = keyedSql("SELECT DocCategories.* FROM DocCategories WHERE CompanyIDNum = ", companyID);
  } else if (contactID >= 0) {
    sql = keyedSql("SELECT DocCategories.* FROM DocCategories WHERE ContactIDNum = ", contactID);
  } else {
    return {};
  }
  std::vector<CategoryRow> rows;
  Recordset rs(db, sql, adLockReadOnly);
  if (rs.moveFirst()) {
    while (!rs.isEnd()) {
      CategoryRow row;
      row.id = rs.id("DocCategoryID");
      row.parent = rs.id("DocCategoryNum");
      row.name = rs.text("DocCategoryName");
      row.specialType = readNumber(db, rs.handle(), "DocCategorySpecialType");
      row.sortOrder = readNumber(db, rs.handle(), "DocCategorySortOrder");
      rows.push_back(std::move(row));
      rs.moveNext();
    }
  }
  rs.close();
  return rows;
}

std::vector<PlacedCategory> arrangeCategories(std::vector<CategoryRow> rows) {
  return Arranger(std::move(rows)).arrange();
}

}  // namespace qb::quillboxLibrary
