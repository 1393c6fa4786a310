#pragma once
// A command's session on a database file: opens the store and installs it,
// a console error object and the locale of the global flags as this thread's
// module state. exitStatus() is 1 when the error object recorded a failure.
//
//   Session session(context);   // --db is required
//   context.out << modDatabaseFunctions::getCompanyNameFromCompanyID(7);
//   return session.exitStatus();

#include <memory>

#include "app/cli/command.h"
#include "services/errors/console_error_object.h"
#include "services/host/locale_reference.h"
#include "services/store/sqlite_database.h"

namespace qb::cli {

class Session {
 public:
  // Opens --db (which must exist); throws UsageError without --db and a
  // std::runtime_error when the file can't be opened.
  explicit Session(Context& context);
  ~Session();

  SqliteDatabase& store() { return *store_; }
  ConsoleErrorObject& errors() { return *errors_; }
  FixedLocale& locale() { return *locale_; }
  int exitStatus() const { return errors_->failureCount() > 0 ? 1 : 0; }

 private:
  std::shared_ptr<SqliteDatabase> store_;
  std::shared_ptr<ConsoleErrorObject> errors_;
  std::shared_ptr<FixedLocale> locale_;
};

}  // namespace qb::cli
