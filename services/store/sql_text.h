#pragma once
// Rewrites of the system's SQL text that the SQLite store makes before it
// prepares a statement: numeric literals after a comparison become
// parameters, so that one cached statement serves every key; and the rowid
// of each base table joins the select list, so that a write goes to exactly
// the row it was made on.

#include <string>
#include <vector>

namespace qb::sqlite {

// The text with each numeric literal that follows a comparison operator
// (=, <>, <, >, <=, >=, !=) replaced by "?"; the literals in order go to
// literals. Quoted text and identifiers are left alone.
std::string parameterizeLiterals(const std::string& sql, std::vector<std::string>& literals);

// The text with "T.rowid AS qb_rowid_N, " inserted after the leading SELECT
// for each table; empty when the text does not start with a plain SELECT
// (SELECT DISTINCT, a compound or another statement).
std::string withRowidColumns(const std::string& sql, const std::vector<std::string>& tables);

}  // namespace qb::sqlite
