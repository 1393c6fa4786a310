#include "services/quillbox/doc_quillbox_client_categories_class.h"

#include <algorithm>
#include <vector>

#include "services/controls/tree_view.h"
#include "services/errors/procedure.h"
#include "services/quillbox/client_category_rows.h"
#include "services/quillbox/client_main_category.h"
#include "services/quillbox/library_store.h"

namespace qb {

using namespace quillboxLibrary;

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
    rows = readClientCategories(db, companyIDNum_, contactIDNum_);
    // A client always has its main category: one that has none gets it now.
    if (ensureMainCategory(db, companyIDNum_, contactIDNum_, rows))
      rows = readClientCategories(db, companyIDNum_, contactIDNum_);
  });
  if (rows.empty()) return;

  proc.step([&] {
    std::vector<Node*> nodes;  // by place in the arranged list
    for (const PlacedCategory& placed : arrangeCategories(rows)) {
      const CategoryRow& row = placed.row;
      Node& node =
          placed.parentPlace < 0
              ? tree_->Nodes().Add(nullptr, tvwLast, row.key(), row.name, "OneClosed", "OneOpened")
              : tree_->Nodes().Add(nodes[placed.parentPlace], tvwChild, row.key(), row.name,
                                   "OneClosed", "OneOpened");
      node.setTag(row.key());
      if (placed.depth == 0) node.setExpanded(true);
      nodes.push_back(&node);
    }
  });

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
