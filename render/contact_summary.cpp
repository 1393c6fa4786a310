// saveContactBusinessRTF: the rich-text summary of a contact or a firm
// employee, composed section by section from the person's row and stored
// beside the person.

#include <string>
#include <vector>

#include "data/mod_database_functions.h"
#include "render/mod_database_client_functions.h"
#include "render/mod_format_addresses.h"
#include "render/rtf_text.h"
#include "render/store_access.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"

namespace qb::modFormatAddresses {

namespace db_functions = qb::modDatabaseFunctions;
using render::fieldBlank;
using render::fieldText;

namespace {

// One row of a section: the person's column and the label written ahead of
// its value. The labels' control words give each row its hanging indent; the
// blanks and \tab words at their ends line the values up and are kept.
struct FieldRow {
  const char* column;
  const char* label;
};

const std::vector<FieldRow> kIdentityRows = {
    {"DisplayName", "\\b\\pard\\fi-1450\\li1450\\ri0 Name:\\b0  "},
    {"ClientID", "\\b\\pard\\fi-1450\\li1450\\ri0 Client ID:\\b0  "},
    {"BusinessName", "\\b\\pard\\fi-1425\\li1425\\ri0 Company Name:\\b0   "},
    {"BusinessJobTitle", "\\b\\pard\\fi-800\\li800\\ri0 Job Title:\\b0   "},
    {"BusinessDepartment", "\\b\\pard\\fi-1050\\li1050\\ri0 Department:\\b0   "},
    {"BusinessOffice", "\\b\\pard\\fi-600\\li600\\ri0 Office:\\b0   "},
};

const std::vector<FieldRow> kReachRows = {
    {"BusinessPhone_Main", "\\b\\pard\\fi-1100\\li1100\\ri0 Main Phone:\\b0   "},
    {"BusinessAltPhoneNumber", "\\b\\pard\\fi-1100\\li1100\\ri0 Alternate Phone:\\b0   "},
    {"BusinessPhone_Cell", "\\b\\pard\\fi-1100\\li1100\\ri0 Cell Phone:\\b0     "},
    {"BusinessPhone_Fax", "\\b\\pard\\fi-1100\\li1100\\ri0 Fax:\\b0  \\tab         "},
    {"BusinessPhone_Pager", "\\b\\pard\\fi-1100\\li1100\\ri0 Pager:\\b0  \\tab         "},
    {"BusinessEmail", "\\b\\pard\\fi0\\li0\\ri0 Email:\\b0  \\tab         "},
    {"BusinessWebSite", "\\b Web Site:\\b0        "},
    {"BusinessFaceBookURL", "\\b FaceBook:\\b0        "},
    {"BusinessTwitterAccount", "\\b Twitter:\\b0        "},
};

// The insurance number is the same column everywhere; only its name differs.
std::vector<FieldRow> employmentRows(bool canada) {
  return {{"SocialInsuranceNumber",
           canada ? "\\b SIN:\\b0  \\tab\\tab    " : "\\b SSN:\\b0  \\tab\\tab    "},
          {"EmployeeType", "\\b Employee Type:\\b0  "}};
}

// A list of names the person is linked to (companies, categories): one name
// stands on its label's line, several go one to a line under the other label.
struct LinkedNames {
  std::string sql;
  const char* column;
  const char* oneLabel;
  const char* manyLabel;
};

LinkedNames associatedCompanies(const std::string& personID) {
  return {
      "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, Companies.CompanyName "
      "FROM ContactLinks INNER JOIN Companies ON ContactLinks.CompanyNum = Companies.CompanyID "
      "WHERE ContactLinks.ContactIDNum=" +
          personID + " AND Not ContactLinks.CompanyNum Is Null;",
      "CompanyName", "\\b\\pard\\fi0\\li0\\ri0 Associated Company: \\b0 ",
      "\\b\\pard\\fi0\\li0\\ri0 Other Associated Companies: \\b0\\par"};
}

LinkedNames associatedCategories(const std::string& personID) {
  return {
      "SELECT Categories.CategoryName, ContactLinks.ContactIDNum "
      "FROM Categories INNER JOIN ContactLinks ON Categories.CategoryID = ContactLinks.CategoryNum "
      "WHERE ContactLinks.ContactIDNum=" +
          personID + ";",
      "CategoryName", "\\b\\pard\\fi0\\li0\\ri0 Associated Category: \\b0 ",
      "\\b\\pard\\fi0\\li0\\ri0 Other Associated Categories: \\b0\\par"};
}

// The summary as it grows. The section flag says the current section wrote
// something; closing a section then leaves an empty line.
class Summary {
 public:
  explicit Summary(DatabaseReference* db) : db_(db) {}

  std::string text;
  bool sectionFlag = false;

  // A finished line: its content, the paragraph mark and a line break.
  void line(const std::string& content) {
    text += content;
    text += rtf::kLineEnd;
    sectionFlag = true;
  }

  void fieldRows(RecordsetHandle person, const std::vector<FieldRow>& rows) {
    for (const FieldRow& row : rows) {
      if (fieldBlank(*db_, person, row.column)) continue;
      line(row.label + rtf::storedLine(fieldText(*db_, person, row.column)));
    }
  }

  void linkedNames(const LinkedNames& names) {
    RecordsetHandle links = db_->openRecordset(names.sql, adOpenKeyset, adLockOptimistic);
    int count = 0;
    std::string list;
    bool anyRow = db_->moveFirstRecord(links);
    if (anyRow) {
      while (!db_->isEndOfRecordset(links)) {
        if (!fieldBlank(*db_, links, names.column)) {
          ++count;
          list += rtf::storedLine(fieldText(*db_, links, names.column)) + rtf::kLineEnd;
        }
        db_->moveNextRecord(links);
      }
    }
    if (count >= 1) {
      if (sectionFlag) text += rtf::kLineEnd;  // a gap, and the flag stays
      text += count == 1 ? std::string(names.oneLabel) + list
                         : std::string(names.manyLabel) + "\r\n" + list;
    }
    // A first row sets the flag even when every name in it was blank.
    if (anyRow) sectionFlag = true;
    db_->closeRecordset(links);
  }

  void endSection() {
    if (!sectionFlag) return;
    text += rtf::kLineEnd;
    sectionFlag = false;
  }

 private:
  DatabaseReference* db_;
};

}  // namespace

std::string saveContactBusinessRTF(int32_t& contactID, int32_t& employeeID, int32_t& companyID,
                                   bool skipOtherCompanies) {
  Procedure proc("Orvanta.exe-modFormatAddresses-saveContactBusinessRTF");
  auto db = render::storeReference();
  std::string result;
  bool isEmployee = false;
  std::string personID;
  RecordsetHandle person = 0;
  RecordsetHandle customFields = 0;
  RecordsetHandle contactNotes = 0;
  Summary summary(db.get());
  FailureWatch composing;

  proc.step([&] {
    if (!render::connected(proc, db)) proc.leave();
  });
  proc.step([&] {
    if (db_functions::validEmployeeID(std::to_string(employeeID))) {
      isEmployee = true;
      personID = std::to_string(employeeID);
      person = db->openRecordset(
          "SELECT AccountantEmployeeInfo.* FROM AccountantEmployeeInfo WHERE "
          "AccountantEmployeeInfo.ContactID=" +
              personID + ";",
          adOpenKeyset, adLockOptimistic);
    } else if (db_functions::validContactID(std::to_string(contactID))) {
      personID = std::to_string(contactID);
      person = db->openRecordset(
          "SELECT Contacts.* FROM Contacts WHERE Contacts.ContactID=" + personID + ";",
          adOpenKeyset, adLockOptimistic);
    } else {
      proc.leave();
    }
  });
  proc.step([&] {
    customFields = db->openRecordset("SELECT CustomAddressFields.* FROM CustomAddressFields;",
                                     adOpenKeyset, adLockOptimistic);
    contactNotes = db->openRecordset(
        "SELECT ContactsNotes.* FROM ContactsNotes WHERE ContactNum=" + personID + ";",
        adOpenKeyset, adLockOptimistic);
  });
  proc.step([&] {
    if (db->moveFirstRecord(person)) return;
    db->closeRecordset(person);
    db->closeRecordset(customFields);
    db->closeRecordset(contactNotes);
    proc.leave();
  });
  proc.step([&] { summary.text = rtf::kDocumentHeader; });

  // Section 1: who the person is.
  proc.step([&] {
    summary.fieldRows(person, kIdentityRows);
    summary.endSection();
  });
  // Section 2: whether a contact is the default contact of the company whose
  // view the summary takes.
  proc.step([&] {
    if (isEmployee) return;
    bool isDefault = db_functions::validCompanyID(std::to_string(companyID)) &&
                     modDatabaseClientFunctions::isContactDefaultContact(companyID, contactID);
    summary.line(isDefault ? "\\b Default Contact:\\b0  Yes" : "\\b Default Contact:\\b0  No");
    summary.endSection();
  });
  // Section 3: phones and other ways to reach the person.
  proc.step([&] {
    summary.fieldRows(person, kReachRows);
    summary.endSection();
  });
  // Section 4: the business address block, with the business and the
  // person's name again; for an inheriting contact the company's address.
  proc.step([&] {
    bool convertRTF = true, includeAddress = true, includePhones = false, includeEmail = false,
         includeBusinessName = true;
    std::string address =
        createBusinessContactAddress(contactID, convertRTF, employeeID, companyID, includeAddress,
                                     includePhones, includeEmail, includeBusinessName);
    if (isBlankValue(Variant(address))) return;
    summary.text += "\\b\\pard\\fi0\\li0\\ri0 Address:\\b0\\par\r\n";
    summary.line(address);
  });
  proc.step([&] { summary.endSection(); });
  // Section 5: employment, then the companies a contact is linked to.
  proc.step([&] {
    auto* locale = moduleState().localeReference.get();
    if (locale == nullptr) throw RuntimeError(err::kObjectRequired, "Object variable not set");
    summary.fieldRows(person, employmentRows(locale->getCountryCode() == 1));
  });
  proc.step([&] {
    if (!isEmployee) summary.linkedNames(associatedCompanies(personID));
  });
  proc.step([&] { summary.endSection(); });
  // Section 6: the alternate address, under its own name when it has one.
  proc.step([&] {
    static const char* const kAltColumns[] = {"AltAddress", "AltCity", "AltProvince",
                                              "AltPostalCode", "AltCountry"};
    bool anyFilled = false;
    for (const char* column : kAltColumns)
      anyFilled = anyFilled || !fieldBlank(*db, person, column);
    if (!anyFilled) return;
    AddressRecord alternate;
    alternate.addressText = fieldText(*db, person, "AltAddress");
    alternate.city = fieldText(*db, person, "AltCity");
    alternate.province = fieldText(*db, person, "AltProvince");
    alternate.postalCode = fieldText(*db, person, "AltPostalCode");
    alternate.country = fieldText(*db, person, "AltCountry");
    bool includeContactName = false, convertRTF = true;
    std::string block = createAddress(alternate, includeContactName, convertRTF);
    if (isBlankValue(Variant(block))) return;
    if (fieldBlank(*db, person, "AltAddressName")) {
      summary.text += "\\b\\pard\\fi0\\li0\\ri0 Address:\\b0\\par\r\n";
    } else {
      summary.text += "\\b\\pard\\fi0\\li0\\ri0 Address (" +
                      rtf::storedLine(fieldText(*db, person, "AltAddressName")) + "):\\b0\\par\r\n";
    }
    summary.line(block);
  });
  proc.step([&] { summary.endSection(); });
  // Section 7: the categories the person is linked to.
  proc.step([&] {
    summary.linkedNames(associatedCategories(personID));
    summary.endSection();
  });
  // Section 8: the custom fields under the firm's own labels, as stored
  // (with their colon); a label never set shows as it stands.
  proc.step([&] {
    if (db->isRecordsetEmpty(customFields)) {
      db->addNewRecord(customFields);
      db->updateRecord(customFields);
    }
    db->moveFirstRecord(customFields);
    for (int n = 1; n <= 5; ++n) {
      std::string column = "Custom" + std::to_string(n);
      if (fieldBlank(*db, person, column.c_str())) continue;
      std::string labelColumn = "ContactLabel" + std::to_string(n);
      summary.line("\\b " + rtf::storedLine(fieldText(*db, customFields, labelColumn.c_str())) +
                   "\\b0  " + rtf::storedLine(fieldText(*db, person, column.c_str())));
    }
    summary.endSection();
  });
  // Section 9: the notes, an employee's from its own row, a contact's from
  // its notes row.
  proc.step([&] {
    std::string notes;
    if (isEmployee) {
      notes = fieldText(*db, person, "Notes");
    } else if (db->moveFirstRecord(contactNotes)) {
      notes = fieldText(*db, contactNotes, "Notes");
    }
    if (isBlankValue(Variant(notes))) return;
    summary.text += "\\b Notes:\\b0\\par\r\n";
    summary.line(convertToRTF(rtf::storedText(notes)));
  });
  proc.step([&] { summary.endSection(); });
  proc.step([&] {
    if (summary.sectionFlag) summary.text += rtf::kLineEnd;
    summary.text += "}";
    result = summary.text;
  });

  // Store it beside the person. A new notes row is given no ContactNum. A
  // summary that a failure (reported already) left incomplete is not stored
  // over the one there, nor copied.
  bool complete = false;
  proc.step([&] { complete = !composing.sawFailure(); });
  proc.step([&] {
    if (!complete) return;
    if (isEmployee) {
      db->updateFieldValue(person, "BusinessNotes", result);
    } else if (db->moveFirstRecord(contactNotes)) {
      db->updateFieldValue(contactNotes, "BusinessNotes", result);
    } else {
      db->addNewRecord(contactNotes);
      db->setFieldValue(contactNotes, "BusinessNotes", result);
      db->updateRecord(contactNotes);
    }
  });
  proc.step([&] {
    if (complete && !isEmployee && !skipOtherCompanies) {
      saveContactBusinessRTFForAllCompanies(contactID, companyID, result);
    }
  });
  proc.step([&] {
    db->closeRecordset(person);
    db->closeRecordset(customFields);
    db->closeRecordset(contactNotes);
  });
  return result;
}

}  // namespace qb::modFormatAddresses
