// The merge commands of the tool on the sample firm: merge, check-template,
// display-text and write-field, their results exactly, their exit statuses
// and what they say to a mistake.

#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

using MergeCommands = CliTest;

TEST_F(MergeCommands, AMergePrintsTheFinishedTextAndNothingElse) {
  const ToolRun letter =
      run({"merge", "--db", db_, "--company", "2", "--contact", "10", "--firm", "1", "--today",
           "2026-11-23", "--text",
           "Dear «Contact First Name», «Company Name» «(Todays Date, mmmm d, yyyy)» "
           "«(Year End Date, mmmm d yyyy)» <<Your Company Name>> «Nope»!"});
  ASSERT_EQ(letter.status, 0) << letter.err;
  EXPECT_EQ(letter.err, "");
  EXPECT_EQ(letter.out,
            "Dear Margaret, Maple Leaf Bakery Ltd. November 23, 2026 December 31 2025 Rideau "
            "Valley Accounting LLP !");
  // An RTF template gets its values ready for RTF: a blank after a control
  // word, line breaks as paragraphs; --plain leaves them as they are.
  const std::string rtf = "{\\rtf1 \\b\\'abCompany Name\\'bb\\b0  \\'abCity\\'bb}";
  EXPECT_EQ(run({"merge", "--db", db_, "--company", "2", "--text", rtf}).out,
            "{\\rtf1 \\b Maple Leaf Bakery Ltd.\\b0  Ottawa}");
  EXPECT_EQ(run({"merge", "--db", db_, "--company", "2", "--plain", "--text", rtf}).out,
            "{\\rtf1 \\bMaple Leaf Bakery Ltd.\\b0  Ottawa}");
  EXPECT_EQ(run({"merge", "--db", db_, "--company", "2", "--rtf", "--text", "x«City»"}).out,
            "x Ottawa");
  // Test mode gives the samples; without a database the fields are blank.
  EXPECT_EQ(run({"merge", "--test", "--company", "1", "--text", "«Company Name»"}).out,
            "ABC Consulting");
  EXPECT_EQ(run({"merge", "--company", "1", "--text", "[«Company Name»]"}).out, "[]");
  // A contact without a company answers for the company's name when asked.
  EXPECT_EQ(run({"merge", "--db", db_, "--contact", "31", "--company-as-contact", "--text",
                 "«Company Name»"})
                .out,
            run({"merge", "--db", db_, "--contact", "31", "--text", "«Contact Display Name»"}).out);
}

TEST_F(MergeCommands, TheCheckPrintsItsMessageAndExitsOneForAnError) {
  const ToolRun good = run({"check-template", "--text", "«Company Name» «(Todays Date, d)»"});
  EXPECT_EQ(good.status, 0);
  EXPECT_EQ(good.out, "");
  const ToolRun bad =
      run({"check-template", "--db", db_, "--company", "2", "--text", "Dear «Compnay Name»"});
  EXPECT_EQ(bad.status, 1);
  EXPECT_EQ(bad.out,
            "The Orvanta Pad did not recognize: «Compnay Name» as a valid placeholder field name.");
  EXPECT_EQ(run({"check-template", "--text",
                 "«Company Name and a long run of the letter's own "
                 "text »"})
                .out,
            "You are missing a closing bracket, '»' in one of your expressions.  Make sure you "
            "have a bracket immediately before and after a field.\r\n\r\neg. «Company Name»");
  EXPECT_EQ(run({"check-template", "--rich", "--text", "«Nope» \\'abCity\\'bb"}).status, 0);
  EXPECT_EQ(run({"check-template", "--skip-fields", "--text", "«Nope»"}).status, 0);
  // A date marker without its format is a failure of the check itself.
  const ToolRun failed = run({"check-template", "--text", "«(Due Date)»"});
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.out, "");
  EXPECT_NE(failed.err.find("Orvanta.exe-clsInsertFieldsInRTB-testRTBComment"), std::string::npos)
      << failed.err;
}

TEST_F(MergeCommands, DisplayTextsForTheUser) {
  EXPECT_EQ(
      run({"display-text", "--db", db_, "--list-type", "5", "--appointment", "1", "--company", "2"})
          .out,
      "Reminder:\r\nYear-end planning meeting with Maple Leaf Bakery Ltd.\r\n 9:00 am to "
      "10:30 am\r\nBring the bank statements.");
  EXPECT_EQ(run({"display-text", "--db", db_, "--list-type", "5", "--appointment", "1", "--company",
                 "2", "--title"})
                .out,
            "Year-end planning meeting - Maple Leaf Bakery Ltd.");
  // User 2 has "0": the built-in template.
  EXPECT_EQ(run({"display-text", "--db", db_, "--user", "2", "--list-type", "6", "--docket", "2",
                 "--company", "2"})
                .out,
            "1:00 pm to 1:40 pm\r\n Maple Leaf Bakery Ltd.\r\n Bank reconciliation");
  EXPECT_EQ(run({"display-text", "--list-type", "3"}).status, 2);
  EXPECT_EQ(run({"display-text", "--list-type", "8", "--task", "1", "--schedule", "1"}).status, 2);
}

TEST_F(MergeCommands, AValueWrittenBackReadsBackThroughTheMerge) {
  ToolRun wrote =
      run({"write-field", "--db", db_, "--company", "2", "--field", "City", "--value", "Gatineau"});
  ASSERT_EQ(wrote.status, 0) << wrote.err;
  EXPECT_EQ(wrote.out, "");
  EXPECT_EQ(scalar("SELECT City FROM Companies WHERE CompanyID = 2;"), "Gatineau");
  EXPECT_EQ(run({"merge", "--db", db_, "--company", "2", "--text", "«City»"}).out, "Gatineau");
  EXPECT_EQ(run({"write-field", "--db", db_, "--company", "2", "--field", "YearEndDate", "--value",
                 "2026-06-30"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT YearEndDate FROM AccountingServices WHERE AccountingServiceID = "
                   "(SELECT ClientDataID FROM ClientData WHERE CompanyIDNum = 2);"),
            "2026-06-30");
  // A name the field list does not have writes nothing and says so.
  const ToolRun unknown =
      run({"write-field", "--db", db_, "--company", "2", "--field", "Nope", "--value", "x"});
  EXPECT_EQ(unknown.status, 1);
  EXPECT_NE(unknown.err.find("no field named 'Nope'"), std::string::npos) << unknown.err;
  EXPECT_EQ(run({"write-field", "--db", db_, "--field", "City"}).status, 2);  // no --value
  // A display name, as a template writes it, names its field too.
  ASSERT_EQ(run({"write-field", "--db", db_, "--company", "2", "--field", "Company Alternate City",
                 "--value", "Hull"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT AltCity FROM Companies WHERE CompanyID = 2;"), "Hull");
  // The firm's "Your City" is the field City, which write-back takes for
  // the company's: refused, and nothing written.
  const ToolRun firmCity = run({"write-field", "--db", db_, "--company", "2", "--firm", "1",
                                "--field", "Your City", "--value", "Nowhere"});
  EXPECT_EQ(firmCity.status, 1);
  EXPECT_NE(firmCity.err.find("'Your City' is the field City"), std::string::npos) << firmCity.err;
  EXPECT_EQ(scalar("SELECT City FROM Companies WHERE CompanyID = 2;"), "Gatineau");
  // Write-back sets its own use.
  EXPECT_EQ(
      run({"write-field", "--db", db_, "--use", "1", "--field", "City", "--value", "x"}).status, 2);
}

}  // namespace
}  // namespace qb::test
