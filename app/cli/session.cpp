#include "app/cli/session.h"

#include <filesystem>
#include <stdexcept>

#include "services/host/clock.h"
#include "services/host/module_state.h"

namespace qb::cli {

Session::Session(Context& context, Database database)
    : store_(std::make_shared<SqliteDatabase>()),
      errors_(std::make_shared<ConsoleErrorObject>(&context.err)),
      locale_(std::make_shared<FixedLocale>()) {
  const bool withoutDatabase = database == Database::Optional && !context.args.has("db");
  std::string path = withoutDatabase ? "" : context.args.required("db");
  if (!withoutDatabase && !std::filesystem::exists(path)) {
    throw std::runtime_error("no database at '" + path + "' (create one with 'quillbox init --db " +
                             path + " --sample')");
  }
  if (!withoutDatabase) store_->open(path);
  locale_->countryCode = context.country;
  locale_->provinceCode = context.province;
  locale_->userID = context.user;
  resetModuleState();
  moduleState().databaseReference = store_;
  moduleState().errorClass = errors_;
  moduleState().localeReference = locale_;
  if (context.today) moduleState().clock = std::make_shared<FixedClock>(*context.today);
}

Session::~Session() { resetModuleState(); }

}  // namespace qb::cli
