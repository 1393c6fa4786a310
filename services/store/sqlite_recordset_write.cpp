// Writes through a recordset: one field of the current row, a new row, a
// deleted row. Each is its own committed transaction, and the recordset's own
// values follow at once.

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_recordset.h"
#include "services/store/sqlite_sql_text.h"
#include "services/store/sqlite_store_errors.h"

namespace qb::sqlite {

namespace {

// Steps a write statement to its end; the count of rows it changed.
int runWrite(Connection& connection, sqlite3_stmt* stmt) {
  runToEnd(connection.db(), stmt, connection.busyTimeoutMs(), "Can't write to the database");
  return sqlite3_changes(connection.db());
}

}  // namespace

int Recordset::writableTable(int column) {
  const ShapeColumn& field = shape_->columns[column];
  if (field.table < 0) notUpdatable(field.name, "it is not a column of a table.");
  if (!shape_->tables[field.table].identifiesRows()) {
    notUpdatable(field.name, "the rows of " + shape_->tables[field.table].name +
                                 " can't be identified in this query.");
  }
  return field.table;
}

void Recordset::updateField(const std::string& name, const std::string& value) {
  requireWritable();
  int column = requireColumn(Variant(name));
  requireCurrent();
  int table = writableTable(column);
  const ShapeColumn& field = shape_->columns[column];
  RowKey key = keyOf(position_, table);
  if (key.deleted) noCurrentRecord();
  if (!key.known)
    notUpdatable(field.name, "the current row has no row of " + shape_->tables[table].name + ".");
  SqlValue written = fromText(value, field.kind, field.name);

  const ShapeTable& target = shape_->tables[table];
  std::string sql = "UPDATE " + quoted(target.name) + " SET " +
                    quoted(target.sourceColumns[field.source]) + "=? WHERE " + target.keyColumn +
                    "=?;";
  int changed = 0;
  connection_.writeTransaction([&] {
    sqlite3_stmt* stmt = connection_.statement(sql);
    bindValue(stmt, 1, written);
    sqlite3_bind_int64(stmt, 2, key.key);
    changed = runWrite(connection_, stmt);
  });
  if (changed == 0) {
    keyOf(position_, table).deleted = true;
    noCurrentRecord();
  }
  uint64_t before = connection_.version(target.tableId);
  connection_.noteWrite(target.tableId);
  applyWrite(table, key.key, field.source, written, before);
}

void Recordset::applyWrite(int table, int64_t key, int source, const SqlValue& written,
                           uint64_t before) {
  uint64_t after = connection_.version(shape_->tables[table].tableId);
  for (size_t row : rowsWithKey(table, key)) {
    RowKey& rowKey = keyOf(row, table);
    bool current = rowKey.loaded == before || seen_[table] == before;
    for (size_t c = 0; c < columnCount_; ++c) {
      const ShapeColumn& column = shape_->columns[c];
      if (column.table != table || column.source != source) continue;
      Variant& stored = values_[row * columnCount_ + c];
      Variant fresh = toVariant(written, column.kind);
      reindex(static_cast<int>(c), row, stored, fresh);
      stored = std::move(fresh);
    }
    if (current) rowKey.loaded = after;
  }
  if (seen_[table] == before) seen_[table] = after;
}

const std::vector<size_t>& Recordset::rowsWithKey(int table, int64_t key) {
  auto& byKey = rowsByKey_[table];
  if (byKey.empty()) {
    for (size_t row = 0; row < rows_; ++row) {
      const RowKey& rowKey = keyOf(row, table);
      if (rowKey.known) byKey[rowKey.key].push_back(row);
    }
  }
  return byKey[key];
}

void Recordset::addNew() {
  requireWritable();
  newRow_ = NewRow{};
}

void Recordset::setField(const std::string& name, const std::string& value) {
  requireWritable();
  if (!newRow_) {
    throw RuntimeError(err::kStoreError, "No new row has been begun: call addNewRecord first.");
  }
  int column = requireColumn(Variant(name));
  int table = writableTable(column);
  const ShapeColumn& field = shape_->columns[column];
  if (newRow_->table >= 0 && newRow_->table != table) {
    throw RuntimeError(err::kStoreError,
                       "The fields of a new row must belong to one table: " + field.name +
                           " is a column of " + shape_->tables[table].name + ", not of " +
                           shape_->tables[newRow_->table].name + ".");
  }
  newRow_->table = table;
  SqlValue converted = fromText(value, field.kind, field.name);
  for (auto& [source, stored] : newRow_->fields) {
    if (source == field.source) {
      stored = std::move(converted);
      return;
    }
  }
  newRow_->fields.emplace_back(field.source, std::move(converted));
}

// The table a new row goes to: that of the fields set, or with none set the
// recordset's one base table.
int Recordset::tableOfNewRow() const {
  if (newRow_->table >= 0) return newRow_->table;
  if (tableCount_ == 1 && shape_->tables[0].identifiesRows()) return 0;
  throw RuntimeError(err::kStoreError,
                     "A new row with no field set needs a recordset over exactly one table.");
}

void Recordset::update() {
  requireWritable();
  if (!newRow_) return;  // nothing begun: nothing to commit
  int table = tableOfNewRow();
  const ShapeTable& target = shape_->tables[table];
  std::string sql = "INSERT INTO " + quoted(target.name);
  if (newRow_->fields.empty()) {
    sql += " DEFAULT VALUES;";
  } else {
    std::string names, marks;
    for (const auto& [source, value] : newRow_->fields) {
      names += (names.empty() ? "" : ", ") + quoted(target.sourceColumns[source]);
      marks += marks.empty() ? "?" : ", ?";
    }
    sql += " (" + names + ") VALUES (" + marks + ");";
  }
  int64_t key = 0;
  connection_.writeTransaction([&] {
    sqlite3_stmt* stmt = connection_.statement(sql);
    for (size_t i = 0; i < newRow_->fields.size(); ++i) {
      bindValue(stmt, static_cast<int>(i + 1), newRow_->fields[i].second);
    }
    runWrite(connection_, stmt);
    key = sqlite3_last_insert_rowid(connection_.db());
  });
  uint64_t before = connection_.version(target.tableId);
  connection_.noteWrite(target.tableId);

  // The new row joins the recordset as its last row and becomes current. Its
  // values are read back from the table, so defaults and a key that SQLite
  // gave read as stored.
  size_t row = rows_++;
  values_.resize(rows_ * columnCount_, Variant::null());
  keys_.resize(rows_ * tableCount_);
  RowKey& rowKey = keyOf(row, table);
  rowKey.key = key;
  rowKey.known = true;
  newRow_.reset();
  if (!reread(row, table)) noCurrentRecord();
  if (seen_[table] == before) seen_[table] = connection_.version(target.tableId);
  if (!rowsByKey_[table].empty()) rowsByKey_[table][key].push_back(row);
  for (auto& [column, index] : indexes_) reindex(column, row, Variant::null(), value(row, column));
  position_ = row;
}

bool Recordset::deleteCurrent() {
  requireWritable();
  requireCurrent();
  if (tableCount_ != 1) {
    throw RuntimeError(err::kReadOnly,
                       "A row of a recordset over several tables can't be deleted.");
  }
  const int table = 0;
  if (!shape_->tables[table].identifiesRows()) {
    throw RuntimeError(err::kReadOnly, "The rows of " + shape_->tables[table].name +
                                           " can't be identified in this query.");
  }
  RowKey key = keyOf(position_, table);
  if (key.deleted || !key.known) noCurrentRecord();
  const ShapeTable& target = shape_->tables[table];
  std::string sql = "DELETE FROM " + quoted(target.name) + " WHERE " + target.keyColumn + "=?;";
  int changed = 0;
  connection_.writeTransaction([&] {
    sqlite3_stmt* stmt = connection_.statement(sql);
    sqlite3_bind_int64(stmt, 1, key.key);
    changed = runWrite(connection_, stmt);
  });
  uint64_t before = connection_.version(target.tableId);
  connection_.noteWrite(target.tableId);
  for (size_t row : rowsWithKey(table, key.key)) keyOf(row, table).deleted = true;
  if (seen_[table] == before) seen_[table] = connection_.version(target.tableId);
  return changed > 0;
}

}  // namespace qb::sqlite
