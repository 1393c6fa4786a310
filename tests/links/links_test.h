#pragma once
// The link-health tests' host: a fresh client database with two companies
// and a contact, their document categories, and links added as a test
// needs them to real files in the test's folder; and a way to run a piece of
// a test as an unprivileged user.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "services/util/file_utilities_class.h"
#include "tests/support/test_database.h"

namespace qb::test {

// The categories: company 1 "Acme / Tax / 2024" (3) and "Acme / Permanent"
// (4); company 2 "Birch" (5); contact 5 "Ann" (6).
class LinksTest : public ::testing::Test {
 protected:
  LinksTest();

  // Adds a link in a category; the client is the category's. The computer
  // defaults to this one. Returns the link's id.
  int32_t addLink(int32_t category, const std::string& name, const std::string& path,
                  const std::string& computer = thisComputer());
  // The stored path of a link.
  std::string pathOf(int32_t id) {
    return db.scalar("SELECT DocPath FROM Documents WHERE DocumentID = " + std::to_string(id));
  }
  // Every link's id and path, one "id=path" a line: the store's state.
  std::string allPaths();
  static std::string thisComputer() { return fileUtilitiesClass().getComputerName(); }

  TestDatabase db;
};

// Runs work in a child process as a user who owns none of the test's files
// (nobody, when the tests run as the superuser; otherwise the user the tests
// run as) and returns what it returned, or "child failed" when the child did
// not finish. Nothing of the child's reaches the store of this process.
std::string runAsUnprivileged(const std::function<std::string()>& work);

// Lets everyone pass through the folders from path up to the root, so an
// unprivileged user can reach the test's files.
void openWayTo(const std::string& path);

}  // namespace qb::test
