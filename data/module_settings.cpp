// The module-level settings of modDatabaseFunctions and its shared helpers.

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "services/errors/runtime_error.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"

namespace qb::modDatabaseFunctions {

namespace {

struct Settings {
  int32_t clientOrder = 0;
  int32_t displayType = 0;
  int32_t relationshipSetting = 0;
};

// Per thread, like the rest of the module state.
Settings& settings() {
  thread_local Settings state;
  return state;
}

}  // namespace

int32_t clientOrder() { return settings().clientOrder; }
void setClientOrder(int32_t order) { settings().clientOrder = order; }
int32_t displayType() { return settings().displayType; }
void setDisplayType(int32_t type) { settings().displayType = type; }
int32_t relationshipSetting() { return settings().relationshipSetting; }
void setRelationshipSetting(int32_t setting) { settings().relationshipSetting = setting; }
void resetSettings() { settings() = Settings{}; }

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-modDatabaseFunctions-") + procedure;
}

int32_t countryCode() {
  LocaleReference* locale = moduleState().localeReference.get();
  if (locale == nullptr) {
    throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
  }
  return locale->getCountryCode();
}

}  // namespace qb::modDatabaseFunctions
