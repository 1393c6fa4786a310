#include "services/quillbox/doc_quillbox_category_list_class.h"

#include "services/controls/combo_box.h"
#include "services/errors/procedure.h"
#include "services/quillbox/client_category_rows.h"
#include "services/quillbox/library_store.h"

namespace qb {

using namespace quillboxLibrary;

void docQuillboxCategoryListClass::populateComboBox() {
  Procedure proc("Orvanta.exe-docQuillboxCategoryListClass-populateComboBox");
  proc.step([&] {
    if (combo_ == nullptr)
      throw RuntimeError(err::kObjectRequired, "No combo box was set to fill.",
                         "docQuillboxCategoryListClass");
    combo_->Clear();
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    for (const PlacedCategory& placed :
         arrangeCategories(readClientCategories(db, companyIDNum_, contactIDNum_))) {
      combo_->AddItem(std::string(4 * static_cast<size_t>(placed.depth), ' ') + placed.row.name);
      combo_->setItemData(combo_->NewIndex(), placed.row.id);
    }
  });
}

}  // namespace qb
