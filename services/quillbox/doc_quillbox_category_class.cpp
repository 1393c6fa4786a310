#include "services/quillbox/doc_quillbox_category_class.h"

#include <functional>

#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/quillbox/library_store.h"

namespace qb {

using namespace quillboxLibrary;

namespace {
constexpr const char* kSelectCategory =
    "SELECT DocCategories.* FROM DocCategories WHERE DocCategoryID = ";
constexpr const char* kSelectCategoryDocuments =
    "SELECT Documents.* FROM Documents WHERE DocCategoryNum = ";
}  // namespace

void docQuillboxCategoryClass::readRow(DatabaseReference& db, RecordsetHandle handle) {
  categoryID_ = readId(db, handle, "DocCategoryID");
  parentCategoryNum_ = readId(db, handle, "DocCategoryNum");
  companyIDNum_ = readId(db, handle, "CompanyIDNum");
  contactIDNum_ = readId(db, handle, "ContactIDNum");
  categoryName_ = readText(db, handle, "DocCategoryName");
  categoryDescription_ = readText(db, handle, "DocCategoryDescription");
  synchFolder_ = readText(db, handle, "DocCategorySynchFolder");
  categorySpecialType_ = readNumber(db, handle, "DocCategorySpecialType");
}

void docQuillboxCategoryClass::loadCategory(bool& loadDocuments, bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-loadCategory");
  result = false;
  documents_.clear();
  position_ = 0;
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    Recordset rs(db, keyedSql(kSelectCategory, categoryID_), adLockReadOnly);
    if (!rs.moveFirst()) return;
    readRow(db, rs.handle());
    rs.close();
    result = true;
  });
  if (!result || !loadDocuments) return;

  bool started = false;
  // The files are asked for all at once (side by side on a share), then each
  // document reads its own answer.
  FileFactsOperation fileQueries;
  proc.step([&] { synchroniseFolder(); });
  proc.step([&] {
    DatabaseReference& db = database();
    Recordset rs(db, keyedSql(kSelectCategoryDocuments, categoryID_), adLockReadOnly);
    int32_t maximum = db.getRecordCount(rs.handle());
    std::vector<std::string> paths;
    if (rs.moveFirst()) {
      for (; !rs.isEnd(); rs.moveNext()) paths.push_back(rs.text("DocPath"));
    }
    fileFacts().prefetch(paths);
    started = true;
    startLoadDocumentProgress.raise(maximum);
    int32_t steps = 0;
    if (rs.moveFirst()) {
      while (!rs.isEnd()) {
        auto document = std::make_shared<docQuillboxDocumentClass>();
        try {
          document->readRecord(db, rs.handle(), true);
          documents_.push_back(document);
        } catch (const RuntimeError& e) {
          std::string message = "A document link of the category '" + categoryName_ +
                                "' could not be loaded: " + e.description();
          errorLoadDocument.raise(message);
        }
        incLoadDocumentProgress.raise(++steps);
        rs.moveNext();
      }
    }
    rs.close();
  });
  if (started) proc.step([&] { endLoadDocumentProgress.raise(); });
}

void docQuillboxCategoryClass::saveCategory() {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-saveCategory");
  // The fields this object writes, through set (a new row) or update.
  auto writeFields = [&](const std::function<void(const char*, const std::string&)>& write) {
    write("DocCategoryNum", keyText(parentCategoryNum_));
    write("CompanyIDNum", keyText(companyIDNum_));
    write("ContactIDNum", keyText(contactIDNum_));
    write("DocCategoryName", categoryName_);
    write("DocCategoryDescription", categoryDescription_);
    write("DocCategorySynchFolder", synchFolder_);
  };
  proc.step([&] {
    DatabaseReference& db = database();
    // Nothing may seem saved that was not: the editor stays open.
    if (!db.isConnected())
      throw RuntimeError(err::kStoreError,
                         "The category '" + categoryName_ +
                             "' can't be saved: the client database is not connected.",
                         "docQuillboxCategoryClass");
    if (categoryID_ < 0) {
      Recordset rs(db, keyedSql(kSelectCategory, -1), adLockOptimistic);
      db.addNewRecord(rs.handle());
      writeFields([&](const char* field, const std::string& value) { rs.set(field, value); });
      rs.set("DocCategorySpecialType", "0");
      db.updateRecord(rs.handle());
      categoryID_ = rs.id("DocCategoryID");
      categorySpecialType_ = 0;
      rs.close();
      return;
    }
    Recordset rs(db, keyedSql(kSelectCategory, categoryID_), adLockOptimistic);
    if (!rs.moveFirst())
      throw RuntimeError(
          err::kNoCurrentRecord,
          "There is no document category " + std::to_string(categoryID_) + " to save.",
          "docQuillboxCategoryClass");
    writeFields([&](const char* field, const std::string& value) { rs.update(field, value); });
    rs.close();
  });
}

void docQuillboxCategoryClass::moveFirstDocument(bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-moveFirstDocument");
  proc.step([&] {
    position_ = 0;
    result = !documents_.empty();
  });
}

void docQuillboxCategoryClass::moveNextDocument(bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-moveNextDocument");
  proc.step([&] {
    if (position_ < documents_.size()) ++position_;
    result = position_ < documents_.size();
  });
}

void docQuillboxCategoryClass::isEndOfDocuments(bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-isEndOfDocuments");
  proc.step([&] { result = position_ >= documents_.size(); });
}

std::shared_ptr<docQuillboxDocumentClass> docQuillboxCategoryClass::currentDocument() const {
  return position_ < documents_.size() ? documents_[position_] : nullptr;
}

}  // namespace qb
