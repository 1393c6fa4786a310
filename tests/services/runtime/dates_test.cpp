// Date serials, date text as CDate reads it and as CStr writes it.

#include "services/runtime/dates.h"

#include <cstdlib>

#include "services/runtime/conversions.h"
#include "tests/services/runtime/runtime_test.h"

namespace qb {
namespace {

std::string partsOf(double serial) {
  DateParts p = splitDate(serial);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d w%d", p.year, p.month, p.day,
                p.hour, p.minute, p.second, p.weekday);
  return text;
}

TEST(Dates, SerialsAndParts) {
  EXPECT_EQ(DateSerial(1899, 12, 30), 0);
  EXPECT_EQ(DateSerial(1900, 1, 1), 2);
  EXPECT_EQ(DateSerial(2026, 11, 23), 46349);
  EXPECT_EQ(DateSerial(2026, 13, 1), DateSerial(2027, 1, 1));
  EXPECT_EQ(DateSerial(2026, 3, 0), DateSerial(2026, 2, 28));
  EXPECT_EQ(DateSerial(26, 1, 1), DateSerial(2026, 1, 1));
  EXPECT_EQ(DateSerial(51, 6, 25), DateSerial(1951, 6, 25));
  EXPECT_EQ(partsOf(DateSerial(2026, 11, 23) + TimeSerial(14, 5, 9)), "2026-11-23 14:05:09 w2");
  EXPECT_EQ(partsOf(0), "1899-12-30 00:00:00 w7");
  EXPECT_EQ(partsOf(-1.25),
            "1899-12-29 06:00:00 w6");  // the fraction is the time, whatever the sign
  EXPECT_EQ(partsOf(-0.9999999999), "1899-12-29 00:00:00 w6");
  EXPECT_EQ(partsOf(2.9999999999), "1900-01-02 00:00:00 w3");

  const char* zone = std::getenv("TZ");
  std::string saved = zone != nullptr ? zone : "";
  setenv("TZ", "UTC", 1);
  tzset();
  EXPECT_EQ(fromTimeT(0), DateSerial(1970, 1, 1));
  EXPECT_EQ(partsOf(fromTimeT(1795442700)), "2026-11-23 14:05:00 w2");
  if (zone != nullptr)
    setenv("TZ", saved.c_str(), 1);
  else
    unsetenv("TZ");
  tzset();
}

TEST(Dates, TextToDate) {
  const double day = DateSerial(2026, 11, 23);
  const double at205pm = day + TimeSerial(14, 5, 0);
  EXPECT_EQ(CDate(Variant("2026-11-23")), day);
  EXPECT_EQ(CDate(Variant("2026-11-23 14:05:00")), at205pm);
  EXPECT_EQ(CDate(Variant("2026-11-23T14:05:00")), at205pm);
  EXPECT_EQ(CDate(Variant("2026-11-23 14:05:00.250")), at205pm);
  EXPECT_EQ(CDate(Variant("11/23/2026")), day);
  EXPECT_EQ(CDate(Variant("11/23/26")), day);
  EXPECT_EQ(CDate(Variant("11-23-2026")), day);
  EXPECT_EQ(CDate(Variant("11/23/2026 2:05 PM")), at205pm);
  EXPECT_EQ(CDate(Variant("11/23/2026 12:00 am")), day);
  EXPECT_EQ(CDate(Variant("Nov 23, 2026")), day);
  EXPECT_EQ(CDate(Variant("November 23 2026")), day);
  EXPECT_EQ(CDate(Variant("23-Nov-2026")), day);
  EXPECT_EQ(CDate(Variant(" 2:05 PM\t")), TimeSerial(14, 5, 0));
  EXPECT_EQ(CDate(Variant(46349.5)), day + 0.5);
  EXPECT_RUNTIME_ERROR(CDate(Variant("2026-02-30")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant("2026-11-23 25:00")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant("11/23")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant("Nov 2026")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant("46349")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant("someday")), err::kTypeMismatch);
  EXPECT_RUNTIME_ERROR(CDate(Variant::null()), err::kInvalidUseOfNull);
  EXPECT_RUNTIME_ERROR(CDate(Variant(1e9)), err::kOverflow);
}

TEST(Dates, DateToText) {
  const double day = DateSerial(2026, 11, 3);
  EXPECT_EQ(CStr(Variant::date(day)), "11/3/2026");
  EXPECT_EQ(CStr(Variant::date(day + TimeSerial(14, 5, 0))), "11/3/2026 2:05:00 PM");
  EXPECT_EQ(CStr(Variant::date(day + TimeSerial(0, 30, 0))), "11/3/2026 12:30:00 AM");
  EXPECT_EQ(CStr(Variant::date(TimeSerial(14, 5, 0))), "2:05:00 PM");
  EXPECT_EQ(CStr(Variant::date(0)), "12:00:00 AM");
  EXPECT_EQ(CStr(Variant::date(DateSerial(1899, 12, 29))), "12/29/1899");
}

TEST(Dates, MinutesBetweenCountMinuteBoundaries) {
  const double nine = DateSerial(2026, 3, 2) + TimeSerial(9, 0, 0);
  EXPECT_EQ(DateDiffMinutes(nine, nine + TimeSerial(1, 30, 0)), 90);
  EXPECT_EQ(DateDiffMinutes(nine + TimeSerial(1, 30, 0), nine), -90);
  EXPECT_EQ(DateDiffMinutes(nine, nine + TimeSerial(0, 0, 59)), 0);
  EXPECT_EQ(DateDiffMinutes(nine + TimeSerial(0, 0, 59), nine + TimeSerial(0, 1, 0)), 1);
  // Across midnight and across the start of the serials.
  EXPECT_EQ(DateDiffMinutes(DateSerial(2026, 3, 1) + TimeSerial(23, 50, 0), nine), 9 * 60 + 10);
  EXPECT_EQ(DateDiffMinutes(-1.25, 0.25), 24 * 60);  // 29 December 1899 6:00 to the next day
}

}  // namespace
}  // namespace qb
