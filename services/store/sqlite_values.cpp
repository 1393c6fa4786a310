#include "services/store/sqlite_values.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb::sqlite {

namespace {

bool contains(const std::string& text, const char* word) {
  return text.find(word) != std::string::npos;
}

bool containsAny(const std::string& text, std::initializer_list<const char*> words) {
  for (const char* word : words) {
    if (contains(text, word)) return true;
  }
  return false;
}

// A whole number as Long when it fits 32 bits, else as Double.
Variant wholeNumber(int64_t value) {
  if (value >= INT32_MIN && value <= INT32_MAX) return Variant(static_cast<int32_t>(value));
  return Variant(static_cast<double>(value));
}

// Text in a numeric column that is a number reads as one; anything else
// stays the text it is.
Variant numberOrText(std::string_view text, FieldKind kind) {
  std::string owned(text);
  double number = 0;
  if (!parseNumber(owned, number)) return Variant(std::move(owned));
  if (kind == FieldKind::Long && number == std::floor(number) && std::fabs(number) < 9.0e15) {
    return wholeNumber(static_cast<int64_t>(number));
  }
  return Variant(number);
}

// "True"/"False" in any case, or a number: true when not zero.
bool readBoolean(const std::string& text, bool& out) {
  std::string trimmed = Trim(text);
  if (equalsText(trimmed, "True")) {
    out = true;
    return true;
  }
  if (equalsText(trimmed, "False")) {
    out = false;
    return true;
  }
  double number = 0;
  if (!parseNumber(trimmed, number)) return false;
  out = number != 0;
  return true;
}

int digits(std::string_view text, size_t at, size_t count) {
  int value = 0;
  for (size_t i = at; i < at + count; ++i) {
    if (text[i] < '0' || text[i] > '9') return -1;
    value = value * 10 + (text[i] - '0');
  }
  return value;
}

// The ISO shapes the store writes, read without the general date reader:
// "YYYY-MM-DD", then optionally " HH:MM" or "THH:MM" and ":SS".
bool readIsoDate(std::string_view text, double& serial) {
  if (text.size() < 10 || text[4] != '-' || text[7] != '-') return false;
  int year = digits(text, 0, 4), month = digits(text, 5, 2), day = digits(text, 8, 2);
  if (year < 100 || month < 1 || month > 12 || day < 1 || day > 31) return false;
  int hour = 0, minute = 0, second = 0;
  if (text.size() > 10) {
    if ((text[10] != ' ' && text[10] != 'T') || text.size() < 16 || text[13] != ':') return false;
    hour = digits(text, 11, 2);
    minute = digits(text, 14, 2);
    if (text.size() >= 19 && text[16] == ':')
      second = digits(text, 17, 2);
    else if (text.size() != 16)
      return false;
    if (text.size() > 19) return false;
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
      return false;
  }
  serial = DateSerial(year, month, day) + TimeSerial(hour, minute, second);
  return true;
}

Variant dateOrText(std::string_view text) {
  double serial = 0;
  if (readIsoDate(text, serial)) return Variant::date(serial);
  std::string owned(text);
  if (parseDate(owned, serial)) return Variant::date(serial);
  return Variant(std::move(owned));
}

// The one conversion behind both readers.
Variant makeVariant(int type, int64_t integer, double real, std::string_view text, FieldKind kind) {
  if (type == SQLITE_NULL) return Variant::null();
  bool isText = type == SQLITE_TEXT || type == SQLITE_BLOB;
  switch (kind) {
    case FieldKind::Long:
    case FieldKind::Double:
      if (isText) return numberOrText(text, kind);
      if (type == SQLITE_INTEGER) {
        return kind == FieldKind::Long ? wholeNumber(integer)
                                       : Variant(static_cast<double>(integer));
      }
      return Variant(real);
    case FieldKind::Boolean:
      if (isText) {
        bool flag = false;
        if (readBoolean(std::string(text), flag)) return Variant(flag);
        return Variant(std::string(text));
      }
      return Variant(type == SQLITE_INTEGER ? integer != 0 : real != 0);
    case FieldKind::Date:
      if (isText) return dateOrText(text);
      return Variant::date(type == SQLITE_INTEGER ? static_cast<double>(integer) : real);
    case FieldKind::Text:
      if (isText) return Variant(std::string(text));
      return Variant(type == SQLITE_INTEGER ? std::to_string(integer) : numberToText(real));
    case FieldKind::Untyped:
      if (isText) return Variant(std::string(text));
      return type == SQLITE_INTEGER ? wholeNumber(integer) : Variant(real);
  }
  return Variant::null();
}

[[noreturn]] void mismatch(const std::string& text, const std::string& fieldName) {
  throw RuntimeError(err::kTypeMismatch, "Type mismatch: \"" + text +
                                             "\" can't be stored in the field " + fieldName + ".");
}

}  // namespace

FieldKind kindOfDeclaredType(const char* declaredType) {
  if (declaredType == nullptr || *declaredType == '\0') return FieldKind::Untyped;
  std::string type = UCase(declaredType);
  if (contains(type, "BOOL") || type == "BIT" || contains(type, "YESNO")) return FieldKind::Boolean;
  if (contains(type, "DATE") || contains(type, "TIME")) return FieldKind::Date;
  if (containsAny(type, {"CHAR", "TEXT", "CLOB", "MEMO", "STRING"})) return FieldKind::Text;
  if (containsAny(type, {"INT", "LONG", "COUNTER"})) return FieldKind::Long;
  if (containsAny(type,
                  {"REAL", "DOUB", "FLOA", "CURRENCY", "MONEY", "NUMERIC", "DECIMAL", "SINGLE"})) {
    return FieldKind::Double;
  }
  return FieldKind::Untyped;
}

Variant columnVariant(sqlite3_stmt* stmt, int i, FieldKind kind) {
  int type = sqlite3_column_type(stmt, i);
  switch (type) {
    case SQLITE_INTEGER:
      return makeVariant(type, sqlite3_column_int64(stmt, i), 0, {}, kind);
    case SQLITE_FLOAT:
      return makeVariant(type, 0, sqlite3_column_double(stmt, i), {}, kind);
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
      const char* text = type == SQLITE_TEXT
                             ? reinterpret_cast<const char*>(sqlite3_column_text(stmt, i))
                             : static_cast<const char*>(sqlite3_column_blob(stmt, i));
      int bytes = sqlite3_column_bytes(stmt, i);
      return makeVariant(type, 0, 0, std::string_view(text ? text : "", text ? bytes : 0), kind);
    }
    default:
      return Variant::null();
  }
}

Variant toVariant(const SqlValue& value, FieldKind kind) {
  return makeVariant(value.type, value.integer, value.real, value.text, kind);
}

SqlValue fromText(const std::string& text, FieldKind kind, const std::string& fieldName) {
  SqlValue value;
  if (kind == FieldKind::Text || kind == FieldKind::Untyped) {
    value.type = SQLITE_TEXT;
    value.text = text;
    return value;
  }
  if (text.empty()) return value;  // Null
  switch (kind) {
    case FieldKind::Boolean: {
      bool flag = false;
      if (!readBoolean(text, flag)) mismatch(text, fieldName);
      value.type = SQLITE_INTEGER;
      value.integer = flag ? 1 : 0;
      return value;
    }
    case FieldKind::Long:
    case FieldKind::Double: {
      double number = 0;
      if (!parseNumber(text, number)) mismatch(text, fieldName);
      if (kind == FieldKind::Long) number = Round(number);
      if (kind == FieldKind::Long && std::fabs(number) < 9.0e18) {
        value.type = SQLITE_INTEGER;
        value.integer = static_cast<int64_t>(number);
      } else {
        value.type = SQLITE_FLOAT;
        value.real = number;
      }
      return value;
    }
    case FieldKind::Date: {
      double serial = 0;
      try {
        serial = CDate(Variant(text));
      } catch (const RuntimeError&) {
        mismatch(text, fieldName);
      }
      value.type = SQLITE_TEXT;
      value.text = isoDate(serial);
      return value;
    }
    default:
      return value;
  }
}

void bindValue(sqlite3_stmt* stmt, int i, const SqlValue& value) {
  switch (value.type) {
    case SQLITE_INTEGER:
      sqlite3_bind_int64(stmt, i, value.integer);
      break;
    case SQLITE_FLOAT:
      sqlite3_bind_double(stmt, i, value.real);
      break;
    case SQLITE_TEXT:
      sqlite3_bind_text(stmt, i, value.text.data(), static_cast<int>(value.text.size()),
                        SQLITE_TRANSIENT);
      break;
    default:
      sqlite3_bind_null(stmt, i);
      break;
  }
}

std::string isoDate(double serial) {
  DateParts parts = splitDate(serial);
  char buffer[32];
  if (parts.hour == 0 && parts.minute == 0 && parts.second == 0) {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", parts.year, parts.month, parts.day);
  } else {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", parts.year, parts.month,
                  parts.day, parts.hour, parts.minute, parts.second);
  }
  return buffer;
}

}  // namespace qb::sqlite
