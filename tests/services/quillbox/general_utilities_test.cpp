#include <gtest/gtest.h>

#include "services/controls/list_view.h"
#include "services/controls/tree_view.h"
#include "services/util/general_utilities_class.h"

namespace qb {
namespace {

TEST(GeneralUtilities, CaptionsListModeAndTree) {
  generalUtilitiesClass utilities;
  EXPECT_EQ(utilities.formatCaptionText("Taxes"), "  Taxes");
  EXPECT_EQ(utilities.formatCaptionText("Smith Holdings\r\nLtd.\tEast"),
            "  Smith Holdings Ltd. East");
  EXPECT_EQ(utilities.formatCaptionText(""), "  ");

  ListView list("lvDocuments");
  list.setView(lvwReport);
  list.setSorted(true);
  utilities.setListViewListMode(list);
  EXPECT_EQ(list.View(), lvwList);
  EXPECT_TRUE(list.Sorted());

  // A file dropped on a fresh tree must be taken.
  TreeView tree("tvClientDocumentation");
  utilities.prepareTreeView(tree);
  EXPECT_EQ(tree.OLEDropMode(), 1);
}

}  // namespace
}  // namespace qb
