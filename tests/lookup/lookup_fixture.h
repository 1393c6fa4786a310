#pragma once
// The lookup tests' support: a small firm written straight into the data
// tests' fresh client database, reached through the store that records
// every SQL text (DataTest), a fixed clock, and a log of the class's events
// and the event pump's turns as short strings.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "lookup/cls_lookup_fields.h"
#include "services/controls/platform.h"
#include "services/host/clock.h"
#include "services/host/module_state.h"
#include "services/runtime/dates.h"
#include "tests/data/data_test.h"
#include "tests/support/test_database.h"

namespace qb::test {

class LookupTest : public DataTest {
 protected:
  LookupTest() {
    moduleState().clock = std::make_shared<FixedClock>(DateSerial(2026, 11, 23));
    resetPlatform();
    installEventPump([this] { log.push_back("pump"); });
    // Companies 1 to 3 are the clients of ClientData 10, 20 and 30. Company
    // 1's default contact is Ann (5); company 2 has Bob (6) and Cy (7), Cy
    // the default; company 3's only link is not the default.
    db.exec(
        "INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Acme Ltd'), (2, 'Birch "
        "Inc'), (3, 'Cedar Co');"
        "INSERT INTO ClientData (ClientDataID, CompanyIDNum) VALUES (10, 1), (20, 2), (30, 3);"
        "INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName) VALUES "
        "(5, 'Ann', 'Lee', 'Ann Lee'), (6, 'Bob', 'Roy', 'Bob Roy'), (7, 'Cy', 'Dee', 'Cy Dee');"
        "INSERT INTO ContactLinks (ContactIDNum, CompanyNum, DefaultContact) VALUES "
        "(5, 1, 1), (6, 2, 0), (7, 2, 1), (7, 3, 0);"
        "INSERT INTO CustomFields (CustomFieldID, RemittanceCustomType1, RemittanceCustomType2, "
        "RemittanceCustomType3, PersonalTaxTaskCustomType1, ProjectCustomType1, "
        "ProjectCustomType2, ProjectCustomType3) VALUES (1, 3, 2, 4, 3, 2, 4, 3);");
  }
  ~LookupTest() override { resetPlatform(); }

  // Schedule rows: id, ClientNum, ContactIDNum, TotalNum, ScheduleNum (NULL
  // written as such), each with the Custom columns "old<id>".
  void schedule(int id, const std::string& clientNum, const std::string& contact,
                int totalNum = 101, int scheduleNum = 1) {
    const std::string old = "'old" + std::to_string(id) + "'";
    db.exec(
        "INSERT INTO Schedule (ScheduleID, ClientNum, ContactIDNum, TotalNum, ScheduleNum, "
        "Custom1, Custom2, Custom3) VALUES (" +
        std::to_string(id) + ", " + clientNum + ", " + contact + ", " + std::to_string(totalNum) +
        ", " + std::to_string(scheduleNum) + ", " + old + ", " + old + ", " + old + ");");
  }
  // A column of one row, as text ("" for Null).
  std::string cell(const std::string& table, const std::string& key, int id,
                   const std::string& column) {
    return db.scalar("SELECT " + column + " FROM " + table + " WHERE " + key + " = " +
                     std::to_string(id) + ";");
  }
  std::string scheduleCustom(int id, int number = 1) {
    return cell("Schedule", "ScheduleID", id, "Custom" + std::to_string(number));
  }

  // Every event of every kind the object raises goes to the log, as
  // "start", "max N", "inc N" or "end" with the event's subject first:
  // "client start", "type inc 2", "remove end", "lookup max 4".
  void record(clsLookupFields& fields) {
    auto hook = [this](const char* subject, Event<void()>& start, Event<void(int32_t&)>& max,
                       Event<void(int32_t&)>& inc, Event<void()>& end) {
      const std::string s = subject;
      start = [this, s] { log.push_back(s + " start"); };
      max = [this, s](int32_t& n) { log.push_back(s + " max " + std::to_string(n)); };
      inc = [this, s](int32_t& n) { log.push_back(s + " inc " + std::to_string(n)); };
      end = [this, s] { log.push_back(s + " end"); };
    };
    hook("client", fields.startPopulateClientRepeaterFields, fields.maxPopulateClientRepeaterFields,
         fields.incPopulateClientRepeaterFields, fields.endPopulateClientRepeaterFields);
    hook("type", fields.startPopulateTaskTypeRepeaterFields,
         fields.maxPopulateTaskTypeRepeaterFields, fields.incPopulateTaskTypeRepeaterFields,
         fields.endPopulateTaskTypeRepeaterFields);
    hook("remove", fields.startRemoveLookupFieldValues, fields.maxRemoveLookupFieldValues,
         fields.incRemoveLookupFieldValues, fields.endRemoveLookupFieldValues);
    hook("lookup", fields.startPopulateLookupFields, fields.maxPopulateLookupFields,
         fields.incPopulateLookupFields, fields.endPopulateLookupFields);
  }
  // The log without the event pump's turns.
  std::vector<std::string> events() const {
    std::vector<std::string> found;
    for (const std::string& entry : log) {
      if (entry != "pump") found.push_back(entry);
    }
    return found;
  }
  // The SQL texts opened that start with a prefix.
  std::vector<std::string> opened(const std::string& prefix) const {
    std::vector<std::string> found;
    for (const std::string& text : spy->sql) {
      if (text.rfind(prefix, 0) == 0) found.push_back(text);
    }
    return found;
  }
  std::vector<std::string> log;
};

}  // namespace qb::test
