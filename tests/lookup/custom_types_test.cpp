// The object's properties (the kind of client the last id setter leaves, the
// tax year from the locale) and the custom type tests read from CustomFields.

#include "tests/lookup/lookup_fixture.h"

namespace qb::test {
namespace {

TEST_F(LookupTest, TheLastIdSetterWinsTheKindOfClient) {
  clsLookupFields fields;
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientNone);
  fields.setClientIDNum(20);
  EXPECT_EQ(fields.companyIDNum(), 2);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientCompany);
  fields.setContactIDNum(6);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientContact);
  EXPECT_EQ(fields.companyIDNum(), 2);
  // A contact set to none leaves a company kind alone, but not its own.
  fields.setCompanyIDNum(3);
  EXPECT_EQ(fields.clientIDNum(), 30);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientCompany);
  fields.setContactIDNum(-1);
  EXPECT_EQ(fields.contactIDNum(), -1);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientCompany);
  EXPECT_EQ(fields.companyIDNum(), 3);
  fields.setContactIDNum(5);
  fields.setClientIDNum(-1);
  EXPECT_EQ(fields.companyIDNum(), -1);
  EXPECT_EQ(fields.clientIDNum(), -1);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientContact);
  fields.setContactIDNum(-1);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientNone);
  // A company without a ClientData row has none.
  fields.setCompanyIDNum(99);
  EXPECT_EQ(fields.clientIDNum(), -1);
  EXPECT_EQ(fields.clientType(), clsLookupFields::clientCompany);
}

TEST_F(LookupTest, ANewObjectTakesTheLocalesTaxYear) {
  EXPECT_EQ(clsLookupFields().PersonalTaxYear(), 2025);  // the year before today's
  db.locale().taxYear = 2019;
  EXPECT_EQ(clsLookupFields().PersonalTaxYear(), 2019);
  moduleState().localeReference.reset();
  EXPECT_EQ(clsLookupFields().PersonalTaxYear(), 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(LookupTest, TypeTestsReadTheFamilysColumnOfTheSettingsRow) {
  clsLookupFields fields;
  // Family 1: Custom1 a lookup, 2 a client repeater, 3 a type repeater.
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  const bool expected[3][3] = {{true, false, false}, {false, true, false}, {false, false, true}};
  for (int16_t number = 1; number <= 3; ++number) {
    fields.setCustomNumber(number);
    EXPECT_EQ(fields.isLookupField(), expected[number - 1][0]) << number;
    EXPECT_EQ(fields.isClientRepeaterField(), expected[number - 1][1]) << number;
    EXPECT_EQ(fields.isTaskTypeRepeaterField(), expected[number - 1][2]) << number;
  }
  EXPECT_EQ(opened("SELECT CustomFields.").front(),
            "SELECT CustomFields.RemittanceCustomType1 FROM CustomFields;");
  // A column never set is an ordinary one.
  fields.setCustomNumber(4);
  EXPECT_FALSE(fields.isLookupField());

  // Family 3: Custom1 a client repeater, 2 a type repeater, 3 a lookup.
  fields.setLookUpFieldsType(clsLookupFields::familyProjects);
  fields.setCustomNumber(2);
  EXPECT_TRUE(fields.isTaskTypeRepeaterField());
  fields.setCustomNumber(3);
  EXPECT_TRUE(fields.isLookupField());
  EXPECT_EQ(spy->sql.back(), "SELECT CustomFields.ProjectCustomType3 FROM CustomFields;");

  // Family 2 has lookups only: the repeater tests ask nothing.
  fields.setLookUpFieldsType(clsLookupFields::familyPersonalTax);
  fields.setCustomNumber(1);
  EXPECT_TRUE(fields.isLookupField());
  EXPECT_EQ(spy->sql.back(), "SELECT CustomFields.PersonalTaxTaskCustomType1 FROM CustomFields;");
  const size_t asked = spy->sql.size();
  EXPECT_FALSE(fields.isClientRepeaterField());
  EXPECT_FALSE(fields.isTaskTypeRepeaterField());
  fields.setLookUpFieldsType(clsLookupFields::familyNone);
  EXPECT_FALSE(fields.isLookupField());
  EXPECT_EQ(spy->sql.size(), asked);
  EXPECT_TRUE(db.errors().failures.empty());
  EXPECT_EQ(spy->open, 0);
}

TEST_F(LookupTest, TypeTestsAnswerFalseOnAnyDoubt) {
  clsLookupFields fields;
  fields.setLookUpFieldsType(clsLookupFields::familySchedule);
  // Custom0 is no column: the store's failure is reported, the answer False.
  fields.setCustomNumber(0);
  EXPECT_FALSE(fields.isLookupField());
  ASSERT_EQ(failedTraces(),
            std::vector<std::string>{"Orvanta.exe-clsLookupFieldTasks-isLookupField"});
  EXPECT_EQ(spy->sql.back(), "SELECT CustomFields.RemittanceCustomType0 FROM CustomFields;");
  // No settings row, and no connected store.
  db.exec("DELETE FROM CustomFields;");
  fields.setCustomNumber(1);
  EXPECT_FALSE(fields.isLookupField());
  spy->connected = false;
  fields.setCustomNumber(2);
  const size_t asked = spy->sql.size();
  EXPECT_FALSE(fields.isClientRepeaterField());
  EXPECT_EQ(spy->sql.size(), asked);
  EXPECT_EQ(db.errors().failures.size(), 1u);
}

}  // namespace
}  // namespace qb::test
