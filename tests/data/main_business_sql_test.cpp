// The main client statement: its text, and that every combination runs on a
// firm and keeps the right clients.

#include "tests/data/data_fixture.h"

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
const std::string kUnitedStatesColumns =
    "SELECT AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, ClientUSInfo.*, "
    "CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes ";
const std::string kUnitedStatesJoin =
    "FROM (ClientUSInfo INNER JOIN (Companies INNER JOIN ((ClientData INNER JOIN "
    "AccountingServices ON ClientData.ClientDataID = AccountingServices.AccountingServiceID) "
    "INNER JOIN ClientOptions ON ClientData.ClientDataID = ClientOptions.ClientOptionID) ON "
    "Companies.CompanyID = ClientData.CompanyIDNum) ON ClientUSInfo.ClientUSInfoID = "
    "ClientData.ClientDataID) INNER JOIN CompaniesNotes ON Companies.CompanyID = "
    "CompaniesNotes.CompanyNum ";

TEST_F(DataTest, MainBusinessSqlIsComposedFromItsParts) {
  EXPECT_EQ(getMainBusinessSQLString(false, 3, -1), kCanadianColumns + kCanadianJoin + ";");
  EXPECT_EQ(getMainBusinessSQLString(false, 3, 10),
            kCanadianColumns + kCanadianJoin + "WHERE ClientData.ClientDataID=10 ;");
  EXPECT_EQ(getMainBusinessSQLString(false, 2, -1),
            kCanadianColumns + kCanadianJoin + "WHERE NOT ClientData.ActiveStatus=1 ;");
  EXPECT_EQ(getMainBusinessSQLString(true, 3, 0),
            kCanadianColumns + kCanadianJoin +
                "WHERE ClientData.ShowThisClient = True AND ClientData.ClientDataID=0 ;");

  modDatabaseFunctions::setClientOrder(1);
  db.locale().countryCode = 2;
  EXPECT_EQ(getMainBusinessSQLString(true, 1, 10),
            kUnitedStatesColumns + kUnitedStatesJoin +
                "WHERE ClientData.ShowThisClient = True AND ClientData.ActiveStatus=1 "
                "AND ClientData.ClientDataID=10 ORDER BY Companies.CompanyName;");
  db.locale().countryCode = 7;  // any code but 1 is the United States set
  modDatabaseFunctions::setClientOrder(4);
  EXPECT_EQ(getMainBusinessSQLString(false, 1, -1),
            kUnitedStatesColumns + kUnitedStatesJoin +
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
  // Four clients: shown or not, active or not.
  struct Client {
    int id;
    bool shown;
    bool active;
  };
  const Client clients[] = {{10, true, true}, {20, true, false}, {30, false, true}, {40, false, false}};
  for (const Client& c : clients) {
    std::string id = std::to_string(c.id);
    std::string company = std::to_string(c.id / 10);
    db.exec("INSERT INTO Companies (CompanyID, CompanyName, CorporateName, ClientID) VALUES (" +
            company + ", 'Company " + company + "', 'Corp', 'C" + company + "');"
            "INSERT INTO ClientData (ClientDataID, CompanyIDNum, ShowThisClient, ActiveStatus) "
            "VALUES (" + id + ", " + company + ", " + (c.shown ? "TRUE" : "FALSE") + ", " +
            (c.active ? "1" : "2") + ");"
            "INSERT INTO CompaniesNotes (CompanyNum) VALUES (" + company + ");");
    for (const char* table : {"AccountingServices (AccountingServiceID", "ClientOptions (ClientOptionID",
                              "CorpTaxInfo (CorpTaxInfoID", "LawInfo (LawInfoID",
                              "OtherInfo (OtherInfoID", "WSIB_EHTInfo (WSIB_EHTInfoID",
                              "ClientUSInfo (ClientUSInfoID"}) {
      db.exec(std::string("INSERT INTO ") + table + ") VALUES (" + id + ");");
    }
  }

  DatabaseReference& store = *spy;
  for (int32_t country : {1, 2}) {
    db.locale().countryCode = country;
    for (int32_t order = 0; order <= 4; ++order) {
      modDatabaseFunctions::setClientOrder(order);
      for (bool showOnly : {false, true}) {
        for (int32_t status = 1; status <= 3; ++status) {
          for (int32_t clientDataID : {-1, 20, 30}) {
            int32_t expected = 0;
            for (const Client& c : clients) {
              expected += (!showOnly || c.shown) && (status == 3 || (status == 1) == c.active) &&
                          (clientDataID < 0 || clientDataID == c.id);
            }
            std::string sql = getMainBusinessSQLString(showOnly, status, clientDataID);
            RecordsetHandle handle = store.openRecordset(sql, 1, 1, true, "", true);
            EXPECT_EQ(store.getRecordCount(handle), expected) << sql;
            store.closeRecordset(handle);
          }
        }
      }
    }
  }
  EXPECT_TRUE(db.errors().failures.empty());
}

}  // namespace
}  // namespace qb::test
