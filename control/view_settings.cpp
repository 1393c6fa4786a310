// Each user's view of the list, kept in the user's row of UserGeneralSettings:
// view, sort, icon arrangement, the column layout as XML text and the divider
// position. Read once at start, written when the host asks.

#include <string>

#include "control/nv_document_quillbox.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/store/database_reference.h"
#include "services/util/general_utilities_class.h"
#include "services/util/xml_node_list_class.h"
#include "services/util/xml_reader_class.h"
#include "services/util/xml_writer_class.h"

namespace qb {

namespace {

constexpr const char* kSelectUserSettings =
    "SELECT UserGeneralSettings.* FROM UserGeneralSettings WHERE UserIDNum = ";

// What each public value does to lvDocuments. The view of viewList is set
// through the general utilities and viewDetails restores the saved columns
// first; the others write the ListView's setting directly.
struct ListViewMapping {
  int32_t value;    // the public enumeration value
  int16_t setting;  // View, SortOrder or Arrange of the ListView
};
constexpr ListViewMapping kViewMapping[] = {{viewIcons, lvwIcon},
                                            {viewSmallIcons, lvwSmallIcon},
                                            {viewList, lvwList},
                                            {viewDetails, lvwReport}};
// sortNone turns sorting off; the others sort on the name column.
constexpr ListViewMapping kSortMapping[] = {
    {sortNone, -1}, {sortAscending, lvwAscending}, {SortDescending, lvwDescending}};
constexpr ListViewMapping kArrangeMapping[] = {
    {arrangeIconsNone, lvwNone}, {arrangeIconsLeft, lvwAutoLeft}, {arrangeIconsTop, lvwAutoTop}};

template <size_t N>
const ListViewMapping* findMapping(const ListViewMapping (&table)[N], int32_t value) {
  for (const ListViewMapping& row : table) {
    if (row.value == value) return &row;
  }
  return nullptr;
}

// The default columns: text, width in twips, alignment.
struct DefaultColumn {
  const char* text;
  float width;
  int16_t alignment;
};
constexpr DefaultColumn kDefaultColumns[] = {{"Name", 2200, lvwColumnLeft},
                                             {"Size", 1000, lvwColumnRight},
                                             {"Date Modified", 2000, lvwColumnLeft},
                                             {"Path", 4000, lvwColumnLeft},
                                             {"Host Computer Name", 1000, lvwColumnLeft},
                                             {"Date Created", 2000, lvwColumnLeft},
                                             {"Date Last Accessed", 2000, lvwColumnLeft},
                                             {"File Added By", 1000, lvwColumnLeft}};

// A number of twips as the layout text keeps it (single precision).
std::string twipsText(float twips) { return numberToText(static_cast<double>(twips)); }

}  // namespace

int32_t nvDocumentQuillbox::openUserSettings(Procedure& proc, bool& connected, bool& hasRow) {
  qb::DatabaseReference* db = nullptr;
  RecordsetHandle handle = 0;
  std::string sql;
  connected = false;
  hasRow = false;
  proc.step([&] {
    db = &objectOf(moduleState().databaseReference);
    connected = db->isConnected();
  });
  if (!connected) return handle;
  proc.step([&] {
    sql = kSelectUserSettings +
          std::to_string(objectOf(moduleState().localeReference).getCurrentUserID()) + ";";
    handle = db->openRecordset(sql, adOpenKeyset, adLockOptimistic);
  });
  proc.step([&] { hasRow = db->moveFirstRecord(handle); });
  if (!hasRow) {
    // The user has no row yet: make it, then reopen read-only. A save on that
    // reopened recordset fails, so a new user's first save is lost.
    proc.step([&] { db->addNewRecord(handle); });
    proc.step([&] {
      db->setFieldValue(handle, "UserIDNum",
                        std::to_string(objectOf(moduleState().localeReference).getCurrentUserID()));
    });
    proc.step([&] { db->updateRecord(handle); });
    proc.step([&] { db->closeRecordset(handle); });
    proc.step([&] { handle = db->openRecordset(sql, adOpenKeyset, adLockReadOnly); });
    proc.step([&] { hasRow = db->moveFirstRecord(handle); });
  }
  return handle;
}

void nvDocumentQuillbox::getDocQuillboxListViewSettings() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-getDocQuillboxListViewSettings");
  bool connected = false;
  bool hasRow = false;
  RecordsetHandle handle = openUserSettings(proc, connected, hasRow);
  if (!connected) return;
  auto field = [&](const char* name) {
    return objectOf(moduleState().databaseReference).getFieldValue(handle, Variant(name));
  };
  // A stored number, or the default when the column is blank.
  auto numberOr = [&](const char* name, int32_t fallback) {
    Variant value = field(name);
    return isBlankValue(value) ? fallback : CLng(value);
  };
  if (hasRow) {
    proc.step([&] {
      Variant text = field("DocQuillboxColumnWidthsXML");
      if (!isBlankValue(text)) savedColumnsXML_ = CStr(text);
    });
    proc.step([&] {
      changeDocListViewView(
          static_cast<enumListViewViews>(numberOr("DocQuillboxListViewType", viewIcons)));
    });
    proc.step([&] {
      changeDocListViewSort(
          static_cast<enumListViewSort>(numberOr("DocQuillboxViewSort", sortAscending)));
    });
    proc.step([&] {
      changeDocListViewArrangeIcons(static_cast<enumListViewArrangeIcons>(
          numberOr("DocQuillboxArrangeIcons", arrangeIconsLeft)));
    });
    proc.step([&] {
      const char* column = DocQuillboxProgram_ == 1   ? "BusinessDocQuillboxSplitter"
                           : DocQuillboxProgram_ == 2 ? "PersonalDocQuillboxSplitter"
                                                      : nullptr;
      if (column == nullptr) return;
      Variant position = field(column);
      if (!isBlankValue(position)) splitterPosition_ = CInt(position);
    });
    proc.step([&] {
      if (splitterPosition_ < 1) splitterPosition_ = 25;
    });
  } else {
    proc.step([&] { setDefaultDocQuillboxColumns(); });
    proc.step([&] { changeDocListViewView(viewIcons); });
    proc.step([&] { changeDocListViewSort(sortAscending); });
    proc.step([&] { changeDocListViewArrangeIcons(arrangeIconsLeft); });
  }
  proc.step([&] { objectOf(moduleState().databaseReference).closeRecordset(handle); });
}

void nvDocumentQuillbox::putDocQuillboxListViewSettings() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-putDocQuillboxListViewSettings");
  bool connected = false;
  bool hasRow = false;
  RecordsetHandle handle = openUserSettings(proc, connected, hasRow);
  if (!connected) return;
  auto write = [&](const char* name, const std::string& value) {
    objectOf(moduleState().databaseReference).updateFieldValue(handle, name, value);
  };
  if (hasRow) {
    proc.step([&] { write("DocQuillboxListViewType", std::to_string(ListViewViews_)); });
    proc.step([&] { write("DocQuillboxViewSort", std::to_string(ListViewSort_)); });
    proc.step([&] { write("DocQuillboxArrangeIcons", std::to_string(ListViewArrangeIcons_)); });
    proc.step([&] {
      // The ListView's View (0 to 3) is compared with the public value 4, so
      // the columns are never saved here and the loaded text is written back.
      if (lvDocuments_.View() == viewDetails) saveDocQuillboxColumns();
    });
    proc.step([&] { write("DocQuillboxColumnWidthsXML", savedColumnsXML_); });
    proc.step([&] {
      if (DocQuillboxProgram_ == 1) {
        write("BusinessDocQuillboxSplitter", std::to_string(splitterPosition_));
      } else if (DocQuillboxProgram_ == 2) {
        write("PersonalDocQuillboxSplitter", std::to_string(splitterPosition_));
      }
    });
  }
  proc.step([&] { objectOf(moduleState().databaseReference).closeRecordset(handle); });
}

void nvDocumentQuillbox::changeDocListViewView(enumListViewViews currentView) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-changeDocListViewView");
  // Never true (the ListView's View against the public value 4): a user's
  // column changes are not kept.
  proc.step([&] {
    if (lvDocuments_.View() == viewDetails) saveDocQuillboxColumns();
  });
  if (const ListViewMapping* mapping = findMapping(kViewMapping, currentView)) {
    proc.step([&] { ListViewViews_ = currentView; });
    if (currentView == viewList) {
      proc.step(
          [&] { objectOf(moduleState().generalUtilities).setListViewListMode(lvDocuments_); });
    } else {
      if (currentView == viewDetails) proc.step([&] { restoreDocQuillboxColumns(); });
      proc.step([&] { lvDocuments_.setView(mapping->setting); });
    }
  }
  proc.step([&] { refreshDocListView(); });
}

void nvDocumentQuillbox::changeDocListViewSort(enumListViewSort currentSort) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-changeDocListViewSort");
  if (const ListViewMapping* mapping = findMapping(kSortMapping, currentSort)) {
    proc.step([&] { ListViewSort_ = currentSort; });
    if (currentSort == sortNone) {
      proc.step([&] { lvDocuments_.setSorted(false); });
    } else {
      proc.step([&] { lvDocuments_.setSortKey(0); });
      proc.step([&] { lvDocuments_.setSortOrder(mapping->setting); });
      proc.step([&] { lvDocuments_.setSorted(true); });
    }
  }
  proc.step([&] { refreshDocListView(); });
}

void nvDocumentQuillbox::changeDocListViewArrangeIcons(
    enumListViewArrangeIcons currentArrangeIcons) {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-changeDocListViewArrangeIcons");
  if (const ListViewMapping* mapping = findMapping(kArrangeMapping, currentArrangeIcons)) {
    proc.step([&] { ListViewArrangeIcons_ = currentArrangeIcons; });
    proc.step([&] { lvDocuments_.setArrange(mapping->setting); });
  }
  proc.step([&] { refreshDocListView(); });
}

void nvDocumentQuillbox::saveDocQuillboxColumns() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-saveDocQuillboxColumns");
  xmlWriterClass writer;
  proc.step([&] { writer.setRootNode(writer.createNode("Columns", "")); });
  ColumnHeaderCollection& columns = lvDocuments_.ColumnHeaders();
  for (int32_t i = 1; i <= columns.Count() && !proc.leaving(); ++i) {
    proc.step([&] {
      const ColumnHeader& column = columns.item(i);
      writer.appendNode(writer.createNode("column", ""), true);
      writer.enterNode("column");
      auto value = [&](const char* name, const std::string& text) {
        writer.appendNode(writer.createNode(name, text), false);
      };
      value("Alignment", std::to_string(column.Alignment()));
      value("Index", std::to_string(column.Index()));
      value("Key", column.Key());
      value("Left", twipsText(column.Left()));
      value("Position", std::to_string(column.Position()));
      value("SubItemIndex", std::to_string(column.SubItemIndex()));
      value("Tag", column.Tag());
      value("Text", column.Text());
      value("Width", twipsText(column.Width()));
      writer.leaveNode("column");
    });
  }
  proc.step([&] { savedColumnsXML_ = writer.getXMLText(); });
}

void nvDocumentQuillbox::restoreDocQuillboxColumns() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-restoreDocQuillboxColumns");
  ColumnHeaderCollection& columns = lvDocuments_.ColumnHeaders();
  bool blank = false;
  proc.step([&] {
    blank = isBlankValue(Variant(savedColumnsXML_));
    if (blank) setDefaultDocQuillboxColumns();
  });
  if (!blank) {
    proc.step([&] { columns.Clear(); });
    proc.step([&] { lvDocuments_.setHideColumnHeaders(false); });
    xmlReaderClass reader;
    xmlNodeClass root;
    xmlNodeListClass nodes;
    bool hasColumns = false;
    proc.step([&] {
      reader.loadXML(savedColumnsXML_);
      root = reader.selectSingleNode(".//Columns");
    });
    proc.step([&] { hasColumns = root.nodeExists(".//column"); });
    if (hasColumns) {
      proc.step([&] { nodes = root.selectNodes(".//column"); });
      for (int32_t i = 0; i < nodes.count() && !proc.leaving(); ++i) {
        proc.step([&] {
          xmlNodeClass node = nodes.item(i);
          // A value that is missing or blank keeps its default.
          auto stored = [&](const char* path, Variant& value) {
            if (!node.nodeExists(path)) return false;
            value = Variant(node.getNodeText(path, false));
            return !isBlankValue(value);
          };
          int16_t alignment = 0, position = static_cast<int16_t>(i), subItemIndex = 1;
          int32_t index = i;
          std::string key, tag, text;
          float left = 0, width = 2200;
          Variant value;
          if (stored(".//Alignment", value)) alignment = CInt(value);
          if (stored(".//Index", value)) index = CLng(value);
          if (stored(".//Key", value)) key = CStr(value);
          if (stored(".//Left", value)) left = CSng(value);
          if (stored(".//Position", value)) position = CInt(value);
          if (stored(".//SubItemIndex", value)) subItemIndex = CInt(value);
          if (stored(".//Tag", value)) tag = CStr(value);
          if (stored(".//Text", value)) text = CStr(value);
          if (stored(".//Width", value)) width = CSng(value);
          // The ListView's first column can only be left-aligned. Left,
          // position, sub-item index and tag are read and not applied.
          if (i == 0) alignment = 0;
          (void)left, (void)position, (void)subItemIndex, (void)tag;
          columns.Add(index, key, text, width, alignment);
        });
      }
    }
  }
  proc.step([&] {
    if (columns.Count() < 5) setDefaultDocQuillboxColumns();
  });
}

void nvDocumentQuillbox::setDefaultDocQuillboxColumns() {
  Procedure proc("Orvanta.exe-nvDocumentQuillbox-setDefaultDocQuillboxColumns");
  ColumnHeaderCollection& columns = lvDocuments_.ColumnHeaders();
  proc.step([&] { columns.Clear(); });
  for (const DefaultColumn& column : kDefaultColumns) {
    proc.step([&] { columns.Add(0, "", column.text, column.width, column.alignment); });
  }
}

}  // namespace qb
