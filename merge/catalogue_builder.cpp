#include "merge/catalogue_builder.h"

#include <cstdlib>
#include <cstring>
#include <limits>

#include "data/query_shape.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/controls/list_box.h"
#include "services/controls/platform.h"
#include "services/host/clock.h"
#include "services/host/locale_reference.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

// The workers' board and the short name of each province with rows of its
// own; every other code, Ontario's 3 included, has "WSIB" and "ON".
struct ProvinceLabels {
  int32_t code;
  const char* board;
  const char* province;
};
constexpr ProvinceLabels kProvinceLabels[] = {
    {0, "WCB", "Alberta"}, {1, "WCB", "BC"},       {2, "WCB", "Manitoba"},
    {4, "WCB", "Sask."},   {8, "CSST", "Que."},    {9, "WCB", "N.S."},
    {10, "WHSCC", "N.B."}, {11, "WHSCC", "Nfld."}, {12, "WCB", "P.E.I."},
};

// "{DATE:THIS-01-31}" and the like: the date as "mmm d, yyyy".
std::string sampleDate(const std::string& pattern, int thisYear) {
  const std::vector<std::string> parts = Split(pattern, "-");
  if (parts.size() != 3) throw RuntimeError(err::kInvalidCall, "Bad sample date " + pattern);
  const int year = parts[0] == "THIS"   ? thisYear
                   : parts[0] == "LAST" ? thisYear - 1
                                        : std::atoi(parts[0].c_str());
  return Format(
      Variant::date(DateSerial(year, std::atoi(parts[1].c_str()), std::atoi(parts[2].c_str()))),
      "mmm d, yyyy");
}

}  // namespace

CatalogueLabels workOutLabels(int32_t provinceCode) {
  CatalogueLabels labels{"GST", provinceCode == 8 ? "QST" : "PST", "WSIB", "ON"};
  if (provinceCode == 9 || provinceCode == 10 || provinceCode == 11) labels.gst = "HST";
  if ((provinceCode == 1 || provinceCode == 3) && merge::harmonisedTaxInForce()) labels.gst = "HST";
  for (const ProvinceLabels& row : kProvinceLabels) {
    if (row.code == provinceCode) {
      labels.board = row.board;
      labels.province = row.province;
    }
  }
  return labels;
}

CatalogueBuilder::CatalogueBuilder(clsInsertFieldsInRTB& fields, Procedure& proc, ListBox* box,
                                   bool bypassListBox)
    : fields_(fields),
      proc_(proc),
      box_(box),
      bypassListBox_(bypassListBox || box == nullptr),
      year_(splitDate(hostToday()).year) {}

void CatalogueBuilder::header(const char* text) {
  if (fields_.ShowListCategoryHeaders()) line(text);
}

void CatalogueBuilder::line(const char* text) {
  proc_.step([&] {
    if (bypassListBox_) return;
    box_->AddItem(text);
    box_->setItemData(box_->NewIndex(), -1);
  });
}

bool CatalogueBuilder::holds(const When& when) const {
  // The locale is asked anew for every row that depends on it.
  if (when.country != CountryIs::Any) {
    const bool canada = merge::locale().getCountryCode() == 1;
    if (canada != (when.country == CountryIs::Canada)) return false;
  }
  if (when.province >= 0) {
    const bool same = merge::locale().getProvinceCode() == when.province;
    if (same == when.allButProvince) return false;
  }
  if (when.use != UseIs::Any) {
    const bool mapping = fields_.MergeFieldListUse() == fieldListUseMapping;
    if (mapping != (when.use == UseIs::Mapping)) return false;
  }
  return true;
}

std::string CatalogueBuilder::expand(const char* text) const {
  // Most texts name no value: they are copied whole. A run over many
  // clients builds the table for each one.
  if (std::strchr(text, '{') == nullptr) return text;
  std::string result;
  for (const char* at = text; *at != '\0';) {
    const char* close = *at == '{' ? std::strchr(at, '}') : nullptr;
    if (close == nullptr) {
      const char* next = std::strchr(at + 1, '{');
      const size_t length = next != nullptr ? static_cast<size_t>(next - at) : std::strlen(at);
      result.append(at, length);
      at += length;
      continue;
    }
    const std::string name(at + 1, close);
    if (name == "GST") {
      result += labels_.gst;
    } else if (name == "PST") {
      result += labels_.pst;
    } else if (name == "BOARD") {
      result += labels_.board;
    } else if (name == "PROVINCE") {
      result += labels_.province;
    } else if (name == "YEAR") {
      result += std::to_string(year_);
    } else if (name.rfind("DATE:", 0) == 0) {
      result += sampleDate(name.substr(5), year_);
    } else {
      throw RuntimeError(err::kInvalidCall, "Unknown catalogue value {" + name + "}");
    }
    at = close + 1;
  }
  return result;
}

void CatalogueBuilder::raiseCounter() {
  if (fields_.fieldListCounter_ == std::numeric_limits<int32_t>::max()) {
    throw RuntimeError(err::kOverflow, "Overflow");
  }
  ++fields_.fieldListCounter_;
}

void CatalogueBuilder::put(std::vector<Variant> columns, const std::string& listLine) {
  int32_t index = fields_.fieldListCounter_;
  fields_.fieldList_.addFieldRow(index, std::move(columns));
  if (bypassListBox_) return;
  box_->AddItem(listLine);
  box_->setItemData(box_->NewIndex(), index);
}

void CatalogueBuilder::rows(const char* source, std::span<const CatalogueRow> rows) {
  for (const CatalogueRow& row : rows) {
    proc_.step([&] {
      if (!holds(row.when)) return;
      raiseCounter();
      const std::string displayName = expand(row.displayName);
      std::vector<Variant> columns = {Variant(row.fieldName), Variant(displayName), Variant(source),
                                      Variant(row.type), Variant(expand(row.sample))};
      if (row.maxLength != kLeftOut) columns.emplace_back(row.maxLength);
      put(std::move(columns), row.listLine != nullptr ? row.listLine : displayName);
    });
  }
}

void CatalogueBuilder::customBlock(const char* source, const CustomBlock& block) {
  QueryShape query(proc_);
  if (!query.connected()) {
    fallbackCustomRows(source, block);
    return;
  }
  query.open(block.query);
  // An empty table of labels gives no custom rows at all.
  if (query.moveFirst()) {
    for (int n = 1; n <= 5; ++n) {
      query.step([&] {
        raiseCounter();
        const std::string number = std::to_string(n);
        std::string label = toText(query.field(block.labelColumn + number));
        if (Right(label, 1) == ":") label = Left(label, Len(label) - 1);
        if (label == "Custom " + number) label = block.defaultName + number;
        const std::string displayName = block.displayPrefix + label;
        std::vector<Variant> columns = {Variant(block.fieldName + number), Variant(displayName),
                                        Variant(source), Variant(int16_t{1}),
                                        Variant(block.sample + number)};
        if (block.maxLength != kLeftOut) columns.emplace_back(block.maxLength);
        put(std::move(columns), displayName);
      });
    }
  }
  query.close();
}

void CatalogueBuilder::fallbackCustomRows(const char* source, const CustomBlock& block) {
  for (int n = 1; n <= 5; ++n) {
    proc_.step([&] {
      raiseCounter();
      const std::string number = std::to_string(n);
      const std::string defaultName = block.displayPrefix + (block.defaultName + number);
      const std::string displayName =
          n == 5 && block.fallbackFifthName != nullptr ? block.fallbackFifthName : defaultName;
      std::vector<Variant> columns = {Variant(block.fieldName + number), Variant(displayName),
                                      Variant(source), Variant(int16_t{1})};
      // The first row leaves its sample out and carries it one column on, the
      // maximum length after it: a test merge without a store prints that
      // first field empty.
      if (n == 1) columns.emplace_back();
      columns.emplace_back(block.sample + number);
      if (block.maxLength != kLeftOut) columns.emplace_back(block.maxLength);
      put(std::move(columns), defaultName);
    });
  }
}

void CatalogueBuilder::refreshList() {
  proc_.step([&] {
    if (bypassListBox_) return;
    box_->Refresh();
    DoEvents();
    DoEvents();
  });
}

}  // namespace qb
