#pragma once
// What the functions of modDatabaseFunctions share besides the query shape:
// their trace names and the firm's country from the module's locale.

#include <cstdint>
#include <string>

namespace qb::modDatabaseFunctions {

// "Orvanta.exe-modDatabaseFunctions-" + procedure.
std::string traceName(const char* procedure);

// The locale's getCountryCode. Without a locale in module state it fails
// with an object-required RuntimeError, as any call on a missing service
// object does.
int32_t countryCode();

}  // namespace qb::modDatabaseFunctions
