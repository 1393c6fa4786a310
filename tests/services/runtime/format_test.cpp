// Format with the date, time and number patterns the system uses, and the
// character-counting string functions.

#include <gtest/gtest.h>

#include <clocale>

#include "services/runtime/dates.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"

namespace qb {
namespace {

class FormatTest : public ::testing::Test {
 protected:
  void SetUp() override { std::setlocale(LC_ALL, "C"); }
  Variant at(int y, int m, int d, int h = 0, int n = 0) {
    return Variant::date(DateSerial(y, m, d) + TimeSerial(h, n, 0));
  }
};

TEST_F(FormatTest, DateAndTimePatterns) {
  Variant date = at(2026, 11, 3, 14, 5);
  EXPECT_EQ(Format(date, "mmm d, yyyy"), "Nov 3, 2026");
  EXPECT_EQ(Format(date, "mmmm d, yyyy"), "November 3, 2026");
  EXPECT_EQ(Format(date, "h:Nn am/pm"), "2:05 pm");
  EXPECT_EQ(Format(at(2026, 11, 3), "h:Nn am/pm"), "12:00 am");
  EXPECT_EQ(Format(date, "m/d/yy  h:nn am/pm"), "11/3/26  2:05 pm");
  EXPECT_EQ(Format(date, "ddd, mmm d yyyy  h:nn am/pm"), "Tue, Nov 3 2026  2:05 pm");
  EXPECT_EQ(Format(date, "hh:mm AM/PM"), "02:05 PM");
  EXPECT_EQ(Format(date, "dd/mmm/yy"), "03/Nov/26");
  EXPECT_EQ(Format(Variant("2026-11-03"), "mmm d, yyyy"), "Nov 3, 2026");
  EXPECT_EQ(Format(Variant("not a date"), "mmm d, yyyy"), "not a date");
  EXPECT_EQ(Format(Variant::null(), "mmm d, yyyy"), "");
}

TEST_F(FormatTest, TheFourteenMergeDateFormats) {
  Variant date = at(1951, 6, 25);
  EXPECT_EQ(Format(date, "dddd, mmmm d yyyy"), "Monday, June 25 1951");
  EXPECT_EQ(Format(date, "dddd mmmm d yyyy"), "Monday June 25 1951");
  EXPECT_EQ(Format(date, "mmmm d, yyyy"), "June 25, 1951");
  EXPECT_EQ(Format(date, "mmmm d yyyy"), "June 25 1951");
  EXPECT_EQ(Format(date, "mmm d yyyy"), "Jun 25 1951");
  EXPECT_EQ(Format(date, "dd/mm/yy"), "25/06/51");
  EXPECT_EQ(Format(date, "mm/dd/yy"), "06/25/51");
  EXPECT_EQ(Format(date, "d"), "25");
  EXPECT_EQ(Format(date, "dddd"), "Monday");
  EXPECT_EQ(Format(date, "mmmm"), "June");
  EXPECT_EQ(Format(date, "mmm"), "Jun");
  EXPECT_EQ(Format(date, "yyyy"), "1951");
  EXPECT_EQ(Format(date, "mmmm yyyy"), "June 1951");
  EXPECT_EQ(Format(date, "mmmm d"), "June 25");
}

TEST_F(FormatTest, NumberPatterns) {
  const char* currency = "$#,##0.00;$-#,##0.00";
  EXPECT_EQ(Format(Variant(1234.5), currency), "$1,234.50");
  EXPECT_EQ(Format(Variant(-1234.5), currency), "$-1,234.50");
  EXPECT_EQ(Format(Variant(0.0), currency), "$0.00");
  EXPECT_EQ(Format(Variant(1234567.891), currency), "$1,234,567.89");
  EXPECT_EQ(Format(Variant("12.5"), currency), "$12.50");
  EXPECT_EQ(Format(Variant(2.5), "0"), "3");
  EXPECT_EQ(Format(Variant(0.256), "0%"), "26%");
  EXPECT_EQ(Format(Variant(1234.0), "#,##0"), "1,234");
  EXPECT_EQ(Format(Variant(0.5), "#.##"), ".5");
  EXPECT_EQ(Format(Variant(-3.0), "0.00"), "-3.00");
  EXPECT_EQ(Format(Variant(1.5), ""), "1.5");
}

TEST_F(FormatTest, StringsCountCharactersNotBytes) {
  EXPECT_EQ(Len("«Name»"), 6);
  EXPECT_EQ(Mid("«Due Date»", 2, 3), "Due");
  EXPECT_EQ(Right("Hélène", 3), "ène");
  EXPECT_EQ(InStr("Société «Nom»", "«"), 9);
  EXPECT_EQ(InStr(10, "a«b«c", "«"), 0);
  EXPECT_EQ(InStr("HÉLÈNE côté", "hélène", CompareMode::Text), 1);
  EXPECT_EQ(InStr("Côté", "TÉ", CompareMode::Text), 3);
  EXPECT_EQ(UCase("Hélène Côté"), "HÉLÈNE CÔTÉ");
  EXPECT_EQ(LCase("ÉCOLE"), "école");
  EXPECT_EQ(Replace("Date: «date» «DATE»", "«date»", "x", CompareMode::Text), "Date: x x");
  EXPECT_EQ(Replace("a\r\nb", "\r\n", "\r\n\\par "), "a\r\n\\par b");
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_TRUE(equalsText("smith", "SMITH"));
  EXPECT_EQ(Split("1|2||3", "|").size(), 4u);
  EXPECT_EQ(toRtfEscapes("Hélène Côté"), "H\\'e9l\\'e8ne C\\'f4t\\'e9");
  EXPECT_EQ(toRtfEscapes("l’été — 5 €"), "l\\'92\\'e9t\\'e9 \\'97 5 \\'80");
  EXPECT_EQ(toRtfEscapes("Ж"), "\\u1046?");
  EXPECT_EQ(toRtfEscapes("plain {rtf}"), "plain {rtf}");
}

}  // namespace
}  // namespace qb
