// Existence tests for ids given as text.

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "data/query_shape.h"
#include "services/runtime/conversions.h"

namespace qb::modDatabaseFunctions {

namespace {

// True when the id's row exists. The text must be a number of 0 or more; it
// then goes into the SQL as it stands.
bool validID(const char* procedure, const char* sqlText, const std::string& id) {
  Procedure proc(traceName(procedure));
  bool result = false;
  QueryShape query(proc, [&] { result = false; });
  if (!query.connected()) return result;
  bool usable = false;
  query.step([&] {
    Variant value(id);
    usable = !isBlankValue(value) && IsNumeric(value) && CDbl(value) >= 0;
  });
  if (!usable) return result;
  query.open(sqlText + id + ";");
  result = query.moveFirst();
  query.close();
  return result;
}

}  // namespace

bool validCompanyID(const std::string& companyID) {
  return validID("validCompanyID",
                 "SELECT Companies.CompanyID FROM Companies WHERE CompanyID = ", companyID);
}

bool validContactID(const std::string& contactID) {
  return validID("validContactID",
                 "SELECT Contacts.ContactID FROM Contacts WHERE ContactID = ", contactID);
}

bool validFirmID(const std::string& firmID) {
  return validID(
      "validFirmID",
      "SELECT AccountantFirmInfo.CompanyID FROM AccountantFirmInfo WHERE CompanyID = ", firmID);
}

bool validEmployeeID(const std::string& employeeID) {
  return validID(
      "validEmployeeID",
      "SELECT AccountantEmployeeInfo.ContactID FROM AccountantEmployeeInfo WHERE ContactID = ",
      employeeID);
}

}  // namespace qb::modDatabaseFunctions
