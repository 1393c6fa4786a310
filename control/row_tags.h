#pragma once
// The tags the component writes on its tree nodes and list rows, and reads
// back in every command: the node key "Category:<id>" and the row tag
// "Document:<id>*/<path>". Internal to the component.

#include <cstdint>
#include <string>

#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb::rowTags {

constexpr const char* kDocumentTag = "Document:";
constexpr const char* kCategoryKey = "Category:";
constexpr const char* kTagPathMark = "*/";

// True when a node key names a category ("Category:" anywhere, any case).
inline bool isCategoryKey(const std::string& key) {
  return InStr(key, kCategoryKey, CompareMode::Text) > 0;
}
// The id at the end of a node key "Category:<id>".
inline int32_t categoryIDFromKey(const std::string& key) {
  return CLng(Variant(Right(key, Len(key) - Len(kCategoryKey))));
}
inline std::string categoryKey(int32_t categoryID) {
  return kCategoryKey + std::to_string(categoryID);
}
// "Document:<id>*/<path>".
inline std::string documentTag(int32_t documentID, const std::string& path) {
  return kDocumentTag + std::to_string(documentID) + kTagPathMark + path;
}

}  // namespace qb::rowTags
