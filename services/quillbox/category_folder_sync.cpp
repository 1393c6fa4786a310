// The synchronised folder of a category: the editor promises that the
// category shows "all the file contents" of the folder, so each time the
// category's documents are loaded, every file directly in the folder that the
// category does not link yet gets a link, as if the user had added it (this
// computer's name, the signed-in user, now).
//
// Only the files directly in the folder count: sub-folders are not walked.
// A client's folders nest (the main category's folder holds the folders of
// the categories below it), so walking them would link every file of the
// client again into the category above; a sub-folder is synchronised by a
// category of its own. Hidden files (a name that starts with "."), backups
// ("~" at the end) and office owner files ("~$" at the start) are passed
// over, as the desktop's file manager hides them.
//
// Nothing is ever moved or deleted, on disk or in the store: a link whose file
// left the folder stays and shows as missing. The folder is read through the
// file-facts service, so a folder on a share that does not answer adds
// nothing after the bounded wait, and a folder that is not there or can't be
// read adds nothing.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "services/errors/procedure.h"
#include "services/files/file_facts_service.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/quillbox/library_store.h"
#include "services/runtime/strings.h"
#include "services/util/file_utilities_class.h"

namespace qb {

using namespace quillboxLibrary;

namespace {

bool passedOver(const std::string& name) {
  return name.starts_with('.') || name.starts_with("~$") || name.ends_with('~');
}

}  // namespace

void docQuillboxCategoryClass::synchroniseFolder() {
  Procedure proc("Orvanta.exe-docQuillboxCategoryClass-synchroniseFolder");
  if (Trim(synchFolder_).empty()) return;
  fileUtilitiesClass files;
  std::string folder;
  std::vector<std::string> newFiles;
  proc.step([&] {
    folder = files.normalizeFilePath(Trim(synchFolder_));
    FolderListing listing = fileFacts().listFolder(folder);
    if (!listing.present()) return;
    DatabaseReference& db = database();
    if (!db.isConnected()) return;
    std::set<std::string> linked;
    Recordset rs(db,
                 keyedSql("SELECT Documents.DocumentID, Documents.DocPath FROM Documents WHERE "
                          "DocCategoryNum = ",
                          categoryID_),
                 adLockReadOnly);
    if (rs.moveFirst()) {
      for (; !rs.isEnd(); rs.moveNext()) linked.insert(files.normalizeFilePath(rs.text("DocPath")));
    }
    rs.close();
    const std::string base = files.addTrailingBackslash(folder);
    for (const FolderEntry& entry : listing.entries) {
      if (!entry.isFile || passedOver(entry.name)) continue;
      if (!linked.count(base + entry.name)) newFiles.push_back(base + entry.name);
    }
    // In the order of the names, as a file manager lists them.
    std::sort(newFiles.begin(), newFiles.end(), [](const std::string& a, const std::string& b) {
      const std::string foldedA = LCase(a), foldedB = LCase(b);
      return foldedA != foldedB ? foldedA < foldedB : a < b;
    });
  });
  // One step per file: a file that can't be linked does not stop the others.
  for (std::string& path : newFiles) {
    proc.step([&] {
      docQuillboxDocumentClass document;
      int32_t category = categoryID_;
      document.addDocument(path, category);
    });
  }
}

}  // namespace qb
