// Ids on the command line: whole numbers of 32 bits for every command, and
// for a command that writes, rows that exist, checked before anything is
// written.

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

// A command of this test program that writes and declares ids of its own: a
// new name that is an id, and a shared name that is none here.
const cli::CommandRegistration kTestCommand(cli::Command{
    "test-move",
    "a writing command for the tests",
    "Usage: quillbox test-move --db FILE [--to ID] [--task N] [--company ID]\n",
    {"db", "to", "task", "company"},
    {},
    [](cli::Context& context) {
      cli::Session session(context);
      context.out << "ran\n";
      return session.exitStatus();
    },
    true,
    {{"to", "DocCategories", "DocCategoryID", "document category"}, {"task", "", "", ""}},
});

TEST_F(CliTest, AMistypedIdIsRefusedBeforeAnythingIsWritten) {
  const std::string notes = "SELECT ContactNotes FROM CompaniesNotes WHERE CompanyNum = 2;";
  ASSERT_EQ(run({"company-summary", "--db", db_, "--company", "2", "--contact", "10"}).status, 0);
  const std::string before = scalar(notes);
  ASSERT_EQ(before.rfind("{\\rtf1", 0), 0u);

  ToolRun typo = run({"company-summary", "--db", db_, "--company", "2", "--contact", "9999"});
  EXPECT_EQ(typo.status, 2);
  EXPECT_EQ(typo.out, "");
  EXPECT_EQ(typo.firstError(), "quillbox: --contact 9999 names no contact in the database");
  EXPECT_EQ(run({"summary", "--db", db_, "--contact", "3", "--company", "77"}).firstError(),
            "quillbox: --company 77 names no company in the database");
  EXPECT_EQ(run({"default-contact", "--db", db_, "--company", "0"}).status, 2);
  EXPECT_EQ(scalar(notes), before);

  // A negative id keeps its meaning of "none".
  ToolRun none = run({"company-summary", "--db", db_, "--company", "2", "--contact", "-1"});
  EXPECT_EQ(none.status, 0) << none.err;
  EXPECT_NE(scalar(notes).find("No Default Contact Selected."), std::string::npos);

  // A command that only reads keeps the system's answer for an id without a
  // row.
  ToolRun unknown = run({"name", "--db", db_, "--contact", "9999"});
  EXPECT_EQ(unknown.status, 0);
  EXPECT_EQ(unknown.out, "\n");
}

TEST_F(CliTest, AnIdMustBeAWholeNumberOf32Bits) {
  struct Case {
    std::vector<std::string> words;
    std::string message;
  };
  const std::vector<Case> cases = {
      {{"name", "--contact", "2147483648"}, "--contact 2147483648 is too big for an id"},
      {{"name", "--contact", "-2147483649"}, "--contact -2147483649 is too small for an id"},
      {{"name", "--contact=12x"}, "--contact takes a whole number, not '12x'"},
      {{"name", "--contact", "3", "--related", "99999999999"},
       "--related 99999999999 is too big for an id"},
      {{"name", "--contact", "3", "--user", "4294967296"},
       "--user 4294967296 is too big for an id"},
      {{"client-sql", "--status", "3", "--client-data", "2147483648"},
       "--client-data 2147483648 is too big for an id"},
      {{"client-sql", "--status", "9999999999"},
       "--status 9999999999 is too big for a 32-bit number"},
      {{"name", "--contact", "3", "--country", ""}, "--country takes a whole number, not ''"},
  };
  for (const Case& c : cases) {
    std::vector<std::string> words = c.words;
    words.insert(words.end(), {"--db", db_});
    ToolRun refused = run(words);
    EXPECT_EQ(refused.status, 2) << c.message;
    EXPECT_EQ(refused.firstError(), "quillbox: " + c.message);
    EXPECT_EQ(refused.out, "");
  }
  EXPECT_EQ(run({"name", "--db", db_, "--contact", "-2147483648"}).status, 0);
}

TEST_F(CliTest, ACommandDeclaresItsOwnIds) {
  EXPECT_EQ(run({"test-move", "--db", db_, "--to", "4"}).out, "ran\n");
  EXPECT_EQ(run({"test-move", "--db", db_, "--to", "99999"}).firstError(),
            "quillbox: --to 99999 names no document category in the database");
  EXPECT_EQ(run({"test-move", "--db", db_, "--to", "2147483648"}).firstError(),
            "quillbox: --to 2147483648 is too big for an id");
  // --task is no id for this command; --company still is one.
  EXPECT_EQ(run({"test-move", "--db", db_, "--task", "99999"}).status, 0);
  EXPECT_EQ(run({"test-move", "--db", db_, "--company", "99999"}).status, 2);
}

}  // namespace
}  // namespace qb::test
