// quillbox describe: what a client database holds, table by table.

#include <algorithm>
#include <filesystem>
#include <iomanip>

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "sample/sample_firm.h"

namespace qb::cli {
namespace {

int runDescribe(Context& context) {
  const Arguments& args = context.args;
  std::string path = args.required("db");
  Session session(context);
  auto counts = tableRowCounts(session.store());
  context.out << "Database: " << std::filesystem::absolute(path).lexically_normal().string()
              << "\n";
  std::string files = args.value("files", defaultFilesFolder(path));
  if (std::filesystem::is_directory(files)) {
    context.out << "Files folder: " << std::filesystem::absolute(files).lexically_normal().string()
                << "\n";
  }
  size_t width = 0;
  for (const auto& [table, count] : counts) width = std::max(width, table.size());
  context.out << "Rows per table:\n";
  for (const auto& [table, count] : counts) {
    context.out << "  " << std::left << std::setw(static_cast<int>(width) + 2) << table
                << std::right << count << "\n";
  }
  return 0;
}

const CommandRegistration kRegistration(Command{
    "describe",
    "print a client database's tables and their numbers of rows",
    "Usage: quillbox describe --db FILE [--files DIR]\n"
    "\n"
    "Prints the database's path, its files folder when there is one, and the\n"
    "number of rows in each table, sorted by table name.\n"
    "\n"
    "  --db FILE       the client database\n"
    "  --files DIR     the files folder to report (default: \"<db name>-files\" beside\n"
    "                  the database, shown when it exists)\n",
    {"db", "files"},
    {},
    runDescribe,
});

}  // namespace
}  // namespace qb::cli
