// What the tool says when something is wrong: in the first line, what
// happened and what to do; the error convention's trace below it; no result
// on standard output after a failure, and a failure when the result can't be
// written.

#include <filesystem>
#include <fstream>

#include "tests/app/cli/cli_fixture.h"
#include "tests/support/faulty_vfs.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

TEST_F(CliTest, AMissingFolderOrDamagedDatabaseIsNamedWithWhatToDo) {
  const std::string missing = folder_.file("gone.db");
  EXPECT_EQ(run({"name", "--db", missing, "--contact", "3"}).firstError(),
            "quillbox: There is no database at \"" + missing +
                "\". Check the path, or create one with 'quillbox init --db " + missing +
                " --sample'.");
  EXPECT_EQ(run({"describe", "--db", folder_.path().string()}).firstError(),
            "quillbox: \"" + folder_.path().string() +
                "\" is a folder, not a database file. Choose the client database file.");

  // A table's pages are damaged while the list of tables still reads.
  {
    std::fstream file(db_, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(4096 * 20);
    file << std::string(4096, '\xff');
  }
  ToolRun damaged = run({"describe", "--db", db_});
  EXPECT_EQ(damaged.status, 1);
  EXPECT_EQ(damaged.out, "");
  EXPECT_EQ(damaged.firstError(), "quillbox: The database \"" + db_ +
                                      "\" is damaged and can't be read. Restore it from its "
                                      "last backup.");
}

TEST_F(CliTest, AFileThatMayNotBeReadSaysSo) {
  fs::permissions(db_, fs::perms::owner_read | fs::perms::owner_write);
  ToolRun refused = runAsReader({"name", "--db", db_, "--contact", "3"});
  fs::permissions(db_, fs::perms(0644));
  if (geteuid() != 0) GTEST_SKIP() << "only another user can be refused a file of one's own";
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.firstError(),
            "quillbox: The database \"" + db_ +
                "\" may not be read by you (permission denied). Ask for access to it, or copy it "
                "where you may read it.");
}

TEST_F(CliTest, ALoopInTheAddressBookIsNamed) {
  execIn(db_, "UPDATE Categories SET CategoryNum = 3 WHERE CategoryID = 2;");
  ToolRun categories = run({"category-text", "--db", db_, "--company", "3"});
  EXPECT_EQ(categories.status, 1);
  EXPECT_EQ(categories.out, "");
  EXPECT_EQ(categories.firstError(),
            "quillbox: The address book holds a loop above company 3 (company 3 -> category 3 -> "
            "category 2 -> category 3), so its category text never ends. Correct the parent "
            "category (CategoryNum) of category 3 or of another member of the loop, then try "
            "again.");
  execIn(db_, "UPDATE Companies SET CompanyNum = 13, CategoryNum = NULL WHERE CompanyID = 4;");
  EXPECT_EQ(run({"category-text", "--db", db_, "--company", "13"}).firstError(),
            "quillbox: The address book holds a loop above company 13 (company 13 -> company 4 -> "
            "company 13), so its category text never ends. Correct the main company (CompanyNum) "
            "of company 13 or of another member of the loop, then try again.");
}

TEST_F(CliTest, AFailedWritePrintsNoResultAndSaysWhy) {
  // A company whose links have no default: reading its default contact
  // repairs it, and the disk refuses the first write.
  execIn(db_, "UPDATE ContactLinks SET DefaultContact = 0 WHERE CompanyNum = 3;");
  ToolRun failed;
  {
    FaultyVfs disk;
    disk.makeDefault();
    disk.arm(FaultyVfs::Kind::Write, 1, SQLITE_FULL);
    failed = run({"default-contact", "--db", db_, "--company", "3"});
    EXPECT_TRUE(disk.fired());
  }
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.out, "");
  EXPECT_EQ(failed.firstError(), "Error 3001: The disk is full: \"" + db_ +
                                     "\" can't grow, and the change was not saved. Free some "
                                     "space on the disk and try again.");
  EXPECT_NE(failed.err.find("  trace:\n    Orvanta.exe-modDatabaseClientFunctions-"),
            std::string::npos)
      << failed.err;

  ToolRun repaired = run({"default-contact", "--db", db_, "--company", "3"});
  EXPECT_EQ(repaired.status, 0) << repaired.err;
  EXPECT_EQ(repaired.out, "6\n");
}

TEST_F(CliTest, AResultThatCantBeWrittenIsAFailure) {
  ToolRun full = runProgram({"name", "--db", db_, "--contact", "3"}, "/dev/full");
  EXPECT_EQ(full.status, 1);
  EXPECT_EQ(full.err,
            "quillbox: can't write the results to standard output (No space left on device); free "
            "space where the output goes, or send it elsewhere, and run the command again\n");
  const std::string out = folder_.file("out.txt");
  EXPECT_EQ(runProgram({"name", "--db", db_, "--contact", "3"}, out).status, 0);
  EXPECT_EQ(bytesOf(out), "Sophie Gagnon\n");
}

// A group's word alone is a usage error that lists its commands; with --help
// the list is the answer. The tool's own list keeps one name a line, a long
// name's summary on the line below (the manual page is made from that list).
TEST_F(CliTest, AGroupOfCommandsListsThemWhenAskedOrMisused) {
  const ToolRun alone = run({"lookup"});
  EXPECT_EQ(alone.status, 2);
  EXPECT_EQ(alone.firstError(), "quillbox: 'lookup' needs one of its commands:");
  EXPECT_NE(alone.err.find("\n  lookup fill-all\n"), std::string::npos) << alone.err;

  const ToolRun help = run({"links", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.err, "");
  EXPECT_EQ(help.out.substr(0, help.out.find('\n')), "The commands of 'links':");
  EXPECT_NE(help.out.find("\n  links relink  point the links under an old folder"),
            std::string::npos)
      << help.out;

  const ToolRun tool = run({"--help"});
  EXPECT_NE(tool.out.find("\n  lookup fill-project-type-repeater\n" + std::string(20, ' ') +
                          "write one value"),
            std::string::npos)
      << tool.out;
  EXPECT_NE(tool.out.find("\n  lookup fill-all   fill a lookup column"), std::string::npos);
}

}  // namespace
}  // namespace qb::test
