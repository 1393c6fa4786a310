#include "services/store/sqlite_database.h"

#include <exception>
#include <unordered_map>

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_connection.h"
#include "services/store/sqlite_recordset.h"
#include "services/store/sqlite_store_errors.h"

namespace qb {

namespace {

// Runs an operation so that only a RuntimeError leaves it.
template <typename Operation>
auto guarded(Operation&& operation) -> decltype(operation()) {
  try {
    return operation();
  } catch (const RuntimeError&) {
    throw;
  } catch (const std::exception& failure) {
    throw RuntimeError(err::kStoreError, std::string("The store failed: ") + failure.what());
  } catch (...) {
    throw RuntimeError(err::kStoreError, "The store failed.");
  }
}

}  // namespace

struct SqliteDatabase::Impl {
  std::unique_ptr<sqlite::Connection> connection;
  std::unordered_map<RecordsetHandle, std::unique_ptr<sqlite::Recordset>> recordsets;
  RecordsetHandle nextHandle = 1;

  sqlite::Connection& connected() {
    if (!connection) throw RuntimeError(err::kStoreError, "No database is open.");
    return *connection;
  }

  sqlite::Recordset& recordset(RecordsetHandle handle) {
    auto found = recordsets.find(handle);
    if (found == recordsets.end()) sqlite::badHandle();
    return *found->second;
  }

  // A positive handle that names no open recordset.
  RecordsetHandle freeHandle() {
    for (;;) {
      RecordsetHandle handle = nextHandle;
      nextHandle = nextHandle == INT32_MAX ? 1 : nextHandle + 1;
      if (recordsets.find(handle) == recordsets.end()) return handle;
    }
  }

  // Runs an operation on an open recordset.
  template <typename Operation>
  auto on(RecordsetHandle handle, Operation&& operation) {
    return guarded([&] { return operation(recordset(handle)); });
  }
};

SqliteDatabase::SqliteDatabase() : impl_(std::make_unique<Impl>()) {}

SqliteDatabase::~SqliteDatabase() { close(); }

void SqliteDatabase::open(const std::string& path, const Options& options) {
  guarded([&] {
    close();
    impl_->connection = std::make_unique<sqlite::Connection>(path, options);
  });
}

void SqliteDatabase::close() {
  impl_->recordsets.clear();
  impl_->connection.reset();
}

const std::string& SqliteDatabase::path() const {
  static const std::string none;
  return impl_->connection ? impl_->connection->path() : none;
}

std::string SqliteDatabase::journalMode() const {
  return impl_->connection ? impl_->connection->journalMode() : std::string();
}

bool SqliteDatabase::isReadOnly() const {
  return impl_->connection && impl_->connection->readOnly();
}

int SqliteDatabase::openRecordsetCount() const {
  return static_cast<int>(impl_->recordsets.size());
}

void SqliteDatabase::executeScript(const std::string& sql) {
  guarded([&] { impl_->connected().executeScript(sql); });
}

bool SqliteDatabase::isConnected() { return impl_->connection != nullptr; }

RecordsetHandle SqliteDatabase::openRecordset(const std::string& sqlText, int32_t /*cursorType*/,
                                              int32_t lockType, bool, const std::string&, bool) {
  return guarded([&] {
    sqlite::Connection& connection = impl_->connected();
    sqlite::KeyedSql keyed = sqlite::takeOutKeys(sqlText);
    std::unique_ptr<sqlite::Recordset> recordset;
    try {
      recordset = std::make_unique<sqlite::Recordset>(connection, connection.shapeOf(keyed.text),
                                                      keyed.keys, lockType != adLockReadOnly);
    } catch (const RuntimeError& failure) {
      throw RuntimeError(failure.number(), failure.description() + "\nSQL: " + sqlText);
    }
    RecordsetHandle handle = impl_->freeHandle();
    impl_->recordsets.emplace(handle, std::move(recordset));
    return handle;
  });
}

void SqliteDatabase::closeRecordset(RecordsetHandle handle) {
  impl_->recordset(handle);
  impl_->recordsets.erase(handle);
}

bool SqliteDatabase::isRecordsetOpen(RecordsetHandle handle) {
  return impl_->recordsets.find(handle) != impl_->recordsets.end();
}

bool SqliteDatabase::isRecordsetEmpty(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.isEmpty(); });
}

int32_t SqliteDatabase::getRecordCount(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.recordCount(); });
}

bool SqliteDatabase::moveFirstRecord(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.moveFirst(); });
}

bool SqliteDatabase::moveNextRecord(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.moveNext(); });
}

bool SqliteDatabase::isEndOfRecordset(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.atEnd(); });
}

int16_t SqliteDatabase::getRecordPosition(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.position(); });
}

bool SqliteDatabase::setRecordPosition(RecordsetHandle handle, int16_t position) {
  return impl_->on(handle, [&](sqlite::Recordset& rs) { return rs.setPosition(position); });
}

Variant SqliteDatabase::getFieldValue(RecordsetHandle handle, const Variant& fieldName) {
  return impl_->on(handle, [&](sqlite::Recordset& rs) { return rs.field(fieldName); });
}

bool SqliteDatabase::updateFieldValue(RecordsetHandle handle, const std::string& fieldName,
                                      const std::string& value, bool, bool) {
  return impl_->on(handle, [&](sqlite::Recordset& rs) {
    rs.updateField(fieldName, value);
    return true;
  });
}

bool SqliteDatabase::addNewRecord(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) {
    rs.addNew();
    return true;
  });
}

bool SqliteDatabase::setFieldValue(RecordsetHandle handle, const std::string& fieldName,
                                   const std::string& value) {
  return impl_->on(handle, [&](sqlite::Recordset& rs) {
    rs.setField(fieldName, value);
    return true;
  });
}

bool SqliteDatabase::updateRecord(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) {
    rs.update();
    return true;
  });
}

bool SqliteDatabase::deleteRecord(RecordsetHandle handle) {
  return impl_->on(handle, [](sqlite::Recordset& rs) { return rs.deleteCurrent(); });
}

bool SqliteDatabase::findRecord(RecordsetHandle handle, const std::string& fieldName,
                                const std::string& value, const std::string&, const std::string&,
                                const std::string&, const std::string&) {
  return impl_->on(handle, [&](sqlite::Recordset& rs) { return rs.find(fieldName, value); });
}

}  // namespace qb
