#pragma once
// The run-time's string functions over UTF-8 text. Positions and lengths count
// characters (code points), 1-based as the platform counts them: "«" is one
// character. Case-insensitive comparison folds ASCII and Latin-1 letters
// (é/É, ç/Ç, ...) without breaking multi-byte characters.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qb {

enum class CompareMode { Binary, Text };

// Number of characters (code points).
int32_t Len(const std::string& text);
// The first or last count characters, the whole text when it is shorter. A
// negative count fails with "Invalid procedure call or argument" (5).
std::string Left(const std::string& text, int32_t count);
std::string Right(const std::string& text, int32_t count);
// Mid(text, start) to the end and Mid(text, start, count), start from 1; ""
// when start is past the end. A start below 1 or a count below -1 fails
// with error 5.
std::string Mid(const std::string& text, int32_t start, int32_t count = -1);

// Cut blanks (spaces only, not tabs or line breaks) on both sides, the left
// or the right.
std::string Trim(const std::string& text);
std::string LTrim(const std::string& text);
std::string RTrim(const std::string& text);
// Upper and lower case of the Latin letters (ASCII, Latin-1: é/É); other
// characters stay as they are.
std::string UCase(const std::string& text);
std::string LCase(const std::string& text);

// Position (1-based, in characters) of find in text at or after start, 0 when
// absent or when start is past the end. An empty find gives start when start
// is within text. A start below 1 fails with error 5.
int32_t InStr(int32_t start, const std::string& text, const std::string& find,
              CompareMode mode = CompareMode::Binary);
inline int32_t InStr(const std::string& text, const std::string& find,
                     CompareMode mode = CompareMode::Binary) {
  return InStr(1, text, find, mode);
}

// Byte offset of the first occurrence of find in text at or after the byte
// offset from (a character boundary), compared as the Text compare of InStr
// compares; npos when there is none. An empty find gives from.
size_t findText(std::string_view text, std::string_view find, size_t from = 0);

// True when find stands in text at the byte offset at (a character
// boundary), compared as the Text compare does.
bool matchesTextAt(std::string_view text, size_t at, std::string_view find);

// Replaces every occurrence of find by replacement, left to right, without
// rescanning the replacement.
std::string Replace(const std::string& text, const std::string& find,
                    const std::string& replacement, CompareMode mode = CompareMode::Binary);

// Equal ignoring case (the Text compare of the platform).
bool equalsText(const std::string& a, const std::string& b);

// The pieces of text between delimiters: "a||b" gives "a", "", "b". An empty
// text gives no pieces, an empty delimiter the whole text as one.
std::vector<std::string> Split(const std::string& text, const std::string& delimiter);

// Text in the Windows-1252 code page as RTF escapes: ASCII stays, every other
// character becomes \'hh when code page 1252 has it (€ is \'80, é \'e9), else
// \uN? (N signed 16-bit; a character beyond 16 bits as its surrogate pair).
// Backslashes and braces are not escaped: the text may already hold control
// words.
std::string toRtfEscapes(const std::string& utf8);

}  // namespace qb
