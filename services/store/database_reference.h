#pragma once
// DatabaseReference: the store. Every read and write of the client database
// goes through these operations; no recordset, field or connection object
// crosses the interface, only an integer handle.
//
// Every operation raises a RuntimeError on failure (bad SQL, a missing column,
// a closed or unknown handle, a write to a read-only recordset, a locked
// database that stays busy past the timeout). isConnected is the exception:
// it never fails.
//
// Cursor and lock numbers are those the system passes: cursorType 1 (keyset:
// the rows are fixed when the recordset opens), lockType 1 (read-only) or 3
// (writable: each written field is committed at once).

#include <cstdint>
#include <string>

#include "services/errors/runtime_error.h"
#include "services/runtime/variant.h"

namespace qb {

using RecordsetHandle = int32_t;

constexpr int32_t adOpenKeyset = 1;
constexpr int32_t adLockReadOnly = 1;
constexpr int32_t adLockOptimistic = 3;

class DatabaseReference {
 public:
  virtual ~DatabaseReference() = default;

  // True when the store can take queries. Never fails.
  virtual bool isConnected() = 0;

  // Runs the SQL text and returns a handle on its result, positioned on the
  // first row (or at the end when there is none). The trailing arguments are
  // passed as the system always passes them and carry no meaning here.
  virtual RecordsetHandle openRecordset(const std::string& sqlText, int32_t cursorType,
                                        int32_t lockType, bool flagOne = true,
                                        const std::string& note = "", bool flagTwo = true) = 0;
  // Closes the recordset and frees the handle.
  virtual void closeRecordset(RecordsetHandle handle) = 0;
  // True while the handle names an open recordset. Never fails.
  virtual bool isRecordsetOpen(RecordsetHandle handle) = 0;
  virtual bool isRecordsetEmpty(RecordsetHandle handle) = 0;
  virtual int32_t getRecordCount(RecordsetHandle handle) = 0;

  // Goes to the first row; true when there is one.
  virtual bool moveFirstRecord(RecordsetHandle handle) = 0;
  // Goes to the next row; true when the new position is a row.
  virtual bool moveNextRecord(RecordsetHandle handle) = 0;
  // True when the position is past the last row (also on an empty recordset).
  virtual bool isEndOfRecordset(RecordsetHandle handle) = 0;
  // Position of the current row, from 1. Fails with an overflow past 32767.
  virtual int16_t getRecordPosition(RecordsetHandle handle) = 0;
  // Returns to a position getRecordPosition gave; true when it is a row.
  virtual bool setRecordPosition(RecordsetHandle handle, int16_t position) = 0;

  // The named field of the current row, read afresh; may be Null. The name is
  // a column name without its table, or the alias the SQL gave it. Fails when
  // there is no current row (3021) or no such field (3265).
  virtual Variant getFieldValue(RecordsetHandle handle, const Variant& fieldName) = 0;
  // Writes one field of the current row and commits it at once; the value is
  // text and the store converts it to the column's type ("True"/"False" for
  // Booleans, "" as Null for non-text columns).
  virtual bool updateFieldValue(RecordsetHandle handle, const std::string& fieldName,
                                const std::string& value, bool flagOne = false,
                                bool flagTwo = false) = 0;

  // Begins a new row; setFieldValue sets its fields; updateRecord commits it
  // and leaves the recordset positioned on the new row.
  virtual bool addNewRecord(RecordsetHandle handle) = 0;
  virtual bool setFieldValue(RecordsetHandle handle, const std::string& fieldName,
                             const std::string& value) = 0;
  virtual bool updateRecord(RecordsetHandle handle) = 0;

  // Deletes the current row of a writable recordset (lockType 3) from its
  // table and commits at once; true when a row was deleted. The position
  // stays where it was, so a walk goes on with moveNextRecord; the deleted
  // row reads no more (3021). Fails with err::kReadOnly on a read-only
  // recordset and err::kNoCurrentRecord with no current row. This store
  // refuses every delete; a store that deletes overrides it.
  virtual bool deleteRecord(RecordsetHandle /*handle*/) {
    throw RuntimeError(err::kReadOnly, "This store does not delete records.");
  }

  // Positions on the first row whose field equals the value (numbers compare
  // by value, text ignoring case); true when found, else the position is past
  // the end.
  virtual bool findRecord(RecordsetHandle handle, const std::string& fieldName,
                          const std::string& value, const std::string& a = "",
                          const std::string& b = "", const std::string& c = "",
                          const std::string& d = "") = 0;
};

}  // namespace qb
