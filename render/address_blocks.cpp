// The address blocks of modFormatAddresses: clearing the record, the postal
// block, the block with contact lines, and the RTF paragraph conversion.

#include <array>
#include <utility>

#include "render/mod_format_addresses.h"
#include "render/rtf_text.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb::modFormatAddresses {

namespace {

constexpr const char* kLineBreak = "\r\n";

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-modFormatAddresses-") + procedure;
}

bool blank(const std::string& value) { return isBlankValue(Variant(value)); }

// The country names that get no line of their own, compared in upper case on
// the value as stored (a leading blank defeats the test).
bool isCanadianName(const std::string& country) {
  std::string upper = UCase(country);
  return upper == "CANADA" || upper == "CA" || upper == "CAN" || upper == "CDA";
}

// A stored value as it enters a block: escaped when the block is RTF.
std::string blockValue(const std::string& value, bool convertRTF) {
  return convertRTF ? rtf::storedText(value) : value;
}

}  // namespace

void clearAddressFields(AddressRecord& address) {
  Procedure proc(traceName("clearAddressFields"));
  proc.step([&] { address = AddressRecord{}; });
}

std::string convertToRTF(std::string text) {
  Procedure proc(traceName("convertToRTF"));
  std::string result;
  // A bare CR or LF is a line break as CR LF is.
  proc.step([&] {
    result = Replace(toRtfEscapes(rtf::withCrLf(text)), "\r\n", "\r\n\\par ", CompareMode::Text);
  });
  return result;
}

std::string createAddress(AddressRecord& address, bool& includeContactName, bool& convertRTF) {
  Procedure proc(traceName("createAddress"));
  std::string result;
  auto append = [&](const std::string& value) { result += blockValue(Trim(value), convertRTF); };

  proc.step([&] {
    if (!blank(address.businessName)) {
      append(address.businessName);
      result += kLineBreak;
      if (includeContactName && !blank(address.contactName)) {
        append(address.contactName);
        result += kLineBreak;
      }
    } else if (!blank(address.contactName)) {
      // A person with no business always shows by name.
      append(address.contactName);
      result += kLineBreak;
    }
  });
  proc.step([&] {
    if (!blank(address.addressText)) {
      append(address.addressText);
      result += kLineBreak;
    } else if (!blank(address.city)) {
      // The block already ends with a break: this leaves an empty line where
      // the street would stand.
      result += kLineBreak;
    }
  });
  proc.step([&] {
    bool lineStarted = false;
    if (!blank(address.city)) {
      append(address.city);
      lineStarted = true;
    }
    if (!blank(address.province)) {
      if (lineStarted) result += ", ";
      append(address.province);
      lineStarted = true;
    }
    if (!blank(address.postalCode)) {
      if (lineStarted) result += "  ";
      append(address.postalCode);
    }
  });
  proc.step([&] {
    if (!blank(address.country) && !isCanadianName(address.country)) {
      result += kLineBreak;
      append(address.country);
    }
  });
  proc.step([&] {
    if (convertRTF) result = convertToRTF(result);
  });
  return result;
}

std::string createAddressWithContactInfo(AddressRecord& address, bool& includeContactName,
                                         bool& convertRTF) {
  Procedure proc(traceName("createAddressWithContactInfo"));
  std::string result;
  const std::array<std::pair<const char*, const std::string*>, 6> contactLines = {{
      {"Phone: ", &address.phone},
      {"Fax: ", &address.fax},
      {"Cell: ", &address.cell},
      {"Home: ", &address.homePhone},
      {"Email: ", &address.email},
      {"Web Site: ", &address.webSite},
  }};
  bool anyContactLine = false;

  proc.step([&] { result = createAddress(address, includeContactName, convertRTF); });
  proc.step([&] {
    for (const auto& [label, value] : contactLines) {
      if (blank(*value)) continue;
      anyContactLine = true;
      result += kLineBreak;
      result += label;
      result += blockValue(*value, convertRTF);  // as stored, not trimmed
    }
  });
  proc.step([&] {
    // The address lines were converted by createAddress already; converting
    // the whole text again doubles their paragraph marks, as the stored
    // summaries have always had them.
    if (anyContactLine && convertRTF) result = convertToRTF(result);
  });
  return result;
}

}  // namespace qb::modFormatAddresses
