#include "sample/new_database.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "sample/file_in_use.h"
#include "services/store/schema.h"
#include "services/store/sqlite_database.h"

namespace qb {

namespace {

namespace fs = std::filesystem;

constexpr const char* kJournalSuffixes[] = {"-wal", "-shm", "-journal"};

// What a generated firm takes on disk: the settings, the firm and the archive
// category of 5,000 links, then each client; doubled for the journal while it
// is written, with room to spare.
constexpr uintmax_t kGeneratedBaseBytes = 8u << 20;
constexpr uintmax_t kGeneratedBytesPerClient = 8u << 10;

std::string inQuotes(const fs::path& path) { return "\"" + path.string() + "\""; }

std::string megabytes(uintmax_t bytes) {
  return std::to_string((bytes + (1u << 20) - 1) >> 20) + " MB";
}

// The temporary file the new database is built in, removed with its journal
// files unless it was moved into place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target) {
    std::string pattern =
        (target.parent_path() / ("." + target.filename().string() + ".new-XXXXXX")).string();
    int fd = mkstemp(pattern.data());
    if (fd < 0) {
      throw std::runtime_error("Can't create a file in " + inQuotes(target.parent_path()) + " (" +
                               std::strerror(errno) +
                               "). Check that the folder exists and that you may write in it.");
    }
    // The database gets the permissions any new file gets here, not the
    // owner-only ones of a temporary file.
    mode_t mask = umask(0);
    umask(mask);
    fchmod(fd, 0666 & ~mask);
    close(fd);
    path_ = pattern;
  }
  ~TemporaryFile() {
    if (path_.empty()) return;
    std::error_code ignored;
    fs::remove(path_, ignored);
    for (const char* suffix : kJournalSuffixes) fs::remove(path_ + suffix, ignored);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& path() const { return path_; }
  void keep() { path_.clear(); }

 private:
  std::string path_;
};

void checkTarget(const fs::path& target, const NewDatabase& options) {
  std::error_code error;
  fs::file_status status = fs::symlink_status(target, error);
  if (fs::is_directory(status)) {
    throw std::runtime_error(inQuotes(target) +
                             " is a folder; give the path of the database file to create. The "
                             "folder was left as it is.");
  }
  if (fs::exists(status) && !options.replace) {
    throw std::runtime_error(inQuotes(target) + " exists already; give --force to replace it.");
  }
  if (fs::exists(status)) {
    std::string holder = sample::fileHolder(target.string());
    if (!holder.empty()) {
      throw std::runtime_error(inQuotes(target) + " is in use by " + holder +
                               "; close it there first. The file was left as it is.");
    }
  }
}

void checkRoom(const fs::path& target, const NewDatabase& options) {
  if (options.content != NewDatabase::Content::Generated) return;
  if (options.clients < 0 || options.clients > kMaxGeneratedClients) {
    throw std::runtime_error("A generated firm has from 0 to " +
                             std::to_string(kMaxGeneratedClients) + " clients, not " +
                             std::to_string(options.clients) + ".");
  }
  uintmax_t needed = kGeneratedBaseBytes + kGeneratedBytesPerClient * uintmax_t(options.clients);
  struct statvfs disk {};
  std::string folder = target.parent_path().string();
  if (statvfs(folder.c_str(), &disk) != 0) return;
  uintmax_t free = uintmax_t(disk.f_bavail) * disk.f_frsize;
  if (free < needed) {
    throw std::runtime_error("A firm of " + std::to_string(options.clients) +
                             " clients needs about " + megabytes(needed) + " on the disk of " +
                             inQuotes(target.parent_path()) + ", which has " + megabytes(free) +
                             " free. Free some space or ask for fewer clients.");
  }
}

// Writes what the file holds through to the disk, so that the rename below
// never puts an unfinished file in place.
void syncFile(const std::string& path) {
  int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return;
  fsync(fd);
  close(fd);
}

void createSchema(const std::string& path) {
  SqliteDatabase database;
  SqliteDatabase::Options create;
  create.create = true;
  database.open(path, create);
  database.executeScript(schemaSql());
}

}  // namespace

FirmSummary makeDatabase(const std::string& path, const NewDatabase& options) {
  const fs::path target = fs::absolute(path).lexically_normal();
  checkTarget(target, options);
  fs::create_directories(target.parent_path());
  checkRoom(target, options);

  TemporaryFile building(target);
  FirmSummary made;
  try {
    createSchema(building.path());
    if (options.content == NewDatabase::Content::Sample) {
      made = fillSampleFirm(building.path(), options.filesFolder);
    } else if (options.content == NewDatabase::Content::Generated) {
      made = generateFirm(building.path(), options.filesFolder, options.clients);
    }
  } catch (const std::exception& failure) {
    throw std::runtime_error(std::string(failure.what()) + "\nNo database was made at " +
                             inQuotes(target) + ".");
  }
  syncFile(building.path());

  // The file may have come into use while the new one was built.
  checkTarget(target, options);
  std::error_code ignored;
  for (const char* suffix : kJournalSuffixes) fs::remove(target.string() + suffix, ignored);
  if (std::rename(building.path().c_str(), target.c_str()) != 0) {
    throw std::runtime_error("Can't put the new database in place at " + inQuotes(target) + " (" +
                             std::strerror(errno) + "). The old file was left as it is.");
  }
  building.keep();
  syncFile(target.parent_path().string());
  return made;
}

}  // namespace qb
