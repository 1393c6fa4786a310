// Address blocks line by line, plain and with RTF paragraph marks.

#include <gtest/gtest.h>

#include "render/mod_format_addresses.h"

namespace qb {
namespace {

using namespace modFormatAddresses;

AddressRecord business() {
  AddressRecord a;
  a.businessName = "Acme Ltd";
  a.contactName = "Jane Roe";
  a.addressText = "12 Main St";
  a.city = "Ottawa";
  a.province = "Ontario";
  a.postalCode = "K2G 0Z1";
  return a;
}

std::string address(AddressRecord a, bool includeContactName = true, bool convertRTF = false) {
  return createAddress(a, includeContactName, convertRTF);
}

std::string withContactInfo(AddressRecord a, bool convertRTF) {
  bool includeContactName = true;
  return createAddressWithContactInfo(a, includeContactName, convertRTF);
}

TEST(AddressBlocks, LinesFollowWhatIsFilled) {
  struct Case {
    const char* what;
    void (*change)(AddressRecord&);
    bool includeContactName;
    const char* expected;
  };
  const Case cases[] = {
      {"everything", [](AddressRecord&) {}, true,
       "Acme Ltd\r\nJane Roe\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"contact name left out", [](AddressRecord&) {}, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"no business: the name shows anyway", [](AddressRecord& a) { a.businessName = ""; }, false,
       "Jane Roe\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"no province", [](AddressRecord& a) { a.province = ""; }, true,
       "Acme Ltd\r\nJane Roe\r\n12 Main St\r\nOttawa  K2G 0Z1"},
      {"no city", [](AddressRecord& a) { a.city = ""; }, true,
       "Acme Ltd\r\nJane Roe\r\n12 Main St\r\nOntario  K2G 0Z1"},
      {"no street: an empty line stands for it",
       [](AddressRecord& a) {
         a.addressText = "";
         a.province = "";
         a.postalCode = "";
       },
       true, "Acme Ltd\r\nJane Roe\r\n\r\nOttawa"},
      {"no street and no city: no empty line",
       [](AddressRecord& a) {
         a.addressText = "";
         a.city = "";
         a.province = "";
       },
       true, "Acme Ltd\r\nJane Roe\r\nK2G 0Z1"},
      {"no street and no city, a province: no empty line",
       [](AddressRecord& a) {
         a.addressText = "";
         a.city = "";
         a.postalCode = "";
       },
       true, "Acme Ltd\r\nJane Roe\r\nOntario"},
      {"names only keep their break",
       [](AddressRecord& a) { a.addressText = a.city = a.province = a.postalCode = ""; }, true,
       "Acme Ltd\r\nJane Roe\r\n"},
      {"values are trimmed", [](AddressRecord& a) { a.businessName = "  Acme Ltd "; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"canada in any case", [](AddressRecord& a) { a.country = "canada"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"CA", [](AddressRecord& a) { a.country = "CA"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"Can", [](AddressRecord& a) { a.country = "Can"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"cda", [](AddressRecord& a) { a.country = "cda"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1"},
      {"a leading blank defeats the test", [](AddressRecord& a) { a.country = " Canada"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1\r\nCanada"},
      {"another country", [](AddressRecord& a) { a.country = "USA"; }, false,
       "Acme Ltd\r\n12 Main St\r\nOttawa, Ontario  K2G 0Z1\r\nUSA"},
      {"all blank", [](AddressRecord& a) { clearAddressFields(a); }, true, ""},
  };
  for (const Case& c : cases) {
    AddressRecord a = business();
    c.change(a);
    EXPECT_EQ(address(a, c.includeContactName), c.expected) << c.what;
  }
}

TEST(AddressBlocks, RtfMarksFollowBreaksAndStoredValuesAreEscaped) {
  EXPECT_EQ(address(business(), true, true),
            "Acme Ltd\r\n\\par Jane Roe\r\n\\par 12 Main St\r\n\\par Ottawa, Ontario  K2G 0Z1");

  AddressRecord one;
  one.contactName = "Côté {Holdings}\\";
  one.addressText = "Unit 4\r\n12 Main St";  // a value's own break is converted too
  EXPECT_EQ(address(one, true, true),
            "C\\'f4t\\'e9 \\{Holdings\\}\\\\\r\n\\par Unit 4\r\n\\par 12 Main St\r\n\\par ");
  one.addressText = "";
  EXPECT_EQ(address(one, true, false), "Côté {Holdings}\\\r\n");

  AddressRecord single;
  single.city = "Ottawa";
  EXPECT_EQ(address(single, true, true), "\r\n\\par Ottawa");
  single.city = "";
  single.postalCode = "K2G 0Z1";  // one line: no break, so no mark
  EXPECT_EQ(address(single, true, true), "K2G 0Z1");

  EXPECT_EQ(convertToRTF("a\r\nb\r\nc"), "a\r\n\\par b\r\n\\par c");
  EXPECT_EQ(convertToRTF("Hélène {x}"), "H\\'e9l\\'e8ne {x}");
}

TEST(AddressBlocks, ContactLinesAndTheDoubleConversion) {
  AddressRecord a = business();
  a.addressText = "";
  a.city = "";
  a.province = "";
  a.postalCode = "";
  a.phone = "555-0100";
  a.homePhone = " 555-0199 ";  // written as stored
  a.webSite = "acme.ca";
  EXPECT_EQ(withContactInfo(a, false),
            "Acme Ltd\r\nJane Roe\r\n\r\nPhone: 555-0100\r\nHome:  555-0199 \r\nWeb Site: acme.ca");
  // The address's breaks are converted twice, the contact lines' once.
  EXPECT_EQ(withContactInfo(a, true),
            "Acme Ltd\r\n\\par \\par Jane Roe\r\n\\par \\par \r\n\\par Phone: 555-0100\r\n\\par "
            "Home:  555-0199 \r\n\\par Web Site: acme.ca");

  AddressRecord noContactLines = business();
  EXPECT_EQ(withContactInfo(noContactLines, true), address(business(), true, true));
}

}  // namespace
}  // namespace qb
