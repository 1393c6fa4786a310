#pragma once
// The sample firm's clients, in three parts: the address book and client
// data, the work records, and the document categories and links with their
// files.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "sample/sample_documents.h"
#include "sample/sample_firm.h"
#include "sample/sample_writer.h"

namespace qb::sample {

struct SampleCompany {
  int32_t id;
  const char* name;
  const char* corporateName;
  const char* clientID;
  int32_t companyType;  // 1 Corporation, 2 Sole Proprietorship, 3 Partnership, 4 Non Profit
  const char* industry;
  const char* address;
  const char* city;
  const char* province;
  const char* postalCode;
  const char* country;
  const char* phone;
  const char* domain;   // of e-mail and web addresses
  int32_t mainCompany;  // a branch's main company, -1 for none
};

struct SampleContact {
  int32_t id;
  const char* prefix;
  const char* first;
  const char* last;
  int32_t company;    // the company the person works for, -1 for none
  const char* title;  // job title, or for a person without company the business
  bool inherit;       // takes the company's address and phones
  const char* spouseFirst;
  const char* spouseLast;
  const char* gender;
  const char* birthday;
};

// The sample's client companies and client contacts (the firm's employees
// aside), by id.
const std::vector<SampleCompany>& sampleCompanies();
const std::vector<SampleContact>& sampleContacts();
const SampleCompany& sampleCompany(int32_t id);
const SampleContact& sampleContact(int32_t id);
// The name a contact lists under: "Pierre & Hélène Côté" for a couple.
std::string sampleDisplayName(const SampleContact& contact);

// Client companies (with branches), contacts, links, notes, client data and
// software.
void writeSampleClients(SampleWriter& out, FirmSummary& summary);

// Appointments, schedule rows and tasks, time entries, personal tax rows and
// projects of the sample clients.
void writeSampleWork(SampleWriter& out);

// Categories and links of the sample clients, and their files under root.
void writeSampleDocuments(DocumentShelf& shelf, const std::filesystem::path& root);

}  // namespace qb::sample
