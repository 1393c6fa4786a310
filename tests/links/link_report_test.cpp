// The reports as the tool prints them: the check in its three forms, the
// relink and locate reports before and after they were applied, and the
// quoting of text for CSV and JSON.

#include "links/link_report.h"

#include <sstream>

#include "services/util/structured_text.h"
#include "tests/links/links_test.h"

namespace qb::test {
namespace {

using links::LinkState;
using links::RepointOutcome;

links::LinkRecord record(int32_t id, int32_t company, int32_t contact, std::string client,
                         std::string name, std::string path) {
  links::LinkRecord link;
  link.documentID = id;
  link.companyID = company;
  link.contactID = contact;
  link.clientName = std::move(client);
  link.categoryPath = "Tax / 2024";
  link.name = std::move(name);
  link.path = std::move(path);
  link.computer = "OFFICE-1";
  return link;
}

std::vector<links::CheckedLink> sampleCheck() {
  return {{record(4, 2, -1, "Birch, Sons & \"Co\"", "Lease\tdraft", "/f/Lease.docx"),
           LinkState::present},
          {record(9, -1, 5, "Ann Lée", "Will", "/f/Will.pdf"), LinkState::otherComputer}};
}

TEST(LinkReport, TheCheckInItsThreeForms) {
  links::ReportFormat format{};
  EXPECT_TRUE(links::reportFormatNamed("json", format));
  EXPECT_EQ(format, links::ReportFormat::json);
  EXPECT_FALSE(links::reportFormatNamed("xml", format));

  std::ostringstream text, csv, json, empty;
  links::writeCheckReport(text, sampleCheck(), links::countStates(sampleCheck()),
                          links::ReportFormat::text);
  EXPECT_EQ(text.str(),
            "present\t4\tBirch, Sons & \"Co\"\tTax / 2024\tLease\\tdraft\t/f/Lease.docx\tOFFICE-1\n"
            "other-computer\t9\tAnn Lée\tTax / 2024\tWill\t/f/Will.pdf\tOFFICE-1\n"
            "2 links: present 1, read-only 0, file-gone 0, other-computer 1, folder-gone 0, "
            "folder 0, no-permission 0, no-answer 0, no-path 0\n");
  links::writeCheckReport(csv, sampleCheck(), links::countStates(sampleCheck()),
                          links::ReportFormat::csv);
  EXPECT_EQ(csv.str(),
            "state,id,client_kind,client_id,client,category,name,path,computer\r\n"
            "present,4,company,2,\"Birch, Sons & \"\"Co\"\"\",Tax / 2024,Lease\tdraft,"
            "/f/Lease.docx,OFFICE-1\r\n"
            "other-computer,9,contact,5,Ann Lée,Tax / 2024,Will,/f/Will.pdf,OFFICE-1\r\n");
  links::writeCheckReport(json, sampleCheck(), links::countStates(sampleCheck()),
                          links::ReportFormat::json);
  EXPECT_EQ(json.str(),
            "{\"links\": [\n"
            "  {\"state\": \"present\", \"id\": 4, \"client\": {\"kind\": \"company\", \"id\": 2, "
            "\"name\": \"Birch, Sons & \\\"Co\\\"\"}, \"category\": \"Tax / 2024\", \"name\": "
            "\"Lease\\tdraft\", \"path\": \"/f/Lease.docx\", \"computer\": \"OFFICE-1\"},\n"
            "  {\"state\": \"other-computer\", \"id\": 9, \"client\": {\"kind\": \"contact\", "
            "\"id\": 5, \"name\": \"Ann Lée\"}, \"category\": \"Tax / 2024\", \"name\": \"Will\", "
            "\"path\": \"/f/Will.pdf\", \"computer\": \"OFFICE-1\"}\n"
            "],\n\"summary\": {\"links\": 2, \"present\": 1, \"read-only\": 0, \"file-gone\": 0, "
            "\"other-computer\": 1, \"folder-gone\": 0, \"folder\": 0, \"no-permission\": 0, "
            "\"no-answer\": 0, \"no-path\": 0}}\n");
  // Only the broken links listed: the summary still counts them all.
  links::writeCheckReport(empty, {}, links::countStates(sampleCheck()), links::ReportFormat::json);
  EXPECT_EQ(empty.str(),
            "{\"links\": [],\n\"summary\": {\"links\": 2, \"present\": 1, \"read-only\": 0, "
            "\"file-gone\": 0, \"other-computer\": 1, \"folder-gone\": 0, \"folder\": 0, "
            "\"no-permission\": 0, \"no-answer\": 0, \"no-path\": 0}}\n");
}

TEST(LinkReport, RelinkAndLocateBeforeAndAfterTheyWereApplied) {
  // The relink preview is read through the tool; here its applied form, each
  // row with its outcome, and plans with no link.
  links::RelinkPlan relink{"/srv/old", "/srv/new", {}};
  relink.rows.push_back(
      {record(4, 2, -1, "Birch", "Lease", "/srv/old/Lease.docx"), "/srv/new/Lease.docx", true});
  relink.rows.push_back(
      {record(5, 2, -1, "Birch", "Deed", "/srv/old/Deed.pdf"), "/srv/new/Deed.pdf", true});
  relink.rows.push_back(
      {record(6, 2, -1, "Birch", "Will", "/srv/old/Will.pdf"), "/srv/new/Will.pdf", false});
  std::ostringstream applied, none, inside;
  const std::vector<RepointOutcome> outcomes{
      RepointOutcome::repointed, RepointOutcome::changedMeanwhile, RepointOutcome::notFound};
  links::writeRelinkReport(applied, relink, &outcomes);
  EXPECT_EQ(applied.str(),
            "relinked\t4\tBirch\tLease\t/srv/old/Lease.docx\t/srv/new/Lease.docx\n"
            "changed-meanwhile\t5\tBirch\tDeed\t/srv/old/Deed.pdf\t/srv/new/Deed.pdf\n"
            "not-found\t6\tBirch\tWill\t/srv/old/Will.pdf\t/srv/new/Will.pdf\n"
            "Relinked 1 of 3 links under /srv/old to /srv/new; left 2: not-found 1, "
            "changed-meanwhile 1, failed 0.\n");
  links::writeRelinkReport(none, links::RelinkPlan{"/srv/old", "/srv/new", {}}, nullptr);
  EXPECT_EQ(none.str(), "No link lies under /srv/old.\n");
  links::writeRelinkReport(inside, links::RelinkPlan{"/srv", "/srv/new", {}}, nullptr);
  EXPECT_EQ(inside.str(), "No link lies under /srv outside /srv/new.\n");

  links::LocatePlan locate;
  locate.folder = "/archive";
  locate.filesSeen = 120;
  locate.foldersSkipped = 2;
  locate.foldersNoAnswer = 1;
  locate.rows.push_back(
      {{record(4, 2, -1, "Birch", "Lease", "/old/Lease.docx"), LinkState::folderGone},
       {"/archive/a/Lease.docx", "/archive/b/Lease.docx"}});
  locate.rows.push_back({{record(5, 2, -1, "Birch", "Deed", "/old/Deed.pdf"), LinkState::fileGone},
                         {"/archive/Deed.pdf"}});
  locate.rows.push_back(
      {{record(6, 2, -1, "Birch", "Will", "/old/Will.pdf"), LinkState::fileGone}, {}});
  std::ostringstream found, relinked;
  links::writeLocateReport(found, locate, nullptr);
  EXPECT_EQ(
      found.str(),
      "several\t4\tBirch\tLease\t/old/Lease.docx\t/archive/a/Lease.docx\n"
      "several\t4\tBirch\tLease\t/old/Lease.docx\t/archive/b/Lease.docx\n"
      "found\t5\tBirch\tDeed\t/old/Deed.pdf\t/archive/Deed.pdf\n"
      "none\t6\tBirch\tWill\t/old/Will.pdf\t\n"
      "3 links looked for: 1 found once, 1 found in several places, 1 not found; "
      "120 files seen under /archive (2 folders could not be read, 1 of them on a share that did "
      "not answer). Nothing was changed; "
      "--apply relinks the 1 found once.\n");
  const std::vector<RepointOutcome> located{RepointOutcome::notFound, RepointOutcome::repointed,
                                            RepointOutcome::notFound};
  links::writeLocateReport(relinked, locate, &located);
  EXPECT_NE(relinked.str().find("relinked\t5\tBirch\tDeed\t/old/Deed.pdf\t/archive/Deed.pdf\n"),
            std::string::npos);
  EXPECT_NE(relinked.str().find("did not answer). Relinked 1.\n"), std::string::npos);
}

TEST(StructuredText, CsvFieldsAndJsonStrings) {
  EXPECT_EQ(csvField("plain text"), "plain text");
  EXPECT_EQ(csvField("a,b"), "\"a,b\"");
  EXPECT_EQ(csvField("say \"hi\""), "\"say \"\"hi\"\"\"");
  EXPECT_EQ(csvField("two\r\nlines"), "\"two\r\nlines\"");
  EXPECT_EQ(csvField(""), "");

  EXPECT_EQ(jsonString("Société \"Dupré\" \\ 日本"), "\"Société \\\"Dupré\\\" \\\\ 日本\"");
  EXPECT_EQ(jsonString("a\nb\tc\x01\x7f"), "\"a\\nb\\tc\\u0001\\u007f\"");
  // Bytes that are no UTF-8: a Latin-1 name, a cut character, an overlong
  // form, a surrogate.
  EXPECT_EQ(jsonString("caf\xe9.pdf"), "\"caf\xEF\xBF\xBD.pdf\"");
  EXPECT_EQ(jsonString("\xe6\x97"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_EQ(jsonString("\xc0\xaf"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_EQ(jsonString("\xed\xa0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"");
  EXPECT_EQ(jsonString("\xf0\x9f\x93\x84"), "\"\xf0\x9f\x93\x84\"");
}

}  // namespace
}  // namespace qb::test
