// The copies of a contact's summary in the notes of the companies whose
// default contact it is, and the text for a company without one.

#include "data/mod_database_functions.h"
#include "render/mod_format_addresses.h"
#include "render/rtf_text.h"
#include "render/store_access.h"
#include "services/errors/procedure.h"

namespace qb::modFormatAddresses {

namespace db_functions = qb::modDatabaseFunctions;

void saveContactBusinessRTFForAllCompanies(int32_t contactID, int32_t companyID,
                                           std::string& rtfText) {
  Procedure proc("Orvanta.exe-modFormatAddresses-saveContactBusinessRTFForAllCompanies");
  auto db = render::storeReference();
  RecordsetHandle links = 0;
  RecordsetHandle companyNotes = 0;

  proc.step([&] {
    render::openWhenConnected(
        proc, db,
        "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact "
        "FROM ContactLinks WHERE ContactLinks.ContactIDNum = " +
            std::to_string(contactID) + ";",
        adLockOptimistic, links);
    if (!proc.leaving() && !db->moveFirstRecord(links)) {
      db->closeRecordset(links);
      proc.leave();
    }
  });
  proc.step([&] {
    companyNotes = db->openRecordset(
        "SELECT CompaniesNotes.CompanyNum, CompaniesNotes.ContactNotes FROM CompaniesNotes;",
        adOpenKeyset, adLockOptimistic);
  });
  proc.step([&] {
    while (!db->isEndOfRecordset(links)) {
      if (!render::fieldBlank(*db, links, "CompanyNum")) {
        std::string linkedCompany = render::fieldText(*db, links, "CompanyNum");
        if (db_functions::validCompanyID(linkedCompany) &&
            render::fieldTrue(*db, links, "DefaultContact") &&
            db->findRecord(companyNotes, "CompanyNum", linkedCompany)) {
          std::string text;
          int32_t otherCompany = CLng(Variant(linkedCompany));
          FailureWatch composing;
          if (otherCompany != companyID) {
            // That company's view: its default-contact line and inherited
            // address. This also rewrites the contact's own BusinessNotes, so
            // they end with the view of the last company handled.
            int32_t contact = contactID;
            int32_t noEmployee = -1;
            text = saveContactBusinessRTF(contact, noEmployee, otherCompany, true);
          } else {
            text = rtfText;
          }
          if (!composing.sawFailure()) db->updateFieldValue(companyNotes, "ContactNotes", text);
        }
      }
      db->moveNextRecord(links);
    }
  });
  proc.step([&] {
    db->closeRecordset(links);
    db->closeRecordset(companyNotes);
  });
}

void saveCompanyContactRTF(int32_t companyID, int32_t contactID) {
  Procedure proc("Orvanta.exe-modFormatAddresses-saveCompanyContactRTF");
  auto db = render::storeReference();
  RecordsetHandle companyNotes = 0;

  proc.step([&] {
    if (!db_functions::validCompanyID(std::to_string(companyID)) || !render::connected(proc, db)) {
      proc.leave();
      return;
    }
    companyNotes = db->openRecordset(
        "SELECT CompaniesNotes.CompanyNum, CompaniesNotes.ContactNotes FROM CompaniesNotes "
        "WHERE CompanyNum=" +
            std::to_string(companyID) + ";",
        adOpenKeyset, adLockOptimistic);
  });
  proc.step([&] {
    if (!db->moveFirstRecord(companyNotes)) return;  // no notes row: nothing is added
    std::string text;
    FailureWatch composing;
    if (contactID >= 0) {
      int32_t contact = contactID;
      int32_t noEmployee = -1;
      int32_t company = companyID;
      text = saveContactBusinessRTF(contact, noEmployee, company, false);
    } else {
      text = saveNoDefaultComment();
    }
    // A summary a failure left incomplete keeps the stored one in place.
    if (!composing.sawFailure()) db->updateFieldValue(companyNotes, "ContactNotes", text);
  });
  proc.step([&] { db->closeRecordset(companyNotes); });
}

std::string saveNoDefaultComment() {
  Procedure proc("Orvanta.exe-modFormatAddresses-saveNoDefaultComment");
  std::string text;
  proc.step([&] {
    text = std::string(rtf::kDocumentHeader) + "\\b No Default Contact Selected.\\b0  " +
           rtf::kLineEnd + "}";
  });
  return text;
}

}  // namespace qb::modFormatAddresses
