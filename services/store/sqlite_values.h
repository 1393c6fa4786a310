#pragma once
// Values between SQLite and the system: a column read becomes a Variant by
// the column's declared type, and a written text converts to that type.

#include <sqlite3.h>

#include <string>

#include "services/runtime/variant.h"

namespace qb::sqlite {

enum class ColumnKind { Text, Integer, Boolean, Real, Date, Untyped };

// The kind a declared type names ("INTEGER", "BOOLEAN", "CURRENCY", "DATETIME", ...).
ColumnKind kindOf(const char* declaredType);

// The value at column index of the statement's current row.
Variant readColumn(sqlite3_stmt* statement, int index, ColumnKind kind);

// Binds text written to a column of that kind, converted: Booleans from
// "True"/"False" or a number, numbers by the run-time's rules, dates stored as
// ISO text ("2026-11-23" or "2026-11-23 14:05:00"), "" as Null for every kind
// but text. A text that does not convert fails with a type mismatch.
void bindWritten(sqlite3_stmt* statement, int index, const std::string& value, ColumnKind kind);

// A date serial as the ISO text the store keeps.
std::string isoDate(double serial);

}  // namespace qb::sqlite
