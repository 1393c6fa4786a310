#pragma once
// The merge field catalogues are data: tables of rows, each with the
// condition under which it exists (the firm's country and province, the
// list's use), read by one small builder. The builder adds a row the way
// every catalogue adds one: raise the counter, add the table row, write the
// list line (unless the list is bypassed), give that line the counter as its
// ItemData. Header and blank lines carry ItemData -1 and add no row.
//
// Texts in the tables may name values worked out when the list is built:
//   display names  {GST} {PST} {BOARD} {PROVINCE}: the firm's labels
//   samples        {YEAR}: this year;
//                  {DATE:Y-M-D}: a date as "mmm d, yyyy", Y a year, THIS or LAST
// "This year" is the host clock's.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "services/errors/procedure.h"
#include "services/runtime/variant.h"

namespace qb {

class clsInsertFieldsInRTB;
class ListBox;

// When a row exists. A province condition holds only in Canada.
enum class CountryIs : uint8_t { Any, Canada, NotCanada };
enum class UseIs : uint8_t { Any, Mapping, NotMapping };
struct When {
  CountryIs country = CountryIs::Any;
  UseIs use = UseIs::Any;
  int8_t province = -1;         // -1: any province
  bool allButProvince = false;  // with a province: every province but that one
};
inline constexpr When kAlways{};
inline constexpr When kCanada{CountryIs::Canada};
inline constexpr When kNotCanada{CountryIs::NotCanada};
inline constexpr When kMapping{CountryIs::Any, UseIs::Mapping};
inline constexpr When kNotMapping{CountryIs::Any, UseIs::NotMapping};
inline constexpr When kCanadaNotMapping{CountryIs::Canada, UseIs::NotMapping};
constexpr When inProvince(int8_t province) {
  return {CountryIs::Canada, UseIs::Any, province, false};
}
constexpr When outsideProvince(int8_t province) {
  return {CountryIs::Canada, UseIs::Any, province, true};
}

// A maximum length the row leaves out: its sixth column reads back empty.
inline constexpr int16_t kLeftOut = INT16_MIN;

struct CatalogueRow {
  const char* fieldName;
  const char* displayName;
  int16_t type;
  const char* sample;
  int16_t maxLength;
  When when = kAlways;
  const char* listLine = nullptr;  // the line's text where it is not the display name
};

// The five custom fields that end a group. Field N is named fieldName + N and
// labelled by the column labelColumn + N of the first row of query; a label
// left as "Custom N" (after one trailing colon is cut) gives defaultName + N.
// The display name is displayPrefix + the label. Without a connected store
// the five rows take the default names, and the first of them carries its
// sample in column 6 and its maximum length in column 7.
struct CustomBlock {
  const char* query;
  const char* fieldName;
  const char* labelColumn;
  const char* defaultName;
  const char* sample;
  const char* displayPrefix = "";
  int16_t maxLength = 255;
  const char* fallbackFifthName = nullptr;  // the fifth fallback row's display name
};

// The labels of the firm's province: sales taxes, workers' board, province.
struct CatalogueLabels {
  std::string gst;
  std::string pst;
  std::string board;
  std::string province;
};
// GST is "HST" in Nova Scotia, New Brunswick and Newfoundland, and in
// British Columbia and Ontario from 1 July 2010 (the host's clock); PST is
// "QST" in Quebec.
CatalogueLabels workOutLabels(int32_t provinceCode);

class CatalogueBuilder {
 public:
  // Adds to the table of fields, and to box unless bypassListBox. Each row is
  // one step of proc: a failure goes to proc's handler and the rows added so
  // far stay.
  CatalogueBuilder(clsInsertFieldsInRTB& fields, Procedure& proc, ListBox* box, bool bypassListBox);

  void useLabels(CatalogueLabels labels) { labels_ = std::move(labels); }
  // A header or blank separator line: shown only when the list is in use and
  // its headers are on.
  void header(const char* text);
  // A line that inserts nothing, shown whenever the list is in use.
  void line(const char* text);
  // The rows whose condition holds, in order.
  void rows(const char* source, std::span<const CatalogueRow> rows);
  void customBlock(const char* source, const CustomBlock& block);
  // Refresh of the list and two yields, so that it paints at once.
  void refreshList();

 private:
  bool holds(const When& when) const;
  std::string expand(const char* text) const;
  // Raises the counter (a run-time overflow past its maximum).
  void raiseCounter();
  // Adds the row under the counter, and its list line.
  void put(std::vector<Variant> columns, const std::string& listLine);
  void fallbackCustomRows(const char* source, const CustomBlock& block);

  clsInsertFieldsInRTB& fields_;
  Procedure& proc_;
  ListBox* box_;
  bool bypassListBox_;
  CatalogueLabels labels_;
  int year_;
};

}  // namespace qb
