// The merge's route against the literal passes, byte for byte, on many
// generated templates: in test mode and against the store, with values that
// hold markers of later fields, brackets and RTF, in plain and rich text,
// with and without word wrap, and for a contact that takes the company's
// name. A failure prints the template, the value set and both results.

#include <random>

#include "tests/merge/merge_firm.h"
#include "tests/merge/merge_fixture.h"
#include "tests/merge/template_generator.h"

namespace qb::test {
namespace {

// Text with its control characters and bytes beyond ASCII made visible.
std::string visible(const std::string& text) {
  std::string shown;
  for (unsigned char c : text) {
    if (c == '\r') {
      shown += "\\r";
    } else if (c == '\n') {
      shown += "\\n";
    } else if (c >= 0x80) {
      static constexpr char kHex[] = "0123456789ABCDEF";
      shown += std::string("\\x") + kHex[c >> 4] + kHex[c & 0xF];
    } else {
      shown += static_cast<char>(c);
    }
  }
  return shown;
}

class Differential : public MergeTest {
 protected:
  Differential() {
    addMergeFirm(db);
    // Labels that look like other markers: a simple field whose name is a
    // date form of another, one with a comma and blanks.
    db.exec(
        "UPDATE CustomAddressFields SET ContactLabel1 = '(Year End Date, d)', ContactLabel2 = "
        "'Ref, No:', ContactLabel3 = '', CompanyLabel1 = '(Contact Birthday, dddd)';");
  }

  // The names of the table's fields, simple and dated.
  static void namesOf(clsInsertFieldsInRTB& fields, std::vector<std::string>& names,
                      std::vector<std::string>& dated) {
    FieldListClass table = fields.FieldList();
    for (int32_t index = 1; index <= table.getFieldRowCount(); ++index) {
      int32_t row = index;
      if (!table.moveToFieldRow(row)) continue;
      const std::string name = toText(table.getFieldColumn(fieldDisplayNameColumn));
      (CLng(table.getFieldColumn(fieldTypeColumn)) == fieldTypeDate ? dated : names)
          .push_back(name);
    }
  }

  // Gives some columns behind the fields values drawn from a pool that
  // holds markers, brackets, RTF and line breaks.
  std::string drawValues(std::mt19937& random) {
    static const char* const kPool[] = {"Acme",
                                        "",
                                        " ",
                                        "«Contact First Name»",
                                        "\\'abCity\\'bb",
                                        "A«B",
                                        "x»",
                                        "\\",
                                        "\\'",
                                        "a",
                                        "b",
                                        "bb",
                                        "Line1\r\nLine2",
                                        "Côté",
                                        "«",
                                        "'bb",
                                        "«(Todays Date, d)»",
                                        "«Nope»",
                                        "Company Name",
                                        "«Company Name",
                                        "\\'abContact Display Name\\'bb",
                                        "«Contact Display Name»x»"};
    auto value = [&] {
      return std::string(
          kPool[std::uniform_int_distribution<size_t>(0, std::size(kPool) - 1)(random)]);
    };
    std::string set;
    auto assign = [&](const std::string& table, const std::string& column, const std::string& key) {
      const std::string chosen = value();
      db.exec("UPDATE " + table + " SET " + column + " = '" + Replace(chosen, "'", "''") +
              "' WHERE " + key + ";");
      set += column + "=" + chosen + " ";
    };
    assign("Companies", "CompanyName", "CompanyID = 5");
    assign("Companies", "City", "CompanyID = 5");
    assign("Companies", "Address", "CompanyID = 5");
    assign("Contacts", "FirstName", "ContactID = 7");
    assign("Contacts", "DisplayName", "ContactID = 7");
    assign("Contacts", "BusinessEmail", "ContactID = 7");
    assign("Appointments", "Subject", "AppointmentID = 11");
    assign("CompaniesNotes", "Notes", "CompanyNum = 5");
    return set;
  }

  // Merges templates both ways with the options given and counts the
  // templates compared.
  void compare(MergeFields& fields, TemplateGenerator& templates, int count,
               const std::string& setting) {
    for (int n = 0; n < count; ++n) {
      const std::string text = templates.next();
      fields.setTemplateText(text);
      const std::string fast = fields.parseRTBComment();
      const std::string literal = fields.parseLiterally();
      ASSERT_EQ(visible(fast), visible(literal))
          << "template: " << visible(text) << "\nsetting: " << setting;
      ++compared;
    }
  }

  int compared = 0;
};

TEST_F(Differential, TheMergeGivesWhatTheLiteralPassesGive) {
  std::mt19937 random(20261123);
  for (int round = 0; round < 24; ++round) {
    const std::string values = drawValues(random);
    MergeFields fields;
    const bool contactOnly = round % 6 == 5;
    fields.setCompanyID(contactOnly ? -1 : 5);
    fields.setContactID(7);
    fields.setFirmID(1);
    fields.setAppointmentID(round % 3 == 0 ? 11 : -1);
    fields.setListType(round % 3 == 0 ? listTypeAppointment : listTypeCompanyContact);
    fields.setTestComment(round % 4 == 1);
    fields.setConvertStrToRTF(round % 2 == 0);
    fields.setUseWordWrap(round % 5 != 2);
    fields.setConvertCompanyNameToContactNameForContacts(contactOnly);
    fields.initializeDataRecordsetsForSingleDocMerge();
    std::vector<std::string> names;
    std::vector<std::string> dated;
    namesOf(fields, names, dated);
    TemplateGenerator templates(static_cast<uint32_t>(round), names, dated);
    compare(fields, templates, 120, values + "round " + std::to_string(round));
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(compared, 24 * 120);
}

TEST_F(Differential, RichTextTemplatesWhoseUnfoundMarkersAreRemovedInTheirRtfForm) {
  MergeFields fields;
  fields.setCompanyID(5);
  fields.setContactID(7);
  fields.initializeDataRecordsetsForSingleDocMerge();
  std::vector<std::string> names;
  std::vector<std::string> dated;
  namesOf(fields, names, dated);
  TemplateGenerator templates(11, names, dated, true);
  compare(fields, templates, 1500, "RTF brackets only");
}

TEST_F(Differential, AnEmptyTableLeavesTheMarkersAsTheyAre) {
  MergeFields fields;  // no ids: the first merge only builds the table
  TemplateGenerator templates(3, {"Company Name"}, {"Year End Date"});
  compare(fields, templates, 50, "no ids");
}

}  // namespace
}  // namespace qb::test
