#include "sample/sample_firm.h"

#include <filesystem>

#include "sample/new_database.h"
#include "sample/sample_clients.h"
#include "sample/sample_documents.h"
#include "sample/sample_firm_parts.h"
#include "services/runtime/conversions.h"
#include "services/store/sqlite_database.h"

namespace qb {

namespace fs = std::filesystem;

void createDatabase(const std::string& path, bool overwrite) {
  NewDatabase empty;
  empty.replace = overwrite;
  makeDatabase(path, empty);
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

std::vector<std::pair<std::string, int64_t>> tableRowCounts(DatabaseReference& store) {
  std::vector<std::pair<std::string, int64_t>> counts;
  RecordsetHandle tables = store.openRecordset(
      "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' ORDER BY "
      "name COLLATE NOCASE;",
      adOpenKeyset, adLockReadOnly);
  for (bool more = store.moveFirstRecord(tables); more && !store.isEndOfRecordset(tables);
       store.moveNextRecord(tables)) {
    std::string table = toText(store.getFieldValue(tables, Variant(std::string("name"))));
    RecordsetHandle rows = store.openRecordset(
        "SELECT COUNT(*) AS RowCount FROM \"" + table + "\";", adOpenKeyset, adLockReadOnly);
    store.moveFirstRecord(rows);
    counts.emplace_back(table, CLng(store.getFieldValue(rows, Variant(std::string("RowCount")))));
    store.closeRecordset(rows);
  }
  store.closeRecordset(tables);
  return counts;
}

std::vector<std::pair<std::string, int64_t>> tableRowCounts(const std::string& path) {
  SqliteDatabase store;
  SqliteDatabase::Options reading;
  reading.readOnly = true;
  store.open(path, reading);
  return tableRowCounts(store);
}

}  // namespace qb
