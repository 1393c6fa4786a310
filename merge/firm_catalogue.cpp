// The firm catalogue: the fields of the user's own firm, "Your ..." in the
// list, from the firm's record (source "FirmInfo", which keeps CompanyName
// here apart from the client's). Its custom fields carry the company labels.

#include "merge/catalogue_builder.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/controls/list_box.h"

namespace qb {

namespace {

constexpr CatalogueRow kFirmRows[] = {
    {"CompanyName", "Your Company Name", 1, "ABC Accounting Services", kLeftOut},
    {"CorporateName", "Your Corporate Name", 1, "ABC Accounting Services LLP", kLeftOut},
    {"CompanyType", "Your Company Type", 1, "Corporation", kLeftOut},
    {"IndustryType", "Your Industry Type", 1, "Consulting", kLeftOut},
    {"Address", "Your Address", 1, "100 Penny Lane", kLeftOut},
    {"City", "Your City", 1, "Ottawa", kLeftOut},
    {"Province", "Your Province", 1, "Ontario", kLeftOut, kCanada},
    {"PostalCode", "Your Postal Code", 1, "K2G 0Z9", kLeftOut, kCanada},
    {"Province", "Your State", 1, "California", kLeftOut, kNotCanada},
    {"PostalCode", "Your Zip Code", 1, "90210", kLeftOut, kNotCanada},
    {"Country", "Your Country", 1, "Canada", kLeftOut},
    {"OfficeNumber", "Your Office Number", 1, "(555) 453-2947", kLeftOut},
    {"FaxNumber", "Your Fax Number", 1, "(555) 453-3756", kLeftOut},
    {"Email", "Your Email", 1, "info@abcaccounting.com", kLeftOut},
    {"WebSite", "Your Web Site", 1, "www.abcaccounting.com", kLeftOut},
};

// The firm gives no maximum length, in its custom rows neither.
constexpr CustomBlock kFirmCustomBlock = {"SELECT CustomAddressFields.* FROM CustomAddressFields;",
                                          "FirmCustom",
                                          "CompanyLabel",
                                          "Company Custom Field ",
                                          "Company Custom Info ",
                                          "Your ",
                                          kLeftOut};

}  // namespace

void clsInsertFieldsInRTB::createAccountantFieldListStructure(bool& bypassListBox,
                                                              bool& clearListbox) {
  Procedure proc(merge::traceName("createAccountantFieldListStructure"));
  // Unlike the client list, a firm list that is set can be bypassed.
  if (listBox2_ == nullptr) bypassListBox = true;
  proc.step([&] {
    if (!bypassListBox && clearListbox) listBox2_->Clear();
  });
  CatalogueBuilder build(*this, proc, listBox2_, bypassListBox);
  // The host acts on this line itself; it has no row.
  build.line("Insert your Letterhead");
  build.rows("FirmInfo", kFirmRows);
  build.customBlock("FirmInfo", kFirmCustomBlock);
  build.refreshList();
}

}  // namespace qb
