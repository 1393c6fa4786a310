#include "app/common/client_roster.h"

#include <algorithm>
#include <functional>
#include <set>

#include "data/mod_database_functions.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"
#include "services/store/database_reference.h"

namespace qb::hosts {

namespace {

// Runs row for each row of a read-only query; the recordset is closed again
// also when row fails.
void forEachRow(DatabaseReference& store, const std::string& sql,
                const std::function<void(RecordsetHandle)>& row) {
  RecordsetHandle handle = store.openRecordset(sql, adOpenKeyset, adLockReadOnly);
  try {
    for (bool more = store.moveFirstRecord(handle); more && !store.isEndOfRecordset(handle);
         more = store.moveNextRecord(handle)) {
      row(handle);
    }
  } catch (...) {
    store.closeRecordset(handle);
    throw;
  }
  store.closeRecordset(handle);
}

int32_t idField(DatabaseReference& store, RecordsetHandle handle, const char* field) {
  Variant value = store.getFieldValue(handle, Variant(std::string(field)));
  return isBlankValue(value) ? -1 : CLng(value);
}

void sortByName(std::vector<Client>::iterator first, std::vector<Client>::iterator last) {
  std::stable_sort(first, last,
                   [](const Client& a, const Client& b) { return LCase(a.name) < LCase(b.name); });
}

}  // namespace

ClientRoster ClientRoster::load(DatabaseReference& store) {
  ClientRoster roster;
  if (!store.isConnected()) return roster;
  try {
    const int32_t firm = modDatabaseFunctions::getAccountantFirmID();
    forEachRow(store, "SELECT CompanyID, CompanyName FROM Companies;", [&](RecordsetHandle row) {
      const int32_t id = idField(store, row, "CompanyID");
      if (id == firm) return;
      roster.clients_.push_back(
          {true, id, CStr(store.getFieldValue(row, Variant(std::string("CompanyName"))))});
    });
    const size_t companies = roster.clients_.size();
    std::set<int32_t> users;
    forEachRow(store, "SELECT ContactID FROM AccountantEmployeeInfo;",
               [&](RecordsetHandle row) { users.insert(idField(store, row, "ContactID")); });
    forEachRow(store, "SELECT ContactID FROM Contacts;", [&](RecordsetHandle row) {
      const int32_t id = idField(store, row, "ContactID");
      if (users.count(id)) return;
      roster.clients_.push_back(
          {false, id, modDatabaseFunctions::getContactNameDisplayed(id, -1, false)});
    });
    sortByName(roster.clients_.begin(),
               roster.clients_.begin() + static_cast<std::ptrdiff_t>(companies));
    sortByName(roster.clients_.begin() + static_cast<std::ptrdiff_t>(companies),
               roster.clients_.end());
    forEachRow(store, "SELECT DISTINCT CompanyIDNum FROM Documents;", [&](RecordsetHandle row) {
      roster.companiesWithDocuments_.push_back(idField(store, row, "CompanyIDNum"));
    });
  } catch (const std::exception&) {
    // A store that can't be read leaves what was read so far.
  }
  return roster;
}

int ClientRoster::find(bool isCompany, int32_t id) const {
  for (int i = 0; i < size(); ++i) {
    if (clients_[static_cast<size_t>(i)].isCompany == isCompany &&
        clients_[static_cast<size_t>(i)].id == id) {
      return i;
    }
  }
  return -1;
}

int ClientRoster::firstWithDocuments() const {
  for (int i = 0; i < size(); ++i) {
    const Client& client = clients_[static_cast<size_t>(i)];
    if (client.isCompany &&
        std::count(companiesWithDocuments_.begin(), companiesWithDocuments_.end(), client.id)) {
      return i;
    }
  }
  return empty() ? -1 : 0;
}

}  // namespace qb::hosts
