#pragma once
// What the merge's fuzz targets share: the module's services set once for
// the process (a store that is not connected, a fixed locale and day, an
// error object that keeps quiet), and the first bytes of an input read as
// choices.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>

#include "services/errors/console_error_object.h"
#include "services/host/clock.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/dates.h"
#include "services/store/sqlite_database.h"

namespace qb::fuzz {

// Installs the services once; the locale can be changed between inputs.
inline FixedLocale& mergeServices() {
  static std::shared_ptr<FixedLocale> locale = [] {
    auto made = std::make_shared<FixedLocale>();
    moduleState().localeReference = made;
    moduleState().databaseReference = std::make_shared<SqliteDatabase>();  // not connected
    // Reports of failures (a date marker without its format) go nowhere.
    static std::ostringstream quiet;
    quiet.setstate(std::ios::badbit);
    moduleState().errorClass = std::make_shared<ConsoleErrorObject>(&quiet);
    moduleState().clock = std::make_shared<FixedClock>(DateSerial(2026, 11, 23));
    return made;
  }();
  return *locale;
}

// The input as choices, then text.
class Input {
 public:
  Input(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  // The next byte (0 past the end).
  uint8_t byte() { return at_ < size_ ? data_[at_++] : 0; }
  // All that is left, as text.
  std::string rest() {
    std::string text(reinterpret_cast<const char*>(data_) + at_, size_ - at_);
    at_ = size_;
    return text;
  }

 private:
  const uint8_t* data_;
  size_t size_;
  size_t at_ = 0;
};

}  // namespace qb::fuzz
