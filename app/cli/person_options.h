#pragma once
// The options that name a person for the address and summary commands:
// --contact or --employee (one of them is required) and --company, each -1
// when left out.

#include <cstdint>

#include "app/cli/command.h"

namespace qb::cli {

struct PersonOptions {
  int32_t contactID = -1;
  int32_t employeeID = -1;
  int32_t companyID = -1;
};

inline PersonOptions personOptions(const Arguments& args) {
  if (!args.has("contact") && !args.has("employee")) {
    throw UsageError("give --contact ID or --employee ID");
  }
  return {args.id("contact", -1), args.id("employee", -1), args.id("company", -1)};
}

}  // namespace qb::cli
