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

const char* const kMonths[] = {"january",   "february", "march",    "april",
                               "may",       "june",     "july",     "august",
                               "september", "october",  "november", "december"};

// A month name or its abbreviation of three letters or more ("Nov", "Sept");
// 0 when the word is none.
int monthFromName(const std::string& word) {
  std::string lower = LCase(word);
  if (lower.size() < 3) return 0;
  for (int i = 0; i < 12; ++i) {
    if (std::strncmp(kMonths[i], lower.c_str(), lower.size()) == 0) return i + 1;
  }
  return 0;
}

bool validDate(int y, int m, int d) {
  if (m < 1 || m > 12 || d < 1 || y < 100 || y > 9999) return false;
  static const int kDays[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (d > kDays[m - 1]) return false;
  if (m == 2 && d == 29) return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
  return true;
}

// Two-digit years fall in 1930 to 2029, as the run-time reads them.
int fullYear(int year, size_t digits) {
  if (digits > 2) return year;
  return year + (year < 30 ? 2000 : 1900);
}

// The text of a date in pieces: runs of digits, runs of letters, and the
// characters between them. Blanks and commas between pieces count as one
// blank separator.
class DateScanner {
 public:
  enum class Kind { Number, Word, Separator, End };
  struct Piece {
    Kind kind;
    std::string text;
  };

  explicit DateScanner(const std::string& text) {
    for (size_t i = 0; i < text.size();) {
      char c = text[i];
      size_t j = i + 1;
      if (isDigitChar(c)) {
        while (j < text.size() && isDigitChar(text[j])) ++j;
        pieces_.push_back({Kind::Number, text.substr(i, j - i)});
      } else if (isLetter(c)) {
        while (j < text.size() && isLetter(text[j])) ++j;
        pieces_.push_back({Kind::Word, text.substr(i, j - i)});
      } else if (c == ' ' || c == ',' || c == '\t') {
        while (j < text.size() && (text[j] == ' ' || text[j] == ',' || text[j] == '\t')) ++j;
        pieces_.push_back({Kind::Separator, " "});
      } else {
        pieces_.push_back({Kind::Separator, std::string(1, c)});
      }
      i = j;
    }
    // Blanks around the whole text do not count.
    if (!pieces_.empty() && pieces_.back().text == " ") pieces_.pop_back();
    if (!pieces_.empty() && pieces_.front().text == " ") at_ = 1;
  }

  const Piece& peek(size_t ahead = 0) const {
    static const Piece kEnd{Kind::End, ""};
    return at_ + ahead < pieces_.size() ? pieces_[at_ + ahead] : kEnd;
  }
  bool atEnd() const { return at_ >= pieces_.size(); }
  void skip(size_t count = 1) { at_ += count; }

  // Takes a number of at most maxDigits digits.
  bool number(int& value, size_t maxDigits, size_t* digits = nullptr) {
    const Piece& p = peek();
    if (p.kind != Kind::Number || p.text.size() > maxDigits) return false;
    value = std::stoi(p.text);
    if (digits != nullptr) *digits = p.text.size();
    skip();
    return true;
  }
  // Takes a separator that is one of the characters given.
  bool separator(const char* allowed, char* taken = nullptr) {
    const Piece& p = peek();
    if (p.kind != Kind::Separator || std::strchr(allowed, p.text[0]) == nullptr) return false;
    if (taken != nullptr) *taken = p.text[0];
    skip();
    return true;
  }
  bool month(int& value) {
    const Piece& p = peek();
    if (p.kind != Kind::Word || (value = monthFromName(p.text)) == 0) return false;
    skip();
    separator(".");
    return true;
  }

 private:
  static bool isDigitChar(char c) { return c >= '0' && c <= '9'; }
  static bool isLetter(char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }

  std::vector<Piece> pieces_;
  size_t at_ = 0;
};

// The date part: "2026-11-23", "2026/11/23", "11/23/2026", "11-23-26",
// "Nov 23, 2026", "November 23 2026", "23 Nov 2026", "23-Nov-2026".
bool readDatePart(DateScanner& in, int& y, int& m, int& d) {
  size_t digits = 0;
  int first = 0;
  char sep = 0;
  auto year = [&] {
    if (!in.number(y, 4, &digits)) return false;
    y = fullYear(y, digits);
    return true;
  };
  if (in.month(m)) {
    in.separator(" -");
    return in.number(d, 2) && in.separator(" -") && year();
  }
  if (!in.number(first, 4, &digits)) return false;
  if (digits == 4) {
    y = first;
    return in.separator("-/", &sep) && in.number(m, 2) &&
           in.separator(std::string(1, sep).c_str()) && in.number(d, 2);
  }
  d = first;
  bool named = in.peek().kind == DateScanner::Kind::Word ||
               (in.peek().kind == DateScanner::Kind::Separator &&
                in.peek(1).kind == DateScanner::Kind::Word);
  if (named) {
    in.separator(" -");
    return in.month(m) && (in.separator(" -"), year());
  }
  m = first;
  return in.separator("/-", &sep) && in.number(d, 2) && in.separator(std::string(1, sep).c_str()) &&
         year();
}

// The time part: "14:05", "14:05:00", "14:05:00.250", "2:05 PM", "2 pm".
bool readTimePart(DateScanner& in, double& fraction) {
  int h = 0, m = 0, s = 0, ignored = 0;
  if (!in.number(h, 2)) return false;
  bool colon = in.separator(":");
  if (colon && !in.number(m, 2)) return false;
  if (colon && in.separator(":")) {
    if (!in.number(s, 2)) return false;
    if (in.separator(".") && !in.number(ignored, 9)) return false;  // parts of a second
  }
  in.separator(" ");
  int meridiem = 0;  // 1 am, 2 pm
  if (in.peek().kind == DateScanner::Kind::Word) {
    std::string word = LCase(in.peek().text);
    if (word == "am" || word == "a")
      meridiem = 1;
    else if (word == "pm" || word == "p")
      meridiem = 2;
    else
      return false;
    in.skip();
  }
  if (!in.atEnd() || (!colon && meridiem == 0)) return false;
  if (meridiem != 0) {
    if (h > 12) return false;
    h = h % 12 + (meridiem == 2 ? 12 : 0);
  }
  if (h > 23 || m > 59 || s > 59) return false;
  fraction = TimeSerial(h, m, s);
  return true;
}

}  // namespace

double DateSerial(int year, int month, int day) {
  // Years 0 to 99 stand for 1930 to 2029; months outside 1..12 carry into
  // the year and days outside the month into the months, as the run-time
  // allows.
  if (year >= 0 && year <= 99) year = fullYear(year, 2);
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

namespace {

// Whole minutes from the start of the serials to the minute a serial is in.
int64_t minuteOf(double serial) {
  DateParts p = splitDate(serial);
  long long day =
      daysFromCivil(p.year, static_cast<unsigned>(p.month), static_cast<unsigned>(p.day));
  return static_cast<int64_t>(day - kEpochOffset) * 1440 + p.hour * 60 + p.minute;
}

}  // namespace

int64_t DateDiffMinutes(double from, double to) { return minuteOf(to) - minuteOf(from); }

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
  // Day 0 is no date at all: the value is a time of day, midnight included.
  if (p.year == 1899 && p.month == 12 && p.day == 30) return hasTime ? time : "12:00:00 AM";
  std::snprintf(buffer, sizeof buffer, "%d/%d/%04d", p.month, p.day, p.year);
  return hasTime ? std::string(buffer) + " " + time : std::string(buffer);
}

bool parseDate(const std::string& text, double& serial) {
  DateScanner in(text);
  int y = 0, m = 0, d = 0;
  double fraction = 0;
  if (!readDatePart(in, y, m, d)) {
    DateScanner timeOnly(text);
    if (!readTimePart(timeOnly, fraction)) return false;
    serial = fraction;
    return true;
  }
  if (!validDate(y, m, d)) return false;
  if (!in.atEnd()) {
    bool t = in.peek().kind == DateScanner::Kind::Word && equalsText(in.peek().text, "T");
    if (!t && !in.separator(" ")) return false;
    if (t) in.skip();
    if (!readTimePart(in, fraction)) return false;
  }
  serial = DateSerial(y, m, d) + fraction;
  return true;
}

}  // namespace qb
