#include "services/runtime/conversions.h"

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "services/errors/runtime_error.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr int32_t kInvalidUseOfNull = 94;

[[noreturn]] void typeMismatch() { throw RuntimeError(err::kTypeMismatch, "Type mismatch"); }
[[noreturn]] void invalidUseOfNull() { throw RuntimeError(kInvalidUseOfNull, "Invalid use of Null"); }
[[noreturn]] void overflow() { throw RuntimeError(err::kOverflow, "Overflow"); }

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Reads "&H1F" or "&O17" forms; false when text is not one.
bool parseRadix(const std::string& text, double& out) {
  if (text.size() < 3 || text[0] != '&') return false;
  int base = 0;
  char kind = static_cast<char>(text[1] | 0x20);
  if (kind == 'h') base = 16;
  if (kind == 'o') base = 8;
  if (base == 0) return false;
  errno = 0;
  char* end = nullptr;
  long long value = std::strtoll(text.c_str() + 2, &end, base);
  if (errno != 0 || end == nullptr || *end != '\0') return false;
  out = static_cast<double>(value);
  return true;
}

// The value of a number type, Boolean (True is -1), Date or numeric text.
double numberOf(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty: return 0;
    case VarType::Null: invalidUseOfNull();
    case VarType::Boolean: return value.rawBool() ? -1 : 0;
    case VarType::Integer:
    case VarType::Long: return value.rawInt();
    case VarType::Double:
    case VarType::Date: return value.rawDouble();
    case VarType::String: {
      double number = 0;
      if (!parseNumber(value.rawString(), number)) typeMismatch();
      return number;
    }
  }
  typeMismatch();
}

// Rounds half to even, as the run-time does on conversion to an integer.
double roundHalfEven(double value) {
  double floor = std::floor(value);
  double diff = value - floor;
  if (diff > 0.5) return floor + 1;
  if (diff < 0.5) return floor;
  return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

}  // namespace

bool parseNumber(const std::string& raw, double& out) {
  size_t begin = 0, end = raw.size();
  while (begin < end && isBlank(raw[begin])) ++begin;
  while (end > begin && isBlank(raw[end - 1])) --end;
  if (begin == end) return false;
  std::string text = raw.substr(begin, end - begin);
  if (parseRadix(text, out)) return true;

  // Sign, digits with thousands separators, one decimal point, an exponent.
  std::string cleaned;
  size_t i = 0;
  if (text[i] == '+' || text[i] == '-') cleaned += text[i++];
  bool digits = false, point = false;
  for (; i < text.size(); ++i) {
    char c = text[i];
    if (c >= '0' && c <= '9') {
      cleaned += c;
      digits = true;
    } else if (c == ',' && !point && digits) {
      continue;
    } else if (c == '.' && !point) {
      cleaned += c;
      point = true;
    } else {
      break;
    }
  }
  if (!digits) return false;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
    std::string exponent = "e";
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
    size_t expDigits = 0;
    while (j < text.size() && text[j] >= '0' && text[j] <= '9') {
      exponent += text[j++];
      ++expDigits;
    }
    if (expDigits == 0) return false;
    cleaned += exponent;
    i = j;
  }
  if (i != text.size()) return false;
  errno = 0;
  double value = std::strtod(cleaned.c_str(), nullptr);
  if (errno == ERANGE && std::isinf(value)) return false;
  out = value;
  return true;
}

bool IsNumeric(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty:
    case VarType::Boolean:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double: return true;
    case VarType::String: {
      double ignored = 0;
      return parseNumber(value.rawString(), ignored);
    }
    case VarType::Null:
    case VarType::Date: return false;
  }
  return false;
}

bool isBlankValue(const Variant& value) {
  return value.isNull() || value.isEmpty() || (value.isString() && value.rawString().empty());
}

bool CBool(const Variant& value) {
  switch (value.type()) {
    case VarType::Boolean: return value.rawBool();
    case VarType::String: {
      std::string text = Trim(value.rawString());
      if (equalsText(text, "True")) return true;
      if (equalsText(text, "False")) return false;
      double number = 0;
      if (!parseNumber(text, number)) typeMismatch();
      return number != 0;
    }
    default: return numberOf(value) != 0;
  }
}

int16_t CInt(const Variant& value) {
  double rounded = roundHalfEven(numberOf(value));
  if (!(rounded >= INT16_MIN && rounded <= INT16_MAX)) overflow();
  return static_cast<int16_t>(rounded);
}

int32_t CLng(const Variant& value) {
  double rounded = roundHalfEven(numberOf(value));
  if (!(rounded >= INT32_MIN && rounded <= INT32_MAX)) overflow();
  return static_cast<int32_t>(rounded);
}

float CSng(const Variant& value) {
  double number = numberOf(value);
  if (std::fabs(number) > FLT_MAX) overflow();
  return static_cast<float>(number);
}

double CDbl(const Variant& value) { return numberOf(value); }

double CDate(const Variant& value) {
  if (value.isString()) {
    double serial = 0;
    if (parseDate(value.rawString(), serial)) return serial;
    if (parseNumber(value.rawString(), serial)) return serial;
    typeMismatch();
  }
  return numberOf(value);
}

std::string numberToText(double value) {
  if (value == 0 || std::isnan(value)) return "0";
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15G", value);
  return buffer;
}

std::string CStr(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty: return "";
    case VarType::Null: invalidUseOfNull();
    case VarType::Boolean: return value.rawBool() ? "True" : "False";
    case VarType::Integer:
    case VarType::Long: return std::to_string(value.rawInt());
    case VarType::Double: return numberToText(value.rawDouble());
    case VarType::String: return value.rawString();
    case VarType::Date: return dateToText(value.rawDouble());
  }
  return "";
}

std::string toText(const Variant& value) { return value.isNull() ? std::string() : CStr(value); }

double Round(double value, int decimals) {
  if (decimals < 0) throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
  if (decimals == 0) return roundHalfEven(value);
  double scale = std::pow(10.0, decimals);
  double scaled = value * scale;
  if (std::isinf(scaled)) return value;
  // The scaled value can land a hair off an exact half; read it at 15
  // significant digits so that 0.125 * 100 still counts as a half.
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.15G", scaled);
  double settled = std::strtod(buffer, nullptr);
  return roundHalfEven(settled) / scale;
}

}  // namespace qb
