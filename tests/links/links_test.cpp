#include "tests/links/links_test.h"

#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace qb::test {

namespace {

std::string quoted(std::string text) {
  for (size_t at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 2))
    text.insert(at, 1, '\'');
  return "'" + text + "'";
}

}  // namespace

LinksTest::LinksTest() {
  db.exec(
      "INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Holdings'),"
      " (2, 'birch & Sons');"
      "INSERT INTO Contacts (ContactID, DisplayName) VALUES (5, 'Ann Lee');"
      "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum, ContactIDNum,"
      " DocCategoryName) VALUES (1, NULL, 1, NULL, 'Acme'), (2, 1, 1, NULL, 'Tax'),"
      " (3, 2, 1, NULL, '2024'), (4, 1, 1, NULL, 'Permanent'), (5, NULL, 2, NULL, 'Birch'),"
      " (6, NULL, NULL, 5, 'Ann');");
}

int32_t LinksTest::addLink(int32_t category, const std::string& name, const std::string& path,
                           const std::string& computer) {
  db.exec(
      "INSERT INTO Documents (CompanyIDNum, ContactIDNum, DocCategoryNum, DocIconName, DocPath,"
      " DocHostComputerName) SELECT CompanyIDNum, ContactIDNum, DocCategoryID, " +
      quoted(name) + ", " + quoted(path) + ", " + quoted(computer) +
      " FROM DocCategories WHERE DocCategoryID = " + std::to_string(category) + ";");
  return std::stoi(db.scalar("SELECT MAX(DocumentID) FROM Documents"));
}

std::string LinksTest::allPaths() {
  return db.scalar(
      "SELECT group_concat(DocumentID || '=' || DocPath, char(10)) FROM"
      " (SELECT DocumentID, DocPath FROM Documents ORDER BY DocumentID)");
}

std::string runAsUnprivileged(const std::function<std::string()>& work) {
  int channel[2];
  if (pipe(channel) != 0) return "child failed";
  const pid_t child = fork();
  if (child == 0) {
    close(channel[0]);
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0))
      _exit(2);
    const std::string result = work();
    const bool written =
        write(channel[1], result.data(), result.size()) == static_cast<ssize_t>(result.size());
    _exit(written ? 0 : 3);
  }
  close(channel[1]);
  std::string result;
  char buffer[4096];
  for (ssize_t got; (got = read(channel[0], buffer, sizeof buffer)) > 0;)
    result.append(buffer, got);
  close(channel[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) return "child failed";
  return result;
}

void openWayTo(const std::string& path) {
  for (std::filesystem::path at(path); at.has_relative_path(); at = at.parent_path()) {
    struct stat st {};
    if (stat(at.c_str(), &st) == 0 && S_ISDIR(st.st_mode)) chmod(at.c_str(), st.st_mode | 0755);
  }
}

}  // namespace qb::test
