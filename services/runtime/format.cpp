#include "services/runtime/format.h"

#include <langinfo.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

// ---- names from the machine's locale ------------------------------------

std::string monthName(int month, bool full) {
  static const nl_item kFull[] = {MON_1, MON_2, MON_3, MON_4,  MON_5,  MON_6,
                                  MON_7, MON_8, MON_9, MON_10, MON_11, MON_12};
  static const nl_item kShort[] = {ABMON_1, ABMON_2, ABMON_3, ABMON_4,  ABMON_5,  ABMON_6,
                                   ABMON_7, ABMON_8, ABMON_9, ABMON_10, ABMON_11, ABMON_12};
  return nl_langinfo(full ? kFull[month - 1] : kShort[month - 1]);
}

std::string dayName(int weekday, bool full) {
  static const nl_item kFull[] = {DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7};
  static const nl_item kShort[] = {ABDAY_1, ABDAY_2, ABDAY_3, ABDAY_4, ABDAY_5, ABDAY_6, ABDAY_7};
  return nl_langinfo(full ? kFull[weekday - 1] : kShort[weekday - 1]);
}

std::string twoDigits(int value) {
  int last = value % 100 < 0 ? -(value % 100) : value % 100;
  return {static_cast<char>('0' + last / 10), static_cast<char>('0' + last % 10)};
}

// ---- date patterns -------------------------------------------------------

enum class Tok {
  Literal,
  Day,
  Month,
  MonthOrMinute,
  Year,
  Hour,
  Minute,
  Second,
  AmPm,
  Quarter,
  Week
};

bool isDateLetter(char c) {
  char lower = static_cast<char>(c | 0x20);
  return lower == 'd' || lower == 'm' || lower == 'y' || lower == 'h' || lower == 'n' ||
         lower == 's' || lower == 'q' || lower == 'w';
}

struct Token {
  Tok kind;
  int count = 0;     // letters in the run (d, dd, ddd, ...)
  std::string text;  // literal text, or the am/pm pattern as written
};

bool startsWithText(const std::string& s, size_t at, const char* word) {
  size_t n = std::char_traits<char>::length(word);
  if (at + n > s.size()) return false;
  for (size_t k = 0; k < n; ++k)
    if ((s[at + k] | 0x20) != (word[k] | 0x20)) return false;
  return true;
}

std::vector<Token> tokenizeDate(const std::string& pattern) {
  std::vector<Token> tokens;
  tokens.reserve(pattern.size());
  auto literal = [&](std::string_view text) {
    if (!tokens.empty() && tokens.back().kind == Tok::Literal)
      tokens.back().text += text;
    else
      tokens.push_back({Tok::Literal, 0, std::string(text)});
  };
  const std::string_view whole(pattern);
  for (size_t i = 0; i < pattern.size();) {
    char c = pattern[i];
    char lower = static_cast<char>(c | 0x20);
    if (c == '"') {
      size_t end = pattern.find('"', i + 1);
      if (end == std::string::npos) end = pattern.size();
      literal(whole.substr(i + 1, end - i - 1));
      i = end + 1;
    } else if (c == '\\' && i + 1 < pattern.size()) {
      literal(whole.substr(i + 1, 1));
      i += 2;
    } else if (startsWithText(pattern, i, "am/pm")) {
      tokens.push_back({Tok::AmPm, 5, pattern.substr(i, 5)});
      i += 5;
    } else if (startsWithText(pattern, i, "a/p")) {
      tokens.push_back({Tok::AmPm, 3, pattern.substr(i, 3)});
      i += 3;
    } else if (isDateLetter(c)) {
      size_t j = i;
      while (j < pattern.size() && (pattern[j] | 0x20) == lower) ++j;
      int count = static_cast<int>(j - i);
      Tok kind = lower == 'd'   ? Tok::Day
                 : lower == 'm' ? (count <= 2 ? Tok::MonthOrMinute : Tok::Month)
                 : lower == 'y' ? Tok::Year
                 : lower == 'h' ? Tok::Hour
                 : lower == 'n' ? Tok::Minute
                 : lower == 's' ? Tok::Second
                 : lower == 'q' ? Tok::Quarter
                                : Tok::Week;
      tokens.push_back({kind, count, ""});
      i = j;
    } else {
      size_t length = 1;
      while (i + length < pattern.size() &&
             (static_cast<unsigned char>(pattern[i + length]) & 0xC0) == 0x80)
        ++length;
      literal(whole.substr(i, length));
      i += length;
    }
  }
  // "m" or "mm" right after an hour, or right before a second, is a minute.
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != Tok::MonthOrMinute) continue;
    Tok before = Tok::Literal, after = Tok::Literal;
    for (size_t k = i; k-- > 0;)
      if (tokens[k].kind != Tok::Literal) {
        before = tokens[k].kind;
        break;
      }
    for (size_t k = i + 1; k < tokens.size(); ++k)
      if (tokens[k].kind != Tok::Literal) {
        after = tokens[k].kind;
        break;
      }
    tokens[i].kind = (before == Tok::Hour || after == Tok::Second) ? Tok::Minute : Tok::Month;
  }
  return tokens;
}

bool isDatePattern(const std::string& pattern) {
  bool inQuote = false;
  bool dateLetter = false;
  for (size_t i = 0; i < pattern.size(); ++i) {
    char c = pattern[i];
    if (c == '"') inQuote = !inQuote;
    if (inQuote) continue;
    if (c == '\\') {
      ++i;
      continue;
    }
    if (c == '#' || c == '0') return false;
    if (isDateLetter(c)) dateLetter = true;
  }
  return dateLetter;
}

std::string formatDate(double serial, const std::string& pattern);

// Day of the year, 1 for 1 January.
int dayOfYear(const DateParts& p) {
  return static_cast<int>(DateSerial(p.year, p.month, p.day) - DateSerial(p.year, 1, 1)) + 1;
}

std::string digitsOf(int value, int count) {
  return count == 1 ? std::to_string(value) : twoDigits(value);
}

void appendDateToken(const Token& t, double serial, const DateParts& p, bool twelveHour,
                     std::string& out) {
  switch (t.kind) {
    case Tok::Literal:
      out += t.text;
      break;
    case Tok::Day:
      if (t.count <= 2)
        out += digitsOf(p.day, t.count);
      else if (t.count <= 4)
        out += dayName(p.weekday, t.count == 4);
      else
        out += formatDate(serial, t.count == 5 ? "m/d/yyyy" : "dddd, mmmm d, yyyy");
      break;
    case Tok::Month:
    case Tok::MonthOrMinute:
      if (t.count <= 2)
        out += digitsOf(p.month, t.count);
      else
        out += monthName(p.month, t.count >= 4);
      break;
    case Tok::Year:
      if (t.count == 1)
        out += std::to_string(dayOfYear(p));
      else if (t.count <= 3)
        out += twoDigits(p.year);
      else
        out += std::to_string(p.year);
      break;
    case Tok::Hour: {
      int hour = twelveHour ? (p.hour % 12 == 0 ? 12 : p.hour % 12) : p.hour;
      out += digitsOf(hour, t.count);
      break;
    }
    case Tok::Minute:
      out += digitsOf(p.minute, t.count);
      break;
    case Tok::Second:
      out += digitsOf(p.second, t.count);
      break;
    case Tok::Quarter:
      out += std::to_string((p.month - 1) / 3 + 1);
      break;
    case Tok::Week: {
      // "w" is the weekday (1 Sunday), "ww" the week of the year, the first
      // week being the one of 1 January.
      if (t.count == 1) {
        out += std::to_string(p.weekday);
      } else {
        int firstWeekday = splitDate(DateSerial(p.year, 1, 1)).weekday;
        out += std::to_string((dayOfYear(p) - 1 + firstWeekday - 1) / 7 + 1);
      }
      break;
    }
    case Tok::AmPm: {
      // The marker takes the case written in the pattern: am/pm, AM/PM, a/p.
      bool pm = p.hour >= 12;
      const std::string& w = t.text;
      if (t.count == 5)
        out += pm ? w.substr(3, 2) : w.substr(0, 2);
      else
        out += pm ? w.substr(2, 1) : w.substr(0, 1);
      break;
    }
  }
}

std::string formatDate(double serial, const std::string& pattern) {
  std::vector<Token> tokens = tokenizeDate(pattern);
  bool twelveHour = false;
  for (const Token& t : tokens)
    if (t.kind == Tok::AmPm) twelveHour = true;
  DateParts p = splitDate(serial);
  std::string out;
  out.reserve(pattern.size() + 16);
  for (const Token& t : tokens) appendDateToken(t, serial, p, twelveHour, out);
  return out;
}

// ---- number patterns -----------------------------------------------------

std::vector<std::string> sections(const std::string& pattern) {
  std::vector<std::string> result(1);
  bool inQuote = false;
  for (size_t i = 0; i < pattern.size(); ++i) {
    char c = pattern[i];
    if (c == '"') inQuote = !inQuote;
    if (c == '\\' && i + 1 < pattern.size()) {
      result.back() += pattern.substr(i, 2);
      ++i;
      continue;
    }
    if (c == ';' && !inQuote)
      result.emplace_back();
    else
      result.back() += c;
  }
  return result;
}

// Literal text of a stretch of pattern: quotes and backslashes resolved.
std::string literalText(const std::string& text, bool& percent) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '"') {
      size_t end = text.find('"', i + 1);
      if (end == std::string::npos) end = text.size();
      out += text.substr(i + 1, end - i - 1);
      i = end;
    } else if (c == '\\' && i + 1 < text.size()) {
      out += text[++i];
    } else {
      if (c == '%') percent = true;
      out += c;
    }
  }
  return out;
}

std::string formatNumberSection(double value, const std::string& section) {
  // prefix | digits block | suffix
  size_t first = section.find_first_of("0#.");
  size_t last = section.find_last_of("0#.");
  if (first == std::string::npos) {
    bool percent = false;
    return literalText(section, percent);
  }
  // Placeholders inside quotes are literals: keep it simple, quotes only in
  // the prefix and suffix.
  bool percent = false;
  std::string prefix = literalText(section.substr(0, first), percent);
  std::string suffix = literalText(section.substr(last + 1), percent);
  std::string block = section.substr(first, last - first + 1);
  if (percent) value *= 100;

  size_t point = block.find('.');
  std::string integerPart = point == std::string::npos ? block : block.substr(0, point);
  std::string decimalPart = point == std::string::npos ? "" : block.substr(point + 1);
  int minInteger = 0;
  for (char c : integerPart) minInteger += c == '0';
  bool grouping = integerPart.find(',') != std::string::npos;
  int minDecimals = 0, maxDecimals = 0;
  for (char c : decimalPart) {
    if (c == '0') ++minDecimals, ++maxDecimals;
    if (c == '#') ++maxDecimals;
  }

  // Format rounds half away from zero, unlike Round, on the value read at 15
  // significant digits (so 0.125 * 100 still counts as a half).
  double scaled = std::fabs(value) * std::pow(10.0, maxDecimals);
  char text[400];
  auto end = std::to_chars(text, text + sizeof text, scaled, std::chars_format::general, 15).ptr;
  double settled = 0;
  std::from_chars(text, end, settled);
  end =
      std::to_chars(text, text + sizeof text, std::round(settled), std::chars_format::fixed, 0).ptr;
  std::string digits(text, end);
  if (static_cast<int>(digits.size()) <= maxDecimals)
    digits.insert(0, static_cast<size_t>(maxDecimals) - digits.size() + 1, '0');
  std::string whole = digits.substr(0, digits.size() - maxDecimals);
  std::string fraction = digits.substr(digits.size() - maxDecimals);
  while (static_cast<int>(fraction.size()) > minDecimals && !fraction.empty() &&
         fraction.back() == '0')
    fraction.pop_back();
  // Leading zeros of the whole part only as far as the pattern asks.
  size_t nonZero = whole.find_first_not_of('0');
  whole = nonZero == std::string::npos ? "" : whole.substr(nonZero);
  if (static_cast<int>(whole.size()) < minInteger)
    whole.insert(0, static_cast<size_t>(minInteger) - whole.size(), '0');
  if (grouping && whole.size() > 3) {
    std::string grouped;
    int count = 0;
    for (size_t k = whole.size(); k-- > 0;) {
      grouped.insert(grouped.begin(), whole[k]);
      if (++count % 3 == 0 && k > 0) grouped.insert(grouped.begin(), ',');
    }
    whole = grouped;
  }
  std::string number = whole;
  if (point != std::string::npos && (!fraction.empty() || minDecimals > 0))
    number += "." + fraction;
  else if (point != std::string::npos && maxDecimals == 0)
    number += ".";
  return prefix + number + suffix;
}

std::string formatNumber(double value, const std::string& pattern) {
  std::vector<std::string> parts = sections(pattern);
  if (value < 0 && parts.size() >= 2 && !parts[1].empty())
    return formatNumberSection(value, parts[1]);
  if (value == 0 && parts.size() >= 3 && !parts[2].empty())
    return formatNumberSection(value, parts[2]);
  std::string text = formatNumberSection(value, parts[0]);
  return value < 0 ? "-" + text : text;
}

}  // namespace

std::string Format(const Variant& value, const std::string& pattern) {
  if (value.isNull() || value.isEmpty()) return "";
  if (pattern.empty()) return CStr(value);
  if (isDatePattern(pattern)) {
    double serial = 0;
    if (!value.isString()) {
      serial = CDbl(value);
    } else if (!parseDate(value.rawString(), serial) && !parseNumber(value.rawString(), serial)) {
      return value.rawString();
    }
    return formatDate(CDate(Variant(serial)), pattern);
  }
  double number = 0;
  if (value.isString()) {
    if (!parseNumber(value.rawString(), number)) return value.rawString();
  } else {
    number = CDbl(value);
  }
  return formatNumber(number, pattern);
}

}  // namespace qb
