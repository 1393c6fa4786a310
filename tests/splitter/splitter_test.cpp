#include "splitter/splitter.h"

#include <gtest/gtest.h>

#include "services/controls/frame.h"
#include "services/controls/platform.h"
#include "services/errors/recording_error_object.h"
#include "services/host/module_state.h"

namespace qb {
namespace {

std::string geometry(const Control& c) {
  auto text = [](float v) {
    std::string s = std::to_string(v);
    s.erase(s.find_last_not_of('0') + 1);
    if (s.back() == '.') s.pop_back();
    return s;
  };
  return text(c.Left()) + "," + text(c.Top()) + "," + text(c.Width()) + "," + text(c.Height());
}

// A 10000 x 5000 twips splitter between two frames, bar at 50 %.
struct SplitterFixture : ::testing::Test {
  void SetUp() override { resetPlatform(); }
  void TearDown() override { resetPlatform(); }

  std::unique_ptr<Splitter> make() {
    auto s = std::make_unique<Splitter>("clientDocumentationSplitter");
    s->Move(0, 0, 10000, 5000);
    s->setLeftOrTopControl(&left);
    s->setRightOrBottomControl(&right);
    s->PropertyChanged = [this](const std::string& name) { changed.push_back(name); };
    s->SplitMove = [this] { ++moves; };
    return s;
  }

  Frame left{"fraDocumentInfo", 0};
  Frame right{"fraDocumentInfo", 1};
  std::vector<std::string> changed;
  int moves = 0;
};

TEST_F(SplitterFixture, SettersKeepTheirRules) {
  auto s = make();
  EXPECT_EQ(geometry(left), "0,0,5000,5000");
  EXPECT_EQ(geometry(right), "5070,0,4930,5000");

  s->setSplitterPosition(95);
  EXPECT_EQ(s->SplitterPosition(), 90);
  EXPECT_EQ(geometry(s->picSplitter), "9000,0,70,5000");
  s->setSplitterPosition(3);
  EXPECT_EQ(s->SplitterPosition(), 10);
  s->setSplitterMin(150);  // stored unchecked
  EXPECT_EQ(s->SplitterMin(), 150);
  s->setSplitterMax(150);
  EXPECT_EQ(s->SplitterMax(), 99);
  s->setSplitterMax(-4);
  EXPECT_EQ(s->SplitterMax(), 1);  // stored although below the minimum
  s->setSplitterMin(20);
  EXPECT_EQ(s->SplitterMin(), 20);
  s->setSplitterColor(0x00FF0000);
  EXPECT_EQ(s->picSplitter.BackColor(), 0x00FF0000u);
  s->setEnabled(false);  // locks the bar only: the neighbours inside stay usable
  EXPECT_FALSE(s->picSplitter.Enabled());
  EXPECT_FALSE(s->Enabled());
  EXPECT_TRUE(static_cast<const Control&>(*s).Enabled());
  EXPECT_EQ(changed, (std::vector<std::string>{"SplitterPosition", "SplitterPosition",
                                               "SplitterMin", "SplitterMax", "SplitterMax",
                                               "SplitterMin", "SplitterColor", "Enabled"}));
  EXPECT_EQ(std::string(Splitter::kDescribeRightOrBottomControl),
            "Returns/Sets the botoom, or top control.");
}

TEST_F(SplitterFixture, DragMovesTheGhostWithinStrictLimits) {
  auto s = make();
  int begun = 0, completed = 0;
  s->SplitBegin = [&] { ++begun; };
  s->SplitComplete = [&] { ++completed; };
  s->picSplitter.MouseDown.raise(1, 0, 30, 100);
  EXPECT_TRUE(s->picMover.Visible());
  EXPECT_EQ(s->picMover.zOrderCount(), 1);
  s->picSplitter.MouseMove.raise(1, 0, -1998.6f, 100);  // to 3001.4, nearest 3001
  EXPECT_EQ(geometry(s->picMover), "3001.399902,0,70,5000");
  EXPECT_EQ(s->SplitterPosition(), 30);              // Int(100 / (10000 / 3001)) = Int(30.01)
  EXPECT_EQ(geometry(left), "0,0,5000,5000");        // neighbours wait for the release
  s->picSplitter.MouseMove.raise(1, 0, 4000, 100);   // 9000 is not below 9000
  s->picSplitter.MouseMove.raise(1, 0, -4000, 100);  // 1000 is not above 1000
  EXPECT_EQ(geometry(s->picMover), "3001.399902,0,70,5000");
  EXPECT_EQ(s->SplitterPosition(), 30);
  EXPECT_EQ(moves, 3);
  s->picSplitter.MouseUp.raise(1, 0, 0, 0);
  EXPECT_FALSE(s->picMover.Visible());
  EXPECT_EQ(geometry(s->picSplitter), "3001.399902,0,70,5000");
  EXPECT_EQ(geometry(left), "0,0,3001.399902,5000");
  EXPECT_EQ(geometry(right), "3071.399902,0,6928.600098,5000");
  EXPECT_EQ(begun, 1);
  EXPECT_EQ(completed, 1);

  // Hovering without a button still moves the position, unseen.
  s->picSplitter.MouseMove.raise(0, 0, 1000, 0);
  EXPECT_EQ(s->SplitterPosition(), 40);
  EXPECT_EQ(geometry(s->picSplitter), "3001.399902,0,70,5000");
  EXPECT_EQ(moves, 4);
}

TEST_F(SplitterFixture, RefreshPlacesNeighboursForBothOrientations) {
  auto s = make();
  s->setBorderStyle(1);  // ScaleWidth 9940, ScaleHeight 4940
  s->Refresh();
  EXPECT_EQ(geometry(left), "0,0,5000,5000");  // the left one takes H, not SH
  EXPECT_EQ(geometry(right), "5070,0,4870,4940");

  s->setSplitterPosition(40);
  s->setOrientation(1);
  EXPECT_EQ(s->picSplitter.MousePointer(), 7);
  EXPECT_EQ(geometry(s->picSplitter), "0,2000,10000,70");
  EXPECT_EQ(geometry(s->picMover), "0,2000,10000,70");
  s->Refresh();
  EXPECT_EQ(geometry(left), "0,0,9940,2000");
  EXPECT_EQ(geometry(right), "0,2070,9940,2870");
  s->picSplitter.MouseMove.raise(1, 0, 0, 500);
  EXPECT_EQ(s->SplitterPosition(), 50);
  s->setOrientation(0);
  EXPECT_EQ(s->picSplitter.MousePointer(), 9);

  // One neighbour missing is skipped.
  s->setRightOrBottomControl(nullptr);
  right.Move(1, 2, 3, 4);
  s->Refresh();
  EXPECT_EQ(geometry(right), "1,2,3,4");
}

TEST_F(SplitterFixture, ResizeKeepsThePercentageAndDesignModeMovesOnlyTheBar) {
  auto s = make();
  s->setSplitterPosition(30);
  int resized = 0;
  s->Resize = [&] { ++resized; };
  s->Move(0, 0, 20000, 6000);
  EXPECT_EQ(resized, 1);
  EXPECT_EQ(geometry(s->picSplitter), "6000,0,70,6000");
  EXPECT_EQ(geometry(left), "0,0,6000,6000");

  setAmbientUserMode(false);
  Splitter designed;
  designed.Move(0, 0, 10000, 5000);
  EXPECT_FALSE(designed.userMode());
  designed.setLeftOrTopControl(&left);
  designed.setSplitterPosition(20);
  EXPECT_EQ(geometry(designed.picSplitter), "2000,0,70,5000");
  EXPECT_EQ(geometry(left), "0,0,6000,6000");
}

TEST_F(SplitterFixture, PropertyBagRoundTrip) {
  auto s = make();
  PropertyBag fresh;
  s->WriteProperties(fresh);
  std::vector<std::string> names;
  for (const auto& w : fresh.writes()) names.push_back(w.name);
  EXPECT_EQ(names,
            (std::vector<std::string>{"Enabled", "LeftOrTopControl", "Orientation",
                                      "RightOrBottomControl", "SplitterPosition", "SplitterMax",
                                      "SplitterMin", "SplitterColor", "SplitterWidth"}));
  EXPECT_EQ(fresh.writes()[7].defaultValue, Variant(static_cast<int32_t>(0x8000000F)));
  EXPECT_FALSE(fresh.isStored("SplitterPosition"));  // defaults are not stored
  EXPECT_TRUE(fresh.isStored("LeftOrTopControl"));

  s->setSplitterMax(80);
  s->setSplitterPosition(35);
  s->setOrientation(1);
  s->setSplitterWidth(90);
  s->setEnabled(false);
  PropertyBag bag;
  s->WriteProperties(bag);

  Splitter loaded;
  loaded.Move(0, 0, 10000, 5000);
  changed.clear();
  loaded.PropertyChanged = [this](const std::string& name) { changed.push_back(name); };
  loaded.ReadProperties(bag);
  EXPECT_EQ(loaded.SplitterMax(), 80);
  EXPECT_EQ(loaded.SplitterPosition(), 35);
  EXPECT_EQ(loaded.Orientation(), 1);
  EXPECT_EQ(loaded.SplitterWidth(), 90);
  EXPECT_EQ(loaded.LeftOrTopControl(), &left);
  EXPECT_EQ(loaded.picSplitter.Height(), 90);
  EXPECT_FALSE(loaded.picSplitter.Enabled());  // the stored Enabled reaches the bar
  EXPECT_EQ(changed, (std::vector<std::string>{"SplitterColor", "SplitterWidth", "SplitterMax",
                                               "SplitterMin", "SplitterPosition", "Orientation"}));
  loaded.Refresh();  // the orientation setter alone does not move the neighbours
  EXPECT_EQ(geometry(left), "0,0,10000,1750");
}

// A neighbour that refuses its new place (380, a negative width) is a
// failure of the procedure that moved it, reported through the error
// convention: no setter or mouse handler throws, and a drag still ends with
// SplitComplete.
TEST_F(SplitterFixture, ANeighbourThatRefusesItsPlaceIsReportedAndTheDragEnds) {
  auto errors = std::make_shared<RecordingErrorObject>();
  resetModuleState();
  moduleState().errorClass = errors;
  auto s = make();
  s->setSplitterPosition(90);
  changed.clear();
  EXPECT_NO_THROW(s->setSplitterWidth(2000));  // the right neighbour would be -1000 wide
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].number, err::kInvalidProperty);
  EXPECT_EQ(errors->failures[0].source, "Orvanta.exe-Splitter-Refresh");
  EXPECT_EQ(errors->failures[0].stack,
            (std::vector<std::string>{"Orvanta.exe-Splitter-SplitterWidth",
                                      "Orvanta.exe-Splitter-Refresh"}));
  EXPECT_EQ(changed, std::vector<std::string>{"SplitterWidth"});
  EXPECT_EQ(geometry(left), "0,0,9000,5000");  // the left one was placed

  int completed = 0;
  s->SplitComplete = [&] { ++completed; };
  EXPECT_NO_THROW({
    s->picSplitter.MouseDown.raise(1, 0, 0, 100);
    s->picSplitter.MouseMove.raise(1, 0, -500, 100);
    s->picSplitter.MouseUp.raise(1, 0, 0, 0);
  });
  EXPECT_EQ(completed, 1);
  EXPECT_EQ(s->SplitterPosition(), 85);
  EXPECT_EQ(errors->failures.size(), 2u);
  EXPECT_EQ(errors->failures[1].stack.front(), "Orvanta.exe-Splitter-picSplitter_MouseUp");
  resetModuleState();
}

}  // namespace
}  // namespace qb
