// createBusinessContactAddress: the address block of a contact or a firm
// employee, read from the store, with the company's (or the firm's) address
// for a person who inherits it.

#include "data/mod_database_functions.h"
#include "render/mod_format_addresses.h"
#include "render/store_access.h"
#include "services/errors/procedure.h"
#include "services/runtime/strings.h"

namespace qb::modFormatAddresses {

namespace db_functions = qb::modDatabaseFunctions;
using render::fieldText;

namespace {

// Positions 2 to 6 of the record, from the columns named in that order: a
// person's business address or a company's (Companies, AccountantFirmInfo).
using AddressColumns = const char* const[5];
constexpr AddressColumns kPersonColumns = {"BusinessAddress", "BusinessCity", "BusinessProvince",
                                           "BusinessPostalCode", "BusinessCountry"};
constexpr AddressColumns kCompanyColumns = {"Address", "City", "Province", "PostalCode", "Country"};

void readAddress(DatabaseReference& db, RecordsetHandle row, const AddressColumns& columns,
                 AddressRecord& address) {
  std::string* fields[] = {&address.addressText, &address.city, &address.province,
                           &address.postalCode, &address.country};
  for (int i = 0; i < 5; ++i) *fields[i] = fieldText(db, row, columns[i]);
}

bool blank(const std::string& value) { return isBlankValue(Variant(value)); }

// The finished block: blanks cut on both sides, and a line break the block
// ends with cut too (a block of names only ends with one); the paragraph
// marks of an RTF block stay.
std::string trimBlock(const std::string& text) {
  std::string result = Trim(text);
  while (!result.empty() &&
         (result.back() == '\r' || result.back() == '\n' || result.back() == ' ')) {
    result.pop_back();
  }
  return result;
}

}  // namespace

std::string createBusinessContactAddress(int32_t& contactID, bool& convertRTF, int32_t& employeeID,
                                         int32_t& companyID, bool& includeAddress,
                                         bool& includePhones, bool& includeEmail,
                                         bool& includeBusinessName) {
  Procedure proc("Orvanta.exe-modFormatAddresses-createBusinessContactAddress");
  std::string result;
  AddressRecord address;
  bool companyOpen = false;  // a company (or firm) recordset was opened
  bool personFound = false;
  bool readPerson = false;  // an id was valid and the person's recordset opened
  RecordsetHandle person = 0;
  RecordsetHandle company = 0;
  auto db = render::storeReference();

  proc.step([&] { clearAddressFields(address); });
  proc.step([&] {
    if (!render::connected(proc, db)) proc.leave();
  });
  proc.step([&] {
    if (db_functions::validEmployeeID(std::to_string(employeeID))) {
      readPerson = true;
      person = db->openRecordset(
          "SELECT AccountantEmployeeInfo.* FROM AccountantEmployeeInfo WHERE "
          "AccountantEmployeeInfo.ContactID=" +
              std::to_string(employeeID) + ";",
          adOpenKeyset, adLockReadOnly);
      // The reverse of the contact path: a valid firm id means no firm address.
      if (db_functions::validFirmID(std::to_string(companyID))) {
        companyID = -1;
      } else {
        companyOpen = true;
        companyID = db_functions::getAccountantFirmID();
        company = db->openRecordset(
            "SELECT AccountantFirmInfo.* FROM AccountantFirmInfo WHERE "
            "AccountantFirmInfo.CompanyID=" +
                std::to_string(companyID) + ";",
            adOpenKeyset, adLockReadOnly);
      }
    } else if (db_functions::validContactID(std::to_string(contactID))) {
      readPerson = true;
      person = db->openRecordset("SELECT Contacts.* FROM Contacts WHERE Contacts.ContactID=" +
                                     std::to_string(contactID) + ";",
                                 adOpenKeyset, adLockReadOnly);
      if (!db_functions::validCompanyID(std::to_string(companyID))) {
        companyID = -1;
      } else {
        companyOpen = true;
        company = db->openRecordset("SELECT Companies.* FROM Companies WHERE Companies.CompanyID=" +
                                        std::to_string(companyID) + ";",
                                    adOpenKeyset, adLockReadOnly);
      }
    }
    if (!readPerson) proc.leave();
  });
  proc.step([&] {
    if (!db->moveFirstRecord(person)) return;
    personFound = true;
    if (includeBusinessName) address.businessName = fieldText(*db, person, "BusinessName");
    address.contactName = fieldText(*db, person, "DisplayName");
    if (includeAddress) {
      address.businessName = fieldText(*db, person, "BusinessName");
      address.contactName = fieldText(*db, person, "DisplayName");
      readAddress(*db, person, kPersonColumns, address);
    }
    if (includePhones) {
      address.phone = fieldText(*db, person, "BusinessPhone_Main");
      address.fax = fieldText(*db, person, "BusinessPhone_Fax");
      address.cell = fieldText(*db, person, "BusinessPhone_Cell");
    }
    if (includeEmail) address.email = fieldText(*db, person, "BusinessEmail");
  });
  proc.step([&] {
    if (!personFound || !render::fieldTrue(*db, person, "InheritCompanyInfo")) return;
    if (!companyOpen || !db->moveFirstRecord(company)) return;
    if (includeAddress) readAddress(*db, company, kCompanyColumns, address);
    if (includePhones) {
      if (blank(address.phone)) address.phone = fieldText(*db, company, "OfficeNumber");
      // Tested on the phone again, not on the fax: a person with a phone of
      // its own, or a company with an office number, keeps the fax it has.
      if (blank(address.phone)) address.fax = fieldText(*db, company, "FaxNumber");
    }
  });
  proc.step([&] {
    bool includeContactName = true;
    if (!includePhones && !includeEmail) {
      result = createAddress(address, includeContactName, convertRTF);
    } else {
      result = createAddressWithContactInfo(address, includeContactName, convertRTF);
    }
  });
  proc.step([&] {
    if (companyOpen) db->closeRecordset(company);
    db->closeRecordset(person);
  });
  proc.step([&] { result = trimBlock(result); });
  return result;
}

}  // namespace qb::modFormatAddresses
