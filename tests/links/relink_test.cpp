// Relinking by folder: prefixes by whole components, the preview that
// changes nothing, the apply that changes only the links whose file is at
// the new place (read back from the store), a second apply that changes
// nothing, and links left as they were when the program is killed midway.

#include "links/relink.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "links/folder_prefix.h"
#include "links/link_reader.h"
#include "services/host/module_state.h"
#include "services/store/sqlite_database.h"
#include "tests/links/links_test.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;
using links::LinkScope;
using links::RepointOutcome;

TEST(FolderPrefix, PrefixesMatchWholeComponentsInTheirNormalForm) {
  std::string prefix, error;
  EXPECT_TRUE(links::normalizePrefix("/srv/data/", prefix, error));
  EXPECT_EQ(prefix, "/srv/data");
  EXPECT_TRUE(links::normalizePrefix("/srv//data/./old/..//", prefix, error));
  EXPECT_EQ(prefix, "/srv/data");
  EXPECT_TRUE(links::normalizePrefix("/", prefix, error));
  EXPECT_EQ(prefix, "/");
  EXPECT_TRUE(links::normalizePrefix("/Clients/Société Dupré/", prefix, error));
  EXPECT_EQ(prefix, "/Clients/Société Dupré");
  EXPECT_FALSE(links::normalizePrefix("srv/data", prefix, error));
  EXPECT_EQ(error, "'srv/data' is a relative path: give the whole path from '/'");
  EXPECT_FALSE(links::normalizePrefix("", prefix, error));
  EXPECT_EQ(error, "a folder is needed, not an empty text");

  EXPECT_TRUE(links::isUnderPrefix("/srv/data", "/srv/data"));
  EXPECT_TRUE(links::isUnderPrefix("/srv/data/a.pdf", "/srv/data"));
  EXPECT_FALSE(links::isUnderPrefix("/srv/database/a.pdf", "/srv/data"));
  EXPECT_FALSE(links::isUnderPrefix("/srv/dat", "/srv/data"));
  EXPECT_FALSE(links::isUnderPrefix("", "/srv/data"));
  EXPECT_TRUE(links::isUnderPrefix("/a.pdf", "/"));
  EXPECT_FALSE(links::isUnderPrefix("C:\\a.pdf", "/"));

  EXPECT_EQ(links::replacePrefix("/srv/data/x/a.pdf", "/srv/data", "/mnt/new"), "/mnt/new/x/a.pdf");
  EXPECT_EQ(links::replacePrefix("/srv/data", "/srv/data", "/mnt/new"), "/mnt/new");
  EXPECT_EQ(links::replacePrefix("/srv/data/a.pdf", "/srv/data", "/"), "/a.pdf");
  EXPECT_EQ(links::replacePrefix("/a/b.pdf", "/", "/mnt"), "/mnt/a/b.pdf");
}

class RelinkTest : public LinksTest {
 protected:
  RelinkTest() {
    std::string error;
    links::normalizePrefix(db.folder().file("old server/"), oldFolder, error);
    links::normalizePrefix(db.folder().file("new server"), newFolder, error);
  }
  links::RelinkPlan plan(const LinkScope& scope = LinkScope::all()) {
    return links::planRelink(links::readLinks(scope), oldFolder, newFolder);
  }
  std::string oldFolder, newFolder;
};

TEST_F(RelinkTest, ThePreviewChangesNothingAndTheApplyOnlyTheLinksWhoseFileIsThere) {
  TempFolder& files = db.folder();
  // The files now live under the new folder; one did not make the move.
  for (const char* name : {"Acme/T2 2024.pdf", "Acme/Société Dupré — relevé.pdf",
                           "Acme/odd*/name.pdf", "Birch/Lease.docx"})
    files.writeFile(std::string("new server/") + name, "x");
  const int32_t t2 = addLink(3, "T2", oldFolder + "/Acme/T2 2024.pdf");
  const int32_t accents = addLink(3, "Relevé", oldFolder + "/Acme/Société Dupré — relevé.pdf");
  const int32_t odd = addLink(3, "Odd", oldFolder + "/Acme/odd*/name.pdf");
  const int32_t lost = addLink(4, "Lost", oldFolder + "/Acme/Lost.pdf");
  const int32_t lease = addLink(5, "Lease", oldFolder + "/Birch/Lease.docx");
  const int32_t sibling = addLink(3, "Sibling", oldFolder + "s/Acme/T2 2024.pdf");
  const int32_t elsewhere = addLink(3, "Elsewhere", "/elsewhere/T2 2024.pdf");
  const std::string before = allPaths();

  // The preview: every link under the old folder, in the reports' order.
  links::RelinkPlan preview = plan();
  std::string rows;
  for (const links::RelinkRow& row : preview.rows)
    rows += row.link.name + (row.found ? " found " : " missing ") + row.newPath + "\n";
  EXPECT_EQ(rows, "Lost missing " + newFolder + "/Acme/Lost.pdf\n" + "Odd found " + newFolder +
                      "/Acme/odd*/name.pdf\n" + "Relevé found " + newFolder +
                      "/Acme/Société Dupré — relevé.pdf\n" + "T2 found " + newFolder +
                      "/Acme/T2 2024.pdf\n" + "Lease found " + newFolder + "/Birch/Lease.docx\n");
  EXPECT_EQ(preview.foundCount(), 4u);
  EXPECT_EQ(allPaths(), before);

  // One client's links alone.
  EXPECT_EQ(plan(LinkScope::company(2)).rows.size(), 1u);

  const std::vector<RepointOutcome> outcomes = links::applyRelink(preview);
  EXPECT_EQ(outcomes,
            (std::vector<RepointOutcome>{RepointOutcome::notFound, RepointOutcome::repointed,
                                         RepointOutcome::repointed, RepointOutcome::repointed,
                                         RepointOutcome::repointed}));
  EXPECT_EQ(pathOf(t2), newFolder + "/Acme/T2 2024.pdf");
  EXPECT_EQ(pathOf(accents), newFolder + "/Acme/Société Dupré — relevé.pdf");
  EXPECT_EQ(pathOf(odd), newFolder + "/Acme/odd*/name.pdf");
  EXPECT_EQ(pathOf(lease), newFolder + "/Birch/Lease.docx");
  EXPECT_EQ(pathOf(lost), oldFolder + "/Acme/Lost.pdf");
  EXPECT_EQ(pathOf(sibling), oldFolder + "s/Acme/T2 2024.pdf");
  EXPECT_EQ(pathOf(elsewhere), "/elsewhere/T2 2024.pdf");
  // The file's name did not change, so the name columns stay.
  EXPECT_EQ(db.scalar("SELECT DocIconName FROM Documents WHERE DocumentID = " + std::to_string(t2)),
            "T2");

  // The same relink again changes nothing.
  const std::string after = allPaths();
  links::RelinkPlan again = plan();
  ASSERT_EQ(again.rows.size(), 1u);
  EXPECT_FALSE(again.rows[0].found);
  links::applyRelink(again);
  EXPECT_EQ(allPaths(), after);
  EXPECT_TRUE(db.errors().failures.empty());
  // Nothing on disk moved.
  EXPECT_TRUE(fs::exists(newFolder + "/Acme/T2 2024.pdf"));
  EXPECT_FALSE(fs::exists(oldFolder));
}

TEST_F(RelinkTest, ANewFolderInsideTheOldOneAndALinkChangedSinceThePreview) {
  TempFolder& files = db.folder();
  const std::string inside = oldFolder + "/moved";
  files.writeFile("old server/moved/a.pdf", "x");
  files.writeFile("old server/moved/moved/b.pdf", "x");
  files.writeFile("old server/moved/c.pdf", "x");
  const int32_t a = addLink(3, "a", oldFolder + "/a.pdf");
  const int32_t b = addLink(3, "b", inside + "/b.pdf");  // already relinked
  const int32_t c = addLink(3, "c", oldFolder + "/c.pdf");
  const int32_t gone = addLink(3, "d", oldFolder + "/c.pdf");

  links::RelinkPlan first =
      links::planRelink(links::readLinks(LinkScope::all()), oldFolder, inside);
  ASSERT_EQ(first.rows.size(), 3u);  // not b, which lies under the new folder
  // Meanwhile someone points c elsewhere, and d is removed.
  db.exec(
      "UPDATE Documents SET DocPath = '/elsewhere/c.pdf' WHERE DocumentID = " + std::to_string(c) +
      "; DELETE FROM Documents WHERE DocumentID = " + std::to_string(gone) + ";");
  EXPECT_EQ(
      links::applyRelink(first),
      (std::vector<RepointOutcome>{RepointOutcome::repointed, RepointOutcome::changedMeanwhile,
                                   RepointOutcome::changedMeanwhile}));
  EXPECT_EQ(pathOf(a), inside + "/a.pdf");
  EXPECT_EQ(pathOf(b), inside + "/b.pdf");
  EXPECT_EQ(pathOf(c), "/elsewhere/c.pdf");

  const std::string after = allPaths();
  EXPECT_TRUE(
      links::planRelink(links::readLinks(LinkScope::all()), oldFolder, inside).rows.empty());
  EXPECT_EQ(allPaths(), after);
}

TEST_F(RelinkTest, TenThousandLinksUnderOnePrefix) {
  db.folder().writeFile("new server/Bulk/scan.pdf", "x");
  db.exec(
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 9999)"
      " INSERT INTO Documents (CompanyIDNum, DocCategoryNum, DocIconName, DocPath)"
      " SELECT 1, 3, 'Scan ' || i, '" +
      oldFolder +
      "/Bulk/' || CASE WHEN i % 10 = 0 THEN"
      " 'missing ' || i || '.pdf' ELSE 'scan.pdf' END FROM n;");
  links::RelinkPlan bulk = plan();
  ASSERT_EQ(bulk.rows.size(), 10000u);
  EXPECT_EQ(bulk.foundCount(), 9000u);
  links::applyRelink(bulk);
  EXPECT_EQ(
      db.scalar("SELECT COUNT(*) FROM Documents WHERE DocPath = '" + newFolder + "/Bulk/scan.pdf'"),
      "9000");
  EXPECT_EQ(db.scalar("SELECT COUNT(*) FROM Documents WHERE DocPath LIKE '" + oldFolder +
                      "/Bulk/missing %'"),
            "1000");
}

// Runs the relink in a child process with a store of its own; the parent
// kills it after `afterLinks` links (a kill between two links) or, with
// afterLinks -1, at a moment of its own (a kill at any point, a write
// included). The store of this process is closed meanwhile.
void relinkInAChildAndKillIt(TestDatabase& db, const std::string& from, const std::string& to,
                             int afterLinks, std::chrono::microseconds wait) {
  db.store().close();
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    close(ready[0]);
    auto store = std::make_shared<SqliteDatabase>();
    store->open(db.path());
    resetModuleState();
    moduleState().databaseReference = store;
    links::RelinkPlan plan = links::planRelink(links::readLinks(LinkScope::all()), from, to);
    if (write(ready[1], "r", 1) != 1) _exit(3);
    int done = 0;
    links::applyRelink(plan, [&](size_t, size_t) {
      if (++done == afterLinks) raise(SIGKILL);
    });
    _exit(0);
  }
  close(ready[1]);
  char signal = 0;
  EXPECT_EQ(read(ready[0], &signal, 1), 1);
  close(ready[0]);
  if (afterLinks < 0) {
    std::this_thread::sleep_for(wait);
    kill(child, SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  // A kill at a moment of the parent's choosing may come after the end.
  if (afterLinks >= 0) {
    EXPECT_TRUE(WIFSIGNALED(status)) << "the relink ended before it was killed";
  }
  db.store().open(db.path());
}

TEST_F(RelinkTest, AKilledRelinkLeavesEachLinkWithItsOldOrItsNewPath) {
  db.folder().writeFile("new server/scan.pdf", "x");
  db.exec(
      "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 3999)"
      " INSERT INTO Documents (CompanyIDNum, DocCategoryNum, DocIconName, DocPath)"
      " SELECT 1, 3, 'Scan ' || i, '" +
      oldFolder + "/scan.pdf' FROM n;");
  const std::string oldPath = oldFolder + "/scan.pdf", newPath = newFolder + "/scan.pdf";
  auto count = [&](const std::string& path) {
    return std::stoi(db.scalar("SELECT COUNT(*) FROM Documents WHERE DocPath = '" + path + "'"));
  };

  // Killed between two links: exactly those before it are relinked.
  relinkInAChildAndKillIt(db, oldFolder, newFolder, 250, {});
  EXPECT_EQ(count(newPath), 250);
  EXPECT_EQ(count(oldPath), 3750);
  // Killed at moments of the parent's choosing, within writes too.
  for (int wait : {2000, 20000, 60000}) {
    const int relinkedBefore = count(newPath);
    relinkInAChildAndKillIt(db, oldFolder, newFolder, -1, std::chrono::microseconds(wait));
    EXPECT_EQ(count(oldPath) + count(newPath), 4000);
    EXPECT_GE(count(newPath), relinkedBefore);
  }
  EXPECT_EQ(db.scalar("PRAGMA integrity_check"), "ok");

  // Run again to the end, the rest is relinked; once more changes nothing.
  links::applyRelink(plan());
  EXPECT_EQ(count(newPath), 4000);
  const std::string after = allPaths();
  links::applyRelink(plan());
  EXPECT_EQ(allPaths(), after);
}

}  // namespace
}  // namespace qb::test
