#pragma once
// The quillbox tool's tests: the tool run in this process on a fresh copy of
// the sample firm, and, where the process itself matters (another user, a
// full standard output), the program run as a child.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace qb::test {

// What a run of the tool gave.
struct ToolRun {
  int status = -1;
  std::string out;
  std::string err;
  // The first line of the error output.
  std::string firstError() const { return err.substr(0, err.find('\n')); }
};

class CliTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite();
  static void TearDownTestSuite();
  void SetUp() override;

  // Runs the tool in this process.
  static ToolRun run(const std::vector<std::string>& words);
  // Runs the tool in a child process as a user who may not write the test's
  // folder nor its files (nobody, when the tests run as root; otherwise the
  // folder and the database are made read-only for the run).
  ToolRun runAsReader(const std::vector<std::string>& words);
  // Runs the program build/quillbox with standard output going to outPath.
  static ToolRun runProgram(const std::vector<std::string>& words, const std::string& outPath);

  // One value of a query on the test's database, read past the store ("" for
  // Null).
  std::string scalar(const std::string& sql) const { return scalarIn(db_, sql); }
  static std::string scalarIn(const std::string& path, const std::string& sql);
  // Runs SQL on a file past the store.
  static void execIn(const std::string& path, const std::string& sql);
  // The bytes of a file.
  static std::string bytesOf(const std::string& path);

  static TempFolder* shared_;  // the pristine sample firm
  static std::string pristine_;
  TempFolder folder_;
  std::string db_;  // this test's copy
};

}  // namespace qb::test
