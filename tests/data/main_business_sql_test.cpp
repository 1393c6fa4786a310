// The main client statement: its text, and that every combination runs on a
// firm and keeps the right clients.

#include <array>

#include "tests/data/data_test.h"

namespace qb::test {
namespace {

using modDatabaseFunctions::getMainBusinessSQLString;

const std::string kCanadianColumns =
    "SELECT AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, CorpTaxInfo.*, "
    "LawInfo.*, OtherInfo.*, WSIB_EHTInfo.*, CompaniesNotes.BusinessNotes, "
    "CompaniesNotes.ContactNotes ";
const std::string kCanadianJoin =
    "FROM (((((Companies INNER JOIN ((ClientData INNER JOIN AccountingServices ON "
    "ClientData.ClientDataID = AccountingServices.AccountingServiceID) INNER JOIN ClientOptions "
    "ON ClientData.ClientDataID = ClientOptions.ClientOptionID) ON Companies.CompanyID = "
    "ClientData.CompanyIDNum) INNER JOIN CorpTaxInfo ON ClientData.ClientDataID = "
    "CorpTaxInfo.CorpTaxInfoID) INNER JOIN LawInfo ON ClientData.ClientDataID = "
    "LawInfo.LawInfoID) INNER JOIN OtherInfo ON ClientData.ClientDataID = OtherInfo.OtherInfoID) "
    "INNER JOIN WSIB_EHTInfo ON ClientData.ClientDataID = WSIB_EHTInfo.WSIB_EHTInfoID) INNER "
    "JOIN CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum ";
// What follows the join: the WHERE and id parts and the closing part.
std::string tail(const std::string& sql) {
  const std::string join = "CompaniesNotes.CompanyNum ";
  size_t at = sql.find(join);
  return at == std::string::npos ? "(no join) " + sql : sql.substr(at + join.size());
}

TEST_F(DataTest, MainBusinessSqlIsComposedFromItsParts) {
  EXPECT_EQ(getMainBusinessSQLString(false, 3, -1), kCanadianColumns + kCanadianJoin + ";");
  EXPECT_EQ(tail(getMainBusinessSQLString(false, 3, 10)), "WHERE ClientData.ClientDataID=10 ;");
  EXPECT_EQ(tail(getMainBusinessSQLString(true, 3, 0)),
            "WHERE ClientData.ShowThisClient = True AND ClientData.ClientDataID=0 ;");
  modDatabaseFunctions::setClientOrder(1);
  db.locale().countryCode = 2;
  std::string unitedStates = getMainBusinessSQLString(true, 1, 10);
  EXPECT_EQ(unitedStates.rfind("SELECT AccountingServices.*, ClientData.*, ClientOptions.*, "
                               "Companies.*, ClientUSInfo.*, CompaniesNotes.BusinessNotes, ",
                               0),
            0u);
  EXPECT_EQ(tail(unitedStates),
            "WHERE ClientData.ShowThisClient = True AND ClientData.ActiveStatus=1 "
            "AND ClientData.ClientDataID=10 ORDER BY Companies.CompanyName;");
  db.locale().countryCode = 7;  // any code but 1 is the United States set
  modDatabaseFunctions::setClientOrder(4);
  EXPECT_EQ(getMainBusinessSQLString(false, 1, -1).substr(0, 100), unitedStates.substr(0, 100));
  EXPECT_EQ(tail(getMainBusinessSQLString(false, 1, -1)),
            "WHERE ClientData.ActiveStatus=1 ORDER BY Companies.ClientID, Companies.CompanyName;");
  EXPECT_EQ(getMainBusinessSQLString(false, 0, -1), "");
  EXPECT_EQ(getMainBusinessSQLString(true, 4, 10), "");
  EXPECT_TRUE(db.errors().failures.empty());

  // No locale to ask for the country: reported, nothing composed.
  moduleState().localeReference.reset();
  EXPECT_EQ(getMainBusinessSQLString(false, 3, -1), "");
  EXPECT_EQ(failedTraces(),
            std::vector<std::string>{"Orvanta.exe-modDatabaseFunctions-getMainBusinessSQLString"});
}

TEST_F(DataTest, EveryMainBusinessSqlRunsAndKeepsTheRightClients) {
  struct Client {
    int id;
    bool shown, active;
  };
  const Client clients[] = {
      {10, true, true}, {20, true, false}, {30, false, true}, {40, false, false}};
  for (const Client& c : clients) {
    std::string id = std::to_string(c.id), company = std::to_string(c.id / 10);
    db.exec("INSERT INTO Companies (CompanyID, CompanyName) VALUES (" + company + ", 'C');" +
            "INSERT INTO ClientData (ClientDataID, CompanyIDNum, ShowThisClient, ActiveStatus) "
            "VALUES (" +
            id + ", " + company + ", " + (c.shown ? "TRUE" : "FALSE") + ", " +
            (c.active ? "1" : "2") + "); INSERT INTO CompaniesNotes (CompanyNum) VALUES (" +
            company + ");");
    for (std::string table :
         {"AccountingServices (AccountingServiceID", "ClientOptions (ClientOptionID",
          "CorpTaxInfo (CorpTaxInfoID", "LawInfo (LawInfoID", "OtherInfo (OtherInfoID",
          "WSIB_EHTInfo (WSIB_EHTInfoID", "ClientUSInfo (ClientUSInfoID"}) {
      db.exec("INSERT INTO " + table + ") VALUES (" + id + ");");
    }
  }
  for (int32_t country : {1, 2}) {
    db.locale().countryCode = country;
    for (int32_t order = 0; order <= 4; ++order) {
      modDatabaseFunctions::setClientOrder(order);
      for (int32_t combination = 0; combination < 2 * 3 * 3; ++combination) {
        bool showOnly = combination % 2;
        int32_t status = 1 + combination / 2 % 3;
        int32_t clientDataID = std::array{-1, 20, 30}[combination / 6];
        int32_t expected = 0;
        for (const Client& c : clients) {
          expected += (!showOnly || c.shown) && (status == 3 || (status == 1) == c.active) &&
                      (clientDataID < 0 || clientDataID == c.id);
        }
        std::string sql = getMainBusinessSQLString(showOnly, status, clientDataID);
        RecordsetHandle handle = spy->openRecordset(sql, 1, 1, true, "", true);
        EXPECT_EQ(spy->getRecordCount(handle), expected) << sql;
        spy->closeRecordset(handle);
      }
    }
  }
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
