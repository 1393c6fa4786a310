#pragma once
// The run-time's conversions, with the platform's rules:
//  - text converts to a number when it reads as one ("  12 ", "1.5", "-3",
//    "1e3", "1,234", "$12.50", "&H1F"); otherwise the conversion fails with a
//    type mismatch, and a number beyond the range of a Double with an overflow;
//  - conversion to an integer rounds half to even (banker's rounding) and a
//    value outside the target's range fails with an overflow;
//  - a number converts to Boolean as True when it is not zero; the texts
//    "True" and "False" (any case) convert too;
//  - Null converts to nothing: every conversion of Null fails with "Invalid
//    use of Null" (94); toText is the one conversion that lets it through;
//  - Empty converts to 0, "" and False.
// Failures are RuntimeError exceptions (errors/runtime_error.h).

#include <cstdint>
#include <string>

#include "services/runtime/variant.h"

namespace qb {

namespace err {
constexpr int32_t kInvalidUseOfNull = 94;  // a conversion of Null
}  // namespace err

// True when the value converts to a number: a number type, a Boolean, Empty,
// or text that reads as a number. Null, "", a Date value and date-looking
// text are not numeric.
bool IsNumeric(const Variant& value);

// True for a Variant that is Null, Empty or a string with nothing in it.
// The one blank test of the system. A string of blanks is not blank.
bool isBlankValue(const Variant& value);

// Booleans: any number not zero is True; "True"/"False" in any case.
bool CBool(const Variant& value);
// Integers round half to even; outside -32768..32767 (CInt) or the 32-bit
// range (CLng) the conversion fails with an overflow.
int16_t CInt(const Variant& value);
int32_t CLng(const Variant& value);
float CSng(const Variant& value);
double CDbl(const Variant& value);
// Dates convert from a Date, a number (the serial) or a text that parseDate
// reads ("2026-11-23", "2026-11-23 14:05:00", "11/23/2026", "Nov 23, 2026").
// Other text fails with a type mismatch; a serial outside the years 100 to
// 9999 with an overflow.
double CDate(const Variant& value);
// Text of the value as the platform writes it: numbers in their shortest form
// ("1.5", "0", "1", "-2.25"), Booleans "True"/"False", dates as "m/d/yyyy" plus
// " h:nn:ss AM" when there is a time part, Empty "". Null fails with "Invalid
// use of Null", as the platform's CStr does; a date beyond the years 100 to
// 9999 with an overflow.
std::string CStr(const Variant& value);
// Like CStr, but Null gives "" (the plain conversion the system uses when it
// shows a string column as it stands).
std::string toText(const Variant& value);

// Number to text as the platform writes it: 15 significant digits, "1.5",
// "0", "1", "-0.25", "0.3" for 0.1 + 0.2; "1E+16" for large values and
// "1E-05" for tiny ones.
std::string numberToText(double value);

// Round half to even to the given number of decimals (the run-time's Round).
// Round(2.5) is 2, Round(3.5) is 4, Round(0.125, 2) is 0.12. A value that is
// not an exact half goes the way its double says: 2.675 is a hair below the
// half, so Round(2.675, 2) is 2.67, and Round(1.005, 2) is 1. Negative
// decimals fail with "Invalid procedure call or argument".
double Round(double value, int decimals = 0);

// Parses text as a number with the platform's rules; false when it is not one
// (also when it is beyond the range of a Double).
bool parseNumber(const std::string& text, double& out);

}  // namespace qb
