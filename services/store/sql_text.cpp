#include "services/store/sql_text.h"

#include <cctype>

namespace qb::sqlite {

namespace {

bool isWordChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$'; }

size_t skipBlanks(const std::string& s, size_t i) {
  while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i]))) ++i;
  return i;
}

bool keywordAt(const std::string& s, size_t i, const char* word) {
  size_t n = 0;
  for (; word[n] != '\0'; ++n) {
    if (i + n >= s.size() || std::toupper(static_cast<unsigned char>(s[i + n])) != word[n]) return false;
  }
  return i + n >= s.size() || !isWordChar(s[i + n]);
}

}  // namespace

std::string parameterizeLiterals(const std::string& sql, std::vector<std::string>& literals) {
  std::string out;
  out.reserve(sql.size());
  bool afterComparison = false;
  for (size_t i = 0; i < sql.size();) {
    char c = sql[i];
    if (c == '\'' || c == '"' || c == '[' || c == '`') {
      char close = c == '[' ? ']' : c;
      size_t end = sql.find(close, i + 1);
      end = end == std::string::npos ? sql.size() : end + 1;
      out.append(sql, i, end - i);
      i = end;
      afterComparison = false;
      continue;
    }
    if (c == '=' || c == '<' || c == '>' || (c == '!' && i + 1 < sql.size() && sql[i + 1] == '=')) {
      out += c;
      ++i;
      afterComparison = true;
      continue;
    }
    if (std::isspace(static_cast<unsigned char>(c))) {
      out += c;
      ++i;
      continue;
    }
    if (afterComparison) {
      size_t j = i;
      if (sql[j] == '-' || sql[j] == '+') ++j;
      size_t digitsStart = j;
      while (j < sql.size() && std::isdigit(static_cast<unsigned char>(sql[j]))) ++j;
      if (j < sql.size() && sql[j] == '.') {
        ++j;
        while (j < sql.size() && std::isdigit(static_cast<unsigned char>(sql[j]))) ++j;
      }
      if (j > digitsStart && (j >= sql.size() || !isWordChar(sql[j]))) {
        literals.push_back(sql.substr(i, j - i));
        out += '?';
        i = j;
        afterComparison = false;
        continue;
      }
    }
    afterComparison = false;
    if (isWordChar(c)) {
      size_t j = i;
      while (j < sql.size() && isWordChar(sql[j])) ++j;
      out.append(sql, i, j - i);
      i = j;
      continue;
    }
    out += c;
    ++i;
  }
  return out;
}

std::string withRowidColumns(const std::string& sql, const std::vector<std::string>& tables) {
  size_t i = skipBlanks(sql, 0);
  if (!keywordAt(sql, i, "SELECT")) return "";
  size_t afterSelect = skipBlanks(sql, i + 6);
  if (keywordAt(sql, afterSelect, "DISTINCT") || keywordAt(sql, afterSelect, "ALL")) return "";
  std::string columns;
  for (size_t n = 0; n < tables.size(); ++n) {
    columns += "\"" + tables[n] + "\".rowid AS qb_rowid_" + std::to_string(n) + ", ";
  }
  return sql.substr(0, afterSelect) + columns + sql.substr(afterSelect);
}

}  // namespace qb::sqlite
