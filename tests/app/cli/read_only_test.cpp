// A command that only reads never changes the database file: not a client
// database's, not another program's, not an empty file's; and it reads a
// database it may not write.

#include <sqlite3.h>

#include <filesystem>

#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

bool hasJournalFiles(const std::string& path) {
  return fs::exists(path + "-wal") || fs::exists(path + "-shm") || fs::exists(path + "-journal");
}

TEST_F(CliTest, ReadingLeavesTheFileAsItWas) {
  const std::string bytes = bytesOf(db_);
  const std::vector<std::vector<std::string>> reads = {
      {"describe"},
      {"name", "--contact", "3"},
      {"address", "--contact", "3", "--rtf", "--phones"},
      {"category-text", "--company", "12"},
      {"client-sql", "--status", "3"},
  };
  for (std::vector<std::string> words : reads) {
    words.insert(words.end(), {"--db", db_});
    ToolRun read = run(words);
    EXPECT_EQ(read.status, 0) << words.front() << ": " << read.err;
    EXPECT_FALSE(read.out.empty()) << words.front();
  }
  EXPECT_TRUE(bytesOf(db_) == bytes);
  EXPECT_EQ(scalar("PRAGMA journal_mode;"), "wal");
}

TEST_F(CliTest, AFileThatIsNoClientDatabaseIsRefusedUnchanged) {
  const std::string empty = folder_.writeFile("empty.db", "");
  ToolRun refused = run({"name", "--db", empty, "--contact", "3"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.firstError(), "quillbox: The file \"" + empty +
                                      "\" is empty: it is not a client database. Choose the "
                                      "firm's client database file; this one was left as it is.");
  EXPECT_EQ(fs::file_size(empty), 0u);
  EXPECT_FALSE(hasJournalFiles(empty));

  // Another program's SQLite file, in the rollback journal's mode.
  const std::string other = folder_.file("other.db");
  execIn(other, "CREATE TABLE Contacts (ContactID INTEGER PRIMARY KEY, Name TEXT);");
  const std::string otherBytes = bytesOf(other);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"describe", "--db", other},
        std::vector<std::string>{"summary", "--db", other, "--contact", "1"}}) {
    ToolRun foreign = run(words);
    EXPECT_EQ(foreign.status, 1) << words.front();
    EXPECT_EQ(foreign.firstError(),
              "quillbox: The file \"" + other +
                  "\" is not a client database: it is a SQLite database of another program. "
                  "Choose the firm's client database file; this one was left as it is.");
  }
  EXPECT_TRUE(bytesOf(other) == otherBytes);
  EXPECT_EQ(scalarIn(other, "PRAGMA journal_mode;"), "delete");
  EXPECT_FALSE(hasJournalFiles(other));

  // A text file.
  const std::string text = folder_.writeFile("notes.db", "Meeting notes\n");
  EXPECT_EQ(run({"describe", "--db", text}).firstError(),
            "quillbox: The database \"" + text +
                "\" is not a client database: it is not a SQLite database file. Choose the firm's "
                "client database file.");
  EXPECT_EQ(bytesOf(text), "Meeting notes\n");
}

TEST_F(CliTest, ADatabaseInTheRollbackJournalIsReadBesideAnotherReader) {
  // As a database on a network share is made: its journal stays the rollback
  // journal, and a reader elsewhere holds a shared lock.
  execIn(db_, "PRAGMA journal_mode=DELETE;");
  sqlite3* other = nullptr;
  sqlite3_open(db_.c_str(), &other);
  sqlite3_exec(other, "BEGIN; SELECT count(*) FROM Companies;", nullptr, nullptr, nullptr);
  ToolRun read = run({"name", "--db", db_, "--contact", "3"});
  sqlite3_exec(other, "COMMIT;", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_EQ(read.status, 0) << read.err;
  EXPECT_EQ(read.out, "Sophie Gagnon\n");
  EXPECT_EQ(scalar("PRAGMA journal_mode;"), "delete");
}

TEST_F(CliTest, ADatabaseThatMayNotBeWrittenIsRead) {
  // A read-only folder and a read-only file: the write-ahead log can't be
  // made beside the database, and the reader reads the file as it stands.
  ToolRun read = runAsReader({"name", "--db", db_, "--contact", "3"});
  EXPECT_EQ(read.status, 0) << read.err;
  EXPECT_EQ(read.out, "Sophie Gagnon\n");
  ToolRun described = runAsReader({"describe", "--db", db_});
  EXPECT_EQ(described.status, 0) << described.err;
  EXPECT_NE(described.out.find("  Companies"), std::string::npos);
  EXPECT_FALSE(hasJournalFiles(db_));

  // A command that writes says why it can't.
  ToolRun write = runAsReader({"summary", "--db", db_, "--contact", "3"});
  EXPECT_EQ(write.status, 1);
  EXPECT_EQ(write.out, "");
  EXPECT_NE(write.err.find("may not be written"), std::string::npos) << write.err;
}

}  // namespace
}  // namespace qb::test
