#include "render/mod_database_client_functions.h"

#include <string>

#include "data/mod_database_functions.h"
#include "render/mod_format_addresses.h"
#include "render/store_access.h"
#include "services/errors/procedure.h"

namespace qb::modDatabaseClientFunctions {

namespace db_functions = qb::modDatabaseFunctions;
using render::fieldBlank;
using render::fieldText;
using render::fieldTrue;

namespace {

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-modDatabaseClientFunctions-") + procedure;
}

// The company's links, with the three columns every link query selects.
std::string companyLinksSql(int32_t companyID) {
  return "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact "
         "FROM ContactLinks WHERE ContactLinks.CompanyNum = " +
         std::to_string(companyID) + ";";
}

// The four copied columns, each with the contact column it copies.
struct CopiedColumn {
  const char* companyColumn;
  const char* contactColumn;
};
constexpr CopiedColumn kCopiedColumns[] = {
    {"DefaultContactName", "DisplayName"},
    {"DefaultContactPhoneNumber", "BusinessPhone_Main"},
    {"DefaultContactFaxNumber", "BusinessPhone_Fax"},
    {"DefaultContactEmail", "BusinessEmail"},
};

}  // namespace

int32_t checkForDefaultContact(int32_t companyID, bool makeFirstDefault) {
  Procedure proc(traceName("checkForDefaultContact"));
  auto db = render::storeReference();
  int32_t result = -1;
  RecordsetHandle links = 0;
  bool found = false;

  proc.step([&] {
    render::openWhenConnected(proc, db, companyLinksSql(companyID), adLockReadOnly, links);
  });
  proc.step([&] {
    if (db->moveFirstRecord(links)) return;
    bool skipSummary = false;
    setNoContactAsDefault(companyID, skipSummary);
    db->closeRecordset(links);
    proc.leave();
  });
  proc.step([&] {
    while (!found && !db->isEndOfRecordset(links)) {
      if (fieldTrue(*db, links, "DefaultContact")) {
        found = true;
        result = CLng(db->getFieldValue(links, Variant("ContactIDNum")));
      } else {
        db->moveNextRecord(links);
      }
    }
  });
  proc.step([&] {
    if (found || !makeFirstDefault) return;
    // The first link in the store's order wins; there is no other tie-break.
    db->moveFirstRecord(links);
    result = CLng(db->getFieldValue(links, Variant("ContactIDNum")));
    bool skipSummary = false;
    setContactAsDefault(result, companyID, skipSummary);
  });
  proc.step([&] { db->closeRecordset(links); });
  return result;
}

void setContactAsDefault(int32_t contactID, int32_t companyID, bool& skipSummary) {
  Procedure proc(traceName("setContactAsDefault"));
  auto db = render::storeReference();
  RecordsetHandle links = 0;

  proc.step([&] {
    render::openWhenConnected(proc, db, companyLinksSql(companyID), adLockOptimistic, links);
  });
  proc.step([&] {
    if (!db->moveFirstRecord(links)) return;
    while (!db->isEndOfRecordset(links)) {
      bool isChosen = !fieldBlank(*db, links, "ContactIDNum") &&
                      CLng(db->getFieldValue(links, Variant("ContactIDNum"))) == contactID;
      db->updateFieldValue(links, "DefaultContact", isChosen ? "True" : "False");
      if (!skipSummary) {
        // The summaries read the links too: keep this walk's place.
        int16_t position = db->getRecordPosition(links);
        if (!fieldBlank(*db, links, "ContactIDNum")) {
          int32_t linkedContact = CLng(db->getFieldValue(links, Variant("ContactIDNum")));
          int32_t noEmployee = -1;
          int32_t company = companyID;
          modFormatAddresses::saveContactBusinessRTF(linkedContact, noEmployee, company, true);
        }
        modFormatAddresses::saveCompanyContactRTF(companyID, contactID);
        db->setRecordPosition(links, position);
      }
      db->moveNextRecord(links);
    }
  });
  proc.step([&] { db->closeRecordset(links); });
  proc.step([&] { updateDefaultContactInfo(companyID); });
}

void setNoContactAsDefault(int32_t companyID, bool& skipSummary) {
  Procedure proc(traceName("setNoContactAsDefault"));
  auto db = render::storeReference();
  proc.step([&] {
    if (!render::connected(proc, db)) proc.leave();
  });
  proc.step([&] { updateDefaultContactInfo(companyID); });
  proc.step([&] {
    if (!skipSummary) modFormatAddresses::saveCompanyContactRTF(companyID, -1);
  });
}

void updateDefaultContactInfo(int32_t companyID) {
  Procedure proc(traceName("updateDefaultContactInfo"));
  auto db = render::storeReference();
  int32_t defaultID = -1;
  RecordsetHandle company = 0;

  proc.step([&] {
    if (!render::connected(proc, db)) proc.leave();
  });
  proc.step([&] { defaultID = getDefaultContactIDFromCompanyID(companyID); });
  proc.step([&] {
    company = db->openRecordset(
        "SELECT Companies.CompanyID, Companies.DefaultContactName, "
        "Companies.DefaultContactPhoneNumber, Companies.DefaultContactFaxNumber, "
        "Companies.DefaultContactEmail FROM Companies WHERE CompanyID = " +
            std::to_string(companyID) + ";",
        adOpenKeyset, adLockOptimistic);
  });
  proc.step([&] {
    if (db_functions::validContactID(std::to_string(defaultID))) {
      RecordsetHandle contact = db->openRecordset(
          "SELECT Contacts.ContactID, Contacts.DisplayName, Contacts.BusinessPhone_Main, "
          "Contacts.BusinessPhone_Fax, Contacts.BusinessEmail FROM Contacts WHERE ContactID = " +
              std::to_string(defaultID) + ";",
          adOpenKeyset, adLockReadOnly);
      if (db->moveFirstRecord(company) && db->moveFirstRecord(contact)) {
        for (const CopiedColumn& column : kCopiedColumns) {
          db->updateFieldValue(company, column.companyColumn,
                               fieldText(*db, contact, column.contactColumn));
        }
      }
      db->closeRecordset(contact);
    } else if (db->moveFirstRecord(company)) {
      for (const CopiedColumn& column : kCopiedColumns) {
        db->updateFieldValue(company, column.companyColumn, "");
      }
    }
  });
  proc.step([&] { db->closeRecordset(company); });
}

int32_t getDefaultContactIDFromCompanyID(int32_t companyID) {
  Procedure proc(traceName("getDefaultContactIDFromCompanyID"));
  auto db = render::storeReference();
  int32_t result = -1;
  bool hadLinks = false;
  RecordsetHandle links = 0;

  proc.step([&] {
    // The same link query with its columns in another order.
    render::openWhenConnected(
        proc, db,
        "SELECT ContactLinks.CompanyNum, ContactLinks.ContactIDNum, ContactLinks.DefaultContact "
        "FROM ContactLinks WHERE ContactLinks.CompanyNum = " +
            std::to_string(companyID) + ";",
        adLockReadOnly, links);
  });
  proc.step([&] {
    hadLinks = db->moveFirstRecord(links);
    if (!hadLinks) return;
    while (!db->isEndOfRecordset(links)) {
      if (!fieldBlank(*db, links, "ContactIDNum") && fieldTrue(*db, links, "DefaultContact")) {
        result = CLng(db->getFieldValue(links, Variant("ContactIDNum")));
        break;
      }
      db->moveNextRecord(links);
    }
  });
  proc.step([&] { db->closeRecordset(links); });
  proc.step([&] {
    // Links but no valid default: make the first link the default. That runs
    // through updateDefaultContactInfo and so back here, where the second pass
    // finds the default just set and ends.
    if (hadLinks && !db_functions::validContactID(std::to_string(result))) {
      result = checkForDefaultContact(companyID, true);
    }
  });
  return result;
}

bool isContactDefaultContact(int32_t companyID, int32_t contactID) {
  Procedure proc(traceName("isContactDefaultContact"));
  auto db = render::storeReference();
  bool result = false;
  RecordsetHandle links = 0;

  proc.step([&] {
    render::openWhenConnected(
        proc, db,
        "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact "
        "FROM ContactLinks WHERE CompanyNum=" +
            std::to_string(companyID) +
            " AND ContactLinks.ContactIDNum = " + std::to_string(contactID) + ";",
        adLockReadOnly, links);
  });
  proc.step([&] {
    if (!db->moveFirstRecord(links)) return;
    while (!result && !db->isEndOfRecordset(links)) {
      result = fieldTrue(*db, links, "DefaultContact");
      db->moveNextRecord(links);
    }
  });
  proc.step([&] { db->closeRecordset(links); });
  return result;
}

}  // namespace qb::modDatabaseClientFunctions
