#include "output/export_days.h"

#include <gtest/gtest.h>
#include <random>

#include "output/report_fixture.h"

namespace kelvora {
namespace {

const Pause kNoPause = [] { return false; };

TEST(ExportDays, NewestDayIsFirstByTwoDigitYears) {
  // 99 counts as newer than 05; marks and blanks don't matter.
  const std::vector<Text> dates = {"01-02-05", "31-12-04", "05/03/99", "02 02 05"};
  EXPECT_EQ(NewestFirst(dates, kNoPause), (std::vector<std::size_t>{2, 3, 0, 1}));
  EXPECT_EQ(NewestFirst({"05-03-04"}, kNoPause), std::vector<std::size_t>{0});
  EXPECT_TRUE(NewestFirst({}, kNoPause).empty());
}

TEST(ExportDays, EqualDatesStandAsTheExchangeSortLeavesThem) {
  std::mt19937 random(20040305);
  for (int run = 0; run < 50; ++run) {
    std::vector<Text> dates;
    std::vector<int> keys;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < 40; ++i) {
      const int day = static_cast<int>(random() % 9) + 1;  // many ties
      dates.push_back("0" + std::to_string(day) + "-03-04");
      keys.push_back(day);
      places.push_back(i);
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
      for (std::size_t j = 0; j < keys.size(); ++j) {
        if (i == j || keys[i] <= keys[j]) continue;
        std::swap(keys[i], keys[j]);
        std::swap(places[i], places[j]);
      }
    }
    EXPECT_EQ(NewestFirst(dates, kNoPause), places);
  }
}

TEST(ExportDays, TheFileIsNamedAfterTheFolderAndTheDays) {
  TestProgram test;
  const ReportSpan span{"Zo?", 3, "05-03-04", "03-03-04"};
  const auto name = [&](ReportFormat format) {
    return ReportFileName(test.program.texts, format, "Zoë ☃", span);
  };
  EXPECT_EQ(name(ReportFormat::html), "Zoë ☃ (3 days from 05-03-04 till 03-03-04).html");
  EXPECT_EQ(name(ReportFormat::dta), "Zoë ☃ (05-03-04 till 03-03-04).dta");
  EXPECT_EQ(name(ReportFormat::xml), "Zoë ☃ (05-03-04 till 03-03-04).xml");
  EXPECT_EQ(ReportFileName(test.program.texts, ReportFormat::html, "Anna", {}),
            "Anna (0 days from  till ).html");
  Make_Taal_Dutch(test.program.texts);
  EXPECT_EQ(name(ReportFormat::html), "Zoë ☃ (3 dagen van 05-03-04 tot en met 03-03-04).html");
}

TEST(ExportDays, NinetyTwoDaysWithGraphsPassAndNinetyThreeAsk) {
  TestProgram test;
  const TextTables& texts = test.program.texts;
  EXPECT_FALSE(TooManyDaysBox(texts, 92, true).has_value());
  EXPECT_FALSE(TooManyDaysBox(texts, 93, false).has_value());
  const std::optional<Box> question = TooManyDaysBox(texts, 93, true);
  ASSERT_TRUE(question.has_value());
  EXPECT_EQ(question->title, "Export contains to many days");
  EXPECT_EQ(question->text,
            "You have selected more than 92 days.\n"
            "The layout of the graphs will not be displayed properly\n\n"
            "Are you sure that you want to continue?");
  EXPECT_EQ(question->icon, BoxIcon::question);
  EXPECT_EQ(question->buttons, BoxButtons::yes_no);
}

TEST(ExportDays, TellsOfNoDaysAndOfASavedFile) {
  TestProgram test;
  const Box none = NoDaysBox(test.program.texts);
  EXPECT_EQ(none.text,
            "You did not select any days!\n"
            "Select the days you want to export and try again.");
  EXPECT_EQ(none.icon, BoxIcon::error);
  const Box saved = SavedDtaBox(test.program.texts, "/home/anna/a.dta");
  EXPECT_EQ(saved.text,
            "The exported file has been saved as: \n/home/anna/a.dta\n\n"
            "You can submit this file to websites that support DTA files.");
  EXPECT_EQ(saved.icon, BoxIcon::information);
  EXPECT_EQ(saved.buttons, BoxButtons::ok);
}

}  // namespace
}  // namespace kelvora
