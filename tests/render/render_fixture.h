#pragma once
// A client database for the rendering tests: three companies with notes rows,
// and calls of the by-reference operations with plain values.

#include <gtest/gtest.h>

#include <string>

#include "render/mod_format_addresses.h"
#include "tests/support/test_database.h"

namespace qb::test {

class RenderTest : public ::testing::Test {
 protected:
  RenderTest() {
    db.exec(
        "INSERT INTO Companies (CompanyID, CompanyName, Address, City, Province, PostalCode, "
        "OfficeNumber, FaxNumber) VALUES "
        "(1, 'Acme Ltd', '1 First Ave', 'Ottawa', 'ON', 'K1A 0A1', '613-555-0001', '613-555-0002'),"
        "(2, 'Bolt Inc', '2 Second Ave', 'Kingston', 'ON', 'K7L 1A1', NULL, '613-555-0009'),"
        "(3, 'Cog Co', '3 Third Ave', 'Perth', 'ON', 'K7H 1A1', NULL, NULL);"
        "INSERT INTO CompaniesNotes (CompanyNum, ContactNotes) VALUES "
        "(1, 'untouched'), (2, 'untouched'), (3, 'untouched');");
  }

  // A link of a contact to a company; isDefault 1, 0 or NULL.
  void link(int contact, int company, const char* isDefault = "0") {
    db.exec("INSERT INTO ContactLinks (ContactIDNum, CompanyNum, DefaultContact) VALUES (" +
            std::to_string(contact) + ", " + std::to_string(company) + ", " + isDefault + ");");
  }

  std::string companyNotes(int company) {
    return db.scalar("SELECT ContactNotes FROM CompaniesNotes WHERE CompanyNum = " +
                     std::to_string(company) + ";");
  }

  std::string businessNotes(int contact) {
    return db.scalar("SELECT BusinessNotes FROM ContactsNotes WHERE ContactNum = " +
                     std::to_string(contact) + ";");
  }

  static std::string summary(int32_t contact, int32_t company, bool skipOtherCompanies = false,
                             int32_t employee = -1) {
    return modFormatAddresses::saveContactBusinessRTF(contact, employee, company,
                                                      skipOtherCompanies);
  }

  TestDatabase db;
};

// The summary document's opening, as every summary starts.
inline const std::string kHeader =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang4105{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}"
    "\\viewkind4\\uc1\\pard\\f0\\fs16";

}  // namespace qb::test
