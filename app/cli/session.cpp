#include "app/cli/session.h"

#include <filesystem>
#include <stdexcept>

#include "services/host/module_state.h"

namespace qb::cli {

Session::Session(Context& context)
    : store_(std::make_shared<SqliteDatabase>()),
      errors_(std::make_shared<ConsoleErrorObject>(&context.err)),
      locale_(std::make_shared<FixedLocale>()) {
  std::string path = context.args.required("db");
  if (!std::filesystem::exists(path)) {
    throw std::runtime_error("no database at '" + path + "' (create one with 'quillbox init --db " +
                             path + " --sample')");
  }
  store_->open(path);
  locale_->countryCode = context.country;
  locale_->provinceCode = context.province;
  locale_->userID = context.user;
  resetModuleState();
  moduleState().databaseReference = store_;
  moduleState().errorClass = errors_;
  moduleState().localeReference = locale_;
}

Session::~Session() { resetModuleState(); }

}  // namespace qb::cli
