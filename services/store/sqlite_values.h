#pragma once
// How the store turns what SQLite holds into field values and the text a
// caller writes into what SQLite stores, by the column's declared type.
//
// INTEGER, INT, LONG, SMALLINT read as Long (Double past the 32-bit range);
// BOOLEAN, BIT, YESNO as Boolean (stored 0/1); REAL, DOUBLE, FLOAT, CURRENCY,
// NUMERIC as Double; DATE, DATETIME, TIME as Date (stored as ISO text,
// "2025-03-31" or "2025-03-31 09:30:00"); TEXT, VARCHAR, MEMO as String. An
// expression without a declared type reads by the value's storage class.

#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "services/runtime/variant.h"

namespace qb::sqlite {

enum class FieldKind { Long, Boolean, Double, Date, Text, Untyped };

// The kind a declared column type stands for; Untyped for null or a type
// none of the above names.
FieldKind kindOfDeclaredType(const char* declaredType);

// A value as SQLite stores it (type is SQLITE_NULL, _INTEGER, _FLOAT, _TEXT).
struct SqlValue {
  int type = SQLITE_NULL;
  int64_t integer = 0;
  double real = 0;
  std::string text;
};

// Column i of the statement's current row as a field of that kind reads it.
Variant columnVariant(sqlite3_stmt* stmt, int i, FieldKind kind);
// A stored value as a field of that kind reads it.
Variant toVariant(const SqlValue& value, FieldKind kind);

// The text a caller writes, as the field of that kind stores it: Booleans
// from "True"/"False" or a number (any case), numbers by the run-time's
// reading, dates by CDate. "" to a field that is not text stores Null. Fails
// with a type mismatch naming the field when the text is no such value.
SqlValue fromText(const std::string& text, FieldKind kind, const std::string& fieldName);

void bindValue(sqlite3_stmt* stmt, int i, const SqlValue& value);

// A date serial as the ISO text the store keeps: "2025-03-31", with
// " 09:30:00" when it has a time of day.
std::string isoDate(double serial);

}  // namespace qb::sqlite
