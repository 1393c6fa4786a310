#pragma once
// The pieces of RTF that the address blocks and contact summaries share.
//
// Where stored values are escaped: the system's own control words (\par, \b,
// the label indents, the header) are written as they stand; a value read from
// the store is escaped once, at the point where it is appended to text that
// will be RTF: "\", "{" and "}" become "\\", "\{" and "\}", every character
// outside ASCII becomes an RTF escape of code page 1252 (the header declares
// it), a tab becomes \tab and every other control character (a NUL, an ESC)
// is dropped, since RTF readers cut a text at a NUL. A line break inside a
// value (CR LF, or a bare CR or LF) stays a line break: in a text whose line
// breaks become paragraphs (an address block, the notes: storedText) it is
// written as the text's own CR LF; in a value that stands on one line of a
// summary (storedLine) it is the line break \line.
//
// convertToRTF also turns characters outside ASCII into escapes, which is
// harmless on text already escaped, so that a caller's plain text reads
// correctly too; it never touches "\", "{" or "}", because it is also applied
// to text that already holds control words.

#include <string>

namespace qb::rtf {

// The opening of every summary document: the code page, the font table and
// the paragraph defaults, with no line break between the two parts.
inline constexpr const char* kDocumentHeader =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang4105{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}}"
    "\\viewkind4\\uc1\\pard\\f0\\fs16";

// The end of a line of a summary: the paragraph mark and a line break.
inline constexpr const char* kLineEnd = "\\par\r\n";

// A stored value as RTF text whose line breaks are CR LF, for a text that
// convertToRTF turns into paragraphs.
std::string storedText(const std::string& value);

// A stored value as RTF text for one line of a summary: its line breaks are
// \line.
std::string storedLine(const std::string& value);

// The text with every bare CR or LF made a CR LF.
std::string withCrLf(const std::string& text);

}  // namespace qb::rtf
