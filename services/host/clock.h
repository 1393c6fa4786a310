#pragma once
// The clock the host may set: today's date for every procedure that reads it
// (samples built from the current year, the date rules of the merge, today's
// date in a template), so that a host can make results reproducible. When the
// host sets none, the machine's clock answers.

#include <memory>

namespace qb {

class Clock {
 public:
  virtual ~Clock() = default;
  // The current local date and time as a date serial.
  virtual double Now() = 0;
};

// The machine's clock.
class MachineClock : public Clock {
 public:
  double Now() override;
};

// A clock that stands still at one date serial (a command line's --today, a
// test's fixed day).
class FixedClock : public Clock {
 public:
  explicit FixedClock(double serial) : serial_(serial) {}
  double Now() override { return serial_; }

 private:
  double serial_;
};

// The module's clock, or the machine's when the host set none.
double hostNow();
// The whole day of hostNow(): today's date without the time.
double hostToday();

}  // namespace qb
