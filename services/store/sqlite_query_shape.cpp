#include "services/store/sqlite_query_shape.h"

#include "services/errors/runtime_error.h"
#include "services/store/sqlite_connection.h"
#include "services/store/sqlite_sql_text.h"

namespace qb::sqlite {

namespace {

const char* orEmpty(const char* text) { return text != nullptr ? text : ""; }

// The table's one integer primary key column; "" when it has none or several.
std::string integerPrimaryKey(Connection& connection, const std::string& table) {
  sqlite3_stmt* info =
      connection.statement("SELECT name, type FROM pragma_table_info(?) WHERE pk > 0;");
  StatementUse use(info);
  sqlite3_bind_text(info, 1, table.c_str(), -1, SQLITE_TRANSIENT);
  std::string key;
  int count = 0;
  while (sqlite3_step(info) == SQLITE_ROW) {
    ++count;
    if (kindOfDeclaredType(reinterpret_cast<const char*>(sqlite3_column_text(info, 1))) ==
        FieldKind::Long) {
      key = orEmpty(reinterpret_cast<const char*>(sqlite3_column_text(info, 0)));
    }
  }
  return count == 1 ? key : std::string();
}

// The statement with "<table>.rowid" of every base table in front of its
// select list; an empty statement when SQLite won't take it.
Statement withRowids(Connection& connection, const std::string& sql,
                     const std::vector<ShapeTable>& tables, int columnCount) {
  size_t at = selectListStart(sql);
  if (at == std::string::npos || tables.empty()) return Statement();
  std::string keys;
  for (const ShapeTable& table : tables) keys += " " + quoted(table.name) + ".rowid,";
  std::string augmented = sql.substr(0, at) + keys + sql.substr(at);
  try {
    Statement statement(connection.db(), augmented, connection.busyTimeoutMs());
    if (sqlite3_column_count(statement.get()) == columnCount + static_cast<int>(tables.size())) {
      return statement;
    }
  } catch (const RuntimeError&) {
  }
  return Statement();
}

void describeColumns(Connection& connection, QueryShape& shape, sqlite3_stmt* stmt, int leading) {
  int count = sqlite3_column_count(stmt) - leading;
  for (int i = 0; i < count; ++i) {
    int at = i + leading;
    ShapeColumn column;
    column.name = orEmpty(sqlite3_column_name(stmt, at));
    column.kind = kindOfDeclaredType(sqlite3_column_decltype(stmt, at));
    const char* table = sqlite3_column_table_name(stmt, at);
    const char* origin = sqlite3_column_origin_name(stmt, at);
    if (table != nullptr && origin != nullptr) {
      int id = connection.tableId(table);
      int index = 0;
      while (index < static_cast<int>(shape.tables.size()) && shape.tables[index].tableId != id) {
        ++index;
      }
      if (index == static_cast<int>(shape.tables.size())) {
        ShapeTable added;
        added.tableId = id;
        added.name = table;
        shape.tables.push_back(std::move(added));
      }
      ShapeTable& owner = shape.tables[index];
      int source = 0;
      while (source < static_cast<int>(owner.sourceColumns.size()) &&
             !NameEqual()(owner.sourceColumns[source], origin)) {
        ++source;
      }
      if (source == static_cast<int>(owner.sourceColumns.size())) {
        owner.sourceColumns.push_back(origin);
        owner.sourceKinds.push_back(column.kind);
      }
      column.table = index;
      column.source = source;
    }
    shape.byName.try_emplace(column.name, i);
    shape.columns.push_back(std::move(column));
  }
}

}  // namespace

int QueryShape::fieldIndex(std::string_view name) const {
  auto found = byName.find(name);
  return found == byName.end() ? -1 : found->second;
}

std::shared_ptr<QueryShape> QueryShape::prepare(Connection& connection, const std::string& sql) {
  auto shape = std::make_shared<QueryShape>();
  Statement plain(connection.db(), sql, connection.busyTimeoutMs());
  int columnCount = sqlite3_column_count(plain.get());
  if (columnCount == 0 || !sqlite3_stmt_readonly(plain.get())) {
    throw RuntimeError(err::kStoreError,
                       "A recordset opens on a query that reads rows; this SQL does not: " + sql);
  }
  describeColumns(connection, *shape, plain.get(), 0);

  shape->statement = withRowids(connection, sql, shape->tables, columnCount);
  if (shape->statement) {
    shape->leading = static_cast<int>(shape->tables.size());
    for (int t = 0; t < shape->leading; ++t) {
      shape->tables[t].keyColumn = "rowid";
      shape->tables[t].keyField = t;
    }
  } else {
    shape->statement = std::move(plain);
    for (ShapeTable& table : shape->tables) {
      std::string key = integerPrimaryKey(connection, table.name);
      for (int i = 0; i < columnCount && !key.empty(); ++i) {
        const ShapeColumn& column = shape->columns[i];
        if (column.table >= 0 && &shape->tables[column.table] == &table &&
            NameEqual()(table.sourceColumns[column.source], key)) {
          table.keyColumn = quoted(key);
          table.keyField = i;
          break;
        }
      }
    }
  }
  for (ShapeTable& table : shape->tables) {
    if (!table.identifiesRows()) continue;
    std::string list;
    for (const std::string& column : table.sourceColumns) {
      list += (list.empty() ? "" : ", ") + quoted(column);
    }
    table.rereadSql =
        "SELECT " + list + " FROM " + quoted(table.name) + " WHERE " + table.keyColumn + "=?;";
  }
  return shape;
}

}  // namespace qb::sqlite
