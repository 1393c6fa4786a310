#include "links/link_reader.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "data/mod_database_functions.h"
#include "services/errors/procedure.h"
#include "services/quillbox/library_store.h"
#include "services/runtime/strings.h"

namespace qb::links {

namespace {

using quillboxLibrary::Recordset;

constexpr const char* kSelectLinks =
    "SELECT Documents.DocumentID, Documents.CompanyIDNum, Documents.ContactIDNum, "
    "Documents.DocCategoryNum, Documents.DocIconName, Documents.DocPath, "
    "Documents.DocHostComputerName FROM Documents";
constexpr const char* kSelectCategories =
    "SELECT DocCategories.DocCategoryID, DocCategories.DocCategoryNum, "
    "DocCategories.DocCategoryName FROM DocCategories";

// The statement for the scope: a company's or a contact's rows, or all.
std::string scopedSql(const char* select, const LinkScope& scope) {
  if (scope.companyID >= 0)
    return quillboxLibrary::keyedSql(std::string(select) + " WHERE CompanyIDNum = ",
                                     scope.companyID);
  if (scope.contactID >= 0)
    return quillboxLibrary::keyedSql(std::string(select) + " WHERE ContactIDNum = ",
                                     scope.contactID);
  return std::string(select) + ";";
}

// Reads links row by row, naming their clients and categories from what it
// read before.
class Reader {
 public:
  explicit Reader(DatabaseReference& db) : db_(db) {}

  void readCategories(const LinkScope& scope) {
    Recordset rs(db_, scopedSql(kSelectCategories, scope), adLockReadOnly);
    if (rs.moveFirst()) {
      while (!rs.isEnd()) {
        categories_[rs.id("DocCategoryID")] = {rs.id("DocCategoryNum"), rs.text("DocCategoryName")};
        rs.moveNext();
      }
    }
    rs.close();
  }

  // Every link of the statement's result.
  void readLinks(const std::string& sql, std::vector<LinkRecord>& links) {
    Recordset rs(db_, sql, adLockReadOnly);
    if (rs.moveFirst()) {
      while (!rs.isEnd()) {
        links.push_back(readRow(rs));
        rs.moveNext();
      }
    }
    rs.close();
  }

 private:
  struct Category {
    int32_t parent = -1;
    std::string name;
  };

  LinkRecord readRow(Recordset& rs) {
    LinkRecord link;
    link.documentID = rs.id("DocumentID");
    link.companyID = rs.id("CompanyIDNum");
    link.contactID = link.companyID >= 0 ? -1 : rs.id("ContactIDNum");
    link.categoryID = rs.id("DocCategoryNum");
    link.name = rs.text("DocIconName");
    link.path = rs.text("DocPath");
    link.computer = rs.text("DocHostComputerName");
    link.clientName = clientName(link);
    link.categoryPath = categoryPath(link.categoryID);
    return link;
  }

  const std::string& clientName(const LinkRecord& link) {
    static const std::string none;
    if (!link.hasClient()) return none;
    const std::pair<bool, int32_t> key{link.isCompany(),
                                       link.isCompany() ? link.companyID : link.contactID};
    auto found = names_.find(key);
    if (found != names_.end()) return found->second;
    std::string name =
        link.isCompany() ? modDatabaseFunctions::getCompanyNameFromCompanyID(link.companyID)
                         : modDatabaseFunctions::getContactNameDisplayed(link.contactID, -1, false);
    return names_.emplace(key, std::move(name)).first->second;
  }

  // The names from the top category down to this one; a parent loop or a
  // parent that is not there ends the path.
  const std::string& categoryPath(int32_t id) {
    auto found = paths_.find(id);
    if (found != paths_.end()) return found->second;
    std::vector<const std::string*> names;
    std::unordered_set<int32_t> seen;
    for (int32_t at = id; seen.insert(at).second;) {
      auto category = categories_.find(at);
      if (category == categories_.end()) break;
      names.push_back(&category->second.name);
      at = category->second.parent;
    }
    std::string path;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
      if (!path.empty()) path += kCategoryPathSeparator;
      path += **name;
    }
    return paths_.emplace(id, std::move(path)).first->second;
  }

  DatabaseReference& db_;
  std::unordered_map<int32_t, Category> categories_;
  std::unordered_map<int32_t, std::string> paths_;
  std::map<std::pair<bool, int32_t>, std::string> names_;
};

void sortForReports(std::vector<LinkRecord>& links) {
  struct Keyed {
    int kind;  // 0 company, 1 contact, 2 none
    std::string client, category, name;
    size_t index;
  };
  std::vector<Keyed> keys;
  keys.reserve(links.size());
  for (size_t i = 0; i < links.size(); ++i) {
    const LinkRecord& link = links[i];
    keys.push_back({link.isCompany()   ? 0
                    : link.hasClient() ? 1
                                       : 2,
                    UCase(link.clientName), UCase(link.categoryPath), UCase(link.name), i});
  }
  auto clientID = [&](const Keyed& key) {
    const LinkRecord& link = links[key.index];
    return link.isCompany() ? link.companyID : link.contactID;
  };
  std::sort(keys.begin(), keys.end(), [&](const Keyed& a, const Keyed& b) {
    if (a.kind != b.kind) return a.kind < b.kind;
    if (a.client != b.client) return a.client < b.client;
    if (clientID(a) != clientID(b)) return clientID(a) < clientID(b);
    if (a.category != b.category) return a.category < b.category;
    if (a.name != b.name) return a.name < b.name;
    return links[a.index].documentID < links[b.index].documentID;
  });
  std::vector<LinkRecord> sorted;
  sorted.reserve(links.size());
  for (const Keyed& key : keys) sorted.push_back(std::move(links[key.index]));
  links = std::move(sorted);
}

}  // namespace

std::vector<LinkRecord> readLinks(const LinkScope& scope) {
  Procedure proc("Orvanta.exe-linkHealth-readLinks");
  std::vector<LinkRecord> links;
  proc.step([&] {
    DatabaseReference& db = quillboxLibrary::database();
    if (!db.isConnected()) return;
    Reader reader(db);
    reader.readCategories(scope);
    reader.readLinks(scopedSql(kSelectLinks, scope), links);
  });
  sortForReports(links);
  return links;
}

bool readLink(int32_t documentID, LinkRecord& link) {
  Procedure proc("Orvanta.exe-linkHealth-readLink");
  bool found = false;
  proc.step([&] {
    DatabaseReference& db = quillboxLibrary::database();
    if (!db.isConnected()) return;
    std::vector<LinkRecord> rows;
    Reader first(db);
    first.readLinks(
        quillboxLibrary::keyedSql(std::string(kSelectLinks) + " WHERE DocumentID = ", documentID),
        rows);
    if (rows.empty()) return;
    // Again with the categories of its client, for the category path.
    const LinkScope scope{rows.front().companyID, rows.front().contactID};
    Reader named(db);
    named.readCategories(scope);
    rows.clear();
    named.readLinks(
        quillboxLibrary::keyedSql(std::string(kSelectLinks) + " WHERE DocumentID = ", documentID),
        rows);
    if (rows.empty()) return;
    link = std::move(rows.front());
    found = true;
  });
  return found;
}

}  // namespace qb::links
