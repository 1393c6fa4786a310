// The run-time's conversions and Round against what the platform gives.

#include "services/runtime/conversions.h"

#include "services/runtime/dates.h"
#include "services/runtime/format.h"
#include "tests/services/runtime/runtime_test.h"

namespace qb {
namespace {

TEST(Conversions, NumbersFromText) {
  EXPECT_EQ(CLng(Variant(" 12 ")), 12);
  EXPECT_EQ(CLng(Variant("1,234")), 1234);
  EXPECT_EQ(CLng(Variant("1e3")), 1000);
  EXPECT_EQ(CLng(Variant("&H1F")), 31);
  EXPECT_EQ(CLng(Variant("&HFFFF")), -1);  // four hex digits are a 16-bit value
  EXPECT_EQ(CLng(Variant("&H10000")), 65536);
  EXPECT_EQ(CLng(Variant("&O17")), 15);
  EXPECT_DOUBLE_EQ(CDbl(Variant("1.5")), 1.5);
  EXPECT_DOUBLE_EQ(CDbl(Variant("-3e2")), -300);
  EXPECT_DOUBLE_EQ(CDbl(Variant(".5")), 0.5);
  EXPECT_DOUBLE_EQ(CDbl(Variant("$-1,234.50")), -1234.5);
  EXPECT_DOUBLE_EQ(CDbl(Variant::date(2.25)), 2.25);
  EXPECT_EQ(CLng(Variant(true)), -1);
  EXPECT_EQ(CLng(Variant()), 0);
  EXPECT_RUNTIME_ERROR(CLng(Variant("12abc")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CLng(Variant("")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDbl(Variant("1e")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDbl(Variant("&HZZ")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDbl(Variant("1e400")), err::kOverflow);
  EXPECT_RUNTIME_ERROR(CLng(Variant::null()), err::kInvalidUseOfNull);
  EXPECT_RUNTIME_ERROR(CDbl(Variant::null()), err::kInvalidUseOfNull);

  EXPECT_TRUE(IsNumeric(Variant(" 42 ")));
  EXPECT_TRUE(IsNumeric(Variant("1,234.5")));
  EXPECT_TRUE(IsNumeric(Variant()));
  EXPECT_TRUE(IsNumeric(Variant(false)));
  EXPECT_FALSE(IsNumeric(Variant("abc")));
  EXPECT_FALSE(IsNumeric(Variant("")));
  EXPECT_FALSE(IsNumeric(Variant("11/23/2026")));
  EXPECT_FALSE(IsNumeric(Variant::date(1)));
  EXPECT_FALSE(IsNumeric(Variant::null()));
}

TEST(Conversions, IntegersRoundHalfToEvenAndOverflow) {
  EXPECT_EQ(CInt(Variant(2.5)), 2);
  EXPECT_EQ(CInt(Variant(3.5)), 4);
  EXPECT_EQ(CInt(Variant(2.5000001)), 3);
  EXPECT_EQ(CLng(Variant(-2.5)), -2);
  EXPECT_EQ(CLng(Variant(-3.5)), -4);
  EXPECT_EQ(CInt(Variant("-32768.5")), -32768);
  EXPECT_RUNTIME_ERROR(CInt(Variant(32767.5)), err::kOverflow);
  EXPECT_RUNTIME_ERROR(CInt(Variant(int32_t{32768})), err::kOverflow);
  EXPECT_RUNTIME_ERROR(CLng(Variant(3e9)), err::kOverflow);
  EXPECT_RUNTIME_ERROR(CSng(Variant(1e300)), err::kOverflow);
}

TEST(Conversions, BooleansAndBlanks) {
  EXPECT_TRUE(CBool(Variant(int32_t{7})));
  EXPECT_TRUE(CBool(Variant(-0.5)));
  EXPECT_FALSE(CBool(Variant(int32_t{0})));
  EXPECT_FALSE(CBool(Variant()));
  EXPECT_TRUE(CBool(Variant("true")));
  EXPECT_FALSE(CBool(Variant(" FALSE ")));
  EXPECT_TRUE(CBool(Variant("-1")));
  EXPECT_RUNTIME_ERROR(CBool(Variant("maybe")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CBool(Variant::null()), err::kInvalidUseOfNull);

  EXPECT_TRUE(isBlankValue(Variant::null()));
  EXPECT_TRUE(isBlankValue(Variant()));
  EXPECT_TRUE(isBlankValue(Variant("")));
  EXPECT_FALSE(isBlankValue(Variant(" ")));
  EXPECT_FALSE(isBlankValue(Variant(int32_t{0})));
}

TEST(Conversions, TextOfValues) {
  EXPECT_EQ(CStr(Variant(1.5)), "1.5");
  EXPECT_EQ(CStr(Variant(0.0)), "0");
  EXPECT_EQ(CStr(Variant(-0.0)), "0");
  EXPECT_EQ(CStr(Variant(1.0)), "1");
  EXPECT_EQ(CStr(Variant(-0.25)), "-0.25");
  EXPECT_EQ(CStr(Variant(0.1 + 0.2)), "0.3");
  EXPECT_EQ(CStr(Variant(2.0 / 3.0)), "0.666666666666667");
  EXPECT_EQ(CStr(Variant(123456789012345.0)), "123456789012345");
  EXPECT_EQ(CStr(Variant(1e15)), "1E+15");
  EXPECT_EQ(CStr(Variant(1e16)), "1E+16");
  EXPECT_EQ(CStr(Variant(123456789012345678.0)), "1.23456789012346E+17");
  EXPECT_EQ(CStr(Variant(0.0001)), "0.0001");
  EXPECT_EQ(CStr(Variant(0.00001)), "1E-05");
  EXPECT_EQ(CStr(Variant(int16_t{-7})), "-7");
  EXPECT_EQ(CStr(Variant(true)), "True");
  EXPECT_EQ(CStr(Variant(false)), "False");
  EXPECT_EQ(CStr(Variant()), "");
  EXPECT_RUNTIME_ERROR(CStr(Variant::null()), err::kInvalidUseOfNull);
  EXPECT_EQ(toText(Variant::null()), "");
  EXPECT_EQ(toText(Variant(int32_t{42})), "42");
  // A date held beyond the years 100 to 9999 has no text (found by fuzzing
  // the run-time's Format, whose empty pattern writes the value's text).
  EXPECT_EQ(CStr(Variant::date(2958465.5)), "12/31/9999 12:00:00 PM");
  EXPECT_RUNTIME_ERROR(CStr(Variant::date(5.1e257)), err::kOverflow);
  EXPECT_RUNTIME_ERROR(CStr(Variant::date(-657435)), err::kOverflow);
  EXPECT_RUNTIME_ERROR(Format(Variant::date(5.1e257), ""), err::kOverflow);
}

TEST(Conversions, RoundHalfToEven) {
  EXPECT_EQ(Round(2.5), 2);
  EXPECT_EQ(Round(3.5), 4);
  EXPECT_EQ(Round(0.5), 0);
  EXPECT_EQ(Round(-2.5), -2);
  EXPECT_EQ(Round(-1.5), -2);
  EXPECT_EQ(Round(1572864.0 / 1048576.0, 2), 1.5);
  EXPECT_EQ(Round(1500000.0 / 1048576.0, 2), 1.43);
  EXPECT_EQ(Round(0.125, 2), 0.12);  // an exact half
  EXPECT_EQ(Round(0.375, 2), 0.38);
  EXPECT_EQ(Round(0.135, 2), 0.14);  // stored a hair above the half
  EXPECT_EQ(Round(2.675, 2), 2.67);  // stored a hair below the half
  EXPECT_EQ(Round(1.005, 2), 1);
  EXPECT_EQ(Round(-0.125, 2), -0.12);
  EXPECT_EQ(Round(1e20, 2), 1e20);
  EXPECT_RUNTIME_ERROR(Round(1.5, -1), err::kInvalidCall);
}

}  // namespace
}  // namespace qb
