// The lookup commands of the tool on the sample firm, whose settings make
// Custom1 of the task schedule a lookup, Custom2 a client repeater and
// Custom3 a type repeater; of the projects Custom1 a client repeater,
// Custom2 a type repeater and Custom3 a lookup; of personal tax Custom1 a
// lookup. What each writes, read back; what each says to a mistake.

#include "app/cli/progress_bar.h"
#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

using LookupCommands = CliTest;

TEST_F(LookupCommands, TypeTestsPrintTrueOrFalse) {
  auto answer = [&](const char* command, const char* family, const char* custom) {
    const ToolRun run =
        CliTest::run({"lookup", command, "--db", db_, "--family", family, "--custom", custom});
    EXPECT_EQ(run.status, 0) << run.err;
    return run.out;
  };
  EXPECT_EQ(answer("is-lookup", "1", "1"), "True\n");
  EXPECT_EQ(answer("is-lookup", "1", "2"), "False\n");
  EXPECT_EQ(answer("is-client-repeater", "1", "2"), "True\n");
  EXPECT_EQ(answer("is-type-repeater", "1", "3"), "True\n");
  EXPECT_EQ(answer("is-type-repeater", "3", "2"), "True\n");
  EXPECT_EQ(answer("is-lookup", "2", "1"), "True\n");
  EXPECT_EQ(answer("is-client-repeater", "2", "1"), "False\n");
  // A column the settings do not have: the store's failure, no answer.
  const ToolRun missing =
      run({"lookup", "is-lookup", "--db", db_, "--family", "1", "--custom", "9"});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "");
  EXPECT_NE(missing.err.find("RemittanceCustomType9"), std::string::npos) << missing.err;
  // Mistakes on the command line.
  const ToolRun family =
      run({"lookup", "is-lookup", "--db", db_, "--family", "4", "--custom", "1"});
  EXPECT_EQ(family.status, 2);
  EXPECT_NE(family.err.find("--family takes 1"), std::string::npos) << family.err;
  EXPECT_EQ(run({"lookup", "is-lookup", "--db", db_, "--family", "1"}).status, 2);
  EXPECT_EQ(run({"lookup", "is-lookup", "--db", db_, "--family", "1", "--custom", "x"}).status, 2);
  EXPECT_EQ(run({"lookup", "is-lookup", "--db", db_, "--family", "1", "--custom", "40000"}).status,
            2);
}

TEST_F(LookupCommands, RepeatersWriteTheirRowsAndSayWhenThereIsNothing) {
  const std::string before = scalar("SELECT group_concat(Custom2, '|') FROM Schedule;");
  // Company 2 is the client of ClientData 1: schedule rows 1 and 2.
  const ToolRun client = run({"lookup", "fill-client-repeater", "--db", db_, "--family", "1",
                              "--custom", "2", "--value", "Acct 1", "--company", "2"});
  ASSERT_EQ(client.status, 0) << client.err;
  EXPECT_EQ(client.out, "");
  EXPECT_EQ(client.err, "");
  EXPECT_EQ(scalar("SELECT group_concat(Custom2, '|') FROM Schedule WHERE ScheduleID <= 3;"),
            "Acct 1|Acct 1|Acct 81233");
  EXPECT_EQ(run({"lookup", "fill-client-repeater", "--db", db_, "--family", "1", "--custom", "2",
                 "--value", "Acct 2", "--client-data", "2"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT Custom2 FROM Schedule WHERE ScheduleID = 3;"), "Acct 2");
  // Custom1 is no client repeater: nothing written, and the tool says so.
  const ToolRun ordinary = run({"lookup", "fill-client-repeater", "--db", db_, "--family", "1",
                                "--custom", "1", "--value", "x", "--contact", "6"});
  EXPECT_EQ(ordinary.status, 0);
  EXPECT_EQ(ordinary.firstError(),
            "quillbox: nothing written: the column is no client repeater of this family, or the "
            "client has no rows");
  // One client, and one that exists.
  EXPECT_EQ(run({"lookup", "fill-client-repeater", "--db", db_, "--family", "1", "--custom", "2",
                 "--value", "x", "--company", "2", "--contact", "6"})
                .status,
            2);
  const ToolRun nobody = run({"lookup", "fill-client-repeater", "--db", db_, "--family", "1",
                              "--custom", "2", "--value", "x", "--company", "9999"});
  EXPECT_EQ(nobody.status, 2);
  EXPECT_NE(nobody.err.find("--company 9999 names no company"), std::string::npos);

  // Task type 111 with schedule number 6: row 4 only.
  ASSERT_EQ(run({"lookup", "fill-task-type-repeater", "--db", db_, "--family", "1", "--custom", "3",
                 "--value", "E-filed", "--total", "111", "--schedule", "6"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT group_concat(ScheduleID, ',') FROM Schedule WHERE Custom3 = "
                   "'E-filed';"),
            "4");
  EXPECT_EQ(run({"lookup", "fill-task-type-repeater", "--db", db_, "--family", "3", "--custom", "3",
                 "--value", "x", "--total", "1", "--schedule", "1"})
                .status,
            2);
  // Project type 1: projects 1 and 3.
  ASSERT_EQ(run({"lookup", "fill-project-type-repeater", "--db", db_, "--family", "3", "--custom",
                 "2", "--value", "Capped fee", "--project", "1"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT group_concat(Custom2, '|') FROM CompanyProjects;"),
            "Capped fee|Hourly|Capped fee|Hourly");
  EXPECT_NE(scalar("SELECT group_concat(Custom2, '|') FROM Schedule;"), before);
}

TEST_F(LookupCommands, FillAllAndClearWriteEveryClientsRows) {
  const ToolRun fill = run({"lookup", "fill-all", "--db", db_, "--family", "1", "--custom", "1",
                            "--field", "CompanyName"});
  ASSERT_EQ(fill.status, 0) << fill.err;
  EXPECT_EQ(fill.out, "");
  EXPECT_EQ(fill.err, "");  // not a terminal: no progress bar
  EXPECT_EQ(scalar("SELECT Custom1 FROM Schedule WHERE ScheduleID = 1;"),
            scalar("SELECT CompanyName FROM Companies WHERE CompanyID = 2;"));
  EXPECT_EQ(scalar("SELECT count(*) FROM Schedule WHERE Custom1 = 'Finance department';"), "0");

  // Personal tax rows of one year: the contact's last name.
  ASSERT_EQ(run({"lookup", "fill-all", "--db", db_, "--family", "2", "--custom", "1", "--field",
                 "LastName", "--tax-year", "2024"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT count(*) FROM PersonalTaxStatus p JOIN Contacts c ON c.ContactID = "
                   "p.ContactNum WHERE p.TaxYear = 2024 AND p.Custom1 = c.LastName;"),
            "4");
  EXPECT_EQ(scalar("SELECT count(*) FROM PersonalTaxStatus WHERE TaxYear = 2025 AND Custom1 = "
                   "'';"),
            "4");
  // The tax year defaults to the year before today's.
  ASSERT_EQ(run({"lookup", "clear", "--db", db_, "--family", "2", "--custom", "1", "--today",
                 "2025-06-01"})
                .status,
            0);
  EXPECT_EQ(scalar("SELECT group_concat(COALESCE(Custom1, 'null'), '|') FROM PersonalTaxStatus "
                   "WHERE TaxYear = 2024;"),
            "|||");
  // A field the merge does not know writes nothing and says so.
  const ToolRun unknown = run({"lookup", "fill-all", "--db", db_, "--family", "3", "--custom", "3",
                               "--field", "NoSuchField"});
  EXPECT_EQ(unknown.status, 0);
  EXPECT_NE(unknown.err.find("nothing written"), std::string::npos);
  EXPECT_EQ(run({"lookup", "fill-all", "--db", db_, "--family", "1", "--custom", "1"}).status, 2);
}

TEST_F(LookupCommands, EveryCommandHasItsHelp) {
  for (const char* command :
       {"is-lookup", "is-client-repeater", "is-type-repeater", "fill-client-repeater",
        "fill-task-type-repeater", "fill-project-type-repeater", "clear", "fill-all"}) {
    const ToolRun help = run({"lookup", command, "--help"});
    EXPECT_EQ(help.status, 0) << command;
    EXPECT_EQ(help.out.rfind(std::string("Usage: quillbox lookup ") + command, 0), 0u) << help.out;
    EXPECT_NE(help.out.find("--family N"), std::string::npos) << command;
  }
}

TEST(LookupProgressBar, TellsTheRateAndTheTimeLeft) {
  EXPECT_EQ(cli::ProgressBar::line("Filling Custom1", 2500, 10000, 2.0),
            "Filling Custom1 [#####---------------]  25%  2500/10000  1250/s  0:06 left");
  EXPECT_EQ(cli::ProgressBar::line("Filling Custom1", 10, 7200, 36.0),
            "Filling Custom1 [--------------------]   0%  10/7200  0.3/s  7:11:24 left");
  EXPECT_EQ(cli::ProgressBar::line("Filling Custom1", 40, 40, 0.5),
            "Filling Custom1 [####################] 100%  40/40  80/s");
  EXPECT_EQ(cli::ProgressBar::line("Filling Custom1", 0, 40, 0.5),
            "Filling Custom1 [--------------------]   0%  0/40");
  std::ostringstream drawn;
  {
    cli::ProgressBar bar(drawn, "Filling Custom1", true);
    bar.update(40, 40);
  }
  EXPECT_EQ(drawn.str().rfind("\r\033[KFilling Custom1 [####################] 100%  40/40", 0), 0u);
  EXPECT_EQ(drawn.str().substr(drawn.str().size() - 4), "\r\033[K");
}

}  // namespace
}  // namespace qb::test
