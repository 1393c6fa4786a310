// The error convention: trace names pushed and popped, and the user's three
// responses to a failure (go on, leave, exit hook then leave).

#include "services/errors/procedure.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "services/errors/console_error_object.h"
#include "services/errors/recording_error_object.h"
#include "services/host/module_state.h"

namespace qb {
namespace {

class ProcedureTest : public ::testing::Test {
 protected:
  void SetUp() override {
    resetModuleState();
    errors = std::make_shared<RecordingErrorObject>();
    moduleState().errorClass = errors;
  }
  void TearDown() override { resetModuleState(); }

  // A procedure of three steps whose second fails; returns the steps that ran.
  std::string runThreeSteps() {
    Procedure proc("Orvanta.exe-test-threeSteps");
    std::string ran;
    proc.step([&] { ran += "1"; });
    proc.step([&] {
      ran += "2";
      throw RuntimeError(err::kOverflow, "Overflow");
      ran += "x";
    });
    proc.step([&] { ran += "3"; });
    return ran;
  }

  std::shared_ptr<RecordingErrorObject> errors;
};

TEST_F(ProcedureTest, ResponsesDecideWhetherTheProcedureGoesOn) {
  errors->script = {1};
  EXPECT_EQ(runThreeSteps(), "123");  // 1: on with the next step
  errors->script = {2};
  EXPECT_EQ(runThreeSteps(), "12");  // 2: leave at once
  errors->script = {3};
  EXPECT_EQ(runThreeSteps(), "12");  // 3: exit hook, then leave
  errors->script = {7};
  EXPECT_EQ(runThreeSteps(), "12");  // anything else: leave
  ASSERT_EQ(errors->failures.size(), 4u);
  EXPECT_EQ(errors->shown, 4);
  EXPECT_EQ(errors->failures[0].number, err::kOverflow);
  EXPECT_EQ(errors->failures[0].description, "Overflow");
  EXPECT_EQ(errors->failures[0].source, "Orvanta.exe-test-threeSteps");
}

TEST_F(ProcedureTest, TraceStackFollowsNestedProcedures) {
  {
    Procedure outer("Orvanta.exe-nvDocumentQuillbox-setupDocumentsDisplay");
    outer.step([&] {
      Procedure inner("Orvanta.exe-modDatabaseFunctions-getCompanyNameFromCompanyID");
      inner.step([] { throw RuntimeError(err::kStoreError, "no such table: Companies"); });
    });
    // The inner failure stayed inside the inner procedure.
    EXPECT_FALSE(outer.failed());
  }
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(
      errors->failures[0].stack,
      (std::vector<std::string>{"Orvanta.exe-nvDocumentQuillbox-setupDocumentsDisplay",
                                "Orvanta.exe-modDatabaseFunctions-getCompanyNameFromCompanyID"}));
  EXPECT_TRUE(errors->stack.empty());
  EXPECT_EQ(errors->pops, 2);
}

TEST_F(ProcedureTest, ResumeModeAndIgnoredNumbersGoOnWithoutReport) {
  std::string ran;
  {
    Procedure proc("Orvanta.exe-nvDocumentQuillbox-errorClass", Procedure::Mode::Resume);
    proc.step([&] { throw RuntimeError(err::kObjectRequired, "Object variable not set"); });
    proc.step([&] { ran += "a"; });
  }
  {
    Procedure proc("Orvanta.exe-nvDocumentQuillbox-populateClientDocumentCategories");
    proc.ignoreError(err::kNoCurrentRecord);
    proc.step([&] { throw RuntimeError(err::kNoCurrentRecord, "No current record"); });
    proc.step([&] { ran += "b"; });
  }
  EXPECT_EQ(ran, "ab");
  EXPECT_TRUE(errors->failures.empty());
  EXPECT_EQ(errors->shown, 0);
}

TEST_F(ProcedureTest, WithoutAnErrorObjectAFailureLeavesSilently) {
  resetModuleState();
  std::string ran;
  Procedure proc("Orvanta.exe-test-noErrorObject");
  proc.step([&] { throw std::runtime_error("plain failure"); });
  proc.step([&] { ran += "x"; });
  EXPECT_EQ(ran, "");
  EXPECT_TRUE(proc.leaving());
}

TEST_F(ProcedureTest, ConsoleErrorObjectWritesFailureWithTrace) {
  std::ostringstream out;
  auto console = std::make_shared<ConsoleErrorObject>(&out);
  moduleState().errorClass = console;
  {
    Procedure proc("Orvanta.exe-modFormatAddresses-createAddress");
    proc.step([] { throw RuntimeError(err::kTypeMismatch, "Type mismatch"); });
  }
  EXPECT_EQ(console->failureCount(), 1);
  EXPECT_EQ(out.str(),
            "Error 13: Type mismatch\n"
            "  source: Orvanta.exe-modFormatAddresses-createAddress\n"
            "  trace:\n"
            "    Orvanta.exe-modFormatAddresses-createAddress\n");

  // The message's first line leads; its details and a recursion's run of one
  // name follow below it, the run written once.
  out.str("");
  {
    Procedure outer("Orvanta.exe-test-outer");
    std::function<void(int)> recurse = [&](int depth) {
      Procedure inner("Orvanta.exe-test-recurse");
      inner.step([&] {
        if (depth == 0) throw RuntimeError(28, "Out of stack space\nin the address book");
        recurse(depth - 1);
      });
    };
    recurse(40);
  }
  EXPECT_EQ(out.str(),
            "Error 28: Out of stack space\n"
            "  in the address book\n"
            "  source: Orvanta.exe-test-recurse\n"
            "  trace:\n"
            "    Orvanta.exe-test-recurse (41 times)\n"
            "    Orvanta.exe-test-outer\n");
}

}  // namespace
}  // namespace qb
