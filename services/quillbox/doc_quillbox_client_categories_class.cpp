#include "services/quillbox/doc_quillbox_client_categories_class.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "services/controls/tree_view.h"
#include "services/errors/procedure.h"
#include "services/quillbox/library_store.h"
#include "services/runtime/strings.h"

namespace qb {

using namespace quillboxLibrary;

namespace {

struct CategoryRow {
  int32_t id = -1;
  int32_t parent = -1;
  std::string name;
  int32_t specialType = 0;
  int32_t sortOrder = 0;
  std::string key() const { return "Category:" + std::to_string(id); }
};

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

class TreeBuilder {
 public:
  TreeBuilder(TreeView& tree, std::vector<CategoryRow> rows) : tree_(tree), rows_(std::move(rows)) {
    std::sort(rows_.begin(), rows_.end(), siblingBefore);
    for (const auto& row : rows_) ids_.insert(row.id);
    for (size_t i = 0; i < rows_.size(); ++i) children_[rows_[i].parent].push_back(i);
  }

  void build() {
    for (size_t i = 0; i < rows_.size(); ++i)
      if (isTopLevel(rows_[i])) add(i, nullptr);
    // Rows in a parent loop were reached by none of the above.
    for (size_t i = 0; i < rows_.size(); ++i)
      if (!added_.count(i)) add(i, nullptr);
  }

 private:
  bool isTopLevel(const CategoryRow& row) const {
    return row.parent == row.id || !ids_.count(row.parent);
  }

  void add(size_t i, Node* parent) {
    if (!added_.insert(i).second) return;
    const CategoryRow& row = rows_[i];
    Node& node = parent == nullptr
                     ? tree_.Nodes().Add(nullptr, tvwLast, row.key(), row.name, "OneClosed", "OneOpened")
                     : tree_.Nodes().Add(parent, tvwChild, row.key(), row.name, "OneClosed",
                                         "OneOpened");
    node.setTag(row.key());
    if (parent == nullptr) node.setExpanded(true);
    auto children = children_.find(row.id);
    if (children == children_.end()) return;
    for (size_t child : children->second)
      if (rows_[child].id != row.id) add(child, &node);
  }

  TreeView& tree_;
  std::vector<CategoryRow> rows_;
  std::set<int32_t> ids_;
  std::map<int32_t, std::vector<size_t>> children_;  // by parent id, in sibling order
  std::set<size_t> added_;
};

}  // namespace

void DocQuillboxClientCategoriesClass::clearCategories() {
  Procedure proc("Orvanta.exe-DocQuillboxClientCategoriesClass-clearCategories");
  proc.step([&] {
    if (tree_ == nullptr)
      throw RuntimeError(err::kObjectRequired, "No category tree was set to clear.",
                         "DocQuillboxClientCategoriesClass");
    tree_->Nodes().Clear();
  });
}

void DocQuillboxClientCategoriesClass::populateCategories() {
  Procedure proc("Orvanta.exe-DocQuillboxClientCategoriesClass-populateCategories");
  std::vector<CategoryRow> rows;
  proc.step([&] {
    if (tree_ == nullptr)
      throw RuntimeError(err::kObjectRequired, "No category tree was set to fill.",
                         "DocQuillboxClientCategoriesClass");
    tree_->Nodes().Clear();
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    std::string sql;
    if (companyIDNum_ >= 0) {
      sql = keyedSql("SELECT DocCategories.* FROM DocCategories WHERE CompanyIDNum = ", companyIDNum_);
    } else if (contactIDNum_ >= 0) {
      sql = keyedSql("SELECT DocCategories.* FROM DocCategories WHERE ContactIDNum = ", contactIDNum_);
    } else {
      return;
    }
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
  });
  if (rows.empty()) return;

  proc.step([&] { TreeBuilder(*tree_, rows).build(); });

  proc.step([&] {
    Node* chosen = tree_->roots().empty() ? nullptr : tree_->roots().front();
    auto main = std::find_if(rows.begin(), rows.end(),
                             [](const CategoryRow& row) { return row.specialType == 1; });
    if (main != rows.end()) {
      if (Node* node = tree_->Nodes().find(main->key())) chosen = node;
    }
    if (chosen == nullptr) return;
    if (!chosen->Visible()) chosen->EnsureVisible();
    tree_->setSelectedItem(chosen);
  });

  proc.step([&] {
    if (tree_->SelectedItem() != nullptr) setupCategoryDocumentsDisplay.raise();
  });
}

}  // namespace qb
