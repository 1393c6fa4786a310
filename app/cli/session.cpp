#include "app/cli/session.h"

#include <filesystem>
#include <stdexcept>

#include "app/cli/id_options.h"
#include "services/host/clock.h"
#include "services/host/module_state.h"

namespace qb::cli {

Session::Session(Context& context, Database database)
    : context_(context),
      store_(std::make_shared<SqliteDatabase>()),
      errors_(std::make_shared<ConsoleErrorObject>(&context.err)),
      locale_(std::make_shared<FixedLocale>()) {
  const bool withoutDatabase = database == Database::Optional && !context.args.has("db");
  const bool writes = context.command != nullptr && context.command->writes;
  if (!withoutDatabase) {
    std::string path = context.args.required("db");
    std::error_code error;
    if (!std::filesystem::exists(path, error) && !error) {
      throw std::runtime_error("There is no database at \"" + path +
                               "\". Check the path, or create one with 'quillbox init --db " +
                               path + " --sample'.");
    }
    SqliteDatabase::Options options;
    options.readOnly = !writes;
    store_->open(path, options);
  }
  if (writes) checkIdsNameRows(*context.command, context.args, *store_);
  locale_->countryCode = context.country;
  locale_->provinceCode = context.province;
  locale_->userID = context.user;
  resetModuleState();
  moduleState().databaseReference = store_;
  moduleState().errorClass = errors_;
  moduleState().localeReference = locale_;
  if (context.today) moduleState().clock = std::make_shared<FixedClock>(*context.today);
}

Session::~Session() {
  if (errors_->failureCount() > 0) context_.failureRecorded = true;
  resetModuleState();
}

}  // namespace qb::cli
