#pragma once
// The pieces of RTF that the address blocks and contact summaries share.
//
// Where stored values are escaped: the system's own control words (\par, \b,
// the label indents, the header) are written as they stand; a value read from
// the store is escaped once, at the point where it is appended to text that
// will be RTF, by storedText(): "\", "{" and "}" become "\\", "\{" and "\}",
// and every character outside ASCII becomes an RTF escape of code page 1252
// (the header declares it). convertToRTF also turns characters outside ASCII
// into escapes, which is harmless on text already escaped, so that a caller's
// plain text reads correctly too; it never touches "\", "{" or "}", because it
// is also applied to text that already holds control words.

#include <string>

namespace qb::rtf {

// The opening of every summary document: the code page, the font table and
// the paragraph defaults, with no line break between the two parts.
inline constexpr const char* kDocumentHeader =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang4105{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}"
    "\\viewkind4\\uc1\\pard\\f0\\fs16";

// The end of a line of a summary: the paragraph mark and a line break.
inline constexpr const char* kLineEnd = "\\par\r\n";

// A stored value as RTF text: "\", "{", "}" escaped, non-ASCII as escapes.
std::string storedText(const std::string& value);

}  // namespace qb::rtf
