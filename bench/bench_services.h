#pragma once
// The module's services as the benchmarks set them: a firm's store, errors
// written to the console, the fixed locale and a clock that stands on one day,
// so every run reads the same dates.

#include <memory>

#include "services/errors/console_error_object.h"
#include "services/host/clock.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/dates.h"
#include "services/store/sqlite_database.h"

namespace qb::bench {

inline void installServices(const std::shared_ptr<SqliteDatabase>& store) {
  resetModuleState();
  moduleState().databaseReference = store;
  moduleState().errorClass = std::make_shared<ConsoleErrorObject>();
  moduleState().localeReference = std::make_shared<FixedLocale>();
  moduleState().clock = std::make_shared<FixedClock>(DateSerial(2026, 11, 23));
}

}  // namespace qb::bench
