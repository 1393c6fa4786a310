#pragma once
// SampleWriter: fills a client database file with rows for the sample firm
// and the firm generator. It writes straight through SQLite in one
// transaction with prepared, cached INSERT statements; it is the tool that
// builds a database, not part of the system's own data path (which changes
// data only through writable recordsets).
//
//   SampleWriter out(path);
//   out.insert("Companies", {{"CompanyID", 2}, {"CompanyName", "Maple Leaf Bakery Ltd."}});
//   out.commit();

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <variant>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace qb::sample {

// One column value of a row to insert: Null, a whole number, a double or text
// (dates as ISO text, Booleans as 0/1).
struct Field {
  Field(const char* column, std::nullptr_t) : name(column) {}
  Field(const char* column, int value) : name(column), value(int64_t{value}) {}
  Field(const char* column, int64_t value) : name(column), value(value) {}
  Field(const char* column, double value) : name(column), value(value) {}
  Field(const char* column, const char* text) : name(column), value(std::string(text)) {}
  Field(const char* column, std::string text) : name(column), value(std::move(text)) {}

  const char* name;
  std::variant<std::monostate, int64_t, double, std::string> value;
};

class SampleWriter {
 public:
  // Opens an existing database file and begins a transaction; throws
  // std::runtime_error when the file can't be opened.
  explicit SampleWriter(const std::string& path);
  // Rolls back what was not committed.
  ~SampleWriter();
  SampleWriter(const SampleWriter&) = delete;
  SampleWriter& operator=(const SampleWriter&) = delete;

  // Inserts one row; the statement for a table and column list is prepared
  // once. Throws std::runtime_error with SQLite's message on failure.
  void insert(const std::string& table, std::initializer_list<Field> fields);
  void insert(const std::string& table, const std::vector<Field>& fields);
  // Commits the transaction; later inserts begin a new one.
  void commit();

 private:
  void insertRange(const std::string& table, const Field* begin, const Field* end);
  sqlite3_stmt* statement(const std::string& table, const Field* begin, const Field* end);
  void execute(const char* sql);

  sqlite3* db_ = nullptr;
  bool inTransaction_ = false;
  std::map<std::string, sqlite3_stmt*> statements_;
};

}  // namespace qb::sample
