#pragma once
// The SQL texts of the merge's kept recordsets. A text that does not end in
// ";" takes the item's id in decimal and ";".
//
// Three families: the single-item texts that a merge opens when it starts;
// the same texts as a recordset opened on first use has them, where the
// company's and the firm's fifth custom column stand without their alias;
// and the whole-table texts of a run over many clients, where one recordset
// serves every client and findRecord picks the row.

namespace qb::merge_sql {

// ---- One item --------------------------------------------------------------

// The contact with its five custom columns under the merge's aliases.
inline constexpr const char* kContact =
    "SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, Contacts.Custom2 AS ContactCustom2, "
    "Contacts.Custom3 AS ContactCustom3, Contacts.Custom4 AS ContactCustom4, Contacts.Custom5 AS "
    "ContactCustom5 From Contacts WHERE Contacts.ContactID=";
inline constexpr const char* kCompany =
    "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS "
    "CompanyCustom2, Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, "
    "Companies.Custom5 AS CompanyCustom5 From Companies WHERE Companies.CompanyID=";
inline constexpr const char* kSoftwareByCompany =
    "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
    "SoftwareInfo.CompanyIDNum=";
inline constexpr const char* kSoftwareByContact =
    "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
    "SoftwareInfo.ContactIDNum=";
inline constexpr const char* kFirm =
    "SELECT AccountantFirmInfo.*, AccountantFirmInfo.Custom1 AS FirmCustom1, "
    "AccountantFirmInfo.Custom2 AS FirmCustom2, AccountantFirmInfo.Custom3 AS FirmCustom3, "
    "AccountantFirmInfo.Custom4 AS FirmCustom4, AccountantFirmInfo.Custom5 AS FirmCustom5 From "
    "AccountantFirmInfo WHERE CompanyID=";
inline constexpr const char* kFirmUser =
    "SELECT AccountantEmployeeInfo.* From AccountantEmployeeInfo WHERE ContactID=";
inline constexpr const char* kAppointment =
    "SELECT Appointments.*, Appointments.Custom1 AS ApptCustom1, Appointments.Custom2 AS "
    "ApptCustom2, Appointments.Custom3 AS ApptCustom3, Appointments.Custom4 AS ApptCustom4, "
    "Appointments.Custom5 AS ApptCustom5 From Appointments WHERE Appointments.AppointmentID=";
inline constexpr const char* kDocket =
    "SELECT Dockets.*, Dockets.Custom1 AS DocketCustom1, Dockets.Custom2 AS DocketCustom2, "
    "Dockets.Custom3 AS DocketCustom3, Dockets.Custom4 AS DocketCustom4, Dockets.Custom5 AS "
    "DocketCustom5 From Dockets WHERE Dockets.DocketID=";
// A task with its schedule row; a task without one is read by kTaskAlone.
inline constexpr const char* kTask =
    "SELECT Schedule.*, Tasks.*, Schedule.Custom1 AS ScheduleCustom1, Schedule.Custom2 AS "
    "ScheduleCustom2, Schedule.Custom3 AS ScheduleCustom3, Schedule.Custom4 AS ScheduleCustom4, "
    "Schedule.Custom5 AS ScheduleCustom5, Tasks.Custom1 AS TaskCustom1, Tasks.Custom2 AS "
    "TaskCustom2, Tasks.Custom3 AS TaskCustom3, Tasks.Custom4 AS TaskCustom4, Tasks.Custom5 AS "
    "TaskCustom5 FROM Schedule INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum "
    "WHERE Tasks.TaskID=";
inline constexpr const char* kTaskAlone =
    "SELECT Tasks.*, Tasks.Custom1 AS TaskCustom1, Tasks.Custom2 AS TaskCustom2, Tasks.Custom3 "
    "AS TaskCustom3, Tasks.Custom4 AS TaskCustom4, Tasks.Custom5 AS TaskCustom5 FROM Tasks "
    "WHERE Tasks.TaskID=";
inline constexpr const char* kContactNotes =
    "SELECT ContactsNotes.* From ContactsNotes WHERE ContactsNotes.ContactNum=";
inline constexpr const char* kCompanyNotes =
    "SELECT CompaniesNotes.* From CompaniesNotes WHERE CompaniesNotes.CompanyNum=";

// ---- One item, opened on first use -----------------------------------------
// The fifth custom column has no alias here, so CompanyCustom5 and
// FirmCustom5 find no column in such a recordset.

inline constexpr const char* kCompanyOnFirstUse =
    "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS "
    "CompanyCustom2, Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, "
    "Companies.Custom5 From Companies WHERE Companies.CompanyID=";
inline constexpr const char* kFirmOnFirstUse =
    "SELECT AccountantFirmInfo.*, AccountantFirmInfo.Custom1 AS FirmCustom1, "
    "AccountantFirmInfo.Custom2 AS FirmCustom2, AccountantFirmInfo.Custom3 AS FirmCustom3, "
    "AccountantFirmInfo.Custom4 AS FirmCustom4, AccountantFirmInfo.Custom5 From "
    "AccountantFirmInfo WHERE CompanyID=";

// ---- Whole tables, for a run over many clients -----------------------------

inline constexpr const char* kAllContacts =
    "SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, Contacts.Custom2 AS ContactCustom2, "
    "Contacts.Custom3 AS ContactCustom3, Contacts.Custom4 AS ContactCustom4, Contacts.Custom5 AS "
    "ContactCustom5 From Contacts;";
inline constexpr const char* kAllContactNotes = "SELECT ContactsNotes.* From ContactsNotes;";
inline constexpr const char* kAllCompanies =
    "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS "
    "CompanyCustom2, Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, "
    "Companies.Custom5 From Companies;";
inline constexpr const char* kAllCompanyNotes = "SELECT CompaniesNotes.* From CompaniesNotes;";
inline constexpr const char* kAllSoftware =
    "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True;";
inline constexpr const char* kAllAppointments =
    "SELECT Appointments.*, Appointments.Custom1 AS ApptCustom1, Appointments.Custom2 AS "
    "ApptCustom2, Appointments.Custom3 AS ApptCustom3, Appointments.Custom4 AS ApptCustom4, "
    "Appointments.Custom5 AS ApptCustom5 From Appointments;";
inline constexpr const char* kAllTasks =
    "SELECT Schedule.*, Tasks.*, Schedule.Custom1 AS ScheduleCustom1, Schedule.Custom2 AS "
    "ScheduleCustom2, Schedule.Custom3 AS ScheduleCustom3, Schedule.Custom4 AS ScheduleCustom4, "
    "Schedule.Custom5 AS ScheduleCustom5, Tasks.Custom1 AS TaskCustom1, Tasks.Custom2 AS "
    "TaskCustom2, Tasks.Custom3 AS TaskCustom3, Tasks.Custom4 AS TaskCustom4, Tasks.Custom5 AS "
    "TaskCustom5 FROM Schedule INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum;";
inline constexpr const char* kAllDockets =
    "SELECT Dockets.*, Dockets.Custom1 AS DocketCustom1, Dockets.Custom2 AS DocketCustom2, "
    "Dockets.Custom3 AS DocketCustom3, Dockets.Custom4 AS DocketCustom4, Dockets.Custom5 AS "
    "DocketCustom5 From Dockets;";

// ---- The user's calendar templates -----------------------------------------

inline constexpr const char* kUserCalendarSettings =
    "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = ";

}  // namespace qb::merge_sql
