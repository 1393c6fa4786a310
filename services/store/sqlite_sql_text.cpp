#include "services/store/sqlite_sql_text.h"

#include <charconv>

namespace qb::sqlite {

namespace {

// Integer: digits only; Number: any other numeric literal; Literal: quoted
// text or a quoted identifier.
enum class Token {
  Space,
  Word,
  Integer,
  Number,
  Literal,
  Comparison,
  Minus,
  Parameter,
  Other,
  End
};

bool isWordChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '$' || static_cast<unsigned char>(c) >= 0x80;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads SQL one token at a time, as SQLite's tokenizer splits it; comments
// and blanks come as Space.
class Scanner {
 public:
  explicit Scanner(std::string_view sql) : sql_(sql) {}

  size_t position() const { return at_; }

  Token next(size_t& start) {
    start = at_;
    if (at_ >= sql_.size()) return Token::End;
    char c = sql_[at_];
    if (c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f') {
      ++at_;
      return Token::Space;
    }
    if (c == '-' && peek(1) == '-') {
      while (at_ < sql_.size() && sql_[at_] != '\n') ++at_;
      return Token::Space;
    }
    if (c == '/' && peek(1) == '*') {
      size_t end = sql_.find("*/", at_ + 2);
      at_ = end == std::string_view::npos ? sql_.size() : end + 2;
      return Token::Space;
    }
    if (c == '\'' || c == '"' || c == '`') return quotedRun(c);
    if (c == '[') {
      size_t end = sql_.find(']', at_);
      at_ = end == std::string_view::npos ? sql_.size() : end + 1;
      return Token::Literal;
    }
    if (isDigit(c) || (c == '.' && isDigit(peek(1)))) return number();
    if (c == '?' || ((c == ':' || c == '@' || c == '$' || c == '#') && isWordChar(peek(1)))) {
      ++at_;
      while (at_ < sql_.size() && isWordChar(sql_[at_])) ++at_;
      return Token::Parameter;
    }
    if (isWordChar(c)) {
      while (at_ < sql_.size() && isWordChar(sql_[at_])) ++at_;
      return Token::Word;
    }
    return operatorToken(c);
  }

 private:
  char peek(size_t ahead) const { return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : '\0'; }

  // A quoted run ends at its quote unless the quote is doubled.
  Token quotedRun(char quote) {
    ++at_;
    while (at_ < sql_.size()) {
      if (sql_[at_] == quote) {
        if (peek(1) != quote) break;
        ++at_;
      }
      ++at_;
    }
    if (at_ < sql_.size()) ++at_;
    return Token::Literal;
  }

  Token number() {
    bool whole = true;
    while (at_ < sql_.size()) {
      char c = sql_[at_];
      if ((c == 'e' || c == 'E') && (peek(1) == '+' || peek(1) == '-')) {
        whole = false;
        at_ += 2;
      } else if (isDigit(c)) {
        ++at_;
      } else if (c == '.' || isWordChar(c)) {
        whole = false;
        ++at_;
      } else {
        break;
      }
    }
    return whole ? Token::Integer : Token::Number;
  }

  Token operatorToken(char c) {
    char n = peek(1);
    if (c == '=') {
      at_ += n == '=' ? 2 : 1;
      return Token::Comparison;
    }
    if (c == '<' || c == '>' || c == '!') {
      if ((c == '<' && n == '<') || (c == '>' && n == '>')) {  // shifts
        at_ += 2;
        return Token::Other;
      }
      bool comparison = c != '!' || n == '=';
      at_ += n == '=' || (c == '<' && n == '>') ? 2 : 1;
      return comparison ? Token::Comparison : Token::Other;
    }
    ++at_;
    return c == '-' ? Token::Minus : Token::Other;
  }

  std::string_view sql_;
  size_t at_ = 0;
};

}  // namespace

KeyedSql takeOutKeys(std::string_view sql) {
  KeyedSql result;
  result.text.reserve(sql.size());
  Scanner scanner(sql);
  Token before = Token::Other, last = Token::Other;  // the two tokens before, blanks aside
  size_t minusAt = 0;                                // where the last Minus began in text
  for (;;) {
    size_t start = 0;
    Token token = scanner.next(start);
    if (token == Token::End) break;
    std::string_view piece = sql.substr(start, scanner.position() - start);
    if (token == Token::Parameter) return KeyedSql{std::string(sql), {}};
    if (token == Token::Space) {
      result.text.append(piece);
      continue;
    }
    bool negative = last == Token::Minus && before == Token::Comparison;
    if (token == Token::Integer && (last == Token::Comparison || negative)) {
      int64_t key = 0;
      auto [end, error] = std::from_chars(piece.data(), piece.data() + piece.size(), key);
      if (error == std::errc() && end == piece.data() + piece.size()) {
        if (negative) result.text.resize(minusAt);
        result.text += '?';
        result.keys.push_back(negative ? -key : key);
        before = last;
        last = Token::Other;
        continue;
      }
    }
    if (token == Token::Minus) minusAt = result.text.size();
    result.text.append(piece);
    before = last;
    last = token;
  }
  return result;
}

size_t selectListStart(std::string_view sql) {
  Scanner scanner(sql);
  size_t start = 0;
  Token token;
  while ((token = scanner.next(start)) == Token::Space) {
  }
  auto isWord = [&](const char* word) {
    std::string_view piece = sql.substr(start, scanner.position() - start);
    if (token != Token::Word || piece.size() != std::char_traits<char>::length(word)) return false;
    for (size_t i = 0; i < piece.size(); ++i) {
      if ((piece[i] & ~0x20) != word[i]) return false;
    }
    return true;
  };
  if (!isWord("SELECT")) return std::string_view::npos;
  size_t listStart = scanner.position();
  while ((token = scanner.next(start)) == Token::Space) {
  }
  if (isWord("DISTINCT") || isWord("ALL")) return std::string_view::npos;
  return listStart;
}

std::string quoted(std::string_view identifier) {
  std::string text = "\"";
  for (char c : identifier) {
    if (c == '"') text += '"';
    text += c;
  }
  return text + '"';
}

}  // namespace qb::sqlite
