#pragma once
// Date serials as the platform keeps them: days since 30 December 1899 as a
// double, the fraction being the time of day. Helpers to build and take apart.

#include <cstdint>
#include <ctime>
#include <string>

namespace qb {

struct DateParts {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
  int weekday = 0;  // 1 Sunday .. 7 Saturday
};

double DateSerial(int year, int month, int day);
double TimeSerial(int hour, int minute, int second);
DateParts splitDate(double serial);
// The machine's current local date and time.
double Now();
double Today();
// A time_t (seconds since 1970 UTC) as a local date serial.
double fromTimeT(std::time_t t);

// The date as CStr writes it: "11/23/2026", with " 2:05:00 PM" when it has a
// time part; a time alone (serial below 1) as "2:05:00 PM".
std::string dateToText(double serial);
// Reads "2026-11-23", "2026-11-23 14:05:00", "2026-11-23T14:05", "11/23/2026",
// "11/23/2026 2:05 PM", "Nov 23, 2026", "November 23 2026", "2:05 PM"; false
// when the text is none of these.
bool parseDate(const std::string& text, double& serial);

}  // namespace qb
