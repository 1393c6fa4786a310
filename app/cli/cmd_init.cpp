// quillbox init: creates a client database, empty or with the sample firm or
// a generated firm.

#include <filesystem>

#include "app/cli/command.h"
#include "sample/new_database.h"

namespace qb::cli {
namespace {

int runInit(Context& context) {
  const Arguments& args = context.args;
  std::string path = args.required("db");
  NewDatabase options;
  bool sample = args.has("sample");
  bool generate = args.has("generate");
  if (sample && generate) throw UsageError("give --sample or --generate N, not both");
  options.clients = args.number("generate", 0);
  if (generate && (options.clients < 0 || options.clients > kMaxGeneratedClients)) {
    throw UsageError("--generate takes a number of clients from 0 to " +
                     std::to_string(kMaxGeneratedClients) + ", not " + args.value("generate"));
  }
  options.content = sample     ? NewDatabase::Content::Sample
                    : generate ? NewDatabase::Content::Generated
                               : NewDatabase::Content::Empty;
  options.filesFolder = args.value("files", defaultFilesFolder(path));
  options.replace = args.has("force");

  FirmSummary made = makeDatabase(path, options);
  context.out << "Created " << std::filesystem::absolute(path).lexically_normal().string() << "\n";
  if (!sample && !generate) {
    context.out << "The database holds the schema and no rows.\n";
    return 0;
  }
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
    "The database is built under a temporary name beside FILE and takes its place\n"
    "only when it is complete: a failure leaves no database behind.\n"
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
    "                  \"Bulk Archive\" of 5,000 links (for benchmarks); at most " +
        std::to_string(kMaxGeneratedClients) +
        "\n"
        "  --files DIR     the files folder (default: \"<db name>-files\" beside the database)\n"
        "  --force         replace the database file if it exists (otherwise that is an error);\n"
        "                  refused while another program has it open or locked\n"
        "\n"
        "Without --sample or --generate the database is left empty.\n",
    {"db", "generate", "files"},
    {"sample", "force"},
    runInit,
    true,  // writes
});

}  // namespace
}  // namespace qb::cli
