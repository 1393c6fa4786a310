#pragma once
// QueryShape: the steps every look-up takes on the store, each run as a step
// of the calling procedure, so that a failure goes to that procedure's
// handler and the user's response decides whether the look-up goes on:
//
//   1. isConnected (false: nothing further, the function keeps its default);
//   2. a local copy of the module's store, cleared when the shape ends;
//   3. open the composed SQL, cursor 1, lock 1 (or 3 to write);
//   4. moveFirstRecord: true when the row is there;
//   5. read the fields;
//   6. closeRecordset, also when no row came back.
//
// A failure leaves the recordset open; onFailure runs for every failed step
// (the handler setting the function's failure value).
//
//   Procedure proc(traceName("getCompanyNameFromCompanyID"));
//   std::string result;
//   QueryShape query(proc, [&] { result = ""; });
//   if (query.connected()) {
//     query.readFirstRow(sql, [&] { result = toText(query.field("CompanyName")); });
//   }

#include <functional>
#include <memory>
#include <string>

#include "services/errors/procedure.h"
#include "services/store/database_reference.h"

namespace qb {

class QueryShape {
 public:
  explicit QueryShape(Procedure& proc, std::function<void()> onFailure = {});

  // Step 1: true when the store can take queries. A missing store is an
  // object-required failure.
  bool connected();
  // Opens the SQL with cursor 1 and the lock given.
  void open(const std::string& sqlText, int32_t lockType = adLockReadOnly);
  // moveFirstRecord; false on an empty recordset and on a failure.
  bool moveFirst();
  void close();
  // open, moveFirst, read when there is a row, close. True when a row came back.
  bool readFirstRow(const std::string& sqlText, const std::function<void()>& read,
                    int32_t lockType = adLockReadOnly);

  // Runs body as one step of the procedure; false when it failed or the
  // procedure is leaving.
  bool step(const std::function<void()>& body);

  // For use inside steps: the named field of the current row, read afresh.
  Variant field(const std::string& name);
  // The first of the two reads of a column that can be Null.
  bool isBlank(const std::string& name);
  // A column that feeds a number: blank test first, then read again and
  // convert; fallback when it is blank.
  int32_t idOrDefault(const std::string& name, int32_t fallback);

  DatabaseReference& store();
  RecordsetHandle handle() const { return handle_; }

 private:
  Procedure& proc_;
  std::function<void()> onFailure_;
  std::shared_ptr<DatabaseReference> store_;
  RecordsetHandle handle_ = 0;
};

}  // namespace qb
