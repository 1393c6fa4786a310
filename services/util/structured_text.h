#pragma once
// Text for other programs to read: fields of comma-separated values and
// strings of JSON, from the system's UTF-8 text.

#include <string>

namespace qb {

// A field of a CSV record: as it is when it holds no comma, double quote,
// carriage return or line feed; else in double quotes, with its double
// quotes doubled.
std::string csvField(const std::string& text);

// A JSON string, quotes included: the quote, the backslash and the control
// characters escaped; other characters as they are. A byte that is not part
// of a well-formed UTF-8 character (a file name in another encoding) becomes
// U+FFFD, so the result is always valid JSON.
std::string jsonString(const std::string& text);

}  // namespace qb
