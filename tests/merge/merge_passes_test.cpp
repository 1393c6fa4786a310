// The merge passes on the small firm: normalisation, the two sweeps with
// their blank guard and date forms, the removal of what is left (with its
// RTF quirk and a bracket left open), values made ready for rich text, and
// templates that are large or made of brackets.

#include "tests/merge/merge_firm.h"
#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

class MergePasses : public MergeTest {
 protected:
  MergePasses() {
    addMergeFirm(db);
    fields.setCompanyID(5);
    fields.setContactID(7);
    fields.setFirmID(1);
    fields.setListType(listTypeCompanyContact);
  }

  // The template merged as a host merges it: initialise, then parse.
  std::string merge(const std::string& text) {
    fields.initializeDataRecordsetsForSingleDocMerge();
    fields.setTemplateText(text);
    return fields.parseRTBComment();
  }

  MergeFields fields;
};

TEST_F(MergePasses, MarkersBecomeTheClientsValues) {
  fields.setConvertStrToRTF(false);
  EXPECT_EQ(merge(""), "");
  EXPECT_EQ(merge("No markers; the docket is ready."), "No markers; the Time Entry is ready.");
  EXPECT_EQ(merge("Dear «Contact First Name» of «Company Name»"), "Dear Ann of Acme Ltd.");
  EXPECT_EQ(merge("<<Company Name>> <<company name>>"), "Acme Ltd. Acme Ltd.");
  EXPECT_EQ(merge("X«Company Name»"), "XAcme Ltd.");
  // Rich text source writes the brackets as escapes; they merge in the
  // second sweep, in any case.
  EXPECT_EQ(merge("{\\rtf1 \\'abCity\\'bb, \\'ABContact Last Name\\'BB}"), "{\\rtf1 Ottawa, Lee}");
  // A date field in date form only, with the formatter's texts: a field's
  // "dd/mm/yy" prints its month by three letters, today's two digits.
  EXPECT_EQ(merge("«(Year End Date, dd/mm/yy)» «(Todays Date, dd/mm/yy)» «(Todays Date, mmmm d, "
                  "yyyy)» «(Year End Date, dddd, mmmm d yyyy)»"),
            "31/Mar/25 23/11/26 November 23, 2026 Monday, March 31 2025");
  EXPECT_EQ(merge("[«Year End Date»] [«(Company Name, mmmm d yyyy)»] [«todays date»]"), "[] [] []");
  // The search ignores case, the format included; the check would not.
  EXPECT_EQ(merge("«(YEAR END DATE, MMMM D YYYY)»"), "March 31 2025");
  // A date before 1900 and a Null column give nothing; unknown names are cut.
  EXPECT_EQ(merge("[«(Incorporation Date, yyyy)»][«Corporate Name»][«Nope»]"), "[][][]");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(MergePasses, ValuesGoingIntoRichTextKeepClearOfControlWords) {
  // The first occurrence decides for all: a value behind a letter gets a
  // blank, a value at the start or behind a blank does not.
  EXPECT_EQ(merge("X«Company Name»"), "X Acme Ltd.");
  EXPECT_EQ(merge("\\b«Company Name»\\b0 and «Company Name»"), "\\b Acme Ltd.\\b0 and  Acme Ltd.");
  EXPECT_EQ(merge("«Company Name»X«Company Name»"), "Acme Ltd.XAcme Ltd.");
  EXPECT_EQ(merge("A «Company Name»"), "A Acme Ltd.");
  // An empty value behind a letter leaves one blank.
  EXPECT_EQ(merge("A«Corporate Name»B"), "A B");
  // Line breaks become paragraphs; accents become the escapes of the RTF's
  // code page.
  db.exec("UPDATE Companies SET City = 'Montréal' WHERE CompanyID = 5;");
  EXPECT_EQ(merge("«Address» «City»"), "Unit 4\\par \r\n12 Main St. Montr\\'e9al");
  // Without word wrap the lines run on as a list.
  fields.setUseWordWrap(false);
  EXPECT_EQ(merge("«Address»"), "Unit 4, \r\n12 Main St.");
  // Plain text keeps its line breaks.
  fields.setConvertStrToRTF(false);
  EXPECT_EQ(merge("«Address» «City»"), "Unit 4\r\n12 Main St. Montréal");
}

TEST_F(MergePasses, ValuesThatHoldMarkers) {
  fields.setConvertStrToRTF(false);
  // A value naming a later field is merged in turn; one naming an unknown
  // field is cut out with the rest.
  db.exec(
      "UPDATE Companies SET CompanyName = '«Contact First Name» & «Nope» Co.' WHERE "
      "CompanyID = 5;");
  EXPECT_EQ(merge("To «Company Name»"), "To Ann &  Co.");
  // Removing a marker can complete the one around it.
  EXPECT_EQ(merge("«Contact «Corporate Name»First Name»"), "Ann");
  // Bytes beside a marker can make a bracket once its value is in: a stray
  // first byte of "«" and a stray second byte, or the start of "\'ab".
  EXPECT_EQ(merge("\xC2«Corporate Name»\xAB"
                  "Contact First Name»"),
            "Ann");
  db.exec("UPDATE Companies SET CorporateName = 'b' WHERE CompanyID = 5;");
  EXPECT_EQ(merge("\\'a\\'abCorporate Name\\'bbContact First Name\\'bb"), "Ann");
  for (const char* text : {"\xC2«Corporate Name»\xAB"
                           "Contact First Name»",
                           "\\'a\\'abCorporate Name\\'bbContact First Name\\'bb",
                           "«Contact «Corporate Name»First Name»", "To «Company Name»"}) {
    fields.setTemplateText(text);
    EXPECT_EQ(fields.parseRTBComment(), fields.parseLiterally()) << text;
  }
}

TEST_F(MergePasses, WhatNoSweepReplacedIsRemoved) {
  fields.setConvertStrToRTF(false);
  // The RTF form leaves the last three characters of its close bracket.
  EXPECT_EQ(merge("a\\'abNope\\'bbb"), "a'bbb");
  // With both forms left, the plain ones go and the RTF ones stay.
  EXPECT_EQ(merge("«Nope» \\'abNope\\'bb"), " \\'abNope\\'bb");
  // Removal compares exactly: the unknown marker goes wherever it stands.
  EXPECT_EQ(merge("«Nope»,«Nope»,«NOPE»"), ",,");
  // A marker runs to the first close bracket after it.
  EXPECT_EQ(merge("x «open «Nope»"), "x ");
  // A bracket that never closes ends the removal: the rest stays as it is,
  // RTF markers behind it too.
  EXPECT_EQ(merge("«Nope» «Contact First Name» and «open"), " Ann and «open");
  EXPECT_EQ(merge("«open \\'abNope\\'bb"), "«open \\'abNope\\'bb");
  // A piece is cut wherever its text stands, also from the start of a
  // bracket that never closes (found by fuzzing the merge against the
  // literal passes).
  std::string lone = "\\'abNope\\'bb \\'abNope\\'b x";
  fields.replaceUnfoundMergeFieldsWithBlanks(lone);
  EXPECT_EQ(lone, "'bb 'b x");
  fields.setTemplateText(
      "{\\rtf1\\ansi \\b\\'abCompany Na\xf7"
      "e\\'bb\\b0\\p(:r \\'b\\'abCompany Na\xf7"
      "e\\'b "
      "Datm, ddb}");
  EXPECT_EQ(fields.parseRTBComment(), fields.parseLiterally());
  // A lone close bracket is just text.
  EXPECT_EQ(merge("» «Nope» »"), "»  »");
  std::string text = "\\par \r\n\\par \r\nx";
  EXPECT_EQ(fields.removeBlankLinesFromRTFText(text), "\\par \r\n\\par \r\nx");
  MergeFields noTable;
  EXPECT_FALSE(noTable.replaceUnfoundMergeFieldsWithBlanks(text));
  EXPECT_EQ(text, "\\par \r\n\\par \r\nx");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(MergePasses, TestModeAndTheFirstMergeOfAnEmptyTable) {
  // With no ids the first merge only builds the table: the markers stay,
  // typed brackets normalised.
  MergeFields fresh;
  fresh.setTemplateText("<<Company Name>> «Nope»");
  EXPECT_EQ(fresh.parseRTBComment(), "«Company Name» «Nope»");
  fresh.setCompanyID(5);
  EXPECT_EQ(fresh.parseRTBComment(), "«Company Name» «Nope»");  // builds the table, still False
  fresh.setConvertStrToRTF(false);
  EXPECT_EQ(fresh.parseRTBComment(), "Acme Ltd. ");
  EXPECT_EQ(fresh.TemplateText(), "<<Company Name>> «Nope»");

  // Test mode gives the samples, dates as they stand whatever the format,
  // and reads no store; today's date is still today's.
  disconnect();
  fields.setTestComment(true);
  fields.setConvertStrToRTF(false);
  EXPECT_EQ(merge("«Company Name», «(Year End Date, dddd)», «(Todays Date, yyyy)», «Email»"),
            "ABC Consulting, 03/31/2026, 2026, info@abcconsulting.com");
  // Without a store the first custom field of a block prints empty.
  EXPECT_EQ(merge("[«Company Custom Field 1»][«Company Custom Field 2»]"),
            "[][Company Custom Info 2]");
}

TEST_F(MergePasses, ACompanysNameStandsForAContactWithoutACompany) {
  fields.setConvertStrToRTF(false);
  fields.setCompanyID(-1);
  fields.setContactID(8);
  EXPECT_EQ(merge("Dear «Company Name»"), "Dear ");
  fields.setConvertCompanyNameToContactNameForContacts(true);
  EXPECT_EQ(merge("Dear «Company Name», «company name»"), "Dear Sam Solo, Sam Solo");
  EXPECT_EQ(merge("Dear \\'abCompany Name\\'bb"), "Dear Sam Solo");
  // Not when the template names the contact already.
  EXPECT_EQ(merge("«Company Name» / «Contact Display Name»"), " / Sam Solo");
  // Not for a company.
  fields.setCompanyID(5);
  EXPECT_EQ(merge("«Company Name»"), "Acme Ltd.");
}

TEST_F(MergePasses, LargeTemplatesAndTemplatesOfBrackets) {
  fields.setConvertStrToRTF(false);
  fields.initializeDataRecordsetsForSingleDocMerge();
  std::string letter;
  std::string expected;
  for (int i = 0; i < 60000; ++i) {
    letter +=
        "Dear «Contact First Name», «Nope» \\'abCity\\'bb <<Missing" + std::to_string(i) + ">>\r\n";
    expected += "Dear Ann,  Ottawa \r\n";
  }
  fields.setTemplateText(letter);  // some 3.5 MB
  EXPECT_EQ(fields.parseRTBComment(), expected);

  // Nothing but brackets, nested every way: the merge ends, and gives what
  // the literal passes give on a part of it small enough for them.
  std::string brackets;
  uint32_t state = 7;
  for (int i = 0; i < 200000; ++i) {
    state = state * 1103515245 + 12345;
    brackets += (state >> 16) % 2 == 0 ? "«" : "»";
  }
  fields.setTemplateText(brackets);
  EXPECT_LT(fields.parseRTBComment().size(), brackets.size());
  fields.setTemplateText(brackets.substr(0, 2000));
  EXPECT_EQ(fields.parseRTBComment(), fields.parseLiterally());
}

TEST_F(MergePasses, AReplacementOfAMarker) {
  std::string text = "a«X» «x»";
  fields.replaceText(text, "«X»", "1");
  EXPECT_EQ(text, "a 1  1");  // the first occurrence follows a letter
  text = "«X»a";
  fields.replaceText(text, "«x»", "1");
  EXPECT_EQ(text, "1a");
  text = "abc";
  EXPECT_FALSE(fields.replaceText(text, "«X»", "1"));  // not there: nothing replaced
  EXPECT_EQ(text, "abc");
  fields.setConvertStrToRTF(false);
  text = "a«X»";
  fields.replaceText(text, "«x»", "1");
  EXPECT_EQ(text, "a1");
}

}  // namespace
}  // namespace qb::test
