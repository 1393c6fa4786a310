#pragma once
// QueryShape: what the store knows of one query text once it has prepared it:
// the statement to run, each result column's name, base table, table column
// and kind, and for each base table how a row of it is identified for writes
// and re-reads.
//
// To identify rows the store runs the query with "<table>.rowid" of each base
// table put in front of the select list (the system's SQL never aliases its
// tables). When that can't be done (SELECT DISTINCT, a view, a compound
// query) a table's rows are identified by its integer primary key when the
// result holds it; a table with neither can be read but not written.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "services/store/sqlite_names.h"
#include "services/store/sqlite_statement.h"
#include "services/store/sqlite_values.h"

namespace qb::sqlite {

class Connection;

struct ShapeColumn {
  std::string name;  // as the result names it: the column, or the alias the SQL gave it
  int table = -1;    // index into QueryShape::tables; -1 for an expression
  int source = -1;   // index into the table's sourceColumns
  FieldKind kind = FieldKind::Untyped;
};

struct ShapeTable {
  int tableId = 0;  // the connection's number for the table
  std::string name;
  std::string keyColumn;  // "rowid" or the integer primary key; "" when rows can't be identified
  int keyField = -1;      // the statement column that holds a row's key
  std::vector<std::string> sourceColumns;  // the table's columns that the result reads
  std::vector<FieldKind> sourceKinds;
  std::string rereadSql;  // SELECT sourceColumns FROM table WHERE key=?

  bool identifiesRows() const { return keyField >= 0; }
};

struct QueryShape {
  Statement statement;  // what runs: the query with the rowid columns in front, when they could be
                        // put there
  int leading = 0;      // how many such columns stand in front of the result's own
  std::vector<ShapeColumn> columns;
  std::vector<ShapeTable> tables;
  // Each name to the first column of that name, in any case.
  NameMap<int> byName;

  // The column of that name (no table, any case); -1 when none.
  int fieldIndex(std::string_view name) const;

  // Prepares the query text; fails with a RuntimeError carrying SQLite's
  // message when it is no query that returns rows or when it writes.
  static std::shared_ptr<QueryShape> prepare(Connection& connection, const std::string& sql);
};

}  // namespace qb::sqlite
