#include "output/exporting.h"

#include "language/built_in_texts.h"
#include "output/export_fixture.h"
#include "output/report_users.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr ReportOptions kHtml{.format = ReportFormat::html};
constexpr ReportOptions kDta{.format = ReportFormat::dta};
constexpr ReportOptions kXml{.format = ReportFormat::xml};

std::size_t CountOf(std::string_view what, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + what.size())) {
    ++count;
  }
  return count;
}

class Exporting : public Exports {
 protected:
  [[nodiscard]] std::string Target(const std::string& name = {}) const {
    return test.folders.home.Path("Target") + "/" + name;
  }
  // So many rows of the list, all of one small day.
  std::vector<ExportRow> ManyRows(std::size_t count) {
    AddDay("a.kvf", "05-03-04");
    return std::vector<ExportRow>(count, Read().rows.front());
  }
  void ExportMany(std::size_t count, const ReportOptions& options) {
    std::vector<std::size_t> rows(count);
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    ExportDays(program, ManyRows(count), {options, rows, true});
  }
};

// From the day files on the disk to the bytes of the report, against those of the second writer.
TEST_F(Exporting, WritesEveryByteOfTheReportsOfHandMadeUsers) {
  std::size_t compared = 0;
  for (const TableRow& row : ReadTable("reports/users.tsv", kUserColumns)) {
    // Their days stand in the table in the order of the list.
    if (row[0] != "anna" && row[0] != "bram" && row[0] != "cora" && row[0] != "gijs") continue;
    for (const auto& [format, ending] :
         {std::pair{ReportFormat::html, ".html"}, std::pair{ReportFormat::dta, ".dta"},
          std::pair{ReportFormat::xml, ".xml"}}) {
      TakeUser(program, row);
      if (row[5] == "English") Make_Taal_English(program.texts);
      BeUser(row[1]);
      test.locale.separator = row[4];
      test.locale.short_date = TextFromUtf8(row[8]);
      test.clock.now.year = static_cast<int>(NumberOf(row[9]));
      test.folder_chooser.answer = program.paths.ReportsPath;
      const std::vector<Rec_DayFile> days = DaysOf(row[0]);
      for (std::size_t i = 0; i < days.size(); ++i) {
        WriteRecord(PathOf(std::to_string(9 - i) + ".kvf"), days[i]);
      }
      ExportAll({.format = format,
                 .graphs = row[7] == "1",
                 .diary = row[6] == "1" ? DiaryChoice::include : DiaryChoice::leave_out});
      ASSERT_EQ(Reports().size(), 1u) << row[0] << ending;
      const Text made = ReportText(Reports().front());
      const Text expected = ReadExpectedFile("reports/" + row[0] + ending);
      EXPECT_TRUE(made == expected) << row[0] << ending << " " << Difference(made, expected);
      fs::remove(program.paths.ReportsPath + Reports().front());
      ++compared;
    }
  }
  EXPECT_EQ(compared, 12u);
}

TEST_F(Exporting, HtmlAndXmlGoToTheReportsFolderAndAreOpened) {
  AddThreeDays();
  ExportAll(kHtml);
  ExportAll(kXml);
  const std::vector<std::string> names = {"Anna (05-03-04 till 03-03-04).xml",
                                          "Anna (3 days from 05-03-04 till 03-03-04).html"};
  EXPECT_EQ(Reports(), names);
  EXPECT_EQ(test.opener.opened, (std::vector{program.paths.ReportsPath + names[1],
                                             program.paths.ReportsPath + names[0]}));
  EXPECT_TRUE(ReportText(names[0]).starts_with("<?xml"));
  EXPECT_TRUE(ReportText(names[1]).starts_with("<html>\r\n"));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(test.folder_chooser.prompts.empty());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Exporting, OnlyTheSelectedDaysAreInTheReportNewestFirst) {
  AddThreeDays();
  Export(kHtml, {0, 2});
  const Text page = ReportText("Anna (2 days from 05-03-04 till 03-03-04).html");
  EXPECT_NE(page.find("#05-03-0480.5"), Text::npos);
  EXPECT_EQ(page.find("#04-03-0480.5"), Text::npos);
  EXPECT_LT(page.find("#05-03-0480.5"), page.find("#03-03-0480.5"));
  Export(kXml, {1});
  EXPECT_TRUE(fs::exists(program.paths.ReportsPath + "Anna (04-03-04 till 04-03-04).xml"));
}

TEST_F(Exporting, DatesInTheNameAreThoseOfTheList) {
  AddThreeDays();
  program.settings[Setting::opt_system] = "1";
  Export(kXml, {0, 1});
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (03-05-04 till 03-04-04).xml"});
}

TEST_F(Exporting, TheFooterHasTheDateInItsShortFormOrOneThatTextHolds) {
  AddThreeDays();
  ExportAll(kHtml);
  const std::string name = "Anna (3 days from 05-03-04 till 03-03-04).html";
  EXPECT_NE(ReportText(name).find("This page is created on 3/5/04 with "), Text::npos);
  test.locale.short_date = Text();
  ExportAll(kHtml);
  EXPECT_NE(ReportText(name).find("This page is created on 05-03-2004 with "), Text::npos);
}

// The dialog closes before the page is opened, or not at all.
TEST_F(Exporting, TheDialogClosesFirstIfThatIsChosen) {
  AddThreeDays();
  dialog.when_closed = [this] { EXPECT_TRUE(test.opener.opened.empty()); };
  ExportAll(kHtml, false);
  EXPECT_EQ(dialog.closed, 0);
  EXPECT_EQ(test.opener.opened.size(), 1u);
  test.opener.opened.clear();
  ExportAll(kXml, true);
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_EQ(test.opener.opened.size(), 1u);
}

TEST_F(Exporting, WithNoProgramForTheFileTheUserChoosesOne) {
  AddThreeDays();
  test.opener.knows_a_program = false;
  ExportAll(kXml);
  EXPECT_EQ(test.opener.chosen_for,
            std::vector{program.paths.ReportsPath + "Anna (05-03-04 till 03-03-04).xml"});
}

TEST_F(Exporting, ADtaFileGoesWhereTheUserSaysAndIsToldNotOpened) {
  AddThreeDays();
  test.folder_chooser.answer = test.folders.home.Path("Target");
  dialog.when_closed = [this] { EXPECT_EQ(test.boxes.shown.size(), 1u); };
  ExportAll(kDta);
  EXPECT_EQ(test.folder_chooser.prompts, std::vector<Text>{"Select a folder to save the file."});
  EXPECT_EQ(test.folder_chooser.starts, std::vector{program.paths.ReportsPath});
  EXPECT_TRUE(fs::exists(Target("Anna (05-03-04 till 03-03-04).dta")));
  EXPECT_TRUE(Reports().empty());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(LastBox(), "The exported file has been saved as: \n" +
                           TextFromUtf8(Target("Anna (05-03-04 till 03-03-04).dta")) +
                           "\n\nYou can submit this file to websites that support DTA files.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_TRUE(test.opener.opened.empty());
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_FALSE(test.pointer.waiting);
  // One that ends in its separator is the same folder.
  test.folder_chooser.answer = Target();
  ExportAll(kDta, false);
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_EQ(NamesIn(Target()).size(), 1u);
  EXPECT_EQ(LastBox(), test.boxes.shown[0].text);
}

TEST_F(Exporting, NothingHappensIfTheUserNamesNoFolder) {
  AddThreeDays();
  ExportAll(kDta);
  EXPECT_EQ(test.folder_chooser.prompts.size(), 1u);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_TRUE(Reports().empty() && NamesIn(Target()).empty());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(dialog.closed, 0);
}

TEST_F(Exporting, AListWithoutDaysIsToldBehindTheFolder) {
  for (const ReportOptions& options : {kHtml, kXml, kDta}) {
    test.boxes.shown.clear();
    test.folder_chooser.answer = Target();
    Export(options, {});
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_EQ(LastBox(),
              "You did not select any days!\nSelect the days you want to export and try again.");
    EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  }
  EXPECT_EQ(test.folder_chooser.prompts.size(), 1u);
  EXPECT_TRUE(Reports().empty() && NamesIn(Target()).empty());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(dialog.closed, 0);
}

TEST_F(Exporting, RowsOfWhichNoneIsSelectedAreAReportOfNoDays) {
  AddThreeDays();
  Export(kHtml, {});
  Export(kXml, {});
  EXPECT_EQ(Reports(),
            (std::vector<std::string>{"Anna ( till ).xml", "Anna (0 days from  till ).html"}));
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(CountOf("<a href=\"#0", ReportText("Anna (0 days from  till ).html")), 0u);
  EXPECT_EQ(test.opener.opened.size(), 2u);
}

TEST_F(Exporting, NinetyTwoDaysGoWithoutAQuestion) {
  ExportMany(92, kHtml);
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (92 days from 05-03-04 till 05-03-04).html"});
}

TEST_F(Exporting, NinetyThreeDaysAskAndANoLeavesThePointerBusy) {
  ExportMany(93, kHtml);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Export contains to many days");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::question);
  EXPECT_TRUE(Reports().empty());
  EXPECT_TRUE(test.pointer.waiting);
  EXPECT_EQ(dialog.closed, 0);
  test.boxes.answers = {BoxAnswer::yes};
  ExportMany(93, kHtml);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (93 days from 05-03-04 till 05-03-04).html"});
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Exporting, TheQuestionGoesByTheTickAndNotByTheFormat) {
  ReportOptions without = kHtml;
  without.graphs = false;
  ExportMany(93, without);
  EXPECT_TRUE(test.boxes.shown.empty());
  ExportMany(93, kXml);
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (93 days from 05-03-04 till 05-03-04).html"});
}

// One foot for all, and an index row, a section and six bars for each.
TEST_F(Exporting, TwentyYearsOfDaysMakeOneReport) {
  test.boxes.answers = {BoxAnswer::yes};
  ExportMany(7300, kHtml);
  const Text page = ReportText("Anna (7300 days from 05-03-04 till 05-03-04).html");
  EXPECT_EQ(CountOf("<a href=\"#05-03-0480.5\">", page), 7300u);
  EXPECT_EQ(CountOf("<a name=\"#05-03-0480.5\">", page), 7300u);
  EXPECT_EQ(CountOf("class=\"tdG1\"", page), 6u * 7300u);
  EXPECT_EQ(CountOf("</html>", page), 1u);
  EXPECT_TRUE(page.ends_with("</html>\r\n"));
}

TEST_F(Exporting, ASecondExportReplacesTheFileWithoutAQuestion) {
  AddThreeDays();
  ExportAll(kHtml);
  const std::string name = Reports().front();
  const Text first = ReportText(name);
  fs::permissions(program.paths.ReportsPath + name, fs::perms(0640));
  AddDay("b.kvf", "05-03-04", "79");  // the same dates, another weight
  ExportAll(kHtml);
  EXPECT_EQ(Reports(), std::vector{name});
  EXPECT_NE(ReportText(name), first);
  EXPECT_NE(ReportText(name).find("79.00"), Text::npos);
  EXPECT_EQ(fs::status(program.paths.ReportsPath + name).permissions(), fs::perms(0640));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Exporting, ADayWithoutARecordIsOneOfEmptyTexts) {
  AddDay("a.kvf", "05-03-04");
  WriteFileAnew(PathOf("b.kvf"), std::string(4, '\0'));
  ExportAll(kXml);
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (05-03-04 till ).xml"});
  EXPECT_EQ(CountOf("<Day>\r\n", ReportText(Reports().front())), 2u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Exporting, TheFirstDateThatIsNotEmptyIsTheStart) {
  WriteFileAnew(PathOf("a.kvf"), std::string(4, '\0'));
  AddDay("b.kvf", "05-03-04");
  const std::vector<ExportRow> list = Read().rows;
  ExportDays(program, list, {kXml, {1, 0}, false});
  EXPECT_EQ(Reports(), std::vector<std::string>{"Anna (05-03-04 till 05-03-04).xml"});
}

TEST_F(Exporting, TheFolderOfTheUserNamesTheFileWhateverItHolds) {
  for (const std::string name : {"Zo\xC3\xAB \xE2\x98\x83", "a%20b#c?d&e", "<b>'\"\\",
                                 "line\nbreak", " . ", "-rf", "a:b*|"}) {
    BeUser(name);
    AddDay("a.kvf", "05-03-04");
    test.opener.opened.clear();
    ExportAll(kXml);
    const std::string path = program.paths.ReportsPath + name + " (05-03-04 till 05-03-04).xml";
    EXPECT_TRUE(fs::exists(path)) << name;
    EXPECT_EQ(test.opener.opened, std::vector{path});
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Exporting, WhatATickSaysIsASettingAtOnce) {
  for (const auto& [stored, closes] :
       {std::pair{"1", true}, std::pair{"0", false}, std::pair{"", true}, std::pair{"x", true}}) {
    program.settings[Setting::chk_export] = stored;
    EXPECT_EQ(ClosesAfterExport(program), closes) << stored;
  }
  for (const auto& [closes, stored] : {std::pair{false, "0"}, std::pair{true, "1"}}) {
    SetClosesAfterExport(program, closes);
    const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
    ASSERT_TRUE(saved.has_value());
    EXPECT_EQ((*saved)[Setting::chk_export], stored);
    EXPECT_EQ(ClosesAfterExport(program), closes);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
