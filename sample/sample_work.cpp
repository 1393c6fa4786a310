// The sample clients' work records: appointments, task schedule rows with
// their calendar tasks, time entries, personal tax rows and projects.

#include "sample/sample_clients.h"
#include "sample/sample_firm_parts.h"

namespace qb::sample {
namespace {

Field optionalId(const char* column, int32_t id) {
  return id >= 0 ? Field(column, id) : Field(column, nullptr);
}

void writeAppointments(SampleWriter& out) {
  struct Appointment {
    int32_t company;
    int32_t contact;
    const char* subject;
    int32_t month, day, hour, minute, minutes;
    const char* room;
  };
  const Appointment rows[] = {
      {2, 10, "Year-end planning meeting", 2, 11, 9, 0, 90, "Boardroom A"},
      {3, 6, "Rencontre - états financiers", 3, 4, 14, 30, 60, "Boardroom B"},
      {4, 8, "Corporate reorganisation review", 3, 18, 10, 0, 120, "Boardroom A"},
      {-1, 31, "Personal tax interview", 4, 2, 11, 15, 45, "Office 107"},
      {5, 12, "Payroll set-up", 5, 20, 13, 0, 30, ""},
      {-1, 6, "Signing of the T1 returns", 4, 24, 16, 0, 20, "Office 101"},
  };
  int32_t id = 0;
  for (const Appointment& a : rows) {
    int32_t endMinutes = a.hour * 60 + a.minute + a.minutes;
    out.insert("Appointments",
               {{"AppointmentID", ++id},
                optionalId("CompanyIDNum", a.company),
                optionalId("ContactIDNum", a.contact),
                {"EmployeeIDNum", 1 + id % kEmployeeCount},
                {"Subject", a.subject},
                {"DateFrom", isoDate(2025, a.month, a.day)},
                {"TimeFrom", isoDateTime(2025, a.month, a.day, a.hour, a.minute)},
                {"TimeTo", isoDateTime(2025, a.month, a.day, endMinutes / 60, endMinutes % 60)},
                {"AppointmentText", "Agenda:\r\n1. Review of the year\r\n2. Next steps"},
                {"BeforeAppointmentText", id == 1 ? "Reminder:" : ""},
                {"AfterAppointmentText", id == 1 ? "Bring the bank statements." : ""},
                {"Custom1", a.room},
                {"Custom2", id % 2 == 0 ? "Signed engagement letter" : ""}});
  }
}

void writeTasks(SampleWriter& out) {
  // Schedule rows: ClientNum is the client's ClientData id (company 2 is
  // ClientData 1, and so on), ContactIDNum a personal client.
  struct Scheduled {
    int32_t clientNum;
    int32_t contact;
    int32_t totalNum;
    int32_t scheduleNum;
    const char* subject;
    int32_t dueMonth, dueDay;
    double amount;
  };
  const Scheduled rows[] = {
      {1, -1, 101, 1, "1st Quarterly GST Payment", 4, 30, 1234.50},
      {1, -1, 102, 1, "Payroll Remittance - March", 4, 15, 3890.12},
      {2, -1, 101, 1, "1st Quarterly GST Payment", 4, 30, 812.00},
      {3, -1, 111, 6, "T2 Corporate Return", 6, 30, 0.0},
      {4, -1, 111, 7, "T4 Summary", 2, 28, 0.0},
      {-1, 6, 201, 1, "T1 Personal Return", 4, 30, 0.0},
      {-1, 31, 201, 1, "T1 Personal Return", 4, 30, 0.0},
      {7, -1, 101, 1, "Annual GST Return", 6, 15, 455.75},
  };
  int32_t id = 0;
  for (const Scheduled& s : rows) {
    ++id;
    bool done = id % 3 == 0;
    out.insert("Schedule",
               {{"ScheduleID", id},
                optionalId("ClientNum", s.clientNum),
                optionalId("ContactIDNum", s.contact),
                {"ScheduleNum", s.scheduleNum},
                {"TotalNum", s.totalNum},
                {"Subject", s.subject},
                {"DueDate", isoDate(2025, s.dueMonth, s.dueDay)},
                {"inHouseDueDate", isoDate(2025, s.dueMonth, s.dueDay - 4)},
                {"PeriodEndDate", isoDate(2025, s.dueMonth > 1 ? s.dueMonth - 1 : 12, 28)},
                {"PeriodDescription", "Period For: Jan 1, 2025 to Mar 31, 2025"},
                {"EmployeeAssigned", id % 2 == 0 ? "Daniel Okafor" : "Raj Patel"},
                {"Year", "2025"},
                s.amount > 0 ? Field("Amount", s.amount) : Field("Amount", nullptr),
                {"PersonCompleted", done ? "Sophie Gagnon" : ""},
                done ? Field("DateCompleted", isoDate(2025, s.dueMonth, s.dueDay - 2))
                     : Field("DateCompleted", nullptr),
                {"Custom1", "Finance department"},
                {"Custom2", "Acct " + std::to_string(81230 + id)},
                {"Custom3", id % 2 == 0 ? "Online" : "Pre-authorized debit"}});
  }
  // A calendar task for the first seven rows; row 8's task went to the
  // archive; task 8 stands on the calendar with no schedule row.
  for (int32_t task = 1; task <= 8; ++task) {
    const Scheduled& s = rows[task - 1];
    bool scheduled = task <= 7;
    out.insert("Tasks", {{"TaskID", task},
                         scheduled ? Field("ScheduleIDNum", task) : Field("ScheduleIDNum", nullptr),
                         {"EmployeeIDNum", 1 + task % kEmployeeCount},
                         {"Subject", scheduled ? std::string("Prepare: ") + s.subject
                                               : std::string("Call the bank about the loan")},
                         {"CalendarDate", isoDate(2025, s.dueMonth, s.dueDay - 4)},
                         {"DateFrom", isoDate(2025, s.dueMonth, s.dueDay - 4)},
                         {"TimeFrom", isoDateTime(2025, s.dueMonth, s.dueDay - 4, 9, 0)},
                         {"TimeTo", isoDateTime(2025, s.dueMonth, s.dueDay - 4, 10, 30)},
                         {"AppointmentText", "Gather the figures and prepare the return."},
                         {"TaskCompleted", task % 3 == 0 ? 1 : 0},
                         {"Custom1", task % 2 == 0 ? "Marie Tremblay" : ""}});
  }
  out.insert("archiveTasks", {{"oldTaskID", 90},
                              {"ScheduleIDNum", 8},
                              {"Subject", "Annual GST Return"},
                              {"DateArchived", isoDate(2025, 7, 2)}});
}

void writeDockets(SampleWriter& out) {
  struct Docket {
    int32_t company;
    int32_t contact;
    const char* subject;
    int32_t month, day, hour, minutes;
    double rate;
  };
  const Docket rows[] = {
      {2, 10, "Year-end adjustments", 2, 12, 9, 95, 145.0},
      {2, -1, "Bank reconciliation", 2, 14, 13, 40, 95.0},
      {3, 6, "Préparation des états financiers", 3, 5, 10, 180, 145.0},
      {4, 8, "Reorganisation memo", 3, 19, 8, 210, 225.0},
      {5, 12, "Payroll set-up", 5, 20, 13, 30, 95.0},
      {-1, 31, "T1 preparation", 4, 3, 14, 75, 120.0},
      {-1, 6, "T1 preparation (couple)", 4, 10, 9, 120, 120.0},
      {8, 17, "GST audit support", 6, 2, 10, 150, 145.0},
      {10, 21, "Quarterly review", 7, 8, 15, 55, 145.0},
      {15, 27, "Conseils fiscaux", 8, 19, 11, 35, 225.0},
  };
  int32_t id = 0;
  for (const Docket& d : rows) {
    ++id;
    double real = d.minutes / 60.0;
    double rounded = ((d.minutes + 14) / 15) * 15 / 60.0;
    int32_t end = d.hour * 60 + d.minutes;
    int32_t roundedEnd = d.hour * 60 + static_cast<int32_t>(rounded * 60);
    bool adjusted = id == 4;
    double finalHours = adjusted ? 3.0 : rounded;
    out.insert(
        "Dockets",
        {{"DocketID", id},
         optionalId("CompanyIDNum", d.company),
         optionalId("ContactIDNum", d.contact),
         {"EmployeeIDNum", 1 + id % kEmployeeCount},
         {"Subject", d.subject},
         {"DateFrom", isoDate(2025, d.month, d.day)},
         {"TimeFrom", isoDateTime(2025, d.month, d.day, d.hour, 0)},
         {"TimeTo", isoDateTime(2025, d.month, d.day, end / 60, end % 60)},
         {"AppointmentText", d.subject},
         {"DocketLocked", id <= 3 ? 1 : 0},
         {"Invoiced", id <= 2 ? 1 : 0},
         {"UsedRealTime", id % 2},
         {"RealTimeFrom", isoDateTime(2025, d.month, d.day, d.hour, 0)},
         {"RealTimeTo", isoDateTime(2025, d.month, d.day, end / 60, end % 60)},
         {"OriginalRealTimeFrom", isoDateTime(2025, d.month, d.day, d.hour, 0)},
         {"OriginalRealTimeTo", isoDateTime(2025, d.month, d.day, end / 60, end % 60)},
         {"RoundedTimeFrom", isoDateTime(2025, d.month, d.day, d.hour, 0)},
         {"RoundedTimeTo", isoDateTime(2025, d.month, d.day, roundedEnd / 60, roundedEnd % 60)},
         {"TextBody", "Worked from the client's files.\r\nFollow-up needed."},
         {"DocketBillingType", "Hourly Billing"},
         {"BillingJobRate", d.rate},
         {"BillableTime", id == 9 ? 0 : 1},
         {"TotalTimeReal", real},
         {"TotalTimeRounded", rounded},
         {"UseAdjustedTime", adjusted ? 1 : 0},
         {"TotalTimeAdjusted", adjusted ? 3.0 : 0.0},
         {"TotalTimeFinal", finalHours},
         {"TotalAmountReal", real * d.rate},
         {"TotalAmountFinal", finalHours * d.rate},
         {"DescriptionInternal", std::string(d.subject) + " - see working papers"},
         {"DescriptionClient", std::string("Professional services: ") + d.subject},
         {"Custom1", id % 2 == 0 ? "ACC-200" : "TAX-100"}});
  }
}

void writePersonalTaxAndProjects(SampleWriter& out) {
  const int32_t personalClients[] = {6, 8, 31, 34};
  for (int32_t contact : personalClients) {
    for (int32_t year = 2024; year <= 2025; ++year) {
      bool filed = year == 2024;
      out.insert("PersonalTaxStatus",
                 {{"ContactNum", contact},
                  {"TaxYear", year},
                  {"ReturnStatus", filed ? "Filed" : "In Progress"},
                  filed ? Field("DateFiled", isoDate(2025, 4, 20 + contact % 8))
                        : Field("DateFiled", nullptr),
                  {"Custom1", filed ? "NOA received" : ""}});
    }
  }
  struct Project {
    int32_t company;
    int32_t contact;
    int32_t type;
    const char* name;
  };
  const Project projects[] = {
      {2, -1, 1, "2025 Year-End Engagement"},
      {4, -1, 2, "Corporate Reorganisation"},
      {4, -1, 1, "2025 Year-End Engagement"},
      {-1, 31, 3, "Estate Planning Review"},
  };
  for (const Project& p : projects) {
    out.insert("CompanyProjects", {optionalId("CompanyIDNum", p.company),
                                   optionalId("ContactIDNum", p.contact),
                                   {"SavedProjectIDNum", p.type},
                                   {"ProjectName", p.name},
                                   {"Custom1", "Marie Tremblay"},
                                   {"Custom2", p.type == 1 ? "Fixed fee" : "Hourly"}});
  }
}

}  // namespace

void writeSampleWork(SampleWriter& out) {
  writeAppointments(out);
  writeTasks(out);
  writeDockets(out);
  writePersonalTaxAndProjects(out);
}

}  // namespace qb::sample
