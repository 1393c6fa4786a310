#pragma once
// SqliteDatabase: the store on a SQLite database file. It runs the system's
// SQL as it stands (nested parenthesised joins, "= True", "Not ... Is Null").
//
// Recordsets are keyset recordsets: the rows are fixed when the recordset
// opens. Each result column is mapped to its table and column, and each row
// remembers the rowid of every table it draws from, so that a write through a
// recordset over a join goes to exactly the row of the right table. Every
// field write is committed at once (BEGIN IMMEDIATE ... COMMIT) and reads back
// on the same recordset; other recordsets open on the same rows read it too.
//
// Journal: chosen when the file is made, WAL with synchronous=NORMAL on a
// local disk, the rollback journal on a network file system; a busy database
// is waited on for busyTimeoutMs and then reported as a failure.

#include <memory>
#include <string>

#include "services/store/database_reference.h"

namespace qb {

class SqliteDatabase : public DatabaseReference {
 public:
  struct Options {
    int busyTimeoutMs = 5000;
    bool create = false;    // create the file when it does not exist
    bool readOnly = false;  // open for reading only (also chosen when the file can't be written)
    std::string vfs;        // the SQLite VFS to use, by name; "" the default
  };

  SqliteDatabase();
  ~SqliteDatabase() override;

  // Opens the database file; fails with a RuntimeError whose first line says
  // what is wrong and what to do when the file is missing (unless
  // options.create), can't be opened or read, or is no client database: an
  // empty file, a file that is not SQLite, or a SQLite file without the mark
  // schema.sql sets. Such a file is left as it was. Opening never changes an
  // existing file; a file created here (options.create) gets its journal:
  // WAL on a local disk, the rollback journal on a network share.
  void open(const std::string& path, const Options& options);
  void open(const std::string& path) { open(path, Options{}); }
  // Closes every open recordset and the file; nothing happens when none is open.
  void close();
  // The open file; "" when none is open.
  const std::string& path() const;
  // "wal" or "delete": the journal mode in force; "" when no file is open.
  std::string journalMode() const;
  // True when the file is open for reading only: every write then fails.
  bool isReadOnly() const;
  // Runs a script of statements (schema creation, tests' set-up). Not part of
  // the system's interface: the system itself never changes data by SQL.
  void executeScript(const std::string& sql);

  bool isConnected() override;
  RecordsetHandle openRecordset(const std::string& sqlText, int32_t cursorType, int32_t lockType,
                                bool flagOne = true, const std::string& note = "",
                                bool flagTwo = true) override;
  void closeRecordset(RecordsetHandle handle) override;
  bool isRecordsetOpen(RecordsetHandle handle) override;
  bool isRecordsetEmpty(RecordsetHandle handle) override;
  int32_t getRecordCount(RecordsetHandle handle) override;
  bool moveFirstRecord(RecordsetHandle handle) override;
  bool moveNextRecord(RecordsetHandle handle) override;
  bool isEndOfRecordset(RecordsetHandle handle) override;
  int16_t getRecordPosition(RecordsetHandle handle) override;
  bool setRecordPosition(RecordsetHandle handle, int16_t position) override;
  Variant getFieldValue(RecordsetHandle handle, const Variant& fieldName) override;
  bool updateFieldValue(RecordsetHandle handle, const std::string& fieldName,
                        const std::string& value, bool flagOne = false,
                        bool flagTwo = false) override;
  bool addNewRecord(RecordsetHandle handle) override;
  bool setFieldValue(RecordsetHandle handle, const std::string& fieldName,
                     const std::string& value) override;
  bool updateRecord(RecordsetHandle handle) override;
  bool findRecord(RecordsetHandle handle, const std::string& fieldName, const std::string& value,
                  const std::string& a = "", const std::string& b = "", const std::string& c = "",
                  const std::string& d = "") override;
  bool deleteRecord(RecordsetHandle handle) override;
  // Number of recordsets open now (tests check that procedures close theirs).
  int openRecordsetCount() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace qb
