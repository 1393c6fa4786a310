#pragma once
// Recordset: one open query result of the SQLite store, a keyset recordset.
// Its rows are read when it opens and stay its rows; each row keeps, for every
// base table it draws from, the key of the table row it came from. A value is
// read afresh from that table row when the table has been written through the
// store since the recordset read it, so two recordsets over one row agree.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "services/runtime/variant.h"
#include "services/store/sqlite_connection.h"
#include "services/store/sqlite_query_shape.h"

namespace qb::sqlite {

class Recordset {
 public:
  // Runs the query with its keys bound and reads all its rows; positioned on
  // the first row (at the end when there is none).
  Recordset(Connection& connection, std::shared_ptr<const QueryShape> shape,
            const std::vector<int64_t>& keys, bool writable);

  bool isEmpty() const { return rows_ == 0; }
  int32_t recordCount() const { return static_cast<int32_t>(rows_); }
  bool moveFirst();
  bool moveNext();
  bool atEnd() const { return position_ >= rows_; }
  // From 1; -3 past the end. Fails with an overflow past 32767.
  int16_t position() const;
  bool setPosition(int16_t position);

  // The field of the current row by name (or by ordinal from 0).
  Variant field(const Variant& name);
  // Writes one field of the current row and commits it.
  void updateField(const std::string& name, const std::string& value);
  void addNew();
  void setField(const std::string& name, const std::string& value);
  void update();
  // Deletes the current row from the recordset's one table; false when the
  // table row was gone already.
  bool deleteCurrent();
  // Goes to the first row whose field equals the value; at the end when none.
  bool find(const std::string& name, const std::string& value);

 private:
  struct RowKey {
    int64_t key = 0;
    uint64_t loaded = 0;  // the table's write count when the values were read
    bool known =
        false;  // false: the row has no row of this table (outer join) or it can't be identified
    bool deleted = false;
  };
  struct NewRow {
    int table = -1;
    std::vector<std::pair<int, SqlValue>> fields;  // by source column of the table
  };
  // Rows by the normalised value of one field, each list in row order.
  using FindIndex = std::unordered_map<std::string, std::vector<size_t>>;

  int columnOf(const Variant& name) const;
  int requireColumn(const Variant& name) const;
  void requireWritable() const;
  void requireCurrent() const;
  RowKey& keyOf(size_t row, int table) { return keys_[row * tableCount_ + table]; }
  // The value, read afresh when its table was written since; null for a row
  // that is deleted.
  const Variant* freshValue(size_t row, int column);
  const Variant& value(size_t row, int column);
  // Reads the row's values of one table again; false when the row is gone.
  bool reread(size_t row, int table);
  // The table and key a write of the column on the current row goes to.
  int writableTable(int column);
  // Brings every row that came from the table row up to date after this
  // recordset wrote one of its columns.
  void applyWrite(int table, int64_t key, int source, const SqlValue& written, uint64_t before);
  const std::vector<size_t>& rowsWithKey(int table, int64_t key);
  FindIndex& indexOf(int column);
  void reindex(int column, size_t row, const Variant& before, const Variant& after);
  int tableOfNewRow() const;

  Connection& connection_;
  std::shared_ptr<const QueryShape> shape_;
  bool writable_;
  size_t columnCount_, tableCount_;
  std::vector<Variant> values_;  // row by row
  std::vector<RowKey> keys_;     // row by row, one per base table
  size_t rows_ = 0;
  size_t position_ = 0;
  // Per base table: the table's write count up to which every value of this
  // recordset is known to be current.
  std::vector<uint64_t> seen_;
  std::optional<NewRow> newRow_;
  std::unordered_map<int, FindIndex> indexes_;  // by column, made on first find
  // Per base table, made on first write: the rows that came from each key.
  std::vector<std::unordered_map<int64_t, std::vector<size_t>>> rowsByKey_;
};

}  // namespace qb::sqlite
