-- The client database: every table and column the system reads or writes.
--
-- Declared types decide how the store converts a value: INTEGER to a whole
-- number, BOOLEAN to True/False (stored 0/1), REAL and CURRENCY to a double,
-- DATE, DATETIME and TIME to a date (stored as ISO text, "2025-03-31" or
-- "2025-03-31 09:30:00"), TEXT to a string.
--
-- Keys are whole numbers. A column ending in "Num" or "IDNum" refers to
-- another table's key; -1 or Null means none. Tables whose rows are found by
-- another table's key (the notes tables, the satellites of ClientData) keep
-- that key as named: the satellites use ClientDataID as their own key, the
-- notes tables carry CompanyNum / ContactNum under a key of their own because
-- a contact's notes row can be added before its ContactNum is filled in.
--
-- Client data is one Companies row, one ClientData row (CompanyIDNum), and
-- under the same number as ClientDataID a row in AccountingServices,
-- ClientOptions, CorpTaxInfo, LawInfo, OtherInfo, WSIB_EHTInfo (Canada) and
-- ClientUSInfo (United States). These are read together by one join that
-- selects them with ".*", so apart from their keys no column name stands in
-- two of them.

-- ---------------------------------------------------------------------------
-- Address book

-- A company: a client, a branch of a client (CompanyNum is its main
-- company), or the firm itself (see AccountantFirmInfo). CategoryNum places
-- it in the address book's category tree. DefaultContact... hold a copy of
-- the default contact's name, phone, fax and e-mail.
CREATE TABLE IF NOT EXISTS Companies (
  CompanyID INTEGER PRIMARY KEY,
  CompanyNum INTEGER,
  CategoryNum INTEGER,
  CompanyName TEXT,
  CorporateName TEXT,
  ClientID TEXT,
  CompanyType INTEGER,             -- 1 Corporation, 2 Sole Proprietorship, 3 Partnership ...
  IndustryType TEXT,
  Address TEXT,                    -- the whole street address, may hold line breaks
  Address1 TEXT,
  Address2 TEXT,
  Address3 TEXT,
  City TEXT,
  Province TEXT,
  PostalCode TEXT,
  Country TEXT,
  OfficeNumber TEXT,
  AltPhoneNumber TEXT,
  FaxNumber TEXT,
  Email TEXT,
  WebSite TEXT,
  FaceBookURL TEXT,
  TwitterAccount TEXT,
  PartnerName TEXT,
  AccountantName TEXT,
  AltAddress TEXT,
  AltAddress1 TEXT,
  AltAddress2 TEXT,
  AltAddress3 TEXT,
  AltCity TEXT,
  AltProvince TEXT,
  AltPostalCode TEXT,
  AltCountry TEXT,
  DefaultContactName TEXT,
  DefaultContactPhoneNumber TEXT,
  DefaultContactFaxNumber TEXT,
  DefaultContactEmail TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxCompaniesCompanyNum ON Companies (CompanyNum);
CREATE INDEX IF NOT EXISTS idxCompaniesCategoryNum ON Companies (CategoryNum);

-- BusinessNotes: the company's own notes; ContactNotes: the rich-text summary
-- of its default contact; Notes: the notes that merge as "Company Notes".
CREATE TABLE IF NOT EXISTS CompaniesNotes (
  CompaniesNotesID INTEGER PRIMARY KEY,
  CompanyNum INTEGER UNIQUE,
  BusinessNotes TEXT,
  ContactNotes TEXT,
  Notes TEXT
);

-- A person. ContactPersonalTaxDisplayType 2 makes the row a couple with the
-- Spouse... columns. InheritCompanyInfo: the business address and phones come
-- from the linked company.
CREATE TABLE IF NOT EXISTS Contacts (
  ContactID INTEGER PRIMARY KEY,
  ClientID TEXT,
  NamePrefix TEXT,
  FirstName TEXT,
  MiddleName TEXT,
  LastName TEXT,
  NameSuffix TEXT,
  DisplayName TEXT,
  ContactPersonalTaxDisplayType INTEGER,
  InheritCompanyInfo BOOLEAN DEFAULT 0,
  SocialInsuranceNumber TEXT,
  EmployeeType TEXT,
  PercentageOwnership TEXT,
  BusinessName TEXT,
  BusinessJobTitle TEXT,
  BusinessDepartment TEXT,
  BusinessOffice TEXT,
  BusinessPhone_Main TEXT,
  BusinessAltPhoneNumber TEXT,
  BusinessPhone_Cell TEXT,
  BusinessPhone_Pager TEXT,
  BusinessPhone_Fax TEXT,
  BusinessAddress TEXT,
  BusinessAddress1 TEXT,
  BusinessAddress2 TEXT,
  BusinessAddress3 TEXT,
  BusinessCity TEXT,
  BusinessProvince TEXT,
  BusinessPostalCode TEXT,
  BusinessCountry TEXT,
  BusinessWebSite TEXT,
  BusinessEmail TEXT,
  BusinessFaceBookURL TEXT,
  BusinessTwitterAccount TEXT,
  HomePhone_Main TEXT,
  HomePhone_Cell TEXT,
  HomePhone_Pager TEXT,
  HomePhone_Fax TEXT,
  PersonalWebSite TEXT,
  PersonalEmail TEXT,
  PersonalFaceBookURL TEXT,
  PersonalTwitterAccount TEXT,
  HomeAddress TEXT,
  HomeAddress1 TEXT,
  HomeAddress2 TEXT,
  HomeAddress3 TEXT,
  HomeCity TEXT,
  HomeProvince TEXT,
  HomePostalCode TEXT,
  HomeCountry TEXT,
  Children TEXT,
  Gender TEXT,
  Birthday DATE,
  Anniversary DATE,
  SpokenLanguage TEXT,
  MaritialStatus TEXT,
  SpouseNamePrefix TEXT,
  SpouseFirstName TEXT,
  SpouseMiddleName TEXT,
  SpouseLastName TEXT,
  SpouseNameSuffix TEXT,
  SpouseName TEXT,
  SpouseEmail TEXT,
  SpousePhone_Main TEXT,
  SpousePhone_Cell TEXT,
  SpouseAddress TEXT,
  SpouseAddress1 TEXT,
  SpouseAddress2 TEXT,
  SpouseAddress3 TEXT,
  SpouseCity TEXT,
  SpouseProvince TEXT,
  SpousePostalCode TEXT,
  SpouseCountry TEXT,
  SpouseGender TEXT,
  SpouseBirthday DATE,
  SpouseSIN TEXT,
  AltAddressName TEXT,
  AltAddress TEXT,
  AltAddress1 TEXT,
  AltAddress2 TEXT,
  AltAddress3 TEXT,
  AltCity TEXT,
  AltProvince TEXT,
  AltPostalCode TEXT,
  AltCountry TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);

-- Notes: the contact's notes; BusinessNotes: its rich-text summary.
CREATE TABLE IF NOT EXISTS ContactsNotes (
  ContactsNotesID INTEGER PRIMARY KEY,
  ContactNum INTEGER UNIQUE,
  Notes TEXT,
  BusinessNotes TEXT
);

-- A link of a contact (ContactIDNum) to a company (CompanyNum), to a related
-- contact (ContactNum, with FamilyRelationship), or to an address-book
-- category (CategoryNum). One link per company has DefaultContact True.
CREATE TABLE IF NOT EXISTS ContactLinks (
  ContactLinkID INTEGER PRIMARY KEY,
  ContactIDNum INTEGER,
  CompanyNum INTEGER,
  ContactNum INTEGER,
  CategoryNum INTEGER,
  DefaultContact BOOLEAN DEFAULT 0,
  FamilyRelationship TEXT
);
CREATE INDEX IF NOT EXISTS idxContactLinksCompanyNum ON ContactLinks (CompanyNum);
CREATE INDEX IF NOT EXISTS idxContactLinksContactIDNum ON ContactLinks (ContactIDNum);
CREATE INDEX IF NOT EXISTS idxContactLinksContactNum ON ContactLinks (ContactNum);
CREATE INDEX IF NOT EXISTS idxContactLinksCategoryNum ON ContactLinks (CategoryNum);

-- The address book's category tree. CategoryNum is the parent (Null or -1 at
-- the top); the root category has CategorySpecialCode "Main".
CREATE TABLE IF NOT EXISTS Categories (
  CategoryID INTEGER PRIMARY KEY,
  CategoryNum INTEGER,
  CategoryName TEXT,
  CategorySpecialCode TEXT
);
CREATE INDEX IF NOT EXISTS idxCategoriesCategoryNum ON Categories (CategoryNum);

-- One settings row: the firm's labels for the five custom columns of
-- contacts (ContactLabel1-5) and of companies and the firm (CompanyLabel1-5),
-- stored with their colon ("Birthday Card:").
CREATE TABLE IF NOT EXISTS CustomAddressFields (
  CustomAddressFieldID INTEGER PRIMARY KEY,
  ContactLabel1 TEXT,
  ContactLabel2 TEXT,
  ContactLabel3 TEXT,
  ContactLabel4 TEXT,
  ContactLabel5 TEXT,
  CompanyLabel1 TEXT,
  CompanyLabel2 TEXT,
  CompanyLabel3 TEXT,
  CompanyLabel4 TEXT,
  CompanyLabel5 TEXT
);

-- ---------------------------------------------------------------------------
-- Client data: ClientData and its satellites

-- ShowThisClient: listed among the clients; ActiveStatus 1 is active.
CREATE TABLE IF NOT EXISTS ClientData (
  ClientDataID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ShowThisClient BOOLEAN DEFAULT 1,
  ActiveStatus INTEGER DEFAULT 1,
  ClientSince DATE
);
CREATE INDEX IF NOT EXISTS idxClientDataCompanyIDNum ON ClientData (CompanyIDNum);

-- Codes: RC59Permission 1 Full, 2 Limited; RC59Status 1 Awaiting Signature,
-- 2 CRA Processing, 3 Completed; GSTFilingMethod 1 Traditional, 2 Simple
-- Method, 3 Quick Method; FinancialStatements 2 Compilation (NTR), 3 Review
-- Engagement, 4 ... with Differential Reporting, 5 Audit.
CREATE TABLE IF NOT EXISTS AccountingServices (
  AccountingServiceID INTEGER PRIMARY KEY,
  BusinessNumber TEXT,
  RC59Permission INTEGER,
  RC59Status INTEGER,
  GSTNumber TEXT,
  GSTFilingMethod INTEGER,
  PSTNumber TEXT,
  PayrollNumber TEXT,
  PayrollRegisteredAs TEXT,
  YearEndDate DATE,
  FinancialStatements INTEGER,
  BookkeepingFrequency TEXT
);

-- The client's five custom columns, merged as ClientCustom1-5 under the
-- labels CustomFields.CustomName1-5.
CREATE TABLE IF NOT EXISTS ClientOptions (
  ClientOptionID INTEGER PRIMARY KEY,
  ClientCustom1 TEXT,
  ClientCustom2 TEXT,
  ClientCustom3 TEXT,
  ClientCustom4 TEXT,
  ClientCustom5 TEXT
);

-- CorporationType 1 Regular Corporation, else CCPC; CorporationLevel 2
-- Provincial Corporation, else Federal Corporation. ONCorpNumber holds the
-- provincial corporation tax number of whatever province; MCBS the Ontario
-- MCBS or Quebec ID number.
CREATE TABLE IF NOT EXISTS CorpTaxInfo (
  CorpTaxInfoID INTEGER PRIMARY KEY,
  FederalCorpNumber TEXT,
  ONCorpNumber TEXT,
  MCBS TEXT,
  IncorporationDate DATE,
  CorporationType INTEGER,
  CorporationLevel INTEGER
);

CREATE TABLE IF NOT EXISTS LawInfo (
  LawInfoID INTEGER PRIMARY KEY,
  NameRenewalDate DATE,
  LawSocietyMemberNumber TEXT
);

CREATE TABLE IF NOT EXISTS OtherInfo (
  OtherInfoID INTEGER PRIMARY KEY,
  CharitableNum TEXT
);

-- Workplace safety board (WSIB, WCB, CSST, WHSCC by province) and employer
-- health tax. WSIBNumber holds the NEQ number in Quebec.
CREATE TABLE IF NOT EXISTS WSIB_EHTInfo (
  WSIB_EHTInfoID INTEGER PRIMARY KEY,
  WSIBNumber TEXT,
  WSIBFirmNumber TEXT,
  WSIBPremiumRate REAL,
  Coverage CURRENCY,
  EHTNumber TEXT,
  EHTPremiumRate REAL
);

CREATE TABLE IF NOT EXISTS ClientUSInfo (
  ClientUSInfoID INTEGER PRIMARY KEY,
  EIN TEXT,
  SellersPermitNum TEXT,
  USYearEndDate DATE,
  SoSFileNum TEXT,
  USIncorporationDate DATE,
  PropertyTaxNum TEXT,
  Form637RegNum TEXT,
  TCN TEXT,
  TerminalName TEXT,
  TerminalLocation TEXT,
  AlcoholNum TEXT
);

-- Accounting software a client uses; the row with DefaultSoftware True is
-- the one that merges. Belongs to a company or to a contact.
CREATE TABLE IF NOT EXISTS SoftwareInfo (
  SoftwareInfoID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  DefaultSoftware BOOLEAN DEFAULT 0,
  SoftwareName TEXT,
  SoftwareSerialNumber TEXT,
  SoftwareVersion TEXT,
  SoftwareAccountNumber TEXT,
  FileSavedAs TEXT,
  UserName TEXT,
  Password TEXT
);
CREATE INDEX IF NOT EXISTS idxSoftwareInfoCompanyIDNum ON SoftwareInfo (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxSoftwareInfoContactIDNum ON SoftwareInfo (ContactIDNum);

-- ---------------------------------------------------------------------------
-- The firm

-- The firm's single row; CompanyID is the firm's own Companies row. It holds
-- the firm's address and phones itself (the merge and the employees'
-- addresses read them here).
CREATE TABLE IF NOT EXISTS AccountantFirmInfo (
  CompanyID INTEGER PRIMARY KEY,
  CompanyName TEXT,
  CorporateName TEXT,
  CompanyType INTEGER,
  IndustryType TEXT,
  Address TEXT,
  City TEXT,
  Province TEXT,
  PostalCode TEXT,
  Country TEXT,
  OfficeNumber TEXT,
  FaxNumber TEXT,
  Email TEXT,
  WebSite TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);

-- A user of the system: an employee of the firm, ContactID being the
-- person's Contacts row and the user id. The person's business columns are
-- kept here too; BusinessNotes holds the rich-text summary.
CREATE TABLE IF NOT EXISTS AccountantEmployeeInfo (
  ContactID INTEGER PRIMARY KEY,
  UserName TEXT,
  ClientID TEXT,
  FirstName TEXT,
  LastName TEXT,
  DisplayName TEXT,
  InheritCompanyInfo BOOLEAN DEFAULT 0,
  SocialInsuranceNumber TEXT,
  EmployeeType TEXT,
  BusinessName TEXT,
  BusinessJobTitle TEXT,
  BusinessDepartment TEXT,
  BusinessOffice TEXT,
  BusinessPhone_Main TEXT,
  BusinessAltPhoneNumber TEXT,
  BusinessPhone_Cell TEXT,
  BusinessPhone_Pager TEXT,
  BusinessPhone_Fax TEXT,
  BusinessAddress TEXT,
  BusinessCity TEXT,
  BusinessProvince TEXT,
  BusinessPostalCode TEXT,
  BusinessCountry TEXT,
  BusinessWebSite TEXT,
  BusinessEmail TEXT,
  BusinessFaceBookURL TEXT,
  BusinessTwitterAccount TEXT,
  AltAddressName TEXT,
  AltAddress TEXT,
  AltCity TEXT,
  AltProvince TEXT,
  AltPostalCode TEXT,
  AltCountry TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT,
  Notes TEXT,
  BusinessNotes TEXT
);

-- One settings row of the firm's custom columns: labels (CustomName for
-- clients, ApptCustomName for appointments, RemittanceLabel for task
-- schedule rows, TaskCustomName for calendar tasks, DocketCustomName for time
-- entries) and custom types (2 client repeater, 3 lookup field, 4 type
-- repeater; anything else an ordinary column) of the Custom columns of
-- Schedule, PersonalTaxStatus and CompanyProjects.
CREATE TABLE IF NOT EXISTS CustomFields (
  CustomFieldID INTEGER PRIMARY KEY,
  CustomName1 TEXT,
  CustomName2 TEXT,
  CustomName3 TEXT,
  CustomName4 TEXT,
  CustomName5 TEXT,
  ApptCustomName1 TEXT,
  ApptCustomName2 TEXT,
  ApptCustomName3 TEXT,
  ApptCustomName4 TEXT,
  ApptCustomName5 TEXT,
  RemittanceLabel1 TEXT,
  RemittanceLabel2 TEXT,
  RemittanceLabel3 TEXT,
  RemittanceLabel4 TEXT,
  RemittanceLabel5 TEXT,
  TaskCustomName1 TEXT,
  TaskCustomName2 TEXT,
  TaskCustomName3 TEXT,
  TaskCustomName4 TEXT,
  TaskCustomName5 TEXT,
  DocketCustomName1 TEXT,
  DocketCustomName2 TEXT,
  DocketCustomName3 TEXT,
  DocketCustomName4 TEXT,
  DocketCustomName5 TEXT,
  RemittanceCustomType1 INTEGER,
  RemittanceCustomType2 INTEGER,
  RemittanceCustomType3 INTEGER,
  RemittanceCustomType4 INTEGER,
  RemittanceCustomType5 INTEGER,
  PersonalTaxTaskCustomType1 INTEGER,
  PersonalTaxTaskCustomType2 INTEGER,
  PersonalTaxTaskCustomType3 INTEGER,
  PersonalTaxTaskCustomType4 INTEGER,
  PersonalTaxTaskCustomType5 INTEGER,
  ProjectCustomType1 INTEGER,
  ProjectCustomType2 INTEGER,
  ProjectCustomType3 INTEGER,
  ProjectCustomType4 INTEGER,
  ProjectCustomType5 INTEGER
);

-- ---------------------------------------------------------------------------
-- Work records

-- Appointments on the calendar. TimeFrom/TimeTo are full date-times.
-- Before/AfterAppointmentText frame the item's display text.
CREATE TABLE IF NOT EXISTS Appointments (
  AppointmentID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  EmployeeIDNum INTEGER,
  Subject TEXT,
  DateFrom DATE,
  TimeFrom DATETIME,
  TimeTo DATETIME,
  AppointmentText TEXT,
  BeforeAppointmentText TEXT,
  AfterAppointmentText TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxAppointmentsCompanyIDNum ON Appointments (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxAppointmentsContactIDNum ON Appointments (ContactIDNum);

-- Scheduled work (a remittance or filing due): ClientNum is the ClientData
-- id of a company client, ContactIDNum a contact client. TotalNum is the
-- task type, told apart by ScheduleNum where one TotalNum covers several.
CREATE TABLE IF NOT EXISTS Schedule (
  ScheduleID INTEGER PRIMARY KEY,
  ClientNum INTEGER,
  ContactIDNum INTEGER,
  ScheduleNum INTEGER,
  TotalNum INTEGER,
  Subject TEXT,
  DueDate DATE,
  inHouseDueDate DATE,
  PeriodEndDate DATE,
  PeriodDescription TEXT,
  EmployeeAssigned TEXT,
  Year TEXT,
  Amount CURRENCY,
  PersonCompleted TEXT,
  DateCompleted DATE,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxScheduleClientNum ON Schedule (ClientNum);
CREATE INDEX IF NOT EXISTS idxScheduleContactIDNum ON Schedule (ContactIDNum);
CREATE INDEX IF NOT EXISTS idxScheduleTotalNum ON Schedule (TotalNum);

-- A task as a calendar entry, usually for a Schedule row (ScheduleIDNum).
CREATE TABLE IF NOT EXISTS Tasks (
  TaskID INTEGER PRIMARY KEY,
  ScheduleIDNum INTEGER,
  EmployeeIDNum INTEGER,
  Subject TEXT,
  CalendarDate DATE,
  DateFrom DATE,
  TimeFrom DATETIME,
  TimeTo DATETIME,
  AppointmentText TEXT,
  BeforeAppointmentText TEXT,
  AfterAppointmentText TEXT,
  TaskCompleted BOOLEAN DEFAULT 0,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxTasksScheduleIDNum ON Tasks (ScheduleIDNum);

-- Tasks moved to the archive keep their old id.
CREATE TABLE IF NOT EXISTS archiveTasks (
  oldTaskID INTEGER PRIMARY KEY,
  ScheduleIDNum INTEGER,
  Subject TEXT,
  DateArchived DATE
);
CREATE INDEX IF NOT EXISTS idxArchiveTasksScheduleIDNum ON archiveTasks (ScheduleIDNum);

-- Time entries. Times are full date-times; TotalTime... are hours;
-- TotalAmount... and BillingJobRate are amounts.
CREATE TABLE IF NOT EXISTS Dockets (
  DocketID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  EmployeeIDNum INTEGER,
  Subject TEXT,
  DateFrom DATE,
  TimeFrom DATETIME,
  TimeTo DATETIME,
  AppointmentText TEXT,
  BeforeAppointmentText TEXT,
  AfterAppointmentText TEXT,
  DocketLocked BOOLEAN DEFAULT 0,
  Invoiced BOOLEAN DEFAULT 0,
  UsedRealTime BOOLEAN DEFAULT 0,
  RealTimeFrom DATETIME,
  RealTimeTo DATETIME,
  OriginalRealTimeFrom DATETIME,
  OriginalRealTimeTo DATETIME,
  RoundedTimeFrom DATETIME,
  RoundedTimeTo DATETIME,
  TextBody TEXT,
  DocketBillingType TEXT,
  BillingJobRate CURRENCY,
  BillableTime BOOLEAN DEFAULT 1,
  TotalTimeReal REAL,
  TotalTimeRounded REAL,
  UseAdjustedTime BOOLEAN DEFAULT 0,
  TotalTimeAdjusted REAL,
  TotalTimeFinal REAL,
  TotalAmountReal CURRENCY,
  TotalAmountFinal CURRENCY,
  DescriptionInternal TEXT,
  DescriptionClient TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxDocketsCompanyIDNum ON Dockets (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxDocketsContactIDNum ON Dockets (ContactIDNum);

-- A contact's personal tax return for one TaxYear.
CREATE TABLE IF NOT EXISTS PersonalTaxStatus (
  PersonalTaxStatusID INTEGER PRIMARY KEY,
  ContactNum INTEGER,
  TaxYear INTEGER,
  ReturnStatus TEXT,
  DateFiled DATE,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxPersonalTaxStatusContactNum ON PersonalTaxStatus (ContactNum);

-- A project for a company or contact client; SavedProjectIDNum is its
-- project type.
CREATE TABLE IF NOT EXISTS CompanyProjects (
  CompanyProjectID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  SavedProjectIDNum INTEGER,
  ProjectName TEXT,
  Custom1 TEXT,
  Custom2 TEXT,
  Custom3 TEXT,
  Custom4 TEXT,
  Custom5 TEXT
);
CREATE INDEX IF NOT EXISTS idxCompanyProjectsCompanyIDNum ON CompanyProjects (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxCompanyProjectsContactIDNum ON CompanyProjects (ContactIDNum);
CREATE INDEX IF NOT EXISTS idxCompanyProjectsSavedProjectIDNum ON CompanyProjects (SavedProjectIDNum);

-- ---------------------------------------------------------------------------
-- Document links

-- A client's document categories. A category belongs to a company
-- (CompanyIDNum, ContactIDNum Null) or to a contact (ContactIDNum,
-- CompanyIDNum Null). DocCategoryNum is the parent category, Null or -1 at
-- the top. DocCategorySpecialType: 0 ordinary; 1 the client's main category
-- (the top of its tree); 2 the category whose DocCategorySynchFolder is the
-- folder of the client's merge documents; 3 a category holding shortcuts to
-- the client's merge documents. Types 1 to 3 can't be edited or deleted;
-- types 2 and 3 are the ones that hold merge documents. Siblings show in
-- DocCategorySortOrder, then by name.
CREATE TABLE IF NOT EXISTS DocCategories (
  DocCategoryID INTEGER PRIMARY KEY,
  DocCategoryNum INTEGER,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  DocCategoryName TEXT,
  DocCategoryDescription TEXT,
  DocCategorySynchFolder TEXT,
  DocCategorySpecialType INTEGER DEFAULT 0,
  DocCategorySortOrder INTEGER DEFAULT 0
);
CREATE INDEX IF NOT EXISTS idxDocCategoriesDocCategoryNum ON DocCategories (DocCategoryNum);
CREATE INDEX IF NOT EXISTS idxDocCategoriesCompanyIDNum ON DocCategories (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxDocCategoriesContactIDNum ON DocCategories (ContactIDNum);

-- A link to a file in a category (DocCategoryNum) of a client (CompanyIDNum
-- or ContactIDNum, as its category). The file stays where it is:
--   DocIconName          the display name shown in the list ("2025 T2 Return")
--   DocName              the file's name without folder and extension ("T2-2025")
--   DocFileName          the file's name with its extension ("T2-2025.pdf")
--   DocPath              the full path of the file
--   DocHostComputerName  the computer the link was added from
--   DocDateAdded, DocAddedByUserIDNum  when and by which user (AccountantEmployeeInfo.ContactID)
CREATE TABLE IF NOT EXISTS Documents (
  DocumentID INTEGER PRIMARY KEY,
  CompanyIDNum INTEGER,
  ContactIDNum INTEGER,
  DocCategoryNum INTEGER,
  DocName TEXT,
  DocFileName TEXT,
  DocPath TEXT,
  DocIconName TEXT,
  DocHostComputerName TEXT,
  DocDateAdded DATETIME,
  DocAddedByUserIDNum INTEGER
);
CREATE INDEX IF NOT EXISTS idxDocumentsDocCategoryNum ON Documents (DocCategoryNum);
CREATE INDEX IF NOT EXISTS idxDocumentsCompanyIDNum ON Documents (CompanyIDNum);
CREATE INDEX IF NOT EXISTS idxDocumentsContactIDNum ON Documents (ContactIDNum);

-- ---------------------------------------------------------------------------
-- Per-user settings

-- The document control's saved view for a user: list view type, sort,
-- icon arrangement, the column layout as XML text, and the divider position
-- (whole percent) for business and personal clients.
CREATE TABLE IF NOT EXISTS UserGeneralSettings (
  UserIDNum INTEGER PRIMARY KEY,
  DocQuillboxColumnWidthsXML TEXT,
  DocQuillboxListViewType INTEGER,
  DocQuillboxViewSort INTEGER,
  DocQuillboxArrangeIcons INTEGER,
  BusinessDocQuillboxSplitter INTEGER,
  PersonalDocQuillboxSplitter INTEGER
);

-- A user's templates for the calendar's display and title-bar texts of
-- appointments, time entries and tasks.
CREATE TABLE IF NOT EXISTS UserCalendarSettings (
  UserIDNum INTEGER PRIMARY KEY,
  ApptTemplate TEXT,
  ApptTitleBarText TEXT,
  DocketTemplate TEXT,
  DocketTitleBarText TEXT,
  TaskTemplate TEXT,
  TaskTitleBarText TEXT
);

-- ---------------------------------------------------------------------------
-- The mark of a client database: the application id says the file is ours,
-- the user version which schema it holds. The store refuses to open a file
-- without them. (schema.h gives the same two numbers to the code.)
PRAGMA application_id = 1363300184;
PRAGMA user_version = 1;
