#pragma once
// A small firm for the merge tests, written straight into the test's
// database: the firm (1), a client company (5, Acme Ltd.) with all of its
// client data, its default contact Ann Lee (7) who inherits the company's
// details, a contact on her own (8), an employee (3), an appointment (11), a
// task with its schedule row (31) and one without (32), an archived task
// (old id 90), a time entry (41), the labels of the custom columns (left at
// their defaults), and the calendar settings of users 1 and 2.

#include "tests/support/test_database.h"

namespace qb::test {

inline void addMergeFirm(TestDatabase& db) {
  db.exec(R"SQL(
INSERT INTO Companies (CompanyID, CompanyName) VALUES (1, 'Rideau Accounting');
INSERT INTO AccountantFirmInfo (CompanyID, CompanyName, Address, City, Province, Custom5)
  VALUES (1, 'Rideau Accounting', '1 Bank St.', 'Ottawa', 'Ontario', 'firm five');
INSERT INTO AccountantEmployeeInfo (ContactID, UserName, DisplayName) VALUES (3, 'jo', 'Jo Staff');
INSERT INTO Companies (CompanyID, CompanyName, CompanyType, Address, City, Province, PostalCode,
  Country, OfficeNumber, FaxNumber, AltProvince, Custom1, Custom5)
  VALUES (5, 'Acme Ltd.', 1, 'Unit 4' || char(13, 10) || '12 Main St.', 'Ottawa', 'Ontario',
  'K1A 0B1', 'Canada', '613-555-0100', '613-555-0199', 'Nova Scotia', 'company one',
  'company five');
INSERT INTO ClientData (ClientDataID, CompanyIDNum) VALUES (50, 5);
INSERT INTO AccountingServices (AccountingServiceID, BusinessNumber, RC59Permission, RC59Status,
  GSTFilingMethod, YearEndDate, FinancialStatements) VALUES (50, '123456789', NULL, 2, 3,
  '2025-03-31', NULL);
INSERT INTO ClientOptions (ClientOptionID, ClientCustom1) VALUES (50, 'client one');
INSERT INTO CorpTaxInfo (CorpTaxInfoID, IncorporationDate, CorporationType, CorporationLevel)
  VALUES (50, '1899-06-01', NULL, 2);
INSERT INTO LawInfo (LawInfoID) VALUES (50);
INSERT INTO OtherInfo (OtherInfoID) VALUES (50);
INSERT INTO WSIB_EHTInfo (WSIB_EHTInfoID, WSIBPremiumRate, Coverage) VALUES (50, 2.98, 50000);
INSERT INTO ClientUSInfo (ClientUSInfoID) VALUES (50);
INSERT INTO CompaniesNotes (CompanyNum, Notes) VALUES (5, 'A good client');
INSERT INTO SoftwareInfo (CompanyIDNum, DefaultSoftware, SoftwareName) VALUES (5, 1, 'LedgerPro');
INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName, InheritCompanyInfo,
  BusinessCity, BusinessProvince, BusinessPhone_Main, BusinessPhone_Fax, HomeProvince,
  SpouseFirstName, SpouseLastName, Birthday, Custom2)
  VALUES (7, 'Ann', 'Lee', 'Ann Lee', 1, 'Gatineau', 'Quebec', '819-555-0007', NULL, 'alta.',
  'Bob', 'Lee', '1980-05-17', 'contact two');
INSERT INTO Contacts (ContactID, FirstName, LastName, DisplayName, InheritCompanyInfo,
  BusinessCity) VALUES (8, 'Sam', 'Solo', 'Sam Solo', 0, 'Kingston');
INSERT INTO ContactLinks (ContactIDNum, CompanyNum, DefaultContact) VALUES (7, 5, 1);
INSERT INTO ContactsNotes (ContactNum, Notes) VALUES (7, 'Likes tea');
INSERT INTO Appointments (AppointmentID, CompanyIDNum, ContactIDNum, Subject, DateFrom, TimeFrom,
  TimeTo, BeforeAppointmentText, AfterAppointmentText) VALUES (11, 5, 7, 'Year-end meeting',
  '2025-02-11', '2025-02-11 09:00:00', '2025-02-11 10:30:00', 'Reminder:', '');
INSERT INTO Schedule (ScheduleID, ClientNum, Subject, DueDate) VALUES (21, 50,
  'GST Payment', '2025-04-30');
INSERT INTO Tasks (TaskID, ScheduleIDNum, Subject, TimeFrom, TimeTo, BeforeAppointmentText,
  AfterAppointmentText) VALUES (31, 21, 'Prepare GST', '2025-04-26 09:00:00',
  '2025-04-26 09:45:00', '', 'Bring the receipts.');
INSERT INTO Tasks (TaskID, Subject, TimeFrom, TimeTo) VALUES (32, 'Call the bank',
  '2025-06-11 14:00:00', '2025-06-11 14:20:00');
INSERT INTO archiveTasks (oldTaskID, ScheduleIDNum, Subject) VALUES (90, 22, 'Old return');
INSERT INTO Dockets (DocketID, CompanyIDNum, ContactIDNum, Subject, TimeFrom, TimeTo,
  TotalTimeFinal, TotalAmountFinal, BillableTime, Invoiced)
  VALUES (41, 5, 7, 'Bank reconciliation', '2025-02-14 13:00:00', '2025-02-14 13:40:00', 1.5,
  -1234.5, 1, NULL);
INSERT INTO UserCalendarSettings (UserIDNum, ApptTemplate, ApptTitleBarText, DocketTemplate,
  DocketTitleBarText, TaskTemplate, TaskTitleBarText) VALUES (1,
  '«Appointment Name» with «Contact Display Name»', 'Appointment Name', 'Text Constant', '',
  '«Task Name» «Bad Field', 'Task «Company Name»');
INSERT INTO CustomFields (CustomFieldID, CustomName1, CustomName2, CustomName3, CustomName4,
  CustomName5) VALUES (1, 'Custom 1:', 'Custom 2:', 'Custom 3:', 'Custom 4:', 'Custom 5:');
INSERT INTO CustomAddressFields (CustomAddressFieldID, ContactLabel1, ContactLabel2,
  ContactLabel3, ContactLabel4, ContactLabel5, CompanyLabel1, CompanyLabel2, CompanyLabel3,
  CompanyLabel4, CompanyLabel5) VALUES (1, 'Custom 1', 'Custom 2', 'Custom 3', 'Custom 4',
  'Custom 5', 'Custom 1', 'Custom 2', 'Custom 3', 'Custom 4', 'Custom 5');
INSERT INTO UserCalendarSettings (UserIDNum, ApptTemplate, DocketTemplate, TaskTemplate)
  VALUES (2, '0', '0', '0');
)SQL");
}

}  // namespace qb::test
