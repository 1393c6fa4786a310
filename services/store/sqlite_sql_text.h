#pragma once
// The SQL texts the system composes carry their key in decimal ("... WHERE
// CompanyID=" + id + ";"), so the same query arrives under a new text for
// every key. The store prepares such a text once: each whole number that
// stands as the right-hand side of a comparison becomes a parameter, and the
// prepared statement is kept under the text with parameters and reused with
// the numbers bound. A number elsewhere (ORDER BY 1, IN (1, 2), LIMIT 5)
// stays in the text, so the statement means what the text means.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qb::sqlite {

struct KeyedSql {
  std::string text;           // the SQL with "?" for each key taken out
  std::vector<int64_t> keys;  // the keys, in the order of their parameters
};

// The SQL with the keys of its comparisons taken out as parameters. A text
// that has parameters of its own comes back unchanged with no keys.
KeyedSql takeOutKeys(std::string_view sql);

// Where the select list of a plain "SELECT ..." begins (just after the
// keyword); npos for any other statement, and for SELECT DISTINCT or ALL,
// whose rows would change if columns were added.
size_t selectListStart(std::string_view sql);

// An identifier in double quotes, for SQL the store composes.
std::string quoted(std::string_view identifier);

}  // namespace qb::sqlite
