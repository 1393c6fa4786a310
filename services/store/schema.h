#pragma once
// The client database's schema: every table and column the system reads or
// writes (schema.sql, compiled in).

namespace qb {

// The CREATE statements of the whole schema, as one script.
const char* schemaSql();

}  // namespace qb
