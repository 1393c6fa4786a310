#include "services/runtime/strings.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "services/errors/runtime_error.h"

namespace qb {

namespace {

// A position below 1 or a negative length, as the run-time refuses them.
void checkArgument(bool valid) {
  if (!valid) throw RuntimeError(err::kInvalidCall, "Invalid procedure call or argument");
}

// One decoded character: its code point and its byte length in the text.
// A byte that starts no valid sequence counts as one character of its own.
char32_t decode(const std::string& s, size_t i, size_t& length) {
  unsigned char c = static_cast<unsigned char>(s[i]);
  int extra = c < 0x80 ? 0 : (c >> 5) == 0x6 ? 1 : (c >> 4) == 0xE ? 2 : (c >> 3) == 0x1E ? 3 : -1;
  length = 1;
  if (extra == 0) return c;
  if (extra < 0 || i + extra >= s.size()) return c;
  char32_t cp = c & (0x3F >> extra);
  for (int k = 1; k <= extra; ++k) {
    unsigned char cc = static_cast<unsigned char>(s[i + k]);
    if ((cc & 0xC0) != 0x80) return c;
    cp = (cp << 6) | (cc & 0x3F);
  }
  length = static_cast<size_t>(extra) + 1;
  return cp;
}

void encode(char32_t cp, std::string& out) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

bool isAscii(const std::string& s) {
  for (char c : s)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

// Byte offset of each character, with the text's size at the end.
std::vector<size_t> offsets(const std::string& s) {
  std::vector<size_t> result;
  result.reserve(s.size() + 1);
  for (size_t i = 0; i < s.size();) {
    result.push_back(i);
    size_t length = 1;
    decode(s, i, length);
    i += length;
  }
  result.push_back(s.size());
  return result;
}

// Case mapping of the Latin letters: ASCII, Latin-1 and the pairs of Latin
// Extended-A. Both cases of each pair take the same number of bytes, so a
// folded text keeps the byte offsets of the original (which is why the dotted
// and dotless i, U+0130 and U+0131, stay as they are).
bool inPairRange(char32_t c) {
  return (c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177);
}

char32_t toUpper(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 32;
  if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 32;
  if (c == 0xFF) return 0x178;
  if (inPairRange(c)) return c & ~char32_t{1};
  if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) return (c % 2 == 0) ? c - 1 : c;
  return c;
}

char32_t toLower(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if ((c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 32;
  if (c == 0x178) return 0xFF;
  if (inPairRange(c)) return c | 1;
  if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E)) return (c % 2 == 1) ? c + 1 : c;
  return c;
}

template <typename Map>
std::string mapCase(const std::string& text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size();) {
    size_t length = 1;
    char32_t cp = decode(text, i, length);
    if (length == 1 && static_cast<unsigned char>(text[i]) >= 0x80) {
      out += text[i];  // a stray byte stays as it is
    } else {
      encode(map(cp), out);
    }
    i += length;
  }
  return out;
}

std::string fold(std::string_view text) { return mapCase(std::string(text), toLower); }

unsigned char lowerAscii(unsigned char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; }

// True when a search that ignores case may compare find byte by byte, with
// only ASCII letters folded: every character of find is ASCII or a sign of
// U+0080 to U+00BF («, », °, ...), which has no other case and which no
// other character folds to. Folding keeps every character's byte length, so
// a match of the folded texts is then a match of the bytes.
bool byteComparable(std::string_view find) {
  for (size_t i = 0; i < find.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(find[i]);
    if (c < 0x80) continue;
    if (c == 0xC2 && i + 1 < find.size() &&
        (static_cast<unsigned char>(find[i + 1]) & 0xC0) == 0x80) {
      ++i;
      continue;
    }
    return false;
  }
  return true;
}

bool sameBytesIgnoringAsciiCase(const char* a, const char* b, size_t length) {
  for (size_t i = 0; i < length; ++i) {
    if (lowerAscii(static_cast<unsigned char>(a[i])) != static_cast<unsigned char>(b[i])) {
      return false;
    }
  }
  return true;
}

// How common a byte (in lower case) is in letters and in RTF source: the
// search looks for the least common byte of the find first. Letters by
// their frequency in English text; blanks, backslashes and digits are
// common; other signs (a quote, "«" and "»") are rare.
int commonness(unsigned char c) {
  static constexpr char kLettersRareFirst[] = "zqxjkvbpygfwmucldrhsnioate";
  if (c >= 'a' && c <= 'z') {
    return 10 + static_cast<int>(std::strchr(kLettersRareFirst, c) - kLettersRareFirst);
  }
  if (c == ' ' || c == '\\' || (c >= '0' && c <= '9')) return 40;
  return 0;
}

// The search of findText for a byte-comparable find, already in lower case.
// The candidates are the places of the find's least common byte, in either
// case.
size_t findByteComparable(std::string_view text, std::string_view lowered, size_t from) {
  size_t anchor = 0;
  for (size_t i = 1; i < lowered.size(); ++i) {
    if (commonness(static_cast<unsigned char>(lowered[i])) <
        commonness(static_cast<unsigned char>(lowered[anchor]))) {
      anchor = i;
    }
  }
  const unsigned char first = static_cast<unsigned char>(lowered[anchor]);
  const unsigned char other = first >= 'a' && first <= 'z' ? first - 32 : first;
  const char* data = text.data();
  const size_t end =
      text.size() - lowered.size() + anchor + 1;  // past the last place of the anchor
  auto next = [&](unsigned char byte, size_t at) -> size_t {
    if (at >= end) return std::string_view::npos;
    const void* hit = std::memchr(data + at, byte, end - at);
    return hit == nullptr ? std::string_view::npos : static_cast<const char*>(hit) - data;
  };
  size_t lower = next(first, from + anchor);
  size_t upper = other == first ? std::string_view::npos : next(other, from + anchor);
  while (lower != std::string_view::npos || upper != std::string_view::npos) {
    const bool useLower =
        upper == std::string_view::npos || (lower != std::string_view::npos && lower < upper);
    const size_t at = useLower ? lower : upper;
    if (sameBytesIgnoringAsciiCase(data + at - anchor, lowered.data(), lowered.size())) {
      return at - anchor;
    }
    if (useLower) {
      lower = next(first, at + 1);
    } else {
      upper = next(other, at + 1);
    }
  }
  return std::string_view::npos;
}

// Character position (from 1) of a byte offset at a character boundary.
int32_t characterPosition(const std::string& text, size_t byteOffset) {
  int32_t position = 1;
  for (size_t i = 0; i < byteOffset;) {
    size_t length = 1;
    decode(text, i, length);
    i += length;
    ++position;
  }
  return position;
}

// Byte offset of a character position (from 1); npos past the end.
size_t byteOffsetOf(const std::string& text, int32_t position) {
  size_t i = 0;
  for (int32_t at = 1; at < position; ++at) {
    if (i >= text.size()) return std::string::npos;
    size_t length = 1;
    decode(text, i, length);
    i += length;
  }
  return i < text.size() ? i : std::string::npos;
}

// Windows-1252 bytes 0x80-0x9F and the characters they stand for.
struct Cp1252 {
  char32_t cp;
  unsigned char byte;
};
constexpr Cp1252 kCp1252High[] = {
    {0x20AC, 0x80}, {0x201A, 0x82}, {0x0192, 0x83}, {0x201E, 0x84}, {0x2026, 0x85}, {0x2020, 0x86},
    {0x2021, 0x87}, {0x02C6, 0x88}, {0x2030, 0x89}, {0x0160, 0x8A}, {0x2039, 0x8B}, {0x0152, 0x8C},
    {0x017D, 0x8E}, {0x2018, 0x91}, {0x2019, 0x92}, {0x201C, 0x93}, {0x201D, 0x94}, {0x2022, 0x95},
    {0x2013, 0x96}, {0x2014, 0x97}, {0x02DC, 0x98}, {0x2122, 0x99}, {0x0161, 0x9A}, {0x203A, 0x9B},
    {0x0153, 0x9C}, {0x017E, 0x9E}, {0x0178, 0x9F}};

int cp1252Byte(char32_t cp) {
  if (cp >= 0xA0 && cp <= 0xFF) return static_cast<int>(cp);
  for (const Cp1252& entry : kCp1252High)
    if (entry.cp == cp) return entry.byte;
  return -1;
}

void appendUnicodeEscape(char32_t unit, std::string& out) {
  out += "\\u" + std::to_string(static_cast<int16_t>(static_cast<uint16_t>(unit))) + "?";
}

}  // namespace

int32_t Len(const std::string& text) {
  if (isAscii(text)) return static_cast<int32_t>(text.size());
  return static_cast<int32_t>(offsets(text).size() - 1);
}

std::string Mid(const std::string& text, int32_t start, int32_t count) {
  checkArgument(start >= 1 && count >= -1);
  if (isAscii(text)) {
    if (static_cast<size_t>(start) > text.size()) return "";
    return count < 0 ? text.substr(start - 1) : text.substr(start - 1, count);
  }
  std::vector<size_t> at = offsets(text);
  int32_t chars = static_cast<int32_t>(at.size() - 1);
  if (start > chars) return "";
  int32_t last = count < 0 ? chars : std::min(chars, start - 1 + count);
  return text.substr(at[start - 1], at[last] - at[start - 1]);
}

std::string Left(const std::string& text, int32_t count) {
  checkArgument(count >= 0);
  return count == 0 ? std::string() : Mid(text, 1, count);
}

std::string Right(const std::string& text, int32_t count) {
  checkArgument(count >= 0);
  if (count == 0) return "";
  int32_t length = Len(text);
  return count >= length ? text : Mid(text, length - count + 1);
}

std::string LTrim(const std::string& text) {
  size_t begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? std::string() : text.substr(begin);
}

std::string RTrim(const std::string& text) {
  size_t end = text.find_last_not_of(' ');
  return end == std::string::npos ? std::string() : text.substr(0, end + 1);
}

std::string Trim(const std::string& text) { return LTrim(RTrim(text)); }

std::string UCase(const std::string& text) { return mapCase(text, toUpper); }

std::string LCase(const std::string& text) { return mapCase(text, toLower); }

size_t findText(std::string_view text, std::string_view find, size_t from) {
  if (from > text.size()) return std::string_view::npos;
  if (find.empty()) return from;
  if (find.size() > text.size() - from) return std::string_view::npos;
  if (byteComparable(find)) {
    std::string lowered(find);
    for (char& c : lowered) c = static_cast<char>(lowerAscii(static_cast<unsigned char>(c)));
    return findByteComparable(text, lowered, from);
  }
  const std::string haystack = fold(text.substr(from));
  const size_t found = haystack.find(fold(find));
  return found == std::string::npos ? std::string_view::npos : found + from;
}

bool matchesTextAt(std::string_view text, size_t at, std::string_view find) {
  if (at > text.size() || find.size() > text.size() - at) return false;
  if (!byteComparable(find)) return fold(text.substr(at, find.size())) == fold(find);
  for (size_t i = 0; i < find.size(); ++i) {
    if (lowerAscii(static_cast<unsigned char>(text[at + i])) !=
        lowerAscii(static_cast<unsigned char>(find[i]))) {
      return false;
    }
  }
  return true;
}

int32_t InStr(int32_t start, const std::string& text, const std::string& find, CompareMode mode) {
  checkArgument(start >= 1);
  const bool ascii = isAscii(text);
  const size_t from =
      ascii ? (static_cast<size_t>(start) <= text.size() ? start - 1 : std::string::npos)
            : byteOffsetOf(text, start);
  if (from == std::string::npos) return 0;
  if (find.empty()) return start;
  const size_t found =
      mode == CompareMode::Text ? findText(text, find, from) : text.find(find, from);
  if (found == std::string::npos) return 0;
  return ascii ? static_cast<int32_t>(found) + 1 : characterPosition(text, found);
}

std::string Replace(const std::string& text, const std::string& find,
                    const std::string& replacement, CompareMode mode) {
  if (find.empty()) return text;
  // A find that can't be compared byte by byte is looked for in the folded
  // text, folded once.
  const bool folded = mode == CompareMode::Text && !byteComparable(find);
  const std::string haystack = folded ? fold(text) : std::string();
  const std::string needle = folded ? fold(find) : std::string();
  auto next = [&](size_t from) {
    if (folded) return haystack.find(needle, from);
    return mode == CompareMode::Text ? findText(text, find, from) : text.find(find, from);
  };
  size_t at = next(0);
  if (at == std::string::npos) return text;
  std::string out;
  out.reserve(text.size());
  size_t from = 0;
  for (; at != std::string::npos; at = next(from)) {
    out.append(text, from, at - from);
    out += replacement;
    from = at + find.size();
  }
  out.append(text, from, std::string::npos);
  return out;
}

bool equalsText(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  if (isAscii(a) && isAscii(b)) {
    for (size_t i = 0; i < a.size(); ++i) {
      if (lowerAscii(static_cast<unsigned char>(a[i])) !=
          lowerAscii(static_cast<unsigned char>(b[i]))) {
        return false;
      }
    }
    return true;
  }
  return fold(a) == fold(b);
}

std::vector<std::string> Split(const std::string& text, const std::string& delimiter) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  if (delimiter.empty()) return {text};
  size_t from = 0;
  for (size_t at = text.find(delimiter); at != std::string::npos; at = text.find(delimiter, from)) {
    parts.push_back(text.substr(from, at - from));
    from = at + delimiter.size();
  }
  parts.push_back(text.substr(from));
  return parts;
}

std::string toRtfEscapes(const std::string& utf8) {
  if (isAscii(utf8)) return utf8;
  std::string out;
  out.reserve(utf8.size() + 16);
  for (size_t i = 0; i < utf8.size();) {
    size_t length = 1;
    char32_t cp = decode(utf8, i, length);
    i += length;
    if (cp < 0x80) {
      out += static_cast<char>(cp);
      continue;
    }
    int byte = cp1252Byte(cp);
    if (byte >= 0) {
      static constexpr char kDigits[] = "0123456789abcdef";
      out += "\\'";
      out += kDigits[(byte >> 4) & 0xF];
      out += kDigits[byte & 0xF];
    } else if (cp >= 0x10000) {
      char32_t v = cp - 0x10000;
      appendUnicodeEscape(0xD800 + (v >> 10), out);
      appendUnicodeEscape(0xDC00 + (v & 0x3FF), out);
    } else {
      appendUnicodeEscape(cp, out);
    }
  }
  return out;
}

}  // namespace qb
