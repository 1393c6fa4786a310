#include "sample/sample_firm.h"

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>

#include "sample/sample_clients.h"
#include "sample/sample_documents.h"
#include "sample/sample_firm_parts.h"
#include "services/store/schema.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

// A plain connection for the few statements outside SampleWriter.
class Connection {
 public:
  Connection(const std::string& path, int flags) {
    if (sqlite3_open_v2(path.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
      std::string message = db_ != nullptr ? sqlite3_errmsg(db_) : "out of memory";
      sqlite3_close(db_);
      throw std::runtime_error("can't open " + path + ": " + message);
    }
  }
  ~Connection() { sqlite3_close(db_); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  void execute(const char* sql) {
    char* error = nullptr;
    if (sqlite3_exec(db_, sql, nullptr, nullptr, &error) != SQLITE_OK) {
      std::string message = error != nullptr ? error : "unknown error";
      sqlite3_free(error);
      throw std::runtime_error(message);
    }
  }

  // The rows of a query, each column as text.
  std::vector<std::vector<std::string>> rows(const std::string& sql) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(db_));
    }
    std::vector<std::vector<std::string>> result;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
      std::vector<std::string> row;
      for (int c = 0; c < sqlite3_column_count(stmt); ++c) {
        const unsigned char* text = sqlite3_column_text(stmt, c);
        row.emplace_back(text != nullptr ? reinterpret_cast<const char*>(text) : "");
      }
      result.push_back(std::move(row));
    }
    sqlite3_finalize(stmt);
    return result;
  }

 private:
  sqlite3* db_ = nullptr;
};

}  // namespace

void createDatabase(const std::string& path, bool overwrite) {
  if (fs::exists(path)) {
    if (!overwrite) throw std::runtime_error(path + " exists already");
    for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(path + suffix);
  }
  fs::path parent = fs::path(path).parent_path();
  if (!parent.empty()) fs::create_directories(parent);
  Connection db(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  db.execute(schemaSql());
}

std::string defaultFilesFolder(const std::string& path) {
  fs::path db(path);
  return (db.parent_path() / (db.stem().string() + "-files")).string();
}

FirmSummary fillSampleFirm(const std::string& path, const std::string& filesFolder) {
  FirmSummary summary;
  fs::path root = fs::absolute(filesFolder).lexically_normal();
  summary.filesFolder = root.string();
  sample::SampleWriter out(path);
  sample::writeFirm(out);
  sample::writeFirmSettings(out);
  summary.contacts += sample::kEmployeeCount;
  sample::writeSampleClients(out, summary);
  sample::writeSampleWork(out);
  sample::DocumentShelf shelf(out, summary);
  sample::writeSampleDocuments(shelf, root);
  out.commit();
  return summary;
}

std::vector<std::pair<std::string, int64_t>> tableRowCounts(const std::string& path) {
  if (!fs::exists(path)) throw std::runtime_error(path + " does not exist");
  Connection db(path, SQLITE_OPEN_READONLY);
  std::vector<std::pair<std::string, int64_t>> counts;
  for (const auto& row : db.rows("SELECT name FROM sqlite_master WHERE type = 'table' AND "
                                 "name NOT LIKE 'sqlite_%' ORDER BY name COLLATE NOCASE;")) {
    const std::string& table = row.front();
    auto count = db.rows("SELECT COUNT(*) FROM \"" + table + "\";");
    counts.emplace_back(table, std::stoll(count.front().front()));
  }
  return counts;
}

}  // namespace qb
