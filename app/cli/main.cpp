// quillbox: the command-line host. Creates client databases and runs the
// system's operations on a database file, printing results to standard output
// and failures to standard error.

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <sstream>

#include "app/cli/command_line.h"

int main(int argc, char** argv) {
  std::vector<std::string> words(argv + 1, argv + argc);
  std::ostringstream results;
  int status = qb::cli::runTool(words, results, std::cerr);
  // A result that can't be written (a full disk, a closed pipe) is a failure:
  // nobody got it.
  const std::string text = results.str();
  errno = 0;
  bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  written = std::fflush(stdout) == 0 && written && !std::ferror(stdout);
  if (!written) {
    const char* reason = errno != 0 ? std::strerror(errno) : "write error";
    std::cerr << "quillbox: can't write the results to standard output (" << reason
              << "); free space where the output goes, or send it elsewhere, and run the "
                 "command again\n";
    return status == 0 ? 1 : status;
  }
  return status;
}
