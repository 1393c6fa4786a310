#include "services/quillbox/client_main_category.h"

#include <algorithm>
#include <string>

#include "services/host/working_folder.h"
#include "services/quillbox/library_store.h"
#include "services/runtime/strings.h"
#include "services/util/file_utilities_class.h"

namespace qb::quillboxLibrary {

namespace {

constexpr const char* kMergeDocuments = "Merge Documents";

// The client's name as its main category shows it: a company's name; a
// contact's display name, else the first and last name. "" when the client
// is not there.
std::string clientName(DatabaseReference& db, int32_t companyID, int32_t contactID) {
  std::string name;
  if (companyID >= 0) {
    Recordset rs(db,
                 keyedSql("SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE "
                          "CompanyID = ",
                          companyID),
                 adLockReadOnly);
    if (rs.moveFirst()) name = Trim(rs.text("CompanyName"));
    rs.close();
    return name;
  }
  Recordset rs(db,
               keyedSql("SELECT Contacts.ContactID, Contacts.FirstName, Contacts.LastName, "
                        "Contacts.DisplayName FROM Contacts WHERE ContactID = ",
                        contactID),
               adLockReadOnly);
  if (rs.moveFirst()) {
    name = Trim(rs.text("DisplayName"));
    if (name.empty()) name = Trim(Trim(rs.text("FirstName")) + " " + Trim(rs.text("LastName")));
  }
  rs.close();
  return name;
}

bool clientExists(DatabaseReference& db, int32_t companyID, int32_t contactID) {
  const std::string sql =
      companyID >= 0
          ? keyedSql("SELECT Companies.CompanyID FROM Companies WHERE CompanyID = ", companyID)
          : keyedSql("SELECT Contacts.ContactID FROM Contacts WHERE ContactID = ", contactID);
  Recordset rs(db, sql, adLockReadOnly);
  const bool found = rs.moveFirst();
  rs.close();
  return found;
}

struct NewCategory {
  int32_t parent;
  std::string name;
  std::string description;
  std::string folder;
  int32_t specialType;
  int32_t sortOrder;
};

int32_t addCategory(DatabaseReference& db, int32_t companyID, int32_t contactID,
                    const NewCategory& category) {
  Recordset rs(db, keyedSql("SELECT DocCategories.* FROM DocCategories WHERE DocCategoryID = ", -1),
               adLockOptimistic);
  db.addNewRecord(rs.handle());
  rs.set("DocCategoryNum", keyText(category.parent));
  rs.set("CompanyIDNum", keyText(companyID >= 0 ? companyID : -1));
  rs.set("ContactIDNum", keyText(companyID >= 0 ? -1 : contactID));
  rs.set("DocCategoryName", category.name);
  rs.set("DocCategoryDescription", category.description);
  rs.set("DocCategorySynchFolder", category.folder);
  rs.set("DocCategorySpecialType", std::to_string(category.specialType));
  rs.set("DocCategorySortOrder", std::to_string(category.sortOrder));
  db.updateRecord(rs.handle());
  const int32_t id = rs.id("DocCategoryID");
  rs.close();
  return id;
}

}  // namespace

std::string mergeDocumentsFolder(const std::string& clientName) {
  WorkingFolderReference* folder = workingFolder();
  if (folder == nullptr) return "";
  const std::string data = folder->getDataFolder();
  if (Trim(data).empty()) return "";
  std::string name = clientName;
  for (char& c : name) {
    if (std::string("/\\:*?\"<>|").find(c) != std::string::npos || (c >= 0 && c < ' ')) c = '-';
  }
  while (!name.empty() && (name.back() == '.' || name.back() == ' ')) name.pop_back();
  if (name.empty()) name = "Client";
  fileUtilitiesClass files;
  return files.addTrailingBackslash(files.addTrailingBackslash(data) + kMergeDocuments) + name;
}

bool ensureMainCategory(DatabaseReference& db, int32_t companyID, int32_t contactID,
                        const std::vector<CategoryRow>& rows) {
  if (companyID < 0 && contactID < 0) return false;
  if (std::any_of(rows.begin(), rows.end(),
                  [](const CategoryRow& row) { return row.specialType == 1; }))
    return false;
  if (!clientExists(db, companyID, contactID)) return false;
  std::string name = clientName(db, companyID, contactID);
  if (name.empty())
    name = companyID >= 0 ? "Company " + std::to_string(companyID)
                          : "Contact " + std::to_string(contactID);
  const int32_t main =
      addCategory(db, companyID, contactID, {-1, name, "All documents of " + name, "", 1, 0});
  addCategory(db, companyID, contactID,
              {main, kMergeDocuments, "", mergeDocumentsFolder(name), 2, 1});
  // The categories that stood at the top go under the main one, the top of
  // the client's tree, where they can be dragged like any other.
  for (const PlacedCategory& placed : arrangeCategories(rows)) {
    if (placed.depth != 0) continue;
    Recordset rs(db,
                 keyedSql("SELECT DocCategories.DocCategoryID, DocCategories.DocCategoryNum FROM "
                          "DocCategories WHERE DocCategoryID = ",
                          placed.row.id),
                 adLockOptimistic);
    if (rs.moveFirst()) rs.update("DocCategoryNum", keyText(main));
    rs.close();
  }
  return true;
}

}  // namespace qb::quillboxLibrary
