#include "render/rtf_text.h"

#include "services/runtime/strings.h"

namespace qb::rtf {

std::string withCrLf(const std::string& text) {
  std::string result;
  result.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '\r' || c == '\n') {
      result += "\r\n";
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      result += c;
    }
  }
  return result;
}

std::string storedText(const std::string& value) {
  std::string escaped;
  escaped.reserve(value.size());
  for (char c : withCrLf(value)) {
    unsigned char byte = static_cast<unsigned char>(c);
    if (c == '\\' || c == '{' || c == '}') {
      escaped += '\\';
      escaped += c;
    } else if (c == '\t') {
      escaped += "\\tab ";
    } else if (c == '\r' || c == '\n' || (byte >= 0x20 && byte != 0x7F)) {
      escaped += c;
    }
  }
  return toRtfEscapes(escaped);
}

std::string storedLine(const std::string& value) {
  std::string text = storedText(value);
  std::string result;
  result.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
      result += "\\line ";
      ++i;
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace qb::rtf
