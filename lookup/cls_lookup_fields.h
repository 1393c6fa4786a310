#pragma once
// clsLookupFields: what a custom column of a work record is, and its bulk
// writes. Firms define custom columns ("Custom" + number) on task schedule
// rows (family 1, Schedule), personal tax rows (2, PersonalTaxStatus) and
// company projects (3, CompanyProjects). The settings row of CustomFields
// gives each column a custom type: 2 a client repeater (one value over all
// rows of a client), 3 a lookup field (a merge field's value for every
// client), 4 a type repeater (one value over all rows of a task or project
// type); anything else is an ordinary column this class leaves alone.
//
// The host sets the properties, calls one operation and shows progress from
// the events. The class is split over files by concern: its properties
// (lookup_properties.cpp), the type tests (custom_types.cpp), the repeaters
// and the clearing of a column (repeaters.cpp), the bulk fill of a lookup
// column (bulk_fill.cpp); the SQL texts are in lookup_sql.*.
//
// Every operation traces as "Orvanta.exe-clsLookupFieldTasks-<name>" and
// takes its failures to the module's error object; none throws. A failure
// stops the wait pointer and the events where they were: the end event of
// the run is then not raised. Every value written is committed at once, so a
// run that is stopped leaves each row with its old or its new value.

#include <cstdint>
#include <string>

#include "services/controls/event.h"

namespace qb {

class Procedure;

class clsLookupFields {
 public:
  // Record families (LookUpFieldsType).
  static constexpr int32_t familyNone = 0;
  static constexpr int32_t familySchedule = 1;
  static constexpr int32_t familyPersonalTax = 2;
  static constexpr int32_t familyProjects = 3;
  // Kinds of client (clientType).
  static constexpr int32_t clientNone = 0;
  static constexpr int32_t clientContact = 1;
  static constexpr int32_t clientCompany = 2;
  // Custom types of CustomFields.
  static constexpr int16_t customClientRepeater = 2;
  static constexpr int16_t customLookup = 3;
  static constexpr int16_t customTypeRepeater = 4;
  // The longest value a repeater writes, in characters.
  static constexpr int32_t repeatValueLimit = 255;

  // A new object takes its tax year from the locale's getCurrentTaxYear
  // (the module's locale; without one the year stays 0).
  clsLookupFields();

  // ---- Properties ------------------------------------------------------------

  int32_t LookUpFieldsType() const { return lookUpFieldsType_; }
  void setLookUpFieldsType(int32_t value) { lookUpFieldsType_ = value; }
  // Set as a side effect of the id setters: the last setter wins.
  int32_t clientType() const { return clientType_; }
  // A ClientData id of 0 or more sets the company from it and the kind to
  // company; a negative one clears both company ids and a company kind.
  int32_t clientIDNum() const { return clientIDNum_; }
  void setClientIDNum(int32_t value);
  // As clientIDNum, from the company's side.
  int32_t companyIDNum() const { return companyIDNum_; }
  void setCompanyIDNum(int32_t value);
  // 0 or more makes the kind contact and leaves the company ids; a negative
  // one clears it and a contact kind.
  int32_t contactIDNum() const { return contactIDNum_; }
  void setContactIDNum(int32_t value);
  int32_t PersonalTaxYear() const { return personalTaxYear_; }
  void setPersonalTaxYear(int32_t value) { personalTaxYear_ = value; }
  // The digit of "Custom" + number, taken as it is: a column the store does
  // not have fails there.
  int16_t customNumber() const { return customNumber_; }
  void setCustomNumber(int16_t value) { customNumber_ = value; }
  // The merge field (its fieldName) a lookup column mirrors.
  const std::string& fieldName() const { return fieldName_; }
  void setFieldName(std::string value) { fieldName_ = std::move(value); }
  // What a repeater writes (its first 255 characters).
  const std::string& RepeatValue() const { return repeatValue_; }
  void setRepeatValue(std::string value) { repeatValue_ = std::move(value); }

  // ---- Events ----------------------------------------------------------------
  // max... carries the row count, inc... the running row number from 1.

  Event<void()> startPopulateClientRepeaterFields;
  Event<void(int32_t&)> maxPopulateClientRepeaterFields;
  Event<void(int32_t&)> incPopulateClientRepeaterFields;
  Event<void()> endPopulateClientRepeaterFields;
  Event<void()> startPopulateTaskTypeRepeaterFields;
  Event<void(int32_t&)> maxPopulateTaskTypeRepeaterFields;
  Event<void(int32_t&)> incPopulateTaskTypeRepeaterFields;
  Event<void()> endPopulateTaskTypeRepeaterFields;
  Event<void()> startRemoveLookupFieldValues;
  Event<void(int32_t&)> maxRemoveLookupFieldValues;
  Event<void(int32_t&)> incRemoveLookupFieldValues;
  Event<void()> endRemoveLookupFieldValues;
  Event<void()> startPopulateLookupFields;
  Event<void(int32_t&)> maxPopulateLookupFields;
  Event<void(int32_t&)> incPopulateLookupFields;
  Event<void()> endPopulateLookupFields;
  // Declared for the host; this class raises none of them.
  Event<void()> startChangeContactInfoLookupFields;
  Event<void(int32_t&)> maxChangeContactInfoLookupFields;
  Event<void(int32_t&)> incChangeContactInfoLookupFields;
  Event<void()> endChangeContactInfoLookupFields;
  Event<void()> startChangeDefaultContactInfoLookupFields;
  Event<void(int32_t&)> maxChangeDefaultContactInfoLookupFields;
  Event<void(int32_t&)> incChangeDefaultContactInfoLookupFields;
  Event<void()> endChangeDefaultContactInfoLookupFields;

  // ---- Operations ------------------------------------------------------------

  // The custom type tests; False without a family, a store or a settings
  // row, and on any failure. A lookup's type is read twice: a second read
  // that is blank makes it no lookup.
  bool isLookupField();
  // Families 1 and 3 only; any other gives False without a query.
  bool isClientRepeaterField();
  bool isTaskTypeRepeaterField();

  // Writes RepeatValue to the column of every row of the client set (by
  // clientIDNum or companyIDNum for a company, contactIDNum for a contact),
  // when the column is a client repeater. Families 1 and 3.
  void populateClientRepeaterFieldValues();
  // Writes RepeatValue to every schedule row of a task type, when the column
  // is a type repeater. Total number 111 stands for several task types, told
  // apart by a schedule number of 6 or more. Family 1 only.
  void populateTaskTypeRepeaterFieldValues(int32_t totalNum, int32_t scheduleNum);
  // Writes RepeatValue to every project of a project type, when the column
  // is a type repeater. Family 3 only.
  void populateProjectTypeRepeaterFieldValues(int32_t savedProjectID);
  // Empties the column in every row of the family (family 2: of the tax
  // year).
  void removeLookupFieldVales();
  // Writes the merge field's value of each client to the column of the
  // client's rows, client after client in the order of the client list,
  // giving the event pump two turns after each client.
  void populateLookupFieldValuesForAllClients();

 private:
  // The company's two ids and the kind of client: given, both ids and a
  // company kind; otherwise none and no company kind.
  void setCompany(int32_t clientID, int32_t companyID, bool given);
  // The type test, as steps of the caller's procedure: True when the
  // settings row gives the column the wanted type; secondRead reads it again
  // and a blank second read is no match. False without a store, without a
  // settings row and once the procedure failed.
  bool hasCustomType(Procedure& proc, const std::string& checkSQL, const std::string& typeColumn,
                     int16_t wanted, bool secondRead);
  // Steps 3 to 7 of a repeater: the type check, then RepeatValue cut to 255
  // characters to every row of rowsSQL, with the events of the kind given.
  enum class RepeaterEvents { Client, TaskType };
  void writeRepeatValue(Procedure& proc, const std::string& checkSQL, const std::string& rowsSQL,
                        const std::string& typeColumn, RepeaterEvents events);
  void populateRepeaterFieldValues(const std::string& checkSQL, const std::string& rowsSQL,
                                   const std::string& typeColumn);

  int32_t lookUpFieldsType_ = familyNone;
  int32_t clientType_ = clientNone;
  int32_t clientIDNum_ = -1;
  int32_t companyIDNum_ = -1;
  int32_t contactIDNum_ = -1;
  int32_t personalTaxYear_ = 0;
  int16_t customNumber_ = 0;
  std::string fieldName_;
  std::string repeatValue_;
};

}  // namespace qb
