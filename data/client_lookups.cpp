// Look-ups from one id to another id or to a name: one query each, the first
// row's value, the default when there is no row.

#include <functional>

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "data/query_shape.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb::modDatabaseFunctions {

namespace {

// How a look-up turns its field into the result.
enum class Read {
  Id,            // the value converted to a number
  IdBlankFirst,  // blank test first, then read again and convert
};

// One procedure with the query shape around one first-row read.
template <typename Result>
Result firstRowLookUp(const char* procedure, const std::string& sql, Result fallback,
                      const std::function<Result(QueryShape&)>& read, bool testConnection = true) {
  Procedure proc(traceName(procedure));
  Result result = fallback;
  QueryShape query(proc, [&] { result = fallback; });
  if (testConnection && !query.connected()) return result;
  query.readFirstRow(sql, [&] { result = read(query); });
  return result;
}

int32_t idLookUp(const char* procedure, const char* sqlText, int32_t id, const char* field,
                 Read how) {
  return firstRowLookUp<int32_t>(
      procedure, sqlText + std::to_string(id) + ";", -1, [&](QueryShape& query) {
        return how == Read::IdBlankFirst ? query.idOrDefault(field, -1) : CLng(query.field(field));
      });
}

std::string textLookUp(const char* procedure, const std::string& sql, const char* field) {
  return firstRowLookUp<std::string>(procedure, sql, "",
                                     [&](QueryShape& query) { return toText(query.field(field)); });
}

std::string textLookUp(const char* procedure, const char* sqlText, int32_t id, const char* field) {
  return textLookUp(procedure, sqlText + std::to_string(id) + ";", field);
}

}  // namespace

int32_t getClientDataIDFromCompanyID(int32_t companyID) {
  return idLookUp("getClientDataIDFromCompanyID",
                  "SELECT ClientData.ClientDataID, ClientData.CompanyIDNum FROM ClientData WHERE "
                  "CompanyIDNum=",
                  companyID, "ClientDataID", Read::Id);
}

int32_t getCompanyIDFromClientDataID(int32_t clientDataID) {
  return idLookUp("getCompanyIDFromClientDataID",
                  "SELECT ClientData.ClientDataID, ClientData.CompanyIDNum FROM ClientData WHERE "
                  "ClientDataID=",
                  clientDataID, "CompanyIDNum", Read::Id);
}

std::string getDisplayNameFromContactID(int32_t contactID) {
  return textLookUp(
      "getDisplayNameFromContactID",
      "SELECT Contacts.ContactID, Contacts.DisplayName FROM Contacts WHERE ContactID=", contactID,
      "DisplayName");
}

std::string getCompanyNameFromCompanyID(int32_t companyID) {
  return textLookUp(
      "getCompanyNameFromCompanyID",
      "SELECT Companies.CompanyID, Companies.CompanyName FROM Companies WHERE CompanyID=",
      companyID, "CompanyName");
}

std::string getCategoryNameFromCategoryID(int32_t categoryID) {
  return textLookUp(
      "getCategoryNameFromCategoryID",
      "SELECT Categories.CategoryName, Categories.CategoryID FROM Categories WHERE CategoryID=",
      categoryID, "CategoryName");
}

int32_t getCompanyIDFromDocumentID(int32_t documentID) {
  return idLookUp(
      "getCompanyIDFromDocumentID",
      "SELECT Documents.CompanyIDNum, Documents.DocumentID FROM Documents WHERE DocumentID=",
      documentID, "CompanyIDNum", Read::IdBlankFirst);
}

int32_t getContactIDFromDocumentID(int32_t documentID) {
  return idLookUp(
      "getContactIDFromDocumentID",
      "SELECT Documents.ContactIDNum, Documents.DocumentID FROM Documents WHERE DocumentID=",
      documentID, "ContactIDNum", Read::IdBlankFirst);
}

std::string getUserNameFromUserID(int32_t userID) {
  return textLookUp("getUserNameFromUserID",
                    std::string("SELECT AccountantEmployeeInfo.ContactID, "
                                "AccountantEmployeeInfo.UserName FROM AccountantEmployeeInfo") +
                        " WHERE ContactID = " + std::to_string(userID) +
                        " ORDER BY AccountantEmployeeInfo.UserName;",
                    "UserName");
}

int32_t getAccountantFirmID() {
  // The firm is the single row of its table; asked without a connection test.
  return firstRowLookUp<int32_t>(
      "getAccountantFirmID", "SELECT AccountantFirmInfo.CompanyID From AccountantFirmInfo;", -1,
      [](QueryShape& query) { return CLng(query.field("CompanyID")); }, false);
}

bool isCategoryMainCategory(int32_t categoryID) {
  return firstRowLookUp<bool>(
      "isCategoryMainCategory",
      "SELECT Categories.CategoryID, Categories.CategorySpecialCode FROM Categories WHERE "
      "CategoryID = " +
          std::to_string(categoryID) + ";",
      false, [](QueryShape& query) {
        return !query.isBlank("CategorySpecialCode") &&
               UCase(CStr(query.field("CategorySpecialCode"))) == UCase("Main");
      });
}

int32_t getTaskIDFromScheduleIDNum(int32_t scheduleID) {
  Procedure proc(traceName("getTaskIDFromScheduleIDNum"));
  int32_t result = -1;
  QueryShape query(proc, [&] { result = -1; });
  if (!query.connected() || scheduleID < 0) return result;
  std::string id = std::to_string(scheduleID);
  bool found = query.readFirstRow(
      "SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE ScheduleIDNum=" + id + ";",
      [&] { result = CLng(query.field("TaskID")); });
  // A finished task still answers, by the id it had before it was archived.
  if (!found) {
    query.readFirstRow(
        "SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM "
        "archiveTasks WHERE ScheduleIDNum=" +
            id + ";",
        [&] { result = CLng(query.field("oldTaskID")); });
  }
  return result;
}

}  // namespace qb::modDatabaseFunctions
