#pragma once
// The fields whose value is not simply their column: the business details a
// contact takes from its company, the coded columns of the client's data,
// and the abbreviated provinces. Reading a value (field_values.cpp) and
// writing one back (write_back.cpp) both follow these tables.

#include <array>
#include <cstdint>
#include <string>

#include "data/mod_database_functions.h"

namespace qb::merge_rules {

// A contact that inherits its company's details: its business address
// prefers the company's column, its two telephones its own. Write-back
// writes the company's column too.
struct InheritedField {
  const char* fieldName;      // the contact's column
  const char* companyColumn;  // the company's column of the same detail
  bool companyFirst;          // read the company's before the contact's
};
inline constexpr std::array<InheritedField, 7> kInheritedFields = {{
    {"BusinessAddress", "Address", true},
    {"BusinessCity", "City", true},
    {"BusinessProvince", "Province", true},
    {"BusinessPostalCode", "PostalCode", true},
    {"BusinessCountry", "Country", true},
    {"BusinessPhone_Main", "OfficeNumber", false},
    {"BusinessPhone_Fax", "FaxNumber", false},
}};

// The client's columns that hold a code: read as the code's text (the text
// of defaultCode when the column is blank), written as the code.
struct CodedColumn {
  const char* fieldName;
  int16_t defaultCode;
  std::string (*text)(int32_t code);
};
inline constexpr std::array<CodedColumn, 6> kCodedColumns = {{
    {"RC59Permission", 0, modDatabaseFunctions::getRC59PermissionStringFromRC59PermissionNum},
    {"RC59Status", 0, modDatabaseFunctions::getRC59FormStatusStringFromRC59FormStatusNum},
    {"GSTFilingMethod", 0, modDatabaseFunctions::getGSTFilingMethodStringFromGSTFilingMethodNum},
    {"FinancialStatements", 1,
     modDatabaseFunctions::getFinancialStatementsStringFromFinancialStatementsNum},
    {"CorporationType", 0, modDatabaseFunctions::getCorporationTypeStringFromCorporationTypeNum},
    {"CorporationLevel", 1, modDatabaseFunctions::getCorporationLevelStringFromCorporationLevelNum},
}};

// The abbreviated provinces of a contact (all five) and of a company (the
// first and the last): the full column without "Abbreviated" holds them.
inline constexpr std::array<const char*, 5> kAbbreviatedProvinces = {
    "AbbreviatedProvince", "BusinessAbbreviatedProvince", "HomeAbbreviatedProvince",
    "SpouseAbbreviatedProvince", "AltAbbreviatedProvince"};
inline constexpr std::array<const char*, 2> kCompanyAbbreviatedProvinces = {
    "AbbreviatedProvince", "AltAbbreviatedProvince"};

// The computed name of a contact and spouse; it has no column to write.
inline constexpr const char* kContactAndSpouseName = "ContactAndSpouseName";
// The duration between the item's "TimeFrom" and "TimeTo".
inline constexpr const char* kTimeDuration = "TimeDuration";
// The company type read as text from the client's data. The name is matched
// upper-cased and as it is spelt, so the catalogue's "CompanyType" never
// meets it and reads the company's column.
inline constexpr const char* kCompanyTypeName = "COMPANTYPE";

}  // namespace qb::merge_rules
