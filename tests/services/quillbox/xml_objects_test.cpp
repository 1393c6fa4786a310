#include <gtest/gtest.h>

#include "services/errors/runtime_error.h"
#include "services/util/xml_node_list_class.h"
#include "services/util/xml_reader_class.h"
#include "services/util/xml_writer_class.h"

namespace qb {
namespace {

struct Column {
  std::string text, width, alignment;
};

// Writes columns the way the column layout is saved.
std::string writeLayout(const std::vector<Column>& columns) {
  xmlWriterClass writer;
  writer.setRootNode(writer.createNode("Columns", ""));
  for (size_t i = 0; i < columns.size(); ++i) {
    writer.appendNode(writer.createNode("column", ""), true);
    writer.enterNode("column");
    writer.appendNode(writer.createNode("Alignment", columns[i].alignment), false);
    writer.appendNode(writer.createNode("Index", std::to_string(i + 1)), false);
    writer.appendNode(writer.createNode("Key", ""), false);
    writer.appendNode(writer.createNode("Text", columns[i].text), false);
    writer.appendNode(writer.createNode("Width", columns[i].width), false);
    writer.leaveNode("column");
  }
  return writer.getXMLText();
}

TEST(XmlObjects, ColumnLayoutRoundTrip) {
  std::string text = writeLayout({{"Name", "2200", "0"}, {"Size <Mb> & more", "1000", "1"}});
  EXPECT_EQ(text.find("<Columns>"), 0u);
  EXPECT_NE(text.find("<Width>2200</Width>"), std::string::npos);
  EXPECT_NE(text.find("Size &lt;Mb&gt; &amp; more"), std::string::npos);

  xmlReaderClass reader;
  reader.loadXML(text);
  xmlNodeClass root = reader.selectSingleNode(".//Columns");
  ASSERT_FALSE(root.isNothing());
  EXPECT_TRUE(root.nodeExists(".//column"));
  xmlNodeListClass columns = root.selectNodes(".//column");
  ASSERT_EQ(columns.count(), 2);
  EXPECT_EQ(columns.item(0).getNodeText(".//Width", false), "2200");
  EXPECT_EQ(columns.item(1).getNodeText(".//Width", false), "1000");
  EXPECT_EQ(columns.item(1).getNodeText(".//Text", false), "Size <Mb> & more");
  EXPECT_EQ(columns.item(1).getNodeText(".//Alignment", false), "1");
  EXPECT_EQ(columns.item(1).getNodeText(".//Index", false), "2");
  // An element written empty is there with no text; an absent one gives "".
  EXPECT_TRUE(columns.item(0).nodeExists(".//Key"));
  EXPECT_EQ(columns.item(0).getNodeText(".//Key", false), "");
  EXPECT_FALSE(columns.item(0).nodeExists(".//Tag"));
  EXPECT_EQ(columns.item(0).getNodeText(".//Tag", false), "");
  EXPECT_THROW(columns.item(0).getNodeText(".//Tag", true), RuntimeError);
  EXPECT_THROW(columns.item(2), RuntimeError);
}

TEST(XmlObjects, LookupsThatFindNothing) {
  xmlReaderClass reader;
  EXPECT_TRUE(reader.selectSingleNode(".//Columns").isNothing());
  reader.loadXML("<?xml version=\"1.0\"?><Layout><Other/></Layout>");
  xmlNodeClass columns = reader.selectSingleNode(".//Columns");
  EXPECT_TRUE(columns.isNothing());
  EXPECT_FALSE(columns.nodeExists(".//column"));
  EXPECT_EQ(columns.selectNodes(".//column").count(), 0);
  EXPECT_EQ(writeLayout({}), "<Columns />\n");
}

TEST(XmlObjects, MalformedTextFailsWithAParseError) {
  xmlReaderClass reader;
  for (std::string text : {"<Columns><column></Columns>", "", "Name;Size;Path"}) {
    try {
      reader.loadXML(text);
      ADD_FAILURE() << "loaded: " << text;
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), err::kXmlParse);
      EXPECT_NE(e.description().find("The XML text could not be read: "), std::string::npos);
    }
  }
  // A failed load leaves the reader empty, not holding the earlier text.
  reader.loadXML("<Columns><column/></Columns>");
  EXPECT_THROW(reader.loadXML("<broken"), RuntimeError);
  EXPECT_TRUE(reader.selectSingleNode(".//Columns").isNothing());
}

TEST(XmlObjects, WriterPositionRules) {
  xmlWriterClass writer;
  EXPECT_THROW(writer.appendNode(writer.createNode("Early", ""), false), RuntimeError);
  writer.setRootNode(writer.createNode("Root", ""));
  writer.appendNode(writer.createNode("A", ""), false);
  writer.enterNode("A");  // the last child of that name
  writer.appendNode(writer.createNode("B", "1"), true);
  writer.leaveNode("A");  // from inside B, back to Root
  writer.appendNode(writer.createNode("C", "2"), false);
  EXPECT_THROW(writer.enterNode("Missing"), RuntimeError);
  EXPECT_THROW(writer.leaveNode("Root"), RuntimeError);
  xmlWriterClass other;
  EXPECT_THROW(writer.appendNode(other.createNode("X", ""), false), RuntimeError);
  EXPECT_EQ(writer.getXMLText(), "<Root>\n  <A>\n    <B>1</B>\n  </A>\n  <C>2</C>\n</Root>\n");
}

}  // namespace
}  // namespace qb
