#pragma once
// Table and column names as SQL compares them: without regard to ASCII case.
// NameMap looks a name up by string_view without making a string.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qb::sqlite {

inline char upperOf(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

struct NameEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
      if (upperOf(a[i]) != upperOf(b[i])) return false;
    }
    return true;
  }
};

struct NameHash {
  using is_transparent = void;
  size_t operator()(std::string_view name) const {
    size_t hash = 14695981039346656037ull;  // FNV-1a over the upper-case letters
    for (char c : name) hash = (hash ^ static_cast<unsigned char>(upperOf(c))) * 1099511628211ull;
    return hash;
  }
};

template <typename Value>
using NameMap = std::unordered_map<std::string, Value, NameHash, NameEqual>;

}  // namespace qb::sqlite
