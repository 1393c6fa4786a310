// The hosts' shared pieces through the built tool: `quillbox clients` lists
// the firm's clients with their ids, on the database given or the one the
// desktop program opened last; `quillbox --version` names the version.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "app/common/desk_settings.h"
#include "sample/sample_firm.h"
#include "tests/support/temp_folder.h"

namespace qb::test {

namespace {

struct ToolRun {
  int status = -1;
  std::string out;
  std::string err;
};

std::string readAll(const std::string& path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

class ClientsCommandTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    firm_ = new TempFolder();
    createDatabase(firm_->file("firm.db"));
    fillSampleFirm(firm_->file("firm.db"), firm_->file("files"));
  }
  static void TearDownTestSuite() { delete firm_; }

  // Runs the built tool with arguments (shell words) and, before them,
  // environment settings ("XDG_CONFIG_HOME=..."); both streams and the exit
  // status are kept.
  ToolRun run(const std::string& arguments, const std::string& environment = "") {
    const char* build = std::getenv("QB_BUILD_DIR");
    EXPECT_NE(build, nullptr) << "QB_BUILD_DIR names the build folder";
    const std::string out = folder_.file("out.txt");
    const std::string err = folder_.file("err.txt");
    const std::string command = "env -u XDG_CONFIG_HOME HOME=" + folder_.path().string() + " " +
                                environment + " '" + std::string(build ? build : ".") +
                                "/quillbox' " + arguments + " >'" + out + "' 2>'" + err + "'";
    ToolRun result;
    const int raw = std::system(command.c_str());
    result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    result.out = readAll(out);
    result.err = readAll(err);
    return result;
  }

  std::string db() const { return "--db '" + firm_->file("firm.db") + "'"; }

  static TempFolder* firm_;
  TempFolder folder_;
};

TempFolder* ClientsCommandTest::firm_ = nullptr;

size_t lineCount(const std::string& text) {
  return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace

TEST_F(ClientsCommandTest, ListsTheClientsWithTheirIdsKindsAndNames) {
  const ToolRun all = run("clients " + db());
  ASSERT_EQ(all.status, 0) << all.err;
  EXPECT_EQ(all.err, "");
  // Companies by name, then contacts by name; not the firm, not its users.
  EXPECT_EQ(all.out.substr(0, all.out.find("15\t")),
            "10\tcompany\tBluenose Marine Services Ltd.\n7\tcompany\tByward Market Books\n");
  EXPECT_EQ(lineCount(all.out), 16u + 30u);
  EXPECT_EQ(all.out.find("Rideau Valley Accounting LLP"), std::string::npos);
  EXPECT_EQ(all.out.find("\tMarie Tremblay\n"), std::string::npos);
  EXPECT_LT(all.out.rfind("\tcompany\t"), all.out.find("\tcontact\t"));

  const ToolRun bakeries = run("clients " + db() + " --find BAKERY");
  EXPECT_EQ(bakeries.out,
            "12\tcompany\tMaple Leaf Bakery - Orléans\n2\tcompany\tMaple Leaf Bakery Ltd.\n");
  const ToolRun accented = run("clients " + db() + " --contacts --find 'élise'");
  EXPECT_EQ(accented.out, "26\tcontact\tÉlise Ng\n");
  EXPECT_EQ(lineCount(run("clients " + db() + " --companies").out), 16u);
  EXPECT_EQ(lineCount(run("clients " + db() + " --contacts").out), 30u);
  EXPECT_EQ(run("clients " + db() + " --find 'no such client'").out, "");

  // Usage errors: exit status 2, the reason and the usage on standard error.
  const ToolRun both = run("clients " + db() + " --companies --contacts");
  EXPECT_EQ(both.status, 2);
  EXPECT_EQ(both.out, "");
  EXPECT_NE(both.err.find("give --companies or --contacts, not both"), std::string::npos);
  EXPECT_EQ(run("clients " + db() + " --find").status, 2);
  EXPECT_EQ(run("clients --db '" + folder_.file("missing.db") + "'").status, 1);
}

TEST_F(ClientsCommandTest, WithoutDbTheDatabaseTheDesktopProgramOpenedLast) {
  // No settings yet: --db is needed.
  const ToolRun none = run("clients");
  EXPECT_EQ(none.status, 2);
  EXPECT_NE(none.err.find("--db is required"), std::string::npos);

  // The settings file as the desktop program writes it, under
  // $XDG_CONFIG_HOME or else ~/.config; a path with a comma is quoted.
  const std::string copy = folder_.file("a, b/firm.db");
  std::filesystem::create_directories(folder_.file("a, b"));
  std::filesystem::copy_file(firm_->file("firm.db"), copy);
  folder_.writeFile("config/quillbox/quillbox-desk.conf",
                    "[General]\nlast=elsewhere\n\n[database]\nlast=\"" + copy + "\"\n");
  const ToolRun last = run("clients --companies", "XDG_CONFIG_HOME=" + folder_.file("config"));
  EXPECT_EQ(last.status, 0) << last.err;
  EXPECT_EQ(lineCount(last.out), 16u);
  folder_.writeFile(".config/quillbox/quillbox-desk.conf", "[database]\nlast=" + copy + "\n");
  EXPECT_EQ(lineCount(run("clients --contacts").out), 30u);
  std::filesystem::remove(copy);
  EXPECT_EQ(run("clients").status, 2);  // the file is gone
}

TEST(DeskSettings, IniValuesAsQtWritesThem) {
  EXPECT_EQ(hosts::iniValue("/tmp/qb/firm.db"), "/tmp/qb/firm.db");
  EXPECT_EQ(hosts::iniValue("  /tmp/a b/firm.db \r"), "/tmp/a b/firm.db");
  EXPECT_EQ(hosts::iniValue(R"("/tmp/a, \"b\";=\\c/é.db")"), R"(/tmp/a, "b";=\c/é.db)");
  EXPECT_EQ(hosts::iniValue("@@home"), "@home");
  EXPECT_EQ(hosts::iniValue(""), "");
}

TEST_F(ClientsCommandTest, VersionIsTheToolsNameAndVersion) {
  const ToolRun version = run("--version");
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out, std::string("quillbox ") + QB_VERSION + "\n");
  EXPECT_EQ(version.err, "");
  EXPECT_NE(run("--help").out.find("  clients "), std::string::npos);
}

}  // namespace qb::test
