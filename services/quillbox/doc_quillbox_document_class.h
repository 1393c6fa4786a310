#pragma once
// docQuillboxDocumentClass: one document link, a row of Documents that points
// at a file which stays where it is. The object reads and writes its row and
// reads the facts of the file it points at.
//
// Columns of the row: DocIconName holds the display name (the name shown
// under the document's icon, which the find dialog searches as the display
// name), DocName the file's name without folder and extension, DocFileName
// the file's name with its extension, DocPath the full path; CompanyIDNum or ContactIDNum the
// client (the other Null).
//
// Icons: a document always has both pictures once loaded or added, icons of
// the desktop's theme by the file's extension ("application-pdf",
// "x-office-spreadsheet", "folder" for a folder), with the broken-link
// emblem (kBrokenLinkEmblem) over the type's icon when its file can't be
// reached.
//
// Merge documents: the host's own merge documents are files with the
// extension ".omd"; isMergeDocument tells them.

#include <cstdint>
#include <string>

#include "services/controls/picture.h"
#include "services/runtime/variant.h"
#include "services/store/database_reference.h"
#include "services/util/file_utilities_class.h"

namespace qb {

class docQuillboxDocumentClass {
 public:
  // The extension of the host's merge documents.
  static constexpr const char* kMergeDocumentExtension = ".omd";

  int32_t documentID() const { return documentID_; }
  void setDocumentID(int32_t value) { documentID_ = value; }
  int32_t docCategoryNum() const { return docCategoryNum_; }
  void setDocCategoryNum(int32_t value) { docCategoryNum_ = value; }
  const std::string& documentPath() const { return documentPath_; }
  void setDocumentPath(std::string value) { documentPath_ = std::move(value); }
  const std::string& documentName() const { return documentName_; }
  void setDocumentName(std::string value) { documentName_ = std::move(value); }

  // The client the link belongs to (-1 for none), read from the row.
  int32_t companyIDNum() const { return companyIDNum_; }
  int32_t contactIDNum() const { return contactIDNum_; }
  // The computer the link was added on.
  const std::string& hostComputerName() const { return hostComputerName_; }
  // When the link was added: a Date Variant, Null when the row has none.
  const Variant& dateAdded() const { return dateAdded_; }
  // The user who added the link, -1 when unknown.
  int32_t addedByUserID() const { return addedByUserID_; }
  // 16- and 32-pixel icons; empty pictures until the document is loaded.
  const Picture& smallIconPicture() const { return smallIconPicture_; }
  const Picture& largeIconPicture() const { return largeIconPicture_; }
  // Whether the file could be reached at the last load (with loadAll) or
  // add; reachable until then.
  FileAccessState fileAccessState() const { return fileAccessState_; }

  // Reads the row of documentID. With loadAll also the file's facts: whether
  // it can be reached, and the icons by its type or the warning icon; without,
  // the icons follow the extension of the path alone. result: True when the row was found; with
  // no row the object keeps what it held.
  void loadDocument(bool& loadAll, bool& result);
  // Makes a new link to the file in the category, for the client the
  // category belongs to: the file's name as display name, the full path, this
  // computer's name, now as the date added and the signed-in user. The new
  // key goes to documentID and the object holds the new link. A category
  // with no row is a failure (3021): no link is made.
  void addDocument(std::string& path, int32_t& category);
  // Writes documentName and documentPath to the row of documentID (and the
  // file names that follow the path). result: True when the row was
  // there.
  void saveDocument(bool& result);
  // Removes the link with that key; the file on disk stays. result: True
  // when a row was removed.
  void deleteDocument(int32_t& id, bool& result);
  // True for the extension of the host's merge documents, ".omd", in any
  // case, with or without the dot (as getFileExtension gives it).
  void isMergeDocument(std::string& extension, bool& result);

  // Fills the object from the current row of a recordset over Documents
  // (all columns), as loadDocument does; the category's load uses it for
  // each row of its walk. Fails as the field reads do.
  void readRecord(DatabaseReference& db, RecordsetHandle handle, bool loadAll);

 private:
  // Takes the state of the file at documentPath and the icons that follow.
  void readFileFacts();
  void setIcons(const std::string& iconName, const std::string& emblem = "");

  int32_t documentID_ = -1;
  int32_t docCategoryNum_ = -1;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
  std::string documentPath_;
  std::string documentName_;
  std::string hostComputerName_;
  Variant dateAdded_ = Variant::null();
  int32_t addedByUserID_ = -1;
  Picture smallIconPicture_;
  Picture largeIconPicture_;
  FileAccessState fileAccessState_ = FileAccessState::reachable;
};

}  // namespace qb
