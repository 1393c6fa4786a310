#include "merge/marker_sweep.h"

#include <algorithm>
#include <utility>

#include "merge/marker_keys.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr size_t npos = std::string::npos;

bool holdsAnyOf(std::string_view text, std::string_view bytes) {
  return text.find_first_of(bytes) != std::string_view::npos;
}

// True when the text ends with what could begin an RTF bracket (\'ab or
// \'bb): a value or a joined text behind it could complete one.
bool endsWithPartOfRichBracket(std::string_view text) {
  auto lower = [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); };
  const size_t n = text.size();
  if (n >= 1 && text[n - 1] == '\\') return true;
  if (n >= 2 && text[n - 2] == '\\' && text[n - 1] == '\'') return true;
  return n >= 3 && text[n - 3] == '\\' && text[n - 2] == '\'' &&
         (lower(text[n - 1]) == 'a' || lower(text[n - 1]) == 'b');
}

}  // namespace

MarkerSweep::MarkerSweep(const MarkerKeys& keys, std::string_view open, std::string_view close,
                         bool blankGuard, std::function<std::string(int32_t)> valueOf)
    : keys_(keys),
      open_(open),
      close_(close),
      plain_(open == "«"),
      blankGuard_(blankGuard),
      valueOf_(std::move(valueOf)) {}

void MarkerSweep::findPlaces(const std::string& text, int32_t passed) {
  places_.clear();
  values_.clear();
  straddleRisk_ = false;
  size_t nextOpen = findText(text, open_);
  size_t nextClose = findText(text, close_);
  size_t pending = npos;        // the last open bracket not yet closed
  bool unclosedBefore = false;  // an earlier open bracket since the last close
  size_t literalBegin = 0;      // where the text since the last place begins
  while (nextOpen != npos || nextClose != npos) {
    if (nextOpen != npos && (nextClose == npos || nextOpen < nextClose)) {
      if (pending != npos) unclosedBefore = true;
      pending = nextOpen;
      nextOpen = findText(text, open_, nextOpen + open_.size());
      continue;
    }
    if (pending != npos) {
      const size_t bodyBegin = pending + open_.size();
      const int32_t key =
          keys_.match(std::string_view(text).substr(bodyBegin, nextClose - bodyBegin), passed);
      if (key >= 0) {
        const size_t end = nextClose + close_.size();
        places_.push_back({pending, end, key, unclosedBefore});
        noteStraddleRisk(text, literalBegin, pending, end);
        literalBegin = end;
      }
      pending = npos;
      unclosedBefore = false;
    }
    nextClose = findText(text, close_, nextClose + close_.size());
  }
}

void MarkerSweep::noteStraddleRisk(const std::string& text, size_t literalBegin, size_t begin,
                                   size_t end) {
  if (plain_) {
    // "«" and "»" are two bytes: a stray first byte before a marker and a
    // stray second byte behind one would make a bracket once they meet.
    const bool strayBefore = begin > 0 && static_cast<unsigned char>(text[begin - 1]) == 0xC2;
    const unsigned char after = end < text.size() ? static_cast<unsigned char>(text[end]) : 0;
    if (strayBefore || after == 0xAB || after == 0xBB) straddleRisk_ = true;
  } else if (endsWithPartOfRichBracket(
                 std::string_view(text).substr(literalBegin, begin - literalBegin))) {
    straddleRisk_ = true;
  }
}

std::string MarkerSweep::bytesBefore(const std::string& text, size_t i, size_t count) const {
  std::string bytes;
  auto take = [&](std::string_view piece) {
    const size_t wanted = count - bytes.size();
    bytes.insert(0, piece.substr(piece.size() > wanted ? piece.size() - wanted : 0));
  };
  size_t literalEnd = places_[i].begin;
  for (size_t j = i;; --j) {
    const size_t literalBegin = j > 0 ? places_[j - 1].end : 0;
    take(std::string_view(text).substr(literalBegin, literalEnd - literalBegin));
    if (bytes.size() >= count || j == 0) break;
    take(content(text, places_[j - 1]));
    if (bytes.size() >= count) break;
    literalEnd = places_[j - 1].begin;
  }
  return bytes;
}

std::string_view MarkerSweep::content(const std::string& text, const Place& place) const {
  if (place.value >= 0) return values_[place.value];
  return std::string_view(text).substr(place.begin, place.end - place.begin);
}

bool MarkerSweep::mayChangeMarkers(const std::string& text, const std::vector<size_t>& replaced,
                                   const std::string& value) const {
  for (size_t i : replaced) {
    // The open bracket before it now closes where this marker closed.
    if (places_[i].unclosedOpenBefore) return true;
  }
  if (holdsAnyOf(value, plain_ ? std::string_view("\xC2\xAB\xBB") : std::string_view("\\'"))) {
    return true;
  }
  if (!straddleRisk_) return false;
  for (size_t i : replaced) {
    if (plain_ ? value.empty() : endsWithPartOfRichBracket(bytesBefore(text, i, 3))) return true;
  }
  return false;
}

std::string MarkerSweep::currentText(const std::string& text) const {
  std::string result;
  result.reserve(text.size());
  size_t literalBegin = 0;
  for (const Place& place : places_) {
    result.append(text, literalBegin, place.begin - literalBegin);
    result += content(text, place);
    literalBegin = place.end;
  }
  result.append(text, literalBegin, npos);
  return result;
}

void MarkerSweep::run(std::string& text) {
  int32_t passed = -1;  // keys up to this one have had their turn
  for (;;) {
    findPlaces(text, passed);
    // The places of each key, keys in order, places in text order.
    std::vector<std::pair<int32_t, size_t>> byKey;
    for (size_t i = 0; i < places_.size(); ++i) byKey.emplace_back(places_[i].key, i);
    std::sort(byKey.begin(), byKey.end());
    bool readAgain = false;
    std::vector<size_t> replaced;
    for (size_t at = 0; at < byKey.size() && !readAgain;) {
      const int32_t key = byKey[at].first;
      replaced.clear();
      for (; at < byKey.size() && byKey[at].first == key; ++at)
        replaced.push_back(byKey[at].second);
      std::string value = valueOf_(key);
      passed = key;
      if (blankGuard_) {
        // The first occurrence decides for all: unless it starts the text or
        // follows a blank, a blank goes ahead of the value.
        const std::string before = bytesBefore(text, replaced.front(), 1);
        if (!before.empty() && before != " ") value.insert(0, " ");
      }
      values_.push_back(std::move(value));
      for (size_t i : replaced) places_[i].value = static_cast<int32_t>(values_.size() - 1);
      readAgain = mayChangeMarkers(text, replaced, values_.back());
    }
    text = currentText(text);
    if (!readAgain) return;
  }
}

}  // namespace qb
