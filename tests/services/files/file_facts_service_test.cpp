// The file-facts service: one call per file within an operation, the bounded
// wait on a share that does not answer (the whole mount then counts as
// unreachable for the rest of the operation, and at once while the call
// still hangs), files fetched side by side, and the mount table.

#include "services/files/file_facts_service.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "services/files/system_file_facts.h"
#include "services/util/file_utilities_class.h"
#include "tests/services/files/fake_file_system.h"
#include "tests/support/temp_folder.h"

namespace qb {
namespace {

using namespace std::chrono_literals;

class FileFactsServiceTest : public ::testing::Test {
 protected:
  void SetUp() override { installFileFacts(service); }
  void TearDown() override {
    files->release();  // hanging calls come back and their threads end
    installFileFacts(nullptr);
  }

  std::shared_ptr<test::FakeFileSystem> files = std::make_shared<test::FakeFileSystem>();
  std::shared_ptr<FileFactsService> service = std::make_shared<FileFactsService>(files, 100ms);
};

TEST_F(FileFactsServiceTest, EveryFactOfAFileComesFromOneCallPerOperation) {
  fileUtilitiesClass utilities;
  {
    FileFactsOperation fill;
    for (const std::string path : {"/data/a.pdf", "/share/b.xlsx"}) {
      EXPECT_EQ(utilities.getFileSize(path), static_cast<int32_t>(path.size()));
      EXPECT_TRUE(utilities.getFileDate(path, fileDateCreated, true).isDate());
      EXPECT_TRUE(utilities.getFileDate(path, fileDateLastModified, true).isDate());
      EXPECT_TRUE(utilities.getFileDate(path, fileDateLastAccessed, true).isDate());
      EXPECT_TRUE(utilities.fileExists(path));
      EXPECT_FALSE(utilities.folderExists(path));
      EXPECT_TRUE(utilities.isFileWritable(path));
      EXPECT_EQ(utilities.accessState(path), FileAccessState::reachable);
    }
    EXPECT_EQ(service->metadataCalls(), 2);
    EXPECT_EQ(files->queries, 2);
  }
  // Outside an operation every question asks afresh; an empty path asks no one.
  EXPECT_TRUE(utilities.fileExists("/data/a.pdf"));
  EXPECT_TRUE(utilities.fileExists("/data/a.pdf"));
  EXPECT_FALSE(utilities.fileExists(""));
  EXPECT_EQ(files->queries, 4);
}

TEST_F(FileFactsServiceTest, AHangingShareIsWaitedOnOnceThenTheWholeMountIsUnreachable) {
  files->hangUnder("/share/");
  fileUtilitiesClass utilities;
  {
    FileFactsOperation fill;
    FileFacts first = service->facts("/share/clients/a.pdf");
    EXPECT_EQ(first.reach, FileReach::unreachable);
    EXPECT_TRUE(first.timedOut);
    // The rest of the mount is not asked again in this operation; other
    // mounts are.
    EXPECT_EQ(utilities.accessState("/share/clients/b.pdf"), FileAccessState::unreachable);
    EXPECT_FALSE(utilities.fileExists("/share/c.pdf"));
    EXPECT_FALSE(utilities.isFileInUse("/share/c.pdf"));
    EXPECT_TRUE(utilities.fileExists("/data/local.pdf"));
    EXPECT_EQ(files->queries, 2);
  }
  // While the abandoned call still hangs, a later operation gives up at once.
  EXPECT_TRUE(service->facts("/share/d.pdf").timedOut);
  EXPECT_EQ(files->queries, 2);

  // Once the share answers again, so does the service.
  files->release();
  ASSERT_TRUE(files->waitReturned(2));
  FileFacts again = service->facts("/share/d.pdf");
  for (int i = 0; i < 200 && again.timedOut; ++i) {
    std::this_thread::sleep_for(5ms);
    again = service->facts("/share/d.pdf");
  }
  EXPECT_TRUE(again.present());
  EXPECT_EQ(files->queries, 3);
}

TEST_F(FileFactsServiceTest, ASlowShareThatAnswersInTimeIsReadAndKeepsItsMount) {
  files->delay = 20ms;
  files->missing.insert("/share/gone.pdf");
  files->folders.insert("/share/letters");
  FileFactsOperation fill;
  EXPECT_EQ(service->facts("/share/gone.pdf").reach, FileReach::missing);
  EXPECT_TRUE(service->facts("/share/letters").isFolder);
  EXPECT_TRUE(service->facts("/share/a.pdf").isFile());
  EXPECT_FALSE(service->facts("/share/a.pdf").timedOut);
}

TEST_F(FileFactsServiceTest, AListIsFetchedSideBySideOnceAndAHangingShareCostsOneWait) {
  files->delay = 5ms;
  std::vector<std::string> paths;
  for (int i = 0; i < 40; ++i) paths.push_back("/share/f" + std::to_string(i) + ".pdf");
  paths.push_back("/data/local.pdf");
  {
    FileFactsOperation fill;
    service->prefetch(paths);
    EXPECT_EQ(files->queries, 41);
    for (const std::string& path : paths) EXPECT_TRUE(service->facts(path).present()) << path;
    EXPECT_EQ(files->queries, 41);
  }
  EXPECT_GT(files->mostRunning, 1);
  EXPECT_LE(files->mostRunning, static_cast<int>(FileFactsService::kCallsInFlightPerMount));

  // The same list on a share that stopped answering: at most one window of
  // calls is spent on it, the local file is still read.
  files->hangUnder("/share/");
  files->queries = 0;
  FileFactsOperation fill;
  service->prefetch(paths);
  EXPECT_LE(files->queries, static_cast<int>(FileFactsService::kCallsInFlightPerMount) + 1);
  EXPECT_TRUE(service->facts("/data/local.pdf").present());
  for (int i = 0; i < 40; ++i) EXPECT_EQ(service->facts(paths[i]).reach, FileReach::unreachable);
}

TEST_F(FileFactsServiceTest, AFolderIsReadOnceAndAHangingShareIsGivenUpOnAfterTheWait) {
  files->listings["/share/clients"] = {{"a.pdf", true, false}, {"2024", false, true}};
  FolderListing listing = service->listFolder("/share/clients");
  ASSERT_TRUE(listing.present());
  ASSERT_EQ(listing.entries.size(), 2u);
  EXPECT_TRUE(listing.entries[0].isFile);
  EXPECT_TRUE(listing.entries[1].isFolder);
  EXPECT_EQ(service->listFolder("/data/a.pdf").reach, FileReach::missing);
  EXPECT_EQ(service->folderReads(), 2);

  files->hangUnder("/share/");
  {
    FileFactsOperation sync;
    const auto began = std::chrono::steady_clock::now();
    FolderListing hung = service->listFolder("/share/clients");
    EXPECT_EQ(hung.reach, FileReach::unreachable);
    EXPECT_TRUE(hung.timedOut);
    EXPECT_LT(std::chrono::steady_clock::now() - began, 5s);
    // The mount is dead for the rest of the operation: its files too.
    EXPECT_TRUE(service->facts("/share/clients/a.pdf").timedOut);
    EXPECT_EQ(files->queries, 3);
  }
}

TEST(SystemFileFacts, AFolderListsItsFilesAndFoldersAndFollowsLinks) {
  test::TempFolder folder;
  folder.writeFile("a.txt", "a");
  folder.writeFile("sub/b.txt", "b");
  std::filesystem::create_symlink(folder.file("a.txt"), folder.file("link.txt"));
  std::filesystem::create_symlink(folder.file("gone.txt"), folder.file("dangling.txt"));
  FolderListing listing = SystemFileFacts().listFolder(folder.path().string());
  ASSERT_TRUE(listing.present());
  std::map<std::string, std::string> kinds;
  for (const FolderEntry& entry : listing.entries)
    kinds[entry.name] = entry.isFile ? "file" : entry.isFolder ? "folder" : "other";
  EXPECT_EQ(
      kinds,
      (std::map<std::string, std::string>{
          {"a.txt", "file"}, {"dangling.txt", "other"}, {"link.txt", "file"}, {"sub", "folder"}}));
  EXPECT_EQ(SystemFileFacts().listFolder(folder.file("none")).reach, FileReach::missing);
  EXPECT_EQ(SystemFileFacts().listFolder(folder.file("a.txt")).reach, FileReach::missing);
}

TEST(FileFactsMounts, APathBelongsToItsLongestMountPointComponentWise) {
  auto files = std::make_shared<test::FakeFileSystem>();
  files->mountList.push_back({"/share/archive", "ext4", false});
  FileFactsService service(files);
  EXPECT_EQ(service.mountOf("/share/archive/2020/a.pdf").path, "/share/archive");
  EXPECT_EQ(service.mountOf("/share/archived.pdf").path, "/share");
  EXPECT_TRUE(service.mountOf("/share").remote);
  EXPECT_EQ(service.mountOf("/sharex/a.pdf").path, "/");

  std::vector<MountPoint> mounts = parseMountInfo(
      "22 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
      "40 22 0:41 / /mnt/Client\\040Files rw,relatime - cifs //server/files rw\n"
      "41 22 0:42 / /home/ann/.gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
      "bad line\n");
  ASSERT_EQ(mounts.size(), 3u);
  EXPECT_EQ(mounts[1].path, "/mnt/Client Files");
  EXPECT_FALSE(mounts[0].remote);
  EXPECT_TRUE(mounts[1].remote);
  EXPECT_TRUE(mounts[2].remote);
  EXPECT_TRUE(isRemoteFileSystem("nfs4"));
  EXPECT_FALSE(isRemoteFileSystem("tmpfs"));
  // The machine's own table always has the root.
  std::vector<MountPoint> real = SystemFileFacts().mounts();
  EXPECT_TRUE(std::any_of(real.begin(), real.end(),
                          [](const MountPoint& mount) { return mount.path == "/"; }));
}

}  // namespace
}  // namespace qb
