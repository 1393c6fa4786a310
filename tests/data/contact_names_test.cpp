// Contact display names: both name tables, the couple rule and the family
// relationship.

#include "tests/data/data_test.h"

namespace qb::test {
namespace {

using namespace modDatabaseFunctions;

// Contact ids 1 to 12: [spouse: none, same surname, different surname] x
// [surname blank/present] x [first name blank/present]. Names carry blanks
// around them, which the names shown do not. With no surname of her own, a
// spouse's surname can't be the same, so the "same" rows with no surname read
// as different surnames.
class ContactNamesTest : public DataTest {
 protected:
  ContactNamesTest() {
    const char* spouseLastNames[] = {"'Jones'", "'SMITH'", "'Jones'"};
    for (int spouse = 0; spouse < 3; ++spouse) {
      for (int names = 0; names < 4; ++names) {
        db.exec(
            "INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName, "
            "ContactPersonalTaxDisplayType, SpouseFirstName, SpouseLastName) VALUES (" +
            std::to_string(spouse * 4 + names + 1) + ", " + (names & 1 ? "' Ann '" : "NULL") +
            ", " + (names & 2 ? "'Smith '" : "' '") + ", ' A. Smith ', " +
            (spouse == 0 ? "1" : "2") + ", ' Bob', " + spouseLastNames[spouse] + ");");
      }
    }
  }
};

TEST_F(ContactNamesTest, GivenNameFirstAndSurnameFirst) {
  const char* expected[2][12] = {
      {"A. Smith", "Ann", "Smith", "Ann Smith", "A. Smith", "Ann & Bob SMITH", "Bob Smith",
       "Ann & Bob Smith", "A. Smith", "Ann & Bob Jones", "Smith & Bob Jones",
       "Ann Smith & Bob Jones"},
      {"A. Smith", "Ann", "Smith", "Smith, Ann", "A. Smith & SMITH, Bob", "Ann & SMITH, Bob",
       "Smith, Bob", "Smith, Ann & Bob", "A. Smith & Jones, Bob", "Ann & Jones, Bob",
       "Smith & Jones, Bob", "Smith, Ann & Jones, Bob"}};
  for (int32_t type : {2, 3}) {
    for (int32_t id = 1; id <= 12; ++id) {
      EXPECT_EQ(getContactNameDisplayedByType(type, id, -1, false), expected[type - 2][id - 1])
          << "type " << type << ", contact " << id;
    }
  }
}

TEST_F(ContactNamesTest, CoupleRulesAndOtherTypes) {
  db.exec(R"(
    INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName,
      ContactPersonalTaxDisplayType, SpouseFirstName, SpouseLastName) VALUES
      (20, 'Ann', 'Smith', 'Ann', 2, '  ', 'Jones'),
      (21, 'Ann', 'Smith', 'Ann', 2, 'Bob', NULL),
      (22, 'Ann', 'Smith', 'Ann', NULL, 'Bob', 'Smith');
  )");
  EXPECT_EQ(getContactNameDisplayedByType(2, 20, -1, false), "Ann Smith");  // no spouse name
  EXPECT_EQ(getContactNameDisplayedByType(2, 21, -1, false), "Ann Smith & Bob ");
  EXPECT_EQ(getContactNameDisplayedByType(2, 22, -1, false), "Ann Smith");  // not a couple
  EXPECT_EQ(getContactNameDisplayedByType(4, 8, -1, false), "A. Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 999, -1, false), "");
  EXPECT_EQ(getContactNameDisplayed(8, -1, false), "A. Smith");  // display type 0
  setDisplayType(3);
  EXPECT_EQ(getContactNameDisplayed(8, -1, false), "Smith, Ann & Bob");
  EXPECT_EQ(spy->open, 0);
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(ContactNamesTest, RelationshipFollowsInBracketsWhenAsked) {
  db.exec(R"(
    INSERT INTO ContactLinks (ContactNum, ContactIDNum, FamilyRelationship) VALUES
      (4, 30, 'Daughter'), (4, 31, 'Not Specified'), (4, 32, NULL), (30, 4, 'Mother');
  )");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 30, true), "Ann Smith (Daughter)");
  EXPECT_EQ(spy->mostOpenTogether, 2);  // the link is read while the contact is open
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 31, true), "Ann Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 32, true), "Ann Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 33, true), "Ann Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 30, false), "Ann Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, -1, true), "Ann Smith");
  EXPECT_EQ(getContactNameDisplayedByType(2, 999, 30, true), "");
  setRelationshipSetting(2);
  EXPECT_EQ(getContactNameDisplayedByType(3, 4, 30, false), "Smith, Ann (Daughter)");
  EXPECT_EQ(spy->open, 0);
}

TEST_F(ContactNamesTest, AFailureKeepsTheNameBuiltSoFar) {
  db.exec("DROP TABLE ContactLinks;");
  EXPECT_EQ(getContactNameDisplayedByType(2, 4, 30, true), "Ann Smith");
  EXPECT_EQ(failedTraces(), std::vector<std::string>{
                                "Orvanta.exe-modDatabaseFunctions-getContactNameDisplayedByType"});
  EXPECT_EQ(spy->open, 1);  // the contact's recordset stays open after the failure
}

}  // namespace
}  // namespace qb::test
