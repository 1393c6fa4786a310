#pragma once
// What a real RTF reader (unrtf) makes of an RTF document.

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace qb::test {

inline bool haveRtfReader() { return std::filesystem::exists("/usr/bin/unrtf"); }

// The reader's text of the document, written to a file in folder first; its
// code page 1252 is read as Latin-1 and given back as UTF-8.
inline std::string rtfReaderText(const std::string& rtf, const std::string& folder) {
  std::string rtfPath = folder + "/summary.rtf";
  std::ofstream(rtfPath, std::ios::binary) << rtf;
  FILE* pipe = popen(("/usr/bin/unrtf --text '" + rtfPath + "' 2>/dev/null").c_str(), "r");
  if (pipe == nullptr) return "";
  std::string text;
  for (int c; (c = fgetc(pipe)) != EOF;) {
    if (c < 0x80) {
      text += static_cast<char>(c);
    } else {
      text += static_cast<char>(0xC0 | (c >> 6));
      text += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  EXPECT_EQ(pclose(pipe), 0);
  return text;
}

}  // namespace qb::test
