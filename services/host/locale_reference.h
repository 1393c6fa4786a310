#pragma once
// The locale object the host hands in (LocaleReference): the firm's country
// and province, the signed-in user, the product word messages insert, and the
// form that owns dialogs and messages.

#include <cstdint>
#include <memory>
#include <string>

#include "services/host/form_helper.h"

namespace qb {

// The host form that owns dialogs and messages; hWnd is its window handle.
class OwnerForm {
 public:
  virtual ~OwnerForm() = default;
  virtual int64_t hWnd() const = 0;
};

class LocaleReference {
 public:
  virtual ~LocaleReference() = default;
  // 1 Canada, 2 United States (any other counts as the United States).
  virtual int32_t getCountryCode() = 0;
  // 0 Alberta, 1 British Columbia, 2 Manitoba, 3 Ontario, 4 Saskatchewan,
  // 8 Quebec, 9 Nova Scotia, 10 New Brunswick, 11 Newfoundland, 12 PEI.
  virtual int32_t getProvinceCode() = 0;
  virtual int32_t getCurrentUserID() = 0;
  virtual std::string getProductLabel() = 0;
  // The host application's title, as messages that name the product's pad
  // show it ("The Orvanta Pad did not recognize ...").
  virtual std::string getApplicationTitle() = 0;
  // May be null when the host has no form (a command-line host).
  virtual OwnerForm* getOwnerForm() = 0;
  // The personal tax year the firm works on: the year that limits personal
  // tax rows when no other is given.
  virtual int32_t getCurrentTaxYear() = 0;
  // The helper every dialog form uses; null when the host gives none.
  virtual FormHelper* getFormHelper() { return nullptr; }
};

// A locale with fixed answers, as the command-line host and tests set it.
class FixedLocale : public LocaleReference {
 public:
  int32_t countryCode = 1;
  int32_t provinceCode = 3;
  int32_t userID = 1;
  std::string productLabel = "Orvanta";
  std::string applicationTitle = "Orvanta";
  OwnerForm* ownerForm = nullptr;
  std::shared_ptr<FormHelper> formHelper;
  // 0: the calendar year before today's (the host's clock), the last whole
  // year, whose returns the firm prepares.
  int32_t taxYear = 0;

  int32_t getCountryCode() override { return countryCode; }
  int32_t getProvinceCode() override { return provinceCode; }
  int32_t getCurrentUserID() override { return userID; }
  std::string getProductLabel() override { return productLabel; }
  std::string getApplicationTitle() override { return applicationTitle; }
  OwnerForm* getOwnerForm() override { return ownerForm; }
  int32_t getCurrentTaxYear() override;
  FormHelper* getFormHelper() override { return formHelper.get(); }
};

}  // namespace qb
