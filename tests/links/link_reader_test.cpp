// Reading the links of a scope: each with its client's name and its
// category's path, in the reports' order; one link by its id.

#include "links/link_reader.h"

#include "tests/links/links_test.h"

namespace qb::test {
namespace {

using links::LinkRecord;
using links::LinkScope;

// "client | category | name | path" a line.
std::string listed(const std::vector<LinkRecord>& links) {
  std::string text;
  for (const LinkRecord& link : links)
    text +=
        link.clientName + " | " + link.categoryPath + " | " + link.name + " | " + link.path + "\n";
  return text;
}

class LinkReaderTest : public LinksTest {};

TEST_F(LinkReaderTest, LinksComeByClientThenCategoryThenNameWithTheirPaths) {
  addLink(6, "Will", "/f/will.pdf");
  addLink(5, "Lease", "/f/lease.pdf");
  addLink(3, "t2 return", "/f/t2.pdf");
  addLink(4, "Articles", "/f/articles.pdf");
  addLink(3, "Notice", "/f/notice.pdf");
  addLink(1, "Engagement", "/f/engagement.pdf");
  // A link of no client, and one whose category is not there.
  db.exec(
      "INSERT INTO Documents (DocIconName, DocPath) VALUES ('Stray', '/f/stray.pdf');"
      "INSERT INTO Documents (CompanyIDNum, DocCategoryNum, DocIconName, DocPath)"
      " VALUES (2, 99, 'Orphan', '/f/orphan.pdf');");

  EXPECT_EQ(listed(links::readLinks(LinkScope::all())),
            "Acme Holdings | Acme | Engagement | /f/engagement.pdf\n"
            "Acme Holdings | Acme / Permanent | Articles | /f/articles.pdf\n"
            "Acme Holdings | Acme / Tax / 2024 | Notice | /f/notice.pdf\n"
            "Acme Holdings | Acme / Tax / 2024 | t2 return | /f/t2.pdf\n"
            "birch & Sons |  | Orphan | /f/orphan.pdf\n"
            "birch & Sons | Birch | Lease | /f/lease.pdf\n"
            "Ann Lee | Ann | Will | /f/will.pdf\n"
            " |  | Stray | /f/stray.pdf\n");
  EXPECT_EQ(listed(links::readLinks(LinkScope::company(2))),
            "birch & Sons |  | Orphan | /f/orphan.pdf\n"
            "birch & Sons | Birch | Lease | /f/lease.pdf\n");
  EXPECT_EQ(listed(links::readLinks(LinkScope::contact(5))),
            "Ann Lee | Ann | Will | /f/will.pdf\n");
  EXPECT_TRUE(links::readLinks(LinkScope::company(77)).empty());

  const std::vector<LinkRecord> acme = links::readLinks(LinkScope::company(1));
  ASSERT_EQ(acme.size(), 4u);
  EXPECT_EQ(acme[0].companyID, 1);
  EXPECT_EQ(acme[0].contactID, -1);
  EXPECT_EQ(acme[0].categoryID, 1);
  EXPECT_EQ(acme[0].computer, thisComputer());
  EXPECT_TRUE(db.errors().failures.empty());
}

TEST_F(LinkReaderTest, ACategoryLoopEndsThePathAndOneLinkReadsAlone) {
  db.exec(
      "INSERT INTO DocCategories (DocCategoryID, DocCategoryNum, CompanyIDNum,"
      " DocCategoryName) VALUES (7, 8, 2, 'Round'), (8, 7, 2, 'About');");
  const int32_t id = addLink(7, "Circular", "/f/circular.pdf");
  LinkRecord link;
  ASSERT_TRUE(links::readLink(id, link));
  EXPECT_EQ(link.categoryPath, "About / Round");
  EXPECT_EQ(link.clientName, "birch & Sons");
  EXPECT_EQ(link.path, "/f/circular.pdf");
  EXPECT_FALSE(links::readLink(id + 1, link));
  EXPECT_EQ(link.documentID, id);  // left as it was
}

}  // namespace
}  // namespace qb::test
