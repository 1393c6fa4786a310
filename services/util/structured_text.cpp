#include "services/util/structured_text.h"

#include <cstdio>

namespace qb {

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string field = "\"";
  for (char c : text) {
    if (c == '"') field += '"';
    field += c;
  }
  return field + "\"";
}

namespace {

// The length of the well-formed UTF-8 character at text[i], 0 when the bytes
// there are none.
size_t utf8Length(const std::string& text, size_t i) {
  const auto byte = [&](size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(i);
  size_t length = 0;
  unsigned char low = 0x80, high = 0xBF;  // the allowed range of the second byte
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;   // no overlong forms
    if (lead == 0xED) high = 0x9F;  // no surrogates
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;  // nothing past U+10FFFF
  } else {
    return 0;
  }
  if (i + length > text.size()) return 0;
  if (byte(i + 1) < low || byte(i + 1) > high) return 0;
  for (size_t k = 2; k < length; ++k)
    if (byte(i + k) < 0x80 || byte(i + k) > 0xBF) return 0;
  return length;
}

}  // namespace

std::string jsonString(const std::string& text) {
  std::string out = "\"";
  for (size_t i = 0; i < text.size();) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c >= 0x80) {
      const size_t length = utf8Length(text, i);
      if (length == 0) {
        out += "\xEF\xBF\xBD";  // U+FFFD
        ++i;
      } else {
        out.append(text, i, length);
        i += length;
      }
      continue;
    }
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (c < 0x20 || c == 0x7F) {
          char escaped[8];
          std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
          out += escaped;
        } else {
          out += static_cast<char>(c);
        }
    }
    ++i;
  }
  return out + "\"";
}

}  // namespace qb
