#include "services/store/sqlite_values.h"

#include <climits>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb::sqlite {

namespace {

bool contains(const std::string& upper, std::string_view part) {
  return upper.find(part) != std::string::npos;
}

[[noreturn]] void typeMismatch(const std::string& value) {
  throw RuntimeError(err::kTypeMismatch, "Type mismatch: '" + value + "' does not fit the column");
}

std::string textAt(sqlite3_stmt* statement, int index) {
  const unsigned char* text = sqlite3_column_text(statement, index);
  return text == nullptr ? std::string()
                         : std::string(reinterpret_cast<const char*>(text),
                                       static_cast<size_t>(sqlite3_column_bytes(statement, index)));
}

Variant integerVariant(sqlite3_int64 value) {
  if (value >= INT32_MIN && value <= INT32_MAX) return Variant(static_cast<int32_t>(value));
  return Variant(static_cast<double>(value));
}

}  // namespace

ColumnKind kindOf(const char* declaredType) {
  if (declaredType == nullptr || *declaredType == '\0') return ColumnKind::Untyped;
  std::string upper = UCase(declaredType);
  if (contains(upper, "BOOL") || contains(upper, "BIT") || contains(upper, "YESNO")) return ColumnKind::Boolean;
  if (contains(upper, "DATE") || contains(upper, "TIME")) return ColumnKind::Date;
  if (contains(upper, "INT") || upper == "LONG" || upper == "COUNTER") return ColumnKind::Integer;
  if (contains(upper, "REAL") || contains(upper, "FLOA") || contains(upper, "DOUB") ||
      contains(upper, "CURRENCY") || contains(upper, "MONEY") || contains(upper, "NUMERIC") ||
      contains(upper, "DECIMAL") || contains(upper, "SINGLE"))
    return ColumnKind::Real;
  return ColumnKind::Text;
}

Variant readColumn(sqlite3_stmt* statement, int index, ColumnKind kind) {
  int storage = sqlite3_column_type(statement, index);
  if (storage == SQLITE_NULL) return Variant::null();
  switch (kind) {
    case ColumnKind::Boolean:
      if (storage == SQLITE_TEXT) {
        std::string text = textAt(statement, index);
        if (equalsText(text, "True")) return Variant(true);
        if (equalsText(text, "False")) return Variant(false);
      }
      return Variant(sqlite3_column_double(statement, index) != 0);
    case ColumnKind::Integer:
      if (storage == SQLITE_INTEGER) return integerVariant(sqlite3_column_int64(statement, index));
      if (storage == SQLITE_FLOAT) return Variant(sqlite3_column_double(statement, index));
      return Variant(textAt(statement, index));
    case ColumnKind::Real:
      if (storage == SQLITE_INTEGER || storage == SQLITE_FLOAT)
        return Variant(sqlite3_column_double(statement, index));
      return Variant(textAt(statement, index));
    case ColumnKind::Date: {
      if (storage == SQLITE_INTEGER || storage == SQLITE_FLOAT)
        return Variant::date(sqlite3_column_double(statement, index));
      std::string text = textAt(statement, index);
      double serial = 0;
      if (parseDate(text, serial)) return Variant::date(serial);
      return Variant(text);
    }
    case ColumnKind::Text:
      return Variant(textAt(statement, index));
    case ColumnKind::Untyped:
      if (storage == SQLITE_INTEGER) return integerVariant(sqlite3_column_int64(statement, index));
      if (storage == SQLITE_FLOAT) return Variant(sqlite3_column_double(statement, index));
      return Variant(textAt(statement, index));
  }
  return Variant::null();
}

std::string isoDate(double serial) {
  DateParts p = splitDate(serial);
  char buffer[32];
  if (p.hour == 0 && p.minute == 0 && p.second == 0) {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", p.year, p.month, p.day);
  } else {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", p.year, p.month, p.day,
                  p.hour, p.minute, p.second);
  }
  return buffer;
}

void bindWritten(sqlite3_stmt* statement, int index, const std::string& value, ColumnKind kind) {
  if (kind == ColumnKind::Text || (kind == ColumnKind::Untyped && !value.empty())) {
    sqlite3_bind_text(statement, index, value.c_str(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
    return;
  }
  if (value.empty()) {
    sqlite3_bind_null(statement, index);
    return;
  }
  switch (kind) {
    case ColumnKind::Boolean: {
      std::string text = Trim(value);
      double number = 0;
      if (equalsText(text, "True") || equalsText(text, "Yes")) sqlite3_bind_int(statement, index, 1);
      else if (equalsText(text, "False") || equalsText(text, "No")) sqlite3_bind_int(statement, index, 0);
      else if (parseNumber(text, number)) sqlite3_bind_int(statement, index, number != 0 ? 1 : 0);
      else typeMismatch(value);
      return;
    }
    case ColumnKind::Integer: {
      double number = 0;
      if (!parseNumber(value, number)) typeMismatch(value);
      double rounded = Round(number);
      if (std::fabs(rounded) > 9.2e18) throw RuntimeError(err::kOverflow, "Overflow");
      sqlite3_bind_int64(statement, index, static_cast<sqlite3_int64>(rounded));
      return;
    }
    case ColumnKind::Real: {
      double number = 0;
      if (!parseNumber(value, number)) typeMismatch(value);
      sqlite3_bind_double(statement, index, number);
      return;
    }
    case ColumnKind::Date: {
      double serial = 0;
      if (!parseDate(value, serial) && !parseNumber(value, serial)) typeMismatch(value);
      std::string iso = isoDate(serial);
      sqlite3_bind_text(statement, index, iso.c_str(), static_cast<int>(iso.size()), SQLITE_TRANSIENT);
      return;
    }
    default:
      sqlite3_bind_null(statement, index);
  }
}

}  // namespace qb::sqlite
