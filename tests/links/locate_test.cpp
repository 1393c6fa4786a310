// Finding moved files by name under a folder: one match proposed and
// applied, several listed, none reported; the tree walked once, symbolic
// links to folders not followed, unreadable folders passed over; the folder
// itself checked first.

#include "links/locate.h"

#include <sys/stat.h>

#include <chrono>
#include <filesystem>

#include "links/folder_prefix.h"
#include "links/link_reader.h"
#include "services/files/file_facts_service.h"
#include "tests/links/links_test.h"
#include "tests/services/files/fake_file_system.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;
using links::LinkState;
using links::RepointOutcome;

class LocateTest : public LinksTest {
 protected:
  links::LocatePlan plan(const std::string& folder) {
    return links::planLocate(links::checkLinks(links::readLinks(links::LinkScope::all())), folder);
  }
  // "name: match, match" a line, in the plan's order.
  static std::string matchesOf(const links::LocatePlan& plan) {
    std::string text;
    for (const links::LocateRow& row : plan.rows) {
      text += row.link.link.name + ":";
      for (const std::string& match : row.matches) text += " " + match;
      text += "\n";
    }
    return text;
  }
};

TEST_F(LocateTest, OneMatchIsAppliedSeveralAreListedNoneIsReported) {
  TempFolder& files = db.folder();
  const std::string archive = files.file("archive");
  const std::string once = files.writeFile("archive/2019/Acme/T2 2019.pdf", "x");
  const std::string twiceA = files.writeFile("archive/2019/Lease.docx", "x");
  const std::string twiceB = files.writeFile("archive/old/Lease.docx", "x");
  const std::string outside = files.writeFile("elsewhere/Ledger.xlsx", "x");
  fs::create_directories(archive + "/links");
  fs::create_symlink(outside, archive + "/links/Ledger.xlsx");  // a file: counts
  fs::create_symlink(archive, archive + "/links/loop");         // a folder: not followed
  files.writeFile("archive/2019/Notes.TXT", "x");               // another case: no match

  const int32_t t2 = addLink(3, "T2", files.file("Acme/T2 2019.pdf"));
  const int32_t lease = addLink(5, "Lease", files.file("Birch/Lease.docx"));
  const int32_t ledger = addLink(3, "Ledger", files.file("Acme/Ledger.xlsx"));
  const int32_t notes = addLink(4, "Notes", files.file("Acme/Notes.txt"));
  const int32_t present = addLink(4, "Present", once);
  // Looked for too: a file on another computer, which can't be reached.
  const int32_t remote = addLink(4, "Remote", "/mnt/ws7/T2 2019.pdf", "ACCOUNTING-7");

  std::string folder = archive + "/";
  std::string error;
  ASSERT_TRUE(links::checkFolderReachable(folder, error)) << error;
  EXPECT_EQ(folder, archive);
  const links::LocatePlan preview = plan(folder);
  EXPECT_EQ(matchesOf(preview), "Notes:\nRemote: " + once + "\nLedger: " + archive +
                                    "/links/Ledger.xlsx\n" + "T2: " + once + "\n" +
                                    "Lease: " + twiceA + " " + twiceB + "\n");
  EXPECT_EQ(preview.filesSeen, 5u);
  EXPECT_EQ(preview.withMatches(1), 3u);
  EXPECT_EQ(preview.withSeveral(), 1u);
  EXPECT_EQ(preview.withMatches(0), 1u);

  const std::string before = allPaths();
  EXPECT_EQ(links::applyLocate(preview),
            (std::vector<RepointOutcome>{RepointOutcome::notFound, RepointOutcome::repointed,
                                         RepointOutcome::repointed, RepointOutcome::repointed,
                                         RepointOutcome::notFound}));
  EXPECT_EQ(pathOf(ledger), archive + "/links/Ledger.xlsx");
  EXPECT_EQ(pathOf(t2), once);
  EXPECT_EQ(pathOf(lease), files.file("Birch/Lease.docx"));
  EXPECT_EQ(pathOf(notes), files.file("Acme/Notes.txt"));
  EXPECT_EQ(pathOf(present), once);
  EXPECT_EQ(pathOf(remote), once);
  EXPECT_NE(allPaths(), before);

  // Again: the relinked links are present now, the rest stays as it is.
  const std::string after = allPaths();
  links::applyLocate(plan(folder));
  EXPECT_EQ(allPaths(), after);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(LocateTest, AFolderThatCantBeReadIsPassedOverAndTheFolderIsCheckedFirst) {
  TempFolder& files = db.folder();
  files.writeFile("archive/open/Deed.pdf", "x");
  files.writeFile("archive/closed/Deed.pdf", "x");
  openWayTo(files.file("archive/open"));
  chmod(files.file("archive/open/Deed.pdf").c_str(), 0644);
  chmod(files.file("archive/closed").c_str(), 0700);
  if (geteuid() != 0) chmod(files.file("archive/closed").c_str(), 0000);
  addLink(3, "Deed", files.file("Acme/Deed.pdf"));
  // The store is read here; the walk runs as the other user.
  const auto checked = links::checkLinks(links::readLinks(links::LinkScope::all()));
  const std::string seen = runAsUnprivileged([&] {
    const links::LocatePlan found = links::planLocate(checked, files.file("archive"));
    return matchesOf(found) + std::to_string(found.foldersSkipped);
  });
  chmod(files.file("archive/closed").c_str(), 0700);
  EXPECT_EQ(seen, "Deed: " + files.file("archive/open/Deed.pdf") + "\n1");

  // The folder: missing, a file, relative (taken from the working folder).
  std::string folder = files.file("nowhere"), error;
  EXPECT_FALSE(links::checkFolderReachable(folder, error));
  EXPECT_EQ(error, "there is no folder '" + files.file("nowhere") + "'");
  folder = files.file("archive/open/Deed.pdf");
  EXPECT_FALSE(links::checkFolderReachable(folder, error));
  EXPECT_EQ(error, "'" + files.file("archive/open/Deed.pdf") + "' is a file, not a folder");
  const fs::path working = fs::current_path();
  fs::current_path(files.path());
  folder = "archive/./open/";
  EXPECT_TRUE(links::checkFolderReachable(folder, error));
  fs::current_path(working);
  EXPECT_EQ(folder, files.file("archive/open"));
}

TEST_F(LocateTest, AShareThatHangsIsRefusedOrPassedOverAfterItsWait) {
  // A share at /share, and one mounted inside the tree walked; neither
  // answers.
  TempFolder& files = db.folder();
  const std::string archive = files.file("archive");
  const std::string found = files.writeFile("archive/local/Deed.pdf", "x");
  files.writeFile("archive/mounted/Deed.pdf", "x");
  files.writeFile("archive/mounted/inner/Deed.pdf", "x");
  auto share = std::make_shared<FakeFileSystem>();
  share->mountList.push_back({archive + "/mounted", "cifs", true});
  share->folders = {archive, archive + "/local"};
  share->hangUnder("/share/");
  share->hangUnder(archive + "/mounted");
  installFileFacts(std::make_shared<FileFactsService>(share, std::chrono::milliseconds(50)));

  std::string folder = "/share/archive", error;
  EXPECT_FALSE(links::checkFolderReachable(folder, error));
  EXPECT_EQ(error,
            "the folder '/share/archive' did not answer: its disk or share can't be reached");

  // The walk passes over the share inside the tree after its wait, says so,
  // and finds what lies elsewhere.
  addLink(3, "Deed", files.file("Acme/Deed.pdf"));
  const links::LocatePlan walked = links::planLocate(
      {{links::readLinks(links::LinkScope::all()).front(), LinkState::fileGone}}, archive);
  EXPECT_EQ(matchesOf(walked), "Deed: " + found + "\n");
  EXPECT_EQ(walked.foldersSkipped, 1u);
  EXPECT_EQ(walked.foldersNoAnswer, 1u);
  share->release();
  installFileFacts(nullptr);
}

}  // namespace
}  // namespace qb::test
