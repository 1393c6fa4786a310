// The string functions count characters, not bytes, and fold Latin letters.

#include "services/runtime/strings.h"

#include <random>

#include "tests/services/runtime/runtime_test.h"

namespace qb {
namespace {

TEST(Strings, PositionsCountCharacters) {
  EXPECT_EQ(Len("«Name»"), 6);
  EXPECT_EQ(Len(""), 0);
  EXPECT_EQ(Len("\xff"
                "a"),
            2);  // a stray byte is a character of its own
  EXPECT_EQ(Left("«Name»", 2), "«N");
  EXPECT_EQ(Left("ab", 5), "ab");
  EXPECT_EQ(Right("Hélène", 3), "ène");
  EXPECT_EQ(Mid("«Due Date»", 2, 3), "Due");
  EXPECT_EQ(Mid("«Due Date»", 6), "Date»");
  EXPECT_EQ(Mid("abc", 4), "");
  EXPECT_EQ(InStr("Société «Nom»", "«"), 9);
  EXPECT_EQ(InStr(10, "a«b«c", "«"), 0);
  EXPECT_EQ(InStr(3, "a«b«c", "«"), 4);
  EXPECT_EQ(InStr(2, "abc", ""), 2);
  EXPECT_EQ(InStr(4, "abc", ""), 0);
  EXPECT_RUNTIME_ERROR(Mid("abc", 0), err::kInvalidCall);
  EXPECT_RUNTIME_ERROR(Mid("abc", 1, -2), err::kInvalidCall);
  EXPECT_RUNTIME_ERROR(Left("abc", -1), err::kInvalidCall);
  EXPECT_RUNTIME_ERROR(Right("abc", -1), err::kInvalidCall);
  EXPECT_RUNTIME_ERROR(InStr(0, "abc", "a"), err::kInvalidCall);
}

TEST(Strings, CaseFoldingAndReplace) {
  EXPECT_EQ(UCase("Hélène Côté"), "HÉLÈNE CÔTÉ");
  EXPECT_EQ(LCase("HÉLÈNE ÇA ÿ Ÿ"), "hélène ça ÿ ÿ");
  EXPECT_EQ(UCase("«straße»"), "«STRAßE»");  // ß has no one-character capital
  EXPECT_TRUE(equalsText("Hélène", "HÉLÈNE"));
  EXPECT_FALSE(equalsText("Helene", "Hélène"));
  EXPECT_EQ(InStr("HÉLÈNE côté", "hélène", CompareMode::Text), 1);
  EXPECT_EQ(InStr("Côté", "TÉ", CompareMode::Text), 3);
  EXPECT_EQ(InStr("Côté", "TÉ"), 0);
  EXPECT_EQ(Replace("Date: «date» «DATE»", "«date»", "x", CompareMode::Text), "Date: x x");
  EXPECT_EQ(Replace("Date: «date» «DATE»", "«date»", "x"), "Date: x «DATE»");
  EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(Replace("a\r\nb", "\r\n", "\r\n\\par "), "a\r\n\\par b");
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim("  a "), "  a");
  EXPECT_EQ(Split("1|2||3", "|"), (std::vector<std::string>{"1", "2", "", "3"}));
  EXPECT_TRUE(Split("", "|").empty());
}

// The searches that ignore case compare bytes where the find allows it; they
// must find what a search of the two texts in lower case finds, also in
// texts with accented capitals, brackets, stray bytes and RTF escapes.
TEST(Strings, SearchesIgnoringCaseAgreeWithTheLowerCaseTexts) {
  const std::vector<std::string> pieces = {"a",        "A",     "b",     "B", "«", "»", "é",
                                           "É",        "\\'ab", "\\'AB", " ", "ÿ", "Ÿ", "\xC2",
                                           "\xE2\x82", "<<",    "z",     "Z", "°"};
  std::mt19937 random(7);
  auto text = [&](int most) {
    std::string built;
    for (int n = std::uniform_int_distribution<int>(0, most)(random); n > 0; --n) {
      built += pieces[std::uniform_int_distribution<size_t>(0, pieces.size() - 1)(random)];
    }
    return built;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string haystack = text(12);
    const std::string find = text(3);
    const std::string foldedHaystack = LCase(haystack);
    const std::string foldedFind = LCase(find);
    const size_t at = foldedHaystack.find(foldedFind);
    const int32_t expected =
        find.empty() || at == std::string::npos ? 0 : Len(haystack.substr(0, at)) + 1;
    if (!find.empty()) {
      ASSERT_EQ(InStr(haystack, find, CompareMode::Text), expected) << haystack << " / " << find;
      ASSERT_EQ(findText(haystack, find), at) << haystack << " / " << find;
    }
    std::string replaced;
    size_t from = 0;
    for (size_t hit = foldedHaystack.find(foldedFind); !find.empty() && hit != std::string::npos;
         hit = foldedHaystack.find(foldedFind, from)) {
      replaced += haystack.substr(from, hit - from) + "#";
      from = hit + find.size();
    }
    replaced += haystack.substr(from);
    if (!find.empty()) {
      ASSERT_EQ(Replace(haystack, find, "#", CompareMode::Text), replaced)
          << haystack << " / " << find;
    }
    ASSERT_EQ(equalsText(haystack, find), foldedHaystack == foldedFind);
  }
}

TEST(Strings, RtfEscapes) {
  EXPECT_EQ(toRtfEscapes("Hélène Côté"), "H\\'e9l\\'e8ne C\\'f4t\\'e9");
  EXPECT_EQ(toRtfEscapes("l’été — 5 €"), "l\\'92\\'e9t\\'e9 \\'97 5 \\'80");
  EXPECT_EQ(toRtfEscapes("“a” – «b»"), "\\'93a\\'94 \\'96 \\'abb\\'bb");
  EXPECT_EQ(toRtfEscapes("Ж"), "\\u1046?");
  EXPECT_EQ(toRtfEscapes("中"), "\\u20013?");
  EXPECT_EQ(toRtfEscapes("\xEF\xBF\xBD"), "\\u-3?");  // U+FFFD, above 32767
  EXPECT_EQ(toRtfEscapes("😀"), "\\u-10179?\\u-8704?");
  EXPECT_EQ(toRtfEscapes("plain {\\b rtf}"), "plain {\\b rtf}");
}

}  // namespace
}  // namespace qb
