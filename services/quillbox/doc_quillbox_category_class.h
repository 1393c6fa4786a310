#pragma once
// docQuillboxCategoryClass: one document category of a client, a row of
// DocCategories, and the list of its document links.
//
// Special types (DocCategorySpecialType): 0 ordinary, 1 the client's main
// category, 2 the category tied to the folder of the client's merge
// documents, 3 the category that lists shortcuts to them. Types 2 and 3 both
// hold merge documents.
//
// The synchronised folder (synchFolder): when the documents are loaded, each
// file directly in that folder that the category does not link yet gets a
// link first (see category_folder_sync.cpp). Sub-folders are not walked.
//
// Loading the documents fires the progress events: start with the number of
// document rows, one step per document row (whether it loaded or not, so the
// bar ends full), and end once the walk is over. A row that can't be read
// fires errorLoadDocument with a message and the load goes on.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "services/controls/event.h"
#include "services/quillbox/doc_quillbox_document_class.h"

namespace qb {

class docQuillboxCategoryClass {
 public:
  int32_t categoryID() const { return categoryID_; }
  void setCategoryID(int32_t value) { categoryID_ = value; }
  int32_t companyIDNum() const { return companyIDNum_; }
  void setCompanyIDNum(int32_t value) { companyIDNum_ = value; }
  int32_t contactIDNum() const { return contactIDNum_; }
  void setContactIDNum(int32_t value) { contactIDNum_ = value; }
  int32_t parentCategoryNum() const { return parentCategoryNum_; }
  void setParentCategoryNum(int32_t value) { parentCategoryNum_ = value; }
  const std::string& categoryName() const { return categoryName_; }
  void setCategoryName(std::string value) { categoryName_ = std::move(value); }
  const std::string& categoryDescription() const { return categoryDescription_; }
  void setCategoryDescription(std::string value) { categoryDescription_ = std::move(value); }
  const std::string& synchFolder() const { return synchFolder_; }
  void setSynchFolder(std::string value) { synchFolder_ = std::move(value); }
  // True for special types 2 and 3.
  bool holdsMergeDocuments() const {
    return categorySpecialType_ == 2 || categorySpecialType_ == 3;
  }
  // See the special types above; 0 until a row was loaded.
  int32_t categorySpecialType() const { return categorySpecialType_; }

  // Reads the row of categoryID into the fields. With loadDocuments True
  // also links the new files of the synchronised folder, then builds the
  // list of its document links (in the store's order, each with its file's
  // facts), firing the progress events. The earlier list is
  // dropped in every case, so without loadDocuments the walk is empty.
  // result: True when the row was found; with no row the fields stay.
  void loadCategory(bool& loadDocuments, bool& result);
  // Writes the fields: a categoryID below 0 adds a new row (an ordinary
  // category) and takes its new key; otherwise the row of categoryID is
  // updated. An update of a key with no row is a failure (3021), and so is
  // a save while the store is not connected (3001).
  void saveCategory();
  // Deletes the category with its document links. With includeSubCategories
  // its sub-categories at every depth go too, with their links; without, its
  // direct sub-categories move up to its parent. The linked files stay.
  // result: True when the category's own row was deleted.
  void deleteCategory(bool& includeSubCategories, bool& result);

  // The walk over the loaded documents.
  void moveFirstDocument(bool& result);  // True when there is a first one
  void moveNextDocument(bool& result);   // True when the new position is one
  void isEndOfDocuments(bool& result);   // True past the last (and when empty)
  // The document at the position; null past the end.
  std::shared_ptr<docQuillboxDocumentClass> currentDocument() const;

  Event<void(int32_t& maximum)> startLoadDocumentProgress;
  // The argument is the number of steps done so far.
  Event<void(int32_t step)> incLoadDocumentProgress;
  Event<void()> endLoadDocumentProgress;
  Event<void(std::string& message)> errorLoadDocument;

 private:
  void readRow(DatabaseReference& db, RecordsetHandle handle);
  // Links the files of synchFolder that the category does not link yet.
  void synchroniseFolder();

  int32_t categoryID_ = -1;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
  int32_t parentCategoryNum_ = -1;
  std::string categoryName_;
  std::string categoryDescription_;
  std::string synchFolder_;
  int32_t categorySpecialType_ = 0;
  std::vector<std::shared_ptr<docQuillboxDocumentClass>> documents_;
  size_t position_ = 0;
};

}  // namespace qb
