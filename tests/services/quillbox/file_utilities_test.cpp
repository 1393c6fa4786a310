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
  // A backslash is part of a name here: this is a missing file of the
  // current folder, not a folder of its own.
  EXPECT_EQ(files.accessState("C:\\Data\\letter.doc"), FileAccessState::missingFile);

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

// Runs a shell command in a child process and waits until check() holds (or
// a bounded while has passed); returns whether it held. The child is killed
// and reaped afterwards.
template <class Check>
bool heldWhileChildRuns(const std::string& command, Check check) {
  pid_t child = fork();
  if (child == 0) {
    execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
    _exit(127);
  }
  bool seen = false;
  for (int i = 0; i < 100 && !seen; ++i) {
    seen = check();
    if (!seen) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  return seen;
}

TEST(FileUtilities, AFileIsInUseWhileAnotherProgramWritesLocksOrHoldsALockFileBesideIt) {
  test::TempFolder folder;
  fileUtilitiesClass files;
  std::string path = folder.writeFile("ledger.ods", "rows");
  EXPECT_FALSE(files.isFileInUse(path));

  // A process writing to it counts; one that only reads it does not.
  EXPECT_TRUE(heldWhileChildRuns("exec sleep 30 >> '" + path + "'",
                                 [&] { return files.isFileInUse(path); }));
  EXPECT_FALSE(files.isFileInUse(path));
  EXPECT_FALSE(heldWhileChildRuns("exec sleep 30 < '" + path + "'",
                                  [&] { return files.isFileInUse(path); }));

  // A lock held by another process, taken while it only reads the file.
  pid_t locker = fork();
  ASSERT_GE(locker, 0);
  if (locker == 0) {
    int fd = open(path.c_str(), O_RDONLY);
    struct flock lock {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    fcntl(fd, F_SETLKW, &lock);
    pause();
    _exit(0);
  }
  bool locked = false;
  for (int i = 0; i < 100 && !locked; ++i) {
    locked = files.isFileInUse(path);
    if (!locked) std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  kill(locker, SIGKILL);
  waitpid(locker, nullptr, 0);
  EXPECT_TRUE(locked);
  EXPECT_FALSE(files.isFileInUse(path));

  // The lock files office suites leave beside an open document, also for a
  // document opened on another workstation.
  for (const char* lockFile : {".~lock.ledger.ods#", "~$ledger.ods"}) {
    std::string beside = folder.writeFile(lockFile, "user");
    EXPECT_TRUE(files.isFileInUse(path)) << lockFile;
    std::filesystem::remove(beside);
  }
  std::string report = folder.writeFile("Quarterly report.docx", "text");
  std::string owner = folder.writeFile("~$arterly report.docx", "user");  // a long name, shortened
  EXPECT_TRUE(files.isFileInUse(report));
  std::filesystem::remove(owner);
  EXPECT_FALSE(files.isFileInUse(report));
  EXPECT_FALSE(files.isFileInUse(folder.file("gone.ods")));
}

TEST(FileUtilities, PathParts) {
  fileUtilitiesClass files;
  // Exactly one of the platform's separators at the end.
  EXPECT_EQ(files.addTrailingBackslash("/srv/firm"), "/srv/firm/");
  EXPECT_EQ(files.addTrailingBackslash("/srv/firm//"), "/srv/firm/");
  EXPECT_EQ(files.addTrailingBackslash("/srv/Client Files/Dupont \\ Fils"),
            "/srv/Client Files/Dupont \\ Fils/");
  EXPECT_EQ(files.addTrailingBackslash(""), "/");
  EXPECT_EQ(files.getFileExtension("/a/Letter.OMD"), ".OMD");
  EXPECT_EQ(files.getFileExtension("/a.b/README"), "");
  EXPECT_EQ(files.getFileExtension("/a/.profile"), "");
  EXPECT_EQ(files.getFolderFromPath("/srv/firm/a.doc"), "/srv/firm");
  EXPECT_EQ(files.getFolderFromPath("/srv/Données/é t.doc"), "/srv/Données");
  EXPECT_EQ(files.getFolderFromPath("/a.doc"), "/");
  EXPECT_EQ(files.getFolderFromPath("a.doc"), "");
  EXPECT_EQ(files.getFileNameFromPath("/srv/Données/é t.doc"), "é t.doc");
  EXPECT_EQ(files.getFileNameFromPath("C:\\Data\\a.doc"), "C:\\Data\\a.doc");
  EXPECT_EQ(files.normalizeFilePath("/srv//firm/./x/../a.doc"), "/srv/firm/a.doc");
  EXPECT_FALSE(files.getComputerName().empty());
}

// Sets an environment variable for the test's duration.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    if (value != nullptr) {
      setenv(name, value, 1);
    } else {
      unsetenv(name);
    }
  }
  ~ScopedEnvironment() {
    if (old_.empty()) {
      unsetenv(name_);
    } else {
      setenv(name_, old_.c_str(), 1);
    }
  }

 private:
  const char* name_;
  std::string old_;
};

TEST(FileUtilities, TheDocumentsFolderFollowsTheUsersXdgFolders) {
  test::TempFolder home;
  fileUtilitiesClass files;
  ScopedEnvironment homeVariable("HOME", home.path().c_str());
  ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
  ScopedEnvironment documents("XDG_DOCUMENTS_DIR", nullptr);
  EXPECT_EQ(files.getSpecialFolder(0, 5), home.path().string());  // no Documents folder
  std::filesystem::create_directory(home.path() / "Documents");
  EXPECT_EQ(files.getSpecialFolder(0, 5), home.file("Documents"));
  home.writeFile(".config/user-dirs.dirs",
                 "# written by xdg-user-dirs-update\nXDG_DESKTOP_DIR=\"$HOME/Desktop\"\n"
                 "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
  EXPECT_EQ(files.getSpecialFolder(0, 5), home.file("Dokumente"));
  EXPECT_EQ(files.getSpecialFolder(0, 0), home.path().string());
}

}  // namespace
}  // namespace qb
