// quillbox init: creates a client database, empty or with the sample firm or
// a generated firm.

#include <filesystem>
#include <stdexcept>

#include "app/cli/command.h"
#include "sample/sample_firm.h"

namespace qb::cli {
namespace {

int runInit(Context& context) {
  const Arguments& args = context.args;
  std::string path = args.required("db");
  bool sample = args.has("sample");
  bool generate = args.has("generate");
  if (sample && generate) throw UsageError("give --sample or --generate N, not both");
  int32_t clients = args.id("generate", 0);
  if (generate && clients < 0) throw UsageError("--generate takes a number of clients, 0 or more");
  std::string files = args.value("files", defaultFilesFolder(path));

  if (!args.has("force") && std::filesystem::exists(path)) {
    throw std::runtime_error(path + " exists already; give --force to replace it");
  }
  createDatabase(path, args.has("force"));
  context.out << "Created " << std::filesystem::absolute(path).lexically_normal().string() << "\n";
  if (!sample && !generate) {
    context.out << "The database holds the schema and no rows.\n";
    return 0;
  }
  FirmSummary made = sample ? fillSampleFirm(path, files) : generateFirm(path, files, clients);
  context.out << (sample ? "Sample firm: " : "Generated firm: ") << made.companies
              << " client companies, " << made.contacts << " contacts, " << made.categories
              << " document categories, " << made.documents << " document links\n"
              << "Files: " << made.files << " written in " << made.filesFolder << "\n";
  return 0;
}

const CommandRegistration kRegistration(Command{
    "init",
    "create a client database: empty, the sample firm or a generated firm",
    "Usage: quillbox init --db FILE [--sample | --generate N] [--files DIR] [--force]\n"
    "\n"
    "Creates a new client database with the whole schema and prints what it made.\n"
    "\n"
    "  --db FILE       the database file to create (its folders are created too)\n"
    "  --sample        fill in the sample firm: a Canadian accounting firm with its\n"
    "                  employees, about fifteen client companies and thirty contacts,\n"
    "                  work records, and document categories and links for each client;\n"
    "                  the linked files are written into the files folder, one folder\n"
    "                  per client, with a read-only file, links whose file is missing\n"
    "                  and one whose folder is gone\n"
    "  --generate N    fill in a generated firm of N client companies, two contacts\n"
    "                  each, with categories and links to 200 shared files in the\n"
    "                  files folder's \"bulk\" folder; client 1 also has the category\n"
    "                  \"Bulk Archive\" of 5,000 links (for benchmarks)\n"
    "  --files DIR     the files folder (default: \"<db name>-files\" beside the database)\n"
    "  --force         replace the database file if it exists (otherwise that is an error)\n"
    "\n"
    "Without --sample or --generate the database is left empty.\n",
    {"db", "generate", "files"},
    {"sample", "force"},
    runInit,
    true,  // writes
});

}  // namespace
}  // namespace qb::cli
