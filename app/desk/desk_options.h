#pragma once
// The demo host window's command line.
//
//   quillbox-desk --db FILE [--client company:ID|contact:ID]
//                 [--country N] [--province N] [--user N] [--screenshot FILE]

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

namespace qb::desk {

struct DeskOptions {
  std::string databasePath;
  // The starting client; none: the first company that has documents.
  std::optional<bool> clientIsCompany;
  int32_t clientID = -1;
  // The locale the host hands in.
  int32_t country = 1;
  int32_t province = 3;
  int32_t user = 1;
  // Where to save a picture of the window before leaving; empty: stay open.
  std::string screenshotPath;
  // No dialogs: messages and failures go to standard error, questions get
  // "no". For screenshots and tests.
  bool unattended = false;
};

// A bad command line, with the text to show.
struct OptionsError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Reads "company:ID" or "contact:ID" into options; throws OptionsError for
// anything else.
void parseClient(const std::string& text, DeskOptions& options);

}  // namespace qb::desk
