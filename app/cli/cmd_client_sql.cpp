// quillbox client-sql: the main client statement, and with a database the
// number of client rows it yields.

#include <memory>

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "data/mod_database_functions.h"
#include "services/errors/console_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"

namespace qb::cli {
namespace {

std::string composeSql(const Arguments& args) {
  return modDatabaseFunctions::getMainBusinessSQLString(
      args.has("show-only"), args.number("status", 0), args.id("client-data", -1));
}

// Without a database: only the locale and an error object are needed.
int printSqlOnly(Context& context) {
  auto errors = std::make_shared<ConsoleErrorObject>(&context.err);
  auto locale = std::make_shared<FixedLocale>();
  locale->countryCode = context.country;
  locale->provinceCode = context.province;
  locale->userID = context.user;
  resetModuleState();
  moduleState().errorClass = errors;
  moduleState().localeReference = locale;
  std::string sql = composeSql(context.args);
  resetModuleState();
  context.out << sql << "\n";
  context.failureRecorded = errors->failureCount() > 0;
  return context.failureRecorded ? 1 : 0;
}

int runClientSql(Context& context) {
  context.args.required("status");
  context.args.number("status", 0);
  context.args.id("client-data", -1);
  if (!context.args.has("db")) return printSqlOnly(context);

  Session session(context);
  std::string sql = composeSql(context.args);
  context.out << sql << "\n";
  if (sql.empty()) return session.exitStatus();
  RecordsetHandle handle = session.store().openRecordset(sql, adOpenKeyset, adLockReadOnly);
  int32_t rows = session.store().getRecordCount(handle);
  session.store().closeRecordset(handle);
  context.out << "rows: " << rows << "\n";
  return session.exitStatus();
}

const CommandRegistration registration(Command{
    "client-sql",
    "the main client statement (one wide row per client)",
    "Usage: quillbox client-sql [--db FILE] [--show-only] --status N [--client-data ID]\n"
    "\n"
    "Prints the statement that yields one row per client: the Canadian table set\n"
    "with --country 1 (the default), the United States set with --country 2.\n"
    "With --db the statement also runs on the database and a second line gives\n"
    "the number of rows, as \"rows: N\".\n"
    "\n"
    "  --db FILE          run the statement on this client database too\n"
    "  --show-only        only clients marked to show (ShowThisClient)\n"
    "  --status N         1 active clients, 2 inactive, 3 all; any other number\n"
    "                     composes nothing and prints an empty line\n"
    "  --client-data ID   narrow to one client (ClientData.ClientDataID)\n",
    {"db", "status", "client-data"},
    {"show-only"},
    runClientSql,
});

}  // namespace
}  // namespace qb::cli
