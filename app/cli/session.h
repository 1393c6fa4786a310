#pragma once
// A command's session on a database file: opens the store and installs it,
// a console error object, the locale of the global flags and the clock of
// --today as this thread's module state. The database opens read-only unless
// the command writes; for a command that writes, every id option given must
// name a row (see command.h) before the session is handed over. exitStatus()
// is 1 when the error object recorded a failure, and the command's output is
// then withheld.
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
  // Whether the command can run without --db.
  enum class Database { Required, Optional };

  // Opens --db (which must exist); throws UsageError without --db or for an
  // id that names no row, and a RuntimeError when the file can't be opened
  // or is no client database. With Optional and no --db the store is
  // installed unconnected: it answers isConnected False.
  explicit Session(Context& context, Database database = Database::Required);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  SqliteDatabase& store() { return *store_; }
  ConsoleErrorObject& errors() { return *errors_; }
  FixedLocale& locale() { return *locale_; }
  int exitStatus() const { return errors_->failureCount() > 0 ? 1 : 0; }

 private:
  Context& context_;
  std::shared_ptr<SqliteDatabase> store_;
  std::shared_ptr<ConsoleErrorObject> errors_;
  std::shared_ptr<FixedLocale> locale_;
};

}  // namespace qb::cli
