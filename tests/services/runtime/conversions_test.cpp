// The run-time's conversions and Round against what the platform gives.

#include <gtest/gtest.h>

#include "services/errors/runtime_error.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"

namespace qb {
namespace {

int32_t errorNumberOf(void (*action)()) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Conversions, NumbersFromTextAndBankersRounding) {
  EXPECT_EQ(CLng(Variant(" 12 ")), 12);
  EXPECT_EQ(CLng(Variant("1,234")), 1234);
  EXPECT_EQ(CLng(Variant("&H1F")), 31);
  EXPECT_DOUBLE_EQ(CDbl(Variant("1.5")), 1.5);
  EXPECT_DOUBLE_EQ(CDbl(Variant("-3e2")), -300);
  EXPECT_EQ(CInt(Variant(2.5)), 2);
  EXPECT_EQ(CInt(Variant(3.5)), 4);
  EXPECT_EQ(CLng(Variant(-2.5)), -2);
  EXPECT_EQ(CLng(Variant(true)), -1);
  EXPECT_EQ(CLng(Variant()), 0);
  EXPECT_EQ(errorNumberOf([] { CInt(Variant(32768)); }), err::kOverflow);
  EXPECT_EQ(errorNumberOf([] { CLng(Variant(3e9)); }), err::kOverflow);
  EXPECT_EQ(errorNumberOf([] { CLng(Variant("12abc")); }), err::kTypeMismatch);
  EXPECT_EQ(errorNumberOf([] { CLng(Variant("")); }), err::kTypeMismatch);
  EXPECT_EQ(errorNumberOf([] { CLng(Variant::null()); }), 94);
}

TEST(Conversions, BooleansTextAndBlankTest) {
  EXPECT_TRUE(CBool(Variant(int32_t{7})));
  EXPECT_TRUE(CBool(Variant(-0.5)));
  EXPECT_FALSE(CBool(Variant(int32_t{0})));
  EXPECT_TRUE(CBool(Variant("true")));
  EXPECT_FALSE(CBool(Variant("False")));
  EXPECT_TRUE(CBool(Variant("-1")));
  EXPECT_EQ(errorNumberOf([] { CBool(Variant("maybe")); }), err::kTypeMismatch);

  EXPECT_EQ(CStr(Variant(1.5)), "1.5");
  EXPECT_EQ(CStr(Variant(0.0)), "0");
  EXPECT_EQ(CStr(Variant(1.0)), "1");
  EXPECT_EQ(CStr(Variant(-0.25)), "-0.25");
  EXPECT_EQ(CStr(Variant(0.1 + 0.2)), "0.3");
  EXPECT_EQ(CStr(Variant(1e16)), "1E+16");
  EXPECT_EQ(CStr(Variant(0.00001)), "1E-05");
  EXPECT_EQ(CStr(Variant(true)), "True");
  EXPECT_EQ(CStr(Variant::date(DateSerial(2026, 11, 3) + TimeSerial(14, 5, 0))), "11/3/2026 2:05:00 PM");
  EXPECT_EQ(toText(Variant::null()), "");

  EXPECT_TRUE(isBlankValue(Variant::null()));
  EXPECT_TRUE(isBlankValue(Variant()));
  EXPECT_TRUE(isBlankValue(Variant("")));
  EXPECT_FALSE(isBlankValue(Variant(" ")));
  EXPECT_FALSE(isBlankValue(Variant(int32_t{0})));

  EXPECT_TRUE(IsNumeric(Variant(" 42 ")));
  EXPECT_TRUE(IsNumeric(Variant()));
  EXPECT_FALSE(IsNumeric(Variant("abc")));
  EXPECT_FALSE(IsNumeric(Variant("")));
  EXPECT_FALSE(IsNumeric(Variant::null()));
}

TEST(Conversions, RoundHalfToEven) {
  EXPECT_EQ(Round(2.5), 2);
  EXPECT_EQ(Round(3.5), 4);
  EXPECT_EQ(Round(0.5), 0);
  EXPECT_EQ(Round(-2.5), -2);
  EXPECT_EQ(Round(1572864.0 / 1048576.0, 2), 1.5);
  EXPECT_EQ(Round(0.125, 2), 0.12);
  EXPECT_EQ(Round(0.135, 2), 0.14);
  EXPECT_EQ(Round(0.0, 2), 0);
}

TEST(Conversions, DatesFromTextAndSerials) {
  EXPECT_EQ(DateSerial(1899, 12, 30), 0);
  EXPECT_EQ(DateSerial(1900, 1, 1), 2);
  EXPECT_EQ(DateSerial(2026, 13, 1), DateSerial(2027, 1, 1));
  DateParts before = splitDate(-1.25);  // a day before day 0, at six in the morning
  EXPECT_EQ(before.day, 29);
  EXPECT_EQ(before.hour, 6);
  EXPECT_EQ(splitDate(DateSerial(2026, 11, 23)).weekday, 2);  // a Monday
  EXPECT_EQ(CDate(Variant("2026-11-23")), DateSerial(2026, 11, 23));
  EXPECT_EQ(CDate(Variant("2026-11-23 14:05:00")), DateSerial(2026, 11, 23) + TimeSerial(14, 5, 0));
  EXPECT_EQ(CDate(Variant("11/23/2026 2:05 PM")), DateSerial(2026, 11, 23) + TimeSerial(14, 5, 0));
  EXPECT_EQ(CDate(Variant("Nov 23, 2026")), DateSerial(2026, 11, 23));
  EXPECT_EQ(errorNumberOf([] { CDate(Variant("2026-02-30")); }), err::kTypeMismatch);
}

}  // namespace
}  // namespace qb
