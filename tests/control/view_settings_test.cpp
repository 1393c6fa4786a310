// Each user's view settings in UserGeneralSettings: the defaults of a new
// user, the column layout text and its rules, the divider column chosen by
// DocQuillboxProgram, and the lost first save of a user who had no row.

#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

class ViewSettingsTest : public QuillboxTest {
 protected:
  // A column element of the layout text; a negative width leaves Width out.
  static std::string column(int index, const std::string& text, int alignment, int width) {
    std::string n = std::to_string(index);
    return "<column><Alignment>" + std::to_string(alignment) + "</Alignment><Index>" + n +
           "</Index><Key></Key><Left>0</Left><Position>" + n + "</Position><SubItemIndex>" + n +
           "</SubItemIndex><Tag></Tag><Text>" + text + "</Text>" +
           (width < 0 ? "" : "<Width>" + std::to_string(width) + "</Width>") + "</column>";
  }
  // A user's row: view type, layout text, business and personal divider.
  void storeRow(int user, const std::string& values) {
    db.exec(
        "INSERT INTO UserGeneralSettings (UserIDNum, DocQuillboxListViewType, "
        "DocQuillboxColumnWidthsXML,"
        " BusinessDocQuillboxSplitter, PersonalDocQuillboxSplitter) VALUES (" +
        std::to_string(user) + ", " + values + ");");
  }
  std::string stored(const char* column, int user) {
    return db.scalar(std::string("SELECT ") + column +
                     " FROM UserGeneralSettings WHERE UserIDNum = " + std::to_string(user) + ";");
  }
  // A fresh component started for the user and program.
  std::unique_ptr<nvDocumentQuillbox> startFor(int user, int program = 1) {
    locale->userID = user;
    auto q = std::make_unique<nvDocumentQuillbox>();
    bind(*q);
    q->setDocQuillboxProgram(static_cast<enumDocQuillboxProgram>(program));
    q->StartDocQuillboxControl();
    return q;
  }
  static std::string headers(ListView& list) {
    std::string out;
    for (int32_t i = 1; i <= list.ColumnHeaders().Count(); ++i) {
      const ColumnHeader& c = list.ColumnHeaders().item(i);
      out += "[" + c.Text() + " " + std::to_string(int(c.Width())) + " " +
             std::to_string(c.Alignment()) + "]";
    }
    return out;
  }
};

constexpr const char* kDefaultHeaders =
    "[Name 2200 0][Size 1000 1][Date Modified 2000 0][Path 4000 0][Host Computer Name 1000 0]"
    "[Date Created 2000 0][Date Last Accessed 2000 0][File Added By 1000 0]";

TEST_F(ViewSettingsTest, NewUserGetsARowAndTheDefaults) {
  start(quillbox);
  EXPECT_EQ(stored("COUNT(*)", 1), "1");
  EXPECT_EQ(stored("DocQuillboxListViewType", 1), "");
  ListView& list = quillbox.lvDocuments();
  EXPECT_EQ(std::to_string(quillbox.ListViewViews()) + std::to_string(quillbox.ListViewSort()) +
                std::to_string(quillbox.ListViewArrangeIcons()),
            "122");
  EXPECT_EQ(list.View(), lvwIcon);
  EXPECT_TRUE(list.Sorted() && list.SortKey() == 0 && list.SortOrder() == lvwAscending);
  EXPECT_EQ(list.Arrange(), lvwAutoLeft);
  EXPECT_EQ(quillbox.splitterPosition(), 25);
  EXPECT_EQ(quillbox.clientDocumentationSplitter().SplitterPosition(), 25);
  EXPECT_EQ(list.ColumnHeaders().Count(), 0);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(ViewSettingsTest, StoredColumnsComeBackByTheirRules) {
  std::string four = "<Columns>" + column(1, "A", 0, 900) + column(2, "B", 0, 900) +
                     column(3, "C", 0, 900) + column(4, "D", 0, 900) + "</Columns>";
  std::string five = "<Columns>" + column(1, "Title", 1, 3000) + column(2, "Size", 1, -1) +
                     column(3, "C", 2, 900) + column(4, "D", 0, 900) + column(5, "E", 0, 900) +
                     "</Columns>";
  storeRow(11, "4, '" + four + "', NULL, NULL");
  storeRow(12, "4, '" + five + "', NULL, NULL");
  storeRow(13, "4, '', NULL, NULL");
  auto fewColumns = startFor(11);  // fewer than five columns: the defaults
  EXPECT_EQ(headers(fewColumns->lvDocuments()), kDefaultHeaders);
  auto noText = startFor(13);  // details with an empty text: the defaults and the details view
  EXPECT_EQ(headers(noText->lvDocuments()), kDefaultHeaders);
  EXPECT_EQ(noText->lvDocuments().View(), lvwReport);

  // No Width gives 2200; the first column comes back left-aligned.
  auto fiveStored = startFor(12);
  EXPECT_EQ(headers(fiveStored->lvDocuments()),
            "[Title 3000 0][Size 2200 1][C 900 2][D 900 0][E 900 0]");
  // Changing the view does not touch the text: the loaded one is written back.
  fiveStored->changeDocListViewView(viewIcons);
  fiveStored->lvDocuments().ColumnHeaders().item(1).setWidth(5000);
  fiveStored->changeDocListViewView(viewDetails);
  fiveStored->putDocQuillboxListViewSettings();
  EXPECT_EQ(stored("DocQuillboxColumnWidthsXML", 12), five);
  EXPECT_TRUE(errors->failures.empty());
}

TEST_F(ViewSettingsTest, FirstSaveOfAUserWithoutARowIsLostAndTheNextOneWrites) {
  start(quillbox);
  locale->userID = 2;
  quillbox.putDocQuillboxListViewSettings();
  ASSERT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(errors->failures[0].stack.back(),
            "Orvanta.exe-nvDocumentQuillbox-putDocQuillboxListViewSettings");
  EXPECT_EQ(stored("COUNT(*)", 2), "1");  // the row was made, with nothing in it
  EXPECT_EQ(stored("DocQuillboxListViewType", 2) + stored("BusinessDocQuillboxSplitter", 2), "");

  quillbox.changeDocListViewView(viewSmallIcons);
  quillbox.changeDocListViewSort(SortDescending);
  quillbox.putDocQuillboxListViewSettings();
  EXPECT_EQ(errors->failures.size(), 1u);
  EXPECT_EQ(stored("DocQuillboxListViewType || DocQuillboxViewSort || DocQuillboxArrangeIcons", 2),
            "232");
  EXPECT_EQ(stored("BusinessDocQuillboxSplitter", 2), "25");
  EXPECT_EQ(stored("PersonalDocQuillboxSplitter", 2), "");
}

TEST_F(ViewSettingsTest, TheDividerColumnFollowsDocQuillboxProgram) {
  storeRow(1, "1, NULL, 40, 60");
  EXPECT_EQ(startFor(1, 1)->splitterPosition(), 40);
  EXPECT_EQ(startFor(1, 2)->splitterPosition(), 60);
  auto neither = startFor(1, 0);
  EXPECT_EQ(neither->splitterPosition(), 25);
  neither->putDocQuillboxListViewSettings();
  EXPECT_EQ(stored("BusinessDocQuillboxSplitter || '/' || PersonalDocQuillboxSplitter", 1),
            "40/60");

  // A stored position below the splitter's minimum: the layout stores the
  // splitter's own position back, and that is what the next save writes.
  storeRow(3, "1, NULL, 5, NULL");
  auto narrow = startFor(3);
  EXPECT_EQ(narrow->splitterPosition(), 5);
  narrow->Move(0, 0, 12000, 8000);
  narrow->resizeDocQuillbox();
  narrow->putDocQuillboxListViewSettings();
  EXPECT_EQ(stored("BusinessDocQuillboxSplitter", 3), "10");
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
