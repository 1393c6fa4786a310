// quillbox init: a new database is marked and complete or not there at all,
// and nothing another program uses, nor a folder, is ever replaced.

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "services/store/schema.h"
#include "services/store/sqlite_database.h"
#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

// The files of a folder other than the test's own database.
std::vector<std::string> strayFiles(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::string name = entry.path().filename().string();
    if (name.rfind("firm.db", 0) != 0) names.push_back(name);
  }
  return names;
}

// A child process that holds the database open, reading, until told to go.
class Holder {
 public:
  explicit Holder(const std::string& path) {
    int ready[2];
    (void)!pipe(ready);
    (void)!pipe(go_);
    pid_ = fork();
    if (pid_ == 0) {
      SqliteDatabase store;
      SqliteDatabase::Options reading;
      reading.readOnly = true;
      store.open(path, reading);
      RecordsetHandle rows = store.openRecordset("SELECT Companies.* FROM Companies;", 1, 1);
      (void)!write(ready[1], "r", 1);
      char c;
      (void)!read(go_[0], &c, 1);
      store.closeRecordset(rows);
      _exit(0);
    }
    char c;
    (void)!read(ready[0], &c, 1);
    close(ready[0]);
    close(ready[1]);
  }
  ~Holder() {
    (void)!write(go_[1], "g", 1);
    waitpid(pid_, nullptr, 0);
    close(go_[0]);
    close(go_[1]);
  }

 private:
  int go_[2];
  pid_t pid_;
};

TEST_F(CliTest, ANewDatabaseIsMarkedAndWhole) {
  const std::string path = folder_.file("new/firm.db");
  ToolRun made = run({"init", "--db", path});
  EXPECT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.out, "Created " + path + "\nThe database holds the schema and no rows.\n");
  EXPECT_EQ(scalarIn(path, "PRAGMA application_id;"), std::to_string(kClientDatabaseApplicationId));
  EXPECT_EQ(scalarIn(path, "PRAGMA user_version;"), std::to_string(kClientDatabaseSchemaVersion));
  EXPECT_EQ(scalarIn(path, "PRAGMA journal_mode;"), "wal");
  EXPECT_EQ(strayFiles(folder_.path() / "new"), std::vector<std::string>{});

  EXPECT_EQ(run({"init", "--db", path}).firstError(),
            "quillbox: \"" + path + "\" exists already; give --force to replace it.");
  EXPECT_EQ(run({"init", "--db", path, "--generate", "100001"}).status, 2);
  EXPECT_EQ(run({"init", "--db", path, "--generate", "-1"}).status, 2);
}

TEST_F(CliTest, AFailureHalfWayLeavesNoDatabaseAndARetryWorks) {
  const std::string path = folder_.file("firm2.db");
  // The files folder can't be made: a file stands in its place.
  const std::string blocked = folder_.writeFile("blocked", "a file, not a folder");
  ToolRun failed = run({"init", "--db", path, "--sample", "--files", blocked + "/files"});
  EXPECT_EQ(failed.status, 1);
  EXPECT_NE(failed.err.find("No database was made at \"" + path + "\"."), std::string::npos)
      << failed.err;
  EXPECT_FALSE(fs::exists(path));
  EXPECT_EQ(strayFiles(folder_.path()), std::vector<std::string>{"blocked"});

  ToolRun retried = run({"init", "--db", path, "--sample", "--files", folder_.file("files")});
  EXPECT_EQ(retried.status, 0) << retried.err;
  EXPECT_EQ(scalarIn(path, "SELECT count(*) FROM Companies;"), "17");
}

TEST_F(CliTest, ForceNeverReplacesAFolderOrADatabaseInUse) {
  const std::string folder = folder_.file("clients");
  fs::create_directories(folder);
  ToolRun onFolder = run({"init", "--db", folder, "--force"});
  EXPECT_EQ(onFolder.status, 1);
  EXPECT_EQ(onFolder.firstError(),
            "quillbox: \"" + folder +
                "\" is a folder; give the path of the database file to create. The folder was "
                "left as it is.");
  EXPECT_TRUE(fs::is_directory(folder));

  const std::string bytes = bytesOf(db_);
  {
    Holder reader(db_);
    ToolRun refused = run({"init", "--db", db_, "--force"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.firstError().find("\" is in use by test_cli (process "), std::string::npos)
        << refused.err;
    EXPECT_TRUE(bytesOf(db_) == bytes);
  }
  // In the rollback journal a reader holds no lock between reads: it is
  // found among the open files of this machine's processes.
  execIn(db_, "PRAGMA journal_mode=DELETE;");
  {
    Holder reader(db_);
    EXPECT_NE(run({"init", "--db", db_, "--force"}).firstError().find("is in use by"),
              std::string::npos);
  }
  ToolRun replaced = run({"init", "--db", db_, "--force"});
  EXPECT_EQ(replaced.status, 0) << replaced.err;
  EXPECT_EQ(scalar("SELECT count(*) FROM Companies;"), "0");
  EXPECT_EQ(scalar("PRAGMA journal_mode;"), "wal");
}

}  // namespace
}  // namespace qb::test
