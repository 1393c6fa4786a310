#pragma once
// modDatabaseFunctions: the small query functions the rest of the system
// shares. Look-ups from one id to another or to a name, existence tests for
// ids, the composition of the main client SQL, the tables that turn stored
// numbers into display text, and the contact display names.
//
// Every function follows the query shape over the module's store: test
// isConnected, open read-only, take the first row, close. Each traces as
// "Orvanta.exe-modDatabaseFunctions-<name>"; a failure goes to its own
// handler and never reaches the caller. A look-up gives its default when the
// store is not connected or no row comes back: -1 for ids, "" for text, false
// for tests; a failure gives the same values unless said otherwise.

#include <cstdint>
#include <string>

namespace qb::modDatabaseFunctions {

// ---- Module-level settings -------------------------------------------------
// Settings a host may assign; they are per thread and stay 0 unless assigned.

// The order of the main client SQL: 1 by company name, 2 by corporate name,
// 3 and 4 by client id then company name; any other value leaves it unordered.
int32_t clientOrder();
void setClientOrder(int32_t order);
// The display type getContactNameDisplayed uses (2 given name first, 3 surname
// first, anything else the stored display name).
int32_t displayType();
void setDisplayType(int32_t type);
// 2 shows the family relationship in contact names even when the caller did
// not ask for it.
int32_t relationshipSetting();
void setRelationshipSetting(int32_t setting);
// Puts the three settings back to 0 (for tests).
void resetSettings();

// ---- Id and name look-ups --------------------------------------------------

// The ClientData row of a company; -1 when there is none.
int32_t getClientDataIDFromCompanyID(int32_t companyID);
// The company of a ClientData row; -1 when there is none.
int32_t getCompanyIDFromClientDataID(int32_t clientDataID);
// The stored DisplayName of a contact as it stands; "" when there is none.
std::string getDisplayNameFromContactID(int32_t contactID);
// The CompanyName of a company as it stands; "" when there is none.
std::string getCompanyNameFromCompanyID(int32_t companyID);
// The CategoryName of a category as it stands; "" when there is none.
std::string getCategoryNameFromCategoryID(int32_t categoryID);
// The company a document belongs to; -1 when there is no such document or it
// belongs to a contact (a Null company).
int32_t getCompanyIDFromDocumentID(int32_t documentID);
// The contact a document belongs to; -1 when there is none or it is Null.
int32_t getContactIDFromDocumentID(int32_t documentID);
// The user name of an employee; "" when there is none.
std::string getUserNameFromUserID(int32_t userID);
// The firm's CompanyID, the single row of AccountantFirmInfo; -1 when the
// table is empty. Asks the store without testing isConnected first.
int32_t getAccountantFirmID();
// True when the category's special code is "Main" (any case); false when it
// is blank, anything else, or there is no such category.
bool isCategoryMainCategory(int32_t categoryID);
// The task of a schedule row: from Tasks, else the old id it had before it
// was archived; -1 when neither holds the schedule row or the id is negative.
int32_t getTaskIDFromScheduleIDNum(int32_t scheduleID);

// ---- Existence tests -------------------------------------------------------
// True when the id names a row. False without a query when the store is not
// connected or the text is blank, not numeric or below 0. The text goes into
// the SQL as it stands; only its numeric value was tested.

bool validCompanyID(const std::string& companyID);
bool validContactID(const std::string& contactID);
bool validFirmID(const std::string& firmID);
bool validEmployeeID(const std::string& employeeID);

// ---- Main client SQL -------------------------------------------------------

// The statement that yields one wide row per client: the Canadian table set
// when the locale's country code is 1, the United States set otherwise.
// showOnly keeps the clients marked to show; statusFilter 1 keeps the active
// ones, 2 the inactive, 3 all; a clientDataID of 0 or more narrows to that
// client. "" for any other statusFilter. Without a locale the country can't
// be asked: that is an object-required failure, reported, and the result "".
std::string getMainBusinessSQLString(bool showOnly, int32_t statusFilter, int32_t clientDataID);

// ---- Code tables: stored number to display text ----------------------------
// Each gives its default for every number not in its table.

// "Unknown" by default; 3 is "Partnership" in Canada and "General
// Partnership" in the United States (the locale's country code 1 or 2).
std::string getCompanyTypeStringFromCompanyTypeNum(int32_t companyTypeNum);
// "Not Specified" by default; the numbers start at 2.
std::string getFinancialStatementsStringFromFinancialStatementsNum(int32_t financialStatementsNum);
// "Not Filed" by default.
std::string getRC59FormStatusStringFromRC59FormStatusNum(int32_t formStatusNum);
// "None" by default.
std::string getRC59PermissionStringFromRC59PermissionNum(int32_t permissionNum);
// "Not Specified" by default.
std::string getGSTFilingMethodStringFromGSTFilingMethodNum(int32_t filingMethodNum);
// "CCPC" by default.
std::string getCorporationTypeStringFromCorporationTypeNum(int32_t corporationTypeNum);
// "Federal Corporation" by default.
std::string getCorporationLevelStringFromCorporationLevelNum(int32_t corporationLevelNum);

// ---- Contact display names -------------------------------------------------

// The text lists and titles show for a contact: displayType 2 given name
// first, 3 surname first, both with the spouse when the contact is a couple;
// any other type the stored DisplayName. When relatedContactID is 0 or more
// and showRelationship is true (or the relationship setting is 2), the family
// relationship to that contact follows in brackets, unless it is blank or
// "Not Specified". "" when the contact has no row or the store is not
// connected; on a failure the name built so far.
std::string getContactNameDisplayedByType(int32_t displayType, int32_t contactID,
                                          int32_t relatedContactID, bool showRelationship);
// The same with the module's display type (0 unless assigned: DisplayName).
std::string getContactNameDisplayed(int32_t contactID, int32_t relatedContactID,
                                    bool showRelationship);

}  // namespace qb::modDatabaseFunctions
