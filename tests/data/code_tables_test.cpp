// Stored numbers to display text.

#include "tests/data/data_test.h"

namespace qb::test {
namespace {

using namespace modDatabaseFunctions;

TEST_F(DataTest, CodeTablesGiveTheirTextAndTheirDefault) {
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(2), "Sole Proprietorship");
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(3), "Partnership");
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(11), "Unknown");
  db.locale().countryCode = 2;
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(3), "General Partnership");
  db.locale().countryCode = 5;
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(3), "Unknown");
  EXPECT_EQ(getCompanyTypeStringFromCompanyTypeNum(10), "Fiduciary");

  EXPECT_EQ(getFinancialStatementsStringFromFinancialStatementsNum(1), "Not Specified");
  EXPECT_EQ(getFinancialStatementsStringFromFinancialStatementsNum(2), "Compilation (NTR)");
  EXPECT_EQ(getRC59FormStatusStringFromRC59FormStatusNum(0), "Not Filed");
  EXPECT_EQ(getRC59PermissionStringFromRC59PermissionNum(2), "Limited");
  EXPECT_EQ(getGSTFilingMethodStringFromGSTFilingMethodNum(-1), "Not Specified");
  EXPECT_EQ(getCorporationTypeStringFromCorporationTypeNum(2), "CCPC");
  EXPECT_EQ(getCorporationLevelStringFromCorporationLevelNum(2), "Provincial Corporation");
  EXPECT_EQ(spy->calls, 0);  // the tables never ask the store
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
