// Each state of the check on real files and folders: present, read-only,
// file gone, on another computer, folder gone, a folder, no permission (as an
// unprivileged user), no path; symbolic links followed to what they name; a
// share that hangs waited on once.

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "links/link_check.h"
#include "links/link_reader.h"
#include "services/files/file_facts_service.h"
#include "services/runtime/strings.h"
#include "tests/links/links_test.h"
#include "tests/services/files/fake_file_system.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;
using links::LinkState;

class LinkStateTest : public LinksTest {
 protected:
  // "name state" for every link, in the check's order.
  std::string statesOf(const std::vector<links::CheckedLink>& checked) {
    std::string text;
    for (const links::CheckedLink& row : checked)
      text += row.link.name + " " + links::linkStateName(row.state) + "\n";
    return text;
  }
};

TEST_F(LinkStateTest, EachStateOnRealFilesAndFolders) {
  TempFolder& files = db.folder();
  const std::string present = files.writeFile("Acme/T2 2024.pdf", "%PDF");
  const std::string readOnly = files.writeFile("Acme/Articles.pdf", "%PDF");
  chmod(readOnly.c_str(), 0444);
  fs::create_directories(files.file("Acme/Scans"));
  fs::create_symlink(present, files.file("Acme/Shortcut.pdf"));
  fs::create_symlink(files.file("Acme/Gone.pdf"), files.file("Acme/Dangling.pdf"));

  addLink(3, "a present", present);
  addLink(3, "b read-only", readOnly);
  addLink(3, "c file gone", files.file("Acme/Gone.pdf"));
  // The folder test comes first: another computer's link to a folder that is
  // there is a file gone, not an unreachable computer.
  addLink(3, "d file gone elsewhere", files.file("Acme/Gone too.pdf"), "ACCOUNTING-7");
  addLink(3, "e other computer", "/mnt/accounting/Acme/Ledger.xlsx", "ACCOUNTING-7");
  addLink(3, "f other computer, its own path", "C:\\Data\\Acme\\Ledger.xlsx", "ACCOUNTING-7");
  addLink(3, "g folder gone", files.file("Old Acme/Ledger.xlsx"));
  // The stored computer name is compared without regard to case.
  addLink(3, "h folder gone, name in capitals", files.file("Old Acme/Notes.txt"),
          UCase(thisComputer()));
  addLink(3, "i folder", files.file("Acme/Scans"));
  addLink(3, "j no path", "");
  addLink(3, "k symbolic link", files.file("Acme/Shortcut.pdf"));
  addLink(3, "l dangling symbolic link", files.file("Acme/Dangling.pdf"));
  addLink(3, "m a file on the way", present + "/inner.pdf");

  const auto checked = links::checkLinks(links::readLinks(links::LinkScope::all()));
  EXPECT_EQ(statesOf(checked),
            "a present present\n"
            "b read-only read-only\n"
            "c file gone file-gone\n"
            "d file gone elsewhere file-gone\n"
            "e other computer other-computer\n"
            "f other computer, its own path other-computer\n"
            "g folder gone folder-gone\n"
            "h folder gone, name in capitals folder-gone\n"
            "i folder folder\n"
            "j no path no-path\n"
            "k symbolic link present\n"
            "l dangling symbolic link file-gone\n"
            "m a file on the way folder-gone\n");
  const links::StateCounts counts = links::countStates(checked);
  EXPECT_EQ(counts.broken(), 9u);
  EXPECT_EQ(links::stateSummary(counts),
            "13 links: present 2, read-only 1, file-gone 3, other-computer 2, folder-gone 3, "
            "folder 1, no-permission 0, no-answer 0, no-path 1");
  EXPECT_TRUE(db.errors().failures.empty());
  // Nothing on disk was touched.
  EXPECT_TRUE(fs::exists(present));
  EXPECT_FALSE(fs::exists(files.file("Acme/Gone.pdf")));
}

TEST_F(LinkStateTest, AUserWhoMayNotReadIsToldSo) {
  TempFolder& files = db.folder();
  const std::string open = files.writeFile("Shared/Open.pdf", "%PDF");
  const std::string secret = files.writeFile("Shared/Secret.pdf", "%PDF");
  const std::string locked = files.writeFile("Locked/Inside.pdf", "%PDF");
  const std::string readOnly = files.writeFile("Shared/Kept.pdf", "%PDF");
  openWayTo(files.file("Shared"));
  chmod(open.c_str(), 0644);
  chmod(readOnly.c_str(), 0444);
  chmod(secret.c_str(), 0600);  // the owner's alone
  chmod(files.file("Locked").c_str(), 0700);
  if (geteuid() != 0) {
    // Not the superuser: the files become another owner's by their bits.
    chmod(secret.c_str(), 0000);
    chmod(files.file("Locked").c_str(), 0000);
  }
  const std::string states = runAsUnprivileged([&] {
    const ReaderRights rights = ReaderRights::ofThisProcess();
    std::string seen;
    for (const std::string& path : {open, secret, locked, readOnly}) {
      seen += links::linkStateName(links::linkStateOf(path, thisComputer(), rights));
      // The document list marks the same links with the broken-link emblem.
      seen += fileUtilitiesClass().accessState(path) == FileAccessState::reachable ? " " : "! ";
    }
    return seen;
  });
  chmod(files.file("Locked").c_str(), 0700);
  EXPECT_EQ(states, "present no-permission! no-permission! read-only ");

  // The rule itself, for users other than this one.
  FileFacts facts = FileFacts::of(FileReach::present);
  facts.owner = 1000, facts.group = 100, facts.mode = 0640;
  EXPECT_TRUE(ReaderRights(1000, {1000}).mayRead(facts));
  EXPECT_TRUE(ReaderRights(1001, {1001, 100}).mayRead(facts));
  EXPECT_FALSE(ReaderRights(1002, {1002}).mayRead(facts));
  EXPECT_TRUE(ReaderRights(0, {0}).mayRead(facts));
  facts.mode = 0044;  // the owner alone may not: the owner's bits decide for the owner
  EXPECT_FALSE(ReaderRights(1000, {100}).mayRead(facts));
  EXPECT_FALSE(ReaderRights(1000, {1000}).mayRead(FileFacts::of(FileReach::missing)));
}

TEST_F(LinkStateTest, AShareThatHangsIsWaitedOnOnceAndEveryLinkOnItHasNoAnswer) {
  auto share = std::make_shared<FakeFileSystem>();
  share->missing = {"/data/Acme/Gone.pdf"};
  share->folders = {"/data/Acme"};
  share->hangUnder("/share/");
  installFileFacts(std::make_shared<FileFactsService>(share, std::chrono::milliseconds(50)));
  for (int i = 0; i < 200; ++i)
    addLink(5, "On the share " + std::to_string(i), "/share/Birch/" + std::to_string(i) + ".pdf");
  addLink(3, "Local", "/data/Acme/Ledger.xlsx");
  addLink(3, "Local, gone", "/data/Acme/Gone.pdf");

  size_t lastDone = 0, calls = 0;
  const auto checked =
      links::checkLinks(links::readLinks(links::LinkScope::all()), [&](size_t done, size_t total) {
        EXPECT_EQ(total, 202u);
        EXPECT_GT(done, lastDone);
        lastDone = done;
        ++calls;
      });
  EXPECT_EQ(lastDone, 202u);
  EXPECT_GE(calls, 1u);
  const links::StateCounts counts = links::countStates(checked);
  EXPECT_EQ(counts.of(LinkState::noAnswer), 200u);
  EXPECT_EQ(counts.of(LinkState::present), 1u);
  EXPECT_EQ(counts.of(LinkState::fileGone), 1u);
  // The share was asked no more than one window of calls: the rest were
  // known dead without asking.
  EXPECT_LE(share->queries.load(), static_cast<int>(FileFactsService::kCallsInFlightPerMount) + 3);
  share->release();
  installFileFacts(nullptr);
}

}  // namespace
}  // namespace qb::test
