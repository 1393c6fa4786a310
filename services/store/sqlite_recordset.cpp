#include "services/store/sqlite_recordset.h"

#include "services/runtime/conversions.h"
#include "services/store/sqlite_store_errors.h"

namespace qb::sqlite {

Recordset::Recordset(Connection& connection, std::shared_ptr<const QueryShape> shape,
                     const std::vector<int64_t>& keys, bool writable)
    : connection_(connection),
      shape_(std::move(shape)),
      writable_(writable),
      columnCount_(shape_->columns.size()),
      tableCount_(shape_->tables.size()),
      seen_(tableCount_),
      rowsByKey_(tableCount_) {
  for (size_t t = 0; t < tableCount_; ++t)
    seen_[t] = connection_.version(shape_->tables[t].tableId);
  sqlite3_stmt* stmt = shape_->statement.get();
  StatementUse use(stmt);
  for (size_t i = 0; i < keys.size(); ++i)
    sqlite3_bind_int64(stmt, static_cast<int>(i + 1), keys[i]);
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    for (size_t t = 0; t < tableCount_; ++t) {
      RowKey key;
      int field = shape_->tables[t].keyField;
      if (field >= 0 && sqlite3_column_type(stmt, field) == SQLITE_INTEGER) {
        key.key = sqlite3_column_int64(stmt, field);
        key.known = true;
        key.loaded = seen_[t];
      }
      keys_.push_back(key);
    }
    for (size_t c = 0; c < columnCount_; ++c) {
      values_.push_back(
          columnVariant(stmt, static_cast<int>(c) + shape_->leading, shape_->columns[c].kind));
    }
    ++rows_;
  }
  if (rc != SQLITE_DONE)
    fail(connection_.db(), rc, connection_.busyTimeoutMs(), "Can't run the query");
}

bool Recordset::moveFirst() {
  position_ = 0;
  return rows_ > 0;
}

bool Recordset::moveNext() {
  if (position_ < rows_) ++position_;
  return position_ < rows_;
}

int16_t Recordset::position() const {
  if (atEnd()) return -3;
  if (position_ + 1 > 32767) throw RuntimeError(err::kOverflow, "Overflow");
  return static_cast<int16_t>(position_ + 1);
}

bool Recordset::setPosition(int16_t position) {
  if (position < 1 || static_cast<size_t>(position) > rows_) {
    position_ = rows_;
    return false;
  }
  position_ = static_cast<size_t>(position) - 1;
  return true;
}

int Recordset::columnOf(const Variant& name) const {
  if (name.isString()) return shape_->fieldIndex(name.rawString());
  if (name.isNumberType()) {
    double ordinal = CDbl(name);
    if (ordinal >= 0 && ordinal < static_cast<double>(columnCount_))
      return static_cast<int>(ordinal);
  }
  return -1;
}

int Recordset::requireColumn(const Variant& name) const {
  int column = columnOf(name);
  if (column < 0) itemNotFound();
  return column;
}

void Recordset::requireWritable() const {
  if (!writable_) readOnlyRecordset();
}

void Recordset::requireCurrent() const {
  if (atEnd()) noCurrentRecord();
}

Variant Recordset::field(const Variant& name) {
  int column = requireColumn(name);
  requireCurrent();
  return value(position_, column);
}

const Variant& Recordset::value(size_t row, int column) {
  const Variant* found = freshValue(row, column);
  if (found == nullptr) noCurrentRecord();
  return *found;
}

const Variant* Recordset::freshValue(size_t row, int column) {
  int table = shape_->columns[column].table;
  if (table >= 0) {
    RowKey& key = keyOf(row, table);
    if (key.deleted) return nullptr;
    uint64_t now = connection_.version(shape_->tables[table].tableId);
    if (key.known && key.loaded != now && seen_[table] != now && !reread(row, table))
      return nullptr;
  }
  return &values_[row * columnCount_ + column];
}

bool Recordset::reread(size_t row, int table) {
  const ShapeTable& source = shape_->tables[table];
  RowKey& key = keyOf(row, table);
  sqlite3_stmt* stmt = connection_.statement(source.rereadSql);
  StatementUse use(stmt);
  sqlite3_bind_int64(stmt, 1, key.key);
  int rc = sqlite3_step(stmt);
  if (rc == SQLITE_DONE) {
    key.deleted = true;
    return false;
  }
  if (rc != SQLITE_ROW)
    fail(connection_.db(), rc, connection_.busyTimeoutMs(), "Can't read the row");
  for (size_t c = 0; c < columnCount_; ++c) {
    const ShapeColumn& column = shape_->columns[c];
    if (column.table != table) continue;
    Variant fresh = columnVariant(stmt, column.source, column.kind);
    Variant& stored = values_[row * columnCount_ + c];
    reindex(static_cast<int>(c), row, stored, fresh);
    stored = std::move(fresh);
  }
  key.loaded = connection_.version(source.tableId);
  return true;
}

}  // namespace qb::sqlite
