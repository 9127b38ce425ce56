// What goes wrong with an export: one box with "#F5-1", the dialog stays open, and no part of a
// file is left behind.
#include <fstream>

#include "output/export_fixture.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

const std::string kName = "Anna (05-03-04 till 03-03-04).xml";

class FailingExport : public Exports {
 protected:
  FailingExport() { AddThreeDays(); }
  void ExportXml() { ExportAll({.format = ReportFormat::xml}); }
  void ExpectFailure(std::string_view words) {
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(LastBox(), "An error occured.\n\n" + Text(words) + "\nBrelux CODE:#F5-1");
    EXPECT_EQ(dialog.closed, 0);
    EXPECT_TRUE(test.opener.opened.empty());
    EXPECT_TRUE(test.pointer.waiting);  // as it is meant
    test.boxes.shown.clear();
  }
  // The same works once the reason is gone.
  void ExpectSuccess() {
    ExportXml();
    EXPECT_TRUE(test.boxes.shown.empty());
    EXPECT_TRUE(fs::exists(program.paths.ReportsPath + kName));
    EXPECT_FALSE(test.pointer.waiting);
  }
};

TEST_F(FailingExport, OfADayThatHasGoneSinceItWasListed) {
  ExportXml();
  const Text before = ReportText(kName);
  const std::vector<ExportRow> list = Read().rows;
  test.opener.opened.clear();
  dialog.closed = 0;
  fs::remove(PathOf("c.kvf"));
  ExportDays(program, list, {{.format = ReportFormat::xml}, {0, 1, 2}, true});
  ExpectFailure("No such file or directory");
  EXPECT_EQ(Reports(), std::vector{kName});
  EXPECT_EQ(ReportText(kName), before);
  // Without that day the others can be exported.
  ExportDays(program, list, {{.format = ReportFormat::xml}, {0, 2}, true});
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(FailingExport, OfADayThatCanBeReadNoMore) {
  const std::vector<ExportRow> list = Read().rows;
  fs::permissions(PathOf("c.kvf"), fs::perms::none);
  {
    const AsNobody nobody;
    ExportDays(program, list, {{.format = ReportFormat::xml}, {0, 1, 2}, true});
  }
  ExpectFailure("Permission denied");
  EXPECT_TRUE(Reports().empty());
}

TEST_F(FailingExport, WithoutTheReportsFolder) {
  fs::remove(program.paths.ReportsPath);
  ExportXml();
  ExpectFailure("No such file or directory");
  fs::create_directory(program.paths.ReportsPath);
  ExpectSuccess();
}

TEST_F(FailingExport, IntoAFolderThatTakesNoFiles) {
  fs::permissions(program.paths.ReportsPath, fs::perms(0555));
  {
    const AsNobody nobody;
    ExportXml();
  }
  fs::permissions(program.paths.ReportsPath, fs::perms(0755));
  ExpectFailure("Permission denied");
  EXPECT_TRUE(Reports().empty());
  ExpectSuccess();
}

TEST_F(FailingExport, OverAFolderOfThatName) {
  fs::create_directories(program.paths.ReportsPath + kName + "/inside");
  ExportXml();
  ExpectFailure("Is a directory");
  EXPECT_TRUE(fs::exists(program.paths.ReportsPath + kName + "/inside"));
}

TEST_F(FailingExport, OverAFileThatMayNotBeWritten) {
  std::ofstream(program.paths.ReportsPath + kName) << "mine";
  fs::permissions(program.paths.ReportsPath + kName, fs::perms(0444));
  ExportXml();
  ExpectFailure("Permission denied");
  EXPECT_EQ(ReportText(kName), "mine");
}

TEST_F(FailingExport, OfAUserWhoseNameLeavesNoRoomForTheDates) {
  BeUser(std::string(240, 'n'));
  AddDay("a.kvf", "05-03-04");
  ExportXml();
  ExpectFailure("File name too long");
  EXPECT_TRUE(Reports().empty());
}

// Whatever the disk does: after each number of bytes, at closing, at the sync, at the delete.
TEST_F(FailingExport, OnADiskThatIsFullOrFails) {
  ExportXml();
  const std::size_t size = ReportText(kName).size();
  fs::remove(program.paths.ReportsPath + kName);
  test.opener.opened.clear();
  dialog.closed = 0;
  std::vector<std::pair<FileFault, std::string_view>> faults = {
      {{.room = 0}, "No space left on device"},
      {{.close_fails = true}, "No space left on device"},
      {{.sync_fails = true}, "Input/output error"}};
  for (std::size_t bytes = 0; bytes < size; bytes += 97) {
    faults.push_back({{.disk_full_after = bytes}, "No space left on device"});
  }
  for (const auto& [fault, words] : faults) {
    const std::vector<ExportRow> list = Read().rows;
    {
      const InjectedFault injected(fault);
      ExportDays(program, list, {{.format = ReportFormat::xml}, {0, 1, 2}, true});
    }
    ExpectFailure(words);
    EXPECT_TRUE(Reports().empty());
  }
  ExpectSuccess();
}

// A page takes more than the block of the disk that the old file frees.
TEST_F(FailingExport, WithoutRoomForMoreThanTheOldFile) {
  const std::string page = "Anna (3 days from 05-03-04 till 03-03-04).html";
  std::ofstream(program.paths.ReportsPath + page) << "old";
  const std::vector<ExportRow> list = Read().rows;
  {
    const InjectedFault fault({.room = 0});
    ExportDays(program, list, {{}, {0, 1, 2}, true});
  }
  ExpectFailure("No space left on device");
  EXPECT_EQ(ReportText(page), "old");
}

TEST_F(FailingExport, OfADtaFileIntoAFolderThatIsNone) {
  const std::string folder = test.folders.home.Path("Target/none");
  test.folder_chooser.answer = folder;
  ExportAll({.format = ReportFormat::dta});
  ExpectFailure("No such file or directory");
  EXPECT_TRUE(NamesIn(test.folders.home.Path("Target")).empty());
}

TEST_F(FailingExport, OfADtaFileIntoAFolderThatTakesNoFiles) {
  const std::string folder = test.folders.home.Path("Target");
  fs::permissions(folder, fs::perms(0555));
  test.folder_chooser.answer = folder;
  {
    const AsNobody nobody;
    ExportAll({.format = ReportFormat::dta});
  }
  fs::permissions(folder, fs::perms(0755));
  ExpectFailure("Permission denied");
  EXPECT_TRUE(NamesIn(folder).empty());
}

TEST_F(FailingExport, OfTheSettingLeavesItInMemory) {
  fs::remove(program.paths.SettingsFile);
  fs::create_directories(program.paths.SettingsFile + "/in the way");
  SetClosesAfterExport(program, false);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(LastBoxEndsWith("Brelux CODE:#FF1-0"));
  EXPECT_FALSE(ClosesAfterExport(program));
}

}  // namespace
}  // namespace kelvora
