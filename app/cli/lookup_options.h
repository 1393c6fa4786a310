#pragma once
// The options of the lookup commands: the record family and the custom
// column (--family, --custom), the client of a client repeater (--company,
// --contact or --client-data), the tax year of the personal tax family
// (--tax-year), the value of a repeater (--value) and the field of a lookup
// (--field); and the progress bar their runs draw from the class's events.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/cli/command.h"
#include "lookup/cls_lookup_fields.h"

namespace qb::cli {

// Their lines for a command's --help.
inline constexpr const char* kFamilyHelp =
    "  --family N         the record family: 1 task schedule rows, 2 personal tax\n"
    "                     rows, 3 company projects\n"
    "  --custom N         the custom column: Custom1 to Custom5\n";
inline constexpr const char* kTaxYearHelp =
    "  --tax-year Y       the tax year of the personal tax rows (default: the year\n"
    "                     before today's, see --today)\n";

// An object for the family and column of the options; the tax year from
// --tax-year when given, else the locale's. Make it once the command's
// Session is open (it sets the locale and the clock). Throws UsageError for a family outside 1 to 3
// or a column number that is no 16-bit whole number.
std::unique_ptr<clsLookupFields> lookupFromOptions(const Arguments& args);

// Draws the progress of the run of one kind of event on standard error when
// it is a terminal, and tells afterwards whether the run wrote anything.
class LookupProgress {
 public:
  enum class Run { ClientRepeater, TypeRepeater, Remove, Lookup };
  LookupProgress(Context& context, clsLookupFields& fields, Run run);
  ~LookupProgress();
  // True once the run raised its start event.
  bool started() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

// A lookup command's usage line and the lines of its options.
std::string lookupHelp(const std::string& usage, const std::string& what,
                       const std::string& options);

}  // namespace qb::cli
