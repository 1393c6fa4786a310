#include "services/store/sqlite_database.h"

#include <sqlite3.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <list>
#include <unordered_map>
#include <vector>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"
#include "services/store/sql_text.h"
#include "services/store/sqlite_values.h"

namespace qb {

using sqlite::ColumnKind;

namespace {

constexpr size_t kStatementCacheSize = 256;
constexpr int32_t kPositionEof = -3;  // the position the run-time reports past the last row

const char* const kNotConnected = "The store is not connected to a database.";
const char* const kNoCurrentRow =
    "Either BOF or EOF is True, or the current record has been deleted. Requested operation "
    "requires a current record.";
const char* const kClosed = "Operation is not allowed when the object is closed.";

[[noreturn]] void storeError(const std::string& message) {
  throw RuntimeError(err::kStoreError, message);
}

std::string lower(const std::string& text) { return LCase(text); }

// File systems on which the write-ahead log can't work.
bool onNetworkFileSystem(const std::string& path) {
  std::filesystem::path folder = std::filesystem::absolute(path).parent_path();
  struct statfs info {};
  if (statfs(folder.c_str(), &info) != 0) return false;
  switch (static_cast<unsigned long>(info.f_type)) {
    case 0x6969UL:      // NFS
    case 0x517BUL:      // SMB
    case 0xFF534D42UL:  // CIFS
    case 0xFE534D42UL:  // SMB2
    case 0x65735546UL:  // FUSE (sshfs and the like)
      return true;
    default:
      return false;
  }
}

// What a prepared query yields: its columns mapped to base tables.
struct QueryShape {
  struct Column {
    std::string name;    // as the result names it (alias or column name)
    int table = -1;      // index into tables, -1 for an expression
    std::string origin;  // the column in its table
    ColumnKind kind = ColumnKind::Untyped;
  };
  std::vector<std::string> tables;  // base tables, as the SQL spells them
  std::vector<Column> columns;
  std::unordered_map<std::string, int> byName;  // lower-case name to the first column
  int rowidColumns = 0;                         // leading rowid columns (one per table), or 0
};

struct CachedStatement {
  sqlite3_stmt* statement = nullptr;
  std::shared_ptr<const QueryShape> shape;
};

struct Row {
  std::vector<Variant> values;
  std::vector<sqlite3_int64> rowids;  // one per table of the shape, when known
  bool deleted = false;
};

struct Recordset {
  std::shared_ptr<const QueryShape> shape;
  int32_t lockType = adLockReadOnly;
  std::vector<Row> rows;
  size_t position = 0;  // rows.size() is past the end
  bool adding = false;
  std::vector<std::pair<std::string, std::string>> pending;  // fields of the row being added
  // findRecord's index: column to normalised value to the rows holding it.
  std::unordered_map<int, std::unordered_map<std::string, std::vector<size_t>>> findIndex;

  bool atRow() const { return position < rows.size() && !rows[position].deleted; }
};

// The key findRecord compares by: numbers by value, text ignoring case.
std::string findKey(const Variant& value) {
  switch (value.type()) {
    case VarType::Null:
    case VarType::Empty: return "\x01";
    case VarType::Boolean: return value.rawBool() ? "#1" : "#0";
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double:
    case VarType::Date: return "#" + numberToText(CDbl(value));
    case VarType::String: {
      const std::string& text = value.rawString();
      double number = 0;
      if (parseNumber(text, number)) return "#" + numberToText(number);
      if (equalsText(Trim(text), "True")) return "#1";
      if (equalsText(Trim(text), "False")) return "#0";
      return "$" + lower(text);
    }
  }
  return "";
}

void bindLiteral(sqlite3_stmt* statement, int index, const std::string& literal) {
  double number = 0;
  parseNumber(literal, number);
  if (std::floor(number) == number && std::fabs(number) < 9e18) {
    sqlite3_bind_int64(statement, index, static_cast<sqlite3_int64>(number));
  } else {
    sqlite3_bind_double(statement, index, number);
  }
}

}  // namespace

struct SqliteDatabase::Impl {
  sqlite3* db = nullptr;
  std::string path;
  std::string journal;
  int32_t nextHandle = 0;
  std::unordered_map<int32_t, std::unique_ptr<Recordset>> recordsets;

  // Prepared queries by their parameterised text, least recently used last.
  std::list<std::pair<std::string, CachedStatement>> lru;
  std::unordered_map<std::string, std::list<std::pair<std::string, CachedStatement>>::iterator> cache;
  // Prepared writes (UPDATE, row reads by rowid) by their text.
  std::unordered_map<std::string, sqlite3_stmt*> writes;

  ~Impl() { closeAll(); }

  void closeAll() {
    recordsets.clear();
    for (auto& entry : lru) sqlite3_finalize(entry.second.statement);
    lru.clear();
    cache.clear();
    for (auto& entry : writes) sqlite3_finalize(entry.second);
    writes.clear();
    if (db != nullptr) sqlite3_close_v2(db);
    db = nullptr;
  }

  void requireConnection() const {
    if (db == nullptr) storeError(kNotConnected);
  }

  [[noreturn]] void fail(const std::string& what) const {
    int code = db != nullptr ? sqlite3_extended_errcode(db) : SQLITE_ERROR;
    std::string message = db != nullptr ? sqlite3_errmsg(db) : "no database";
    if ((code & 0xFF) == SQLITE_BUSY || (code & 0xFF) == SQLITE_LOCKED) {
      storeError("The database is locked by another user or program and stayed busy; " + what +
                 " was not done. Try again in a moment.");
    }
    storeError(message + " (" + what + ")");
  }

  Recordset& recordset(RecordsetHandle handle) {
    requireConnection();
    auto it = recordsets.find(handle);
    if (it == recordsets.end()) throw RuntimeError(err::kBadHandle, kClosed);
    return *it->second;
  }

  static int column(const Recordset& rs, const std::string& name) {
    auto it = rs.shape->byName.find(lower(name));
    if (it == rs.shape->byName.end()) {
      throw RuntimeError(err::kItemNotFound,
                         "Item cannot be found in the collection corresponding to the requested "
                         "name or ordinal: '" + name + "'.");
    }
    return it->second;
  }

  static void requireWritable(const Recordset& rs) {
    if (rs.lockType == adLockReadOnly) {
      throw RuntimeError(err::kReadOnly,
                         "Current Recordset does not support updating. This may be a limitation of "
                         "the provider, or of the selected locktype.");
    }
  }

  void exec(const char* sql, const std::string& what) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(what);
  }

  sqlite3_stmt* writeStatement(const std::string& sql) {
    auto it = writes.find(sql);
    if (it != writes.end()) return it->second;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) fail(sql);
    writes.emplace(sql, statement);
    return statement;
  }

  // Runs a change as its own transaction, taking the write lock up front.
  template <typename Body>
  void inWriteTransaction(const std::string& what, Body body) {
    exec("BEGIN IMMEDIATE", what);
    try {
      body();
      exec("COMMIT", what);
    } catch (...) {
      sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
      throw;
    }
  }

  void stepDone(sqlite3_stmt* statement, const std::string& what) {
    int rc = sqlite3_step(statement);
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (rc != SQLITE_DONE && rc != SQLITE_ROW) fail(what);
  }

  CachedStatement prepare(const std::string& text, const std::string& original) {
    auto hit = cache.find(text);
    if (hit != cache.end()) {
      lru.splice(lru.begin(), lru, hit->second);
      return hit->second->second;
    }
    sqlite3_stmt* plain = nullptr;
    if (sqlite3_prepare_v2(db, text.c_str(), -1, &plain, nullptr) != SQLITE_OK) {
      std::string message = sqlite3_errmsg(db);
      sqlite3_finalize(plain);
      storeError(message + " in: " + original);
    }
    if (plain == nullptr || sqlite3_column_count(plain) == 0) {
      sqlite3_finalize(plain);
      storeError("The SQL text returns no rows: " + original);
    }
    auto shape = std::make_shared<QueryShape>();
    int count = sqlite3_column_count(plain);
    for (int i = 0; i < count; ++i) {
      QueryShape::Column column;
      column.name = sqlite3_column_name(plain, i);
      column.kind = sqlite::kindOf(sqlite3_column_decltype(plain, i));
      const char* table = sqlite3_column_table_name(plain, i);
      const char* origin = sqlite3_column_origin_name(plain, i);
      if (table != nullptr && origin != nullptr) {
        column.origin = origin;
        int found = -1;
        for (size_t t = 0; t < shape->tables.size(); ++t)
          if (equalsText(shape->tables[t], table)) found = static_cast<int>(t);
        if (found < 0) {
          shape->tables.push_back(table);
          found = static_cast<int>(shape->tables.size() - 1);
        }
        column.table = found;
      }
      shape->byName.emplace(lower(column.name), i);
      shape->columns.push_back(std::move(column));
    }
    CachedStatement entry{plain, shape};
    std::string augmented = sqlite::withRowidColumns(text, shape->tables);
    if (!augmented.empty() && !shape->tables.empty()) {
      sqlite3_stmt* withRowids = nullptr;
      if (sqlite3_prepare_v2(db, augmented.c_str(), -1, &withRowids, nullptr) == SQLITE_OK &&
          sqlite3_column_count(withRowids) == count + static_cast<int>(shape->tables.size())) {
        sqlite3_finalize(plain);
        entry.statement = withRowids;
        shape->rowidColumns = static_cast<int>(shape->tables.size());
      } else {
        sqlite3_finalize(withRowids);
      }
    }
    lru.emplace_front(text, entry);
    cache[text] = lru.begin();
    if (lru.size() > kStatementCacheSize) {
      auto& oldest = lru.back();
      sqlite3_finalize(oldest.second.statement);
      cache.erase(oldest.first);
      lru.pop_back();
    }
    return entry;
  }

  // The rowid of the row's table t, from the recordset or by the table's key.
  sqlite3_int64 rowidOf(const Recordset& rs, const Row& row, int table) {
    if (rs.shape->rowidColumns > 0) return row.rowids[static_cast<size_t>(table)];
    const std::string& name = rs.shape->tables[static_cast<size_t>(table)];
    for (size_t c = 0; c < rs.shape->columns.size(); ++c) {
      const auto& column = rs.shape->columns[c];
      if (column.table != table) continue;
      int primaryKey = 0;
      if (sqlite3_table_column_metadata(db, nullptr, name.c_str(), column.origin.c_str(), nullptr,
                                        nullptr, nullptr, &primaryKey, nullptr) == SQLITE_OK &&
          primaryKey != 0 && column.kind == ColumnKind::Integer && !row.values[c].isNull()) {
        return static_cast<sqlite3_int64>(CDbl(row.values[c]));
      }
    }
    storeError("The row of table " + name + " can't be identified for writing.");
  }

  Variant readBack(const std::string& table, const std::string& origin, ColumnKind kind,
                   sqlite3_int64 rowid) {
    sqlite3_stmt* statement =
        writeStatement("SELECT \"" + origin + "\" FROM \"" + table + "\" WHERE rowid=?");
    sqlite3_bind_int64(statement, 1, rowid);
    Variant value = Variant::null();
    int rc = sqlite3_step(statement);
    if (rc == SQLITE_ROW) value = sqlite::readColumn(statement, 0, kind);
    sqlite3_reset(statement);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE) fail("reading back " + origin);
    return value;
  }

  static void indexAdd(Recordset& rs, int column, size_t row) {
    auto it = rs.findIndex.find(column);
    if (it == rs.findIndex.end()) return;
    auto& rowsOfKey = it->second[findKey(rs.rows[row].values[static_cast<size_t>(column)])];
    rowsOfKey.insert(std::lower_bound(rowsOfKey.begin(), rowsOfKey.end(), row), row);
  }

  static void indexRemove(Recordset& rs, int column, size_t row) {
    auto it = rs.findIndex.find(column);
    if (it == rs.findIndex.end()) return;
    auto key = it->second.find(findKey(rs.rows[row].values[static_cast<size_t>(column)]));
    if (key == it->second.end()) return;
    auto& rowsOfKey = key->second;
    auto at = std::lower_bound(rowsOfKey.begin(), rowsOfKey.end(), row);
    if (at != rowsOfKey.end() && *at == row) rowsOfKey.erase(at);
  }

  // A written value reaches every open recordset holding that row.
  void propagate(const std::string& table, const std::string& origin, sqlite3_int64 rowid,
                 const Variant& value) {
    for (auto& [handle, other] : recordsets) {
      const QueryShape& shape = *other->shape;
      for (size_t t = 0; t < shape.tables.size(); ++t) {
        if (!equalsText(shape.tables[t], table)) continue;
        for (size_t c = 0; c < shape.columns.size(); ++c) {
          if (shape.columns[c].table != static_cast<int>(t) || !equalsText(shape.columns[c].origin, origin))
            continue;
          for (size_t r = 0; r < other->rows.size(); ++r) {
            Row& row = other->rows[r];
            if (shape.rowidColumns == 0 || row.rowids[t] != rowid) continue;
            indexRemove(*other, static_cast<int>(c), r);
            row.values[c] = value;
            indexAdd(*other, static_cast<int>(c), r);
          }
        }
      }
    }
  }

  void propagateDelete(const std::string& table, sqlite3_int64 rowid) {
    for (auto& [handle, other] : recordsets) {
      const QueryShape& shape = *other->shape;
      for (size_t t = 0; t < shape.tables.size(); ++t) {
        if (!equalsText(shape.tables[t], table) || shape.rowidColumns == 0) continue;
        for (Row& row : other->rows)
          if (row.rowids[t] == rowid) row.deleted = true;
      }
    }
  }

  // The one base table a new or deleted row belongs to.
  static int singleTable(const Recordset& rs) {
    if (rs.shape->tables.size() != 1) {
      storeError("A row can only be added to or deleted from a recordset over one table.");
    }
    return 0;
  }

  ColumnKind kindOfTableColumn(const std::string& table, const std::string& column) {
    const char* declared = nullptr;
    if (sqlite3_table_column_metadata(db, nullptr, table.c_str(), column.c_str(), &declared, nullptr,
                                      nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw RuntimeError(err::kItemNotFound, "Table " + table + " has no field '" + column + "'.");
    }
    return sqlite::kindOf(declared);
  }
};

SqliteDatabase::SqliteDatabase() : impl_(std::make_unique<Impl>()) {}

SqliteDatabase::~SqliteDatabase() = default;

void SqliteDatabase::open(const std::string& path, const Options& options) {
  close();
  bool exists = std::filesystem::exists(path);
  if (!exists && !options.create) storeError("The database file '" + path + "' does not exist.");
  bool readOnly = options.readOnly || (exists && access(path.c_str(), W_OK) != 0);
  int flags = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if (options.create && !readOnly) flags |= SQLITE_OPEN_CREATE;
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(path.c_str(), &db, flags, nullptr) != SQLITE_OK) {
    std::string message = db != nullptr ? sqlite3_errmsg(db) : "out of memory";
    sqlite3_close_v2(db);
    storeError("The database file '" + path + "' can't be opened: " + message);
  }
  sqlite3_busy_timeout(db, options.busyTimeoutMs);
  sqlite3_extended_result_codes(db, 1);
  if (sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr) != SQLITE_OK) {
    std::string message = sqlite3_errmsg(db);
    sqlite3_close_v2(db);
    storeError("'" + path + "' is not a usable database: " + message);
  }
  impl_->db = db;
  impl_->path = path;
  if (!readOnly) {
    // WAL makes a per-field commit cheap and durable across a crash of the
    // program; it does not work on a network share, where the rollback
    // journal stays.
    bool network = onNetworkFileSystem(path);
    sqlite3_exec(db, network ? "PRAGMA journal_mode=DELETE" : "PRAGMA journal_mode=WAL", nullptr,
                 nullptr, nullptr);
    sqlite3_exec(db, network ? "PRAGMA synchronous=FULL" : "PRAGMA synchronous=NORMAL", nullptr,
                 nullptr, nullptr);
  }
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(db, "PRAGMA journal_mode", -1, &statement, nullptr) == SQLITE_OK &&
      sqlite3_step(statement) == SQLITE_ROW) {
    impl_->journal = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
  }
  sqlite3_finalize(statement);
}

void SqliteDatabase::close() { impl_->closeAll(); }

const std::string& SqliteDatabase::path() const { return impl_->path; }

std::string SqliteDatabase::journalMode() const { return impl_->journal; }

int SqliteDatabase::openRecordsetCount() const { return static_cast<int>(impl_->recordsets.size()); }

void SqliteDatabase::executeScript(const std::string& sql) {
  impl_->requireConnection();
  char* message = nullptr;
  if (sqlite3_exec(impl_->db, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
    std::string text = message != nullptr ? message : "failed";
    sqlite3_free(message);
    storeError(text);
  }
}

bool SqliteDatabase::isConnected() { return impl_->db != nullptr; }

RecordsetHandle SqliteDatabase::openRecordset(const std::string& sqlText, int32_t, int32_t lockType,
                                              bool, const std::string&, bool) {
  impl_->requireConnection();
  std::vector<std::string> literals;
  std::string text = sqlite::parameterizeLiterals(sqlText, literals);
  CachedStatement prepared = impl_->prepare(text, sqlText);
  sqlite3_stmt* statement = prepared.statement;
  for (size_t i = 0; i < literals.size(); ++i) bindLiteral(statement, static_cast<int>(i) + 1, literals[i]);

  auto rs = std::make_unique<Recordset>();
  rs->shape = prepared.shape;
  rs->lockType = lockType;
  const QueryShape& shape = *prepared.shape;
  int rowidColumns = shape.rowidColumns;
  size_t columns = shape.columns.size();
  int rc = SQLITE_OK;
  while ((rc = sqlite3_step(statement)) == SQLITE_ROW) {
    Row row;
    row.rowids.reserve(static_cast<size_t>(rowidColumns));
    for (int t = 0; t < rowidColumns; ++t) row.rowids.push_back(sqlite3_column_int64(statement, t));
    row.values.reserve(columns);
    for (size_t c = 0; c < columns; ++c) {
      row.values.push_back(sqlite::readColumn(statement, rowidColumns + static_cast<int>(c), shape.columns[c].kind));
    }
    rs->rows.push_back(std::move(row));
  }
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  if (rc != SQLITE_DONE) impl_->fail("reading " + sqlText);
  RecordsetHandle handle = ++impl_->nextHandle;
  impl_->recordsets.emplace(handle, std::move(rs));
  return handle;
}

void SqliteDatabase::closeRecordset(RecordsetHandle handle) {
  impl_->recordset(handle);
  impl_->recordsets.erase(handle);
}

bool SqliteDatabase::isRecordsetOpen(RecordsetHandle handle) {
  return impl_->db != nullptr && impl_->recordsets.count(handle) > 0;
}

bool SqliteDatabase::isRecordsetEmpty(RecordsetHandle handle) {
  return impl_->recordset(handle).rows.empty();
}

int32_t SqliteDatabase::getRecordCount(RecordsetHandle handle) {
  return static_cast<int32_t>(impl_->recordset(handle).rows.size());
}

bool SqliteDatabase::moveFirstRecord(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  rs.adding = false;
  rs.position = 0;
  return !rs.rows.empty();
}

bool SqliteDatabase::moveNextRecord(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  rs.adding = false;
  if (rs.position < rs.rows.size()) ++rs.position;
  return rs.position < rs.rows.size();
}

bool SqliteDatabase::isEndOfRecordset(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  return rs.position >= rs.rows.size();
}

int16_t SqliteDatabase::getRecordPosition(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  if (rs.position >= rs.rows.size()) return kPositionEof;
  if (rs.position + 1 > static_cast<size_t>(INT16_MAX)) throw RuntimeError(err::kOverflow, "Overflow");
  return static_cast<int16_t>(rs.position + 1);
}

bool SqliteDatabase::setRecordPosition(RecordsetHandle handle, int16_t position) {
  Recordset& rs = impl_->recordset(handle);
  rs.adding = false;
  if (position == kPositionEof) {
    rs.position = rs.rows.size();
    return false;
  }
  if (position < 1 || static_cast<size_t>(position) > rs.rows.size()) {
    throw RuntimeError(err::kInvalidCall, "The record position " + std::to_string(position) +
                                              " is outside the recordset.");
  }
  rs.position = static_cast<size_t>(position) - 1;
  return true;
}

Variant SqliteDatabase::getFieldValue(RecordsetHandle handle, const Variant& fieldName) {
  Recordset& rs = impl_->recordset(handle);
  int column = 0;
  if (fieldName.isNumberType()) {
    column = CLng(fieldName);
    if (column < 0 || static_cast<size_t>(column) >= rs.shape->columns.size()) {
      throw RuntimeError(err::kItemNotFound, "Item cannot be found in the collection corresponding "
                                             "to the requested name or ordinal.");
    }
  } else {
    column = Impl::column(rs, toText(fieldName));
  }
  if (rs.adding) {
    const std::string& name = rs.shape->columns[static_cast<size_t>(column)].name;
    for (auto it = rs.pending.rbegin(); it != rs.pending.rend(); ++it)
      if (equalsText(it->first, name)) return Variant(it->second);
    return Variant::null();
  }
  if (!rs.atRow()) throw RuntimeError(err::kNoCurrentRecord, kNoCurrentRow);
  return rs.rows[rs.position].values[static_cast<size_t>(column)];
}

bool SqliteDatabase::updateFieldValue(RecordsetHandle handle, const std::string& fieldName,
                                      const std::string& value, bool, bool) {
  Recordset& rs = impl_->recordset(handle);
  Impl::requireWritable(rs);
  if (rs.adding) return setFieldValue(handle, fieldName, value);
  int column = Impl::column(rs, fieldName);
  if (!rs.atRow()) throw RuntimeError(err::kNoCurrentRecord, kNoCurrentRow);
  const auto& meta = rs.shape->columns[static_cast<size_t>(column)];
  if (meta.table < 0) {
    throw RuntimeError(err::kReadOnly, "Field '" + fieldName + "' is calculated and can't be updated.");
  }
  const std::string& table = rs.shape->tables[static_cast<size_t>(meta.table)];
  sqlite3_int64 rowid = impl_->rowidOf(rs, rs.rows[rs.position], meta.table);
  impl_->inWriteTransaction("writing " + fieldName, [&] {
    sqlite3_stmt* statement =
        impl_->writeStatement("UPDATE \"" + table + "\" SET \"" + meta.origin + "\"=? WHERE rowid=?");
    sqlite::bindWritten(statement, 1, value, meta.kind);
    sqlite3_bind_int64(statement, 2, rowid);
    impl_->stepDone(statement, "writing " + fieldName);
  });
  Variant stored = impl_->readBack(table, meta.origin, meta.kind, rowid);
  if (rs.shape->rowidColumns > 0) {
    impl_->propagate(table, meta.origin, rowid, stored);
  } else {
    Impl::indexRemove(rs, column, rs.position);
    rs.rows[rs.position].values[static_cast<size_t>(column)] = stored;
    Impl::indexAdd(rs, column, rs.position);
  }
  return true;
}

bool SqliteDatabase::addNewRecord(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  Impl::requireWritable(rs);
  rs.adding = true;
  rs.pending.clear();
  return true;
}

bool SqliteDatabase::setFieldValue(RecordsetHandle handle, const std::string& fieldName,
                                   const std::string& value) {
  Recordset& rs = impl_->recordset(handle);
  Impl::requireWritable(rs);
  if (!rs.adding) return updateFieldValue(handle, fieldName, value);
  rs.pending.emplace_back(fieldName, value);
  return true;
}

bool SqliteDatabase::updateRecord(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  Impl::requireWritable(rs);
  if (!rs.adding) return true;
  const QueryShape& shape = *rs.shape;
  // The table of the fields set; with none set, the recordset's one table.
  int table = -1;
  std::vector<std::pair<std::string, ColumnKind>> targets;  // column in its table, kind
  for (const auto& [name, value] : rs.pending) {
    auto it = shape.byName.find(lower(name));
    if (it != shape.byName.end() && shape.columns[static_cast<size_t>(it->second)].table >= 0) {
      const auto& meta = shape.columns[static_cast<size_t>(it->second)];
      if (table >= 0 && table != meta.table) {
        storeError("A new row can't take fields of two tables ('" + name + "').");
      }
      table = meta.table;
      targets.emplace_back(meta.origin, meta.kind);
    } else {
      int only = Impl::singleTable(rs);
      table = only;
      targets.emplace_back(name, impl_->kindOfTableColumn(shape.tables[0], name));
    }
  }
  if (table < 0) table = Impl::singleTable(rs);
  const std::string& tableName = shape.tables[static_cast<size_t>(table)];
  std::string sql = "INSERT INTO \"" + tableName + "\"";
  if (targets.empty()) {
    sql += " DEFAULT VALUES";
  } else {
    std::string names, marks;
    for (size_t i = 0; i < targets.size(); ++i) {
      names += (i ? ", \"" : "\"") + targets[i].first + "\"";
      marks += i ? ", ?" : "?";
    }
    sql += " (" + names + ") VALUES (" + marks + ")";
  }
  sqlite3_int64 rowid = 0;
  impl_->inWriteTransaction("adding a row to " + tableName, [&] {
    sqlite3_stmt* statement = impl_->writeStatement(sql);
    for (size_t i = 0; i < targets.size(); ++i)
      sqlite::bindWritten(statement, static_cast<int>(i) + 1, rs.pending[i].second, targets[i].second);
    impl_->stepDone(statement, "adding a row to " + tableName);
    rowid = sqlite3_last_insert_rowid(impl_->db);
  });
  Row row;
  row.rowids.assign(static_cast<size_t>(shape.rowidColumns), 0);
  if (shape.rowidColumns > 0) row.rowids[static_cast<size_t>(table)] = rowid;
  for (const auto& meta : shape.columns) {
    row.values.push_back(meta.table == table ? impl_->readBack(tableName, meta.origin, meta.kind, rowid)
                                             : Variant::null());
  }
  rs.rows.push_back(std::move(row));
  rs.position = rs.rows.size() - 1;
  rs.adding = false;
  rs.pending.clear();
  for (auto& [column, index] : rs.findIndex) Impl::indexAdd(rs, column, rs.position);
  return true;
}

bool SqliteDatabase::findRecord(RecordsetHandle handle, const std::string& fieldName,
                                const std::string& value, const std::string&, const std::string&,
                                const std::string&, const std::string&) {
  Recordset& rs = impl_->recordset(handle);
  int column = Impl::column(rs, fieldName);
  rs.adding = false;
  auto indexIt = rs.findIndex.find(column);
  if (indexIt == rs.findIndex.end()) {
    auto& index = rs.findIndex[column];
    for (size_t r = 0; r < rs.rows.size(); ++r)
      index[findKey(rs.rows[r].values[static_cast<size_t>(column)])].push_back(r);
    indexIt = rs.findIndex.find(column);
  }
  auto hit = indexIt->second.find(findKey(Variant(value)));
  if (hit != indexIt->second.end()) {
    for (size_t r : hit->second) {
      if (rs.rows[r].deleted) continue;
      rs.position = r;
      return true;
    }
  }
  rs.position = rs.rows.size();
  return false;
}

bool SqliteDatabase::deleteRecord(RecordsetHandle handle) {
  Recordset& rs = impl_->recordset(handle);
  Impl::requireWritable(rs);
  if (!rs.atRow()) throw RuntimeError(err::kNoCurrentRecord, kNoCurrentRow);
  int table = Impl::singleTable(rs);
  const std::string& tableName = rs.shape->tables[static_cast<size_t>(table)];
  sqlite3_int64 rowid = impl_->rowidOf(rs, rs.rows[rs.position], table);
  impl_->inWriteTransaction("deleting a row of " + tableName, [&] {
    sqlite3_stmt* statement = impl_->writeStatement("DELETE FROM \"" + tableName + "\" WHERE rowid=?");
    sqlite3_bind_int64(statement, 1, rowid);
    impl_->stepDone(statement, "deleting a row of " + tableName);
  });
  rs.rows[rs.position].deleted = true;
  if (rs.shape->rowidColumns > 0) impl_->propagateDelete(tableName, rowid);
  return true;
}

}  // namespace qb
