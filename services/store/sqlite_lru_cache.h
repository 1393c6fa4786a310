#pragma once
// A cache of shared values under a text key that keeps the most recently used
// entries up to its capacity and drops the least recently used beyond it.

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace qb::sqlite {

template <typename Value>
class LruCache {
 public:
  explicit LruCache(size_t capacity) : capacity_(capacity) {}

  // The value under the key, now the most recently used; null when absent.
  std::shared_ptr<Value> find(std::string_view key) {
    auto found = index_.find(key);
    if (found == index_.end()) return nullptr;
    entries_.splice(entries_.begin(), entries_, found->second);
    return found->second->second;
  }

  void insert(std::string key, std::shared_ptr<Value> value) {
    auto found = index_.find(key);
    if (found != index_.end()) {
      entries_.erase(found->second);
      index_.erase(found);
    }
    entries_.emplace_front(std::move(key), std::move(value));
    index_.emplace(std::string_view(entries_.front().first), entries_.begin());
    while (entries_.size() > capacity_) {
      index_.erase(std::string_view(entries_.back().first));
      entries_.pop_back();
    }
  }

  void clear() {
    index_.clear();
    entries_.clear();
  }

 private:
  using Entry = std::pair<std::string, std::shared_ptr<Value>>;
  size_t capacity_;
  std::list<Entry> entries_;  // most recently used first
  std::unordered_map<std::string_view, typename std::list<Entry>::iterator> index_;
};

}  // namespace qb::sqlite
