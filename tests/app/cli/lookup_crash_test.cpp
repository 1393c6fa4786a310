// A bulk fill killed at any moment leaves a consistent database: the
// program is killed with SIGKILL at twenty random moments of a fill over a
// generated firm, and after each kill the file passes SQLite's integrity
// check, every schedule row holds its old or its new value, nothing else in
// the file changed, and a second run completes the fill.

#include <fcntl.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <random>
#include <thread>

#include "sample/sample_firm.h"
#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

constexpr int kClients = 300;
constexpr int kKills = 20;

// Starts the program on the fill; returns its process id.
pid_t startFill(const std::string& db) {
  const std::string program = fs::read_symlink("/proc/self/exe").parent_path() / "quillbox";
  std::vector<std::string> words = {program, "lookup",   "fill-all",   "--db",
                                    db,      "--family", "1",          "--custom",
                                    "1",     "--field",  "CompanyName"};
  pid_t child = fork();
  if (child == 0) {
    int null = open("/dev/null", O_WRONLY);
    dup2(null, 1);
    dup2(null, 2);
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    execv(program.c_str(), argv.data());
    _exit(127);
  }
  return child;
}

int waitFor(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Every row of a query, each row's columns joined by '|'.
std::vector<std::string> rowsOf(sqlite3* db, const std::string& sql) {
  std::vector<std::string> rows;
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    ADD_FAILURE() << sqlite3_errmsg(db) << " in " << sql;
    return rows;
  }
  while (sqlite3_step(stmt) == SQLITE_ROW) {
    std::string row;
    for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
      const unsigned char* text = sqlite3_column_text(stmt, i);
      row += (i ? "|" : "") + std::string(text ? reinterpret_cast<const char*>(text) : "<null>");
    }
    rows.push_back(row);
  }
  sqlite3_finalize(stmt);
  return rows;
}

std::map<std::string, std::string> customOneById(const std::string& path) {
  sqlite3* db = nullptr;
  sqlite3_open(path.c_str(), &db);
  std::map<std::string, std::string> values;
  for (const std::string& row : rowsOf(db, "SELECT ScheduleID, Custom1 FROM Schedule;")) {
    values[row.substr(0, row.find('|'))] = row.substr(row.find('|') + 1);
  }
  sqlite3_close(db);
  return values;
}

// The rows of every table of the file that differ from the pristine copy's,
// the schedule's Custom1 left out; "" when none do.
std::string changesBesideCustomOne(const std::string& path, const std::string& pristine) {
  sqlite3* db = nullptr;
  sqlite3_open(path.c_str(), &db);
  sqlite3_exec(db, ("ATTACH '" + pristine + "' AS p;").c_str(), nullptr, nullptr, nullptr);
  std::string changes;
  for (const std::string& table :
       rowsOf(db, "SELECT name FROM p.sqlite_master WHERE type = 'table';")) {
    std::string columns;
    for (const std::string& column :
         rowsOf(db, "SELECT name FROM pragma_table_info('" + table + "', 'p');")) {
      if (table == "Schedule" && column == "Custom1") continue;
      columns += (columns.empty() ? "" : ", ") + column;
    }
    for (const char* a : {"main", "p"}) {
      const char* b = a == std::string("main") ? "p" : "main";
      for (const std::string& row :
           rowsOf(db, "SELECT " + columns + " FROM " + a + "." + table + " EXCEPT SELECT " +
                          columns + " FROM " + b + "." + table + ";")) {
        changes += table + " in " + a + ": " + row + "\n";
      }
    }
  }
  sqlite3_close(db);
  return changes;
}

using LookupCrash = CliTest;

TEST_F(LookupCrash, AFillKilledAtAnyMomentLeavesOldOrNewValuesAndARerunCompletesIt) {
  TempFolder folder;
  const std::string pristine = folder.file("pristine.db");
  createDatabase(pristine);
  generateFirm(pristine, folder.file("files"), kClients);
  execIn(pristine, "UPDATE Schedule SET Custom1 = 'old' || ScheduleID;");
  const std::map<std::string, std::string> old = customOneById(pristine);

  // A whole run gives the new values and the length of a run.
  const std::string whole = folder.file("whole.db");
  fs::copy_file(pristine, whole);
  const auto started = std::chrono::steady_clock::now();
  ASSERT_EQ(waitFor(startFill(whole)), 0);
  const auto runTime = std::chrono::steady_clock::now() - started;
  const std::map<std::string, std::string> filled = customOneById(whole);
  ASSERT_EQ(filled.size(), static_cast<size_t>(kClients));
  ASSERT_NE(filled, old);

  std::mt19937 random(20261123);
  std::uniform_int_distribution<int64_t> moment(
      0, std::chrono::duration_cast<std::chrono::microseconds>(runTime).count());
  int midway = 0;  // kills that left some rows old and some new
  for (int kill = 0; kill < kKills; ++kill) {
    SCOPED_TRACE("kill " + std::to_string(kill));
    const std::string victim = folder.file("victim" + std::to_string(kill) + ".db");
    fs::copy_file(pristine, victim);
    const pid_t child = startFill(victim);
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
    ::kill(child, SIGKILL);
    waitFor(child);

    EXPECT_EQ(scalarIn(victim, "PRAGMA integrity_check;"), "ok");
    int oldRows = 0;
    int newRows = 0;
    for (const auto& [id, value] : customOneById(victim)) {
      if (value == old.at(id)) {
        ++oldRows;
      } else if (value == filled.at(id)) {
        ++newRows;
      } else {
        ADD_FAILURE() << "schedule row " << id << " holds '" << value << "'";
      }
    }
    if (oldRows > 0 && newRows > 0) ++midway;
    EXPECT_EQ(changesBesideCustomOne(victim, pristine), "");
    ASSERT_EQ(waitFor(startFill(victim)), 0);
    EXPECT_EQ(customOneById(victim), filled);
    fs::remove(victim);
  }
  // The moments reach into the fill itself, not only the program's start.
  EXPECT_GE(midway, 3);
}

}  // namespace
}  // namespace qb::test
