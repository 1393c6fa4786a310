#pragma once
// The run-time's Format for the date, time and number patterns the system
// uses, with the letter codes as the platform reads them:
//   d dd ddd dddd   day, day with zero, short weekday, full weekday
//   ddddd dddddd    the whole date as "m/d/yyyy" and "dddd, mmmm d, yyyy"
//   m mm mmm mmmm   month, with zero, short name, full name; m or mm right
//                   after an hour or right before a second is a minute
//   y yy yyyy       day of the year, two- and four-digit year
//   q w ww          quarter, weekday number (1 Sunday), week of the year
//   h hh n nn N Nn s ss   hour, minute (n or N), second
//   am/pm AM/PM a/p A/P   12-hour clock with the marker in the case given
//   # 0 , . %  ;    number digits, grouping, decimals, percent,
//                   positive;negative;zero sections
//   "$" and any other character stands for itself; "..." and \x quote.
// Letters are read in any case. Numbers round half away from zero, unlike
// Round. Month and day names come from the machine's locale (English under C).
//
// Patterns in use: "mmm d, yyyy", "mmmm d, yyyy", "h:Nn am/pm",
// "m/d/yy  h:nn am/pm", "ddd, mmm d yyyy  h:nn am/pm", "$#,##0.00;$-#,##0.00",
// "dd/mmm/yy" and the fourteen merge date formats ("dddd, mmmm d yyyy", ...).

#include <string>

#include "services/runtime/variant.h"

namespace qb {

// Formats the value with the pattern. A pattern with date letters and no digit
// placeholders is a date pattern: a number is read as a date serial, a text
// as a date (or, when it is numeric, as a serial). Other patterns are number
// patterns for numbers, dates (their serial) and numeric text. A text that
// fits neither is returned as it stands. Null and Empty give ""; an empty
// pattern gives CStr of the value. A serial outside the years 100 to 9999
// fails with an overflow.
std::string Format(const Variant& value, const std::string& pattern);

}  // namespace qb
