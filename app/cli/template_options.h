#pragma once
// The template of a merge command: --text TEXT or --template FILE, exactly
// one of them. A file is read as it stands, bytes and line ends unchanged.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "app/cli/command.h"

namespace qb::cli {

inline std::string templateText(const Arguments& args) {
  if (args.has("text") == args.has("template")) {
    throw UsageError("give the template as --text TEXT or --template FILE (one of them)");
  }
  if (args.has("text")) return args.value("text");
  const std::string path = args.value("template");
  std::ifstream file(path, std::ios::binary);
  if (!std::filesystem::is_regular_file(path) || !file) {
    throw std::runtime_error("can't read the template '" + path + "'");
  }
  std::ostringstream text;
  text << file.rdbuf();  // an empty file reads as ""
  if (file.bad()) throw std::runtime_error("can't read the template '" + path + "'");
  return text.str();
}

}  // namespace qb::cli
