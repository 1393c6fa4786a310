#include "tests/app/cli/cli_fixture.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/cli/command_line.h"
#include "sample/sample_firm.h"

namespace qb::test {

namespace fs = std::filesystem;

TempFolder* CliTest::shared_ = nullptr;
std::string CliTest::pristine_;

void CliTest::SetUpTestSuite() {
  shared_ = new TempFolder();
  pristine_ = shared_->file("firm.db");
  createDatabase(pristine_);
  fillSampleFirm(pristine_, shared_->file("firm-files"));
}

void CliTest::TearDownTestSuite() {
  delete shared_;
  shared_ = nullptr;
}

void CliTest::SetUp() {
  db_ = folder_.file("firm.db");
  fs::copy_file(pristine_, db_);
}

ToolRun CliTest::run(const std::vector<std::string>& words) {
  std::ostringstream out;
  std::ostringstream err;
  ToolRun result;
  result.status = cli::runTool(words, out, err);
  result.out = out.str();
  result.err = err.str();
  return result;
}

namespace {

std::string readAll(int fd) {
  std::string text;
  char buffer[4096];
  ssize_t n;
  while ((n = read(fd, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<size_t>(n));
  close(fd);
  return text;
}

// Runs body in a child process; what it returns is the exit status and what
// it writes to the two streams comes back. Waits for the child.
ToolRun inChild(const std::function<int(std::ostream&, std::ostream&)>& body) {
  int outPipe[2];
  int errPipe[2];
  if (pipe(outPipe) != 0 || pipe(errPipe) != 0) return {};
  pid_t child = fork();
  if (child == 0) {
    close(outPipe[0]);
    close(errPipe[0]);
    std::ostringstream out;
    std::ostringstream err;
    int status = body(out, err);
    std::string o = out.str(), e = err.str();
    (void)!write(outPipe[1], o.data(), o.size());
    (void)!write(errPipe[1], e.data(), e.size());
    _exit(status);
  }
  close(outPipe[1]);
  close(errPipe[1]);
  ToolRun result;
  result.out = readAll(outPipe[0]);
  result.err = readAll(errPipe[0]);
  int status = 0;
  waitpid(child, &status, 0);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return result;
}

}  // namespace

ToolRun CliTest::runAsReader(const std::vector<std::string>& words) {
  const bool root = geteuid() == 0;
  const fs::perms folderPerms = fs::status(folder_.path()).permissions();
  // Root may write everything: the run is nobody's, for whom the folder
  // (root's, 0755) and the database (root's, 0644) are read-only.
  fs::permissions(folder_.path(), root ? fs::perms(0755) : fs::perms(0555));
  if (!root) fs::permissions(db_, fs::perms(0444));
  ToolRun result = inChild([&](std::ostream& out, std::ostream& err) {
    if (root && (setgid(65534) != 0 || setuid(65534) != 0)) return 99;
    return cli::runTool(words, out, err);
  });
  fs::permissions(folder_.path(), folderPerms);
  if (!root) fs::permissions(db_, fs::perms(0644));
  return result;
}

ToolRun CliTest::runProgram(const std::vector<std::string>& words, const std::string& outPath) {
  // The program is built beside the test program.
  std::string program = fs::read_symlink("/proc/self/exe").parent_path() / "quillbox";
  int errPipe[2];
  if (pipe(errPipe) != 0) return {};
  pid_t child = fork();
  if (child == 0) {
    int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    dup2(out, 1);
    dup2(errPipe[1], 2);
    close(errPipe[0]);
    std::vector<char*> argv = {program.data()};
    std::vector<std::string> copies = words;
    for (std::string& word : copies) argv.push_back(word.data());
    argv.push_back(nullptr);
    execv(program.c_str(), argv.data());
    _exit(127);
  }
  close(errPipe[1]);
  ToolRun result;
  result.err = readAll(errPipe[0]);
  int status = 0;
  waitpid(child, &status, 0);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return result;
}

std::string CliTest::scalarIn(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
  sqlite3_stmt* stmt = nullptr;
  std::string result;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    ADD_FAILURE() << sqlite3_errmsg(db) << " in " << sql;
  } else if (sqlite3_step(stmt) == SQLITE_ROW && sqlite3_column_type(stmt, 0) != SQLITE_NULL) {
    result = reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0));
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
  return result;
}

void CliTest::execIn(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  sqlite3_open(path.c_str(), &db);
  char* message = nullptr;
  if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
    ADD_FAILURE() << (message != nullptr ? message : "?") << " in " << sql;
  }
  sqlite3_free(message);
  sqlite3_close(db);
}

std::string CliTest::bytesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

}  // namespace qb::test
