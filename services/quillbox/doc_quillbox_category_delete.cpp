// Deleting a category: its sub-categories and the document links inside go
// with it; the linked files stay where they are.

#include <set>
#include <vector>

#include "services/errors/procedure.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/library_store.h"

namespace qb {

using namespace quillboxLibrary;

namespace {

constexpr const char* kSelectChildren =
    "SELECT DocCategories.DocCategoryID, DocCategories.DocCategoryNum FROM DocCategories WHERE "
    "DocCategoryNum = ";

constexpr const char* kSelectCategoryParent =
    "SELECT DocCategories.DocCategoryID, DocCategories.DocCategoryNum FROM DocCategories WHERE "
    "DocCategoryID = ";

// The category and every category under it, the deepest first, so that no
// row is deleted before the rows that point at it. A parent loop in the
// store is walked once.
void collectSubtree(DatabaseReference& db, int32_t id, std::set<int32_t>& seen,
                    std::vector<int32_t>& out) {
  if (!seen.insert(id).second) return;
  std::vector<int32_t> children;
  Recordset rs(db, keyedSql(kSelectChildren, id), adLockReadOnly);
  if (rs.moveFirst()) {
    while (!rs.isEnd()) {
      children.push_back(rs.id("DocCategoryID"));
      rs.moveNext();
    }
  }
  rs.close();
  for (int32_t child : children) collectSubtree(db, child, seen, out);
  out.push_back(id);
}

// Deletes every row the statement selects; the count deleted.
int32_t deleteRows(DatabaseReference& db, const std::string& sql) {
  int32_t deleted = 0;
  Recordset rs(db, sql, adLockOptimistic);
  if (rs.moveFirst()) {
    while (!rs.isEnd()) {
      if (db.deleteRecord(rs.handle())) ++deleted;
      rs.moveNext();
    }
  }
  rs.close();
  return deleted;
}

}  // namespace

void docQuillboxCategoryClass::deleteCategory(bool& includeSubCategories, bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-deleteCategory");
  result = false;
  std::vector<int32_t> doomed;
  int32_t parent = -1;
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    Recordset rs(db, keyedSql(kSelectCategoryParent, categoryID_), adLockReadOnly);
    if (rs.moveFirst()) parent = rs.id("DocCategoryNum");
    rs.close();
    if (includeSubCategories) {
      std::set<int32_t> seen;
      collectSubtree(db, categoryID_, seen, doomed);
    } else {
      doomed.push_back(categoryID_);
    }
  });

  if (!includeSubCategories && !doomed.empty()) {
    // The direct sub-categories stay, under the deleted category's parent.
    proc.step([&] {
      DatabaseReference& db = database();
      Recordset rs(db, keyedSql(kSelectChildren, categoryID_), adLockOptimistic);
      if (rs.moveFirst()) {
        while (!rs.isEnd()) {
          rs.update("DocCategoryNum", keyText(parent));
          rs.moveNext();
        }
      }
      rs.close();
    });
  }

  // One step per category: after a failure the user may go on with the next.
  for (int32_t id : doomed) {
    proc.step([&] {
      DatabaseReference& db = database();
      deleteRows(db, keyedSql("SELECT Documents.DocumentID, Documents.DocCategoryNum FROM "
                              "Documents WHERE DocCategoryNum = ",
                              id));
      int32_t deleted = deleteRows(db, keyedSql("SELECT DocCategories.DocCategoryID FROM "
                                                "DocCategories WHERE DocCategoryID = ",
                                                id));
      if (id == categoryID_) result = deleted > 0;
    });
  }
}

}  // namespace qb
