#pragma once
// The client database's schema: every table and column the system reads or
// writes (schema.sql, compiled in), and the mark that tells a client database
// from any other file.

#include <cstdint>

namespace qb {

// SQLite's application_id of a client database ("QBOX"), and the schema
// version kept in its user_version; schema.sql sets both as its last
// statements.
constexpr int32_t kClientDatabaseApplicationId = 0x51424F58;
constexpr int32_t kClientDatabaseSchemaVersion = 1;

// The CREATE statements of the whole schema and the mark, as one script.
const char* schemaSql();

}  // namespace qb
