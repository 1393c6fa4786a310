// The template check: each message word for word, at most one per call,
// the two bracket forms, and the caller's text left as it was.

#include "tests/merge/merge_fixture.h"

namespace qb::test {
namespace {

const char* const kOpening =
    "You are missing your opening brackets, '«' in one of your expressions";
const char* const kClosingRound =
    "You are missing the closing round bracket, ')' in one of your date expressions";
const char* const kOpeningRound =
    "You are missing the opening round bracket, '(' in one of your date expressions";
const char* const kClosing =
    "You are missing a closing bracket, '»' in one of your expressions.  Make sure you have a "
    "bracket immediately before and after a field.\r\n\r\neg. «Company Name»";

class TemplateCheck : public MergeTest {
 protected:
  TemplateCheck() {
    fields.setCompanyID(5);
    build(fields, listTypeCompany);
    fields.testErrorComment = [this](std::string& message) { messages.push_back(message); };
  }

  // The check's result with messages on; the messages land in messages.
  bool check(std::string text, bool rich = false, bool skipFieldTest = false) {
    messages.clear();
    const std::string before = text;
    const bool error = fields.testRTBComment(text, rich, true, skipFieldTest);
    EXPECT_EQ(text, before) << "the caller's text changed";
    EXPECT_LE(messages.size(), 1u);
    EXPECT_EQ(error, !messages.empty()) << "an error without its message, or the other way";
    return error;
  }
  std::string message() const { return messages.empty() ? "" : messages.front(); }

  MergeFields fields;
  std::vector<std::string> messages;
};

TEST_F(TemplateCheck, GoodTemplatesPass) {
  EXPECT_FALSE(check(""));
  EXPECT_FALSE(check("Dear client, no markers here."));
  EXPECT_FALSE(check("abc»"));  // a lone close bracket is no error
  EXPECT_FALSE(check("Dear «Contact First Name», re «Company Name» «Company Name»"));
  EXPECT_FALSE(check("«(Year End Date, mmmm d, yyyy)» «( Todays Date ,  dd/mm/yy )»"));
  EXPECT_FALSE(check("«todays date» «TODAYS DATE»"));  // built in, any case
  EXPECT_FALSE(check("«company name»"));               // names compare in any case
  EXPECT_FALSE(check("<<Company Name>> «(Year End Date, Long Date)»"));  // normalised first
  // The name of a date marker is checked as a name, its type is not.
  EXPECT_FALSE(check("«(Company Name, mmmm d yyyy)»"));
  // Every one of the fourteen formats.
  for (const char* format : mergeFormatTable) {
    EXPECT_FALSE(check(std::string("«(Todays Date, ") + format + ")»")) << format;
  }
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(TemplateCheck, EachMessageWordForWord) {
  EXPECT_TRUE(check("«abc"));
  EXPECT_EQ(message(), kOpening);
  EXPECT_TRUE(check("x» then «Company Name»"));
  EXPECT_EQ(message(), kOpening);
  EXPECT_TRUE(check("«Company Name» then »«City"));  // the test again after a marker
  EXPECT_EQ(message(), kOpening);

  EXPECT_TRUE(check("«(Year End Date, mmmm d yyyy»"));
  EXPECT_EQ(message(), kClosingRound);
  EXPECT_TRUE(check("«Company Name)»"));
  EXPECT_EQ(message(), kOpeningRound);

  // The check of formats is exact, the merge's search is not.
  EXPECT_TRUE(check("«(Year End Date, MMMM D YYYY)»"));
  EXPECT_EQ(message(),
            "The date format of: 'MMMM D YYYY' is not valid.  Please see help for valid date "
            "formats.");
  EXPECT_TRUE(check("«(Year End Date, d, yyyy)»"));
  EXPECT_EQ(message(),
            "The date format of: 'd, yyyy' is not valid.  Please see help for valid date formats.");

  // A missing close bracket swallows the text up to the next one.
  EXPECT_TRUE(check("«Company Name and a long run of the letter's own text » "));
  EXPECT_EQ(message(), kClosing);

  EXPECT_TRUE(check("«Company Nmae»"));
  EXPECT_EQ(message(),
            "The Orvanta Pad did not recognize: «Company Nmae» as a valid placeholder field name.");
  db.locale().applicationTitle = "Quill";
  EXPECT_TRUE(check("«(Nothing, d)»"));
  EXPECT_EQ(message(),
            "The Quill Pad did not recognize: «Nothing» as a valid placeholder field name.");
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(TemplateCheck, LengthsAndTheFirstErrorOnly) {
  // Forty characters are allowed, forty-one are not; a trimmed date name
  // counts as it stands after the trim.
  EXPECT_FALSE(check("«" + std::string(40, 'x') + "»", false, true));
  EXPECT_TRUE(check("«" + std::string(41, 'x') + "»", false, true));
  EXPECT_EQ(message(), kClosing);
  EXPECT_FALSE(check("«(   " + std::string(40, 'x') + "   , d)»", false, true));
  // "«" is one character: a body of forty «s is forty long.
  std::string brackets;
  for (int i = 0; i < 40; ++i) brackets += "é";
  EXPECT_FALSE(check("«" + brackets + "»", false, true));

  // The walk stops at the first error: one message, the first one's.
  EXPECT_TRUE(check("«Nope» «(Year End Date, x)» «abc"));
  EXPECT_EQ(message(),
            "The Orvanta Pad did not recognize: «Nope» as a valid placeholder field name.");

  // Without messages the result is the same and nothing is raised.
  messages.clear();
  std::string text = "«Nope»";
  EXPECT_TRUE(fields.testRTBComment(text, false, false, false));
  EXPECT_TRUE(messages.empty());
  // Unknown names pass when the names are not checked.
  EXPECT_FALSE(check("«Nope» «(Anything, d)»", false, true));
}

TEST_F(TemplateCheck, TheRichBracketsAreTheOnlyOnesLookedAtInRichText) {
  EXPECT_FALSE(check("{\\rtf1 Dear \\'abContact First Name\\'bb,\\par «Nope»}", true));
  EXPECT_FALSE(check("\\'ABCompany Name\\'BB", true));  // the brackets in any case
  EXPECT_TRUE(check("{\\rtf1 \\'abNope\\'bb}", true));
  EXPECT_EQ(message(),
            "The Orvanta Pad did not recognize: «Nope» as a valid placeholder field name.");
  EXPECT_TRUE(check("\\'abCompany Name", true));
  EXPECT_EQ(message(), kOpening);
  EXPECT_TRUE(check("\\'ab(Year End Date, d\\'bb", true));
  EXPECT_EQ(message(), kClosingRound);
  // In plain text the RTF form is just text.
  EXPECT_FALSE(check("\\'abNope\\'bb"));
  EXPECT_EQ(fields.convertFieldName("«Name» and «x»"), "\\'abName\\'bb and \\'abx\\'bb");
}

TEST_F(TemplateCheck, ADateMarkerWithoutItsFormatGoesToTheErrorObject) {
  // The format half is read and is not there: a run-time failure, reported
  // with the check's trace, and the check ends saying the text is good.
  EXPECT_FALSE(check("«(Due Date)» «Nope»"));
  ASSERT_EQ(db.errors().failures.size(), 1u);
  EXPECT_EQ(db.errors().failures.front().number, err::kSubscript);
  EXPECT_EQ(db.errors().failures.front().source, "Orvanta.exe-clsInsertFieldsInRTB-testRTBComment");
}

TEST_F(TemplateCheck, NamesOfTheLanguage) {
  EXPECT_TRUE(fields.testStr("Todays Date"));
  EXPECT_TRUE(fields.testStr("tOdAyS dAtE"));
  EXPECT_TRUE(fields.testStr("Company Name"));
  EXPECT_FALSE(fields.testStr("Today's Date"));
  EXPECT_FALSE(fields.testStr("Company Name "));  // blanks count
  // A table that was never built knows only today's date.
  MergeFields empty;
  EXPECT_TRUE(empty.testStr("Todays Date"));
  EXPECT_FALSE(empty.testStr("Company Name"));
}

}  // namespace
}  // namespace qb::test
