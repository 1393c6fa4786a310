#pragma once
// DataObject: what an OLE drag carries. It holds a set of clipboard formats
// and, for the file format, a list of file paths. The GUI fills it from a drop
// (text/uri-list becomes a file list); tests build one directly.

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace qb {

// Clipboard format of a list of file paths.
constexpr int16_t CF_HDROP = 15;
constexpr int16_t vbCFText = 1;
// Drop effects.
constexpr int32_t DROPEFFECT_NONE = 0;
constexpr int32_t DROPEFFECT_COPY = 1;
constexpr int32_t DROPEFFECT_MOVE = 2;
// OLEDragMode and OLEDropMode values.
constexpr int16_t vbOLEDragManual = 0;
constexpr int16_t vbOLEDragAutomatic = 1;
constexpr int16_t vbOLEDropNone = 0;
constexpr int16_t vbOLEDropManual = 1;
// The state argument of OLEDragOver.
constexpr int16_t vbEnter = 0;
constexpr int16_t vbLeave = 1;
constexpr int16_t vbOver = 2;

// The file list of a data object, 1-based.
class DataObjectFiles {
 public:
  int32_t Count() const { return static_cast<int32_t>(paths_.size()); }
  // The path at index (from 1); an index out of range is refused with
  // RuntimeError(err::kSubscript, "Subscript out of range").
  const std::string& item(int32_t index) const;
  const std::string& operator()(int32_t index) const { return item(index); }
  void Add(std::string path) { paths_.push_back(std::move(path)); }
  void Clear() { paths_.clear(); }
  const std::vector<std::string>& paths() const { return paths_; }

 private:
  std::vector<std::string> paths_;
};

class DataObject {
 public:
  DataObject() = default;
  // A data object holding the files (and the CF_HDROP format).
  static DataObject withFiles(const std::vector<std::string>& paths);

  // True when the object holds data of the format.
  bool GetFormat(int16_t format) const { return formats_.count(format) > 0; }
  // Declares a format as held (SetData with no data).
  void SetData(int16_t format) { formats_.insert(format); }
  // Drops all formats and files.
  void Clear();

  // The file list; adding files does not by itself declare CF_HDROP.
  DataObjectFiles& Files() { return files_; }
  const DataObjectFiles& Files() const { return files_; }

 private:
  std::set<int16_t> formats_;
  DataObjectFiles files_;
};

}  // namespace qb
