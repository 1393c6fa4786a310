#include "services/quillbox/doc_quillbox_document_class.h"

#include "services/errors/procedure.h"
#include "services/host/clock.h"
#include "services/host/locale_reference.h"
#include "services/quillbox/file_icons.h"
#include "services/quillbox/library_store.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb {

using namespace quillboxLibrary;

namespace {

constexpr const char* kSelectDocument = "SELECT Documents.* FROM Documents WHERE DocumentID = ";

// The file's name without its extension, as DocName holds it.
std::string nameWithoutExtension(const fileUtilitiesClass& files, const std::string& fileName) {
  return fileName.substr(0, fileName.size() - files.getFileExtension(fileName).size());
}

}  // namespace

void docQuillboxDocumentClass::setIcons(const std::string& iconName, const std::string& emblem) {
  smallIconPicture_ = Picture::themeIcon(iconName, kSmallIconSize).withEmblem(emblem);
  largeIconPicture_ = Picture::themeIcon(iconName, kLargeIconSize).withEmblem(emblem);
}

void docQuillboxDocumentClass::readFileFacts() {
  fileUtilitiesClass files;
  bool isFolder = false;
  fileAccessState_ = files.accessState(documentPath_, &isFolder);
  const std::string typeIcon = iconNameForExtension(files.getFileExtension(documentPath_));
  if (fileAccessState_ != FileAccessState::reachable) {
    setIcons(typeIcon, kBrokenLinkEmblem);
  } else {
    setIcons(isFolder ? kFolderIcon : typeIcon);
  }
}

void docQuillboxDocumentClass::readRecord(DatabaseReference& db, RecordsetHandle handle,
                                          bool loadAll) {
  documentID_ = readId(db, handle, "DocumentID");
  docCategoryNum_ = readId(db, handle, "DocCategoryNum");
  companyIDNum_ = readId(db, handle, "CompanyIDNum");
  contactIDNum_ = readId(db, handle, "ContactIDNum");
  documentName_ = readText(db, handle, "DocIconName");
  documentPath_ = readText(db, handle, "DocPath");
  hostComputerName_ = readText(db, handle, "DocHostComputerName");
  dateAdded_ = readDate(db, handle, "DocDateAdded");
  addedByUserID_ = readId(db, handle, "DocAddedByUserIDNum");
  if (loadAll) {
    readFileFacts();
  } else {
    setIcons(iconNameForExtension(fileUtilitiesClass().getFileExtension(documentPath_)));
  }
}

void docQuillboxDocumentClass::loadDocument(bool& loadAll, bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxDocumentClass-loadDocument");
  result = false;
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    Recordset rs(db, keyedSql(kSelectDocument, documentID_), adLockReadOnly);
    if (!rs.moveFirst()) return;
    readRecord(db, rs.handle(), loadAll);
    rs.close();
    result = true;
  });
}

void docQuillboxDocumentClass::addDocument(std::string& path, int32_t& category) {
  Procedure proc("Orvanta.exe-docQuillboxDocumentClass-addDocument");
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    // The link belongs to the client whose category it goes into.
    int32_t company = -1, contact = -1;
    {
      Recordset owner(
          db,
          keyedSql("SELECT DocCategories.DocCategoryID, DocCategories.CompanyIDNum, "
                   "DocCategories.ContactIDNum FROM DocCategories WHERE DocCategoryID = ",
                   category),
          adLockReadOnly);
      if (!owner.moveFirst())
        throw RuntimeError(err::kNoCurrentRecord,
                           "There is no document category " + std::to_string(category) +
                               " to link the file '" + path + "' into.",
                           "docQuillboxDocumentClass");
      company = owner.id("CompanyIDNum");
      contact = owner.id("ContactIDNum");
      owner.close();
    }

    fileUtilitiesClass files;
    std::string fullPath = files.normalizeFilePath(path);
    std::string fileName = files.getFileNameFromPath(fullPath);
    std::string host = files.getComputerName();
    // The clock service, so a host that fixes today (the tool's --today)
    // stamps that date.
    double added = hostNow();
    LocaleReference* userLocale = locale();
    int32_t user = userLocale != nullptr ? userLocale->getCurrentUserID() : -1;

    Recordset rs(db, keyedSql(kSelectDocument, -1), adLockOptimistic);
    db.addNewRecord(rs.handle());
    rs.set("CompanyIDNum", keyText(company));
    rs.set("ContactIDNum", keyText(contact));
    rs.set("DocCategoryNum", keyText(category));
    rs.set("DocIconName", fileName);
    rs.set("DocName", nameWithoutExtension(files, fileName));
    rs.set("DocFileName", fileName);
    rs.set("DocPath", fullPath);
    rs.set("DocHostComputerName", host);
    rs.set("DocDateAdded", dateText(added));
    rs.set("DocAddedByUserIDNum", keyText(user));
    db.updateRecord(rs.handle());
    documentID_ = rs.id("DocumentID");
    rs.close();

    docCategoryNum_ = category;
    companyIDNum_ = company;
    contactIDNum_ = contact;
    documentName_ = fileName;
    documentPath_ = fullPath;
    hostComputerName_ = host;
    dateAdded_ = Variant::date(added);
    addedByUserID_ = user;
    readFileFacts();
  });
}

void docQuillboxDocumentClass::saveDocument(bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxDocumentClass-saveDocument");
  result = false;
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    Recordset rs(db, keyedSql(kSelectDocument, documentID_), adLockOptimistic);
    if (!rs.moveFirst()) return;
    fileUtilitiesClass files;
    std::string fileName = files.getFileNameFromPath(documentPath_);
    rs.update("DocIconName", documentName_);
    rs.update("DocName", nameWithoutExtension(files, fileName));
    rs.update("DocFileName", fileName);
    rs.update("DocPath", documentPath_);
    rs.close();
    result = true;
  });
}

void docQuillboxDocumentClass::deleteDocument(int32_t& id, bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxDocumentClass-deleteDocument");
  result = false;
  proc.step([&] {
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    Recordset rs(db, keyedSql("SELECT Documents.DocumentID FROM Documents WHERE DocumentID = ", id),
                 adLockOptimistic);
    if (!rs.moveFirst()) return;
    result = db.deleteRecord(rs.handle());
    rs.close();
  });
}

void docQuillboxDocumentClass::isMergeDocument(std::string& extension, bool& result) {
  Procedure proc("Orvanta.exe-docQuillboxDocumentClass-isMergeDocument");
  result = false;
  proc.step([&] {
    std::string text = Trim(extension);
    if (!text.starts_with('.')) text = "." + text;
    result = equalsText(text, kMergeDocumentExtension);
  });
}

}  // namespace qb
