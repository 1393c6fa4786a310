// The list fill asks each file once, and a share that stops answering costs
// one bounded wait: its rows show what a missing file gives.

#include <condition_variable>
#include <mutex>

#include "services/files/file_facts_service.h"
#include "services/files/system_file_facts.h"
#include "services/quillbox/file_icons.h"
#include "services/util/file_utilities_class.h"
#include "services/util/standard_form_helper.h"
#include "tests/control/quillbox_test.h"

namespace qb::test {
namespace {

using namespace std::chrono_literals;

// The real files, with the test's folder mounted as a share that can be made
// to hang until released.
class ShareOverFolder : public SystemFileFacts {
 public:
  explicit ShareOverFolder(std::string folder) : folder_(std::move(folder)) {}
  std::vector<MountPoint> mounts() override {
    std::vector<MountPoint> all = SystemFileFacts::mounts();
    all.push_back({folder_, "cifs", true});
    return all;
  }
  FileFacts query(const std::string& path) override {
    ++calls;
    std::unique_lock<std::mutex> lock(mutex_);
    wake_.wait(lock, [&] { return !hanging_; });
    return SystemFileFacts::query(path);
  }
  void hang() {
    std::lock_guard<std::mutex> lock(mutex_);
    hanging_ = true;
  }
  void release() {
    std::lock_guard<std::mutex> lock(mutex_);
    hanging_ = false;
    wake_.notify_all();
  }
  std::atomic<int> calls{0};

 private:
  std::string folder_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool hanging_ = false;
};

class FillFileQueriesTest : public QuillboxTest {
 protected:
  FillFileQueriesTest() { installFileFacts(service); }
  ~FillFileQueriesTest() override {
    share->release();
    installFileFacts(nullptr);
  }
  std::shared_ptr<ShareOverFolder> share =
      std::make_shared<ShareOverFolder>(db.folder().path().string());
  std::shared_ptr<FileFactsService> service = std::make_shared<FileFactsService>(share, 200ms);
};

TEST_F(FillFileQueriesTest, EachFileIsAskedOnceAndADeadShareGivesRowsOfMissingFiles) {
  start(quillbox);
  show(quillbox, 2);
  ListView& list = quillbox.lvDocuments();
  ASSERT_EQ(list.ListItems().Count(), 3);
  EXPECT_EQ(share->calls, 3);  // the load's icons, the size and the three dates of each row
  EXPECT_EQ(list.ListItems().item(1).SubItems(1), "1.5 Mb");

  share->hang();
  share->calls = 0;
  show(quillbox, 2);
  ASSERT_EQ(list.ListItems().Count(), 3);
  EXPECT_LE(share->calls, 3);
  for (int32_t i = 1; i <= 3; ++i) {
    const ListItem& row = list.ListItems().item(i);
    EXPECT_EQ(row.SubItems(1) + "|" + row.SubItems(2) + "|" + row.SubItems(5), "0 Mb||");
    // The file type's icon with the broken-link emblem over it.
    const Picture icon = quillbox.iglListViewSmallIcons().pictureOf(Variant(row.SmallIcon()));
    EXPECT_EQ(icon.emblemName, quillboxLibrary::kBrokenLinkEmblem);
    EXPECT_EQ(icon.iconName, quillboxLibrary::iconNameForExtension(
                                 fileUtilitiesClass().getFileExtension(row.SubItems(3))));
  }
  // While those calls still hang, opening gives up at once: the missing-file
  // dialog explains (no file manager, no question).
  locale->formHelper = std::make_shared<StandardFormHelper>();
  list.ListItems().item(1).setSelected(true);
  quillbox.openSelectedDocumentsFiles();
  EXPECT_EQ(modalForms(), std::vector<std::string>{"frmDocProperties"});
  EXPECT_EQ(screen().MousePointer(), 0);
  EXPECT_TRUE(errors->failures.empty());
}

}  // namespace
}  // namespace qb::test
