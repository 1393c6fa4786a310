// The main client statement: one wide row per client, a company with its
// ClientData row and the satellite rows under the same number.

#include <iterator>

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "services/errors/procedure.h"

namespace qb::modDatabaseFunctions {

namespace {

struct TableSet {
  const char* columns;
  const char* join;
};

// Country code 1: the Canadian satellite tables.
constexpr TableSet kCanadianSet{
    "SELECT AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, CorpTaxInfo.*, "
    "LawInfo.*, OtherInfo.*, WSIB_EHTInfo.*, CompaniesNotes.BusinessNotes, "
    "CompaniesNotes.ContactNotes ",
    "FROM (((((Companies INNER JOIN ((ClientData INNER JOIN AccountingServices ON "
    "ClientData.ClientDataID = AccountingServices.AccountingServiceID) INNER JOIN ClientOptions "
    "ON ClientData.ClientDataID = ClientOptions.ClientOptionID) ON Companies.CompanyID = "
    "ClientData.CompanyIDNum) INNER JOIN CorpTaxInfo ON ClientData.ClientDataID = "
    "CorpTaxInfo.CorpTaxInfoID) INNER JOIN LawInfo ON ClientData.ClientDataID = "
    "LawInfo.LawInfoID) INNER JOIN OtherInfo ON ClientData.ClientDataID = OtherInfo.OtherInfoID) "
    "INNER JOIN WSIB_EHTInfo ON ClientData.ClientDataID = WSIB_EHTInfo.WSIB_EHTInfoID) INNER "
    "JOIN CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum "};

// Any other country code: the United States table.
constexpr TableSet kUnitedStatesSet{
    "SELECT AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, ClientUSInfo.*, "
    "CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes ",
    "FROM (ClientUSInfo INNER JOIN (Companies INNER JOIN ((ClientData INNER JOIN "
    "AccountingServices ON ClientData.ClientDataID = AccountingServices.AccountingServiceID) "
    "INNER JOIN ClientOptions ON ClientData.ClientDataID = ClientOptions.ClientOptionID) ON "
    "Companies.CompanyID = ClientData.CompanyIDNum) ON ClientUSInfo.ClientUSInfoID = "
    "ClientData.ClientDataID) INNER JOIN CompaniesNotes ON Companies.CompanyID = "
    "CompaniesNotes.CompanyNum "};

// The WHERE clause by [showOnly][statusFilter - 1]; "" is none.
constexpr const char* kWhereClauses[2][3] = {
    {"WHERE ClientData.ActiveStatus=1 ", "WHERE NOT ClientData.ActiveStatus=1 ", ""},
    {"WHERE ClientData.ShowThisClient = True AND ClientData.ActiveStatus=1 ",
     "WHERE ClientData.ShowThisClient = True AND NOT ClientData.ActiveStatus=1 ",
     "WHERE ClientData.ShowThisClient = True "},
};

// The closing part by the client order setting; other values keep ";".
constexpr const char* kClosingParts[] = {
    ";",
    "ORDER BY Companies.CompanyName;",
    "ORDER BY Companies.CorporateName;",
    "ORDER BY Companies.ClientID, Companies.CompanyName;",
    "ORDER BY Companies.ClientID, Companies.CompanyName;",
};

}  // namespace

std::string getMainBusinessSQLString(bool showOnly, int32_t statusFilter, int32_t clientDataID) {
  Procedure proc(traceName("getMainBusinessSQLString"));
  std::string result;
  proc.step([&] {
    int32_t order = clientOrder();
    std::string closing = order > 0 && order < static_cast<int32_t>(std::size(kClosingParts))
                              ? kClosingParts[order]
                              : kClosingParts[0];
    const TableSet& tables = countryCode() == 1 ? kCanadianSet : kUnitedStatesSet;
    if (statusFilter < 1 || statusFilter > 3) return;
    std::string where = kWhereClauses[showOnly ? 1 : 0][statusFilter - 1];
    std::string narrowing;
    if (clientDataID >= 0) {
      narrowing =
          (where.empty() ? "WHERE ClientData.ClientDataID=" : "AND ClientData.ClientDataID=") +
          std::to_string(clientDataID) + " ";
    }
    result = std::string(tables.columns) + tables.join + where + narrowing + closing;
  });
  return result;
}

}  // namespace qb::modDatabaseFunctions
