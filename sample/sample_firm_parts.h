#pragma once
// The pieces that the sample firm and the generated firms share: the firm
// itself with its employees, the firm's settings rows, and one client's
// client data.

#include <cstdint>
#include <string>

#include "sample/sample_writer.h"

namespace qb::sample {

// The firm's own Companies row and the users' ids: employees are contacts
// 1 to kEmployeeCount, and a user's id is the employee's ContactID.
constexpr int32_t kFirmCompanyID = 1;
constexpr int32_t kEmployeeCount = 5;

// Address-book categories written by writeFirmSettings.
constexpr int32_t kCategoryAddressBook = 1;
constexpr int32_t kCategoryClients = 2;
constexpr int32_t kCategoryCorporateClients = 3;
constexpr int32_t kCategoryPersonalTaxClients = 4;
constexpr int32_t kCategorySuppliers = 5;
constexpr int32_t kCategoryBankers = 7;
constexpr int32_t kCategoryLawyers = 8;

// The firm's Companies, AccountantFirmInfo and CompaniesNotes rows, and its
// employees (Contacts, AccountantEmployeeInfo, ContactsNotes, links to the
// firm with the first employee as default contact).
void writeFirm(SampleWriter& out);

// The address-book category tree, the custom labels and custom types,
// user 1's view settings (user 2 has none) and the calendar templates.
void writeFirmSettings(SampleWriter& out);

// What varies between clients' client data.
struct ClientDataValues {
  int32_t clientDataID = 0;
  int32_t companyID = 0;
  int32_t seed = 0;  // varies numbers and codes from client to client
  bool showThisClient = true;
  int32_t activeStatus = 1;  // 1 active
};

// ClientData and a row in each satellite (AccountingServices, ClientOptions,
// CorpTaxInfo, LawInfo, OtherInfo, WSIB_EHTInfo, ClientUSInfo) under
// clientDataID.
void writeClientData(SampleWriter& out, const ClientDataValues& values);

// "yyyy-mm-dd" and "yyyy-mm-dd hh:mm:00".
std::string isoDate(int32_t year, int32_t month, int32_t day);
std::string isoDateTime(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute);

}  // namespace qb::sample
