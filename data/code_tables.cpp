// Tables that turn stored numbers into display text. Each has a default for
// every number it does not list.

#include <span>

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "services/errors/procedure.h"

namespace qb::modDatabaseFunctions {

namespace {

struct CodeText {
  int32_t number;
  const char* text;  // nullptr: the text depends on the firm's country
};

const char* textFor(std::span<const CodeText> table, int32_t number, const char* fallback) {
  for (const CodeText& row : table) {
    if (row.number == number) return row.text;
  }
  return fallback;
}

// One traced procedure per table.
std::string codeText(const char* procedure, std::span<const CodeText> table, const char* fallback,
                     int32_t number) {
  Procedure proc(traceName(procedure));
  std::string result;
  proc.step([&] { result = textFor(table, number, fallback); });
  return result;
}

constexpr CodeText kCompanyTypes[] = {
    {1, "Corporation"}, {2, "Sole Proprietorship"}, {3, nullptr},         {4, "Non Profit"},
    {5, "Trust"},       {6, "Joint Venture"},       {7, "S Corporation"}, {8, "LLP"},
    {9, "LLC"},         {10, "Fiduciary"},
};
// The partnership row by country code.
constexpr CodeText kPartnershipByCountry[] = {{1, "Partnership"}, {2, "General Partnership"}};

constexpr CodeText kFinancialStatements[] = {
    {2, "Compilation (NTR)"},
    {3, "Review Engagement"},
    {4, "Review Engagement with Differential Reporting"},
    {5, "Audit"},
};
constexpr CodeText kRC59FormStatuses[] = {
    {1, "Awaiting Signature"}, {2, "CRA Processing"}, {3, "Completed"}};
constexpr CodeText kRC59Permissions[] = {{1, "Full"}, {2, "Limited"}};
constexpr CodeText kGSTFilingMethods[] = {
    {1, "Traditional"}, {2, "Simple Method"}, {3, "Quick Method"}};
constexpr CodeText kCorporationTypes[] = {{1, "Regular Corporation"}};
constexpr CodeText kCorporationLevels[] = {{2, "Provincial Corporation"}};

}  // namespace

std::string getCompanyTypeStringFromCompanyTypeNum(int32_t companyTypeNum) {
  Procedure proc(traceName("getCompanyTypeStringFromCompanyTypeNum"));
  std::string result;
  proc.step([&] {
    const char* text = textFor(kCompanyTypes, companyTypeNum, "Unknown");
    result = text != nullptr ? text : textFor(kPartnershipByCountry, countryCode(), "Unknown");
  });
  return result;
}

std::string getFinancialStatementsStringFromFinancialStatementsNum(int32_t financialStatementsNum) {
  return codeText("getFinancialStatementsStringFromFinancialStatementsNum", kFinancialStatements,
                  "Not Specified", financialStatementsNum);
}

std::string getRC59FormStatusStringFromRC59FormStatusNum(int32_t formStatusNum) {
  return codeText("getRC59FormStatusStringFromRC59FormStatusNum", kRC59FormStatuses, "Not Filed",
                  formStatusNum);
}

std::string getRC59PermissionStringFromRC59PermissionNum(int32_t permissionNum) {
  return codeText("getRC59PermissionStringFromRC59PermissionNum", kRC59Permissions, "None",
                  permissionNum);
}

std::string getGSTFilingMethodStringFromGSTFilingMethodNum(int32_t filingMethodNum) {
  return codeText("getGSTFilingMethodStringFromGSTFilingMethodNum", kGSTFilingMethods,
                  "Not Specified", filingMethodNum);
}

std::string getCorporationTypeStringFromCorporationTypeNum(int32_t corporationTypeNum) {
  return codeText("getCorporationTypeStringFromCorporationTypeNum", kCorporationTypes, "CCPC",
                  corporationTypeNum);
}

std::string getCorporationLevelStringFromCorporationLevelNum(int32_t corporationLevelNum) {
  return codeText("getCorporationLevelStringFromCorporationLevelNum", kCorporationLevels,
                  "Federal Corporation", corporationLevelNum);
}

}  // namespace qb::modDatabaseFunctions
