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

// The serial of a date. Years 0 to 99 stand for 1930 to 2029; a month or day
// out of its range carries over (month 13 is January of the next year, day 0
// the last day of the month before).
double DateSerial(int year, int month, int day);
// The fraction of a day for a time; values out of range carry over.
double TimeSerial(int hour, int minute, int second);
// The parts of a serial, to the nearest second. Below zero the integer part
// still counts the days and the fraction, taken as absolute, is the time:
// -1.25 is 29 December 1899, 6:00.
DateParts splitDate(double serial);
// DateDiff with the interval "n": the minute boundaries crossed from the first
// date to the second, negative when the second is earlier. Seconds do not
// count: 9:00:59 to 9:01:00 is one minute, 9:00:00 to 9:00:59 none.
int64_t DateDiffMinutes(double from, double to);
// The machine's current local date and time.
double Now();
double Today();
// A time_t (seconds since 1970 UTC) as a local date serial.
double fromTimeT(std::time_t t);

// The date as CStr writes it: "11/23/2026", with " 2:05:00 PM" when it has a
// time part; a serial without a day part (day 0, 30 December 1899) as a time
// alone: "2:05:00 PM", "12:00:00 AM".
std::string dateToText(double serial);
// Reads "2026-11-23", "2026-11-23 14:05:00", "2026-11-23T14:05", "11/23/2026",
// "11-23-26", "11/23/2026 2:05 PM", "Nov 23, 2026", "November 23 2026",
// "23 Nov 2026", "2:05 PM", "14:05"; false when the text is none of these or
// names no real date (30 February). Month names are English.
bool parseDate(const std::string& text, double& serial);

}  // namespace qb
