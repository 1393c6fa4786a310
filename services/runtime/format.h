#pragma once
// The run-time's Format for the date, time and number patterns the system
// uses, with the letter codes as the platform reads them:
//   d dd ddd dddd   day, day with zero, short weekday, full weekday
//   m mm mmm mmmm   month, with zero, short name, full name (m after h is a minute)
//   yy yyyy         two- and four-digit year
//   h hh n nn N Nn s ss   hour, minute (n or N), second
//   am/pm AM/PM a/p A/P   12-hour clock with the marker in the case given
//   # 0 , .  ;      number digits, grouping, decimals, positive;negative sections
//   "$" and any other character stands for itself; \x quotes one character.
// Month and day names come from the machine's locale (English under C).
//
// Patterns in use: "mmm d, yyyy", "mmmm d, yyyy", "h:Nn am/pm",
// "m/d/yy  h:nn am/pm", "ddd, mmm d yyyy  h:nn am/pm", "$#,##0.00;$-#,##0.00",
// "dd/mmm/yy" and the fourteen merge date formats ("dddd, mmmm d yyyy", ...).

#include <string>

#include "services/runtime/variant.h"

namespace qb {

// Formats the value with the pattern. Dates take date patterns; numbers and
// numeric text take number patterns; a date pattern applied to a number reads
// the number as a date serial. An empty pattern gives CStr of the value.
// Null and Empty give "". A text that is neither number nor date is returned
// as it stands.
std::string Format(const Variant& value, const std::string& pattern);

}  // namespace qb
