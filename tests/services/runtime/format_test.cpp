// Format with the date, time and number patterns the system uses.

#include "services/runtime/format.h"

#include <clocale>

#include "services/runtime/dates.h"
#include "tests/services/runtime/runtime_test.h"

namespace qb {
namespace {

// Names come from the locale: the C locale gives the English ones.
class FormatTest : public ::testing::Test {
 protected:
  void SetUp() override { std::setlocale(LC_ALL, "C"); }
  static Variant at(int y, int m, int d, int h = 0, int n = 0) {
    return Variant::date(DateSerial(y, m, d) + TimeSerial(h, n, 0));
  }
};

TEST_F(FormatTest, DateAndTimePatterns) {
  Variant date = at(2026, 11, 3, 14, 5);
  EXPECT_EQ(Format(date, "mmm d, yyyy"), "Nov 3, 2026");
  EXPECT_EQ(Format(date, "mmmm d, yyyy"), "November 3, 2026");
  EXPECT_EQ(Format(date, "h:Nn am/pm"), "2:05 pm");
  EXPECT_EQ(Format(at(2026, 11, 3), "h:Nn am/pm"), "12:00 am");
  EXPECT_EQ(Format(at(2026, 11, 3, 12, 0), "h:Nn am/pm"), "12:00 pm");
  EXPECT_EQ(Format(date, "m/d/yy  h:nn am/pm"), "11/3/26  2:05 pm");
  EXPECT_EQ(Format(date, "ddd, mmm d yyyy  h:nn am/pm"), "Tue, Nov 3 2026  2:05 pm");
  EXPECT_EQ(Format(date, "dd/mmm/yy"), "03/Nov/26");
  EXPECT_EQ(Format(date, "hh:mm AM/PM"), "02:05 PM");
  EXPECT_EQ(Format(date, "h:mm a/p"), "2:05 p");
  EXPECT_EQ(Format(date, "hh:mm:ss"), "14:05:00");
  EXPECT_EQ(Format(date, "mm:ss"), "05:00");  // before a second, m is a minute
  EXPECT_EQ(Format(date, "MMM D, YYYY"), "Nov 3, 2026");
  EXPECT_EQ(Format(date, "ddddd"), "11/3/2026");
  EXPECT_EQ(Format(date, "dddddd"), "Tuesday, November 3, 2026");
  EXPECT_EQ(Format(date, "y q w ww"), "307 4 3 45");
  EXPECT_EQ(Format(date, "\"Day\" d \\of mmmm"), "Day 3 of November");
}

TEST_F(FormatTest, WhatADatePatternReads) {
  EXPECT_EQ(Format(Variant(46329.0), "mmm d, yyyy"), "Nov 3, 2026");  // a serial
  EXPECT_EQ(Format(Variant("46329"), "mmm d, yyyy"), "Nov 3, 2026");
  EXPECT_EQ(Format(Variant("2026-11-03 14:05:00"), "mmm d, yyyy h:nn"), "Nov 3, 2026 14:05");
  EXPECT_EQ(Format(Variant("not a date"), "mmm d, yyyy"), "not a date");
  EXPECT_EQ(Format(Variant::null(), "mmm d, yyyy"), "");
  EXPECT_EQ(Format(Variant(), "mmm d, yyyy"), "");
  EXPECT_EQ(Format(at(1899, 12, 30), "mmm d, yyyy"), "Dec 30, 1899");
  EXPECT_RUNTIME_ERROR(Format(Variant(1e9), "yyyy"), err::kOverflow);
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
  EXPECT_EQ(Format(at(2026, 2, 4), "dd/mm/yy"), "04/02/26");
}

TEST_F(FormatTest, NumberPatterns) {
  const char* currency = "$#,##0.00;$-#,##0.00";
  EXPECT_EQ(Format(Variant(1234.5), currency), "$1,234.50");
  EXPECT_EQ(Format(Variant(-1234.5), currency), "$-1,234.50");
  EXPECT_EQ(Format(Variant(0.0), currency), "$0.00");
  EXPECT_EQ(Format(Variant(1234567.891), currency), "$1,234,567.89");
  EXPECT_EQ(Format(Variant(0.125), currency), "$0.13");  // half away from zero
  EXPECT_EQ(Format(Variant("12.5"), currency), "$12.50");
  EXPECT_EQ(Format(Variant(int32_t{999}), currency), "$999.00");
  EXPECT_EQ(Format(Variant(2.5), "0"), "3");
  EXPECT_EQ(Format(Variant(-2.5), "0"), "-3");
  EXPECT_EQ(Format(Variant(3.14159), "0.00"), "3.14");
  EXPECT_EQ(Format(Variant(-3.0), "0.00"), "-3.00");
  EXPECT_EQ(Format(Variant(1234.0), "#,##0"), "1,234");
  EXPECT_EQ(Format(Variant(0.0), "#,##0"), "0");
  EXPECT_EQ(Format(Variant(1234.567), "#,##0.00"), "1,234.57");
  EXPECT_EQ(Format(Variant(0.256), "0%"), "26%");
  EXPECT_EQ(Format(Variant(0.5), "#.##"), ".5");
  EXPECT_EQ(Format(Variant(0.0), "0.0;(0.0);\"nil\""), "nil");
  EXPECT_EQ(Format(Variant(-4.25), "0.0;(0.0)"), "(4.3)");
  EXPECT_EQ(Format(Variant(true), "0"), "-1");
  EXPECT_EQ(Format(Variant("abc"), "0.00"), "abc");
  EXPECT_EQ(Format(Variant(1.5), ""), "1.5");
}

}  // namespace
}  // namespace qb
