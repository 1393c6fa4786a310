#include "services/runtime/conversions.h"

#include <cfloat>
#include <charconv>
#include <climits>
#include <cmath>

#include "services/errors/runtime_error.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

[[noreturn]] void typeMismatch() { throw RuntimeError(err::kTypeMismatch, "Type mismatch"); }
[[noreturn]] void invalidUseOfNull() {
  throw RuntimeError(err::kInvalidUseOfNull, "Invalid use of Null");
}
[[noreturn]] void overflow() { throw RuntimeError(err::kOverflow, "Overflow"); }

// What a text reads as: a number, no number at all, or a number too large
// for a Double (an overflow where a conversion asked for it).
enum class Reading { Number, NotNumber, TooLarge };

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads "&H1F" (hex) or "&O17" (octal). As the run-time does, a value that
// fits 16 bits is an Integer and one that fits 32 bits a Long, so "&HFFFF"
// is -1 and "&H8000" is -32768.
Reading readRadix(const std::string& text, double& out) {
  char kind = static_cast<char>(text[1] | 0x20);
  int base = kind == 'h' ? 16 : kind == 'o' ? 8 : 0;
  if (base == 0 || text.size() < 3) return Reading::NotNumber;
  unsigned long long value = 0;
  for (size_t i = 2; i < text.size(); ++i) {
    char c = static_cast<char>(text[i] | 0x20);
    int digit = isDigit(c) ? c - '0' : (c >= 'a' && c <= 'f') ? c - 'a' + 10 : base;
    if (digit >= base) return Reading::NotNumber;
    value = value * base + digit;
    if (value > 0xFFFFFFFFull) return Reading::TooLarge;
  }
  if (value <= 0xFFFF)
    out = static_cast<int16_t>(static_cast<uint16_t>(value));
  else
    out = static_cast<int32_t>(static_cast<uint32_t>(value));
  return Reading::Number;
}

// The platform's reading of a number: blanks around it, a sign, a currency
// "$" before or after the sign, digits with thousands separators, one decimal
// point, an exponent with E or D.
Reading readNumber(const std::string& raw, double& out) {
  size_t begin = 0, end = raw.size();
  while (begin < end && isBlank(raw[begin])) ++begin;
  while (end > begin && isBlank(raw[end - 1])) --end;
  if (begin == end) return Reading::NotNumber;
  std::string text = raw.substr(begin, end - begin);
  if (text[0] == '&') return readRadix(text, out);

  std::string cleaned;
  size_t i = 0;
  if (text[i] == '$') ++i;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) cleaned += text[i++];
  if (i < text.size() && text[i] == '$' && text[0] != '$') ++i;
  bool digits = false, point = false;
  for (; i < text.size(); ++i) {
    char c = text[i];
    if (isDigit(c)) {
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
  if (!digits) return Reading::NotNumber;
  char exponent = i < text.size() ? static_cast<char>(text[i] | 0x20) : '\0';
  if (exponent == 'e' || exponent == 'd') {
    cleaned += 'e';
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) cleaned += text[j++];
    size_t first = j;
    while (j < text.size() && isDigit(text[j])) cleaned += text[j++];
    if (j == first) return Reading::NotNumber;
    i = j;
  }
  if (i != text.size()) return Reading::NotNumber;
  // from_chars reads with "." whatever the process locale says.
  size_t from = cleaned[0] == '+' ? 1 : 0;
  double value = 0;
  std::errc error =
      std::from_chars(cleaned.data() + from, cleaned.data() + cleaned.size(), value).ec;
  if (error == std::errc::result_out_of_range) {
    if (cleaned.find("e-") == std::string::npos) return Reading::TooLarge;
    value = 0;  // too small to tell from zero
  }
  out = value;
  return Reading::Number;
}

double numberFromText(const std::string& text) {
  double number = 0;
  Reading reading = readNumber(text, number);
  if (reading == Reading::TooLarge) overflow();
  if (reading == Reading::NotNumber) typeMismatch();
  return number;
}

// The value of a number type, Boolean (True is -1), Date or numeric text.
double numberOf(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty:
      return 0;
    case VarType::Null:
      invalidUseOfNull();
    case VarType::Boolean:
      return value.rawBool() ? -1 : 0;
    case VarType::Integer:
    case VarType::Long:
      return value.rawInt();
    case VarType::Double:
    case VarType::Date:
      return value.rawDouble();
    case VarType::String:
      return numberFromText(value.rawString());
  }
  typeMismatch();
}

// Rounds half to even, as the run-time does on conversion to an integer.
// value - floor(value) is exact in binary, so only true halves tie.
double roundHalfEven(double value) {
  double floor = std::floor(value);
  double diff = value - floor;
  if (diff > 0.5) return floor + 1;
  if (diff < 0.5) return floor;
  return std::fmod(floor, 2.0) == 0 ? floor : floor + 1;
}

// Serials of 1 January 100 and of the last second of 31 December 9999.
constexpr double kFirstSerial = -657434;
constexpr double kLastSerial = 2958465.99999;

}  // namespace

bool parseNumber(const std::string& text, double& out) {
  return readNumber(text, out) == Reading::Number;
}

bool IsNumeric(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty:
    case VarType::Boolean:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Double:
      return true;
    case VarType::String: {
      double ignored = 0;
      return parseNumber(value.rawString(), ignored);
    }
    case VarType::Null:
    case VarType::Date:
      return false;
  }
  return false;
}

bool isBlankValue(const Variant& value) {
  return value.isNull() || value.isEmpty() || (value.isString() && value.rawString().empty());
}

bool CBool(const Variant& value) {
  switch (value.type()) {
    case VarType::Boolean:
      return value.rawBool();
    case VarType::String: {
      std::string text = Trim(value.rawString());
      if (equalsText(text, "True")) return true;
      if (equalsText(text, "False")) return false;
      return numberFromText(text) != 0;
    }
    default:
      return numberOf(value) != 0;
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
  double serial = 0;
  if (value.isString()) {
    if (!parseDate(value.rawString(), serial)) typeMismatch();
  } else {
    serial = numberOf(value);
  }
  if (!(serial >= kFirstSerial && serial < kLastSerial + 0.00001)) overflow();
  return serial;
}

std::string numberToText(double value) {
  if (value == 0 || std::isnan(value)) return "0";
  // 15 significant digits, the exponent form as "1E+16" and "1E-05"; written
  // with "." whatever the process locale says.
  char buffer[64];
  auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
  std::string text(buffer, end);
  size_t e = text.find('e');
  if (e != std::string::npos) text[e] = 'E';
  return text;
}

std::string CStr(const Variant& value) {
  switch (value.type()) {
    case VarType::Empty:
      return "";
    case VarType::Null:
      invalidUseOfNull();
    case VarType::Boolean:
      return value.rawBool() ? "True" : "False";
    case VarType::Integer:
    case VarType::Long:
      return std::to_string(value.rawInt());
    case VarType::Double:
      return numberToText(value.rawDouble());
    case VarType::String:
      return value.rawString();
    case VarType::Date:
      // A date beyond the years 100 to 9999 is an overflow, as CDate says.
      return dateToText(CDate(value));
  }
  return "";
}

std::string toText(const Variant& value) { return value.isNull() ? std::string() : CStr(value); }

double Round(double value, int decimals) {
  if (decimals < 0) throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
  // A double this large has no fraction left to round.
  if (!std::isfinite(value) || std::fabs(value) >= 4503599627370496.0) return value;
  if (decimals == 0) return roundHalfEven(value);
  // to_chars writes the exact decimal value of the double rounded to the
  // decimals, ties to even: 0.125 is a true half and gives 0.12, while 2.675
  // is stored a hair below its half and gives 2.67.
  char buffer[400];
  auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed,
                           decimals > 300 ? 300 : decimals)
                 .ptr;
  double rounded = 0;
  std::from_chars(buffer, end, rounded);
  return rounded;
}

}  // namespace qb
