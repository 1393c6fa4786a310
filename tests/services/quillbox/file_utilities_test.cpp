#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "services/runtime/dates.h"
#include "services/util/file_utilities_class.h"
#include "tests/support/temp_folder.h"

namespace qb {
namespace {

// Sets the access and modification times of a file (seconds since 1970 UTC).
void setFileTimes(const std::string& path, time_t accessed, time_t modified) {
  struct timespec times[2] = {{accessed, 0}, {modified, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
}

TEST(FileUtilities, SizeAndDatesOfARealFile) {
  test::TempFolder folder;
  fileUtilitiesClass files;
  std::string path = folder.writeFileOfSize("report.pdf", 1572864);
  std::string empty = folder.writeFile("empty.txt", "");

  EXPECT_EQ(files.getFileSize(path), 1572864);
  EXPECT_EQ(files.getFileSize(empty), 0);
  EXPECT_EQ(files.getFileSize(folder.path().string()), 0);

  // 2 January 2024 10:00 and 1 March 2023 08:30, UTC.
  setFileTimes(path, 1704189600, 1677659400);
  Variant accessed = files.getFileDate(path, fileDateLastAccessed, false);
  Variant modified = files.getFileDate(path, fileDateLastModified, false);
  ASSERT_TRUE(accessed.isDate());
  ASSERT_TRUE(modified.isDate());
  EXPECT_NEAR(accessed.rawDouble(), DateSerial(2024, 1, 2) + TimeSerial(10, 0, 0), 1e-6);
  EXPECT_NEAR(modified.rawDouble(), DateSerial(2023, 3, 1) + TimeSerial(8, 30, 0), 1e-6);
  EXPECT_NEAR(files.getFileDate(path, fileDateLastModified, true).rawDouble(),
              fromTimeT(1677659400), 1e-6);

  // The birth time, or where there is none the earliest time kept: never
  // later than the modification, never in the future.
  Variant created = files.getFileDate(path, fileDateCreated, true);
  ASSERT_TRUE(created.isDate());
  EXPECT_LE(created.rawDouble(), Now() + 1.0 / 1440);
  EXPECT_TRUE(files.getFileDate(path, 7, true).isNull());
}

TEST(FileUtilities, UnreachableFilesGiveNothingAndTellWhy) {
  test::TempFolder folder;
  fileUtilitiesClass files;
  std::string there = folder.writeFile("letters/there.doc", "x");
  std::string missing = folder.file("letters/gone.doc");
  std::string goneFolder = folder.file("old/gone.doc");

  EXPECT_EQ(files.accessState(there), FileAccessState::reachable);
  EXPECT_EQ(files.accessState(missing), FileAccessState::missingFile);
  EXPECT_EQ(files.accessState(goneFolder), FileAccessState::missingFolder);
  EXPECT_EQ(files.accessState("C:\\Data\\letter.doc"), FileAccessState::missingFolder);

  for (const std::string& path : {missing, goneFolder}) {
    EXPECT_EQ(files.getFileSize(path), 0) << path;
    EXPECT_TRUE(files.getFileDate(path, fileDateLastModified, true).isNull()) << path;
    EXPECT_FALSE(files.fileExists(path)) << path;
    EXPECT_FALSE(files.isFileWritable(path)) << path;
  }
  EXPECT_TRUE(files.fileExists(there));
  EXPECT_FALSE(files.fileExists(folder.file("letters")));
  EXPECT_TRUE(files.folderExists(folder.file("letters")));
  EXPECT_FALSE(files.folderExists(there));
}

TEST(FileUtilities, ReadOnlyFileIsNotWritable) {
  test::TempFolder folder;
  fileUtilitiesClass files;
  std::string path = folder.writeFile("locked.xlsx", "data");
  EXPECT_TRUE(files.isFileWritable(path));
  std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                         std::filesystem::perms::group_read |
                                         std::filesystem::perms::others_read);
  EXPECT_FALSE(files.isFileWritable(path));
  EXPECT_TRUE(files.fileExists(path));
}

TEST(FileUtilities, FileHeldOpenByAnotherProcessIsInUse) {
  test::TempFolder folder;
  fileUtilitiesClass files;
  std::string path = folder.writeFile("ledger.db", "rows");
  EXPECT_FALSE(files.isFileInUse(path));

  pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    execl("/bin/sh", "sh", "-c", ("exec sleep 30 < '" + path + "'").c_str(), nullptr);
    _exit(127);
  }
  bool seen = false;
  for (int i = 0; i < 100 && !seen; ++i) {
    seen = files.isFileInUse(path);
    if (!seen) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_TRUE(seen);
  EXPECT_FALSE(files.isFileInUse(path));
}

TEST(FileUtilities, PathParts) {
  fileUtilitiesClass files;
  EXPECT_EQ(files.addTrailingBackslash("/srv/firm"), "/srv/firm/");
  EXPECT_EQ(files.addTrailingBackslash("/srv/firm//"), "/srv/firm/");
  EXPECT_EQ(files.addTrailingBackslash("C:\\Firm\\"), "C:\\Firm\\");
  EXPECT_EQ(files.addTrailingBackslash("C:\\Firm"), "C:\\Firm\\");
  EXPECT_EQ(files.addTrailingBackslash(""), "/");
  EXPECT_EQ(files.getFileExtension("/a/Letter.OMD"), ".OMD");
  EXPECT_EQ(files.getFileExtension("/a.b/README"), "");
  EXPECT_EQ(files.getFileExtension("/a/.profile"), "");
  EXPECT_EQ(files.getFolderFromPath("/srv/firm/a.doc"), "/srv/firm");
  EXPECT_EQ(files.getFolderFromPath("C:\\Data\\a.doc"), "C:\\Data");
  EXPECT_EQ(files.getFolderFromPath("/a.doc"), "/");
  EXPECT_EQ(files.getFolderFromPath("a.doc"), "");
  EXPECT_EQ(files.getFileNameFromPath("C:\\Data\\a.doc"), "a.doc");
  EXPECT_EQ(files.normalizeFilePath("/srv//firm/./x/../a.doc"), "/srv/firm/a.doc");
  EXPECT_FALSE(files.getComputerName().empty());
}

}  // namespace
}  // namespace qb
