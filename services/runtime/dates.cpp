#include "services/runtime/dates.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "services/runtime/strings.h"

namespace qb {

namespace {

// Days from 1970-01-01 to a civil date (proleptic Gregorian).
long long daysFromCivil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}

void civilFromDays(long long z, int& y, int& m, int& d) {
  z += 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long long yy = static_cast<long long>(yoe) + era * 400;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(yy + (m <= 2));
}

// 1899-12-30, day 0 of the serials, counted from 1970-01-01.
const long long kEpochOffset = daysFromCivil(1899, 12, 30);

const char* const kMonths[] = {"january", "february", "march",     "april",   "may",      "june",
                               "july",    "august",   "september", "october", "november", "december"};

int monthFromName(const std::string& word) {
  std::string lower = LCase(word);
  if (lower.size() < 3) return 0;
  for (int i = 0; i < 12; ++i) {
    if (std::strncmp(kMonths[i], lower.c_str(), lower.size()) == 0) return i + 1;
  }
  return 0;
}

// Splits text into words of digits or letters; other characters separate.
std::vector<std::string> words(const std::string& text) {
  std::vector<std::string> result;
  std::string current;
  auto flush = [&] {
    if (!current.empty()) result.push_back(current);
    current.clear();
  };
  for (char c : text) {
    bool digit = c >= '0' && c <= '9';
    bool letter = (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
    if (!digit && !letter) {
      flush();
      continue;
    }
    if (!current.empty()) {
      bool wasDigit = current.back() >= '0' && current.back() <= '9';
      if (wasDigit != digit) flush();
    }
    current += c;
  }
  flush();
  return result;
}

bool allDigits(const std::string& s) {
  if (s.empty()) return false;
  for (char c : s)
    if (c < '0' || c > '9') return false;
  return true;
}

bool validDate(int y, int m, int d) {
  if (m < 1 || m > 12 || d < 1 || y < 100 || y > 9999) return false;
  static const int kDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (d > kDays[m - 1]) return false;
  if (m == 2 && d == 29) return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
  return true;
}

// Reads the time words from index i: h [m [s]] [am|pm].
bool readTime(const std::vector<std::string>& w, size_t i, double& fraction) {
  std::vector<int> parts;
  int meridiem = 0;  // 1 am, 2 pm
  for (; i < w.size(); ++i) {
    if (allDigits(w[i]) && parts.size() < 3) {
      parts.push_back(std::stoi(w[i]));
    } else if (equalsText(w[i], "am") || equalsText(w[i], "a")) {
      meridiem = 1;
    } else if (equalsText(w[i], "pm") || equalsText(w[i], "p")) {
      meridiem = 2;
    } else if (equalsText(w[i], "t")) {
      continue;
    } else {
      return false;
    }
  }
  if (parts.empty()) return false;
  int h = parts[0], m = parts.size() > 1 ? parts[1] : 0, s = parts.size() > 2 ? parts[2] : 0;
  if (meridiem != 0) {
    if (h < 1 || h > 12) return false;
    h = h % 12 + (meridiem == 2 ? 12 : 0);
  }
  if (h > 23 || m > 59 || s > 59) return false;
  fraction = TimeSerial(h, m, s);
  return true;
}

}  // namespace

double DateSerial(int year, int month, int day) {
  // Months outside 1..12 carry into the year, as the run-time allows.
  int m0 = month - 1;
  year += m0 >= 0 ? m0 / 12 : -((11 - m0) / 12);
  m0 = ((m0 % 12) + 12) % 12;
  long long days = daysFromCivil(year, static_cast<unsigned>(m0 + 1), 1) + (day - 1);
  return static_cast<double>(days - kEpochOffset);
}

double TimeSerial(int hour, int minute, int second) {
  return (hour * 3600.0 + minute * 60.0 + second) / 86400.0;
}

DateParts splitDate(double serial) {
  // The integer part counts days (also below zero); the fraction is the time
  // of day whatever the sign.
  double whole = std::trunc(serial);
  double fraction = std::fabs(serial - whole);
  long long seconds = std::llround(fraction * 86400.0);
  long long day = static_cast<long long>(whole);
  if (seconds >= 86400) {
    seconds -= 86400;
    day += serial >= 0 ? 1 : -1;
  }
  DateParts parts;
  civilFromDays(day + kEpochOffset, parts.year, parts.month, parts.day);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  parts.weekday = static_cast<int>((((day + 6) % 7) + 7) % 7) + 1;
  return parts;
}

double fromTimeT(std::time_t t) {
  std::tm local{};
  localtime_r(&t, &local);
  return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
         TimeSerial(local.tm_hour, local.tm_min, local.tm_sec);
}

double Now() { return fromTimeT(std::time(nullptr)); }

double Today() { return std::floor(Now()); }

std::string dateToText(double serial) {
  DateParts p = splitDate(serial);
  char buffer[64];
  std::string time;
  bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
  if (hasTime) {
    int h12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
    std::snprintf(buffer, sizeof buffer, "%d:%02d:%02d %s", h12, p.minute, p.second,
                  p.hour < 12 ? "AM" : "PM");
    time = buffer;
  }
  if (std::trunc(serial) == 0 && hasTime) return time;
  std::snprintf(buffer, sizeof buffer, "%d/%d/%04d", p.month, p.day, p.year);
  return hasTime ? std::string(buffer) + " " + time : std::string(buffer);
}

bool parseDate(const std::string& text, double& serial) {
  std::vector<std::string> w = words(text);
  if (w.empty()) return false;
  int y = 0, m = 0, d = 0;
  size_t next = 0;
  if (w.size() >= 3 && allDigits(w[0]) && w[0].size() == 4 && allDigits(w[1]) && allDigits(w[2])) {
    y = std::stoi(w[0]), m = std::stoi(w[1]), d = std::stoi(w[2]);  // 2026-11-23
    next = 3;
  } else if (w.size() >= 3 && allDigits(w[0]) && allDigits(w[1]) && allDigits(w[2]) &&
             text.find('/') != std::string::npos) {
    m = std::stoi(w[0]), d = std::stoi(w[1]), y = std::stoi(w[2]);  // 11/23/2026
    if (w[2].size() <= 2) y += y < 30 ? 2000 : 1900;
    next = 3;
  } else if (w.size() >= 3 && monthFromName(w[0]) && allDigits(w[1]) && allDigits(w[2])) {
    m = monthFromName(w[0]), d = std::stoi(w[1]), y = std::stoi(w[2]);  // Nov 23, 2026
    next = 3;
  } else if (w.size() >= 3 && allDigits(w[0]) && monthFromName(w[1]) && allDigits(w[2])) {
    d = std::stoi(w[0]), m = monthFromName(w[1]), y = std::stoi(w[2]);  // 23 Nov 2026
    next = 3;
  } else {
    double fraction = 0;
    if (text.find(':') == std::string::npos || !readTime(w, 0, fraction)) return false;
    serial = fraction;
    return true;
  }
  if (!validDate(y, m, d)) return false;
  double fraction = 0;
  if (next < w.size() && !readTime(w, next, fraction)) return false;
  serial = DateSerial(y, m, d) + fraction;
  return true;
}

}  // namespace qb
