// quillbox links check, relink and locate as a user runs them: the sample
// firm's broken links with their causes in the three forms; a firm whose
// files folder moved, relinked with a preview first; moved files found by
// name; the refusals of bad input; and the progress bar, drawn only on a
// terminal.

#include <algorithm>
#include <filesystem>
#include <regex>

#include "app/cli/progress_bar.h"
#include "tests/app/cli/cli_fixture.h"

namespace qb::test {
namespace {

namespace fs = std::filesystem;

size_t count(const std::string& text, const std::string& what) {
  size_t found = 0;
  for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++found;
  return found;
}

// The first field of each line but the last (the summary).
std::vector<std::string> states(const std::string& text) {
  std::vector<std::string> fields;
  size_t start = 0;
  for (size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
    fields.push_back(text.substr(start, text.find('\t', start) - start));
    start = end + 1;
  }
  if (!fields.empty()) fields.pop_back();
  return fields;
}

class LinksCommandsTest : public CliTest {
 protected:
  // A sample firm of this test's own, with its own files folder.
  void ownFirm() {
    own_ = folder_.file("own.db");
    files_ = folder_.file("own-files");
    ASSERT_EQ(run({"init", "--db", own_, "--sample", "--files", files_}).status, 0);
  }
  std::string own_, files_;
};

TEST_F(LinksCommandsTest, CheckListsEveryLinkWithItsStateInThreeForms) {
  const ToolRun broken = run({"links", "check", "--db", db_, "--broken"});
  ASSERT_EQ(broken.status, 0) << broken.err;
  EXPECT_EQ(broken.err, "");  // no progress bar off a terminal
  EXPECT_EQ(states(broken.out),
            (std::vector<std::string>{"file-gone", "other-computer", "file-gone"}));
  EXPECT_NE(broken.out.find("\t23\tCôté Plomberie Inc.\tCôté Plomberie Inc. / Correspondence\t"
                            "Engagement Letter 2019\t"),
            std::string::npos);
  EXPECT_NE(broken.out.find("Scanned Receipts 2015.pdf\tRVA-OLDSERVER\n"), std::string::npos);
  EXPECT_EQ(broken.out.substr(broken.out.rfind('\n', broken.out.size() - 2) + 1),
            "201 links: present 197, read-only 1, file-gone 2, other-computer 1, folder-gone 0, "
            "folder 0, no-permission 0, no-answer 0, no-path 0\n");

  // Every link, one client's, and the other two forms.
  EXPECT_EQ(count(run({"links", "check", "--db", db_}).out, "\n"), 202u);
  const ToolRun one = run({"links", "check", "--db", db_, "--company", "3"});
  EXPECT_EQ(count(one.out, "\n"), 13u);
  EXPECT_EQ(count(one.out, "Côté Plomberie Inc.\tCôté Plomberie Inc."), 12u);
  const ToolRun csv = run({"links", "check", "--db", db_, "--format", "csv"});
  EXPECT_EQ(csv.out.substr(0, csv.out.find('\n') + 1),
            "state,id,client_kind,client_id,client,category,name,path,computer\r\n");
  EXPECT_EQ(count(csv.out, "\r\n"), 202u);
  const ToolRun json = run({"links", "check", "--db", db_, "--format", "json", "--broken"});
  EXPECT_EQ(count(json.out, "{\"state\": "), 3u);
  EXPECT_NE(json.out.find("\"summary\": {\"links\": 201, \"present\": 197,"), std::string::npos);

  // A user who may not write the database reads it all the same; the firm's
  // files lie in a folder only its owner may enter, so for this user every
  // link is one it may not read.
  const ToolRun reader = runAsReader({"links", "check", "--db", db_});
  EXPECT_EQ(reader.status, 0) << reader.err;
  EXPECT_NE(reader.out.find("201 links: present 0, read-only 0, file-gone 0, other-computer 0, "
                            "folder-gone 0, folder 0, no-permission 201,"),
            std::string::npos);

  // Bad input: a usage error each, with the command's help.
  for (const auto& [words, message] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--format", "xml"}, "quillbox: --format takes text, csv or json, not 'xml'"},
           {{"--company", "2", "--all"},
            "quillbox: give one of --company N, --contact N and --all"},
           {{"--company", "999"}, "quillbox: --company 999 names no company in the database"},
           {{"--contact", "x"}, ""}}) {
    std::vector<std::string> line = {"links", "check", "--db", db_};
    line.insert(line.end(), words.begin(), words.end());
    const ToolRun refused = run(line);
    EXPECT_EQ(refused.status, 2) << words.front();
    EXPECT_EQ(refused.out, "");
    if (!message.empty()) {
      EXPECT_EQ(refused.firstError(), message);
    }
  }
}

TEST_F(LinksCommandsTest, RelinkRepairsAFirmWhoseFilesFolderMovedWithAPreviewFirst) {
  ownFirm();
  const std::string moved = folder_.file("Clients (moved)");
  fs::rename(files_, moved);
  const std::string paths = "SELECT group_concat(DocPath, '|') FROM Documents";
  const std::string before = scalarIn(own_, paths);
  const ToolRun lost = run({"links", "check", "--db", own_});
  EXPECT_NE(lost.out.find("201 links: present 0, read-only 0, file-gone 0, other-computer 201"),
            std::string::npos);

  const ToolRun preview =
      run({"links", "relink", "--db", own_, "--from", files_ + "/", "--to", moved});
  ASSERT_EQ(preview.status, 0) << preview.err;
  EXPECT_EQ(scalarIn(own_, paths), before);
  EXPECT_EQ(count(preview.out, "\n"), 202u);
  const std::vector<std::string> found = states(preview.out);
  EXPECT_EQ(std::count(found.begin(), found.end(), "found"), 198);
  EXPECT_NE(preview.out.find("found\t1\tMaple Leaf Bakery Ltd.\tCompany logo\t" + files_ +
                             "/Maple Leaf Bakery Ltd/Logo.png\t" + moved +
                             "/Maple Leaf Bakery Ltd/Logo.png\n"),
            std::string::npos);
  EXPECT_EQ(preview.out.substr(preview.out.rfind('\n', preview.out.size() - 2) + 1),
            "201 links under " + files_ + ": 198 with their file under " + moved +
                ", 3 without. Nothing was changed; --apply relinks the 198.\n");

  const ToolRun applied =
      run({"links", "relink", "--db", own_, "--from", files_, "--to", moved + "/", "--apply"});
  ASSERT_EQ(applied.status, 0) << applied.err;
  EXPECT_NE(applied.out.find("Relinked 198 of 201 links under " + files_ + " to " + moved +
                             "; left 3: not-found 3, changed-meanwhile 0, failed 0.\n"),
            std::string::npos);
  EXPECT_EQ(scalarIn(own_, "SELECT COUNT(*) FROM Documents WHERE DocPath LIKE '" + moved + "/%'"),
            "198");
  EXPECT_NE(run({"links", "check", "--db", own_}).out.find("201 links: present 197, read-only 1"),
            std::string::npos);
  // Again: nothing changes.
  const std::string after = scalarIn(own_, paths);
  EXPECT_NE(run({"links", "relink", "--db", own_, "--from", files_, "--to", moved, "--apply"})
                .out.find("Relinked 0 of 3 links"),
            std::string::npos);
  EXPECT_EQ(scalarIn(own_, paths), after);

  // Bad input changes nothing either.
  const std::vector<std::string> base = {"links", "relink", "--db", own_, "--apply"};
  auto refused = [&](std::vector<std::string> words) {
    words.insert(words.begin(), base.begin(), base.end());
    return run(words);
  };
  EXPECT_EQ(refused({"--from", "own-files", "--to", moved}).firstError(),
            "quillbox: --from: 'own-files' is a relative path: give the whole path from '/'");
  EXPECT_EQ(refused({"--from", files_, "--to", files_ + "//"}).firstError(),
            "quillbox: --from and --to name the same folder, " + files_);
  const ToolRun nowhere = refused({"--from", files_, "--to", folder_.file("nowhere")});
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_EQ(nowhere.firstError(), "quillbox: the new folder can't be used: there is no folder '" +
                                      folder_.file("nowhere") + "'. Nothing was changed.");
  EXPECT_EQ(refused({"--from", files_, "--to", moved, "--contact", "9999"}).status, 2);
  EXPECT_EQ(refused({"--to", moved}).status, 2);
  EXPECT_EQ(scalarIn(own_, paths), after);
}

TEST_F(LinksCommandsTest, APreviewIsARead) {
  // A user who may not write the database previews.
  const std::string files = shared_->file("firm-files");
  const std::string bytes = bytesOf(db_);
  const ToolRun preview = runAsReader(
      {"links", "relink", "--db", db_, "--from", files, "--to", folder_.path().string()});
  EXPECT_EQ(preview.status, 0) << preview.err;
  EXPECT_NE(preview.out.find("201 links under " + files + ": 0 with their file under"),
            std::string::npos);
  EXPECT_EQ(
      runAsReader({"links", "locate", "--db", db_, "--under", folder_.path().string()}).status, 0);
  EXPECT_TRUE(bytesOf(db_) == bytes);
}

TEST_F(LinksCommandsTest, LocateFindsMovedFilesByName) {
  ownFirm();
  const std::string archive = folder_.file("archive");
  fs::create_directories(archive + "/2019");
  fs::create_directories(archive + "/old");
  const std::string letter = archive + "/2019/Engagement Letter 2019.docx";
  fs::copy_file(files_ + "/Côté Plomberie Inc/Correspondence/Engagement Letter 2025.docx", letter);
  for (const char* copy : {"/2019/Scanned Receipts 2015.pdf", "/old/Scanned Receipts 2015.pdf"})
    fs::copy_file(letter, archive + copy);

  const ToolRun preview = run({"links", "locate", "--db", own_, "--under", archive});
  ASSERT_EQ(preview.status, 0) << preview.err;
  EXPECT_EQ(states(preview.out), (std::vector<std::string>{"found", "several", "several", "none"}));
  EXPECT_NE(preview.out.find("found\t23\tCôté Plomberie Inc.\tEngagement Letter 2019\t" + files_ +
                             "/Côté Plomberie Inc/Correspondence/Engagement Letter 2019.docx\t" +
                             letter + "\n"),
            std::string::npos);
  EXPECT_EQ(scalarIn(own_, "SELECT DocPath FROM Documents WHERE DocumentID = 23"),
            files_ + "/Côté Plomberie Inc/Correspondence/Engagement Letter 2019.docx");

  const ToolRun applied = run({"links", "locate", "--db", own_, "--under", archive, "--apply"});
  EXPECT_EQ(states(applied.out),
            (std::vector<std::string>{"relinked", "several", "several", "none"}));
  EXPECT_EQ(scalarIn(own_, "SELECT DocPath FROM Documents WHERE DocumentID = 23"), letter);
  const ToolRun left = run({"links", "check", "--db", own_, "--broken"});
  EXPECT_EQ(states(left.out), (std::vector<std::string>{"other-computer", "file-gone"}));

  const ToolRun missing = run({"links", "locate", "--db", own_, "--under", letter});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.firstError(),
            "quillbox: --under: '" + letter + "' is a file, not a folder. Nothing was changed.");
}

TEST(ProgressBar, DrawsOnATerminalOnlyAndClearsItsLine) {
  EXPECT_EQ(cli::ProgressBar::line("Checking links", 2500, 5000),
            "Checking links [##########----------]  50%  2500/5000");
  EXPECT_EQ(cli::ProgressBar::line("Checking links", 0, 7),
            "Checking links [--------------------]   0%  0/7");
  EXPECT_EQ(cli::ProgressBar::line("Relinking", 9, 7),
            "Relinking [####################] 100%  7/7");
  EXPECT_EQ(cli::ProgressBar::line("Files seen", 12288, 0), "Files seen  12288");

  std::ostringstream drawn;
  {
    cli::ProgressBar bar(drawn, "Checking links", true);
    bar.update(1, 4);
    bar.update(2, 4);  // within a tenth of a second: not drawn
    bar.update(4, 4);  // the end always is
  }
  // Each frame returns to the line's start and clears it; the rate and the
  // time left that follow the count depend on the clock.
  EXPECT_TRUE(std::regex_match(
      drawn.str(),
      std::regex("\r\033\\[KChecking links \\[#####-{15}\\]  25%  1/4(  [0-9.]+/s  [0-9:]+ left)?"
                 "\r\033\\[KChecking links \\[#{20}\\] 100%  4/4(  [0-9.]+/s)?\r\033\\[K")))
      << drawn.str();
  std::ostringstream quiet;
  {
    cli::ProgressBar bar(quiet, "Checking links");  // not standard error
    bar.update(1, 4);
  }
  EXPECT_EQ(quiet.str(), "");
}

}  // namespace
}  // namespace qb::test
